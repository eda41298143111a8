#include "scripted/fast_transfer.h"

#include <cstring>
#include <string_view>

namespace scripted::fast {
namespace {

struct State {
    FastTransfer transfer;
    bool running = false;
    bool counting = false;         // the request in hand is the count query
    std::uint32_t nextField = 0;   // of the request in hand
    std::uint32_t delivered = 0;   // records of the request in hand
    std::uint32_t nextRecord = 0;  // in `records`
    FastTally tally;
};
State state;

void begin(const Exchange& exchange) {
    const std::string_view text(static_cast<const char*>(exchange.buffer), exchange.length);
    state.counting = text.substr(0, 15) == "SELECT COUNT(*)";
    state.nextField = state.delivered = state.nextRecord = 0;
    *exchange.conversation = 1;
}

std::uint32_t give(const Exchange& exchange, void* data, std::uint32_t length) {
    *exchange.data = data;
    *exchange.dataLength = length;
    return TF_SUCCESS;
}

std::uint32_t nextField(const Exchange& exchange) {
    if (state.nextField == state.transfer.fieldCount) return TF_NO_MORE_DATA;
    // The library only reads what a provider points to; the entry's type has no const.
    auto* const field = const_cast<std::uint8_t*>(state.transfer.fields) + std::size_t{40} * state.nextField++;
    return give(exchange, field, 40);
}

std::uint32_t giveCount(const Exchange& exchange) {
    if (state.delivered++ != 0) return TF_NO_MORE_DATA;
    auto* const bytes = static_cast<std::uint8_t*>(exchange.buffer);
    for (int i = 0; i < 4; ++i) bytes[i] = static_cast<std::uint8_t>(state.transfer.count >> (24 - 8 * i));
    return give(exchange, bytes, 4);
}

std::uint32_t nextRecord(const Exchange& exchange) {
    if (state.counting) return giveCount(exchange);
    const FastTransfer& transfer = state.transfer;
    if (state.delivered == transfer.count) return TF_NO_MORE_DATA;
    std::memcpy(exchange.buffer, transfer.records + std::size_t{transfer.recordLength} * state.nextRecord,
                transfer.recordLength);
    if (++state.nextRecord == transfer.recordCount) state.nextRecord = 0;
    ++state.delivered;
    ++state.tally.recordsOut;
    return give(exchange, exchange.buffer, transfer.recordLength);
}

}  // namespace

void stop() { state = State{}; }
bool running() { return state.running; }

std::uint32_t answer(const Exchange& exchange) {
    *exchange.data = nullptr;
    *exchange.dataLength = *exchange.detail = 0;
    switch (exchange.function) {
        case TF_SEND_REQUEST:
            begin(exchange);
            return TF_SUCCESS;
        case TF_GET_FIELD:
            return nextField(exchange);
        case TF_GET_DATA:
            return nextRecord(exchange);
        case TF_PUT_DATA:
            ++state.tally.recordsIn;
            state.tally.bytesIn += exchange.length;
            return TF_SUCCESS;
        default:
            return TF_SUCCESS;
    }
}

}  // namespace scripted::fast

namespace scripted {

void answerFast(const FastTransfer& transfer) { fast::state = {.transfer = transfer, .running = true, .tally = {}}; }
FastTally fastTally() { return fast::state.tally; }

}  // namespace scripted
