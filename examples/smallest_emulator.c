/* The smallest emulator: everything that the transfer library asks of one, in its plainest form, and a program that
   receives one host file with it.

   It is built into two things, since the library looks for the services in a library of their own:

     the service library   ZHSTSERV, of everything between here and "The program"; it exports the 64 services
     the program           with EXAMPLE_PROGRAM defined, linked to the service library and to the transfer library

   What an emulator of one's own replaces first is what stands under "Settings", "Messages" and "Text". */

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "Z7XFRPCS/conversion.h"
#include "Z7XFRPCS/dialogs.h"
#include "Z7XFRPCS/exports.h"
#include "Z7XFRPCS/messages.h"
#include "Z7XFRPCS/objects.h"
#include "Z7XFRPCS/runtime.h"
#include "Z7XFRPCS/session.h"
#include "Z7XFRPCS/settings.h"
#include "Z7XFRPCS/text_display.h"

/* Handles are numbers that mean something to the emulator only, and are never 0. There is one of everything here. */
enum { SESSION = 1, SETTINGS = 2, APP = 3, CONVERTER = 4, TEXT_SERVICES = 5, PROGRESS = 6 };

/* A setting of this emulator's own, by a number that is none of the library's: whether the transfer reached its end. */
enum { COMPLETE = 1000 };

#ifndef EXAMPLE_PROGRAM

/* Room for the longest name of a PC file, and for any text of a setting. */
enum { PATH_SIZE = 1025 };

/* --- Memory: the library allocates nothing by itself ---------------------------------------------------------- */

void* ZHST_CALL zhstAllocateObject(uint32_t size, uint32_t zeroFill) {
    return zeroFill ? calloc(1, size) : malloc(size);
}

void ZHST_CALL zhstFreeObject(void* block) { free(block); }

void* ZHST_CALL zhstReallocateObject(void* block, uint32_t newSize) { return realloc(block, newSize); }

/* --- Libraries: the providers, by the names under which the library knows them -------------------------------- */

/* They are asked for by their bare file names and stand in the current folder here. Before each, the library asks the
   path services below whether there is such a file: both have to look in the same place. No libraries of IBM's are
   installed, so that `search` makes no difference. */
#if defined(_WIN32)
#include <windows.h>

uint32_t ZHST_CALL zhstLoadModule(const char* fileName, uint32_t search, ZhstModule* module) {
    (void)search;
    *module = (ZhstModule)LoadLibraryA(fileName);
    return *module ? 0 : GetLastError();
}

void ZHST_CALL zhstFreeModule(ZhstModule module) { FreeLibrary((HMODULE)module); }
#else
#include <dlfcn.h>

uint32_t ZHST_CALL zhstLoadModule(const char* fileName, uint32_t search, ZhstModule* module) {
    char path[PATH_SIZE];
    (void)search;
    snprintf(path, sizeof path, "./%s", fileName);
    *module = dlopen(path, RTLD_NOW);
    return *module ? 0 : 2;
}

void ZHST_CALL zhstFreeModule(ZhstModule module) { dlclose(module); }
#endif

/* --- Settings: numbers and texts by the numbers of settings.h -------------------------------------------------- */

enum { SETTING_COUNT = 1024 };
static int32_t numbers[SETTING_COUNT];
static char texts[SETTING_COUNT][PATH_SIZE];

int32_t ZHST_CALL zhstGetSetting(ZhstSettings settings, uint32_t id) {
    (void)settings;
    return id < SETTING_COUNT ? numbers[id] : 0;
}

void ZHST_CALL zhstSetSetting(ZhstSettings settings, uint32_t id, int32_t value) {
    (void)settings;
    if (id < SETTING_COUNT) numbers[id] = value;
}

uint32_t ZHST_CALL zhstGetStringSetting(ZhstSettings settings, uint32_t id, char* buffer, uint32_t size) {
    (void)settings;
    if (size > 0) snprintf(buffer, size, "%s", id < SETTING_COUNT ? texts[id] : "");
    return id < SETTING_COUNT && texts[id][0] != 0;
}

