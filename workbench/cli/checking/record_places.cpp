#include "checking/record_places.h"

#include <cctype>

namespace checking {
namespace {

constexpr std::size_t PieceSize = 64 * 1024;
constexpr char EndOfFileByte = 26;
constexpr std::size_t LongestWord = 4;  // that a line is told by

}  // namespace

std::string placeName(const PcFileForm& form, std::uint64_t index, std::uint64_t line, std::uint64_t offset) {
    if (form.form == RecordForm::Tuples) return "row " + std::to_string(index) + " (line " + std::to_string(line) + ")";
    const std::string record = "record " + std::to_string(index + 1);
    return record + (form.isText() ? " (line " + std::to_string(line) : " (byte " + std::to_string(offset)) + ")";
}

RecordPlaces::RecordPlaces(const std::filesystem::path& path, const PcFileForm& form, std::uint32_t recordBytes,
                           std::uint64_t start)
    : file_(path, std::ios::binary), form_(form), recordBytes_(recordBytes), start_(start), offset_(start) {
    file_.seekg(static_cast<std::streamoff>(start));
}

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
        offset_ = start_ + index * recordBytes_;
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

}  // namespace checking
