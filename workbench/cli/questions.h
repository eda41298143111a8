#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "emulator/emulator.h"

// Questions, and what a person answers to them: one of a few words that fit, of which the first letters do.
namespace questions {

struct Choice {
    std::string_view word;
    std::int32_t button;  // of the message box that the question stands in
};

// What may be answered. The first one goes on; the last one leaves everything as it was, and is what is taken when
// nobody answers.
using Choices = std::span<const Choice>;

inline constexpr Choice YesOrNo[] = {{"yes", 10}, {"no", 2}};
// Whether a member's data are replaced; button 10 is that of a box with buttons of its own.
inline constexpr Choice ReplaceOrNot[] = {{"replace", 10}, {"no", 2}};
// The boxes of a file object about a file that exists.
inline constexpr Choice ReplaceFileOrNot[] = {{"replace", 1}, {"no", 2}};
inline constexpr Choice ReplaceOrAppend[] = {{"replace", 6}, {"append", 7}, {"no", 2}};

// Those of a message box that asks.
Choices choicesOf(const emulator::MessageBox& box);

// What was answered to every question in advance (--answer): a word, or the number of a button.
struct StandingAnswer {
    std::string word;                    // one that some question takes, in small letters
    std::optional<std::int32_t> button;  // of a number, whatever the question

    bool declines() const { return word == "no" || button == 0 || button == 2; }
    // Throws std::invalid_argument for anything else.
    static StandingAnswer parse(const std::string& text);
};

// All the words there are.
std::span<const std::string_view> words();

// The choice that a word stands for: itself or its beginning, in any case; "yes" also for the first choice where there
// is only one to go on with. Nothing when it fits none, or several.
std::optional<std::int32_t> fitting(Choices choices, std::string_view word);

// Whether a button of the box goes on, rather than leaves everything as it was.
bool goesOn(Choices choices, std::int32_t button);

// There is a person at the terminal.
bool canBeAsked();

// Asks at the terminal until an answer fits. Without a person there, or at the end of the input, it says so and
// declines. A standing answer that fits is taken without asking; one that does not is none.
std::int32_t ask(Choices choices, const std::optional<StandingAnswer>& standing);

}  // namespace questions
