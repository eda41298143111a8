#pragma once

#include <concepts>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "emulator/emulator.h"

namespace compare {

// What can be seen of a transfer from outside, line by line. With the journal the emulator's service calls stand among
// the lines, in the places where they came; the journal has been cleared before.
class Transcript {
public:
    explicit Transcript(bool withJournal) : withJournal_(withJournal) { emulator::journalOn(withJournal); }

    // One line: texts, of any bytes, and numbers.
    template <class... Parts>
    void say(const Parts&... parts) {
        std::string line;
        ((append(line, parts), line += ' '), ...);
        if (withJournal_)
            emulator::note(line);
        else
            lines_.push_back(line);
    }

    std::uint64_t hash() const {
        std::uint64_t value = 0;
        for (const std::string& line : lines())
            if (!asksForHandle(line)) value = 31 * value + std::hash<std::string>()(line);
        return value;
    }
    // Bytes that are no printable ASCII as \xHH; the lines of a file stand below one another.
    void print() const {
        for (const std::string& line : lines()) {
            if (asksForHandle(line)) continue;
            for (const char byte : line) {
                std::printf(byte >= ' ' && byte <= '~' ? "%c" : "\\x%02X", static_cast<unsigned char>(byte));
                if (byte == '\n') std::fputs("\n    ", stdout);
            }
            std::putchar('\n');
        }
    }

private:
    static void append(std::string& line, std::integral auto number) { line += std::to_string(number); }
    static void append(std::string& line, std::string_view text) { line += text; }
    // A handle stays the same as long as its session: how often it is asked for changes nothing.
    static bool asksForHandle(const std::string& line) { return line.starts_with("GetSession"); }
    const std::vector<std::string>& lines() const { return withJournal_ ? emulator::journal() : lines_; }

    bool withJournal_;
    std::vector<std::string> lines_;  // without the journal
};

}  // namespace compare
