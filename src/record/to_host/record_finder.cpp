#include "record/to_host/record_finder.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "record/dif_pieces.h"
#include "text/double_byte.h"

namespace record::to_host {
namespace {

bool isLineEnd(char byte) { return byte == '\r' || byte == '\n' || byte == EndOfFileByte; }

// Whether no byte of eight is below a blank; all line ends are.
bool areWithoutControls(const char* bytes) {
    constexpr std::uint64_t Blanks = 0x2020202020202020, HighBits = 0x8080808080808080;
    std::uint64_t eight;
    std::memcpy(&eight, bytes, sizeof(eight));
    return ((eight - Blanks) & ~eight & HighBits) == 0;
}

// CR or LF in the last place may be the first half of a pair; byte 26 stands alone.
bool findLineEnd(std::string_view buffer, std::size_t& index) {
    std::size_t at = index;
    while (at < buffer.size() && !isLineEnd(buffer[at]))
        at += at + 8 <= buffer.size() && areWithoutControls(buffer.data() + at) ? 8 : 1;
    if (at == buffer.size() || (at + 1 == buffer.size() && buffer[at] != EndOfFileByte)) return false;
    index = at;
    return true;
}

// A BOT line closes the tuple only behind a special value line.
bool findTupleEnd(std::string_view buffer, std::size_t& index) {
    bool specialSeen = false;
    for (std::size_t at = index;; ++at) {
        if (at < buffer.size() && buffer[at] == '\n') ++at;
        const std::string_view line = buffer.substr(std::min(at, buffer.size()));
        if (text::beginsWithWord(line, dif::EndWord) || !findLineEnd(buffer, at)) return false;
        if (text::beginsWithWord(line, dif::SpecialHead)) {
            specialSeen = true;
        } else if (text::beginsWithWord(line, dif::BeginWord)) {
            if (specialSeen) index = at;
            return specialSeen;
        }
    }
}

}  // namespace

bool findRecordEnd(settings::RecordForm form, std::string_view buffer, std::size_t& index) {
    return form == settings::RecordForm::Tuples ? findTupleEnd(buffer, index) : findLineEnd(buffer, index);
}

std::size_t terminatorBytes(std::string_view buffer, std::size_t index) {
    return index + 1 < buffer.size() && buffer[index + 1] == '\n' ? 2 : 1;
}

}  // namespace record::to_host
