#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What somebody meant who wrote a word that there is not.

// Insertions, deletions, exchanged letters and neighbours that changed places which make one word the other, in any
// case.
std::size_t editDistance(std::string_view left, std::string_view right);

// The candidate that is nearest to the word, or the only one that begins with it. Nothing when none is near enough: an
// edit for every three letters.
std::optional<std::string> nearest(std::string_view word, const std::vector<std::string>& candidates);

// "; did you mean X?", or nothing.
std::string didYouMean(std::string_view word, const std::vector<std::string>& candidates);

// For a word that is none of a few: "excl is not one of csv, excel; did you mean excel?"
std::string notOneOf(std::string_view word, const std::vector<std::string>& candidates);
