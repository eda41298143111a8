#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace fuzz {

// Takes an input apart from its front. Past the end there are zeros and empty stretches.
class Input {
public:
    Input(const std::uint8_t* bytes, std::size_t size) : left_(reinterpret_cast<const char*>(bytes), size) {}

    bool ended() const { return left_.empty(); }
    std::uint8_t byte() {
        const std::string one = stretch(1);
        return one.empty() ? 0 : static_cast<std::uint8_t>(one[0]);
    }
    // Low byte first.
    std::uint16_t word() {
        const std::uint8_t low = byte();
        return static_cast<std::uint16_t>(byte() << 8 | low);
    }
    // A choice that is written as a character: "0" is 0.
    std::uint8_t digit() { return static_cast<std::uint8_t>(byte() - '0'); }
    std::string stretch(std::size_t length) {
        const std::string taken(left_.substr(0, length));
        left_.remove_prefix(taken.size());
        return taken;
    }
    std::string rest() { return stretch(left_.size()); }

private:
    std::string_view left_;
};

}  // namespace fuzz
