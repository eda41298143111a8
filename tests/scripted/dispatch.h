#pragma once

#include "scripted/script.h"

// The way from the shells to the script.
namespace scripted {

// The parameters that every request entry shares.
struct Exchange {
    std::uint32_t* conversation;
    std::uint32_t function;
    void* buffer;
    std::uint32_t bufferSize;
    std::uint32_t length;
    const char* designation;
    std::uint32_t reserved;
    void** data;
    std::uint32_t* dataLength;
    std::uint32_t* detail;
};

struct Caller {
    Family family;
    std::uint32_t client = 0;
    std::uint32_t window = 0;
    TfYield yield = nullptr;
};

std::uint32_t request(const Caller& caller, const Exchange& exchange);
std::uint32_t newClient(const char* entry, std::uint32_t session, std::uint32_t window);
void deleteClient(const char* entry, std::uint32_t client);
std::uint32_t findClient(std::uint32_t session);
void enter(const char* entry);
std::uint32_t routerRunning();

}  // namespace scripted
