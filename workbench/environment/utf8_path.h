#pragma once

#include <filesystem>
#include <string>
#include <string_view>

// A path from UTF-8, which is how programs here keep paths in texts. path::string() gives UTF-8 on both systems; made
// from a text of plain characters, a path of Windows takes each byte for a character.
inline std::filesystem::path utf8Path(std::string_view text) { return std::u8string(text.begin(), text.end()); }
