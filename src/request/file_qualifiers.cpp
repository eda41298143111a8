#include "request/file_qualifiers.h"

#include <algorithm>
#include <charconv>

#include "platform/platform.h"
#include "text/double_byte.h"

namespace request {
namespace {

constexpr std::size_t MaximumName = 1024;  // the longest host file list has no more

// Takes the next element off the list; its file, or an empty text at the end of the list. People put a blank behind
// their commas: any run of the two separates, also at the start of the list, so that the N-th file keeps its number.
std::string_view takeElement(std::string_view& rest) {
    while (!rest.empty()) {
        rest.remove_prefix(std::min(rest.find_first_not_of(" ,"), rest.size()));
        std::string_view element = rest.substr(0, rest.find_first_of(" ,("));
        rest.remove_prefix(element.size());
        if (!rest.empty() && rest[0] == '(') {
            const std::size_t end = text::findCharacter(rest, ')');
            rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
        }
        const std::size_t slash = text::findCharacter(element, '/');
        if (slash != std::string_view::npos) element.remove_prefix(slash + 1);
        element = text::trimmed(element);
        if (!element.empty()) return element;
    }
    return {};
}

// The number N of a qualifier "tN." or "TN." at the start of the text and its length, or 0.
std::uint32_t qualifierNumber(std::string_view text, std::size_t& length) {
    if (text.empty() || (text[0] != 't' && text[0] != 'T')) return 0;
    std::uint32_t number = 0;
    const char* digits = text.data() + 1;
    const char* end = text.data() + text.size();
    if (digits == end || *digits == '0') return 0;  // written without leading zeros
    const auto [stop, error] = std::from_chars(digits, end, number);
    if (error != std::errc() || stop == end || *stop != '.') return 0;
    length = static_cast<std::size_t>(stop + 1 - text.data());
    return number;
}

// In capital letters, as the host has its names, whatever the user typed.
bool appendUpper(text::TextBuffer& text, std::string_view name) {
    char upper[MaximumName + 1];
    text::copyCut(name, upper, sizeof(upper));
    platform::CharUpperA(upper);
    return text.append({upper, "."});
}

}  // namespace

std::string_view fileOfElement(std::string_view hostFiles, std::uint32_t number) {
    std::string_view element;
    for (std::uint32_t at = 0; at < number; ++at) {
        element = takeElement(hostFiles);
        if (element.empty()) break;
    }
    return element;
}

// One pass over the old text does for every number and both cases of the letter: no two qualifiers can overlap, and a
// name that went in ("PART2.") is not taken for one. A number beyond the list stays as it is.
Replacement replaceQualifiers(text::TextBuffer& text, std::uint32_t start, std::string_view hostFiles) {
    const std::string_view old = text.view().substr(std::min(start, text.length()));
    text::TextBuffer replaced;
    std::size_t copied = 0;
    for (std::size_t at = 0; at < old.size();) {
        std::size_t length = 1;
        const std::uint32_t number = qualifierNumber(old.substr(at), length);
        const std::string_view file = number ? fileOfElement(hostFiles, number) : std::string_view();
        if (!file.empty()) {
            if (!replaced.append(old.substr(copied, at - copied)) || !appendUpper(replaced, file))
                return Replacement::NoMemory;
            copied = at + length;
        }
        at += file.empty() ? text::characterBytes(old.substr(at)) : length;
    }
    if (copied == 0) return Replacement::Replaced;
    if (!replaced.append(old.substr(copied))) return Replacement::NoMemory;
    // Asked before the text is touched: one that has lost its qualifiers' part must not be sent.
    const std::uint32_t capacity = text.record()->capacity;
    if (capacity != 0 && start + replaced.length() >= capacity) return Replacement::DoesNotFit;
    text.keepFirst(start);
    return text.append(replaced.view()) ? Replacement::Replaced : Replacement::NoMemory;
}

}  // namespace request
