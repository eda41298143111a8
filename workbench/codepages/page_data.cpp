#include "page_data.h"

namespace codepages {
namespace {

void offer(RowTable& codes, char16_t character, std::uint16_t code) {
    if (character != NoCharacter && codes.at(character) == NoCode) codes.set(character, code);
}

}  // namespace

RowTable invert(const PageData& page) {
    RowTable codes{NoCode};
    for (unsigned byte = 0; byte < 256; ++byte) offer(codes, page.single[byte], std::uint16_t(byte));
    for (unsigned first = 0; first < 256; ++first) {
        if (!page.pairs.hasRow(std::uint8_t(first))) continue;
        for (unsigned second = 0; second < 256; ++second) {
            const auto code = std::uint16_t(first << 8 | second);
            offer(codes, page.pairs.at(code), code);
        }
    }
    for (const Preference& preference : page.preferences) codes.set(preference.character, preference.code);
    return codes;
}

}  // namespace codepages
