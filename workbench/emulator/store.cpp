#include "emulator/store.h"

#include <algorithm>
#include <array>
#include <functional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "Z7XFRPCS/runtime.h"
#include "emulator/emulator.h"
#include "emulator/faults.h"
#include "emulator/journal.h"

// The named store. There is one, with handle 1; a part's handle is its place in `parts`, from 1. Opening the same part
// twice, as two clients do, gives two handles on the same item.

namespace emulator {
namespace {

constexpr ZhstStore TheStore = 1;

enum class PartKind { Closed, Node, List, Item };

// Of a size that places are reckoned with by shifts: nine times a record.
struct alignas(32) Part {
    PartKind kind = PartKind::Closed;
    std::uint32_t code = 0;
    ZhstStorePart parent = 0;
    bool locked = false;        // lists
    StoreItem* item = nullptr;  // items
};

std::vector<Part> parts;
std::unordered_map<std::uint32_t, StoreItem> items;
StoreListener listener;
std::uint32_t lockCount = 0;

Part* find(ZhstStore store, ZhstStorePart handle, PartKind kind) {
    if (store != TheStore || handle == 0 || handle > parts.size()) return nullptr;
    Part& part = parts[handle - 1];
    return part.kind == kind ? &part : nullptr;
}

// A part as the journal shows it: looked up only for a line that is written.
struct CodeOf {
    ZhstStorePart part;
};

void append(std::string& line, CodeOf shown) {
    const bool known = shown.part != 0 && shown.part <= parts.size();
    journalled::append(line, journalled::Code{known ? parts[shown.part - 1].code : 0});
}

std::uint32_t number(std::string_view code) {
    std::uint32_t value = 0;
    for (const char character : code.substr(0, 4)) value = value << 8 | static_cast<unsigned char>(character);
    return value;
}

std::array<char, 4> characters(std::uint32_t code) {
    return {static_cast<char>(code >> 24), static_cast<char>(code >> 16), static_cast<char>(code >> 8),
            static_cast<char>(code)};
}

ZhstStorePart open(ZhstStore store, ZhstStorePart parent, std::uint32_t code, PartKind kind) {
    const bool placed = kind == PartKind::Node   ? store == TheStore && parent == 0
                        : kind == PartKind::List ? find(store, parent, PartKind::Node) != nullptr
                                                 : find(store, parent, PartKind::List) != nullptr;
    if (!placed || code == 0) return 0;
    StoreItem* item = kind == PartKind::Item ? &items[code] : nullptr;
    parts.push_back({kind, code, parent, false, item});
    return static_cast<ZhstStorePart>(parts.size());
}

void openJournalled(const char* name, ZhstStore store, ZhstStorePart parent, std::uint32_t code, std::uint32_t reserved,
                    ZhstStorePart* part, PartKind kind) {
    const ZhstStorePart opened = open(store, parent, code, kind);
    if (part) *part = opened;
    journalled::Call(name, store, CodeOf{parent}, journalled::Code{code}, reserved, CodeOf{opened});
}

// The code stays readable for a journal line that comes too late.
void close(ZhstStore store, ZhstStorePart handle, PartKind kind) {
    Part* part = find(store, handle, kind);
    if (!part) return;
    if (part->locked) --lockCount;
    part->locked = false;
    part->kind = PartKind::Closed;
}

std::uint32_t lock(ZhstStore store, ZhstStorePart handle) {
    Part* list = find(store, handle, PartKind::List);
    if (!list || list->locked || faults().refuseStoreLock) return 0;
    list->locked = true;
    ++lockCount;
    return 1;
}

// A value is taken only while the item's list is locked.
void setItem(ZhstStore store, ZhstStorePart handle, const void* bytes, std::uint32_t length) {
    Part* part = find(store, handle, PartKind::Item);
    if (!part || !parts[part->parent - 1].locked) return;
    std::string& value = part->item->value;
    // Most have the length of the value before, and then their bytes are all there is to do.
    if (value.size() == length)
        std::copy_n(static_cast<const char*>(bytes), length, value.data());
    else
        value.assign(static_cast<const char*>(bytes), length);
    ++part->item->writes;
    if (!listener) return;
    const std::array<char, 4> code = characters(part->code);
    listener({code.data(), code.size()}, part->item->value);
}

}  // namespace

StoreItem storeItem(std::string_view code) {
    const auto found = items.find(number(code));
    return found == items.end() ? StoreItem{} : found->second;
}

StoreListener onStoreWrite(StoreListener newListener) { return std::exchange(listener, std::move(newListener)); }

std::uint32_t lockedLists() { return lockCount; }

void resetStore() {
    parts.clear();
    items.clear();
    listener = nullptr;
    lockCount = 0;
}

}  // namespace emulator

using namespace emulator;
using journalled::Call;

ZhstStore ZHST_CALL zhstOpenStore(const char* name) {
    const bool known = name && std::string_view(name) == "ZHST" && !faults().refuseStore;
    return Call("OpenStore", name).result(known ? TheStore : 0);
}

void ZHST_CALL zhstOpenStoreNode(ZhstStore store, ZhstStorePart parent, std::uint32_t code, std::uint32_t reserved,
                                 ZhstStorePart* part) {
    openJournalled("OpenStoreNode", store, parent, code, reserved, part, PartKind::Node);
}

void ZHST_CALL zhstOpenStoreList(ZhstStore store, ZhstStorePart parent, std::uint32_t code, std::uint32_t reserved,
                                 ZhstStorePart* part) {
    openJournalled("OpenStoreList", store, parent, code, reserved, part, PartKind::List);
}

void ZHST_CALL zhstOpenStoreItem(ZhstStore store, ZhstStorePart parent, std::uint32_t code, std::uint32_t reserved,
                                 ZhstStorePart* part) {
    openJournalled("OpenStoreItem", store, parent, code, reserved, part, PartKind::Item);
}

void ZHST_CALL zhstCloseStoreNode(ZhstStore store, ZhstStorePart parent, ZhstStorePart part) {
    Call("CloseStoreNode", store, CodeOf{parent}, CodeOf{part});
    close(store, part, PartKind::Node);
}

void ZHST_CALL zhstCloseStoreList(ZhstStore store, ZhstStorePart parent, ZhstStorePart part) {
    Call("CloseStoreList", store, CodeOf{parent}, CodeOf{part});
    close(store, part, PartKind::List);
}

void ZHST_CALL zhstCloseStoreItem(ZhstStore store, ZhstStorePart parent, ZhstStorePart part) {
    Call("CloseStoreItem", store, CodeOf{parent}, CodeOf{part});
    close(store, part, PartKind::Item);
}

std::uint32_t ZHST_CALL zhstLockStoreList(ZhstStore store, ZhstStorePart list) {
    return Call("LockStoreList", store, CodeOf{list}).result(lock(store, list));
}

void ZHST_CALL zhstUnlockStoreList(ZhstStore store, ZhstStorePart list) {
    Call("UnlockStoreList", store, CodeOf{list});
    Part* found = find(store, list, PartKind::List);
    if (!found || !found->locked) return;
    found->locked = false;
    --lockCount;
}

void ZHST_CALL zhstSetStoreItem(ZhstStore store, ZhstStorePart item, const void* bytes, std::uint32_t length) {
    Call("SetStoreItem", store, CodeOf{item}, journalled::Bytes{bytes, length}, length);
    setItem(store, item, bytes, length);
}
