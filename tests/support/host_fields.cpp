#include "support/host_fields.h"

namespace hostfields {

std::string raw(std::uint8_t code, std::uint8_t byte1, std::uint8_t byte2, const std::string& name,
                std::uint8_t digits) {
    std::string field(40, '\0');
    field[0] = static_cast<char>(code);
    field[1] = static_cast<char>(byte1);
    field[2] = static_cast<char>(byte2);
    field.replace(3, 30, (name + std::string(30, ' ')).substr(0, 30));
    field[33] = static_cast<char>(digits);
    return field;
}

std::string typed(std::uint8_t code, const std::string& name, std::uint16_t length) {
    return raw(code, static_cast<std::uint8_t>(length & 0xFF), static_cast<std::uint8_t>(length >> 8), name, 0);
}

std::string hex(const std::string& name, std::uint16_t length) { return typed(0, name, length); }
std::string character(const std::string& name, std::uint16_t length) { return typed(2, name, length); }

std::string binary(const std::string& name, std::uint8_t bytes, std::uint8_t decimals) {
    return raw(1, bytes, decimals, name, bytes == 2 ? 4 : 9);
}
std::string zoned(const std::string& name, std::uint8_t digits, std::uint8_t decimals) {
    return raw(3, digits, decimals, name, digits);
}
std::string packed(const std::string& name, std::uint8_t digits, std::uint8_t decimals) {
    return raw(4, static_cast<std::uint8_t>(digits / 2 + 1), decimals, name, digits);
}

}  // namespace hostfields
