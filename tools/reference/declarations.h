#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace reference {

struct Parameter {
    std::string name;
    std::string meaning;  // with its direction in front
};

// A function, or the type of one, as a header declares and describes it. The comment in front of a declaration is what
// the function does, a line "- name: meaning" for each parameter, and paragraphs behind "Result:", "When:" and
// "Failure:".
struct Declaration {
    std::string name;
    std::string code;   // the declaration itself, in one line, without calling convention
    std::string table;  // the structure of operations that it stands in; empty for others
    unsigned slot = 0;  // there
    std::string description, result, when, failure;
    std::vector<Parameter> parameters;
};

// All that a header declares, in its order. Throws std::runtime_error for one that is not described, or whose comment
// has other parameters than the function; a parameter "others" stands for those that are missing.
std::vector<Declaration> readDeclarations(const std::string& file);

}  // namespace reference
