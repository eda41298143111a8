#pragma once

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <string_view>

#include "provider/tf_result.h"

namespace request {

// Writes a request into the shared buffer, where it must fit with a terminating zero. Once a piece does not fit,
// nothing more is written and fits() stays false.
class StatementWriter {
public:
    explicit StatementWriter(char* buffer) : buffer_(buffer) { *buffer_ = '\0'; }

    void append(std::string_view piece) {
        fits_ = fits_ && piece.size() < provider::BufferSize - length_;
        if (!fits_) return;
        std::copy(piece.begin(), piece.end(), buffer_ + length_);
        length_ += static_cast<std::uint32_t>(piece.size());
        buffer_[length_] = '\0';
    }
    void append(std::initializer_list<std::string_view> pieces) {
        for (const std::string_view piece : pieces) append(piece);
    }
    void shortenTo(std::uint32_t length) {
        length_ = length;
        buffer_[length_] = '\0';
    }

    bool fits() const { return fits_; }
    std::string_view text() const { return {buffer_, length_}; }

private:
    char* buffer_;
    std::uint32_t length_ = 0;
    bool fits_ = true;
};

}  // namespace request
