/* The library seen from C: nothing but names, addresses and 32-bit numbers. Ends with 1 at the first expectation that
   does not hold. Arguments: the folder of the libraries, a file to write, and "ordinal" to find the exports by that. */
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "Z7XFRPCS/calling_convention.h"
#include "exports_session.h"
#include "support/dynamic_library.h"

/* In the order of their ordinals. */
static struct {
    void*(ZHST_CALL* newClient)(uint32_t session);
    void(ZHST_CALL* deleteClient)(void* client);
    void*(ZHST_CALL* getClient)(uint32_t session);
    void(ZHST_CALL* yield)(void);
    void(ZHST_CALL* transfer)(void* client, const char* settingsFile, uint32_t direction, uint32_t showProgress,
                              uint32_t ownerWindow);
    uint32_t(ZHST_CALL* first)(uint32_t session, const char* pattern, void* entry);
    uint32_t(ZHST_CALL* next)(uint32_t session, void* entry);
    uint32_t(ZHST_CALL* commandsEnabled)(void* client, uint32_t stateCode);
    uint32_t(ZHST_CALL* more)(void* context);
    uint32_t(ZHST_CALL* close)(void* context);
    void(ZHST_CALL* cancel)(void* client);
    uint32_t(ZHST_CALL* stateChange)(uint32_t session, uint32_t settingId, int32_t newValue, int32_t oldValue);
    void(ZHST_CALL* runtimeSetting)(uint32_t session, uint32_t value);
    void(ZHST_CALL* cleanup)(uint32_t session);
} exports;

/* The last line that was printed says where it ended, also when it crashed. */
#define EXPECT(condition)                                  \
    do {                                                   \
        fprintf(stderr, "%d: %s\n", __LINE__, #condition); \
        if (!(condition)) exit(1);                         \
    } while (0)

static void load(const char* folder, int byOrdinal) {
    enum { Count = sizeof exports / sizeof exports.newClient };
    const char* names[Count] = {"newZXFRPCSCLIENT",
                                "deleteZXFRPCSCLIENT",
                                "getZXFRPCSCLIENT",
                                "EHNTF_STF_Callback",
                                "pcsTransferFile",
                                "pcsGetFirstHostFilename",
                                "pcsGetNextHostFilename",
                                "pcsAreXferCmdsEnabled",
                                "TextDisplayMoreNotification",
                                "TextDisplayCloseNotification",
                                "pcsCancelTransfer",
                                "stateChangeProc",
                                "runtimeSettingNotification"};
    names[Count - 1] = xferCleanupExportName();
    void* addresses[Count];
    char path[2048];
    snprintf(path, sizeof path, "%s/%s", folder, libraryFileName());
    void* const library = openLibrary(path);
    EXPECT(library != NULL);
    for (unsigned i = 0; i < Count; ++i) {
        fprintf(stderr, "%u %s\n", i + 1, names[i]);
        addresses[i] = byOrdinal ? findOrdinal(library, i + 1) : findFunction(library, names[i]);
        EXPECT(addresses[i] != NULL);
    }
    /* ISO C has no conversion from an object address to a function address; the bytes are the same. */
    memcpy(&exports, addresses, sizeof exports);
}

static void checkTransfer(void* client, uint32_t session, const char* binFolder, const char* pcFile) {
    static const char expected[] =
        "1,\"ACME, INC.\",123.45\r\n"
        "2,\"THE \"\"SHOP\"\"\",-.99\r\n"
        "-999999,LAST,99999.99\r\n";
    remove(pcFile);
    expectTransfer(session, binFolder, pcFile);
    exports.transfer(client, NULL, 0, 0, 0);
    char bytes[200] = "";
    FILE* const file = fopen(pcFile, "rb");
    EXPECT(file != NULL && fread(bytes, 1, sizeof bytes, file) == sizeof expected - 1);
    EXPECT(memcmp(bytes, expected, sizeof expected - 1) == 0);
    fclose(file);
    remove(pcFile);
}

static void checkBrowsing(uint32_t session) {
    enum { Delivered = 0, End = 2, Failure = 3 };
    struct {
        char name[257], description[101], numbers[16]; /* the last of them says what is listed: 0 libraries */
        char behind;
    } entry;
    memset(&entry, 0, sizeof entry);
    entry.behind = 0x5A;
    expectDemonstration(session);
    EXPECT(exports.first(session, "*", &entry) == Delivered && entry.name[0] != 0);
    uint32_t result = Delivered;
    for (int count = 0; result == Delivered && count < 100; ++count) result = exports.next(session, &entry);
    EXPECT(result == End);
    EXPECT(entry.behind == 0x5A);
    EXPECT(exports.first(session + 1000, "*", &entry) == Failure);
}

int main(int argc, char** argv) {
    EXPECT(argc == 3 || (argc == 4 && strcmp(argv[3], "ordinal") == 0));
    load(argv[1], argc == 4);
    const uint32_t session = openTestSession(), stranger = session + 1000, before = liveBlocks();
    uint32_t* const client = exports.newClient(session); /* begins with the two words that the notifications set */
    EXPECT(client != NULL && client[0] == 0 && client[1] == 0);
    EXPECT(exports.getClient(session) == client);
    EXPECT(exports.getClient(stranger) == NULL);
    EXPECT(exports.commandsEnabled(client, 74) != 0);
    EXPECT(exports.commandsEnabled(NULL, 73) == 0);
    EXPECT(exports.more(client) == 1 && client[0] == 1 && client[1] == 0);
    uint32_t words[3] = {0, 0, 0};
    EXPECT(exports.close(words) == 1 && words[0] == 0 && words[1] == 1 && words[2] == 0);
    EXPECT(exports.stateChange(session, 215, 9, 2) == 1);
    exports.runtimeSetting(session, 7);
    exports.yield();
    checkTransfer(client, session, argv[1], argv[2]);
    checkBrowsing(session);
    exports.cancel(client);
    exports.cancel(NULL);
    exports.cleanup(stranger);
    runSessionCleanup(session);
    EXPECT(exports.getClient(session) == client);
    exports.deleteClient(NULL);
    exports.deleteClient(client);
    EXPECT(exports.getClient(session) == NULL);
    EXPECT(liveBlocks() == before);
    runSessionCleanup(session);
    return 0;
}
