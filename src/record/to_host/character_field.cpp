#include "record/to_host/character_field.h"

#include <algorithm>

#include "record/to_host/dif_value.h"
#include "text/double_byte.h"

namespace record::to_host {
namespace {

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
    CharacterField(const FieldConversion& conversion, const FieldPlan& plan)
        : conversion_(conversion), file_(conversion.rules.type), plan_(plan), buffer_(conversion.fieldBuffer) {}

    Outcome extract(std::string_view& rest, char* destination);

private:
    bool pairFirst(std::string_view rest) const;
    std::uint32_t shiftBytes(std::string_view rest) const;
    void prefill(bool doubleByte);
    void padOddText(std::uint32_t stored);
    bool collect(std::string_view& rest, CollectedText& collected);
    bool takeDifText(std::string_view& rest, CollectedText& collected) const;
    void takeDelimited(std::string_view& rest, CollectedText& collected) const;
    void takeLine(std::string_view rest);
    bool isTuple() const { return file_.form == settings::RecordForm::Tuples; }
    // Text of page 43 may become shorter on its way, so what is beyond the field is kept until then.
    std::size_t limit(std::string_view rest) const {
        const bool isLongTextKept =
            conversion_.codePage.isCodePage43() && (isTuple() || file_.quotes != settings::Quotes::Always);
        return isLongTextKept ? conversion_.fieldBufferSize : plan_.bytes - shiftBytes(rest);
    }

    const FieldConversion& conversion_;
    const settings::PcFileTypeRow& file_;
    const FieldPlan& plan_;
    char* buffer_;
};

Outcome CharacterField::extract(std::string_view& rest, char* destination) {
    std::size_t sourceLength = plan_.bytes;
    if (conversion_.toSourceFile) {
        takeLine(rest);
    } else {
        if (!takeDifPiece(rest, plan_.difHead)) return Outcome::BadDifValue;
        const bool doubleByte = plan_.type == DoubleByteOnly || (plan_.type == DoubleByteOpen && pairFirst(rest));
        prefill(doubleByte);
        CollectedText collected(buffer_, limit(rest));
        if (!collect(rest, collected)) return Outcome::BadDifValue;
        if (doubleByte) padOddText(static_cast<std::uint32_t>(collected.stored()));
        sourceLength = std::max(sourceLength, collected.stored());
    }
    const std::uint32_t failure =
        conversion_.codePage.pcToHostText(buffer_, destination, static_cast<std::uint32_t>(sourceLength), plan_.bytes);
    return failure == 0 ? Outcome::Converted : Outcome::TextNotConverted;
}

// Whether the first byte of the field's data is that of a double-byte character. A quote counts as data where the type
// does without it.
bool CharacterField::pairFirst(std::string_view rest) const {
    if (plan_.isFixed) return false;
    return startsWithPair(rest.substr(std::min<std::size_t>(plan_.isQuoted ? 1 : 0, rest.size())));
}

// The room that double-byte text leaves for the two shift bytes of the host.
std::uint32_t CharacterField::shiftBytes(std::string_view rest) const {
    if (plan_.type != DoubleByteOnly && plan_.type != DoubleByteOpen) return 0;
    if (!plan_.isFixed && rest.starts_with('"')) rest.remove_prefix(1);
    return startsWithPair(rest) ? std::min(plan_.bytes, 2u) : 0;
}

// Double-byte blanks with two single-byte ones behind them make the host text end with a shift-in byte. The blank is
// the Japanese one for every language.
void CharacterField::prefill(bool doubleByte) {
    std::fill_n(buffer_, plan_.bytes, ' ');
    if (!doubleByte) return;
    for (std::uint32_t at = 0; at + 2 < plan_.bytes; at += 2) std::copy_n(PairBlank, 2, buffer_ + at);
    if (plan_.bytes >= 2) buffer_[plan_.bytes - 2] = ' ';
}

// Behind an odd number of bytes the first pair of the prefill is overwritten by half, and what is left of it would
// stand crooked: such a text is padded with single-byte blanks. Text of page 43 may reach beyond the field.
void CharacterField::padOddText(std::uint32_t stored) {
    if (stored % 2 != 0 && stored < plan_.bytes) std::fill(buffer_ + stored, buffer_ + plan_.bytes, ' ');
}

// False for a DIF text that is not written as one.
bool CharacterField::collect(std::string_view& rest, CollectedText& collected) {
    if (isTuple()) return takeDifText(rest, collected);
    if (plan_.isFixed) {
        collected.add(rest.substr(0, plan_.bytes));
        rest.remove_prefix(std::min<std::size_t>(plan_.bytes, rest.size()));
    } else if (plan_.isQuoted) {
        skipCharacter(rest);
        takeQuoted(rest, ClosingQuote::BeforeComma, collected);
    } else {
        takeDelimited(rest, collected);
    }
    return true;
}

bool CharacterField::takeDifText(std::string_view& rest, CollectedText& collected) const {
    skipCharacter(rest);  // the quote, which is not checked
    takeQuoted(rest, ClosingQuote::BeforeLineEnd, collected);
    return takeLineEnd(rest) || rest.empty();
}

// Whatever stands between a closing quote and the delimiter is skipped.
void CharacterField::takeDelimited(std::string_view& rest, CollectedText& collected) const {
    const bool quoted = rest.starts_with('"');
    if (quoted) {
        skipCharacter(rest);
        takeQuoted(rest, ClosingQuote::NotDoubled, collected);
    }
    const std::size_t end = std::min(text::findCharacter(rest, conversion_.rules.separator), rest.size());
    if (!quoted) collected.add(rest.substr(0, end));
    rest.remove_prefix(end);
}

// A source line stands in each of its fields, with single blanks behind its end.
void CharacterField::takeLine(std::string_view rest) {
    prefill(false);
    std::copy_n(rest.data(), std::min<std::size_t>(plan_.bytes, rest.size()), buffer_);
}

}  // namespace

Outcome extractCharacterField(const FieldConversion& conversion, const FieldPlan& plan, std::string_view& rest,
                              char* destination) {
    return CharacterField(conversion, plan).extract(rest, destination);
}

}  // namespace record::to_host
