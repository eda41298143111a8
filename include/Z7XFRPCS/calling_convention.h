#ifndef Z7XFRPCS_CALLING_CONVENTION_H
#define Z7XFRPCS_CALLING_CONVENTION_H

#include <stddef.h>

/* What differs from one compiler, language or system to the next stands here and nowhere else; all other headers are
   the same for C11 and later, C++17 and later, in 32 and 64 bits.

   ZHST_CALL     how a function is called: every service, call-back, object operation, export and provider entry is one.
                 On 32-bit Windows the called function removes its arguments from the stack; elsewhere there is one
                 calling convention only.
   ZHST_EXPORT   marks what a library gives away where no definition file says so. On Windows one does, since the names
                 are plain although the functions are ZHST_CALLs.
   ZHST_BEGIN_C, ZHST_END_C   around declarations: in C++ they are C's. */
#if defined(_WIN32)
#define ZHST_CALL __stdcall
#define ZHST_EXPORT
#else
#define ZHST_CALL
#define ZHST_EXPORT __attribute__((visibility("default")))
#endif

#if defined(__cplusplus)
#define ZHST_BEGIN_C extern "C" {
#define ZHST_END_C }
#define ZHST_ASSERT(condition, text) static_assert(condition, text)
#else
#define ZHST_BEGIN_C
#define ZHST_END_C
#define ZHST_ASSERT(condition, text) _Static_assert(condition, text)
#endif

/* Layouts are fixed where addresses have 32 bits; there each is compared with its bytes while compiling. A table of
   operations is compared everywhere: its slots are as wide as an address. */
#define ZHST_CHECK_SIZE(type, size) ZHST_ASSERT(sizeof(void*) != 4 || sizeof(type) == (size), #type ": " #size " bytes")
#define ZHST_CHECK_OFFSET(type, field, offset) \
    ZHST_ASSERT(sizeof(void*) != 4 || offsetof(type, field) == (offset), #type "." #field ": at " #offset)
#define ZHST_CHECK_SLOT(type, operation, slot) \
    ZHST_ASSERT(offsetof(type, operation) == (slot) * sizeof(void*), #type "." #operation ": slot " #slot)

#endif
