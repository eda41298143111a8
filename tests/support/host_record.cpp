#include "support/host_record.h"

#include <cstdio>
#include <cstdlib>
#include <stdexcept>

#include "codepages/codepages.h"
#include "support/library.h"

namespace {

const codepages::CodePage& page(std::uint32_t number) {
    static const bool loaded = [] {
        const char* const named = std::getenv("Z7X_CODE_PAGES");
        std::string error;
        if (codepages::load(named && *named ? named : binFolder() + "/codepages.dat", &error)) return true;
        throw std::runtime_error("code pages: " + error);
    }();
    const codepages::CodePage* const found = loaded ? codepages::find(number) : nullptr;
    if (!found) throw std::runtime_error("no code page " + std::to_string(number));
    return *found;
}

// The last `count` decimal digits, leading zeros included.
std::string decimalDigits(std::int64_t value, int count) {
    std::string digits = std::to_string(value < 0 ? 0 - static_cast<std::uint64_t>(value) : std::uint64_t(value));
    if (digits.size() > static_cast<std::size_t>(count)) throw std::runtime_error("the number has too many digits");
    return std::string(count - digits.size(), '0') + digits;
}

}  // namespace

std::string hostText(std::string_view utf8, std::uint32_t codePage) { return page(codePage).encode(utf8); }

std::string bytesOf(std::string_view hexDigits) {
    std::string digits, bytes;
    for (const char character : hexDigits)
        if (character != ' ') digits += character;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
        bytes += static_cast<char>(std::stoi(digits.substr(i, 2), nullptr, 16));
    return bytes;
}

std::string hexOf(std::string_view bytes) {
    std::string text;
    for (const char byte : bytes) {
        char digits[4];
        std::snprintf(digits, sizeof digits, "%02X ", static_cast<unsigned char>(byte));
        text += digits;
    }
    if (!text.empty()) text.pop_back();
    return text;
}

HostRecord& HostRecord::text(std::string_view utf8, std::size_t length, std::uint32_t codePage) {
    std::string bytes = hostText(utf8, codePage);
    bytes.resize(length, '\x40');
    return raw(bytes);
}

HostRecord& HostRecord::zoned(std::int64_t value, int digits) {
    for (const char digit : decimalDigits(value, digits)) bytes_ += static_cast<char>(0xF0 | (digit - '0'));
    const int last = bytes_.back() & 0x0F;
    bytes_.back() = static_cast<char>((value < 0 ? 0xD : 0xF) << 4 | last);
    return *this;
}

HostRecord& HostRecord::packed(std::int64_t value, int digits) {
    // An odd number of digits and the sign fill whole bytes.
    std::string nibbles = decimalDigits(value, digits % 2 == 0 ? digits + 1 : digits);
    for (char& nibble : nibbles) nibble = static_cast<char>(nibble - '0');
    nibbles += static_cast<char>(value < 0 ? 0xD : 0xF);
    for (std::size_t i = 0; i < nibbles.size(); i += 2) bytes_ += static_cast<char>(nibbles[i] << 4 | nibbles[i + 1]);
    return *this;
}

HostRecord& HostRecord::binary(std::int64_t value, int bytes) {
    for (int i = bytes - 1; i >= 0; --i) bytes_ += static_cast<char>(static_cast<std::uint64_t>(value) >> (8 * i));
    return *this;
}

HostRecord& HostRecord::raw(std::string_view bytes) {
    bytes_ += bytes;
    return *this;
}
