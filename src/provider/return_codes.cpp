#include "provider/return_codes.h"

#include "Z7XFRPCS/messages.h"

namespace provider {

std::uint32_t errorTextIndex(std::uint16_t returnCode) {
#define TRANSFER_CODE(place, code, ...) \
    if (returnCode == (code)) return place;
    ZHST_TRANSFER_CODES(TRANSFER_CODE)
#undef TRANSFER_CODE
    return 0;
}

// A code of the transfer function has its help topic where it has its text.
std::uint32_t helpIdOf(std::uint16_t returnCode) {
#define PROVIDER_CODE(code, help, ...) \
    if (returnCode == (code)) return help;
    ZHST_PROVIDER_CODES(PROVIDER_CODE)
#undef PROVIDER_CODE
    const std::uint32_t place = errorTextIndex(returnCode);
    return place ? place : zhst::help::ReturnCode;
}

}  // namespace provider
