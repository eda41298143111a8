#include <map>

#include "data_file.h"

namespace codepages {
namespace {

void put(std::string& out, std::uint32_t value, unsigned length) {
    for (unsigned at = 0; at < length; ++at) out += char(value >> (8 * at) & 0xFF);
}

void putPcTables(std::string& out, const PageData& page) {
    for (unsigned at = 0; at < 32; ++at) {
        std::uint32_t bits = 0;
        for (unsigned bit = 0; bit < 8; ++bit) bits |= std::uint32_t(page.leadBytes[8 * at + bit]) << bit;
        put(out, bits, 1);
    }
    for (const auto byte : page.upper) put(out, byte, 1);
    for (const auto byte : page.lower) put(out, byte, 1);
}

void putPairs(std::string& out, const PageData& page) {
    std::uint32_t rows = 0;
    std::string values;
    for (unsigned first = 0; first < 256; ++first) {
        const bool hasRow = page.pairs.hasRow(std::uint8_t(first));
        put(out, hasRow ? rows++ : NoFileRow, 1);
        for (unsigned second = 0; hasRow && second < 256; ++second)
            put(values, page.pairs.at(std::uint8_t(first), std::uint8_t(second)), 2);
    }
    out += values;
}

std::string body(const PageData& page) {
    std::string out;
    for (const auto character : page.single) put(out, character, 2);
    if (!page.host) putPcTables(out, page);
    if (page.doubleByte) putPairs(out, page);
    put(out, std::uint32_t(page.preferences.size()), 4);
    for (const Preference& preference : page.preferences) {
        put(out, preference.character, 2);
        put(out, preference.code, 2);
    }
    return out;
}

}  // namespace

std::string composeDataFile(const std::vector<PageData>& pages, std::string_view origin) {
    const auto bodiesBegin = std::uint32_t(DataFileHeaderLength + DataFileEntryLength * pages.size());
    std::string directory, bodies;
    std::map<std::string, std::uint32_t> offsets;
    for (const PageData& page : pages) {
        const std::string bytes = body(page);
        const auto [place, isNew] = offsets.try_emplace(bytes, std::uint32_t(bodiesBegin + bodies.size()));
        if (isNew) bodies += bytes;
        put(directory, page.number, 4);
        put(directory, (page.host ? HostPageFlag : 0) | (page.doubleByte ? DoubleBytePageFlag : 0), 4);
        put(directory, place->second, 4);
        put(directory, std::uint32_t(bytes.size()), 4);
    }
    std::string file{DataFileMagic};
    put(file, DataFileVersion, 4);
    put(file, std::uint32_t(bodiesBegin + bodies.size() + DataFileOriginLength), 4);
    put(file, std::uint32_t(pages.size()), 4);
    std::string end(origin);
    end.resize(DataFileOriginLength, '\0');
    return file + directory + bodies + end;
}

}  // namespace codepages
