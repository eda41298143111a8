#pragma once

#include <cstdint>

#include "Z7XFRPCS/types.h"

// The emulator's handles under the names that the library uses. Each is 32 bits wide, owned by the emulator, 0 = none;
// a module handle is an address.
namespace services {

using SessionHandle = ZhstSession;
using SettingsHandle = ZhstSettings;
using AppHandle = ZhstApp;
using WindowHandle = ZhstWindow;
using StoreHandle = ZhstStore;
using StorePartHandle = ZhstStorePart;
using ProgressDialogHandle = ZhstProgressDialog;
using TextDisplayHandle = ZhstTextDisplay;
using TextRowHandle = ZhstTextRow;
using ConverterHandle = ZhstConverter;
using TextServicesHandle = ZhstTextServices;
using ModuleHandle = ZhstModule;
using TextRecord = ZhstTextRecord;

}  // namespace services
