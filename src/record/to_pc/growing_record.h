#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "services/owned.h"

namespace record::to_pc {

// The record being built, in a block that is kept from record to record. Its capacity begins anew with each and doubles
// when a field needs more. The block has some room beyond it, so that what stands around a field (a head, quotes, a
// separator, a line end) is put without asking.
class GrowingRecord {
public:
    GrowingRecord(services::OwnedBytes& block, std::uint32_t capacity) : block_(block), capacity_(capacity) {}

    // Each is false without memory; failed() stays true then.
    bool begin() {
        failed_ = failed_ || !block_.ensure(capacity_ + RoomAround);
        return !failed_;
    }
    bool ensure(std::uint32_t room) {
        if (length_ + room <= capacity_) return true;
        while (length_ + room > capacity_) capacity_ *= 2;
        return begin();
    }

    void put(char byte) { block_.data()[length_++] = byte; }
    void put(std::string_view text) {
        std::copy(text.begin(), text.end(), end());
        advance(static_cast<std::uint32_t>(text.size()));
    }
    void putBlanks(std::uint32_t count) {
        std::fill_n(end(), count, ' ');
        advance(count);
    }
    void advance(std::uint32_t count) { length_ += count; }
    void shortenTo(std::uint32_t length) { length_ = length; }

    char* end() const { return block_.data() + length_; }
    std::uint32_t length() const { return length_; }
    std::uint32_t room() const { return capacity_ - std::min(length_, capacity_); }
    std::string_view text() const { return {block_.data(), length_}; }
    bool failed() const { return failed_; }

private:
    static constexpr std::uint32_t RoomAround = 64;

    services::OwnedBytes& block_;
    std::uint32_t capacity_;
    std::uint32_t length_ = 0;
    bool failed_ = false;
};

}  // namespace record::to_pc
