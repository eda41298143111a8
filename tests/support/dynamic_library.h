#ifndef Z7X_TESTS_DYNAMIC_LIBRARY_H
#define Z7X_TESTS_DYNAMIC_LIBRARY_H

/* Libraries loaded at run time, for C and C++. A library stays loaded until the process ends. */
#ifdef __cplusplus
extern "C" {
#endif

/* Null, with a line on standard error, when it cannot be loaded. */
void* openLibrary(const char* path);
/* Null when the library exports no such function. */
void* findFunction(void* library, const char* exportName);
/* The same by ordinal; null where libraries have none. */
void* findOrdinal(void* library, unsigned ordinal);
/* File name of the library under test, and the name under which it exports xferCleanup. */
const char* libraryFileName(void);
const char* xferCleanupExportName(void);
/* Sets a variable of the process's environment that is not set yet. */
void setDefaultEnvironment(const char* name, const char* value);

#ifdef __cplusplus
}
#endif

#endif
