// The transfer function in the IBM form: one entry for the whole process, with a call-back for waiting.
#include "conversations.h"

namespace {

providers::Conversations& conversations() {
    static providers::Conversations all(as400::Dialect::Text);
    return all;
}

}  // namespace

extern "C" {

ZHST_EXPORT std::uint32_t ZHST_CALL EHNTF_STF(std::uint32_t, TfYield yield, std::uint32_t* conversation,
                                              std::uint32_t function, void* buffer, std::uint32_t bufferSize,
                                              std::uint32_t length, const char*, std::uint32_t, void** data,
                                              std::uint32_t* dataLength, std::uint32_t* detail) {
    // The wait for the host, before anything of the call is begun.
    if (yield) yield();
    return conversations().perform({conversation, function, buffer, bufferSize, length, data, dataLength, detail});
}

ZHST_EXPORT void ZHST_CALL E32TF_Cleanup() { conversations().closeAll(); }
}
