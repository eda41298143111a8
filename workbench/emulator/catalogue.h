#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "Z7XFRPCS/messages.h"

// The message catalogue. Every sentence stands in one row of one of two tables: messages have ids of their own, texts
// are found by table and index and have the id that messageId() makes of these. Numbers, names and inserts are those of
// the list in messages.h; the texts of return codes have no names.
namespace emulator::catalogue {

struct Message {
    std::uint32_t id;
    std::string_view name;
    std::string_view inserts;  // one letter an insert: t text, n number
    std::string_view text;
};

struct Text {
    std::uint32_t table;
    std::uint32_t index;
    std::string_view name;
    std::string_view inserts;
    std::string_view text;
};

std::span<const Message> messages();
std::span<const Text> texts();
std::span<const Text> errors();  // of return codes: table 7 from 500 on, tables 22 and 45

constexpr std::uint32_t messageId(std::uint32_t table, std::uint32_t index) { return table * 10000 + index; }
constexpr std::uint32_t messageId(zhst::CatalogueText text) { return messageId(text.table, text.index); }

// An entry, or one without text.
Text findText(std::uint32_t table, std::uint32_t index);
// By an id of either kind. A message that is not there says so, and takes every insert beyond the first for a number,
// because a number taken for an address could not be read.
Message findMessage(std::uint32_t id);

}  // namespace emulator::catalogue