void ZHST_CALL zhstSetStringSetting(ZhstSettings settings, uint32_t id, const char* text) {
    (void)settings;
    if (id < SETTING_COUNT) snprintf(texts[id], PATH_SIZE, "%s", text);
}

/* A watch tells the library that somebody changed a setting during a transfer. Nobody does so here. */
void ZHST_CALL zhstWatchSetting(ZhstSettings settings, uint32_t id, ZhstSettingWatch watch) {
    (void)settings, (void)id, (void)watch;
}

void ZHST_CALL zhstUnwatchSetting(ZhstSettings settings, uint32_t id, ZhstSettingWatch watch) {
    (void)settings, (void)id, (void)watch;
}

/* --- The session ---------------------------------------------------------------------------------------------- */

ZhstSettings ZHST_CALL zhstGetSessionSettings(ZhstSession session) {
    (void)session;
    return SETTINGS;
}

ZhstApp ZHST_CALL zhstGetSessionApp(ZhstSession session) {
    (void)session;
    return APP;
}

/* There is no window. */
ZhstWindow ZHST_CALL zhstGetSessionWindow(ZhstSettings settings) {
    (void)settings;
    return 0;
}

/* For emulators that keep a count of who uses a session. */
void ZHST_CALL zhstAttachSession(ZhstSession session) { (void)session; }

/* What is registered here is called when the session is disconnected from its host. This one never is: it ends with the
   program, and deleting the client cleans up as well. */
void ZHST_CALL zhstRegisterCleanup(ZhstSession session, uint32_t slot, ZhstCleanup callback) {
    (void)session, (void)slot, (void)callback;
}

/* Runs a settings file before a transfer, when the program names one. It does not. */
void ZHST_CALL zhstRunAppCommand(ZhstApp app, uint32_t command, uint32_t subCode, uint32_t mode,
                                 const ZhstAppCommandArgument* argument) {
    (void)app, (void)command, (void)subCode, (void)mode, (void)argument;
}

uint32_t ZHST_CALL zhstCheckCommandFailed(ZhstSettings settings) {
    (void)settings;
    return 0;
}

/* Where there are no windows, no messages wait for them. */
void ZHST_CALL zhstPumpMessages(ZhstApp app, uint32_t one) { (void)app, (void)one; }

/* --- Messages: to the standard error, with the names of messages.h instead of sentences ------------------------ */

enum { ANSWER_OK = 1 };

typedef struct Message {
    uint32_t number;
    const char* name;
    const char* inserts; /* a letter for each: t = the address of a text, n = a number */
} Message;

static const Message messages[] = {
#define MESSAGE(number, name, inserts, ...) {number, #name, inserts},
    ZHST_MESSAGES(MESSAGE)
#undef MESSAGE
};

static int32_t show(uint32_t number, const ZhstInsert* inserts) {
    static const Message unknown = {0, "", ""};
    const Message* message = &unknown;
    size_t i;
    for (i = 0; i < sizeof messages / sizeof messages[0]; ++i)
        if (messages[i].number == number) message = &messages[i];
    fprintf(stderr, "%u %s", (unsigned)number, message->name);
    for (i = 0; message->inserts[i] != 0; ++i) {
        if (message->inserts[i] == 't') fprintf(stderr, " \"%s\"", (const char*)inserts[i]);
        if (message->inserts[i] == 'n') fprintf(stderr, " %u", (unsigned)inserts[i]);
    }
    fprintf(stderr, "\n");
    return ANSWER_OK;
}

uint32_t ZHST_CALL zhstIsMessageEnabled(ZhstSettings settings, uint32_t message) {
    (void)settings, (void)message;
    return 1;
}

int32_t ZHST_CALL zhstShowMessage(ZhstSession session, ZhstWindow owner, uint32_t message, uint32_t flags, uint32_t one,
                                  uint32_t help) {
    (void)session, (void)owner, (void)flags, (void)one, (void)help;
    return show(message, NULL);
}

