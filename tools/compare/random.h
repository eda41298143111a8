#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace compare {

// The random numbers of one transfer (SplitMix64). Half of the transfers are neat: nothing odd happens in them, so that
// they get through.
class Random {
public:
    Random(std::uint64_t seed, std::uint64_t transfer) : state_(seed * 0xD1B54A32D192ED03 + transfer * Step) {
        state_ = std::uint64_t{next()} << 32 | next();
        neat_ = oneIn(2);
    }

    std::uint32_t next() {
        std::uint64_t mixed = state_ += Step;
        mixed = (mixed ^ mixed >> 30) * 0xBF58476D1CE4E5B9;
        mixed = (mixed ^ mixed >> 27) * 0x94D049BB133111EB;
        return static_cast<std::uint32_t>(mixed >> 32);
    }
    // 0 to limit - 1; 0 for a limit of 0.
    std::uint32_t below(std::size_t limit) { return limit ? static_cast<std::uint32_t>(next() % limit) : 0; }
    std::uint32_t between(std::uint32_t low, std::uint32_t high) { return low + below(high - low + 1); }
    bool oneIn(std::uint32_t chances) { return below(chances) == 0; }
    // An oddity.
    bool odd(std::uint32_t chances) { return oneIn(chances) && !neat_; }

    template <class Value>
    Value pick(std::initializer_list<Value> values) {
        return values.begin()[below(values.size())];
    }
    template <class Value>
    const Value& pick(const std::vector<Value>& values) {
        return values[below(values.size())];
    }
    char pick(const std::string& characters) { return characters[below(characters.size())]; }
    std::string bytes(std::size_t count) {
        std::string made;
        while (made.size() < count) made += static_cast<char>(next());
        return made;
    }

private:
    static constexpr std::uint64_t Step = 0x9E3779B97F4A7C15;

    std::uint64_t state_;
    bool neat_ = false;
};

}  // namespace compare
