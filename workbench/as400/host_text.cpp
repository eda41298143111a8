#include "as400/host_text.h"

#include <algorithm>

#include "as400/refusal.h"

namespace as400 {

namespace {

constexpr std::uint8_t Blank = 0x40, ShiftOut = 0x0E, ShiftIn = 0x0F;
constexpr std::string_view WideBlank = "\xE3\x80\x80";  // U+3000

bool isContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

void dropLastCharacter(std::string& utf8) {
    while (!utf8.empty() && isContinuation(utf8.back())) utf8.pop_back();
    if (!utf8.empty()) utf8.pop_back();
}

// ASCII characters have full-width forms at U+FF01 and up, three bytes each.
std::string fullWidth(std::string_view utf8) {
    std::string wide;
    for (const char c : utf8) {
        if (c == ' ') {
            wide += WideBlank;
        } else if (c > ' ' && c <= '~') {
            const int code = 0xFF00 + (c - 0x20);
            wide += static_cast<char>(0xE0 | code >> 12);
            wide += static_cast<char>(0x80 | (code >> 6 & 0x3F));
            wide += static_cast<char>(0x80 | (code & 0x3F));
        } else {
            wide += c;
        }
    }
    return wide;
}

std::string encodeWithin(std::string utf8, const codepages::CodePage& page, std::size_t capacity) {
    std::string encoded = page.encode(utf8);
    while (encoded.size() > capacity) {
        dropLastCharacter(utf8);
        encoded = page.encode(utf8);
    }
    return encoded;
}

// The pairs of `encoded` alone, between the shift bytes of the whole field.
void writePairs(std::string_view encoded, std::span<std::uint8_t> out) {
    std::ranges::fill(out, Blank);
    out.front() = ShiftOut;
    out.back() = ShiftIn;
    std::size_t at = 1;
    bool shifted = false;
    for (std::size_t i = 0; i < encoded.size() && at + 2 < out.size();) {
        const auto byte = static_cast<std::uint8_t>(encoded[i]);
        if (byte == ShiftOut || byte == ShiftIn) {
            shifted = byte == ShiftOut;
            ++i;
        } else if (shifted && i + 1 < encoded.size()) {
            out[at] = byte;
            out[at + 1] = static_cast<std::uint8_t>(encoded[i + 1]);
            at += 2;
            i += 2;
        } else {
            at += 2;  // a character without a pair stays a double-byte blank
            ++i;
        }
    }
}

bool isUtf8(std::string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto lead = static_cast<unsigned char>(text[i]);
        if (lead < 0x80) continue;
        const std::size_t more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
        if (lead < 0xC2 || lead > 0xF4 || i + more >= text.size()) return false;
        for (std::size_t k = 0; k < more; ++k) {
            if (!isContinuation(text[++i])) return false;
        }
    }
    return true;
}

}  // namespace

void encodeText(std::string_view utf8, FieldType type, const codepages::CodePage& page, std::span<std::uint8_t> out) {
    if (type == FieldType::DoubleByte) {
        writePairs(page.encode(fullWidth(utf8)), out);
        return;
    }
    if (!page.isDoubleByte()) {
        std::ranges::fill(out.subspan(page.encodeSingle(utf8, out)), Blank);
        return;
    }
    const std::string encoded = encodeWithin(std::string(utf8), page, out.size());
    std::ranges::fill(out, Blank);
    std::ranges::copy(encoded, out.begin());
}

void decodeText(std::span<const std::uint8_t> bytes, const codepages::CodePage& page, std::string& utf8) {
    const std::string_view host(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    if (page.isDoubleByte()) {
        utf8 = page.decode(host);
    } else {
        page.decodeSingle(host, utf8);
    }
    std::size_t length = utf8.size();
    while (true) {
        const std::string_view text(utf8.data(), length);
        if (text.ends_with(' ')) {
            --length;
        } else if (text.ends_with(WideBlank)) {
            length -= WideBlank.size();
        } else {
            return utf8.resize(length);
        }
    }
}

std::size_t encodedLength(std::string_view utf8, const codepages::CodePage& page) { return page.encode(utf8).size(); }

std::string fromPc(std::string_view text, std::uint32_t pcPage) {
    constexpr std::uint32_t Western = 1252;
    if (pcPage == 0 && isUtf8(text)) return std::string(text);
    const auto* page = codepages::find(pcPage == 0 ? Western : pcPage);
    return page ? page->decode(text) : std::string(text);
}

std::string toPc(std::string_view utf8, std::uint32_t pcPage) {
    const auto* page = pcPage == 0 ? nullptr : codepages::find(pcPage);
    return page ? page->encode(utf8) : std::string(utf8);
}

const codepages::CodePage& hostPage(std::uint32_t number) {
    const auto* page = codepages::find(number);
    if (!page || !page->isHost()) refuseRequest("HSF1201 Host code page " + std::to_string(number) + " not available.");
    return *page;
}

}  // namespace as400
