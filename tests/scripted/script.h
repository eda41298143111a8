#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Z7XFRPCS/provider.h"

// What the provider libraries of bin/scripted_families answer, decided by the test that runs in the same process. The
// libraries are shells; everything here lives in the shared library z7xscript, which they and the test both use.
//
// A call is answered by the first of: the queue of its function code, the handler, the default. The defaults are those
// of a host with an empty file: no more data for fields and records, success for everything else. The first request
// begins conversation 1. The shared buffer is overwritten once a request in it was read, and own memory of an answer
// when the next call arrives: whoever still holds its address is to notice.
namespace scripted {

enum class Family { Stf, Requestor, AppcRequestor, As400 };

// One call as it arrived. `buffer`, `yield` and `conversation` may be used while the call is on the stack.
struct Call {
    Family family = Family::Stf;
    std::uint32_t function = 0;
    std::uint32_t length = 0;
    std::string request;  // the first `length` bytes of the buffer (never past its end)
    std::optional<std::string> designation;
    std::uint32_t reserved = 0;
    std::uint32_t client = 0;        // 0 in the Stf family
    std::uint32_t window = 0;        // 0 in the other families
    std::uint32_t conversation = 0;  // as it came in
    void* buffer = nullptr;
    std::uint32_t bufferSize = 0;
    TfYield yield = nullptr;
};

// Where an answer's bytes stand.
enum class Place {
    Usual,         // TF_GET_DATA: the shared buffer; everything else: memory of the provider's own. No bytes: null
    SharedBuffer,  // the address is that of the shared buffer; bytes beyond its size are dropped
    OwnMemory,
    Null,  // null address, whatever the length says
};

struct Answer {
    std::uint32_t returnCode = TF_SUCCESS;  // all 32 bits of the result
    std::uint32_t detail = 0;
    std::string bytes;
    Place place = Place::Usual;
    std::optional<std::uint32_t> dataLength;  // otherwise the number of bytes
    std::function<void()> meanwhile;          // runs while the call is on the stack, before anything is answered

    static Answer data(std::string bytes) {
        Answer answer;
        answer.bytes = std::move(bytes);
        return answer;
    }
    static Answer code(std::uint32_t returnCode, std::string bytes = {}) {
        Answer answer = data(std::move(bytes));
        answer.returnCode = returnCode;
        return answer;
    }
};

// Forgets queue, handler, log, switches, clients and the fast path.
void reset();

void answerNext(std::uint32_t function, Answer answer);  // queues; the first queued is the first used
using Handler = std::function<Answer(const Call&)>;
void setHandler(Handler handler);
// What is answered when there is neither a queued answer nor a handler; for handlers that care about a few calls only.
Answer defaultAnswer(const Call& call);

// Every request since reset(), and every entry that was called, in order: "newZEHNTFWCLIENT", "TF_RESET",
// "TF_SEND_REQUEST", "E32TF_Cleanup", ... The listener hears each name as the entry is called.
const std::vector<Call>& calls();
const std::vector<std::string>& entries();
void setListener(std::function<void(const std::string& entry)> listener);
const char* functionName(std::uint32_t function);

// Arguments of the latest constructor call, and the clients it gave that are not deleted yet.
struct Construction {
    std::uint32_t session = 0, window = 0;
};
Construction lastConstruction();
std::uint32_t liveClients();

struct Switches {
    bool refuseClient = false;  // the constructors give 0
    bool routerRunning = true;  // answer of EHNAPPC_IsRouterLoaded
};
void setSwitches(const Switches& switches);

// A whole transfer from memory for measurements: no log, no std::function, no allocation per call. "SELECT COUNT(*)" is
// answered with `count`, other requests with success; records repeat from the first when `records` is used up; records
// that arrive are counted and dropped. The arrays belong to the caller and outlive the transfer.
struct FastTransfer {
    const std::uint8_t* fields = nullptr;  // fieldCount descriptions of 40 bytes
    std::uint32_t fieldCount = 0;
    const std::uint8_t* records = nullptr;  // recordCount records of recordLength bytes
    std::uint32_t recordCount = 0;
    std::uint32_t recordLength = 0;
    std::uint32_t count = 0;  // how many the host delivers
};
void answerFast(const FastTransfer& transfer);
struct FastTally {
    std::uint64_t recordsOut = 0, recordsIn = 0, bytesIn = 0;
};
FastTally fastTally();

}  // namespace scripted
