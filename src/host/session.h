#pragma once

#include "host/types.h"

// Host session services: the session's handles, settings, messages and commands.
namespace host {

// One insert of a message: the address of a text, or a number, as the message's catalogue entry says.
using MessageInsert = std::uintptr_t;
inline MessageInsert insert(const char* text) { return reinterpret_cast<MessageInsert>(text); }
inline MessageInsert insert(std::uint32_t number) { return number; }

// Called with (session, setting id, new value, old value); always returns 1.
using SettingWatch = std::uint32_t(ZHST_CALL*)(SessionHandle, std::uint32_t, std::int32_t, std::int32_t);
using CleanupCallback = void(ZHST_CALL*)(SessionHandle);

// Argument of an application command: type 32 is a text.
struct AppCommandArgument {
    std::uint32_t type;
    const char* text;
};
static_assert(sizeof(void*) != 4 || sizeof(AppCommandArgument) == 8);
static_assert(offsetof(AppCommandArgument, text) == sizeof(void*));

}  // namespace host

extern "C" {
host::SettingsHandle ZHST_CALL zhstGetSessionSettings(host::SessionHandle session);
host::AppHandle ZHST_CALL zhstGetSessionApp(host::SessionHandle session);
host::WindowHandle ZHST_CALL zhstGetSessionWindow(host::SettingsHandle settings);
void ZHST_CALL zhstAttachSession(host::SessionHandle session);

std::int32_t ZHST_CALL zhstGetSetting(host::SettingsHandle settings, std::uint32_t id);
void ZHST_CALL zhstSetSetting(host::SettingsHandle settings, std::uint32_t id, std::int32_t value);
// Fills `buffer` (`size` bytes with the terminator, the text cut to fit); returns 0 when the setting is empty.
std::uint32_t ZHST_CALL zhstGetStringSetting(host::SettingsHandle settings, std::uint32_t id, char* buffer,
                                             std::uint32_t size);
void ZHST_CALL zhstSetStringSetting(host::SettingsHandle settings, std::uint32_t id, const char* text);
void ZHST_CALL zhstWatchSetting(host::SettingsHandle settings, std::uint32_t id, host::SettingWatch watch);
void ZHST_CALL zhstUnwatchSetting(host::SettingsHandle settings, std::uint32_t id, host::SettingWatch watch);
// A null call-back removes the one registered in the slot.
void ZHST_CALL zhstRegisterCleanup(host::SessionHandle session, std::uint32_t slot, host::CleanupCallback callback);

void ZHST_CALL zhstRunAppCommand(host::AppHandle app, std::uint32_t command, std::uint32_t subCode, std::uint32_t mode,
                                 const host::AppCommandArgument* argument);
std::uint32_t ZHST_CALL zhstCheckCommandFailed(host::SettingsHandle settings);
void ZHST_CALL zhstPumpMessages(host::AppHandle app, std::uint32_t one);

// Non-zero when the message is to be shown; id 0 asks for messages in general.
std::uint32_t ZHST_CALL zhstIsMessageEnabled(host::SettingsHandle settings, std::uint32_t id);
// Fills `buffer` (`size` bytes with the terminator) with a text of the catalogue, cut to fit; empty when there is none.
void ZHST_CALL zhstLoadMessageText(host::SessionHandle session, std::uint32_t table, std::uint32_t index, char* buffer,
                                   std::uint32_t size);
std::uint32_t ZHST_CALL zhstMessageId(std::uint32_t table, std::uint32_t index);

// The message boxes return the user's answer when the box is closed. `one` is always 1.
std::int32_t ZHST_CALL zhstShowMessage(host::SessionHandle session, host::WindowHandle owner, std::uint32_t id,
                                       std::uint32_t flags, std::uint32_t one, std::uint32_t helpId);
std::int32_t ZHST_CALL zhstShowMessage1(host::SessionHandle session, host::WindowHandle owner, std::uint32_t id,
                                        std::uint32_t flags, std::uint32_t one, std::uint32_t helpId,
                                        const char* insert1);
std::int32_t ZHST_CALL zhstShowMessage2(host::SessionHandle session, host::WindowHandle owner, std::uint32_t id,
                                        std::uint32_t flags, std::uint32_t one, std::uint32_t helpId,
                                        host::MessageInsert insert1, host::MessageInsert insert2);
std::int32_t ZHST_CALL zhstShowMessage3(host::SessionHandle session, host::WindowHandle owner, std::uint32_t id,
                                        std::uint32_t flags, std::uint32_t one, std::uint32_t helpId,
                                        host::MessageInsert insert1, host::MessageInsert insert2,
                                        host::MessageInsert insert3);
std::int32_t ZHST_CALL zhstShowMessageCode(host::SessionHandle session, host::WindowHandle owner, std::uint32_t id,
                                           std::uint32_t flags, std::uint32_t one, std::uint32_t helpId,
                                           std::uint32_t insert1, const char* insert2, const char* insert3);
std::int32_t ZHST_CALL zhstShowMessageText(host::SessionHandle session, host::WindowHandle owner, std::uint32_t flags,
                                           std::uint32_t one, std::uint32_t helpId, const char* text);
// A long text in a scrolling box; `id` is 0.
std::int32_t ZHST_CALL zhstMessageBox_scroll(host::SessionHandle session, host::WindowHandle owner, std::uint32_t id,
                                             std::uint32_t flags, std::uint32_t one, std::uint32_t helpId,
                                             const char* text);
// Replaces %1 to %count in `text` by the inserts, in place; the text's capacity holds.
void ZHST_CALL zhstFormatStringSet(host::TextRecord* text, const host::TextRecord* const* inserts, std::uint32_t count);

// Fills `table` (`size` bytes) with code table `kind` (1, 5 or 6) of a host code page.
void ZHST_CALL zhstLoadCodeTable(host::SessionHandle session, void* table, std::uint32_t kind,
                                 std::int32_t hostCodePage, std::uint32_t size);
}

