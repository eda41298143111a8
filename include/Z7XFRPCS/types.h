#ifndef Z7XFRPCS_TYPES_H
#define Z7XFRPCS_TYPES_H

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
      (message boxes, PumpMessages, progress dialog command 16) may enter the library's exports again.
   6. What a service is handed by address belongs to the library and is not kept behind the call, unless it is said
      otherwise. Nothing is thrown across the border, in either direction.

   In the comments on functions a parameter is "in" (read by the called side), "out" (written by it) or "in, out". */

typedef uint32_t ZhstSession;        /* one host session; the emulator gives it to newZXFRPCSCLIENT */
typedef uint32_t ZhstSettings;       /* the settings of a session */
typedef uint32_t ZhstApp;            /* the emulator's application, as seen from a session */
typedef uint32_t ZhstWindow;         /* a window of the operating system */
typedef uint32_t ZhstStore;          /* a named store */
typedef uint32_t ZhstStorePart;      /* a node, list or item of a store */
typedef uint32_t ZhstProgressDialog; /* a progress dialog */
typedef uint32_t ZhstTextDisplay;    /* a text display */
typedef uint32_t ZhstTextRow;        /* a row of a text display */
typedef uint32_t ZhstConverter;      /* what ConvertHostText converts with */
typedef uint32_t ZhstTextServices;   /* what the entries 35 and 36 of the session services convert with */
typedef void* ZhstModule;            /* a loaded library: what the operating system looks entries up in */

/* The memory of a text that the library and the emulator both read and write: an owned, zero-terminated text (null
   counts as empty) and its capacity. Capacity 0: the text grows as needed, through ReallocateObject. Capacity N: the
   text has a block of N + 1 bytes and holds at most N - 1 characters; what would be longer is not stored at all. */
typedef struct ZhstTextRecord {
    char* text;
    uint32_t capacity;
} ZhstTextRecord;
ZHST_CHECK_SIZE(ZhstTextRecord, 8);
ZHST_CHECK_OFFSET(ZhstTextRecord, capacity, 4);

#endif
