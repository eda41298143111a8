#include "as400/query_text.h"

#include <algorithm>
#include <cctype>
#include <optional>

#include "as400/database.h"
#include "as400/field.h"
#include "as400/refusal.h"

namespace as400 {

namespace {

enum class TokenKind { Name, QuotedName, Literal, Number, Other };

struct Token {
    TokenKind kind;
    std::string_view text;
};

bool startsName(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x80 || std::isalpha(byte) || c == '_' || c == '#' || c == '@' || c == '$';
}

bool continuesName(char c) { return startsName(c) || (c >= '0' && c <= '9'); }

bool continuesNumber(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '.'; }

std::size_t lengthWhile(std::string_view text, bool (*belongs)(char)) {
    return static_cast<std::size_t>(std::ranges::find_if_not(text, belongs) - text.begin());
}

// Up to and with the closing quote; a doubled quote gives two tokens in a row, which does no harm here.
std::size_t quotedLength(std::string_view text) {
    const auto close = text.find(text[0], 1);
    return close == std::string_view::npos ? text.size() : close + 1;
}

Token takeToken(std::string_view& text) {
    TokenKind kind = TokenKind::Other;
    std::size_t length = 1;
    if (startsName(text[0])) {
        kind = TokenKind::Name;
        length = lengthWhile(text, continuesName);
    } else if (text[0] >= '0' && text[0] <= '9') {
        kind = TokenKind::Number;
        length = lengthWhile(text, continuesNumber);
    } else if (text[0] == '\'' || text[0] == '"') {
        kind = text[0] == '"' ? TokenKind::QuotedName : TokenKind::Literal;
        length = quotedLength(text);
    }
    const Token token{kind, text.substr(0, length)};
    text.remove_prefix(length);
    return token;
}

std::string_view trimmedEnd(std::string_view text) { return text.substr(0, text.find_last_not_of(' ') + 1); }

std::string_view trimmed(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return trimmedEnd(text);
}

// Cuts one word off the end.
bool dropLastWord(std::string_view& text, std::string_view word) {
    const std::string_view shorter = trimmedEnd(text);
    if (shorter.size() < word.size() || !sameName(shorter.substr(shorter.size() - word.size()), word)) return false;
    text = shorter.substr(0, shorter.size() - word.size());
    return true;
}

std::string_view withoutFetchOnly(std::string_view text) {
    std::string_view shorter = text;
    const bool read =
        dropLastWord(shorter, " ONLY") && (dropLastWord(shorter, " FETCH") || dropLastWord(shorter, " READ"));
    return read && (dropLastWord(shorter, " FOR") || dropLastWord(shorter, "FOR")) ? shorter : text;
}

// Position of the word FROM outside quotes and parentheses.
std::optional<std::size_t> findFrom(std::string_view text) {
    const std::string_view whole = text;
    int depth = 0;
    while (!text.empty()) {
        const Token token = takeToken(text);
        if (token.text == "(") ++depth;
        if (token.text == ")") --depth;
        if (depth == 0 && token.kind == TokenKind::Name && sameName(token.text, "FROM")) {
            return static_cast<std::size_t>(token.text.data() - whole.data());
        }
    }
    return std::nullopt;
}

std::optional<std::size_t> byPosition(std::string_view name, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        if (sameName(name, aliasOf(i))) return i;
    }
    return std::nullopt;
}

std::optional<std::size_t> byFileName(std::string_view name, const std::vector<FileReference>& files) {
    const auto found = std::ranges::find_if(files, [&](const auto& file) { return sameName(file.file, name); });
    if (found == files.end()) return std::nullopt;
    return static_cast<std::size_t>(found - files.begin());
}

std::optional<std::size_t> qualifiedFile(std::string_view name, const std::vector<FileReference>& files,
                                         Qualifiers qualifiers) {
    const auto file = byFileName(name, files);
    const auto position = byPosition(name, files.size());
    if (qualifiers == Qualifiers::FileNames) return file ? file : position;
    return position ? position : file;
}

std::string_view unquoted(const Token& token) {
    if (token.kind != TokenKind::QuotedName || token.text.size() < 2) return token.text;
    return token.text.substr(1, token.text.size() - 2);
}

}  // namespace

std::string aliasOf(std::size_t index) { return "t" + std::to_string(index + 1); }

QueryText splitQuery(std::string_view request) {
    constexpr std::string_view Select = "SELECT ", From = "FROM";
    if (!sameName(request.substr(0, Select.size()), Select)) refuseRequest("HSF1004 Request not recognised.");
    request.remove_prefix(Select.size());
    const auto from = findFrom(request);
    if (!from) refuseRequest("HSF1005 FROM missing in the request.");
    QueryText query;
    query.columns = trimmed(request.substr(0, *from));
    std::string_view rest = request.substr(*from + From.size());
    query.files = takeFileList(rest);
    query.rest = withoutFetchOnly(rest);
    return query;
}

std::string withAliases(std::string_view text, const std::vector<FileReference>& files, Qualifiers qualifiers) {
    std::string result;
    while (!text.empty()) {
        const Token token = takeToken(text);
        const bool name = token.kind == TokenKind::Name || token.kind == TokenKind::QuotedName;
        const auto file =
            name && text.starts_with('.') ? qualifiedFile(unquoted(token), files, qualifiers) : std::nullopt;
        if (file) {
            result += aliasOf(*file);
        } else if (token.kind == TokenKind::Name && token.text.find_first_of("#@$") != std::string_view::npos) {
            result += quotedName(token.text);
        } else {
            result += token.text;
        }
    }
    return result;
}

}  // namespace as400
