#ifndef Z7XFRPCS_EXPORTS_H
#define Z7XFRPCS_EXPORTS_H

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

ZHST_BEGIN_C

/* The transfer client of one session. Its first two 32-bit words are the flags of the two display notifications; all
   else is the library's. */
typedef struct ZXFRPCSCLIENT ZXFRPCSCLIENT;

#pragma pack(push, 1)
/* One entry of a catalogue listing, exchanged with the emulator by address; byte-packed. */
typedef struct HostCatalogEntry {
    char name[257];        /* out: zero-terminated; for fields a text of several lines */
    char description[101]; /* out: zero-terminated */
    int32_t fileCount;     /* in: number of files of a field list; 2 or more: names come qualified ("t1.") */
    uint32_t status;       /* out: the provider's return code, 0 when an entry was delivered */
    uint32_t flags;        /* out: bit 0 is set for an entry of the demonstration catalogue, else nothing is written */
    uint32_t entryKind;    /* in: 2 = fields of a file; otherwise libraries, files or members */
} HostCatalogEntry;
#pragma pack(pop)
ZHST_ASSERT(sizeof(HostCatalogEntry) == 374, "byte-packed");
ZHST_ASSERT(offsetof(HostCatalogEntry, description) == 257, "byte-packed");
ZHST_ASSERT(offsetof(HostCatalogEntry, fileCount) == 358, "byte-packed");
ZHST_ASSERT(offsetof(HostCatalogEntry, status) == 362, "byte-packed");
ZHST_ASSERT(offsetof(HostCatalogEntry, flags) == 366, "byte-packed");
ZHST_ASSERT(offsetof(HostCatalogEntry, entryKind) == 370, "byte-packed");

/* Kind of a listing, set by the caller in entryKind. */
enum { CatalogFieldListing = 2 };

/* Results of the two catalogue exports: number, name, when. */
#define ZHST_CATALOG_RESULTS(X)                                                                          \
    X(0, EntryDelivered, "The entry holds the next of the list.")                                        \
    X(2, End, "There is no further entry; the provider has ended the request with 0x1FFF.")              \
    X(3, Failure,                                                                                        \
      "Cancelled, not started, refused, busy, or no client of the session. The user has been told of a " \
      "refusal and of a start that failed.")                                                             \
    X(4, Completed, "The host answered 0x5057 instead of data.")

enum CatalogResult {
#define ZHST_CATALOG_RESULT(number, name, use) Catalog##name = number,
    ZHST_CATALOG_RESULTS(ZHST_CATALOG_RESULT)
#undef ZHST_CATALOG_RESULT
};

/* Makes the transfer client of a session: reads the session's handles, opens the monitor store, watches five settings
   and registers xferCleanup. No provider is bound yet.
   - session: in, the session. It becomes the current one unless it is already
   Result: the client, the emulator's until deleteZXFRPCSCLIENT; null when there is no memory.
   When: once per session, before anything else. */
ZHST_EXPORT ZXFRPCSCLIENT* ZHST_CALL newZXFRPCSCLIENT(uint32_t session);

/* Ends a client: takes leave of the provider, unwatches, unregisters, frees.
   - client: in, the client; null is ignored
   When: before the session goes; not from inside a call of the client's. */
ZHST_EXPORT void ZHST_CALL deleteZXFRPCSCLIENT(ZXFRPCSCLIENT* client);

/* The client of a session.
   - session: in, the session
   Result: the client, when the session is the current one: that of the last client made for another session than the
   one before; else null.
   When: at any time. */
ZHST_EXPORT ZXFRPCSCLIENT* ZHST_CALL getZXFRPCSCLIENT(uint32_t session);

/* Yield call-back of a provider: the progress dialog of the exchange under way is sent command 16. The library hands it
   to E32TFW.DLL. It serves the client that was made first, as long as that lives.
   When: while a provider waits; nothing happens at other times. */
ZHST_EXPORT void ZHST_CALL EHNTF_STF_Callback(void);

/* Runs one transfer to its end, by the settings of the session. What became of it is told to the user, and stands in
   the settings LastReturnCode and LastErrorText.
   - client: in, the client; null is ignored
   - settingsFile: in, a settings file for the emulator to read first; may be empty or null
   - direction: in, 0 = from the host to the PC, any other = to the host
   - showProgress: in, 1 when progress is to be shown, else 0
   - ownerWindow: in, owner of boxes and dialogs; when it is no window, the setting TransferOwnerWindow, else the
     session's window
   When: not while a transfer of the client runs or its provider is at work: it is turned away then. */
