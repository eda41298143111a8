#pragma once

#include "Z7XFRPCS/runtime.h"
#include "services/handles.h"

// Memory, libraries and the named store.
namespace services {

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

}  // namespace services
