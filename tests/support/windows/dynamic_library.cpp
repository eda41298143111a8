#include "support/dynamic_library.h"

#include <windows.h>

#include <cstdio>
#include <cstdlib>

void* openLibrary(const char* path) {
    void* const library = LoadLibraryA(path);
    if (!library) std::fprintf(stderr, "%s: error %lu\n", path, GetLastError());
    return library;
}

void* findFunction(void* library, const char* exportName) {
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), exportName));
}
void* findOrdinal(void* library, unsigned ordinal) {
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), MAKEINTRESOURCEA(ordinal)));
}
const char* libraryFileName(void) { return Z7X_LIBRARY_FILE_NAME; }
const char* xferCleanupExportName(void) { return "_xferCleanup@4"; }
void setDefaultEnvironment(const char* name, const char* value) {
    if (!std::getenv(name)) _putenv_s(name, value);
}
