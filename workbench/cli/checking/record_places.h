#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "checking/pc_file_form.h"

namespace checking {

// The place of a record for people: "record 3 (line 4)", "row 4 (line 57)", "record 3 (byte 512)". The index is counted
// from 0; of a DIF file the header is 0 and the row of the names 1.
std::string placeName(const PcFileForm& form, std::uint64_t index, std::uint64_t line, std::uint64_t offset);

// Where the records of a PC file stand. Walks through the file on its own, only when it is asked, and only forward.
class RecordPlaces {
public:
    // `recordBytes` is the length of the records that have no ends. The first record begins at the offset `start`.
    RecordPlaces(const std::filesystem::path& path, const PcFileForm& form, std::uint32_t recordBytes,
                 std::uint64_t start = 0);

    // Goes to the record of an index, counted from 0; of a DIF file the header is 0 and the row of the names 1. Stops
    // at the end of the file.
    void moveTo(std::uint64_t index);

    std::uint64_t index() const { return index_; }
    std::uint64_t offset() const { return offset_; }  // bytes in front of it
    std::uint64_t line() const { return line_; }      // of its beginning, counted from 1
    std::string name() const { return placeName(form_, index_, line_, offset_); }

private:
    static constexpr int End = -1;

    int byte() {
        if (next_ == piece_.size() && !readPiece()) return End;
        return static_cast<unsigned char>(piece_[next_]);
    }
    bool readPiece();
    void step();
    void passLine();
    void passTuple();

    std::ifstream file_;
    const PcFileForm& form_;
    std::uint32_t recordBytes_;
    std::uint64_t start_;
    std::vector<char> piece_;
    std::size_t next_ = 0;
    std::uint64_t index_ = 0, offset_, line_ = 1;
    std::string text_;  // the first letters of the line that was passed last
};

}  // namespace checking
