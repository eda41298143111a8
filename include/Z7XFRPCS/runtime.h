#ifndef Z7XFRPCS_RUNTIME_H
#define Z7XFRPCS_RUNTIME_H

#include "Z7XFRPCS/types.h"

/* Runtime services: memory, libraries and the named store. */

#ifdef __cplusplus
extern "C" {
#endif

/* Null when there is no memory left. zeroFill 1: the block is filled with zeros. */
void* ZHST_CALL zhstAllocateObject(uint32_t size, uint32_t zeroFill);
void ZHST_CALL zhstFreeObject(void* block);
/* Changes the size of a block of AllocateObject, keeping its contents. Null when it cannot: the old block stays valid.
 */
void* ZHST_CALL zhstReallocateObject(void* block, uint32_t newSize);

/* Where LoadModule looks. */
enum ZhstModuleSearch {
    ZhstSearchIbm = 0, /* IBM's libraries */
    ZhstSearchOwn = 1, /* the emulator's own providers */
};

/* `search` is a ZhstModuleSearch. Returns 0 and fills `module`, or an error number (2 = file not found). */
uint32_t ZHST_CALL zhstLoadModule(const char* fileName, uint32_t search, ZhstModule* module);
void ZHST_CALL zhstFreeModule(ZhstModule module);

/* Returns 0 when there is no store. Open operations leave 0 in `part` when they fail; `parent` is 0 for a node, the
   node for a list, the list for an item; `code` is four characters, the first in the most significant byte; `reserved`
   is 0. */
ZhstStore ZHST_CALL zhstOpenStore(const char* name);
void ZHST_CALL zhstOpenStoreNode(ZhstStore store, ZhstStorePart parent, uint32_t code, uint32_t reserved,
                                 ZhstStorePart* part);
void ZHST_CALL zhstOpenStoreList(ZhstStore store, ZhstStorePart parent, uint32_t code, uint32_t reserved,
                                 ZhstStorePart* part);
void ZHST_CALL zhstOpenStoreItem(ZhstStore store, ZhstStorePart parent, uint32_t code, uint32_t reserved,
                                 ZhstStorePart* part);
void ZHST_CALL zhstCloseStoreNode(ZhstStore store, ZhstStorePart parent, ZhstStorePart part);
void ZHST_CALL zhstCloseStoreList(ZhstStore store, ZhstStorePart parent, ZhstStorePart part);
void ZHST_CALL zhstCloseStoreItem(ZhstStore store, ZhstStorePart parent, ZhstStorePart part);
/* Non-zero when the list may be written now. */
uint32_t ZHST_CALL zhstLockStoreList(ZhstStore store, ZhstStorePart list);
void ZHST_CALL zhstUnlockStoreList(ZhstStore store, ZhstStorePart list);
/* Replaces the item's value by `length` bytes; nothing is kept of `bytes`. */
void ZHST_CALL zhstSetStoreItem(ZhstStore store, ZhstStorePart item, const void* bytes, uint32_t length);

#ifdef __cplusplus
}
#endif

#endif