int32_t ZHST_CALL zhstShowMessage1(ZhstSession session, ZhstWindow owner, uint32_t message, uint32_t flags,
                                   uint32_t one, uint32_t help, const char* insert1) {
    const ZhstInsert inserts[] = {(ZhstInsert)insert1};
    (void)session, (void)owner, (void)flags, (void)one, (void)help;
    return show(message, inserts);
}

int32_t ZHST_CALL zhstShowMessage2(ZhstSession session, ZhstWindow owner, uint32_t message, uint32_t flags,
                                   uint32_t one, uint32_t help, ZhstInsert insert1, ZhstInsert insert2) {
    const ZhstInsert inserts[] = {insert1, insert2};
    (void)session, (void)owner, (void)flags, (void)one, (void)help;
    return show(message, inserts);
}

int32_t ZHST_CALL zhstShowMessage3(ZhstSession session, ZhstWindow owner, uint32_t message, uint32_t flags,
                                   uint32_t one, uint32_t help, ZhstInsert insert1, ZhstInsert insert2,
                                   ZhstInsert insert3) {
    const ZhstInsert inserts[] = {insert1, insert2, insert3};
    (void)session, (void)owner, (void)flags, (void)one, (void)help;
    return show(message, inserts);
}

int32_t ZHST_CALL zhstShowMessageCode(ZhstSession session, ZhstWindow owner, uint32_t message, uint32_t flags,
                                      uint32_t one, uint32_t help, uint32_t insert1, const char* insert2,
                                      const char* insert3) {
    const ZhstInsert inserts[] = {insert1, (ZhstInsert)insert2, (ZhstInsert)insert3};
    (void)session, (void)owner, (void)flags, (void)one, (void)help;
    return show(message, inserts);
}

int32_t ZHST_CALL zhstShowMessageText(ZhstSession session, ZhstWindow owner, uint32_t flags, uint32_t one,
                                      uint32_t help, const char* text) {
    (void)session, (void)owner, (void)flags, (void)one, (void)help;
    fprintf(stderr, "%s\n", text);
    return ANSWER_OK;
}

int32_t ZHST_CALL zhstMessageBox_scroll(ZhstSession session, ZhstWindow owner, uint32_t message, uint32_t flags,
                                        uint32_t one, uint32_t help, const char* text) {
    (void)session, (void)owner, (void)message, (void)flags, (void)one, (void)help;
    fprintf(stderr, "%s\n", text);
    return ANSWER_OK;
}

/* The texts of the catalogue, which become part of a message, are told by their place in it. */
void ZHST_CALL zhstLoadMessageText(ZhstSession session, uint32_t table, uint32_t index, char* buffer, uint32_t size) {
    (void)session;
    snprintf(buffer, size, "text %u of table %u", (unsigned)index, (unsigned)table);
}

uint32_t ZHST_CALL zhstMessageId(uint32_t table, uint32_t index) { return table * 10000 + index; }

/* Puts inserts where a text of the catalogue has %1 and %2. Those above have none. */
void ZHST_CALL zhstFormatStringSet(ZhstTextRecord* text, const ZhstTextRecord* const* inserts, uint32_t count) {
    (void)text, (void)inserts, (void)count;
}

/* --- Text: between EBCDIC and the PC's characters -------------------------------------------------------------- */

ZhstConverter ZHST_CALL zhstGetEmulatorConverter(ZhstSession session) {
    (void)session;
    return CONVERTER;
}

ZhstTextServices ZHST_CALL zhstGetTextServices(ZhstSession session) {
    (void)session;
    return TEXT_SERVICES;
}

/* What every EBCDIC code page has at the same place: host and PC characters in the same order. */
static const unsigned char hostCharacters[] =
    "\x40\x4B\x4C\x4D\x4E\x50\x5C\x5D\x5E\x60\x61\x6B\x6C\x6D\x6E\x6F\x7A\x7D\x7E\x7F"
    "\x81\x82\x83\x84\x85\x86\x87\x88\x89\x91\x92\x93\x94\x95\x96\x97\x98\x99\xA2\xA3\xA4\xA5\xA6\xA7\xA8\xA9"
    "\xC1\xC2\xC3\xC4\xC5\xC6\xC7\xC8\xC9\xD1\xD2\xD3\xD4\xD5\xD6\xD7\xD8\xD9\xE2\xE3\xE4\xE5\xE6\xE7\xE8\xE9"
    "\xF0\xF1\xF2\xF3\xF4\xF5\xF6\xF7\xF8\xF9";
