#include "reference/declarations.h"

#include <algorithm>
#include <fstream>
#include <regex>
#include <sstream>
#include <stdexcept>

namespace reference {
namespace {

constexpr std::string_view Blanks = " \t\n";

std::string trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(Blanks);
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(Blanks) - first + 1));
}

// In one line, with single blanks.
std::string joined(const std::string& text) { return trimmed(std::regex_replace(text, std::regex("\\s+"), " ")); }

std::string contentsOf(const std::string& file) {
    std::ifstream stream(file);
    std::ostringstream contents;
    contents << stream.rdbuf();
    if (!stream) throw std::runtime_error(file + ": cannot be read");
    return contents.str();
}

// What the preprocessor would take away, macros that are no declarations among it.
std::string withoutDirectives(const std::string& text) {
    const std::string kept = std::regex_replace(text, std::regex("(^|\n)#([^\n]*\\\\\n)*[^\n]*"), "\n");
    return std::regex_replace(kept, std::regex("\nZHST_(BEGIN|END)_C\n"), "\n\n");
}

// Reads comments and the statements behind them.
class Reader {
public:
    Reader(const std::string& file, std::string text) : file_(file), text_(std::move(text)) {}

    std::vector<Declaration> read() {
        while (skipBlanks())
            if (text_.compare(at_, 2, "/*") == 0)
                takeComment();
            else
                takeStatement();
        return std::move(declarations_);
    }

private:
    bool skipBlanks() {
        at_ = text_.find_first_not_of(Blanks, at_);
        return at_ != std::string::npos;
    }
    void takeComment() {
        const std::size_t end = text_.find("*/", at_);
        comment_ = text_.substr(at_ + 2, end - at_ - 2);
        at_ = end + 2;
    }
    void takeStatement() {
        const std::size_t end = std::min(text_.find_first_of(";{}", at_), text_.size() - 1);
        const std::string statement = joined(text_.substr(at_, end - at_));
        const char mark = text_[end];
        at_ = end + 1;
        std::smatch match;
        if (mark == '{') {
            table_ = std::regex_match(statement, match, std::regex("typedef struct (\\w+)")) ? match[1].str() : "";
            slot_ = 0;
        } else if (mark == '}') {
            table_.clear();
        } else if (statement.find("ZHST_CALL") != std::string::npos) {
            declare(statement);
            ++slot_;
        } else if (std::regex_match(statement, match, std::regex("void\\* unused\\d+(\\[(\\d+)\\])?"))) {
            slot_ += match[2].matched ? static_cast<unsigned>(std::stoul(match[2])) : 1;
        }
        comment_.clear();
    }

    void declare(const std::string& statement) {
        std::smatch match;
        if (!std::regex_search(statement, match, std::regex("ZHST_CALL\\*? (\\w+)\\)?\\((.*)\\)$")))
            throw std::runtime_error(file_ + ": not understood: " + statement);
        Declaration declaration;
        declaration.name = match[1];
        declaration.code = std::regex_replace(statement, std::regex("ZHST_EXPORT | ZHST_CALL"), "");
        declaration.code = std::regex_replace(declaration.code, std::regex("\\(ZHST_CALL\\* "), " (*");
        declaration.table = table_;
        declaration.slot = slot_;
        describe(declaration);
        checkParameters(declaration, match[2]);
        declarations_.push_back(std::move(declaration));
    }

    void describe(Declaration& declaration) const {
        std::istringstream lines(comment_);
        std::string* paragraph = &declaration.description;
        for (std::string line; std::getline(lines, line);) {
            std::string text = trimmed(line);
            std::smatch match;
            if (std::regex_match(text, match, std::regex("- (\\w+): (.*)"))) {
                declaration.parameters.push_back({match[1], ""});
                paragraph = &declaration.parameters.back().meaning;
                text = match[2];
            } else if (std::regex_match(text, match, std::regex("(Result|When|Failure): (.*)"))) {
                paragraph = match[1] == "Result" ? &declaration.result
                            : match[1] == "When" ? &declaration.when
                                                 : &declaration.failure;
                text = match[2];
            }
            if (!paragraph->empty() && !text.empty()) *paragraph += ' ';
            *paragraph += text;
        }
        if (declaration.description.empty()) fail(declaration, "is not described");
    }

    // In the order of the declaration, each with its direction.
    void checkParameters(const Declaration& declaration, const std::string& list) const {
        std::vector<std::string> names;
        const std::regex parameter("(\\w+)\\s*(,|$)");
        if (list != "void")
            for (std::sregex_iterator each(list.begin(), list.end(), parameter), end; each != end; ++each)
                names.push_back((*each)[1]);
        std::size_t described = 0;
        for (const Parameter& each : declaration.parameters) {
            if (each.name == "others") return;
            if (described == names.size() || names[described] != each.name)
                fail(declaration, "has no parameter " + each.name + " in that place");
            if (!each.meaning.starts_with("in") && !each.meaning.starts_with("out"))
                fail(declaration, "does not say the direction of " + each.name);
            ++described;
        }
        if (described != names.size()) fail(declaration, "does not describe " + names[described]);
    }

    [[noreturn]] void fail(const Declaration& declaration, const std::string& what) const {
        throw std::runtime_error(file_ + ": " + declaration.name + " " + what);
    }

    std::string file_;
    std::string text_;
    std::size_t at_ = 0;
    std::string comment_;
    std::string table_;
    unsigned slot_ = 0;
    std::vector<Declaration> declarations_;
};

}  // namespace

std::vector<Declaration> readDeclarations(const std::string& file) {
    return Reader(file, withoutDirectives(contentsOf(file))).read();
}

}  // namespace reference
