#include "page_builder.h"

#include <unicode/uchar.h>

#include <map>
#include <utility>

#include "converter.h"

namespace codepages {
namespace {

constexpr std::uint8_t ShiftOut = 0x0E;
constexpr std::uint8_t ShiftIn = 0x0F;

bool isAsciiControl(unsigned code) { return code < 0x20 || code == 0x7F; }

// Characters that the tables of different makers give to one and the same double-byte sign. Where a sign has several,
// the first that a page has is taken.
constexpr std::pair<char16_t, char16_t> Lookalikes[] = {
    {0x301C, 0x223C},  // wave dash, tilde operator
    {0x301C, 0xFF5E},  // wave dash, full-width tilde
    {0x2016, 0x2225},  // double vertical line, parallel to
    {0x2212, 0xFF0D},  // minus sign, full-width hyphen
    {0x2014, 0x2015},  // em dash, horizontal bar
    {0x00A2, 0xFFE0},  // cent sign
    {0x00A3, 0xFFE1},  // pound sign
    {0x00AC, 0xFFE2},  // not sign
    {0x00A6, 0xFFE4},  // broken bar
    {0x203E, 0x00AF},  // overline, macron
    {0x203E, 0xFFE3},  // overline, full-width macron
    {0x2010, 0x00AD},  // hyphen, soft hyphen
    {0x02DC, 0xFF5E},  // small tilde, full-width tilde
    {0x25C9, 0x2299},  // fisheye, circled dot operator
    {0x00B7, 0x30FB},  // middle dot, katakana middle dot
};

using Codes = std::map<char16_t, std::uint16_t>;

void addLookalikes(Codes& codes) {
    const Codes own = codes;
    for (const auto& [one, other] : Lookalikes) {
        if (const auto found = own.find(other); found != own.end()) codes.try_emplace(one, found->second);
        if (const auto found = own.find(one); found != own.end()) codes.try_emplace(other, found->second);
    }
}

Codes codesOf(const Converter& converter) {
    Codes codes;
    for (const char16_t character : converter.characters()) {
        if (const auto code = converter.code(character)) codes[character] = *code;
    }
    return codes;
}

// What `codes` says otherwise than the table turned round by rule.
void notePreferences(PageData& page, const Codes& codes) {
    const RowTable byRule = invert(page);
    for (unsigned at = 1; at <= 0xFFFF; ++at) {
        const auto found = codes.find(char16_t(at));
        const std::uint16_t code = found == codes.end() ? NoCode : found->second;
        if (byRule.at(std::uint16_t(at)) != code) page.preferences.push_back({char16_t(at), code});
    }
}

void readPair(PageData& page, const Converter& converter, unsigned first, unsigned second) {
    std::string bytes{char(first), char(second)};
    if (page.host) bytes = char(ShiftOut) + bytes + char(ShiftIn);
    const char16_t character = converter.character(bytes);
    if (character != NoCharacter) page.pairs.set(std::uint8_t(first), std::uint8_t(second), character);
}

// The PC's control characters are those of ASCII; some of IBM's tables rotate 0x1A, 0x1C and 0x7F, and write little
// pictures (arrows, a house) as control characters. Undefined bytes up to 0x9F are the control character of the same
// number, as on Windows.
void settleControls(PageData& page, Codes& codes) {
    std::erase_if(codes, [](const auto& item) { return isAsciiControl(item.second); });
    for (unsigned byte = 0; byte <= 0x9F; ++byte) {
        const bool undefined = byte >= 0x80 && page.single[byte] == NoCharacter && !page.leadBytes[byte];
        if (!isAsciiControl(byte) && !undefined) continue;
        page.single[byte] = char16_t(byte);
        codes[char16_t(byte)] = std::uint16_t(byte);
    }
}

// The byte of the character's other case; the byte itself where the page lacks it. No letter beyond ASCII becomes one
// of ASCII (the Turkish dotless i), which would make different names equal.
std::uint8_t changedCase(const PageData& page, const Codes& codes, std::uint8_t byte, UChar32 (*change)(UChar32)) {
    const char16_t character = page.single[byte];
    if (character == NoCharacter) return byte;
    const UChar32 changed = change(character);
    const auto found = changed <= 0xFFFF ? codes.find(char16_t(changed)) : codes.end();
    if (found == codes.end() || found->second > 0xFF) return byte;
    if (character >= 0x80 && changed < 0x80) return byte;
    const auto result = std::uint8_t(found->second);
    return page.single[result] == changed ? result : byte;  // not by a one-way mapping
}

}  // namespace

PageData buildHostPage(std::uint32_t number, const std::string& icuName) {
    const Converter converter(icuName);
    PageData page;
    page.number = number;
    page.host = true;
    page.doubleByte = converter.isShifting();
    for (unsigned byte = 0; byte < 256; ++byte) {
        const bool isShift = byte == ShiftOut || byte == ShiftIn;
        if (!page.doubleByte || !isShift) page.single[byte] = converter.character({char(byte)});
    }
    for (unsigned first = 0x40; page.doubleByte && first <= 0xFE; ++first) {
        for (unsigned second = 0x40; second <= 0xFE; ++second) readPair(page, converter, first, second);
    }
    Codes codes = codesOf(converter);
    if (page.doubleByte) addLookalikes(codes);
    notePreferences(page, codes);
    return page;
}

PageData buildPcPage(std::uint32_t number, const std::string& icuName, const std::vector<LeadRange>& leads,
                     const std::vector<Correction>& corrections) {
    const Converter converter(icuName);
    PageData page;
    page.number = number;
    page.doubleByte = !leads.empty();
    for (const LeadRange& range : leads) {
        for (unsigned byte = range.from; byte <= range.to; ++byte) page.leadBytes[byte] = true;
    }
    for (unsigned byte = 0; byte < 256; ++byte) {
        if (!page.leadBytes[byte]) page.single[byte] = converter.character({char(byte)});
        for (unsigned second = 0x40; page.leadBytes[byte] && second <= 0xFE; ++second)
            readPair(page, converter, byte, second);
    }
    Codes codes = codesOf(converter);
    settleControls(page, codes);
    for (const Correction& correction : corrections) {
        page.single[correction.byte] = correction.character;
        codes[correction.character] = correction.byte;
    }
    if (page.doubleByte) addLookalikes(codes);
    notePreferences(page, codes);
    for (unsigned byte = 0; byte < 256; ++byte) {
        page.upper[byte] = changedCase(page, codes, std::uint8_t(byte), u_toupper);
        page.lower[byte] = changedCase(page, codes, std::uint8_t(byte), u_tolower);
    }
    return page;
}

}  // namespace codepages
