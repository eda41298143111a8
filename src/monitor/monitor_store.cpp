#include "monitor/monitor_store.h"

#include <algorithm>
#include <cstring>

#include "Z7XFRPCS/provider.h"
#include "bytes/byte_order.h"

namespace monitor {
namespace {

// Names, of four characters each.
constexpr char TransferNode[] = "XFR4";
constexpr char ReceiveList[] = "X4RP";
constexpr char SendList[] = "X4SP";

constexpr const char* ReceiveItems[] = {
#define RECEIVE_CODE(receive, send, name, value) receive,
    ZHST_MONITOR_ITEMS(RECEIVE_CODE)
#undef RECEIVE_CODE
};
constexpr const char* SendItems[] = {
#define SEND_CODE(receive, send, name, value) send,
    ZHST_MONITOR_ITEMS(SEND_CODE)
#undef SEND_CODE
};

std::uint32_t codeOf(const char* name) { return static_cast<std::uint32_t>(bytes::highFirstSigned(name, 4)); }

constexpr std::uint32_t DesignationLength = ZhstMonitorRequestData - ZhstMonitorRequestDesignation - 1;
constexpr std::uint32_t Trailer = 2;

}  // namespace

MonitorStore::MonitorStore() : store_(services::OpenStore("ZHST")) {
    if (store_ == 0) return;
    services::OpenStoreNode(store_, 0, codeOf(TransferNode), 0, &node_);
    if (node_ == 0) return;
    services::OpenStoreList(store_, node_, codeOf(ReceiveList), 0, &receive_.handle);
    services::OpenStoreList(store_, node_, codeOf(SendList), 0, &send_.handle);
    openItems(receive_, ReceiveItems);
    openItems(send_, SendItems);
}

// The store itself stays open: it is the emulator's.
MonitorStore::~MonitorStore() {
    if (store_ == 0) return;
    closeItems(receive_);
    closeItems(send_);
    if (receive_.handle) services::CloseStoreList(store_, node_, receive_.handle);
    if (send_.handle) services::CloseStoreList(store_, node_, send_.handle);
    if (node_) services::CloseStoreNode(store_, 0, node_);
}

void MonitorStore::openItems(List& list, const char* const (&names)[ItemsPerList]) {
    if (list.handle == 0) return;
    for (std::uint32_t at = 0; at < ItemsPerList; ++at)
        services::OpenStoreItem(store_, list.handle, codeOf(names[at]), 0, &list.items[at]);
}

void MonitorStore::closeItems(const List& list) {
    for (const services::StorePartHandle item : list.items)
        if (item) services::CloseStoreItem(store_, list.handle, item);
}

// A reader in another process never sees half a value, and never waits longer than for one.
bool MonitorStore::lock(const List& list) { return list.handle && services::LockStoreList(store_, list.handle) != 0; }

void MonitorStore::write(const List& list, Item item, std::string_view value) {
    if (!list.items[item] || !lock(list)) return;
    services::SetStoreItem(store_, list.items[item], value.data(), static_cast<std::uint32_t>(value.size()));
    services::UnlockStoreList(store_, list.handle);
}

void MonitorStore::touch(const List& list) {
    if (lock(list)) services::UnlockStoreList(store_, list.handle);
}

// What must be built is built, from zeros, in memory of its own.
template <class Fill>
void MonitorStore::writeBuilt(const List& list, Item item, std::uint32_t size, Fill fill) {
    if (!list.items[item] || !lock(list)) return;
    if (record_.ensure(size)) {
        std::memset(record_.data(), 0, size);
        fill(record_.data());
        services::SetStoreItem(store_, list.items[item], record_.data(), size);
    }
    services::UnlockStoreList(store_, list.handle);
}

void MonitorStore::recordRequest(std::uint32_t function, std::uint32_t reserved, std::string_view data,
                                 const char* designation) {
    const auto length = static_cast<std::uint32_t>(data.size());
    writeBuilt(send_, Exchange, ZhstMonitorRequestData + length + Trailer, [&](char* record) {
        const auto system = std::string_view(designation ? designation : "").substr(0, DesignationLength);
        record[ZhstMonitorRequestFunction] = static_cast<char>(function);
        record[ZhstMonitorRequestReserved] = static_cast<char>(reserved);
        // A terminating zero counts as data here, although it is not sent.
        bytes::putLowFirst32(record + ZhstMonitorRequestLength, length + 1);
        std::copy(system.begin(), system.end(), record + ZhstMonitorRequestDesignation);
        std::copy(data.begin(), data.end(), record + ZhstMonitorRequestData);
    });
}

void MonitorStore::recordResult(std::uint32_t function, std::uint16_t returnCode, std::uint16_t detailCode,
                                std::string_view data) {
    // Neither a reset nor a request that succeeds returns anything of the host's, whatever length it gives.
    const bool withoutData = function == TF_RESET || (function == TF_SEND_REQUEST && returnCode == TF_SUCCESS);
    if (withoutData) data = {};
    const auto length = static_cast<std::uint32_t>(data.size());
    writeBuilt(receive_, Exchange, ZhstMonitorResultData + length + Trailer, [&](char* record) {
        record[ZhstMonitorResultFunction] = static_cast<char>(function);
        bytes::putLowFirst32(record + ZhstMonitorResultReturnCode, returnCode);
        bytes::putLowFirst32(record + ZhstMonitorResultDetailCode, detailCode);
        bytes::putLowFirst32(record + ZhstMonitorResultLength, length);
        std::copy(data.begin(), data.end(), record + ZhstMonitorResultData);
    });
}

void MonitorStore::writeStatement(const List& list, std::string_view statement) {
    writeBuilt(list, Statement, static_cast<std::uint32_t>(statement.size()) + 1,
               [&](char* bytes) { std::copy(statement.begin(), statement.end(), bytes); });
}

}  // namespace monitor
