#pragma once

#include <cstdint>
#include <string_view>

#include "Z7XFRPCS/monitor.h"
#include "services/owned.h"
#include "services/runtime.h"

namespace monitor {

// Publishes what a transfer exchanges into the emulator's named store "ZHST", for a monitoring tool to follow. Written
// only; no transfer depends on it: what cannot be opened, locked or built is left out without a word.
//
// What stands where in it is said in Z7XFRPCS/monitor.h.
class MonitorStore {
public:
    MonitorStore();
    ~MonitorStore();
    MonitorStore(const MonitorStore&) = delete;
    MonitorStore& operator=(const MonitorStore&) = delete;

    // `designation` may be null; it is cut to 40 characters.
    void recordRequest(std::uint32_t function, std::uint32_t reserved, std::string_view data, const char* designation);
    void recordResult(std::uint32_t function, std::uint16_t returnCode, std::uint16_t detailCode,
                      std::string_view data);

    // The texts are recorded with a terminating zero, which they need not have.
    void recordReceiveStatement(std::string_view statement) { writeStatement(receive_, statement); }
    void recordSendStatement(std::string_view statement) { writeStatement(send_, statement); }
    void recordReceiveField(std::string_view description) { write(receive_, Field, description); }
    void recordSendField(std::string_view description) { write(send_, Field, description); }
    void recordReceiveDescription(std::string_view text) { write(receive_, Description, text); }
    void recordSendDescription(std::string_view text) { write(send_, Description, text); }
    void recordReceivedRecord(std::string_view record) { write(receive_, Record, record); }
    void recordSentRecord(std::string_view record) { write(send_, Record, record); }

    // Lock and unlock the list once.
    void touchReceiveList() { touch(receive_); }
    void touchSendList() { touch(send_); }

private:
    // The items of both lists mean the same in their direction; those without a name here belong to the store's layout,
    // but are never written.
    enum Item : std::uint32_t {
#define MONITOR_ITEM(receive, send, name, value) name,
        ZHST_MONITOR_ITEMS(MONITOR_ITEM)
#undef MONITOR_ITEM
            ItemsPerList
    };

    struct List {
        services::StorePartHandle handle = 0;
        services::StorePartHandle items[ItemsPerList] = {};
    };

    void openItems(List& list, const char* const (&names)[ItemsPerList]);
    void closeItems(const List& list);
    bool lock(const List& list);
    void write(const List& list, Item item, std::string_view value);
    template <class Fill>
    void writeBuilt(const List& list, Item item, std::uint32_t size, Fill fill);
    void writeStatement(const List& list, std::string_view statement);
    void touch(const List& list);

    services::StoreHandle store_;
    services::StorePartHandle node_ = 0;
    List receive_;
    List send_;
    services::OwnedBytes record_;  // the one being built; kept, since it is built anew for every exchange
};

}  // namespace monitor
