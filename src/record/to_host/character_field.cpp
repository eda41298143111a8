#include "record/to_host/character_field.h"

#include <algorithm>

#include "Z7XFRPCS/settings.h"
#include "record/dif_pieces.h"
#include "record/to_host/dif_value.h"
#include "send/refusals.h"
#include "settings/pc_file_types.h"
#include "text/double_byte.h"

namespace record::to_host {
namespace {

using record::HostField;
using record::RecordConverter;

constexpr char PairBlank[] = "\x81\x40";

std::size_t cutToCharacters(std::string_view text, std::size_t limit) {
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t next = at + text::characterBytes(text.substr(at));
        if (next > limit) break;
        at = next;
    }
    return at;
}

// The text of one field as it is collected in the field buffer. What is beyond the limit is only counted; no character
// is cut in two.
class CollectedText {
public:
    CollectedText(char* buffer, std::size_t limit) : buffer_(buffer), limit_(limit) {}

    void add(std::string_view piece) {
        const std::size_t room = limit_ - stored_;
        const bool fits = piece.size() <= room;
        const std::size_t kept = fits ? piece.size() : cutToCharacters(piece, room);
        std::copy_n(piece.data(), kept, buffer_ + stored_);
        stored_ += kept;
        if (!fits) limit_ = stored_;
    }
    std::size_t stored() const { return stored_; }

private:
    char* buffer_;
    std::size_t limit_;
    std::size_t stored_ = 0;
};

// Which double quote ends a quoted text.
enum class ClosingQuote { NotDoubled, BeforeComma, BeforeLineEnd };

// `rest` is what stands behind the quote.
bool closes(ClosingQuote closing, std::string_view rest) {
    if (rest.empty()) return true;
    switch (closing) {
        case ClosingQuote::BeforeComma:
            return rest[0] == ',';
        case ClosingQuote::BeforeLineEnd:
            return rest[0] == '\r' || rest[0] == '\n';
        default:
            return rest[0] != '"';
    }
}

// Takes the text behind an opening quote and the closing quote. False when the record ends before.
bool takeQuoted(std::string_view& rest, ClosingQuote closing, CollectedText& collected) {
    for (;;) {
        const std::size_t quote = text::findCharacter(rest, '"');
        collected.add(rest.substr(0, quote));
        rest.remove_prefix(std::min(quote, rest.size()));
        if (rest.empty()) return false;
        const std::string_view mark = rest.substr(0, 1);
        rest.remove_prefix(1);
        if (closes(closing, rest)) return true;
        collected.add(mark);
        if (closing != ClosingQuote::BeforeComma && rest[0] == '"') rest.remove_prefix(1);
    }
}

bool startsWithPair(std::string_view text) { return !text.empty() && text::isLeadByte(text[0]); }

void skipCharacter(std::string_view& rest) { rest.remove_prefix(std::min<std::size_t>(1, rest.size())); }

// One character field of a record on its way to the field buffer.
class CharacterField {
public:
    CharacterField(RecordConverter& converter, const HostField& field)
        : converter_(converter),
          settings_(*converter.transferSettings),
          type_(field.type()),
          length_(field.fieldLength().bytes),
          buffer_(converter.fieldBuffer.data()) {}

    bool extract(std::string_view& rest, char* destination);

private:
    bool pairFirst(std::string_view rest) const;
    std::uint32_t shiftBytes(std::string_view rest) const;
    void prefill(bool doubleByte);
    void padMixedText(std::uint32_t stored);
    bool collect(std::string_view& rest, CollectedText& collected);
    void takeDelimited(std::string_view& rest, CollectedText& collected) const;
    void takeLine(std::string_view rest);
    bool isSourceSend() const { return settings_.hostFileType == zhst::value::SourceFile; }
    bool isLongTextKept() const {
        return converter_.tfSession->codePage().isCodePage43() && settings_.sendFileType != settings::BasicSequential;
    }

