#pragma once

#include "host/types.h"

// Runtime services: memory, libraries and the named store.
extern "C" {
// Null when there is no memory left. zeroFill 1: the block is filled with zeros.
void* ZHST_CALL zhstAllocateObject(std::uint32_t size, std::uint32_t zeroFill);
void ZHST_CALL zhstFreeObject(void* block);
// Changes the size of a block of AllocateObject, keeping its contents. Null when it cannot: the old block stays valid.
void* ZHST_CALL zhstReallocateObject(void* block, std::uint32_t newSize);

// search: 0 for IBM libraries, 1 for the emulator's own providers. Returns 0 and fills `module`, or an error number
// (2 = file not found).
std::uint32_t ZHST_CALL zhstLoadModule(const char* fileName, std::uint32_t search, host::ModuleHandle* module);
void ZHST_CALL zhstFreeModule(host::ModuleHandle module);

// Returns 0 when there is no store. Open operations leave 0 in `part` when they fail; `parent` is 0 for a node, the
// node for a list, the list for an item; `reserved` is 0.
host::StoreHandle ZHST_CALL zhstOpenStore(const char* name);
void ZHST_CALL zhstOpenStoreNode(host::StoreHandle store, host::StorePartHandle parent, std::uint32_t code,
                                 std::uint32_t reserved, host::StorePartHandle* part);
void ZHST_CALL zhstOpenStoreList(host::StoreHandle store, host::StorePartHandle parent, std::uint32_t code,
                                 std::uint32_t reserved, host::StorePartHandle* part);
void ZHST_CALL zhstOpenStoreItem(host::StoreHandle store, host::StorePartHandle parent, std::uint32_t code,
                                 std::uint32_t reserved, host::StorePartHandle* part);
void ZHST_CALL zhstCloseStoreNode(host::StoreHandle store, host::StorePartHandle parent, host::StorePartHandle part);
void ZHST_CALL zhstCloseStoreList(host::StoreHandle store, host::StorePartHandle parent, host::StorePartHandle part);
void ZHST_CALL zhstCloseStoreItem(host::StoreHandle store, host::StorePartHandle parent, host::StorePartHandle part);
// Non-zero when the list may be written now.
std::uint32_t ZHST_CALL zhstLockStoreList(host::StoreHandle store, host::StorePartHandle list);
void ZHST_CALL zhstUnlockStoreList(host::StoreHandle store, host::StorePartHandle list);
// Replaces the item's value by `length` bytes; nothing is kept of `bytes`.
void ZHST_CALL zhstSetStoreItem(host::StoreHandle store, host::StorePartHandle item, const void* bytes,
                                std::uint32_t length);
}

namespace host {
inline constexpr auto& AllocateObject = zhstAllocateObject;
inline constexpr auto& FreeObject = zhstFreeObject;
inline constexpr auto& ReallocateObject = zhstReallocateObject;
inline constexpr auto& LoadModule = zhstLoadModule;
inline constexpr auto& FreeModule = zhstFreeModule;
inline constexpr auto& OpenStore = zhstOpenStore;
inline constexpr auto& OpenStoreNode = zhstOpenStoreNode;
inline constexpr auto& OpenStoreList = zhstOpenStoreList;
inline constexpr auto& OpenStoreItem = zhstOpenStoreItem;
inline constexpr auto& CloseStoreNode = zhstCloseStoreNode;
inline constexpr auto& CloseStoreList = zhstCloseStoreList;
inline constexpr auto& CloseStoreItem = zhstCloseStoreItem;
inline constexpr auto& LockStoreList = zhstLockStoreList;
inline constexpr auto& UnlockStoreList = zhstUnlockStoreList;
inline constexpr auto& SetStoreItem = zhstSetStoreItem;
}  // namespace host
