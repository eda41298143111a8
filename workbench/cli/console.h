#pragma once

#include <optional>
#include <string>

// The terminal that the program talks to.
namespace console {

enum class Stream { Input, Output, Error };

bool isTerminal(Stream stream);
int columns();  // of the terminal on standard error; 80 when it does not say

// From here on the first interrupt (Ctrl-C, or a polite end) only sets a flag; the second one ends the process.
void catchInterrupts();
bool interrupted();

// Waits for a line of standard input, without its end. Nothing at the end of the input and when interrupted.
std::optional<std::string> readLine();

}  // namespace console
