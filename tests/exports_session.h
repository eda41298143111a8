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
/* The session's next transfer goes from the host, played by a script in the folder of the libraries, to the file. */
void expectTransfer(uint32_t session, const char* binFolder, const char* pcFile);
/* The session's host is the demonstration. */
void expectDemonstration(uint32_t session);
/* Blocks of the emulator's memory that are in use. */
uint32_t liveBlocks(void);

#ifdef __cplusplus
}
#endif

#endif
