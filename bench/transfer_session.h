#pragma once

#include <cstdint>
#include <string>

#include "emulator/emulator.h"
#include "support/library.h"

namespace bench {

enum class Direction : std::uint32_t { Receive = 0, Send = 1 };

// One client in a fresh emulator whose accounts begin at zero. The journal is off, the monitor store on, no progress is
// shown, and the host is z7xscript's fast transfer behind an IBM-style provider library.
class TransferSession {
public:
    // `fileType` counts for both directions.
    TransferSession(std::int32_t fileType, const std::string& pcFile);
    ~TransferSession();
    TransferSession(const TransferSession&) = delete;
    TransferSession& operator=(const TransferSession&) = delete;

    // One transfer of `count` records. Empty when every record arrived, otherwise what went wrong.
    std::string transfer(Direction direction, std::uint32_t count);

    void set(std::uint32_t id, std::int32_t value) { emulator::set(session_, id, value); }
    void set(std::uint32_t id, const std::string& value) { emulator::set(session_, id, value); }
    // Most bytes of the emulator's memory that were in use at once since this was made.
    std::uint64_t peakBytes() const { return emulator::allocations().peakBytes; }

private:
    // Keeps the first message.
    struct User : emulator::UserInterface {
        std::string message;
        std::int32_t showMessage(const emulator::MessageBox& box) override {
            if (message.empty()) message = box.text;
            return 1;
        }
    };

    const Library& library_ = Library::get();
    User user_;
    host::SessionHandle session_ = 0;
    ZXFRPCSCLIENT* client_ = nullptr;
};

}  // namespace bench
