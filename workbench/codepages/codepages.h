#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "page_data.h"

// The code pages of hosts and PCs, read from one data file that a generator makes from ICU's converters at build time.
// Double-byte host pages are EBCDIC with shift-out (0x0E) and shift-in (0x0F); double-byte PC pages have lead bytes.
namespace codepages {

class CodePage {
public:
    explicit CodePage(PageData data);

    std::uint32_t number() const { return data_.number; }
    bool isDoubleByte() const { return data_.doubleByte; }
    bool isHost() const { return data_.host; }

    // U+FFFD for a code without a character, and for the lead bytes of a double-byte PC page.
    char16_t toUnicode(std::uint8_t byte) const;
    char16_t toUnicode(std::uint8_t first, std::uint8_t second) const;
    // Single bytes come as 0x00 to 0xFF in `code` with `pair` clear, pairs with the first byte high and `pair` set.
    struct Code {
        std::uint16_t code = 0;
        bool pair = false;
    };
    std::optional<Code> fromUnicode(char16_t character) const;
    bool isLeadByte(std::uint8_t byte) const;  // PC pages only
    // The letter's other case in the same page, or the byte itself. PC pages only.
    std::uint8_t upper(std::uint8_t byte) const;
    std::uint8_t lower(std::uint8_t byte) const;
    // What is written for a character that the page lacks: a question mark.
    std::uint8_t substitute() const { return isHost() ? 0x6F : 0x3F; }

    // Whole texts. decode gives UTF-8; encode takes UTF-8, writes the page's substitute for what it lacks, and sets
    // `lossy` when it had to. Host texts carry their shift bytes.
    std::string decode(std::string_view bytes) const;
    std::string encode(std::string_view utf8, bool* lossy = nullptr) const;
    // For host pages without double bytes: decodes into `text`, whose memory is used again, and encodes what there is
    // room for. Gives the bytes written.
    void decodeSingle(std::string_view bytes, std::string& text) const;
    std::size_t encodeSingle(std::string_view utf8, std::span<std::uint8_t> out) const;

private:
    struct Utf8Form {
        std::array<char, 4> bytes{};  // one more than there ever are: copied as a whole
        std::uint8_t length = 0;
    };
    std::uint8_t singleByte(char16_t character) const;  // or the substitute
    std::string decodeHost(std::string_view bytes) const;
    std::string decodePc(std::string_view bytes) const;

    PageData data_;
    RowTable codes_;                              // by character
    std::array<Utf8Form, 256> utf8Forms_{};       // of the single bytes
    std::array<std::uint8_t, 128> asciiBytes_{};  // of the ASCII characters
};

// Loads the data file once; later calls with another path load again. False, with the reason in `error`, when it is not
// one; the pages loaded before are kept then. Pages found earlier are gone once another file has been loaded. Both
// builds read the same file.
bool load(const std::string& path, std::string* error);

// Null when the page is not in the data.
const CodePage* find(std::uint32_t number);

// --- What an emulator makes of a host page and a PC page -----------------------------------------------------------

// Byte-for-byte conversion of single-byte text; what the target lacks becomes its substitute ('?' on the PC, 0x6F on
// the host), control characters map as ICU maps them.
std::array<std::uint8_t, 256> hostToPc(const CodePage& host, const CodePage& pc);
std::array<std::uint8_t, 256> pcToHost(const CodePage& pc, const CodePage& host);

// A code table as LoadCodeTable fills it: kind 1 (2824 bytes: PC-to-host single bytes from 8, host-to-PC from 776),
// kind 6 host pairs to PC pairs and kind 5 PC pairs to host pairs (66073 bytes: row index per first byte from 25, 255 =
// no row; rows of 256 little-endian 16-bit entries from 537, high 8 bits = first byte of the result). What the target
// lacks is the substitute in kind 1, two PC blanks in kind 6 and 0 in kind 5. Empty for any other kind.
std::vector<std::uint8_t> codeTable(std::uint32_t kind, const CodePage& host, const CodePage& pc);

// What posix/pc.h wants to know of an ANSI and an OEM page.
struct PcTables {
    std::array<bool, 256> leadBytes{};
    std::array<std::uint8_t, 256> upper{}, lower{}, ansiToOem{}, oemToAnsi{};
};
PcTables pcTables(const CodePage& ansi, const CodePage& oem);

// Host code page 43 is played as page 37 whose PC side is UTF-8, so that a text's length changes on the way. Both
// return the bytes written, never more than `capacity`, and never half a character. 0 when page 37 is not loaded.
std::uint32_t page43ToPc(std::string_view host, char* destination, std::uint32_t capacity);
std::uint32_t page43ToHost(std::string_view pc, char* destination, std::uint32_t capacity);  // blank-padded

}  // namespace codepages
