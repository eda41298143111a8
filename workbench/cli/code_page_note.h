#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "host_layout.h"
#include "notes.h"

// A transfer has one host code page for all texts; the host may name another for some of them, or for each.

// "37 for NAME, STREET and 2 more; 273 for CITY"; empty when the host names no other page than the one that is taken.
std::string otherCodePages(const HostLayout& layout, std::uint32_t taken);

// Nothing when it names no other, or when the page that is taken is none, which a message tells.
std::optional<Note> codePageNote(const HostLayout& layout, std::uint32_t taken);
