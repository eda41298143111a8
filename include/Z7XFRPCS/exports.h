#ifndef Z7XFRPCS_EXPORTS_H
#define Z7XFRPCS_EXPORTS_H

#include <assert.h>
#include <stddef.h>
#include <stdint.h>

#include "Z7XFRPCS/calling_convention.h"

/* The exported interface of Z7XFRPCS.

   1. All functions use ZHST_CALL and are called on the emulator's user-interface thread.
   2. Session, window and setting handles are 32 bits wide. A client is an opaque address; the emulator owns it from
      newZXFRPCSCLIENT to deleteZXFRPCSCLIENT.
   3. Texts are 8-bit, zero-terminated, in the PC's ANSI code page, and belong to the caller. Structures are byte-packed
      where it is said.
   4. Nothing is thrown. Failures are reported to the user through the emulator's message services.
   5. While pcsTransferFile or a catalogue call runs, the emulator may enter pcsCancelTransfer, stateChangeProc,
      EHNTF_STF_Callback, xferCleanup and the two display notifications from its message pump. */

typedef struct ZXFRPCSCLIENT ZXFRPCSCLIENT;

#pragma pack(push, 1)
/* One entry of a catalogue listing, exchanged with the emulator by address; byte-packed. */
typedef struct HostCatalogEntry {
    char name[257];        /* zero-terminated; for fields a text of several lines */
    char description[101]; /* zero-terminated */
    int32_t fileCount;     /* in: number of files of a field list; 2 or more: names come qualified ("t1.") */
    uint32_t status;       /* out: the provider's return code, 0 when an entry was delivered */
    uint32_t flags;        /* out: bit 0 is set for an entry of the demonstration catalogue */
    uint32_t entryKind;    /* in: 2 = fields of a file; otherwise libraries, files or members */
} HostCatalogEntry;
#pragma pack(pop)
static_assert(sizeof(HostCatalogEntry) == 374, "byte-packed");
static_assert(offsetof(HostCatalogEntry, name) == 0 && offsetof(HostCatalogEntry, description) == 257, "texts");
static_assert(offsetof(HostCatalogEntry, fileCount) == 358 && offsetof(HostCatalogEntry, status) == 362, "numbers");
static_assert(offsetof(HostCatalogEntry, flags) == 366 && offsetof(HostCatalogEntry, entryKind) == 370, "numbers");

/* Kind of a listing, set by the caller in entryKind. */
enum { CatalogFieldListing = 2 };

/* Results of the two catalogue exports. */
enum CatalogResult {
    CatalogEntryDelivered = 0,
    CatalogEnd = 2,
    CatalogFailure = 3,
    CatalogCompleted = 4, /* the host answered 0x5057 instead of data */
};

#ifdef __cplusplus
extern "C" {
#endif

/* Null when there is no memory. */
ZHST_EXPORT ZXFRPCSCLIENT* ZHST_CALL newZXFRPCSCLIENT(uint32_t session);
ZHST_EXPORT void ZHST_CALL deleteZXFRPCSCLIENT(ZXFRPCSCLIENT* client);
/* The client of the session, when it is the current one; else null. */
ZHST_EXPORT ZXFRPCSCLIENT* ZHST_CALL getZXFRPCSCLIENT(uint32_t session);

/* Yield call-back of an IBM-style provider. */
ZHST_EXPORT void ZHST_CALL EHNTF_STF_Callback(void);

/* Runs one transfer to its end. direction: 0 = host to PC. settingsFile may be empty or null. */
ZHST_EXPORT void ZHST_CALL pcsTransferFile(ZXFRPCSCLIENT* client, const char* settingsFile, uint32_t direction,
                                           uint32_t showProgress, uint32_t ownerWindow);

/* Both return a CatalogResult. */
ZHST_EXPORT uint32_t ZHST_CALL pcsGetFirstHostFilename(uint32_t session, const char* pattern, HostCatalogEntry* entry);
ZHST_EXPORT uint32_t ZHST_CALL pcsGetNextHostFilename(uint32_t session, HostCatalogEntry* entry);

/* True exactly for the session states 74, 75 and 168. */
ZHST_EXPORT uint32_t ZHST_CALL pcsAreXferCmdsEnabled(ZXFRPCSCLIENT* client, uint32_t stateCode);

/* `context` is the client: its first two 32-bit words are the flags that these set. Always 1. */
ZHST_EXPORT uint32_t ZHST_CALL TextDisplayMoreNotification(void* context);
ZHST_EXPORT uint32_t ZHST_CALL TextDisplayCloseNotification(void* context);

ZHST_EXPORT void ZHST_CALL pcsCancelTransfer(ZXFRPCSCLIENT* client);

/* Setting watch; always 1. */
ZHST_EXPORT uint32_t ZHST_CALL stateChangeProc(uint32_t session, uint32_t settingNumber, int32_t newValue,
                                               int32_t oldValue);
ZHST_EXPORT void ZHST_CALL runtimeSettingNotification(uint32_t session, uint32_t value);

/* Session clean-up call-back; its export name in the product is _xferCleanup@4. */
ZHST_EXPORT void ZHST_CALL xferCleanup(uint32_t session);

#ifdef __cplusplus
}
#endif

#endif
