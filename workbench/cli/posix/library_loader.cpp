#include "library_loader.h"

#include <dlfcn.h>

namespace loader {

std::vector<std::string> libraryFileNames() { return {"Z7XFRPCS.so", "libZ7XFRPCS.so"}; }

void* open(const std::filesystem::path& file, std::string* error) {
    // All its imports at once: a service that the emulator lacks is to be found now, not in the middle of a transfer.
    void* library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
        const char* reason = dlerror();
        *error = reason != nullptr ? reason : "unknown reason";
    }
    return library;
}

void* find(void* library, const char* name) { return dlsym(library, name); }

}  // namespace loader
