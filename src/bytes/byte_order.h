#pragma once

#include <cstdint>

// Numbers from and to bytes, in both orders; the only place where bytes are shifted together. The host and the options
// and catalogue records put the high byte first; PC records, code tables, field descriptions and the monitor's records
// the low byte.
namespace bytes {

inline std::uint8_t at(const char* bytes, std::uint32_t place) { return static_cast<std::uint8_t>(bytes[place]); }

inline std::uint16_t lowFirst16(const char* bytes) {
    return static_cast<std::uint16_t>(at(bytes, 0) | at(bytes, 1) << 8);
}

inline std::uint16_t highFirst16(const char* bytes) {
    return static_cast<std::uint16_t>(at(bytes, 0) << 8 | at(bytes, 1));
}

inline void putLowFirst32(char* bytes, std::uint32_t value) {
    for (std::uint32_t place = 0; place < 4; ++place) bytes[place] = static_cast<char>(value >> (8 * place));
}

// A signed number of `count` bytes, 0 to 8, high byte first; 0 for none.
inline std::int64_t highFirstSigned(const char* bytes, std::uint32_t count) {
    std::uint64_t value = count > 0 && static_cast<std::int8_t>(bytes[0]) < 0 ? ~std::uint64_t{0} : 0;
    for (std::uint32_t place = 0; place < count; ++place) value = value << 8 | at(bytes, place);
    return static_cast<std::int64_t>(value);
}

// The low `count` bytes of the value, high byte first.
inline void putHighFirst(char* bytes, std::uint64_t value, std::uint32_t count) {
    for (std::uint32_t place = count; place > 0; value >>= 8) bytes[--place] = static_cast<char>(value);
}

}  // namespace bytes
