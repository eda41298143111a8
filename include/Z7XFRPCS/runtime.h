#ifndef Z7XFRPCS_RUNTIME_H
#define Z7XFRPCS_RUNTIME_H

#include "Z7XFRPCS/types.h"

/* Runtime services: memory, libraries and the named store. */

/* Where LoadModule looks. */
enum ZhstModuleSearch {
    ZhstSearchIbm = 0, /* libraries of the transfer function's maker: E32TFW.DLL and its router E32APPC.DLL */
    ZhstSearchOwn = 1, /* the emulator's own providers: ZEHNTFW.DLL, ZTFWAPPC.DLL, AS4XFER.DLL */
};

ZHST_BEGIN_C

/* Gives a block of memory.
   - size: in, bytes
   - zeroFill: in, 1 when the block is to be filled with zeros, else 0
   Result: the block, aligned for every type, the library's until FreeObject; null when there is no memory left.
   When: for everything the library keeps.
   Failure: newZXFRPCSCLIENT gives null; a transfer shows message 4001, or what its step says, and ends; a monitor
   record is left out. */
void* ZHST_CALL zhstAllocateObject(uint32_t size, uint32_t zeroFill);

/* Takes a block back.
   - block: in, of AllocateObject, ReallocateObject or FileObject's readWhole; null is not given
   When: all through. */
void ZHST_CALL zhstFreeObject(void* block);

/* Changes the size of a block, keeping its contents. The service library fills texts of capacity 0 with it, too.
   - block: in, a block of AllocateObject, or null for a new one
   - newSize: in, bytes
   Result: the block, which may have moved; null when it cannot, and then the old block stays valid.
   When: texts and records that grow.
   Failure: as AllocateObject. */
void* ZHST_CALL zhstReallocateObject(void* block, uint32_t newSize);

/* Loads a provider library or the router. Its entries are looked up with the operating system's own function.
   - fileName: in, the bare name of the library
   - search: in, a ZhstModuleSearch
   - module: out, the library's handle
   Result: 0, or an error number of the service's choice (2: the file was not found). No number is told from another.
   When: while a provider is bound, behind the question to the path services whether the file exists.
   Failure: message 4266, 4402, 4593 or 4658, and the binding fails. */
uint32_t ZHST_CALL zhstLoadModule(const char* fileName, uint32_t search, ZhstModule* module);

/* Releases a library.
   - module: in, of LoadModule
   When: when the provider is let go, the router first; at once after a binding that failed. */
void ZHST_CALL zhstFreeModule(ZhstModule module);

/* Opens the named store that a monitor of the emulator's reads, or makes it.
   - name: in, "ZHST"
   Result: the store; 0 when there is none. It is never closed.
   When: once, while a client is made.
   Failure: nothing is published; transfers are the same without. */
ZhstStore ZHST_CALL zhstOpenStore(const char* name);

/* Opens a node of a store, or makes it.
   - store: in, the store
   - parent: in, 0
   - code: in, four characters, the first in the most significant byte
   - reserved: in, 0
   - part: out, the node; 0 when it cannot be opened
   When: behind OpenStore.
   Failure: nothing is published. */
void ZHST_CALL zhstOpenStoreNode(ZhstStore store, ZhstStorePart parent, uint32_t code, uint32_t reserved,
                                 ZhstStorePart* part);

/* Opens a list below a node, or makes it.
   - store: in, the store
   - parent: in, the node
   - code: in, four characters, the first in the most significant byte
   - reserved: in, 0
   - part: out, the list; 0 when it cannot be opened
   When: twice, behind OpenStoreNode.
   Failure: nothing of the list is published. */
void ZHST_CALL zhstOpenStoreList(ZhstStore store, ZhstStorePart parent, uint32_t code, uint32_t reserved,
                                 ZhstStorePart* part);

/* Opens an item of a list, or makes it. Two clients may open the same one.
   - store: in, the store
   - parent: in, the list
   - code: in, four characters, the first in the most significant byte
   - reserved: in, 0
   - part: out, the item; 0 when it cannot be opened
   When: nine times for each list, behind OpenStoreList.
   Failure: the item is not published. */
void ZHST_CALL zhstOpenStoreItem(ZhstStore store, ZhstStorePart parent, uint32_t code, uint32_t reserved,
                                 ZhstStorePart* part);

/* Closes a node.
   - store: in, the store
   - parent: in, 0
   - part: in, the node
   When: when the client goes, behind its lists. */
void ZHST_CALL zhstCloseStoreNode(ZhstStore store, ZhstStorePart parent, ZhstStorePart part);

/* Closes a list.
   - store: in, the store
   - parent: in, the node
   - part: in, the list
   When: when the client goes, behind the items. */
void ZHST_CALL zhstCloseStoreList(ZhstStore store, ZhstStorePart parent, ZhstStorePart part);

/* Closes an item.
   - store: in, the store
   - parent: in, the list
   - part: in, the item
   When: when the client goes. */
void ZHST_CALL zhstCloseStoreItem(ZhstStore store, ZhstStorePart parent, ZhstStorePart part);

/* Keeps readers away from the items of a list while one is written.
   - store: in, the store
   - list: in, the list
   Result: non-zero when the list may be written now.
   When: around every write, and once behind every request.
   Failure: what was to be written is left out. */
uint32_t ZHST_CALL zhstLockStoreList(ZhstStore store, ZhstStorePart list);

/* Lets readers in again.
   - store: in, the store
   - list: in, the list
   When: behind every LockStoreList that was granted. */
void ZHST_CALL zhstUnlockStoreList(ZhstStore store, ZhstStorePart list);

/* Replaces the value of an item.
   - store: in, the store
   - item: in, the item
   - bytes: in, the value
   - length: in, bytes of it; 0 is possible
   When: while the item's list is locked, for every exchange, request, field description, PC file description and
   record. */
void ZHST_CALL zhstSetStoreItem(ZhstStore store, ZhstStorePart item, const void* bytes, uint32_t length);

ZHST_END_C

#endif
