#pragma once

#include <string>

// Version and commit of the program, and what the code pages that it finds were made from.
std::string versionText();
