#ifndef Z7XFRPCS_TYPES_H
#define Z7XFRPCS_TYPES_H

#include <assert.h>
#include <stddef.h>
#include <stdint.h>

#include "Z7XFRPCS/calling_convention.h"

/* What the emulator's services have in common.

   1. Every handle is 32 bits wide and owned by the emulator; 0 means none. Addresses have the width of the machine.
      A module handle is an address.
   2. Every service, call-back and object operation is a ZHST_CALL.
   3. The link name of a service is its name with the prefix "zhst", so that none can be taken for a function of the
      operating system (which has a LoadModule of its own). Two differ: formatStringSet is zhstFormatStringSet, and
      zhstMessageBox_scroll has the prefix in its name.
   4. Texts are 8-bit, zero-terminated, in the PC's ANSI code page. Lengths are in bytes.
   5. All calls are made on the emulator's user-interface thread. Services that let the emulator process window messages
      (message boxes, PumpMessages, progress dialog command 16) may enter the library's exports again. */

typedef uint32_t ZhstSession;
typedef uint32_t ZhstSettings;
typedef uint32_t ZhstApp;
typedef uint32_t ZhstWindow;
typedef uint32_t ZhstStore;
typedef uint32_t ZhstStorePart; /* a node, list or item of a store */
typedef uint32_t ZhstProgressDialog;
typedef uint32_t ZhstTextDisplay;
typedef uint32_t ZhstTextRow;
typedef uint32_t ZhstConverter;
typedef uint32_t ZhstTextServices;
typedef void* ZhstModule;

/* The memory of a text that the library and the emulator both read and write: an owned, zero-terminated text (null
   counts as empty) and its capacity. Capacity 0: the text grows as needed, through ReallocateObject. Capacity N: the
   text has a block of N + 1 bytes and holds at most N - 1 characters; what would be longer is not stored at all. */
typedef struct ZhstTextRecord {
    char* text;
    uint32_t capacity;
} ZhstTextRecord;
static_assert(sizeof(void*) != 4 || sizeof(ZhstTextRecord) == 8, "two words");
static_assert(offsetof(ZhstTextRecord, text) == 0 && offsetof(ZhstTextRecord, capacity) == sizeof(void*), "in order");

#endif
