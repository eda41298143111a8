// Whole texts of a code page, to and from UTF-8.
#include <algorithm>
#include <cstring>
#include <utility>

#include "codepages.h"
#include "utf8.h"

namespace codepages {
namespace {

constexpr char ShiftOut = 0x0E;
constexpr char ShiftIn = 0x0F;
constexpr char HostBlank = 0x40;

// Puts codes one behind the other, with the shift bytes that a host text needs between single bytes and pairs.
class CodeWriter {
public:
    explicit CodeWriter(bool shifting) : shifting_(shifting) {}

    void put(CodePage::Code code) {
        shiftTo(code.pair);
        if (code.pair) bytes_ += char(code.code >> 8);
        bytes_ += char(code.code & 0xFF);
    }

    std::string finish() {
        shiftTo(false);
        return std::move(bytes_);
    }

private:
    void shiftTo(bool pairs) {
        if (shifting_ && pairs != inPairs_) bytes_ += pairs ? ShiftOut : ShiftIn;
        inPairs_ = pairs;
    }

    bool shifting_;
    bool inPairs_ = false;
    std::string bytes_;
};

}  // namespace

std::string CodePage::decode(std::string_view bytes) const { return isHost() ? decodeHost(bytes) : decodePc(bytes); }

void CodePage::decodeSingle(std::string_view bytes, std::string& text) const {
    text.resize(bytes.size() * sizeof(Utf8Form::bytes));
    char* end = text.data();
    for (const char byte : bytes) {
        const Utf8Form& form = utf8Forms_[std::uint8_t(byte)];
        std::memcpy(end, form.bytes.data(), form.bytes.size());
        end += form.length;
    }
    text.resize(std::size_t(end - text.data()));
}

std::string CodePage::decodeHost(std::string_view bytes) const {
    std::string text;
    if (!isDoubleByte()) {
        decodeSingle(bytes, text);
        return text;
    }
    bool inPairs = false;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        const auto byte = std::uint8_t(bytes[at]);
        if (byte == ShiftOut || byte == ShiftIn) {
            inPairs = byte == ShiftOut;
        } else if (!inPairs) {
            appendUtf8(text, toUnicode(byte));
        } else if (at + 1 < bytes.size() && bytes[at + 1] != ShiftIn) {
            appendUtf8(text, toUnicode(byte, std::uint8_t(bytes[++at])));
        } else {
            appendUtf8(text, NoCharacter);  // half a pair
        }
    }
    return text;
}

std::string CodePage::decodePc(std::string_view bytes) const {
    std::string text;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        const auto byte = std::uint8_t(bytes[at]);
        const bool isPair = isLeadByte(byte) && at + 1 < bytes.size();
        appendUtf8(text, isPair ? toUnicode(byte, std::uint8_t(bytes[++at])) : toUnicode(byte));
    }
    return text;
}

std::string CodePage::encode(std::string_view utf8, bool* lossy) const {
    CodeWriter writer(isHost() && isDoubleByte());
    bool lost = false;
    while (!utf8.empty()) {
        const auto code = fromUnicode(takeUtf8(utf8));
        lost |= !code;
        writer.put(code.value_or(Code{substitute(), false}));
    }
    if (lossy) *lossy = lost;
    return writer.finish();
}

std::size_t CodePage::encodeSingle(std::string_view utf8, std::span<std::uint8_t> out) const {
    std::size_t length = 0;
    while (!utf8.empty() && length < out.size()) {
        const auto byte = std::uint8_t(utf8.front());
        if (byte < asciiBytes_.size()) {
            out[length++] = asciiBytes_[byte];
            utf8.remove_prefix(1);
        } else {
            out[length++] = singleByte(takeUtf8(utf8));
        }
    }
    return length;
}

std::uint32_t page43ToPc(std::string_view host, char* destination, std::uint32_t capacity) {
    const CodePage* page = find(37);
    if (!page) return 0;
    const std::string text = page->decode(host);
    const std::size_t length = wholeUtf8Length(text, capacity);
    std::copy_n(text.data(), length, destination);
    return std::uint32_t(length);
}

std::uint32_t page43ToHost(std::string_view pc, char* destination, std::uint32_t capacity) {
    const CodePage* page = find(37);
    if (!page) return 0;
    const std::string bytes = page->encode(pc);
    const std::size_t length = std::min<std::size_t>(bytes.size(), capacity);
    std::copy_n(bytes.data(), length, destination);
    std::fill(destination + length, destination + capacity, HostBlank);
    return capacity;
}

}  // namespace codepages
