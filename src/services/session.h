#pragma once

#include "Z7XFRPCS/session.h"
#include "services/handles.h"

// The session's handles, settings, messages and commands.
namespace services {

using MessageInsert = ZhstInsert;
inline MessageInsert insert(const char* text) { return reinterpret_cast<MessageInsert>(text); }
inline MessageInsert insert(std::uint32_t number) { return number; }

using SettingWatch = ZhstSettingWatch;
using CleanupCallback = ZhstCleanup;
using AppCommandArgument = ZhstAppCommandArgument;

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

}  // namespace services
