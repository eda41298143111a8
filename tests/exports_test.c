/* The library seen from C: nothing but names, addresses and 32-bit numbers. Prints each phase; ends with 1 at the first
   expectation that does not hold. Arguments: the folder of the libraries, a file to write, and "ordinal" when the
   exports are to be found by that. */
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "calling_convention.h"
#include "exports_session.h"
#include "support/dynamic_library.h"

typedef void*(ZHST_CALL* NewClient)(uint32_t session);
typedef void(ZHST_CALL* DeleteClient)(void* client);
typedef void*(ZHST_CALL* GetClient)(uint32_t session);
typedef void(ZHST_CALL* Yield)(void);
typedef void(ZHST_CALL* Transfer)(void* client, const char* settingsFile, uint32_t direction, uint32_t showProgress,
                                  uint32_t ownerWindow);
typedef uint32_t(ZHST_CALL* FirstHostFilename)(uint32_t session, const char* pattern, void* entry);
typedef uint32_t(ZHST_CALL* NextHostFilename)(uint32_t session, void* entry);
typedef uint32_t(ZHST_CALL* CommandsEnabled)(void* client, uint32_t stateCode);
typedef uint32_t(ZHST_CALL* Notification)(void* context);
typedef void(ZHST_CALL* Cancel)(void* client);
typedef uint32_t(ZHST_CALL* StateChange)(uint32_t session, uint32_t settingId, int32_t newValue, int32_t oldValue);
typedef void(ZHST_CALL* RuntimeSetting)(uint32_t session, uint32_t value);
typedef void(ZHST_CALL* Cleanup)(uint32_t session);

static struct {
    NewClient newClient;
    DeleteClient deleteClient;
    GetClient getClient;
    Yield yield;
    Transfer transfer;
    FirstHostFilename first;
    NextHostFilename next;
    CommandsEnabled commandsEnabled;
    Notification more, close;
    Cancel cancel;
    StateChange stateChange;
    RuntimeSetting runtimeSetting;
    Cleanup cleanup;
} exports;

static void phase(const char* name) { printf("-- %s\n", name); }

#define EXPECT(condition)                                                  \
    do {                                                                   \
        if (!(condition)) {                                                \
            printf("%s:%d: not so: %s\n", __FILE__, __LINE__, #condition); \
            exit(1);                                                       \
        }                                                                  \
    } while (0)

/* ISO C has no conversion from an object address to a function address; the bytes are the same. */
static void load(const char* folder, int byOrdinal) {
    struct {
        const char* name;
        void* functionPointer;
    } wanted[] = {
        {"newZXFRPCSCLIENT", &exports.newClient},
        {"deleteZXFRPCSCLIENT", &exports.deleteClient},
        {"getZXFRPCSCLIENT", &exports.getClient},
        {"EHNTF_STF_Callback", &exports.yield},
        {"pcsTransferFile", &exports.transfer},
        {"pcsGetFirstHostFilename", &exports.first},
        {"pcsGetNextHostFilename", &exports.next},
        {"pcsAreXferCmdsEnabled", &exports.commandsEnabled},
        {"TextDisplayMoreNotification", &exports.more},
        {"TextDisplayCloseNotification", &exports.close},
        {"pcsCancelTransfer", &exports.cancel},
        {"stateChangeProc", &exports.stateChange},
        {"runtimeSettingNotification", &exports.runtimeSetting},
        {xferCleanupExportName(), &exports.cleanup},
    };
    char path[2048];
    snprintf(path, sizeof path, "%s/%s", folder, libraryFileName());
    void* const library = openLibrary(path);
    EXPECT(library != NULL);
    for (unsigned i = 0; i < sizeof wanted / sizeof wanted[0]; ++i) {
        void* const address = byOrdinal ? findOrdinal(library, i + 1) : findFunction(library, wanted[i].name);
        if (!address) {
            printf("not exported: %s, %u\n", wanted[i].name, i + 1);
            exit(1);
        }
        memcpy(wanted[i].functionPointer, &address, sizeof address);
    }
}

static void checkEnabledStates(void* client) {
    static const struct {
        uint32_t code, enabled;
    } cases[] = {{0, 0}, {73, 0}, {74, 1}, {75, 1}, {76, 0}, {167, 0}, {168, 1}, {169, 0}, {0x8000004Au, 0}};
    for (size_t i = 0; i < sizeof cases / sizeof cases[0]; ++i) {
        EXPECT((exports.commandsEnabled(client, cases[i].code) != 0) == (cases[i].enabled != 0));
        EXPECT((exports.commandsEnabled(NULL, cases[i].code) != 0) == (cases[i].enabled != 0));
    }
}

static void checkNotifications(void* client) {
    const uint32_t* const flags = client;
    EXPECT(flags[0] == 0 && flags[1] == 0);
    EXPECT(exports.more(client) == 1);
    EXPECT(flags[0] == 1 && flags[1] == 0);
    uint32_t words[3] = {0, 0, 0};
    EXPECT(exports.close(words) == 1);
    EXPECT(words[0] == 0 && words[1] == 1 && words[2] == 0);
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
    EXPECT(file != NULL);
    EXPECT(fread(bytes, 1, sizeof bytes, file) == sizeof expected - 1);
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
    int count = 0;
    uint32_t result = exports.first(session, "*", &entry);
    for (; result == Delivered && count < 100; ++count) {
        EXPECT(entry.name[0] != 0);
        result = exports.next(session, &entry);
    }
    EXPECT(result == End && count > 0);
    EXPECT(entry.behind == 0x5A);
    EXPECT(exports.first(session + 1000, "*", &entry) == Failure);
}

int main(int argc, char** argv) {
    phase("load");
    EXPECT(argc == 3 || (argc == 4 && strcmp(argv[3], "ordinal") == 0));
    load(argv[1], argc == 4);

    phase("create");
    const uint32_t session = openTestSession();
    const uint32_t before = liveBlocks();
    void* const client = exports.newClient(session);
    EXPECT(client != NULL);

    phase("look up");
    EXPECT(exports.getClient(session) == client);
    EXPECT(exports.getClient(session + 1000) == NULL);

    phase("enabled states");
    checkEnabledStates(client);

    phase("notifications");
    checkNotifications(client);
    EXPECT(exports.stateChange(session, 215, 9, 2) == 1);
    EXPECT(exports.stateChange(session + 1000, 215, 9, 2) == 1);
    exports.runtimeSetting(session, 7);
    exports.runtimeSetting(session + 1000, 7);
    exports.yield();

    phase("transfer");
    checkTransfer(client, session, argv[1], argv[2]);

    phase("browse");
    checkBrowsing(session);

    phase("cancel");
    exports.cancel(client);
    exports.cancel(NULL);

    phase("clean up");
    exports.cleanup(session + 1000);
    runSessionCleanup(session);
    EXPECT(exports.getClient(session) == client);

    phase("delete");
    exports.deleteClient(NULL);
    exports.deleteClient(client);
    EXPECT(exports.getClient(session) == NULL);
    EXPECT(liveBlocks() == before);
    runSessionCleanup(session);

    printf("ok\n");
    return 0;
}
