#ifndef Z7XFRPCS_SESSION_H
#define Z7XFRPCS_SESSION_H

#include "Z7XFRPCS/types.h"

/* Host session services: the session's handles, settings, messages and commands. Setting numbers stand in settings.h,
   message numbers in messages.h. */

ZHST_BEGIN_C

/* One insert of a message: the address of a text, or a number, as the message's catalogue entry says. */
typedef uintptr_t ZhstInsert;

/* What the emulator calls when a watched setting changes, by whomever; always returns 1. It is the export
   stateChangeProc.
   - session: in, the session
   - id: in, number of the setting
   - newValue: in, its value
   - oldValue: in, its value before */
typedef uint32_t(ZHST_CALL* ZhstSettingWatch)(ZhstSession session, uint32_t id, int32_t newValue, int32_t oldValue);

/* What the emulator calls when the session disconnects. It is the export xferCleanup.
   - session: in, the session */
typedef void(ZHST_CALL* ZhstCleanup)(ZhstSession session);

/* The application command that runs a settings file: (app, 67, 24, 3, argument). */
enum ZhstAppCommand {
    ZhstRunSettingsFile = 67,
    ZhstRunSettingsFileSubCode = 24,
    ZhstRunSettingsFileMode = 3,
    ZhstTextArgument = 32,
};

/* Argument of an application command. */
typedef struct ZhstAppCommandArgument {
    uint32_t type; /* ZhstTextArgument */
    const char* text;
} ZhstAppCommandArgument;
ZHST_CHECK_SIZE(ZhstAppCommandArgument, 8);
ZHST_CHECK_OFFSET(ZhstAppCommandArgument, text, 4);

/* The slot in which the library registers its clean-up. */
enum { ZhstTransferCleanupSlot = 104 };

/* Kinds of code tables of a host code page. */
enum ZhstCodeTable {
    ZhstSingleByteTables = 1, /* single bytes, both ways */
    ZhstPairsToHost = 5,      /* pairs of the PC's to the host's */
    ZhstPairsToPc = 6,        /* pairs of the host's to the PC's */
};

/* The settings of a session.
   - session: in, the session
   Result: the handle; it is not looked at.
   When: while a client is made, and at the start of every transfer. */
ZhstSettings ZHST_CALL zhstGetSessionSettings(ZhstSession session);

/* The application, as seen from a session.
   - session: in, the session
   Result: the handle; it is not looked at.
   When: once, while a client is made. */
ZhstApp ZHST_CALL zhstGetSessionApp(ZhstSession session);

/* The main window of a session.
   - settings: in, the settings of the session
   Result: the window.
   When: while a client is made, and at the start of every transfer. */
ZhstWindow ZHST_CALL zhstGetSessionWindow(ZhstSettings settings);

/* Says that a transfer client has attached itself to the session.
   - session: in, the session
   When: once, while a client is made. */
void ZHST_CALL zhstAttachSession(ZhstSession session);

/* The value of a number.
   - settings: in, the settings
   - id: in, number of the setting
   Result: its value; 0 for one that was never set.
   When: all through; the reference of settings says when each is read. */
int32_t ZHST_CALL zhstGetSetting(ZhstSettings settings, uint32_t id);

/* Sets a number, and calls whoever watches it.
   - settings: in, the settings
   - id: in, number of the setting
   - value: in, its value
   When: for the settings that the library writes; the reference of settings says which. */
void ZHST_CALL zhstSetSetting(ZhstSettings settings, uint32_t id, int32_t value);

/* The value of a text.
   - settings: in, the settings
   - id: in, number of the setting
   - buffer: out, the text and its terminator, cut to fit
   - size: in, bytes of `buffer`
   Result: 0 when the setting is empty; `buffer` need not be written then.
   When: as GetSetting. */
uint32_t ZHST_CALL zhstGetStringSetting(ZhstSettings settings, uint32_t id, char* buffer, uint32_t size);

/* Sets a text.
   - settings: in, the settings
   - id: in, number of the setting
   - text: in, its value
   When: LastErrorText behind a failed exchange, JobName, JobUser and JobNumber at the start of a transfer from the
   host. */
void ZHST_CALL zhstSetStringSetting(ZhstSettings settings, uint32_t id, const char* text);

