#include "converter.h"

#include <unicode/uniset.h>

#include <stdexcept>

namespace codepages {
namespace {

void check(UErrorCode status, const std::string& what) {
    if (U_FAILURE(status)) throw std::runtime_error(what + ": " + u_errorName(status));
}

}  // namespace

Converter::Converter(const std::string& icuName) {
    UErrorCode status = U_ZERO_ERROR;
    converter_ = ucnv_open(icuName.c_str(), &status);
    check(status, icuName);
    ucnv_setToUCallBack(converter_, UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
    ucnv_setFromUCallBack(converter_, UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
    ucnv_setFallback(converter_, true);
}

char16_t Converter::character(const std::string& bytes) const {
    UErrorCode status = U_ZERO_ERROR;
    UChar characters[8];
    const auto length = ucnv_toUChars(converter_, characters, 8, bytes.data(), int32_t(bytes.size()), &status);
    return U_SUCCESS(status) && length == 1 ? characters[0] : NoCharacter;
}

std::optional<std::uint16_t> Converter::code(char16_t character) const {
    UErrorCode status = U_ZERO_ERROR;
    char bytes[8];
    const auto length = ucnv_fromUChars(converter_, bytes, 8, &character, 1, &status);
    const auto byte = [&bytes](int at) { return std::uint8_t(bytes[at]); };
    if (U_FAILURE(status)) return std::nullopt;
    if (length == 1) return byte(0);
    if (length == 2) return std::uint16_t(byte(0) << 8 | byte(1));
    // A pair stands between its shift bytes.
    if (length == 4 && isShifting()) return std::uint16_t(byte(1) << 8 | byte(2));
    return std::nullopt;
}

std::vector<char16_t> Converter::characters() const {
    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeSet set;
    ucnv_getUnicodeSet(converter_, set.toUSet(), UCNV_ROUNDTRIP_AND_FALLBACK_SET, &status);
    check(status, "ucnv_getUnicodeSet");
    std::vector<char16_t> result;
    for (int32_t range = 0; range < set.getRangeCount(); ++range) {
        for (UChar32 at = set.getRangeStart(range); at <= set.getRangeEnd(range) && at <= 0xFFFF; ++at)
            result.push_back(char16_t(at));
    }
    return result;
}

}  // namespace codepages
