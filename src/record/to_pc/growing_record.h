#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "services/owned.h"

namespace record::to_pc {

// The record being built. What does not fit makes it grow by doubling; once there is no memory for that, nothing more
// is written and failed() stays true.
class GrowingRecord {
public:
    explicit GrowingRecord(services::OwnedBytes& bytes) : bytes_(bytes) {}

    bool ensure(std::uint32_t room) {
        while (!failed_ && bytes_.size() - length_ < room) failed_ = !bytes_.resize(2 * bytes_.size());
        return !failed_;
    }
    void append(char byte) {
        if (ensure(1)) bytes_.data()[length_++] = byte;
    }
    void append(std::string_view text) {
        if (!ensure(static_cast<std::uint32_t>(text.size()))) return;
        std::copy(text.begin(), text.end(), end());
        length_ += static_cast<std::uint32_t>(text.size());
    }
    void appendBlanks(std::uint32_t count) {
        if (!ensure(count)) return;
        std::fill_n(end(), count, ' ');
        length_ += count;
    }
    void advance(std::uint32_t count) { length_ += count; }
    void shortenTo(std::uint32_t length) { length_ = length; }

    char* end() const { return bytes_.data() + length_; }
    std::uint32_t length() const { return length_; }
    std::uint32_t room() const { return bytes_.size() - length_; }
    std::string_view text() const { return {bytes_.data(), length_}; }
    bool failed() const { return failed_; }

private:
    services::OwnedBytes& bytes_;
    std::uint32_t length_ = 0;
    bool failed_ = false;
};

}  // namespace record::to_pc
