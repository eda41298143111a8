#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The data file of the code pages: the one that $Z7X_CODE_PAGES names, or the one beside the program. The emulator
// looks for it there too.
std::string codePageDataFile();

// Texts between the terminal, which speaks UTF-8, and the PC, whose ANSI code page the library speaks.
class PcText {
public:
    // Throws std::runtime_error when the code page data cannot be read, std::invalid_argument when the page is not in
    // it.
    PcText(std::uint32_t ansiCodePage, const std::string& dataFile);

    // The same PC, for texts in another of its code pages. Throws std::invalid_argument when there is none.
    PcText of(std::uint32_t codePage) const;

    std::string toTerminal(std::string_view pcText) const;
    // Throws std::invalid_argument for a character that the PC does not have.
    std::string toPc(std::string_view terminalText) const;

private:
    void checkPage() const;

    std::uint32_t codePage_;
};

// Cells of a terminal that a UTF-8 text takes: 2 for an ideograph, 0 for a combining mark.
std::size_t cellWidth(std::string_view text);

// What stands in `count` cells of a text from the cell `first` on; of a wide character that is cut, a blank.
std::string cellsOf(std::string_view text, std::size_t first, std::size_t count);

// What is not a visible character stands as a full stop, so that data cannot command the terminal.
std::string withoutControls(std::string_view text);
