#pragma once

#include <string>
#include <string_view>
#include <vector>

// The line of field names in front of the records of a PC file, as programs that read tables want it.

// From the descriptions of the fields as the library publishes them.
class FieldNames {
public:
    void storeWritten(std::string_view code, std::string_view value);
    // With its line end. Names that hold the separator, a quote or a line end stand in quotes.
    std::string header(char separator) const;

private:
    std::vector<std::string> names_;
};
