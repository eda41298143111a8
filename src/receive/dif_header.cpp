#include "receive/dif_header.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "record/dif_pieces.h"
#include "record/quoting.h"
#include "text/double_byte.h"

namespace receive {
namespace {

namespace dif = record::dif;

constexpr std::uint32_t HeaderSize = 256;
constexpr std::uint32_t NameCapacity = 80;

// The file object tells the user when it is asked for its error state.
bool writeToFile(services::FileObject& file, std::string_view bytes) {
    if (file.write(bytes.data(), static_cast<std::uint32_t>(bytes.size()))) return true;
    file.errorState();
    return false;
}

bool writeName(services::FileObject& file, const char* name) {
    char item[NameCapacity + 16];
    char* next = std::copy(dif::StringHead.begin(), dif::StringHead.end(), item);
    *next++ = '"';
    text::copyCut(name, next, NameCapacity);
    next += record::doubleQuotes(next, std::strlen(next), NameCapacity);
    std::memcpy(next, "\"\r\n", 3);
    return writeToFile(file, {item, static_cast<std::size_t>(next + 3 - item)});
}

}  // namespace

bool writeDifHeader(const record::HostLayout& layout, std::int32_t expectedCount, services::FileObject& file) {
    char header[HeaderSize];
    const int length = std::snprintf(header, sizeof(header), dif::HeaderTemplate, static_cast<long>(layout.count()),
                                     static_cast<long>(static_cast<unsigned long>(expectedCount) + 1));
    if (!writeToFile(file, {header, static_cast<std::size_t>(length)}) || !writeToFile(file, dif::BeginTuple) ||
        layout.isEmpty())
        return false;
    for (const record::PlannedField& each : layout)
        if (!writeName(file, each.field.name())) return false;
    return true;
}

}  // namespace receive
