#include "library_loader.h"

#include <windows.h>

namespace loader {

std::vector<std::string> libraryFileNames() { return {"Z7XFRPCS.dll"}; }

void* open(const std::filesystem::path& file, std::string* error) {
    const std::filesystem::path whole = std::filesystem::absolute(file).make_preferred();
    void* library = LoadLibraryExW(whole.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    if (library == nullptr) *error = "error " + std::to_string(GetLastError());
    return library;
}

void* find(void* library, const char* name) {
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), name));
}

}  // namespace loader
