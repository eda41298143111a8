#ifndef Z7XFRPCS_SESSION_H
#define Z7XFRPCS_SESSION_H

#include "Z7XFRPCS/types.h"

/* Host session services: the session's handles, settings, messages and commands. Setting numbers stand in settings.h,
   message numbers in messages.h. */

/* One insert of a message: the address of a text, or a number, as the message's catalogue entry says. */
typedef uintptr_t ZhstInsert;

/* Called with (session, setting number, new value, old value); always returns 1. */
typedef uint32_t(ZHST_CALL* ZhstSettingWatch)(ZhstSession, uint32_t, int32_t, int32_t);
typedef void(ZHST_CALL* ZhstCleanup)(ZhstSession);

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
static_assert(sizeof(void*) != 4 || sizeof(ZhstAppCommandArgument) == 8, "two words");
static_assert(offsetof(ZhstAppCommandArgument, text) == sizeof(void*), "the text is the second");

/* The slot in which the library registers its clean-up. */
enum { ZhstTransferCleanupSlot = 104 };

#ifdef __cplusplus
extern "C" {
#endif

ZhstSettings ZHST_CALL zhstGetSessionSettings(ZhstSession session);
ZhstApp ZHST_CALL zhstGetSessionApp(ZhstSession session);
ZhstWindow ZHST_CALL zhstGetSessionWindow(ZhstSettings settings);
void ZHST_CALL zhstAttachSession(ZhstSession session);

int32_t ZHST_CALL zhstGetSetting(ZhstSettings settings, uint32_t id);
void ZHST_CALL zhstSetSetting(ZhstSettings settings, uint32_t id, int32_t value);
/* Fills `buffer` (`size` bytes with the terminator, the text cut to fit); returns 0 when the setting is empty. */
uint32_t ZHST_CALL zhstGetStringSetting(ZhstSettings settings, uint32_t id, char* buffer, uint32_t size);
void ZHST_CALL zhstSetStringSetting(ZhstSettings settings, uint32_t id, const char* text);
void ZHST_CALL zhstWatchSetting(ZhstSettings settings, uint32_t id, ZhstSettingWatch watch);
void ZHST_CALL zhstUnwatchSetting(ZhstSettings settings, uint32_t id, ZhstSettingWatch watch);
/* A null call-back removes the one registered in the slot. */
void ZHST_CALL zhstRegisterCleanup(ZhstSession session, uint32_t slot, ZhstCleanup callback);

void ZHST_CALL zhstRunAppCommand(ZhstApp app, uint32_t command, uint32_t subCode, uint32_t mode,
                                 const ZhstAppCommandArgument* argument);
/* Non-zero when the command before failed and the transfer must not run. */
uint32_t ZHST_CALL zhstCheckCommandFailed(ZhstSettings settings);
/* Processes pending window messages once. */
void ZHST_CALL zhstPumpMessages(ZhstApp app, uint32_t one);

/* Non-zero when the message is to be shown; 0 asks for messages in general. */
uint32_t ZHST_CALL zhstIsMessageEnabled(ZhstSettings settings, uint32_t message);
/* Fills `buffer` (`size` bytes with the terminator) with a text of the catalogue, cut to fit; empty when there is none.
 */
void ZHST_CALL zhstLoadMessageText(ZhstSession session, uint32_t table, uint32_t index, char* buffer, uint32_t size);
/* The number of the message that a text of a table makes. */
uint32_t ZHST_CALL zhstMessageId(uint32_t table, uint32_t index);

/* The message boxes return the user's answer when the box is closed. `one` is always 1. */
int32_t ZHST_CALL zhstShowMessage(ZhstSession session, ZhstWindow owner, uint32_t message, uint32_t flags, uint32_t one,
                                  uint32_t help);
int32_t ZHST_CALL zhstShowMessage1(ZhstSession session, ZhstWindow owner, uint32_t message, uint32_t flags,
                                   uint32_t one, uint32_t help, const char* insert1);
int32_t ZHST_CALL zhstShowMessage2(ZhstSession session, ZhstWindow owner, uint32_t message, uint32_t flags,
                                   uint32_t one, uint32_t help, ZhstInsert insert1, ZhstInsert insert2);
int32_t ZHST_CALL zhstShowMessage3(ZhstSession session, ZhstWindow owner, uint32_t message, uint32_t flags,
                                   uint32_t one, uint32_t help, ZhstInsert insert1, ZhstInsert insert2,
                                   ZhstInsert insert3);
int32_t ZHST_CALL zhstShowMessageCode(ZhstSession session, ZhstWindow owner, uint32_t message, uint32_t flags,
                                      uint32_t one, uint32_t help, uint32_t insert1, const char* insert2,
                                      const char* insert3);
int32_t ZHST_CALL zhstShowMessageText(ZhstSession session, ZhstWindow owner, uint32_t flags, uint32_t one,
                                      uint32_t help, const char* text);
/* A long text in a scrolling box; `message` is 0. */
int32_t ZHST_CALL zhstMessageBox_scroll(ZhstSession session, ZhstWindow owner, uint32_t message, uint32_t flags,
                                        uint32_t one, uint32_t help, const char* text);
/* Replaces %1 to %count in `text` by the inserts, in place; the text's capacity holds. */
void ZHST_CALL zhstFormatStringSet(ZhstTextRecord* text, const ZhstTextRecord* const* inserts, uint32_t count);

/* Kinds of code tables. */
enum ZhstCodeTable {
    ZhstSingleByteTables = 1,
    ZhstPairsToHost = 5,
    ZhstPairsToPc = 6,
};

/* Fills `table` (`size` bytes) with a code table of a host code page. */
void ZHST_CALL zhstLoadCodeTable(ZhstSession session, void* table, uint32_t kind, int32_t hostCodePage, uint32_t size);

#ifdef __cplusplus
}
#endif

#endif
