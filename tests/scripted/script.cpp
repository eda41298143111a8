#include "scripted/script.h"

#include <algorithm>
#include <cstring>
#include <deque>
#include <map>
#include <string_view>

#include "scripted/dispatch.h"
#include "scripted/fast_transfer.h"

namespace scripted {
namespace {

constexpr char Wiped = '\xA5';

struct Script {
    std::map<std::uint32_t, std::deque<Answer>> queues;
    Handler handler;
    std::vector<Call> calls;
    std::vector<std::string> entries;
    std::function<void(const std::string&)> listener;
    Switches switches;
    Construction lastConstruction;
    std::map<std::uint32_t, std::uint32_t> sessionOfClient;
    std::uint32_t nextClient = 0x10001;  // more than 16 bits, so that a cut handle shows
    std::string ownMemory;               // what the latest answer points to
};

Script& script() {
    static Script instance;
    return instance;
}

Call asCall(const Caller& caller, const Exchange& exchange) {
    Call call;
    call.family = caller.family;
    call.function = exchange.function;
    call.length = exchange.length;
    if (exchange.buffer)
        call.request.assign(static_cast<const char*>(exchange.buffer), std::min(exchange.length, exchange.bufferSize));
    if (exchange.designation) call.designation = exchange.designation;
    call.reserved = exchange.reserved;
    call.client = caller.client;
    call.window = caller.window;
    call.conversation = *exchange.conversation;
    call.buffer = exchange.buffer;
    call.bufferSize = exchange.bufferSize;
    call.yield = caller.yield;
    return call;
}

Answer chooseAnswer(const Call& call) {
    auto& queue = script().queues[call.function];
    if (!queue.empty()) {
        Answer answer = std::move(queue.front());
        queue.pop_front();
        return answer;
    }
    if (!script().handler) return defaultAnswer(call);
    const Handler handler = script().handler;  // a test may install another one from inside
    return handler(call);
}

Place placeOf(const Answer& answer, std::uint32_t function) {
    if (answer.place != Place::Usual) return answer.place;
    if (answer.bytes.empty()) return Place::Null;
    return function == TF_GET_DATA ? Place::SharedBuffer : Place::OwnMemory;
}

void* putData(const Answer& answer, const Exchange& exchange) {
    const Place place = placeOf(answer, exchange.function);
    auto* const shared = static_cast<char*>(exchange.buffer);
    if (place == Place::SharedBuffer) {
        std::copy_n(answer.bytes.data(), std::min<std::size_t>(answer.bytes.size(), exchange.bufferSize), shared);
        return shared;
    }
    if (exchange.function == TF_SEND_REQUEST) std::memset(shared, Wiped, exchange.bufferSize);
    if (place == Place::Null) return nullptr;
    script().ownMemory = answer.bytes;
    return script().ownMemory.data();
}

}  // namespace

void reset() {
    script() = Script{};
    fast::stop();
}

void answerNext(std::uint32_t function, Answer answer) { script().queues[function].push_back(std::move(answer)); }
void setHandler(Handler handler) { script().handler = std::move(handler); }
const std::vector<Call>& calls() { return script().calls; }
const std::vector<std::string>& entries() { return script().entries; }
void setListener(std::function<void(const std::string&)> listener) { script().listener = std::move(listener); }
Construction lastConstruction() { return script().lastConstruction; }
std::uint32_t liveClients() { return static_cast<std::uint32_t>(script().sessionOfClient.size()); }
void setSwitches(const Switches& switches) { script().switches = switches; }

Answer defaultAnswer(const Call& call) {
    const bool fetches = call.function == TF_GET_FIELD || call.function == TF_GET_DATA;
    return Answer::code(fetches ? TF_NO_MORE_DATA : TF_SUCCESS);
}

const char* functionName(std::uint32_t function) {
    static constexpr const char* Names[] = {"TF_SEND_REQUEST", "TF_GET_FIELD", "TF_GET_DATA", "TF_END_REQUEST",
                                            "TF_RESET",        "TF_PUT_DATA",  "TF_END_DATA"};
    return function >= 1 && function <= std::size(Names) ? Names[function - 1] : "unknown function";
}

void enter(const char* entry) {
    script().entries.emplace_back(entry);
    if (script().listener) script().listener(entry);
}

std::uint32_t request(const Caller& caller, const Exchange& exchange) {
    if (fast::running()) return fast::answer(exchange);
    std::ranges::fill(script().ownMemory, Wiped);
    enter(functionName(exchange.function));
    const Call call = asCall(caller, exchange);
    script().calls.push_back(call);
    const Answer answer = chooseAnswer(call);
    if (answer.meanwhile) answer.meanwhile();
    *exchange.data = putData(answer, exchange);
    *exchange.dataLength = answer.dataLength.value_or(static_cast<std::uint32_t>(answer.bytes.size()));
    *exchange.detail = answer.detail;
    if (exchange.function == TF_SEND_REQUEST && *exchange.conversation == 0) *exchange.conversation = 1;
    return answer.returnCode;
}

std::uint32_t newClient(const char* entry, std::uint32_t session, std::uint32_t window) {
    enter(entry);
    script().lastConstruction = {session, window};
    if (script().switches.refuseClient) return 0;
    const std::uint32_t client = script().nextClient++;
    script().sessionOfClient[client] = session;
    return client;
}

void deleteClient(const char* entry, std::uint32_t client) {
    enter(entry);
    // Deleting what was never given, or giving it back twice, leaves its mark among the entries.
    if (script().sessionOfClient.erase(client) == 0) enter("deleted an unknown client");
}

std::uint32_t findClient(std::uint32_t session) {
    enter("getAS4XFERCLIENT");
    for (const auto& [client, owner] : script().sessionOfClient)
        if (owner == session) return client;
    return 0;
}

std::uint32_t routerRunning() {
    enter("EHNAPPC_IsRouterLoaded");
    return script().switches.routerRunning ? 1 : 0;
}

}  // namespace scripted
