#include "as400/file_list.h"

#include <algorithm>
#include <utility>

#include "as400/field.h"
#include "as400/refusal.h"

namespace as400 {

namespace {

void skip(std::string_view& text, std::string_view characters) {
    text.remove_prefix(std::min(text.find_first_not_of(characters), text.size()));
}

std::string_view firstWord(std::string_view text) { return text.substr(0, text.find_first_of(" ,(")); }

bool nextWordIs(std::string_view text, std::string_view word) {
    text.remove_prefix(firstWord(text).size());
    skip(text, " ");
    return sameName(firstWord(text), word);
}

bool endsList(std::string_view text) {
    const std::string_view word = firstWord(text);
    if (sameName(word, "WHERE") || sameName(word, "HAVING")) return true;
    if (sameName(word, "GROUP") || sameName(word, "ORDER")) return nextWordIs(text, "BY");
    return sameName(word, "FOR") && (nextWordIs(text, "FETCH") || nextWordIs(text, "READ"));
}

std::string takeName(std::string_view& text) {
    const bool quoted = text.starts_with('"');
    if (quoted) text.remove_prefix(1);
    const auto length = std::min(quoted ? text.find('"') : text.find_first_of(" ,/()"), text.size());
    std::string name(text.substr(0, length));
    text.remove_prefix(std::min(length + (quoted ? 1 : 0), text.size()));
    return name;
}

}  // namespace

FileReference takeFileReference(std::string_view& text) {
    const std::string_view whole = firstWord(text);
    FileReference reference;
    reference.file = takeName(text);
    if (text.starts_with('/')) {
        text.remove_prefix(1);
        reference.library = std::exchange(reference.file, takeName(text));
    }
    if (reference.file.empty()) refuseRequest("HSF1001 File name expected at '" + std::string(whole) + "'.");
    if (text.starts_with('(')) {
        const auto close = text.find(')');
        if (close == std::string_view::npos) refuseRequest("HSF1002 Member name of " + reference.file + " not closed.");
        reference.member = text.substr(1, close - 1);
        text.remove_prefix(close + 1);
    }
    return reference;
}

std::vector<FileReference> takeFileList(std::string_view& text) {
    std::vector<FileReference> list;
    skip(text, " ,");
    while (!text.empty() && !endsList(text)) {
        list.push_back(takeFileReference(text));
        skip(text, " ,");
    }
    if (list.empty()) refuseRequest("HSF1003 No host file named.");
    return list;
}

}  // namespace as400
