#pragma once

#include <cstdint>
#include <string>

// The return codes of providers, in words.
namespace return_codes {

enum class Speaker { Provider, Connection, Host };

struct Row {
    const char* name;
    Speaker speaker;  // who says so
    const char* meaning;
};

// Null for a code that no list has.
const Row* find(std::uint32_t code);

// "0x2027 FileFull, said by the host: The host file is full."
std::string inWords(std::uint32_t code, std::uint32_t detail);

}  // namespace return_codes
