#pragma once

#include <concepts>
#include <string>
#include <string_view>
#include <vector>

// Values written as JSON, for programs that read what z7xfer tells. A value is a text that is JSON already.
namespace json {

// A string. Bytes that are not UTF-8 become U+FFFD, one for each, since JSON has no other bytes.
std::string string(std::string_view utf8);

std::string array(const std::vector<std::string>& values);

// An object in one line, its members in the order in which they are added.
class Object {
public:
    Object& value(std::string_view name, const std::string& json);
    Object& text(std::string_view name, std::string_view utf8) { return value(name, string(utf8)); }
    Object& number(std::string_view name, std::integral auto number) { return value(name, std::to_string(number)); }
    Object& truth(std::string_view name, bool is) { return value(name, is ? "true" : "false"); }

    std::string whole() const { return "{" + members_ + "}"; }

private:
    std::string members_;
};

}  // namespace json
