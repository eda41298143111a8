#pragma once

#include <cstdint>
#include <string_view>

#include "client/client_object.h"
#include "record/host_layout.h"
#include "record/to_host/record_to_host.h"
#include "request/statement_exchange.h"

namespace send {

// Converts the PC records of one transfer and sends them, one by one. Made once the host has accepted the request, then
// given the host's layout.
class RecordSender {
public:
    RecordSender(ZXFRPCSCLIENT& client, const record::FileRules& rules);

    record::HostLayout& layout() { return layout_; }
    const record::HostLayout& layout() const { return layout_; }
    // Adds up the layout and makes the buffers of the conversion. False, reported, when there is nothing to send to or
    // no memory.
    bool prepare();
    // Bytes of a host record.
    std::uint32_t hostLength() const { return hostLength_; }

    // Fills the shared buffer with `fill` and puts the record at its start. False, reported, when the session, stopped
    // in the meantime, is no more.
    bool place(std::string_view record, char fill);
    // Converts the record of `length` bytes that was placed, and sends it. False after a reported failure.
    // `recordNumber` is for the user.
    bool convertAndPut(std::uint32_t length, std::uint32_t recordNumber, request::Context context);

private:
    ZXFRPCSCLIENT& client_;
    record::HostLayout layout_;
    record::to_host::RecordToHost records_;
    std::uint32_t hostLength_ = 0;
};

}  // namespace send
