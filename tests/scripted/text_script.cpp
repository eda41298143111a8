#include "scripted/text_script.h"

#include <charconv>
#include <optional>
#include <sstream>

namespace textscript {
namespace {

// Host code page 37 for the characters from ' ' to '~'.
constexpr unsigned char Ebcdic[] =
    "\x40\x5A\x7F\x7B\x5B\x6C\x50\x7D\x4D\x5D\x5C\x4E\x6B\x60\x4B\x61\xF0\xF1\xF2\xF3\xF4\xF5\xF6\xF7\xF8\xF9\x7A\x5E"
    "\x4C\x7E\x6E\x6F\x7C\xC1\xC2\xC3\xC4\xC5\xC6\xC7\xC8\xC9\xD1\xD2\xD3\xD4\xD5\xD6\xD7\xD8\xD9\xE2\xE3\xE4\xE5\xE6"
    "\xE7\xE8\xE9\xBA\xE0\xBB\xB0\x6D\x79\x81\x82\x83\x84\x85\x86\x87\x88\x89\x91\x92\x93\x94\x95\x96\x97\x98\x99\xA2"
    "\xA3\xA4\xA5\xA6\xA7\xA8\xA9\xC0\x4F\xD0\xA1";

std::optional<std::uint32_t> functionCode(const std::string& name) {
    static constexpr const char* Names[] = {"SEND_REQUEST", "GET_FIELD", "GET_DATA", "END_REQUEST",
                                            "RESET",        "PUT_DATA",  "END_DATA"};
    for (std::uint32_t i = 0; i < std::size(Names); ++i)
        if (name == Names[i]) return i + 1;
    return std::nullopt;
}

std::optional<std::uint32_t> number(const std::string& text, int base) {
    std::uint32_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, base);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

// One line, read from left to right.
class Line {
public:
    explicit Line(const std::string& text) : text_(text) {}

    void skipBlanks() {
        while (at_ < text_.size() && (text_[at_] == ' ' || text_[at_] == '\t' || text_[at_] == '\r')) ++at_;
    }
    bool atEnd() const { return at_ == text_.size(); }
    std::string word(char extraEnd = ' ') {
        const std::size_t end = std::min(text_.find_first_of(" \t\r", at_), text_.find(extraEnd, at_));
        std::string result = text_.substr(at_, end == std::string::npos ? end : end - at_);
        at_ += result.size();
        skipBlanks();
        return result;
    }
    bool accept(char character) {
        if (atEnd() || text_[at_] != character) return false;
        ++at_;
        return true;
    }
    // A text in double quotes; nothing when it is not closed.
    std::optional<std::string> quoted() {
        if (!accept('"')) return std::nullopt;
        std::string result;
        while (!atEnd()) {
            if (!accept('"'))
                result += text_[at_++];
            else if (accept('"'))
                result += '"';
            else
                return skipBlanks(), result;
        }
        return std::nullopt;
    }

private:
    std::string text_;
    std::size_t at_ = 0;
};

bool appendHex(const std::string& digits, std::string* bytes) {
    if (digits.size() % 2 != 0) return false;
    for (std::size_t i = 0; i < digits.size(); i += 2) {
        const auto byte = number(digits.substr(i, 2), 16);
        if (!byte) return false;
        *bytes += static_cast<char>(*byte);
    }
    return true;
}

bool appendEbcdic(const std::string& text, std::string* bytes) {
    for (const char character : text) {
        if (character < ' ' || character > '~') return false;
        *bytes += static_cast<char>(Ebcdic[character - ' ']);
    }
    return true;
}

bool fill(Line& line, std::string* bytes) {
    const auto total = number(line.word(':'), 10);
    if (!total || !line.accept(':')) return false;
    const auto byte = number(line.word(), 16);
    if (!byte || *byte > 255 || *total > 65536 || *total < bytes->size()) return false;
    bytes->resize(*total, static_cast<char>(*byte));
    return true;
}

bool appendPiece(Line& line, std::string* bytes) {
    const std::string kind = line.word(':');
    if (!line.accept(':')) return false;
    if (kind == "hex") return appendHex(line.word(), bytes);
    if (kind == "fill") return fill(line, bytes);
    const auto text = line.quoted();
    if (!text) return false;
    if (kind == "ebcdic") return appendEbcdic(*text, bytes);
    *bytes += *text;
    return kind == "text";
}

bool parseLine(Line& line, Script* script) {
    const auto function = functionCode(line.word());
    const auto code = number(line.word(), 16);
    const auto detail = number(line.word(), 16);
    if (!function || !code || !detail) return false;
    Answer answer{*code, *detail, {}};
    while (!line.atEnd())
        if (!appendPiece(line, &answer.bytes)) return false;
    (*script)[*function].push_back(std::move(answer));
    return true;
}

}  // namespace

bool parse(const std::string& text, Script* script, int* errorLine) {
    std::istringstream lines(text);
    std::string content;
    for (*errorLine = 1; std::getline(lines, content); ++*errorLine) {
        Line line(content);
        line.skipBlanks();
        if (line.atEnd() || line.accept('#')) continue;
        if (!parseLine(line, script)) return false;
    }
    return true;
}

}  // namespace textscript
