#include "environment/environment.h"

#include <cstdlib>

namespace environment {

std::string variable(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

void set(const char* name, const std::string& value) { setenv(name, value.c_str(), 1); }

std::vector<std::string> arguments(int argumentCount, char** arguments) {
    if (argumentCount == 0) return {};
    return {arguments + 1, arguments + argumentCount};
}

}  // namespace environment
