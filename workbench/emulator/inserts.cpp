#include "emulator/inserts.h"

namespace emulator {

std::string fillInserts(std::string_view text, std::span<const std::string> inserts) {
    std::string filled;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t number =
            text[i] == '%' && i + 1 < text.size() ? static_cast<unsigned char>(text[i + 1]) - '0' : 0;
        if (number >= 1 && number <= 9 && number <= inserts.size()) {
            filled += inserts[number - 1];
            ++i;
        } else {
            filled += text[i];
        }
    }
    return filled;
}

}  // namespace emulator
