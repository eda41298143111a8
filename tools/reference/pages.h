#pragma once

#include <string>
#include <vector>

namespace reference {

struct Page {
    std::string name;  // of its file
    std::string text;
};

// All pages of docs/reference, from the lists and the headers that the code is built of. `sources` is the project's
// folder. Throws std::runtime_error when a header does not describe what it declares, or when the services that the
// library imports are not those that the headers declare.
std::vector<Page> makePages(const std::string& sources);

}  // namespace reference
