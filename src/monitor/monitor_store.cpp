#include "monitor/monitor_store.h"

#include <algorithm>

#include "Z7XFRPCS/provider.h"
#include "services/owned.h"

namespace monitor {
namespace {

// The first character is the most significant byte.
constexpr std::uint32_t code(const char (&text)[5]) {
    std::uint32_t value = 0;
    for (int at = 0; at < 4; ++at) value = value << 8 | static_cast<std::uint8_t>(text[at]);
    return value;
}
static_assert(code("XFR4") == 0x58465234);

constexpr std::uint32_t TransferNode = code("XFR4");
constexpr std::uint32_t ReceiveList = code("X4RP");
constexpr std::uint32_t SendList = code("X4SP");

// The items of both lists mean the same in their direction; those without a name here are never written.
enum Item : std::uint32_t { Field, Statement, Unused2, Description, Unused4, Record, Unused6, Unused7, Exchange };
constexpr std::uint32_t ReceiveItems[MonitorStore::ItemsPerList] = {code("XDTI"), code("XDCI"), code("XDRI"),
                                                                    code("XDDI"), code("XDSI"), code("XDFI"),
                                                                    code("XDAI"), code("XDEI"), code("XDGI")};
constexpr std::uint32_t SendItems[MonitorStore::ItemsPerList] = {code("XUTI"), code("XUCI"), code("XURI"),
                                                                 code("XUDI"), code("XUSI"), code("XUFI"),
                                                                 code("XUAI"), code("XUEI"), code("XUGI")};

constexpr std::uint32_t RequestHeader = 47;
constexpr std::uint32_t DesignationOffset = 6;
constexpr std::uint32_t DesignationLength = 40;
constexpr std::uint32_t ResultHeader = 13;
constexpr std::uint32_t Trailer = 2;
static_assert(DesignationOffset + DesignationLength + 1 == RequestHeader);
static_assert(RequestHeader + Trailer == 49 && ResultHeader + Trailer == 15);

void putLittleEndian(char* bytes, std::uint32_t value) {
    for (int at = 0; at < 4; ++at) bytes[at] = static_cast<char>(value >> (8 * at));
}

}  // namespace

MonitorStore::MonitorStore() : store_(services::OpenStore("ZHST")) {
    if (store_ == 0) return;
    services::OpenStoreNode(store_, 0, TransferNode, 0, &node_);
    if (node_ == 0) return;
    services::OpenStoreList(store_, node_, ReceiveList, 0, &receive_.handle);
    services::OpenStoreList(store_, node_, SendList, 0, &send_.handle);
    openItems(receive_, ReceiveItems);
    openItems(send_, SendItems);
}

MonitorStore::~MonitorStore() {
    if (store_ == 0) return;
    closeItems(receive_);
    closeItems(send_);
    if (receive_.handle) services::CloseStoreList(store_, node_, receive_.handle);
    if (send_.handle) services::CloseStoreList(store_, node_, send_.handle);
    if (node_) services::CloseStoreNode(store_, 0, node_);
}

void MonitorStore::openItems(List& list, const std::uint32_t (&itemCodes)[ItemsPerList]) {
    if (list.handle == 0) return;
    for (std::uint32_t at = 0; at < ItemsPerList; ++at)
        services::OpenStoreItem(store_, list.handle, itemCodes[at], 0, &list.items[at]);
}

void MonitorStore::closeItems(const List& list) {
    for (const services::StorePartHandle item : list.items)
        if (item) services::CloseStoreItem(store_, list.handle, item);
}

bool MonitorStore::lock(const List& list) { return list.handle && services::LockStoreList(store_, list.handle) != 0; }

void MonitorStore::write(const List& list, std::uint32_t item, std::string_view value) {
    if (!list.items[item] || !lock(list)) return;
    services::SetStoreItem(store_, list.items[item], value.data(), static_cast<std::uint32_t>(value.size()));
    services::UnlockStoreList(store_, list.handle);
}

void MonitorStore::touch(const List& list) {
    if (lock(list)) services::UnlockStoreList(store_, list.handle);
}

// What must be built is built, zero-filled, in memory of its own, freed once the list is unlocked again.
template <class Fill>
void MonitorStore::writeBuilt(const List& list, std::uint32_t item, std::uint32_t size, Fill fill) {
    if (!list.items[item] || !lock(list)) return;
    const auto record = services::OwnedBytes::make(size, true);
    if (record) {
        fill(record.data());
        services::SetStoreItem(store_, list.items[item], record.data(), size);
    }
    services::UnlockStoreList(store_, list.handle);
}

void MonitorStore::recordRequest(std::uint32_t function, std::uint32_t reserved, std::string_view data,
                                 const char* designation) {
    const auto length = static_cast<std::uint32_t>(data.size());
    writeBuilt(send_, Exchange, RequestHeader + length + Trailer, [&](char* bytes) {
        const auto system = std::string_view(designation ? designation : "").substr(0, DesignationLength);
        bytes[0] = static_cast<char>(function);
        bytes[1] = static_cast<char>(reserved);
        putLittleEndian(bytes + 2, length + 1);
        std::copy(system.begin(), system.end(), bytes + DesignationOffset);
        std::copy(data.begin(), data.end(), bytes + RequestHeader);
    });
}

void MonitorStore::recordResult(std::uint32_t function, std::uint16_t returnCode, std::uint16_t detailCode,
                                std::string_view data) {
    const bool withoutData = function == TF_RESET || (function == TF_SEND_REQUEST && returnCode == TF_SUCCESS);
    if (withoutData) data = {};
    const auto length = static_cast<std::uint32_t>(data.size());
    writeBuilt(receive_, Exchange, ResultHeader + length + Trailer, [&](char* bytes) {
        bytes[0] = static_cast<char>(function);
        putLittleEndian(bytes + 1, returnCode);
        putLittleEndian(bytes + 5, detailCode);
        putLittleEndian(bytes + 9, length);
        std::copy(data.begin(), data.end(), bytes + ResultHeader);
    });
}

void MonitorStore::writeStatement(const List& list, std::string_view statement) {
    writeBuilt(list, Statement, static_cast<std::uint32_t>(statement.size()) + 1,
               [&](char* bytes) { std::copy(statement.begin(), statement.end(), bytes); });
}

void MonitorStore::recordReceiveStatement(std::string_view statement) { writeStatement(receive_, statement); }
void MonitorStore::recordSendStatement(std::string_view statement) { writeStatement(send_, statement); }
void MonitorStore::recordReceiveField(std::string_view description) { write(receive_, Field, description); }
void MonitorStore::recordSendField(std::string_view description) { write(send_, Field, description); }
void MonitorStore::recordReceiveDescription(std::string_view text) { write(receive_, Description, text); }
void MonitorStore::recordSendDescription(std::string_view text) { write(send_, Description, text); }
void MonitorStore::recordReceivedRecord(std::string_view record) { write(receive_, Record, record); }
void MonitorStore::recordSentRecord(std::string_view record) { write(send_, Record, record); }
void MonitorStore::touchReceiveList() { touch(receive_); }
void MonitorStore::touchSendList() { touch(send_); }

}  // namespace monitor
