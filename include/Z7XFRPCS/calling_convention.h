#ifndef Z7XFRPCS_CALLING_CONVENTION_H
#define Z7XFRPCS_CALLING_CONVENTION_H

/* What differs from one compiler or system to the next. Every service, call-back, object operation, export and provider
   entry is a ZHST_CALL: on Windows the called function removes its arguments from the stack; elsewhere there is one
   calling convention only. ZHST_EXPORT marks what a library gives away where no definition file says so. */
#if defined(_WIN32)
#define ZHST_CALL __stdcall
#define ZHST_EXPORT
#else
#define ZHST_CALL
#define ZHST_EXPORT __attribute__((visibility("default")))
#endif

#endif
