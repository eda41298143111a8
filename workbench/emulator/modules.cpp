#include "emulator/modules.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "Z7XFRPCS/runtime.h"
#include "emulator/emulator.h"
#include "emulator/journal.h"
#include "emulator/platform_side.h"
#include "environment/utf8_path.h"

namespace emulator {
namespace {

namespace files = std::filesystem;

// The PC's own error number.
constexpr std::uint32_t FileNotFound = 2;

std::string wantedFolder;
std::uint32_t loadCount = 0;

char lowerCase(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character + 32) : character;
}

bool sameName(const std::string& left, const std::string& right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return lowerCase(a) == lowerCase(b); });
}

std::optional<std::string> findInFolder(const std::string& folder, const std::string& name) {
    std::error_code error;
    const files::path exact = utf8Path(folder) / name;
    if (files::is_regular_file(exact, error)) return exact.string();
    for (files::directory_iterator entry(utf8Path(folder), error), end; !error && entry != end; entry.increment(error))
        if (sameName(entry->path().filename().string(), name) && entry->is_regular_file(error))
            return entry->path().string();
    return std::nullopt;
}

std::uint32_t load(const char* name, ZhstModule* module) {
    const std::optional<std::string> path = findLibrary(name);
    if (!path) return FileNotFound;
    const std::uint32_t error = openModule(files::absolute(utf8Path(*path)), module);
    if (error == 0) ++loadCount;
    return error;
}

}  // namespace

std::string setProviderFolder(const std::string& folder) { return std::exchange(wantedFolder, folder); }

std::string providerFolder() { return wantedFolder.empty() ? ownFolder() + "/providers" : wantedFolder; }

std::optional<std::string> findLibrary(const char* name) {
    if (!name || !*name) return std::nullopt;
    const std::string text(name);
    if (text.find_first_of("/\\:") == std::string::npos)
        if (auto found = findInFolder(providerFolder(), text)) return found;
    std::error_code error;
    const files::path path = nativePath(text);
    if (files::is_regular_file(path, error)) return path.string();
    return std::nullopt;
}

std::uint32_t loadedModules() { return loadCount; }

void resetModules() {
    wantedFolder.clear();
    loadCount = 0;
}

}  // namespace emulator

using namespace emulator;

std::uint32_t ZHST_CALL zhstLoadModule(const char* fileName, std::uint32_t search, ZhstModule* module) {
    ZhstModule loaded = nullptr;
    const std::uint32_t result = load(fileName, &loaded);
    if (module) *module = loaded;
    return journalled::Call("LoadModule", fileName, search, journalled::Address{loaded}).result(result);
}

void ZHST_CALL zhstFreeModule(ZhstModule module) {
    journalled::Call("FreeModule", journalled::Address{module});
    if (!module) return;
    closeModule(module);
    if (loadCount > 0) --loadCount;
}