static const unsigned char pcCharacters[] =
    " .<(+&*);-/,%_>?:'=\""
    "abcdefghijklmnopqrstuvwxyz"
    "ABCDEFGHIJKLMNOPQRSTUVWXYZ"
    "0123456789";

uint32_t ZHST_CALL zhstConvertHostText(ZhstConverter converter, uint32_t direction, uint32_t length, void* buffer) {
    const unsigned char* const from = direction == ZhstHostToPc ? hostCharacters : pcCharacters;
    const unsigned char* const to = direction == ZhstHostToPc ? pcCharacters : hostCharacters;
    const unsigned char substitute = direction == ZhstHostToPc ? '?' : 0x6F;
    unsigned char* const bytes = buffer;
    uint32_t i;
    (void)converter;
    for (i = 0; i < length; ++i) {
        const unsigned char* const found = memchr(from, bytes[i], sizeof pcCharacters - 1);
        bytes[i] = found ? to[found - from] : substitute;
    }
    return 0;
}

/* Called for double-byte code pages only, and none is one here: see codePageIsDoubleByte. */
void ZHST_CALL zhstLoadCodeTable(ZhstSession session, void* table, uint32_t kind, int32_t hostCodePage, uint32_t size) {
    (void)session, (void)table, (void)kind, (void)hostCodePage, (void)size;
}

/* --- Files of the PC: an object of the emulator's, by way of C's own files ------------------------------------- */

/* The library knows the first member only, and calls what stands in its table. */
typedef struct File {
    ZhstFileObject object;
    FILE* stream;
    int failed;
    char name[PATH_SIZE];
} File;

static File* fileOf(ZhstFileObject* object) { return (File*)object; }

static void ZHST_CALL fileClose(ZhstFileObject* object) {
    File* const file = fileOf(object);
    if (file->stream && fclose(file->stream) != 0) file->failed = 1;
    file->stream = NULL;
}

static void ZHST_CALL fileDestroy(ZhstFileObject* object, uint32_t one) {
    (void)one;
    fileClose(object);
    free(fileOf(object));
}

static uint32_t openFile(File* file, const char* mode) {
    file->stream = fopen(file->name, mode);
    file->failed = !file->stream;
    if (file->failed) perror(file->name);
    return !file->failed;
}

static uint32_t ZHST_CALL fileOpenForReading(ZhstFileObject* object) { return openFile(fileOf(object), "rb"); }

/* What is there already is replaced. */
static uint32_t ZHST_CALL fileOpenForWriting(ZhstFileObject* object) { return openFile(fileOf(object), "wb"); }

static int32_t ZHST_CALL fileRead(ZhstFileObject* object, void* buffer, uint32_t maximum) {
    return (int32_t)fread(buffer, 1, maximum, fileOf(object)->stream);
}

static uint32_t ZHST_CALL fileWrite(ZhstFileObject* object, const void* bytes, uint32_t length) {
    File* const file = fileOf(object);
    if (fwrite(bytes, 1, length, file->stream) == length) return 1;
    file->failed = 1;
    return 0;
}

static uint32_t ZHST_CALL fileErrorState(ZhstFileObject* object) {
    const File* const file = fileOf(object);
    if (file->failed) fprintf(stderr, "%s: reading or writing failed\n", file->name);
    return (uint32_t)file->failed;
}

static void ZHST_CALL fileSetName(ZhstFileObject* object, const char* name) {
    snprintf(fileOf(object)->name, PATH_SIZE, "%s", name);
}

static uint32_t ZHST_CALL filePosition(ZhstFileObject* object) { return (uint32_t)ftell(fileOf(object)->stream); }

static void ZHST_CALL fileSetPosition(ZhstFileObject* object, uint32_t position, uint32_t zero) {
    (void)zero;
    fseek(fileOf(object)->stream, (long)position, SEEK_SET);
}

