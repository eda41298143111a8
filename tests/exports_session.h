#ifndef Z7X_TESTS_EXPORTS_SESSION_H
#define Z7X_TESTS_EXPORTS_SESSION_H

#include <stdint.h>

/* A session of the emulator stand-in, for the program that is written in C. */
#ifdef __cplusplus
extern "C" {
#endif

uint32_t openTestSession(void);
/* Runs the call-back that the library registered for the end of the session. */
void runSessionCleanup(uint32_t session);
/* Blocks of the emulator's memory that are in use. */
uint32_t liveBlocks(void);

#ifdef __cplusplus
}
#endif

#endif
