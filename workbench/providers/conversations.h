#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <span>

#include "Z7XFRPCS/provider.h"
#include "as400/conversation.h"

// What every provider library is made of: conversations with the sample host under the handles that the caller keeps.
namespace providers {

// One call without its client, window and call-back.
struct Call {
    std::uint32_t* conversation;
    std::uint32_t function;
    void* buffer;
    std::uint32_t bufferSize;
    std::uint32_t length;
    void** data;
    std::uint32_t* dataLength;
    std::uint32_t* detail;
};

class Conversations {
public:
    explicit Conversations(as400::Dialect dialect) : dialect_(dialect) {}

    // The first request opens a conversation and gives it a handle; a reset and the end of data close it, and the
    // handle is 0 again. Without a conversation there is nothing to reset or end, which is no error.
    std::uint32_t perform(const Call& call);
    void closeAll() { open_.clear(); }

private:
    as400::Answer answer(const Call& call);
    as400::Answer refuse(as400::ReturnCode code, const char* message);
    as400::Conversation& open(std::uint32_t& handle);

    as400::Dialect dialect_;
    std::uint32_t lastHandle_ = 0;
    std::map<std::uint32_t, std::unique_ptr<as400::Conversation>> open_;
};

// The clients of a library that has a constructor for them: handle to conversations. A session has one client.
class Clients {
public:
    explicit Clients(as400::Dialect dialect) : dialect_(dialect) {}

    std::uint32_t create(std::uint32_t session);
    void destroy(std::uint32_t client) { clients_.erase(client); }
    std::uint32_t ofSession(std::uint32_t session) const;  // the newest; 0 when there is none
    std::uint32_t perform(std::uint32_t client, const Call& call);

private:
    struct Client {
        std::uint32_t session;
        Conversations conversations;
    };
    as400::Dialect dialect_;
    std::uint32_t lastHandle_ = 0;
    std::map<std::uint32_t, Client> clients_;
};

}  // namespace providers
