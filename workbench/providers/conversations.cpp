#include "conversations.h"

#include <algorithm>
#include <cstring>

#include "surroundings.h"

namespace providers {

namespace {

using as400::Answer;
using as400::Function;
using as400::ReturnCode;

bool closes(std::uint32_t function) { return function == TF_RESET || function == TF_END_DATA; }

bool needsNoConversation(std::uint32_t function) { return closes(function) || function == TF_END_REQUEST; }

// The caller keeps a 32-bit length and reads the data until its next call.
void hand(const Answer& answer, const Call& call) {
    const void* data = answer.data.empty() ? nullptr : answer.data.data();
    if (call.data) *call.data = const_cast<void*>(data);
    if (call.dataLength) *call.dataLength = static_cast<std::uint32_t>(answer.data.size());
    if (call.detail) *call.detail = 0;
}

}  // namespace

std::uint32_t Conversations::perform(const Call& call) {
    const Answer result = answer(call);
    hand(result, call);
    return static_cast<std::uint32_t>(result.code);
}

as400::Conversation& Conversations::open(std::uint32_t& handle) {
    handle = ++lastHandle_;
    return *(open_[handle] = std::make_unique<as400::Conversation>(surroundings(dialect_)));
}

Answer Conversations::refuse(ReturnCode code, const char* message) {
    return {code, {reinterpret_cast<const std::uint8_t*>(message), std::strlen(message)}};
}

Answer Conversations::answer(const Call& call) {
    if (!call.conversation || !call.buffer) return refuse(ReturnCode::LengthInvalid, "HSF3011 Parameter missing.");
    if (call.function < TF_SEND_REQUEST || call.function > TF_END_DATA) {
        return refuse(ReturnCode::UnknownFunction, "HSF3000 Function not known.");
    }
    const auto function = static_cast<Function>(call.function);
    const std::span buffer(static_cast<std::uint8_t*>(call.buffer), call.bufferSize);
    std::uint32_t& handle = *call.conversation;
    if (handle == 0) {
        if (needsNoConversation(call.function)) return {};
        if (function != Function::SendRequest) return refuse(ReturnCode::NoRequestOpen, "HSF3002 No request is open.");
        return open(handle).perform(function, buffer, call.length);
    }
    const auto found = open_.find(handle);
    if (found == open_.end()) return refuse(ReturnCode::UnknownConversation, "HSF3010 Conversation not known.");
    const Answer result = found->second->perform(function, buffer, call.length);
    if (!closes(call.function)) return result;
    // What the answer points to goes too.
    open_.erase(found);
    handle = 0;
    return {result.code, {}};
}

std::uint32_t Clients::create(std::uint32_t session) {
    clients_.emplace(++lastHandle_, Client{session, Conversations(dialect_)});
    return lastHandle_;
}

std::uint32_t Clients::ofSession(std::uint32_t session) const {
    std::uint32_t newest = 0;
    for (const auto& [handle, client] : clients_) {
        if (client.session == session) newest = handle;
    }
    return newest;
}

std::uint32_t Clients::perform(std::uint32_t client, const Call& call) {
    const auto found = clients_.find(client);
    if (found == clients_.end()) {
        hand({}, call);
        return static_cast<std::uint32_t>(ReturnCode::UnknownConversation);
    }
    return found->second.conversations.perform(call);
}

}  // namespace providers
