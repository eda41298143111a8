#include "checking/record_places.h"

#include <cctype>

namespace checking {
namespace {

constexpr std::size_t PieceSize = 64 * 1024;
constexpr char EndOfFileByte = 26;
constexpr std::size_t LongestWord = 4;  // that a line is told by

}  // namespace

RecordPlaces::RecordPlaces(const std::filesystem::path& path, const PcFileForm& form, std::uint32_t recordBytes)
    : file_(path, std::ios::binary), form_(form), recordBytes_(recordBytes) {}

bool RecordPlaces::readPiece() {
    piece_.resize(PieceSize);
    file_.read(piece_.data(), PieceSize);
    piece_.resize(static_cast<std::size_t>(file_.gcount()));
    next_ = 0;
    return !piece_.empty();
}

void RecordPlaces::step() {
    ++next_;
    ++offset_;
}

void RecordPlaces::moveTo(std::uint64_t index) {
    if (!form_.isText()) {
        index_ = index;
        offset_ = index * recordBytes_;
        return;
    }
    while (index_ < index && byte() != End) {
        form_.form == RecordForm::Tuples ? passTuple() : passLine();
        ++index_;
    }
}

// A record ends at CR, LF or byte 26, with a line feed behind it where there is one: two line feeds in a row are the
// end of one record, but of two lines.
void RecordPlaces::passLine() {
    text_.clear();
    int end = byte();
    for (; end != End && end != '\r' && end != '\n' && end != EndOfFileByte; end = byte()) {
        if (text_.size() < LongestWord) text_ += static_cast<char>(std::toupper(end));
        step();
    }
    if (end == End) return;
    step();
    if (end != EndOfFileByte) ++line_;
    if (byte() != '\n') return;
    step();
    if (end == '\n') ++line_;
}

// A tuple goes to the "BOT" line behind a "-1,0" line.
void RecordPlaces::passTuple() {
    bool specialSeen = false;
    while (byte() != End) {
        passLine();
        if (text_.starts_with("-1,0")) {
            specialSeen = true;
        } else if (specialSeen && text_.starts_with("BOT")) {
            return;
        }
    }
}

std::string RecordPlaces::name() const {
    if (form_.form == RecordForm::Tuples)
        return "row " + std::to_string(index_) + " (line " + std::to_string(line_) + ")";
    const std::string record = "record " + std::to_string(index_ + 1);
    return record + (form_.isText() ? " (line " + std::to_string(line_) : " (byte " + std::to_string(offset_)) + ")";
}

}  // namespace checking
