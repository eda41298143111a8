#pragma once

#include <cstdint>
#include <iterator>
#include <span>
#include <string_view>

// Sentences apart from the numbers they belong to, so that a row of the catalogue takes its number, name and inserts
// from the list that all read. A row without a sentence does not compile; a sentence without a row makes one of the two
// tables longer, which is asserted where they stand.
namespace emulator::catalogue {

struct Sentence {
    std::uint32_t id;
    std::string_view text;
};

consteval std::string_view sentenceOf(std::span<const Sentence> sentences, std::uint32_t id) {
    for (const Sentence& sentence : sentences)
        if (sentence.id == id) return sentence.text;
    throw "a number of the list has no sentence";
}

}  // namespace emulator::catalogue