/* Asks for a call whenever a number changes.
   - settings: in, the settings
   - id: in, number of the setting
   - watch: in, what to call, until UnwatchSetting
   When: for the settings 215, 503, 324, 197 and 105, while a client is made. */
void ZHST_CALL zhstWatchSetting(ZhstSettings settings, uint32_t id, ZhstSettingWatch watch);

/* Ends that.
   - settings: in, the settings
   - id: in, number of the setting
   - watch: in, what was to be called
   When: for the same settings, when the client goes. */
void ZHST_CALL zhstUnwatchSetting(ZhstSettings settings, uint32_t id, ZhstSettingWatch watch);

/* Asks for a call when the session disconnects.
   - session: in, the session
   - slot: in, 104; one call-back stands in a slot
   - callback: in, what to call; null removes the one of before
   When: with the call-back at the end of newZXFRPCSCLIENT, with null in deleteZXFRPCSCLIENT. */
void ZHST_CALL zhstRegisterCleanup(ZhstSession session, uint32_t slot, ZhstCleanup callback);

/* Runs an application command. The one that is asked for reads a settings file into the settings; what such a file
   looks like is the emulator's affair.
   - app: in, the application
   - command: in, 67
   - subCode: in, 24
   - mode: in, 3
   - argument: in, the name of the settings file, as pcsTransferFile was given it
   When: first of all in a transfer that was given a settings file. */
void ZHST_CALL zhstRunAppCommand(ZhstApp app, uint32_t command, uint32_t subCode, uint32_t mode,
                                 const ZhstAppCommandArgument* argument);

/* Whether the command before has failed.
   - settings: in, the settings
   Result: non-zero when it has, and the user knows.
   When: behind RunAppCommand.
   Failure: the transfer ends before it begins. */
uint32_t ZHST_CALL zhstCheckCommandFailed(ZhstSettings settings);

/* Processes pending window messages once; exports may be called meanwhile.
   - app: in, the application
   - one: in, 1
   When: while the text display waits for the user, and in a demonstration. */
void ZHST_CALL zhstPumpMessages(ZhstApp app, uint32_t one);

/* Whether the user wants to see a message.
   - settings: in, the settings
   - message: in, number of the message; 0 asks for messages in general
   Result: non-zero when it is to be shown.
   When: in front of every box but the question of replacing and the two that name a record; for 4315 when a transfer is
   cancelled, and nothing is shown then.
   Failure: 0: the box is not shown, all else is the same. */
uint32_t ZHST_CALL zhstIsMessageEnabled(ZhstSettings settings, uint32_t message);

/* A text of the catalogue.
   - session: in, the session
   - table: in, its table
   - index: in, its place there
   - buffer: out, the text and its terminator, cut to fit; empty when there is none
   - size: in, bytes of `buffer`
   When: for inserts, titles and the demonstration. */
void ZHST_CALL zhstLoadMessageText(ZhstSession session, uint32_t table, uint32_t index, char* buffer, uint32_t size);

/* The number of the message that a text of a table makes.
   - table: in, its table
   - index: in, its place there
   Result: the number, for ShowMessage and its like.
   When: in front of a box whose sentence is a text. */
uint32_t ZHST_CALL zhstMessageId(uint32_t table, uint32_t index);

/* A message box; it returns when the user has closed it, and exports may be called meanwhile.
   - session: in, the session
   - owner: in, the window that it belongs to
   - message: in, number of the message
   - flags: in, icon and buttons as in the operating system's message box: 0x30, an exclamation mark and OK
   - one: in, 1
   - help: in, help topic
   Result: the user's answer; it is not looked at.
   When: as the reference of messages says. */
int32_t ZHST_CALL zhstShowMessage(ZhstSession session, ZhstWindow owner, uint32_t message, uint32_t flags, uint32_t one,
                                  uint32_t help);

/* The same with one insert.
   - session: in, the session
   - owner: in, the window that it belongs to
   - message: in, number of the message
   - flags: in, 0x30; 0x28 for the question whether to replace a host file
   - one: in, 1
   - help: in, help topic
   - insert1: in, %1
   Result: the user's answer; behind the question 10 goes on and any other ends the transfer.
   When: as the reference of messages says. */