/* Of a file that is open, or of one that is not: a PC file description is asked for its size and then read whole. */
static uint32_t ZHST_CALL fileSize(ZhstFileObject* object) {
    File* const file = fileOf(object);
    const int wasOpen = file->stream != NULL;
    uint32_t position, size;
    if (!wasOpen && !openFile(file, "rb")) return 0;
    position = filePosition(object);
    fseek(file->stream, 0, SEEK_END);
    size = filePosition(object);
    fileSetPosition(object, position, 0);
    if (!wasOpen) fileClose(object);
    return size;
}

static void* ZHST_CALL fileReadWhole(ZhstFileObject* object) {
    const uint32_t size = fileSize(object);
    void* const block = zhstAllocateObject(size, 0);
    File* const file = fileOf(object);
    if (block && openFile(file, "rb") && fread(block, 1, size, file->stream) != size) file->failed = 1;
    fileClose(object);
    return block;
}

static void ZHST_CALL fileOpenedName(ZhstFileObject* object, char* buffer) { strcpy(buffer, fileOf(object)->name); }

/* Type flag, open flags, existing-file action and option say how an emulator of many settings opens a file. */
static void ZHST_CALL fileSetNothing(ZhstFileObject* object, uint32_t value) { (void)object, (void)value; }

static const ZhstFileOperations fileOperations = {
    .destroy = fileDestroy,
    .openForReading = fileOpenForReading,
    .openForWriting = fileOpenForWriting,
    .read = fileRead,
    .write = fileWrite,
    .close = fileClose,
    .errorState = fileErrorState,
    .setName = fileSetName,
    .setTypeFlag = fileSetNothing,
    .setOpenFlags = fileSetNothing,
    .setExistingAction = fileSetNothing,
    .setOption = fileSetNothing,
    .size = fileSize,
    .readWhole = fileReadWhole,
    .openedName = fileOpenedName,
    .setPosition = fileSetPosition,
    .position = filePosition,
    .prepareNew = fileSetNothing,
};

ZhstFileObject* ZHST_CALL zhstCreateFileObject(ZhstSession session) {
    File* const file = calloc(1, sizeof(File));
    (void)session;
    if (!file) return NULL;
    file->object.operations = &fileOperations;
    return &file->object;
}

/* --- Names of files, and which code pages are double-byte: two objects of the session -------------------------- */

static const char* behindFolder(const char* name) {
    const char* behind = name;
    for (; *name != 0; ++name)
        if (*name == '/' || *name == '\\' || *name == ':') behind = name + 1;
    return behind;
}

static uint32_t ZHST_CALL pathFileExists(ZhstPathServices* services, const char* name, uint32_t one) {
    FILE* const stream = fopen(name, "rb");
    (void)services, (void)one;
    if (stream) fclose(stream);
    return stream != NULL;
}

static void ZHST_CALL pathBaseName(ZhstPathServices* services, const char* name, char* buffer) {
    char* point;
    (void)services;
    strcpy(buffer, behindFolder(name));
    point = strrchr(buffer, '.');
    if (point) *point = 0;
}

static void ZHST_CALL pathDirectoryPart(ZhstPathServices* services, const char* name, char* buffer) {
    const size_t length = (size_t)(behindFolder(name) - name);
    (void)services;
    memcpy(buffer, name, length);
    buffer[length] = 0;
}

/* The setting WorkingDirectory is empty: the files of a transfer stand where the program was started. */
static void ZHST_CALL pathSetCurrentDirectory(ZhstPathServices* services, const char* path) {
    (void)services, (void)path;
}

static const ZhstPathOperations pathOperations = {
    .fileExists = pathFileExists,
    .baseName = pathBaseName,
    .directoryPart = pathDirectoryPart,
    .setCurrentDirectory = pathSetCurrentDirectory,
};

static uint32_t ZHST_CALL codePageIsDoubleByte(ZhstCodePageServices* services, int32_t hostCodePage) {
    (void)services, (void)hostCodePage;
    return 0;
}

static const ZhstCodePageOperations codePageOperations = {.isDoubleByte = codePageIsDoubleByte};

