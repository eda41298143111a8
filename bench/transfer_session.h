#pragma once

#include <cstdint>
#include <string>

#include "support/ready_session.h"

namespace bench {

using Direction = ReadySession::Direction;

// One client in a fresh emulator whose accounts begin at zero. The journal is off, the monitor store on, no progress is
// shown, and the host is z7xscript's fast transfer behind an IBM-style provider library.
class TransferSession {
public:
    // `fileType` counts for both directions.
    TransferSession(std::int32_t fileType, const std::string& pcFile);

    // One transfer of `count` records. Empty when every record arrived, otherwise what went wrong.
    std::string transfer(Direction direction, std::uint32_t count);

    void set(std::uint32_t id, std::int32_t value) { session_.set(id, value); }
    void set(std::uint32_t id, const std::string& value) { session_.set(id, value); }
    // Most bytes of the emulator's memory that were in use at once since this was made.
    std::uint64_t peakBytes() const { return emulator::allocations().peakBytes; }

private:
    ReadySession session_;
};

}  // namespace bench
