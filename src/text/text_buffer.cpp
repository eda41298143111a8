#include "text/text_buffer.h"

#include <algorithm>
#include <cstring>

#include "services/runtime.h"
#include "text/double_byte.h"

namespace text {

TextBuffer::TextBuffer(std::uint32_t capacity) {
    record_.text = static_cast<char*>(services::AllocateObject(capacity + 1, 1));
    record_.capacity = capacity;
}

TextBuffer::~TextBuffer() {
    if (record_.text) services::FreeObject(record_.text);
}

bool TextBuffer::reserve(std::uint32_t length) {
    if (record_.capacity != 0) return record_.text && length < record_.capacity;
    void* block =
        record_.text ? services::ReallocateObject(record_.text, length + 1) : services::AllocateObject(length + 1, 1);
    if (!block) return false;
    record_.text = static_cast<char*>(block);
    return true;
}

bool TextBuffer::assign(std::string_view text) {
    if (!reserve(static_cast<std::uint32_t>(text.size()))) return false;
    std::copy(text.begin(), text.end(), record_.text);
    record_.text[text.size()] = '\0';
    return true;
}

bool TextBuffer::append(std::initializer_list<std::string_view> pieces) {
    std::uint32_t at = length();
    std::uint32_t after = at;
    for (const std::string_view piece : pieces) after += static_cast<std::uint32_t>(piece.size());
    if (!reserve(after)) return false;
    for (const std::string_view piece : pieces) {
        std::copy(piece.begin(), piece.end(), record_.text + at);
        at += static_cast<std::uint32_t>(piece.size());
    }
    record_.text[after] = '\0';
    return true;
}

void TextBuffer::trimStart() {
    const std::string_view rest = trimmedStart(view());
    if (rest.size() < length()) std::memmove(record_.text, rest.data(), rest.size() + 1);
}

void TextBuffer::trimEnd() { keepFirst(static_cast<std::uint32_t>(trimmedEnd(view()).size())); }

void TextBuffer::keepFirst(std::uint32_t count) {
    if (count < length()) record_.text[count] = '\0';
}

}  // namespace text
