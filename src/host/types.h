#pragma once

#include <cstddef>
#include <cstdint>

#include "calling_convention.h"

// What the emulator's services have in common.
//
// 1. Every handle is 32 bits wide and owned by the emulator; 0 means none. Addresses have the width of the machine.
//    A module handle is an address.
// 2. Every service, call-back and object operation uses ZHST_CALL: the called function removes its arguments.
// 3. The link name of a service is its name with the prefix "zhst", so that none can be taken for a function of the
//    operating system (which has a LoadModule of its own). Code calls host::LoadModule and so on. Two differ:
//    formatStringSet is zhstFormatStringSet, and zhstMessageBox_scroll has the prefix in its name.
// 4. Texts are 8-bit, zero-terminated, in the PC's ANSI code page. Lengths are in bytes.
// 5. All calls are made on the emulator's user-interface thread. Services that let the emulator process window messages
//    (message boxes, PumpMessages, progress dialog command 16) may enter the library's exports again.
namespace host {

using SessionHandle = std::uint32_t;
using SettingsHandle = std::uint32_t;
using AppHandle = std::uint32_t;
using WindowHandle = std::uint32_t;
using StoreHandle = std::uint32_t;
using StorePartHandle = std::uint32_t;  // a node, list or item of a store
using ProgressDialogHandle = std::uint32_t;
using TextDisplayHandle = std::uint32_t;
using TextRowHandle = std::uint32_t;
using ConverterHandle = std::uint32_t;
using TextServicesHandle = std::uint32_t;
using ModuleHandle = void*;

// The memory of a text that the library and the emulator both read and write: an owned, zero-terminated text (null
// counts as empty) and its capacity. Capacity 0: the text grows as needed, through ReallocateObject. Capacity N: the
// text has a block of N + 1 bytes and holds at most N - 1 characters; what would be longer is not stored at all.
struct TextRecord {
    char* text = nullptr;
    std::uint32_t capacity = 0;
};
static_assert(sizeof(void*) != 4 || sizeof(TextRecord) == 8);
static_assert(offsetof(TextRecord, text) == 0 && offsetof(TextRecord, capacity) == sizeof(void*));

}  // namespace host