ZHST_EXPORT void ZHST_CALL pcsTransferFile(ZXFRPCSCLIENT* client, const char* settingsFile, uint32_t direction,
                                           uint32_t showProgress, uint32_t ownerWindow);

/* Starts a listing of the host's catalogue and gives its first entry.
   - session: in, the session
   - pattern: in, what is looked for, sent to the host as it is: nothing, "LIB/", "LIB/FILE" or what the host
     understands; null is empty
   - entry: in, out; the kind and count go in, the entry comes out
   Result: a CatalogResult.
   When: not while a transfer runs: the result is 3 then, but in a demonstration. A list that was not read to its end
   may be left for another. */
ZHST_EXPORT uint32_t ZHST_CALL pcsGetFirstHostFilename(uint32_t session, const char* pattern, HostCatalogEntry* entry);

/* Gives the next entry of the listing.
   - session: in, the session
   - entry: in, out; as before, with the same kind and count
   Result: a CatalogResult.
   When: behind pcsGetFirstHostFilename, until the result is not 0. */
ZHST_EXPORT uint32_t ZHST_CALL pcsGetNextHostFilename(uint32_t session, HostCatalogEntry* entry);

/* Whether the emulator's transfer commands are to be offered.
   - client: in, not looked at
   - stateCode: in, the state of the session; what the numbers stand for is the emulator's affair
   Result: 1 for 74, 75 and 168, else 0.
   When: at any time. */
ZHST_EXPORT uint32_t ZHST_CALL pcsAreXferCmdsEnabled(ZXFRPCSCLIENT* client, uint32_t stateCode);

/* The user asks a text display for the next page.
   - context: in, the context that TextDisplayCreate was given: the client, whose first word becomes 1
   Result: always 1.
   When: from inside PumpMessages. */
ZHST_EXPORT uint32_t ZHST_CALL TextDisplayMoreNotification(void* context);

/* The user closes a text display.
   - context: in, the context that TextDisplayCreate was given: the client, whose second word becomes 1
   Result: always 1.
   When: from inside PumpMessages. */
ZHST_EXPORT uint32_t ZHST_CALL TextDisplayCloseNotification(void* context);

/* Asks the running transfer to end. It does so at its next step; what was written or sent until then stays.
   - client: in, the client; null is ignored
   When: from inside a message pump of the transfer. A cancel before the transfer is active is forgotten. */
ZHST_EXPORT void ZHST_CALL pcsCancelTransfer(ZXFRPCSCLIENT* client);

/* The settings that are watched, in the order in which they are registered: name, what a new value does. */
#define ZHST_WATCHED_SETTINGS(X)                                                                                \
    X(TransportType,                                                                                            \
      "While ConnectionChanging is set the value is kept. Otherwise a session with a provider lets it go; the " \
      "next exchange binds by the new value.")                                                                  \
    X(RouterKind, "The same.")                                                                                  \
    X(ConnectionChanging,                                                                                       \
      "Not 0: a change of several settings begins. 0: it ends, and a session with a provider lets it go "       \
      "when a value that was kept is another than the one in use; a value of 0 counts as not kept.")            \
    X(ConvertToOem, "Holds from the next text on.")                                                             \
    X(HostCodePage, "Holds from the next text on; the code tables of a double-byte page are loaded at once.")

/* Setting watch, registered for the settings of the list above. While the provider is at work it is let go behind that
   call, and a transfer whose request it takes with it ends with a message.
   - session: in, the session
   - settingNumber: in, number of the setting
   - newValue: in, its value; nothing happens when it is the old one
   - oldValue: in, its value before
   Result: always 1.
   When: whenever one of them changes. */
ZHST_EXPORT uint32_t ZHST_CALL stateChangeProc(uint32_t session, uint32_t settingNumber, int32_t newValue,
                                               int32_t oldValue);

/* Takes a value that nothing depends on.
   - session: in, the session
   - value: in, kept and not used
   When: at any time. */
ZHST_EXPORT void ZHST_CALL runtimeSettingNotification(uint32_t session, uint32_t value);

/* Session clean-up call-back; its export name in the product is _xferCleanup@4. Lets the provider go. The client lives
   on, and binds again when it is used.
   - session: in, the session
   When: when the session disconnects. While the provider is at work it waits for that call to return. */
ZHST_EXPORT void ZHST_CALL xferCleanup(uint32_t session);

ZHST_END_C

#endif
