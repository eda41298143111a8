#include "support/dynamic_library.h"

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>

void* openLibrary(const char* path) {
    void* const library = dlopen(path, RTLD_NOW | RTLD_LOCAL);
    if (!library) std::fprintf(stderr, "%s\n", dlerror());
    return library;
}

void* findFunction(void* library, const char* exportName) { return dlsym(library, exportName); }
void* findOrdinal(void*, unsigned) { return nullptr; }
const char* libraryFileName(void) { return Z7X_LIBRARY_FILE_NAME; }
const char* xferCleanupExportName(void) { return "xferCleanup"; }
void setDefaultEnvironment(const char* name, const char* value) { setenv(name, value, 0); }
