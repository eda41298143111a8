#pragma once

#include <string_view>

namespace record::to_host {

// Takes a line end - CR LF, CR or LF - off the text; false when there is none.
bool takeLineEnd(std::string_view& rest);

// Takes one of the DIF text pieces off the text, letters compared without regard to case. Each CR LF of the piece
// stands for any line end, the last one also for the end of the record. False, with the text as it was, when it is not
// there.
bool takeLooseDifPiece(std::string_view& rest, std::string_view piece);
// The same, with a look ahead for how the library writes it; files other than DIF have empty pieces.
inline bool takeDifPiece(std::string_view& rest, std::string_view piece) {
    if (piece.empty()) return true;
    if (!rest.starts_with(piece)) return takeLooseDifPiece(rest, piece);
    rest.remove_prefix(piece.size());
    return true;
}

}  // namespace record::to_host
