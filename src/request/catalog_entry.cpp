#include "request/catalog_entry.h"

#include <algorithm>
#include <charconv>
#include <cstring>

#include "bytes/byte_order.h"
#include "text/double_byte.h"

namespace request {
namespace {

constexpr std::uint32_t LabelSize = 40;
constexpr std::uint32_t TypeBytes = 5;
constexpr std::uint32_t ColumnDescription = 50;

// Bytes of the name in a record of a library, file or member: its length is all that tells the lists apart.
std::size_t nameBytes(std::size_t recordLength) {
    switch (recordLength) {
        case 60:
            return 10;
        case 75:
            return 21;
        case 83:
            return 33;
        case 96:
            return 44;
        default:
            return 0;
    }
}

// Host text in the PC code page; room for every text that the shared buffer can hold. A text whose length the code page
// changes comes out longer or shorter. Where there is none, the converter is not asked.
class PcText {
public:
    PcText(const ZXFRPCSCLIENT& client, std::string_view hostText) : converts_(hostText.empty()) {
        if (converts_) return;
        const auto length = static_cast<std::uint32_t>(std::min<std::size_t>(hostText.size(), sizeof(text_)));
        std::uint32_t converted = 0;
        converts_ =
            client.tfSession->codePage().hostToPcText(hostText.data(), text_, length, sizeof(text_), &converted) == 0;
        length_ = converted ? std::min<std::uint32_t>(converted, sizeof(text_)) : length;
    }
    bool converts() const { return converts_; }
    std::string_view view() const { return {text_, length_}; }

private:
    char text_[provider::BufferSize];
    std::uint32_t length_ = 0;
    bool converts_;
};

// The name of an entry, piece by piece. A piece ends at its first zero byte; what does not fit is cut.
class EntryName {
public:
    explicit EntryName(HostCatalogEntry& entry) : entry_(entry) { entry_.name[0] = '\0'; }

    void append(std::string_view piece) {
        piece = piece.substr(0, piece.find('\0'));
        text::copyCut(piece, entry_.name + length_, sizeof(entry_.name) - length_);
        length_ += std::strlen(entry_.name + length_);
    }
    bool appendHostText(const ZXFRPCSCLIENT& client, std::string_view hostText) {
        const PcText text(client, hostText);
        if (text.converts()) append(text.view());
        return text.converts();
    }
    void appendLabel(const ZXFRPCSCLIENT& client, zhst::CatalogueText text) {
        char label[LabelSize] = {};
        messages::loadText(client.session, text, label);
        append({label, LabelSize});
    }
    // What is appended next goes over the blanks.
    void trimEnd() { length_ = text::trimmedEnd({entry_.name, length_}).size(); }

private:
    HostCatalogEntry& entry_;
    std::size_t length_ = 0;
};

// A field's record.
struct ColumnRecord {
    // The names of a list over several files are longer by their qualifier, "t1."; the length stands one byte further
    // from the type than it does behind a plain name.
    ColumnRecord(const char* record, std::int32_t fileCount)
        : nameWidth(fileCount <= 1 ? 10 : 13), lengthAt(fileCount <= 1 ? 15 : 19), bytes(record) {}
    std::string_view name() const { return {bytes, nameWidth}; }
    std::string_view type() const { return {bytes + nameWidth, TypeBytes}; }
    std::uint32_t length() const { return bytes::highFirst16(bytes + lengthAt); }
    std::string_view description() const { return {bytes + lengthAt + 6, ColumnDescription}; }

    std::uint32_t nameWidth;
    std::uint32_t lengthAt;
    const char* bytes;
};

}  // namespace

// Converted whole, and divided where the parts of the host record meet: where shift bytes went, the name takes them
// from the description.
void formatFileEntry(const ZXFRPCSCLIENT& client, std::string_view record, HostCatalogEntry& entry) {
    const std::size_t nameEnd = nameBytes(record.size());
    const bool isDescribed = record.size() > nameEnd;
    // What is not reached is not the text of the entry before.
    entry.name[0] = '\0';
    if (isDescribed) entry.description[0] = '\0';
    const PcText text(client, record);
    if (!text.converts()) return;
    text::copyCut(text.view().substr(0, nameEnd), entry.name, sizeof(entry.name));
    if (!isDescribed) return;
    const std::string_view description = text.view().substr(std::min(nameEnd, text.view().size()));
    text::copyCut(description, entry.description, sizeof(entry.description));
}

void formatColumnEntry(const ZXFRPCSCLIENT& client, const char* record, HostCatalogEntry& entry) {
    const ColumnRecord column(record, entry.fileCount);
    EntryName name(entry);
    if (!name.appendHostText(client, column.name())) return;
    name.append("\t");
    if (!name.appendHostText(client, column.description())) return;
    name.trimEnd();
    name.append("\n");
    name.appendLabel(client, zhst::text::TypeLabel);
    // The AS/400 client hands the type over in the PC's characters.
    if (client.tfSession->tfIsAs400Mode())
        name.append(column.type());
    else if (!name.appendHostText(client, column.type()))
        return;
    name.append("   ");
    name.appendLabel(client, zhst::text::LengthLabel);
    char digits[8];
    const auto end = std::to_chars(digits, digits + sizeof(digits), column.length()).ptr;
    name.append({digits, static_cast<std::size_t>(end - digits)});
}

}  // namespace request
