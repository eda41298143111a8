#include "field_names.h"

#include "host_layout.h"

namespace {

std::string quoted(const std::string& name, char separator) {
    const char special[] = {separator, '"', '\r', '\n'};
    if (name.find_first_of(std::string_view(special, sizeof special)) == std::string::npos) return name;
    std::string text = "\"";
    for (const char letter : name) text += letter == '"' ? "\"\"" : std::string(1, letter);
    return text + '"';
}

}  // namespace

void FieldNames::storeWritten(std::string_view code, std::string_view value) {
    if (code == DescriptionItem && value.size() >= DescriptionBytes) names_.push_back(hostColumn(value, 0).name);
}

std::string FieldNames::header(char separator) const {
    std::string line;
    for (const std::string& name : names_)
        line += (line.empty() ? "" : std::string(1, separator)) + quoted(name, separator);
    return line + "\r\n";
}