namespace host {
inline constexpr auto& GetSessionSettings = zhstGetSessionSettings;
inline constexpr auto& GetSessionApp = zhstGetSessionApp;
inline constexpr auto& GetSessionWindow = zhstGetSessionWindow;
inline constexpr auto& AttachSession = zhstAttachSession;
inline constexpr auto& GetSetting = zhstGetSetting;
inline constexpr auto& SetSetting = zhstSetSetting;
inline constexpr auto& GetStringSetting = zhstGetStringSetting;
inline constexpr auto& SetStringSetting = zhstSetStringSetting;
inline constexpr auto& WatchSetting = zhstWatchSetting;
inline constexpr auto& UnwatchSetting = zhstUnwatchSetting;
inline constexpr auto& RegisterCleanup = zhstRegisterCleanup;
inline constexpr auto& RunAppCommand = zhstRunAppCommand;
inline constexpr auto& CheckCommandFailed = zhstCheckCommandFailed;
inline constexpr auto& PumpMessages = zhstPumpMessages;
inline constexpr auto& IsMessageEnabled = zhstIsMessageEnabled;
inline constexpr auto& LoadMessageText = zhstLoadMessageText;
inline constexpr auto& MessageId = zhstMessageId;
inline constexpr auto& ShowMessage = zhstShowMessage;
inline constexpr auto& ShowMessage1 = zhstShowMessage1;
inline constexpr auto& ShowMessage2 = zhstShowMessage2;
inline constexpr auto& ShowMessage3 = zhstShowMessage3;
inline constexpr auto& ShowMessageCode = zhstShowMessageCode;
inline constexpr auto& ShowMessageText = zhstShowMessageText;
inline constexpr auto& zhstMessageBox_scroll = ::zhstMessageBox_scroll;
inline constexpr auto& formatStringSet = zhstFormatStringSet;
inline constexpr auto& LoadCodeTable = zhstLoadCodeTable;
}  // namespace host
