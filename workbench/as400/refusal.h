#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

// How the host says no: a return code for the transfer function and a message text for the user.
namespace as400 {

enum class ReturnCode : std::uint16_t {
    Success = 0,
    TargetExists = 0x0400,  // with IWS2023: the member exists; the request stays open
    NoMoreData = 0x1FFF,
    UnknownFunction = 0x2000,
    LengthInvalid = 0x2001,  // of a request or record
    NoRequestOpen = 0x2002,  // the function belongs to a request, and there is none of its kind
    UnknownConversation = 0x2003,
    BufferTooSmall = 0x2005,
    RecordMisfit = 0x2026,    // a record of another length than the file's
    RequestRefused = 0x3000,  // the message says what is wrong with the request
    DataRefused = 0x3100,     // the message says what is wrong with a record
    NothingKept = 0x3101,     // the end of a request whose records did not all come
};

// Thrown anywhere below a conversation, which turns it into an answer.
class Refusal : public std::runtime_error {
public:
    Refusal(ReturnCode code, const std::string& message) : std::runtime_error(message), code_(code) {}
    ReturnCode code() const { return code_; }

private:
    ReturnCode code_;
};

[[noreturn]] inline void refuseRequest(const std::string& message) {
    throw Refusal(ReturnCode::RequestRefused, message);
}
[[noreturn]] inline void refuseData(const std::string& message) { throw Refusal(ReturnCode::DataRefused, message); }

}  // namespace as400
