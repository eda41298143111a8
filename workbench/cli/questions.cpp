#include "questions.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <iostream>
#include <stdexcept>

#include "console.h"
#include "emulator/catalogue.h"
#include "suggestions.h"

namespace questions {
namespace {

using console::Stream;

constexpr std::array<std::string_view, 4> Words = {"replace", "append", "yes", "no"};

std::string inSmallLetters(std::string_view text) {
    std::string result(text);
    for (char& letter : result) letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    return result;
}

// "replace, append or no"
std::string listed(Choices choices) {
    std::string list;
    for (std::size_t place = 0; place < choices.size(); ++place) {
        if (place > 0) list += place + 1 == choices.size() ? " or " : ", ";
        list += choices[place].word;
    }
    return list;
}

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

std::int32_t askAtTerminal(Choices choices) {
    for (;;) {
        std::cerr << "z7xfer: " << listed(choices) << "? [" << choices.back().word << "] " << std::flush;
        const std::optional<std::string> reply = console::readLine();
        if (!reply) std::cerr << std::endl;
        if (!reply || trimmed(*reply).empty()) return choices.back().button;
        if (const auto button = fitting(choices, trimmed(*reply))) return *button;
    }
}

}  // namespace

Choices choicesOf(const emulator::MessageBox& box) {
    constexpr std::uint32_t Buttons = 0x0F, OkCancel = 0x01, YesNoCancel = 0x03;
    if (box.id == emulator::catalogue::messageId(zhst::text::ReplaceHostFile)) return ReplaceOrNot;
    if (box.id == 0 && (box.flags & Buttons) == OkCancel) return ReplaceFileOrNot;
    if (box.id == 0 && (box.flags & Buttons) == YesNoCancel) return ReplaceOrAppend;
    return YesOrNo;
}

std::span<const std::string_view> words() { return Words; }

StandingAnswer StandingAnswer::parse(const std::string& text) {
    std::int32_t button = 0;
    const char* end = text.data() + text.size();
    const auto [last, error] = std::from_chars(text.data(), end, button);
    if (error == std::errc() && last == end) return {"", button};
    const std::string word = inSmallLetters(text);
    if (std::find(Words.begin(), Words.end(), word) != Words.end()) return {word, std::nullopt};
    std::vector<std::string> known(Words.begin(), Words.end());
    known.emplace_back("a button's number");
    throw std::invalid_argument(notOneOf(text, known));
}

std::optional<std::int32_t> fitting(Choices choices, std::string_view word) {
    const std::string small = inSmallLetters(word);
    const Choice* found = nullptr;
    for (const Choice& choice : choices) {
        if (small.empty() || !choice.word.starts_with(small)) continue;
        if (found != nullptr) return std::nullopt;
        found = &choice;
    }
    const bool yes = !small.empty() && std::string_view("yes").starts_with(small);
    if (found == nullptr && yes && choices.size() == 2) found = choices.data();
    if (found == nullptr) return std::nullopt;
    return found->button;
}

// Button 10 confirms in every box.
bool goesOn(Choices choices, std::int32_t button) {
    const auto isIt = [button](const Choice& choice) { return choice.button == button; };
    return button == YesOrNo[0].button || std::any_of(choices.begin(), choices.end() - 1, isIt);
}

bool canBeAsked() { return console::isTerminal(Stream::Input) && console::isTerminal(Stream::Error); }

std::int32_t ask(Choices choices, const std::optional<StandingAnswer>& standing) {
    if (standing && standing->button) return *standing->button;
    const auto given = standing ? fitting(choices, standing->word) : std::nullopt;
    if (given) return *given;
    if (canBeAsked()) return askAtTerminal(choices);
    std::cerr << "z7xfer: nobody is there to answer " << listed(choices) << "; --answer " << choices.front().word
              << " goes on" << std::endl;
    return choices.back().button;
}

}  // namespace questions