void* ZHST_CALL zhstGetSessionObject(ZhstSession session, uint32_t kind) {
    static ZhstPathServices paths = {&pathOperations};
    static ZhstCodePageServices codePages = {&codePageOperations};
    (void)session;
    switch (kind) {
        case ZhstPathServicesKind:
            return &paths;
        case ZhstCodePageServicesKind:
            return &codePages;
        default:
            return NULL;
    }
}

/* What the user wants to be selected and ordered: nothing, so that whole files are received. Without this entry the
   library would compose no query. */
static void ZHST_CALL getTransferClauses(ZhstSession session, ZhstTextRecord* selectList, ZhstTextRecord* selection,
                                         ZhstTextRecord* orderBy, ZhstTextRecord* groupBy, ZhstTextRecord* having,
                                         ZhstTextRecord* join) {
    (void)session, (void)selectList, (void)selection, (void)orderBy, (void)groupBy, (void)having, (void)join;
}

/* The two other entries convert texts of host code page 43, and may be absent. */
const ZhstSessionServices* ZHST_CALL zhstGetSessionServices(ZhstSession session) {
    static const ZhstSessionServices services = {.getTransferClauses = getTransferClauses};
    (void)session;
    return &services;
}

/* --- Dialogs: none is shown, and the connection is always there ------------------------------------------------ */

ZhstProgressDialog ZHST_CALL zhstProgressDialogCreate(ZhstSession session, uint32_t direction, uint32_t mode,
                                                      uint32_t reserved) {
    (void)session, (void)direction, (void)mode, (void)reserved;
    return PROGRESS;
}

/* The transfer itself has no result. That every record is on its way is told here; that something went wrong, by
   messages and file objects. */
void ZHST_CALL zhstProgressDialogCommand(ZhstProgressDialog dialog, uint32_t command) {
    (void)dialog;
    if (command == ZhstAllDataTransferred) zhstSetSetting(SETTINGS, COMPLETE, 1);
}

void ZHST_CALL zhstProgressDialogDestroy(ZhstProgressDialog dialog) { (void)dialog; }

void ZHST_CALL zhstProgressDialogSetPcName(ZhstProgressDialog dialog, const char* text) { (void)dialog, (void)text; }

void ZHST_CALL zhstProgressDialogSetHostName(ZhstProgressDialog dialog, const char* text) { (void)dialog, (void)text; }

void ZHST_CALL zhstProgressDialogSetTotal(ZhstProgressDialog dialog, uint32_t total, uint32_t unit) {
    (void)dialog, (void)total, (void)unit;
}

void ZHST_CALL zhstProgressDialogHide(ZhstProgressDialog dialog) { (void)dialog; }

void ZHST_CALL zhstProgressDialogShow(ZhstProgressDialog dialog) { (void)dialog; }

uint32_t ZHST_CALL zhstConnectionDialog(ZhstSession session, ZhstModule module, ZhstWindow owner) {
    (void)session, (void)module, (void)owner;
    return 1;
}

/* --- The table on the screen: there is none. A transfer to the display ends with a message then. ---------------- */

ZhstTextDisplay ZHST_CALL zhstTextDisplayCreate(const ZhstTextDisplayParameters* parameters) {
    (void)parameters;
    return 0;
}

/* Never called, since there is no display to call them for. */
void ZHST_CALL zhstTextDisplayDestroy(ZhstTextDisplay display) { (void)display; }

uint32_t ZHST_CALL zhstTextDisplayBegin(ZhstTextDisplay display, int32_t rowsPerPage, uint32_t reserved) {
    (void)display, (void)rowsPerPage, (void)reserved;
    return 0;
}

void ZHST_CALL zhstTextDisplayAddColumn(ZhstTextDisplay display, uint32_t index, const char* title, uint32_t width,
                                        uint32_t alignment) {
    (void)display, (void)index, (void)title, (void)width, (void)alignment;
}

ZhstTextRow ZHST_CALL zhstTextDisplayAddRow(ZhstTextDisplay display, uint32_t reserved) {
    (void)display, (void)reserved;
    return 0;
}

