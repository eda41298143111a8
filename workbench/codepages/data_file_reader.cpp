#include <span>

#include "data_file.h"

namespace codepages {
namespace {

// Takes the numbers of a stretch of the file one after the other. Past the end it gives zeros and remembers it.
class Reader {
public:
    explicit Reader(std::string_view bytes) : bytes_(bytes) {}

    bool ranOut() const { return ranOut_; }
    bool holds(std::uint64_t length) const { return length <= bytes_.size(); }

    std::uint8_t u8() { return std::uint8_t(take(1)); }
    std::uint16_t u16() { return std::uint16_t(take(2)); }
    std::uint32_t u32() { return take(4); }

private:
    std::uint32_t take(unsigned length) {
        if (!holds(length)) {
            ranOut_ = true;
            return 0;
        }
        std::uint32_t value = 0;
        for (unsigned at = 0; at < length; ++at) value |= std::uint32_t(std::uint8_t(bytes_[at])) << (8 * at);
        bytes_.remove_prefix(length);
        return value;
    }

    std::string_view bytes_;
    bool ranOut_ = false;
};

void readPcTables(Reader& reader, PageData& page) {
    for (unsigned at = 0; at < 32; ++at) {
        const std::uint8_t bits = reader.u8();
        for (unsigned bit = 0; bit < 8; ++bit) page.leadBytes[8 * at + bit] = (bits >> bit & 1) != 0;
    }
    for (auto& byte : page.upper) byte = reader.u8();
    for (auto& byte : page.lower) byte = reader.u8();
}

bool readPairs(Reader& reader, PageData& page) {
    std::array<int, 256> firstOfRow;
    firstOfRow.fill(-1);
    unsigned rows = 0;
    for (unsigned first = 0; first < 256; ++first) {
        const std::uint8_t row = reader.u8();
        if (row == NoFileRow) continue;
        if (firstOfRow[row] >= 0) return false;
        firstOfRow[row] = int(first);
        ++rows;
    }
    if (!reader.holds(512 * std::uint64_t{rows})) return false;
    for (unsigned row = 0; row < rows; ++row) {
        if (firstOfRow[row] < 0) return false;
        for (unsigned second = 0; second < 256; ++second)
            page.pairs.set(std::uint8_t(firstOfRow[row]), std::uint8_t(second), reader.u16());
    }
    return true;
}

bool readPreferences(Reader& reader, PageData& page) {
    const std::uint32_t count = reader.u32();
    if (!reader.holds(4 * std::uint64_t{count})) return false;
    page.preferences.resize(count);
    for (Preference& preference : page.preferences) {
        preference.character = reader.u16();
        preference.code = reader.u16();
    }
    return true;
}

bool readBody(std::string_view body, PageData& page) {
    Reader reader(body);
    for (auto& character : page.single) character = reader.u16();
    if (!page.host) readPcTables(reader, page);
    if (page.doubleByte && !readPairs(reader, page)) return false;
    return readPreferences(reader, page) && !reader.ranOut();
}

bool readPage(std::string_view file, Reader& directory, PageData& page) {
    page.number = directory.u32();
    const std::uint32_t flags = directory.u32();
    page.host = (flags & HostPageFlag) != 0;
    page.doubleByte = (flags & DoubleBytePageFlag) != 0;
    const std::uint32_t offset = directory.u32();
    const std::uint32_t length = directory.u32();
    if (directory.ranOut() || offset > file.size() || length > file.size() - offset) return false;
    return readBody(file.substr(offset, length), page);
}

// The number of pages, or nothing when the bytes are not a whole data file of this version.
std::optional<std::uint32_t> readHeader(std::string_view file, std::string* error) {
    const auto fail = [error](const std::string& text) {
        if (error) *error = text;
        return std::nullopt;
    };
    if (file.substr(0, DataFileMagic.size()) != DataFileMagic.substr(0, file.size())) {
        return fail("this is not a code page data file");
    }
    if (file.size() < DataFileHeaderLength) return fail("the code page data file is cut short");
    Reader reader(file.substr(DataFileMagic.size()));
    if (const std::uint32_t version = reader.u32(); version != DataFileVersion) {
        return fail("the code page data file has version " + std::to_string(version) + ", wanted is " +
                    std::to_string(DataFileVersion));
    }
    const std::uint32_t length = reader.u32();
    if (length > file.size()) return fail("the code page data file is cut short");
    if (length < file.size()) return fail("the code page data file is longer than it says");
    return reader.u32();
}

}  // namespace

std::optional<std::vector<PageData>> parseDataFile(std::string_view file, std::string* error) {
    const auto count = readHeader(file, error);
    if (!count) return std::nullopt;
    Reader directory(file.substr(DataFileHeaderLength));
    const bool room = directory.holds(DataFileEntryLength * std::uint64_t{*count});
    std::vector<PageData> pages(room ? *count : 0);
    for (PageData& page : pages) {
        if (readPage(file, directory, page)) continue;
        if (error) *error = "the code page data file is damaged at page " + std::to_string(page.number);
        return std::nullopt;
    }
    if (room) return pages;
    if (error) *error = "the list of pages of the code page data file is damaged";
    return std::nullopt;
}

}  // namespace codepages
