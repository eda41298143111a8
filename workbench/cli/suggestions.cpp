#include "suggestions.h"

#include <algorithm>
#include <cctype>
#include <numeric>

namespace {

bool sameLetter(char left, char right) {
    return std::tolower(static_cast<unsigned char>(left)) == std::tolower(static_cast<unsigned char>(right));
}

bool beginsWith(std::string_view whole, std::string_view beginning) {
    return beginning.size() <= whole.size() &&
           std::equal(beginning.begin(), beginning.end(), whole.begin(), sameLetter);
}

std::optional<std::string> onlyBeginningWith(std::string_view word, const std::vector<std::string>& candidates) {
    constexpr std::size_t Least = 3;  // letters that tell something
    const auto begins = [word](const std::string& candidate) { return beginsWith(candidate, word); };
    const auto found = std::find_if(candidates.begin(), candidates.end(), begins);
    if (word.size() < Least || found == candidates.end()) return std::nullopt;
    if (std::any_of(found + 1, candidates.end(), begins)) return std::nullopt;
    return *found;
}

}  // namespace

// Damerau's distance in the restricted form: no letter is edited twice. Three rows of the table are enough.
std::size_t editDistance(std::string_view left, std::string_view right) {
    std::vector<std::size_t> beforeLast, last, row(right.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 1; i <= left.size(); ++i) {
        beforeLast = std::move(last);
        last = row;
        row[0] = i;
        for (std::size_t j = 1; j <= right.size(); ++j) {
            const bool same = sameLetter(left[i - 1], right[j - 1]);
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (same ? 0 : 1)});
            const bool swapped =
                i > 1 && j > 1 && sameLetter(left[i - 1], right[j - 2]) && sameLetter(left[i - 2], right[j - 1]);
            if (swapped) row[j] = std::min(row[j], beforeLast[j - 2] + 1);
        }
    }
    return row.back();
}

std::optional<std::string> nearest(std::string_view word, const std::vector<std::string>& candidates) {
    std::size_t least = std::max<std::size_t>(1, word.size() / 3) + 1;
    const std::string* found = nullptr;
    for (const std::string& candidate : candidates) {
        const std::size_t distance = editDistance(word, candidate);
        if (distance >= least) continue;
        least = distance;
        found = &candidate;
    }
    return found != nullptr ? std::optional(*found) : onlyBeginningWith(word, candidates);
}

std::string didYouMean(std::string_view word, const std::vector<std::string>& candidates) {
    const std::optional<std::string> meant = nearest(word, candidates);
    return meant ? "; did you mean " + *meant + "?" : "";
}

std::string notOneOf(std::string_view word, const std::vector<std::string>& candidates) {
    std::string list;
    for (const std::string& candidate : candidates) list += (list.empty() ? "" : ", ") + candidate;
    return std::string(word) + " is not one of " + list + didYouMean(word, candidates);
}
