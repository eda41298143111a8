#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// UTF-8 text in a host code page, with shift bytes where the page is double-byte.
std::string hostText(std::string_view utf8, std::uint32_t codePage = 37);
// "01 ff" or "01FF" as bytes.
std::string bytesOf(std::string_view hexDigits);
// Bytes as "01 FF", for messages and byte tables.
std::string hexOf(std::string_view bytes);

// A host record, field by field. Numbers are whole: 12.50 with two decimals is 1250.
class HostRecord {
public:
    // Padded with host blanks to `length`; a longer text is cut.
    HostRecord& text(std::string_view utf8, std::size_t length, std::uint32_t codePage = 37);
    HostRecord& zoned(std::int64_t value, int digits);
    HostRecord& packed(std::int64_t value, int digits);
    HostRecord& binary(std::int64_t value, int bytes);
    HostRecord& hex(std::string_view hexDigits) { return raw(bytesOf(hexDigits)); }

    const std::string& str() const { return bytes_; }
    operator const std::string&() const { return bytes_; }

private:
    HostRecord& raw(std::string_view bytes);

    std::string bytes_;
};
