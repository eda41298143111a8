#pragma once

#include <cstdint>
#include <initializer_list>
#include <string_view>

#include "services/handles.h"

namespace text {

// An owned, zero-terminated text whose memory the emulator may fill and grow too (services::TextRecord says how). What
// does not fit its capacity, or finds no memory, is not stored at all: the old text stays.
class TextBuffer {
public:
    // Empty, growing as needed.
    TextBuffer() = default;
    // Holds at most capacity - 1 characters. Without memory for its block it holds nothing.
    explicit TextBuffer(std::uint32_t capacity);
    ~TextBuffer();
    TextBuffer(const TextBuffer&) = delete;
    TextBuffer& operator=(const TextBuffer&) = delete;

    // Both: false when the text was not stored. The pieces stand outside this text.
    bool assign(std::string_view text);
    bool append(std::string_view text) { return append({text}); }
    // All pieces or none.
    bool append(std::initializer_list<std::string_view> pieces);

    // False when a block could not be allocated for the capacity.
    bool hasBlock() const { return record_.capacity == 0 || record_.text; }
    const char* text() const { return record_.text ? record_.text : ""; }
    std::string_view view() const { return text(); }
    std::uint32_t length() const { return static_cast<std::uint32_t>(view().size()); }
    bool isEmpty() const { return *text() == '\0'; }

    // Blanks are the single-byte space and the double-byte blank of the user's language.
    void trimStart();
    void trimEnd();
    void keepFirst(std::uint32_t count);

    services::TextRecord* record() { return &record_; }

private:
    bool reserve(std::uint32_t length);

    services::TextRecord record_ = {nullptr, 0};
};
// The emulator takes the address of one for that of the other.
static_assert(sizeof(TextBuffer) == sizeof(services::TextRecord));

}  // namespace text
