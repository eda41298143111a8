#include "pc_text.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "codepages.h"
#include "environment/environment.h"
#include "process.h"

namespace {

struct Range {
    char32_t first, last;
};

// Wide and fullwidth characters, as terminals show them.
constexpr std::array<Range, 14> wideRanges{{{0x1100, 0x115F},
                                            {0x2E80, 0x303E},
                                            {0x3041, 0x33FF},
                                            {0x3400, 0x4DBF},
                                            {0x4E00, 0x9FFF},
                                            {0xA000, 0xA4CF},
                                            {0xA960, 0xA97C},
                                            {0xAC00, 0xD7A3},
                                            {0xF900, 0xFAFF},
                                            {0xFE30, 0xFE6F},
                                            {0xFF00, 0xFF60},
                                            {0xFFE0, 0xFFE6},
                                            {0x1F300, 0x1FAFF},
                                            {0x20000, 0x3FFFD}}};
// Combining marks and other characters that take no cell.
constexpr std::array<Range, 6> zeroRanges{
    {{0x0300, 0x036F}, {0x0483, 0x0489}, {0x200B, 0x200F}, {0x20D0, 0x20FF}, {0x3099, 0x309A}, {0xFE00, 0xFE0F}}};

template <std::size_t Count>
bool isIn(const std::array<Range, Count>& ranges, char32_t character) {
    return std::any_of(ranges.begin(), ranges.end(),
                       [&](const Range& range) { return range.first <= character && character <= range.last; });
}

bool isContinuation(unsigned char byte) { return (byte & 0xC0) == 0x80; }

// Takes the next character off a UTF-8 text; a byte out of place stands for itself.
char32_t takeCharacter(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    text.remove_prefix(1);
    char32_t character = lead;
    if (lead >= 0xC0) character = lead & (lead < 0xE0 ? 0x1F : lead < 0xF0 ? 0x0F : 0x07);
    while (lead >= 0xC0 && !text.empty() && isContinuation(static_cast<unsigned char>(text.front()))) {
        character = character << 6 | (static_cast<unsigned char>(text.front()) & 0x3F);
        text.remove_prefix(1);
    }
    return character;
}

}  // namespace

std::string codePageDataFile() {
    const std::string elsewhere = environment::variable("Z7X_CODE_PAGES");
    if (!elsewhere.empty()) return elsewhere;
    return (process::executableFolder() / "codepages.dat").string();
}

PcText::PcText(std::uint32_t ansiCodePage, const std::string& dataFile) : codePage_(ansiCodePage) {
    std::string error;
    if (!codepages::load(dataFile, &error)) throw std::runtime_error(error);
    checkPage();
}

void PcText::checkPage() const {
    if (codepages::find(codePage_) == nullptr) {
        throw std::invalid_argument("there is no code page " + std::to_string(codePage_));
    }
}

PcText PcText::of(std::uint32_t codePage) const {
    PcText other = *this;
    other.codePage_ = codePage;
    other.checkPage();
    return other;
}

std::string PcText::toTerminal(std::string_view pcText) const { return codepages::find(codePage_)->decode(pcText); }

std::string PcText::toPc(std::string_view terminalText) const {
    bool lossy = false;
    std::string text = codepages::find(codePage_)->encode(terminalText, &lossy);
    if (lossy) {
        throw std::invalid_argument("code page " + std::to_string(codePage_) + " cannot hold the text " +
                                    std::string(terminalText));
    }
    return text;
}

std::size_t cellWidth(std::string_view text) {
    std::size_t cells = 0;
    while (!text.empty()) {
        const char32_t character = takeCharacter(text);
        if (!isIn(zeroRanges, character)) cells += isIn(wideRanges, character) ? 2 : 1;
    }
    return cells;
}

std::string cellsOf(std::string_view text, std::size_t first, std::size_t count) {
    std::string visible;
    std::size_t cell = 0;
    const std::size_t end = first + count;
    while (!text.empty() && cell < end) {
        const std::string_view before = text;
        takeCharacter(text);
        const std::string_view character = before.substr(0, before.size() - text.size());
        const std::size_t behind = cell + cellWidth(character);
        if (cell >= first && behind <= end) {
            visible += character;
        } else if (behind > first) {
            visible += ' ';
        }
        cell = behind;
    }
    return visible;
}

std::string withoutControls(std::string_view text) {
    std::string visible;
    while (!text.empty()) {
        const std::string_view before = text;
        const char32_t character = takeCharacter(text);
        const bool control = character < 0x20 || (character >= 0x7F && character < 0xA0);
        visible += control ? std::string_view(".") : before.substr(0, before.size() - text.size());
    }
    return visible;
}
