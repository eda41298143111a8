#include "scripted/dispatch.h"

// E32TFW.DLL. The definitions WITHOUT_REQUEST and WITHOUT_DELETE make incomplete variants of it.
extern "C" {
#ifndef WITHOUT_REQUEST
SCRIPTED_EXPORT std::uint32_t ZHST_CALL EHNTF_STF(std::uint32_t window, TfYield yield, std::uint32_t* conversation,
                                                  std::uint32_t function, void* buffer, std::uint32_t bufferSize,
                                                  std::uint32_t length, const char* designation, std::uint32_t reserved,
                                                  void** data, std::uint32_t* dataLength, std::uint32_t* detail) {
    return scripted::request(
        {scripted::Family::Stf, 0, window, yield},
        {conversation, function, buffer, bufferSize, length, designation, reserved, data, dataLength, detail});
}
#endif
#ifndef WITHOUT_DELETE
SCRIPTED_EXPORT void ZHST_CALL E32TF_Cleanup() { scripted::enter("E32TF_Cleanup"); }
#endif
}
