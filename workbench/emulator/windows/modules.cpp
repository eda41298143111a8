#include <windows.h>

#include <filesystem>

#include "emulator/emulator.h"
#include "emulator/journal.h"
#include "emulator/platform_side.h"
#include "host/runtime.h"

namespace emulator {
namespace {

namespace files = std::filesystem;

std::string wantedFolder;
std::uint32_t loadCount = 0;

files::path providerFolder() { return wantedFolder.empty() ? files::path(ownFolder()) / "providers" : wantedFolder; }

std::uint32_t load(const char* name, host::ModuleHandle* module) {
    const std::optional<std::string> path = findLibrary(name);
    if (!path) return ERROR_FILE_NOT_FOUND;
    // What a provider needs itself is looked for beside it. The call wants a whole path then, with backslashes.
    const files::path whole = files::absolute(*path).make_preferred();
    *module = LoadLibraryExW(whole.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    if (!*module) return GetLastError();
    ++loadCount;
    return 0;
}

}  // namespace

void setProviderFolder(const std::string& folder) { wantedFolder = folder; }

std::optional<std::string> findLibrary(const char* name) {
    if (!name || !*name) return std::nullopt;
    std::error_code error;
    const std::string text(name);
    if (text.find_first_of("/\\:") == std::string::npos) {
        const files::path path = providerFolder() / files::path(nativePath(text)).filename();
        if (files::is_regular_file(path, error)) return path.string();
    }
    std::string path = nativePath(text);
    if (files::is_regular_file(path, error)) return path;
    return std::nullopt;
}

std::uint32_t loadedModules() { return loadCount; }

void resetModules() {
    wantedFolder.clear();
    loadCount = 0;
}

}  // namespace emulator

using namespace emulator;

std::uint32_t ZHST_CALL zhstLoadModule(const char* fileName, std::uint32_t search, host::ModuleHandle* module) {
    host::ModuleHandle loaded = nullptr;
    const std::uint32_t result = load(fileName, &loaded);
    if (module) *module = loaded;
    return journalled::Call("LoadModule", fileName, search, journalled::Address{loaded}).result(result);
}

void ZHST_CALL zhstFreeModule(host::ModuleHandle module) {
    journalled::Call("FreeModule", journalled::Address{module});
    if (!module) return;
    FreeLibrary(static_cast<HMODULE>(module));
    if (loadCount > 0) --loadCount;
}
