#pragma once

#include <cstddef>
#include <cstdint>

#include "calling_convention.h"

// The exported interface of Z7XFRPCS.
//
// 1. All functions use ZHST_CALL and are called on the emulator's user-interface thread.
// 2. Session, window and setting handles are 32 bits wide. A client is an opaque address; the emulator owns it from
//    newZXFRPCSCLIENT to deleteZXFRPCSCLIENT.
// 3. Texts are 8-bit, zero-terminated, in the PC's ANSI code page, and belong to the caller. Structures are byte-packed
//    where it is said.
// 4. Nothing is thrown. Failures are reported to the user through the emulator's message services.
// 5. While pcsTransferFile or a catalogue call runs, the emulator may enter pcsCancelTransfer, stateChangeProc,
//    EHNTF_STF_Callback, xferCleanup and the two display notifications from its message pump.
struct ZXFRPCSCLIENT;

#pragma pack(push, 1)
// One entry of a catalogue listing, exchanged with the emulator by address.
struct HostCatalogEntry {
    char name[257];           // zero-terminated; for fields a text of several lines
    char description[101];    // zero-terminated
    std::int32_t fileCount;   // in: number of files of a field list; 2 or more: names come qualified ("t1.")
    std::uint32_t status;     // out: the provider's return code, 0 when an entry was delivered
    std::uint32_t flags;      // out: bit 0 is set for an entry of the demonstration catalogue
    std::uint32_t entryKind;  // in: 2 = fields of a file; otherwise libraries, files or members
};
#pragma pack(pop)
static_assert(sizeof(HostCatalogEntry) == 374);
static_assert(offsetof(HostCatalogEntry, name) == 0 && offsetof(HostCatalogEntry, description) == 257);
static_assert(offsetof(HostCatalogEntry, fileCount) == 358 && offsetof(HostCatalogEntry, status) == 362);
static_assert(offsetof(HostCatalogEntry, flags) == 366 && offsetof(HostCatalogEntry, entryKind) == 370);

// Results of the two catalogue exports.
enum CatalogResult : std::uint32_t {
    CatalogEntryDelivered = 0,
    CatalogEnd = 2,
    CatalogFailure = 3,
    CatalogCompleted = 4,  // the host answered 0x5057 instead of data
};

extern "C" {
// Null when there is no memory.
ZHST_EXPORT ZXFRPCSCLIENT* ZHST_CALL newZXFRPCSCLIENT(std::uint32_t session);
ZHST_EXPORT void ZHST_CALL deleteZXFRPCSCLIENT(ZXFRPCSCLIENT* client);
// The client of the session, when it is the current one; else null.
ZHST_EXPORT ZXFRPCSCLIENT* ZHST_CALL getZXFRPCSCLIENT(std::uint32_t session);

// Yield call-back of an IBM-style provider.
ZHST_EXPORT void ZHST_CALL EHNTF_STF_Callback();

// Runs one transfer to its end. direction: 0 = host to PC. settingsFile may be empty or null.
ZHST_EXPORT void ZHST_CALL pcsTransferFile(ZXFRPCSCLIENT* client, const char* settingsFile, std::uint32_t direction,
                                           std::uint32_t showProgress, std::uint32_t ownerWindow);

ZHST_EXPORT std::uint32_t ZHST_CALL pcsGetFirstHostFilename(std::uint32_t session, const char* pattern,
                                                            HostCatalogEntry* entry);
ZHST_EXPORT std::uint32_t ZHST_CALL pcsGetNextHostFilename(std::uint32_t session, HostCatalogEntry* entry);

// True exactly for the session states 74, 75 and 168.
ZHST_EXPORT std::uint32_t ZHST_CALL pcsAreXferCmdsEnabled(ZXFRPCSCLIENT* client, std::uint32_t stateCode);

// `context` is the client: its first two 32-bit words are the flags that these set. Always 1.
ZHST_EXPORT std::uint32_t ZHST_CALL TextDisplayMoreNotification(void* context);
ZHST_EXPORT std::uint32_t ZHST_CALL TextDisplayCloseNotification(void* context);

ZHST_EXPORT void ZHST_CALL pcsCancelTransfer(ZXFRPCSCLIENT* client);

// Setting watch; always 1.
ZHST_EXPORT std::uint32_t ZHST_CALL stateChangeProc(std::uint32_t session, std::uint32_t settingId,
                                                    std::int32_t newValue, std::int32_t oldValue);
ZHST_EXPORT void ZHST_CALL runtimeSettingNotification(std::uint32_t session, std::uint32_t value);

// Session clean-up call-back; its export name in the product is _xferCleanup@4.
ZHST_EXPORT void ZHST_CALL xferCleanup(std::uint32_t session);
}
