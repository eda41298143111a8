#pragma once

#include <string>
#include <vector>

// What the one who starts a program gives it. UTF-8 on both systems, since the standard library takes paths in it.
namespace environment {

// Empty when it is not set.
std::string variable(const char* name);
// For this process and the libraries that are loaded into it, which may read it in any way.
void set(const char* name, const std::string& value);

// The program's arguments, without its name, from what main was called with.
std::vector<std::string> arguments(int argumentCount, char** arguments);

}  // namespace environment
