/* The library seen from C: nothing but names, addresses and 32-bit numbers. Prints each phase; ends with 1 at the first
   expectation that does not hold. */
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
static void look(void* library, const char* name, void* functionPointer) {
    void* const address = findFunction(library, name);
    if (!address) {
        printf("not exported: %s\n", name);
        exit(1);
    }
    memcpy(functionPointer, &address, sizeof address);
}

static void load(const char* folder) {
    char path[2048];
    snprintf(path, sizeof path, "%s/%s", folder, libraryFileName());
    void* const library = openLibrary(path);
    EXPECT(library != NULL);
    look(library, "newZXFRPCSCLIENT", &exports.newClient);
    look(library, "deleteZXFRPCSCLIENT", &exports.deleteClient);
    look(library, "getZXFRPCSCLIENT", &exports.getClient);
    look(library, "EHNTF_STF_Callback", &exports.yield);
    look(library, "pcsAreXferCmdsEnabled", &exports.commandsEnabled);
    look(library, "TextDisplayMoreNotification", &exports.more);
    look(library, "TextDisplayCloseNotification", &exports.close);
    look(library, "pcsCancelTransfer", &exports.cancel);
    look(library, "stateChangeProc", &exports.stateChange);
    look(library, "runtimeSettingNotification", &exports.runtimeSetting);
    look(library, xferCleanupExportName(), &exports.cleanup);
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

int main(int argc, char** argv) {
    phase("load");
    EXPECT(argc == 2);
    load(argv[1]);

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
