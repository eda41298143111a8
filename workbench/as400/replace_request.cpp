#include "as400/replace_request.h"

#include <algorithm>
#include <charconv>

#include "as400/field.h"
#include "as400/refusal.h"

namespace as400 {

namespace {

constexpr std::string_view Keyword = "REPLACE ", Into = " into ";

std::vector<std::string> splitNames(std::string_view text) {
    std::vector<std::string> names;
    while (!text.empty()) {
        const auto comma = std::min(text.find(','), text.size());
        std::string name(text.substr(0, comma));
        std::erase(name, ' ');
        if (name.empty()) refuseRequest("HSF1030 Field name missing in the list.");
        names.push_back(upperCase(name));
        text.remove_prefix(std::min(comma + 1, text.size()));
    }
    return names;
}

std::size_t findInto(std::string_view request) {
    const auto at = upperCase(request).find(upperCase(Into));
    if (at == std::string::npos) refuseRequest("HSF1031 Target file missing in the request.");
    return at;
}

struct Option {
    std::string_view name, value;
};

// The mark that ends the value of an option, as it was composed.
std::size_t valueEnd(std::string_view name, std::string_view text) {
    if (name == "FILETEXT") return text.find("') CRTMBR(YES) ");
    if (name == "MBRTEXT") return text.rfind("')");
    return std::min(text.find(") "), text.rfind(')'));
}

Option takeOption(std::string_view& text) {
    const auto open = std::min(text.find('('), text.size());
    const std::string_view name = text.substr(0, open);
    text.remove_prefix(std::min(open + 1, text.size()));
    const auto end = valueEnd(name, text);
    if (end == std::string_view::npos) refuseRequest("HSF1032 Option " + std::string(name) + " not recognised.");
    const bool quoted = text.starts_with('\'');
    const Option option{name, text.substr(0, end).substr(quoted && end > 0 ? 1 : 0)};
    text.remove_prefix(text.find(')', end) + 1);
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return option;
}

std::uint32_t number(std::string_view text) {
    std::uint32_t value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

void set(const Option& option, ReplaceRequest& request) {
    if (option.name == "CRTFILE") {
        request.createFile = option.value == "YES";
    } else if (option.name == "FILETYPE") {
        request.source = option.value == "SOURCE";
    } else if (option.name == "RCDLEN") {
        request.recordLength = number(option.value);
    } else if (option.name == "REFFILE") {
        request.referenceFile = option.value;
    } else if (option.name == "PUBAUT") {
        request.authority = option.value;
    } else if (option.name == "FILETEXT") {
        request.fileText = option.value;
    } else if (option.name == "CRTMBR") {
        request.createMember = option.value == "YES";
    } else if (option.name == "MBRTEXT") {
        request.memberText = option.value;
    } else {
        refuseRequest("HSF1032 Option " + std::string(option.name) + " not recognised.");
    }
}

}  // namespace

ReplaceRequest parseReplace(std::string_view text) {
    ReplaceRequest request;
    const auto into = findInto(text);
    const std::string_view fields = text.substr(Keyword.size(), std::max(into, Keyword.size()) - Keyword.size());
    if (fields != "*") request.fields = splitNames(fields);
    text.remove_prefix(into + Into.size());
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    request.target = takeFileReference(text);
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    while (!text.empty()) set(takeOption(text), request);
    return request;
}

}  // namespace as400
