#pragma once

#include <string>

#include "compare/random.h"

namespace compare {

// What another program, or a user, might have made of a received text file or description: other line ends, numbers in
// odd spellings, damage.
std::string altered(Random& random, std::string text);
// A description with lines more, or less.
std::string alteredDescription(Random& random, std::string text);

}  // namespace compare
