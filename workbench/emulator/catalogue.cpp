#include "emulator/catalogue.h"

namespace emulator::catalogue {
namespace {

const Text* find(std::span<const Text> rows, std::uint32_t table, std::uint32_t index) {
    for (const Text& row : rows)
        if (row.table == table && row.index == index) return &row;
    return nullptr;
}

}  // namespace

Text findText(std::uint32_t table, std::uint32_t index) {
    if (const Text* row = find(texts(), table, index)) return *row;
    if (const Text* row = find(errors(), table, index)) return *row;
    return {table, index, "", "", ""};
}

Message findMessage(std::uint32_t id) {
    for (const Message& row : messages())
        if (row.id == id) return row;
    const Text text = findText(id / 10000, id % 10000);
    if (!text.text.empty()) return {id, text.name, text.inserts, text.text};
    return {id, "", "tnn", "The catalogue has no text for this message."};
}

}  // namespace emulator::catalogue
