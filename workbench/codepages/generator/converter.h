#pragma once

#include <unicode/ucnv.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "page_data.h"

namespace codepages {

// One of ICU's converters, asked for one code or one character at a time.
class Converter {
public:
    // Throws std::runtime_error when ICU has no converter of that name.
    explicit Converter(const std::string& icuName);
    ~Converter() { ucnv_close(converter_); }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    // Changes between single bytes and pairs with shift bytes, as EBCDIC does.
    bool isShifting() const { return ucnv_getType(converter_) == UCNV_EBCDIC_STATEFUL; }

    // NoCharacter for an unassigned code and for one that stands for more than one UTF-16 unit.
    char16_t character(const std::string& bytes) const;
    // Bytes above 0xFF are a pair. One-way mappings are taken too.
    std::optional<std::uint16_t> code(char16_t character) const;
    // All characters up to U+FFFF that have a code, one-way mappings included.
    std::vector<char16_t> characters() const;

private:
    UConverter* converter_;
};

}  // namespace codepages