void ZHST_CALL zhstTextDisplaySetCell(ZhstTextDisplay display, const char* text, ZhstTextRow row, uint32_t column) {
    (void)display, (void)text, (void)row, (void)column;
}

void ZHST_CALL zhstTextDisplaySetStatus(ZhstTextDisplay display, const char* text) { (void)display, (void)text; }

void ZHST_CALL zhstTextDisplayEnd(ZhstTextDisplay display) { (void)display; }

/* --- The store, in which a monitor program follows what is transferred: there is none --------------------------- */

ZhstStore ZHST_CALL zhstOpenStore(const char* name) {
    (void)name;
    return 0;
}

/* Never called, since there is no store to call them for; but an emulator without a store has to have them. */
void ZHST_CALL zhstOpenStoreNode(ZhstStore store, ZhstStorePart parent, uint32_t code, uint32_t reserved,
                                 ZhstStorePart* part) {
    (void)store, (void)parent, (void)code, (void)reserved;
    *part = 0;
}

void ZHST_CALL zhstOpenStoreList(ZhstStore store, ZhstStorePart parent, uint32_t code, uint32_t reserved,
                                 ZhstStorePart* part) {
    (void)store, (void)parent, (void)code, (void)reserved;
    *part = 0;
}

void ZHST_CALL zhstOpenStoreItem(ZhstStore store, ZhstStorePart parent, uint32_t code, uint32_t reserved,
                                 ZhstStorePart* part) {
    (void)store, (void)parent, (void)code, (void)reserved;
    *part = 0;
}

void ZHST_CALL zhstCloseStoreNode(ZhstStore store, ZhstStorePart parent, ZhstStorePart part) {
    (void)store, (void)parent, (void)part;
}

void ZHST_CALL zhstCloseStoreList(ZhstStore store, ZhstStorePart parent, ZhstStorePart part) {
    (void)store, (void)parent, (void)part;
}

void ZHST_CALL zhstCloseStoreItem(ZhstStore store, ZhstStorePart parent, ZhstStorePart part) {
    (void)store, (void)parent, (void)part;
}

uint32_t ZHST_CALL zhstLockStoreList(ZhstStore store, ZhstStorePart list) {
    (void)store, (void)list;
    return 0;
}

void ZHST_CALL zhstUnlockStoreList(ZhstStore store, ZhstStorePart list) { (void)store, (void)list; }

void ZHST_CALL zhstSetStoreItem(ZhstStore store, ZhstStorePart item, const void* bytes, uint32_t length) {
    (void)store, (void)item, (void)bytes, (void)length;
}

#else

/* --- The program ---------------------------------------------------------------------------------------------- */

int main(int argc, char** argv) {
    ZXFRPCSCLIENT* client;
    if (argc != 3) {
        fprintf(stderr, "usage: smallest_emulator HOST-FILE PC-FILE\n");
        return 2;
    }
    zhstSetStringSetting(SETTINGS, ZhstSettingHostFileName, argv[1]);
    zhstSetStringSetting(SETTINGS, ZhstSettingPcFileName, argv[2]);
    zhstSetSetting(SETTINGS, ZhstSettingReceiveOutput, ZhstValueToPcFile);
    zhstSetSetting(SETTINGS, ZhstSettingReceiveFileType, ZhstCommaSeparated);
    zhstSetSetting(SETTINGS, ZhstSettingHostCodePage, 37);
    zhstSetSetting(SETTINGS, ZhstSettingExistingFileAction, ZhstValueReplace);
    /* These two choose the provider ZEHNTFW.DLL. */
    zhstSetSetting(SETTINGS, ZhstSettingRouterKind, ZhstValueRouterIbm);
    zhstSetSetting(SETTINGS, ZhstSettingTransportType, 8);

    client = newZXFRPCSCLIENT(SESSION);
    if (!client) return 1;
    pcsTransferFile(client, "", 0, 0, 0);
    deleteZXFRPCSCLIENT(client);
    return zhstGetSetting(SETTINGS, COMPLETE) ? 0 : 1;
}

#endif
