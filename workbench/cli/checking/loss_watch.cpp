#include "checking/loss_watch.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "checking/host_text.h"

namespace checking {
namespace {

// Whether a character ends a record or a field where it stands in a text.
bool isOfAMeaning(const PcFileForm& form, char character) {
    switch (character) {
        case '\0':
        case '\r':
            return form.isText();
        case '\n':
        case '\x1A':
            return form.form == RecordForm::Lines;
        case '"':
            return !form.doublesQuotes;
        case ',':
        case '\t':
            return false;  // a text that holds the one of its type stands in quotes
        default:
            return character == form.separator;
    }
}

// Eight bytes at a time.
using Word = std::uint64_t;
constexpr Word inEach(std::uint8_t byte) { return Word{0x0101010101010101} * byte; }
constexpr std::uint8_t Blank = 0x40, LastControl = 0xFF;  // of the host: its characters are between them

// Whether a byte is no character. High bits say which; compilers take several words at once.
bool hasControl(const std::uint8_t* bytes, std::size_t length) {
    Word characters = inEach(0x80);
    const auto take = [&](const std::uint8_t* place) {
        Word word = 0;
        std::memcpy(&word, place, sizeof word);
        const Word low = word & inEach(0x7F);
        characters &= ((low + inEach(0x80 - Blank)) | word) & ~((low + inEach(1)) & word);
    };
    for (std::size_t at = 0; at + sizeof(Word) <= length; at += sizeof(Word)) take(bytes + at);
    take(bytes + length - sizeof(Word));  // some once more
    return characters != inEach(0x80);
}

}  // namespace

LossWatch::LossWatch(const PcFileForm& form, const HostLayout& layout)
    : form_(form),
      findings_(layout.columns),
      written_(form_, layout, findings_,
               [this](std::uint64_t index) {
                   return form_.form == RecordForm::Tuples ? "row " + std::to_string(index + 2)
                                                           : "record " + std::to_string(index + 1);
               }),
      isOpen_(form.form != RecordForm::Unchanged) {
    for (const HostColumn& column : layout.columns) {
        if (!column.isText()) continue;
        if (!texts_.empty() && texts_.back().offset + texts_.back().length == column.offset)
            texts_.back().length += column.length;
        else
            texts_.push_back({column.offset, column.length});
    }
    const HostText texts(form_);
    readsAll_ = !texts.isOfBytes();
    for (std::size_t byte = 0; byte < isSign_.size(); ++byte) {
        const auto host = static_cast<std::uint8_t>(byte);
        const bool mayBeLost = !texts.comesBack(host) || isOfAMeaning(form_, texts.toPc(host));
        isSign_[byte] = mayBeLost ? 1 : 0;
        if (mayBeLost && host >= Blank && host != LastControl) areControls_ = false;
    }
}

bool LossWatch::mayLose(std::string_view host) const {
    if (readsAll_) return true;
    const std::uint8_t* const isSign = isSign_.data();
    for (const Range& range : texts_) {
        if (range.offset >= host.size()) break;
        const auto* const bytes = reinterpret_cast<const std::uint8_t*>(host.data()) + range.offset;
        const std::size_t length = std::min<std::size_t>(range.length, host.size() - range.offset);
        if (areControls_ && length >= sizeof(Word) && !hasControl(bytes, length)) continue;
            // Half of the instructions for a byte would be the loop's.
#pragma GCC unroll 8
        for (std::size_t at = 0; at < length; ++at)
            if (isSign[bytes[at]] != 0) return true;
    }
    return false;
}

std::optional<Note> LossWatch::note() const {
    if (findings_.told().empty()) return std::nullopt;
    const Finding& finding = findings_.told().front();
    return Note{
        finding.place + ", field " + finding.field + " would not be read back as the host has it: " + finding.reason,
        "there may be more, --verify tells of all; to do: " + std::string(adviceOf(finding.fault))};
}

}  // namespace checking
