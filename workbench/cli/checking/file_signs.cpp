#include "checking/file_signs.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <fstream>

#include "checking/number.h"

namespace checking {
namespace {

constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

bool isContinuation(char byte) { return (static_cast<std::uint8_t>(byte) & 0xC0) == 0x80; }

// Bytes of the UTF-8 character that the text begins with; 0 when it begins with none.
std::size_t utf8Length(std::string_view text) {
    const auto lead = static_cast<std::uint8_t>(text[0]);
    if (lead < 0x80) return 1;
    if (lead < 0xC2 || lead > 0xF4) return 0;
    const std::size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (text.size() < length) return 0;
    return std::all_of(text.begin() + 1, text.begin() + static_cast<std::ptrdiff_t>(length), isContinuation) ? length
                                                                                                             : 0;
}

std::string wordAround(std::string_view text, std::size_t place) {
    constexpr std::string_view Ends = " ,;\t\"\r\n";
    const std::size_t before = text.substr(0, place).find_last_of(Ends);
    const std::size_t first = before == std::string_view::npos ? 0 : before + 1;
    return std::string(text.substr(first, std::min(text.find_first_of(Ends, place), text.size()) - first));
}

}  // namespace

std::string markedEncoding(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    char bytes[3] = {};
    file.read(bytes, sizeof bytes);
    const std::string_view start(bytes, static_cast<std::size_t>(file.gcount()));
    if (start == Utf8Mark) return "UTF-8";
    return start.starts_with("\xFF\xFE") || start.starts_with("\xFE\xFF") ? "UTF-16" : "";
}

bool isHeaderLine(const std::vector<FieldText>& fields, const std::vector<HostColumn>& columns) {
    const auto isName = [](std::string_view text, const std::string& name) {
        text = withoutBlanks(text);
        return std::equal(text.begin(), text.end(), name.begin(), name.end(),
                          [](unsigned char a, unsigned char b) { return std::toupper(a) == std::toupper(b); });
    };
    std::size_t names = 0;
    for (std::size_t at = 0; at < columns.size(); ++at) names += isName(fields[at].text, columns[at].name) ? 1 : 0;
    return names > 0 && 2 * names >= columns.size();
}

std::string firstLine(const std::filesystem::path& path) {
    constexpr char EndOfFileByte = 26;
    std::ifstream file(path, std::ios::binary);
    std::string line;
    for (char byte; file.get(byte) && byte != '\r' && byte != '\n' && byte != EndOfFileByte;) line += byte;
    return line.starts_with(Utf8Mark) ? line.substr(Utf8Mark.size()) : line;
}

bool holdsFieldName(std::string_view line, RecordFields& fields, const HostLayout& layout) {
    const auto isName = [&](const FieldText& field) { return layout.find(withoutBlanks(field.text)) != nullptr; };
    while (!line.empty()) {
        fields.split(line);
        if (std::any_of(fields.fields().begin(), fields.fields().end(), isName)) return true;
        line = fields.surplus();
        line.remove_prefix(std::min<std::size_t>(line.size(), 1));
    }
    return false;
}

Utf8Watch::Utf8Watch(const PcFileForm& form)
    : isOpen_(form.isText() && !form.isUtf8()), needsThreeBytes_(form.pcPage && form.pcPage->isDoubleByte()) {}

bool Utf8Watch::isAscii(std::string_view text) {
    constexpr std::uint64_t HighBits = 0x8080808080808080;
    for (; text.size() >= sizeof(std::uint64_t); text.remove_prefix(sizeof(std::uint64_t))) {
        std::uint64_t eight;
        std::memcpy(&eight, text.data(), sizeof(eight));
        if (eight & HighBits) return false;
    }
    return std::all_of(text.begin(), text.end(), [](char byte) { return static_cast<std::uint8_t>(byte) < 0x80; });
}

bool Utf8Watch::lookClosely(std::string_view record) {
    std::size_t first = std::string_view::npos;
    // The mark is told by itself.
    for (std::size_t at = record.starts_with(Utf8Mark) ? Utf8Mark.size() : 0; at < record.size();) {
        const std::size_t length = utf8Length(record.substr(at));
        isOpen_ = isOpen_ && length > 0;
        if (!isOpen_) return false;
        if (length >= (needsThreeBytes_ ? 3u : 2u)) first = std::min(first, at);
        at += length;
    }
    if (isSeen_ || first == std::string_view::npos) return false;
    isSeen_ = true;
    word_ = wordAround(record, first);
    return true;
}

}  // namespace checking
