#include "record/to_host/dif_value.h"

#include "text/double_byte.h"

namespace record::to_host {
namespace {
constexpr std::string_view WrittenLineEnd = "\r\n";
}

bool takeLineEnd(std::string_view& rest) {
    const std::size_t bytes = rest.starts_with(WrittenLineEnd) ? 2 : rest.starts_with('\r') || rest.starts_with('\n');
    rest.remove_prefix(bytes);
    return bytes != 0;
}

bool takeLooseDifPiece(std::string_view& rest, std::string_view piece) {
    std::string_view ahead = rest;
    while (!piece.empty()) {
        const std::string_view line = piece.substr(0, piece.find(WrittenLineEnd));
        if (!text::startsWithNoCase(ahead, line)) return false;
        ahead.remove_prefix(line.size());
        piece.remove_prefix(line.size());
        if (piece.empty()) break;
        piece.remove_prefix(WrittenLineEnd.size());
        if (!takeLineEnd(ahead) && !(ahead.empty() && piece.empty())) return false;
    }
    rest = ahead;
    return true;
}

}  // namespace record::to_host