    RecordConverter& converter_;
    const settings::TransferSettings& settings_;
    std::uint8_t type_;
    std::uint32_t length_;
    char* buffer_;
};

bool CharacterField::extract(std::string_view& rest, char* destination) {
    if (settings_.sendFileType == settings::Dif && !isSourceSend() && !takeDifPiece(rest, record::dif::StringHead))
        return send::refuseDifValue(converter_);
    std::size_t sourceLength = length_;
    if (isSourceSend()) {
        takeLine(rest);
    } else {
        const bool doubleByte = type_ == record::DoubleByteOnly || (type_ == record::DoubleByteOpen && pairFirst(rest));
        prefill(doubleByte);
        CollectedText collected(buffer_, isLongTextKept() ? converter_.fieldBuffer.size() : length_ - shiftBytes(rest));
        if (!collect(rest, collected)) return send::refuseDifValue(converter_);
        if (doubleByte) padMixedText(static_cast<std::uint32_t>(collected.stored()));
        sourceLength = std::max(sourceLength, collected.stored());
    }
    return converter_.pcToHost(buffer_, destination, static_cast<std::uint32_t>(sourceLength), length_);
}

// Whether the first byte of the field's data is that of a double-byte character. A quote counts as data where the type
// does without it.
bool CharacterField::pairFirst(std::string_view rest) const {
    if (settings_.sendFileType == settings::AsciiText) return false;
    const bool quoted = settings_.sendFileType == settings::BasicSequential || settings_.sendFileType == settings::Dif;
    return startsWithPair(rest.substr(std::min<std::size_t>(quoted ? 1 : 0, rest.size())));
}

// The room that double-byte text leaves for the two shift bytes of the host.
std::uint32_t CharacterField::shiftBytes(std::string_view rest) const {
    if (type_ != record::DoubleByteOnly && type_ != record::DoubleByteOpen) return 0;
    if (settings_.sendFileType != settings::AsciiText && rest.starts_with('"')) rest.remove_prefix(1);
    return startsWithPair(rest) ? std::min(length_, 2u) : 0;
}

// Double-byte blanks with two single-byte ones behind them make the host text end with a shift-in byte.
void CharacterField::prefill(bool doubleByte) {
    std::fill_n(buffer_, length_, ' ');
    if (!doubleByte) return;
    for (std::uint32_t at = 0; at + 4 <= length_; at += 2) std::copy_n(PairBlank, 2, buffer_ + at);
}

// Behind a text with single-byte characters the pairs of the prefill would stand crooked, and open a second run of
// double-byte text that the field may have no room to close: such a text is padded with single-byte blanks.
void CharacterField::padMixedText(std::uint32_t stored) {
    std::uint32_t at = 0;
    while (at < stored && text::isLeadByte(buffer_[at])) at += 2;
    if (at < stored && stored < length_) std::fill(buffer_ + stored, buffer_ + length_, ' ');
}

bool CharacterField::collect(std::string_view& rest, CollectedText& collected) {
    switch (settings_.sendFileType) {
        case settings::AsciiText:
            collected.add(rest.substr(0, length_));
            rest.remove_prefix(std::min<std::size_t>(length_, rest.size()));
            return true;
        case settings::BasicSequential:
            skipCharacter(rest);
            takeQuoted(rest, ClosingQuote::BeforeComma, collected);
            return true;
        case settings::Dif: {
            if (!rest.starts_with('"')) return false;
            skipCharacter(rest);
            takeQuoted(rest, ClosingQuote::BeforeLineEnd, collected);
            return takeLineEnd(rest) || rest.empty();
        }
        default:
            takeDelimited(rest, collected);
            return true;
    }
}

// Whatever stands between a closing quote and the delimiter is skipped.
void CharacterField::takeDelimited(std::string_view& rest, CollectedText& collected) const {
    const bool quoted = rest.starts_with('"');
    if (quoted) {
        skipCharacter(rest);
        takeQuoted(rest, ClosingQuote::NotDoubled, collected);
    }
    const char delimiter = settings_.sendFileType == settings::TabDelimited ? '\t' : settings_.listSeparator;
    const std::size_t end = std::min(text::findCharacter(rest, delimiter), rest.size());
    if (!quoted) collected.add(rest.substr(0, end));
    rest.remove_prefix(end);
}

// A source line stands in each of its fields, with single blanks behind its end.
void CharacterField::takeLine(std::string_view rest) {
    prefill(false);
    std::copy_n(rest.data(), std::min<std::size_t>(length_, rest.size()), buffer_);
}

}  // namespace

bool extractCharacterField(RecordConverter& converter, const HostField& field, std::string_view& rest,
                           char* destination) {
    return CharacterField(converter, field).extract(rest, destination);
}

}  // namespace record::to_host