int32_t ZHST_CALL zhstShowMessage1(ZhstSession session, ZhstWindow owner, uint32_t message, uint32_t flags,
                                   uint32_t one, uint32_t help, const char* insert1);

/* The same with two inserts.
   - session: in, the session
   - owner: in, the window that it belongs to
   - message: in, number of the message
   - flags: in, 0x30
   - one: in, 1
   - help: in, help topic
   - insert1: in, %1
   - insert2: in, %2
   Result: the user's answer; it is not looked at.
   When: for a value that does not fit its host field: record and field, both numbers. */
int32_t ZHST_CALL zhstShowMessage2(ZhstSession session, ZhstWindow owner, uint32_t message, uint32_t flags,
                                   uint32_t one, uint32_t help, ZhstInsert insert1, ZhstInsert insert2);

/* The same with three inserts.
   - session: in, the session
   - owner: in, the window that it belongs to
   - message: in, number of the message
   - flags: in, 0x30
   - one: in, 1
   - help: in, help topic
   - insert1: in, %1
   - insert2: in, %2
   - insert3: in, %3
   Result: the user's answer; it is not looked at.
   When: for 4406 and 4679: a text, a number, a text. */
int32_t ZHST_CALL zhstShowMessage3(ZhstSession session, ZhstWindow owner, uint32_t message, uint32_t flags,
                                   uint32_t one, uint32_t help, ZhstInsert insert1, ZhstInsert insert2,
                                   ZhstInsert insert3);

/* The same with a return code.
   - session: in, the session
   - owner: in, the window that it belongs to
   - message: in, number of the message
   - flags: in, 0x30
   - one: in, 1
   - help: in, help topic
   - insert1: in, %1: the return code
   - insert2: in, %2: its text
   - insert3: in, %3: the host's message
   Result: the user's answer; it is not looked at.
   When: for 4408. */
int32_t ZHST_CALL zhstShowMessageCode(ZhstSession session, ZhstWindow owner, uint32_t message, uint32_t flags,
                                      uint32_t one, uint32_t help, uint32_t insert1, const char* insert2,
                                      const char* insert3);

/* A message box with a ready sentence, in English: the library's own, for what the catalogue has no message for.
   - session: in, the session
   - owner: in, the window that it belongs to
   - flags: in, 0x30
   - one: in, 1
   - help: in, 0: no topic
   - text: in, the sentence
   Result: the user's answer; it is not looked at.
   When: as the reference of messages says. */
int32_t ZHST_CALL zhstShowMessageText(ZhstSession session, ZhstWindow owner, uint32_t flags, uint32_t one,
                                      uint32_t help, const char* text);

/* A long text in a scrolling box.
   - session: in, the session
   - owner: in, the window that it belongs to
   - message: in, 0
   - flags: in, 0x30
   - one: in, 1
   - help: in, 4416
   - text: in, up to 4096 characters
   Result: the user's answer; it is not looked at.
   When: for a host's message behind 0x3000 or 0x3100 in AS/400 mode. */
int32_t ZHST_CALL zhstMessageBox_scroll(ZhstSession session, ZhstWindow owner, uint32_t message, uint32_t flags,
                                        uint32_t one, uint32_t help, const char* text);

/* Replaces %1 to %count in a text by inserts, in place; what would not fit its capacity is not stored at all.
   - text: in, out; the text, of capacity 1500
   - inserts: in, the address of `count` addresses of records, which are only read
   - count: in, 6
   When: for the sentence "File transfer not completed". */
void ZHST_CALL zhstFormatStringSet(ZhstTextRecord* text, const ZhstTextRecord* const* inserts, uint32_t count);

/* Fills a code table between a host code page and the PC's ANSI code page.
   - session: in, the session
   - table: out, the table, zero at first
   - kind: in, a ZhstCodeTable
   - hostCodePage: in, number of the host code page
   - size: in, bytes of `table`: 2824 for kind 1, 66073 for the others
   When: three times, for the kinds 6, 5 and 1, whenever a double-byte host code page is set.
   Failure: a page that is not known leaves the tables zero. */
void ZHST_CALL zhstLoadCodeTable(ZhstSession session, void* table, uint32_t kind, int32_t hostCodePage, uint32_t size);

ZHST_END_C

#endif
