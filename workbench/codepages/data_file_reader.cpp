#include <algorithm>

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
    void skip(std::size_t length) {
        ranOut_ |= !holds(length);
        bytes_.remove_prefix(std::min(length, bytes_.size()));
    }

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

constexpr std::size_t SingleBytesLength = 512, PcTablesLength = 32 + 256 + 256, RowLength = 512;

void readPcTables(Reader& reader, PageData& page) {
    for (unsigned at = 0; at < 32; ++at) {
        const std::uint8_t bits = reader.u8();
        for (unsigned bit = 0; bit < 8; ++bit) page.leadBytes[8 * at + bit] = (bits >> bit & 1) != 0;
    }
    for (auto& byte : page.upper) byte = reader.u8();
    for (auto& byte : page.lower) byte = reader.u8();
}

// The first byte of each row. Nothing when the rows are not numbered from 0 without a gap.
std::optional<std::vector<std::uint8_t>> readFirstBytes(Reader& reader) {
    std::array<int, 256> firstOfRow;
    firstOfRow.fill(-1);
    unsigned rows = 0;
    for (int first = 0; first < 256; ++first) {
        const std::uint8_t row = reader.u8();
        if (row == NoFileRow) continue;
        if (firstOfRow[row] >= 0) return std::nullopt;
        firstOfRow[row] = first;
        ++rows;
    }
    const auto end = firstOfRow.begin() + rows;
    if (std::find(firstOfRow.begin(), end, -1) != end) return std::nullopt;
    return std::vector<std::uint8_t>(firstOfRow.begin(), end);
}

void readPairs(Reader& reader, PageData& page) {
    const auto firstBytes = readFirstBytes(reader);
    if (!firstBytes) return;
    for (const std::uint8_t first : *firstBytes)
        for (unsigned second = 0; second < 256; ++second) page.pairs.set(first, std::uint8_t(second), reader.u16());
}

void readPreferences(Reader& reader, PageData& page) {
    page.preferences.resize(reader.u32());
    for (Preference& preference : page.preferences) {
        preference.character = reader.u16();
        preference.code = reader.u16();
    }
}

// Whether the tables that the body is to have are all there. The tables themselves are left alone: there are many
// pages, and a program wants few of them.
bool isWhole(const PageEntry& entry) {
    Reader reader(entry.body);
    reader.skip(SingleBytesLength + (entry.host ? 0 : PcTablesLength));
    if (entry.doubleByte) {
        const auto firstBytes = readFirstBytes(reader);
        if (!firstBytes) return false;
        reader.skip(RowLength * firstBytes->size());
    }
    const std::uint32_t preferences = reader.u32();
    return !reader.ranOut() && reader.holds(4 * std::uint64_t{preferences});
}

bool readEntry(std::string_view file, Reader& directory, PageEntry& entry) {
    entry.number = directory.u32();
    const std::uint32_t flags = directory.u32();
    entry.host = (flags & HostPageFlag) != 0;
    entry.doubleByte = (flags & DoubleBytePageFlag) != 0;
    const std::uint32_t offset = directory.u32();
    const std::uint32_t length = directory.u32();
    if (directory.ranOut() || offset > file.size() || length > file.size() - offset) return false;
    entry.body = file.substr(offset, length);
    return isWhole(entry);
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

std::optional<std::vector<PageEntry>> readEntries(std::string_view file, std::string* error) {
    const auto count = readHeader(file, error);
    if (!count) return std::nullopt;
    Reader directory(file.substr(DataFileHeaderLength));
    const bool room = directory.holds(DataFileEntryLength * std::uint64_t{*count});
    std::vector<PageEntry> entries(room ? *count : 0);
    for (PageEntry& entry : entries) {
        if (readEntry(file, directory, entry)) continue;
        if (error) *error = "the code page data file is damaged at page " + std::to_string(entry.number);
        return std::nullopt;
    }
    if (room) return entries;
    if (error) *error = "the list of pages of the code page data file is damaged";
    return std::nullopt;
}

std::string readOrigin(std::string_view file) {
    const std::string_view end = file.substr(file.size() - std::min<std::size_t>(file.size(), DataFileOriginLength));
    return std::string(end.substr(0, end.find('\0')));
}

PageData readPage(const PageEntry& entry) {
    PageData page;
    page.number = entry.number;
    page.host = entry.host;
    page.doubleByte = entry.doubleByte;
    Reader reader(entry.body);
    for (auto& character : page.single) character = reader.u16();
    if (!page.host) readPcTables(reader, page);
    if (page.doubleByte) readPairs(reader, page);
    readPreferences(reader, page);
    return page;
}

}  // namespace codepages
