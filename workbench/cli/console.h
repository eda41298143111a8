#pragma once

#include <optional>
#include <string>

// The terminal that the program talks to.
namespace console {

enum class Stream { Input, Output, Error };

// Before anything is written: texts are UTF-8 from here on, and bytes go through the standard streams as they are.
void setUp();

bool isTerminal(Stream stream);
// Of the terminal on standard error; 80 and 24 when it does not say.
int columns();
int rows();

// From here on the first interrupt (Ctrl-C, or a polite end) only sets a flag; the second one ends the process.
void catchInterrupts();
bool interrupted();

// Waits for a line of standard input, without its end. Nothing at the end of the input and when interrupted.
std::optional<std::string> readLine();

// Waits for a key, which is not shown. An arrow is one of the names below, others are their characters. Nothing at the
// end of the input and when interrupted.
std::optional<std::string> readKey();
inline constexpr const char* RightKey = "\x1b[C";
inline constexpr const char* LeftKey = "\x1b[D";

// Texts of the terminal from UTF-8, and back, where its user has another encoding; what that lacks is a question mark.
std::string encoded(const std::string& utf8);
std::string decoded(const std::string& text);

}  // namespace console
