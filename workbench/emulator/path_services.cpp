#include "emulator/path_services.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "emulator/emulator.h"
#include "emulator/journal.h"
#include "emulator/modules.h"
#include "platform/platform.h"

namespace emulator {
namespace {

constexpr std::size_t BufferSize = 261;

std::string directory;

// Behind the last separator or drive colon. The second byte of a two-byte character can look like a backslash.
std::size_t directoryLength(const char* name) {
    std::size_t length = 0;
    for (const char* at = name; *at; at = platform::CharNextA(at))
        if (*at == '\\' || *at == '/' || *at == ':') length = static_cast<std::size_t>(at - name) + 1;
    return length;
}

// The end of the name without its extension, which begins at the last period; a name that begins with its only period
// has none.
std::size_t baseEnd(const char* file) {
    std::size_t end = std::strlen(file);
    for (const char* at = file; *at; at = platform::CharNextA(at))
        if (*at == '.' && at != file) end = static_cast<std::size_t>(at - file);
    return end;
}

void fill(char* buffer, const char* text, std::size_t length) {
    const std::size_t taken = std::min(length, BufferSize - 1);
    std::memcpy(buffer, text, taken);
    buffer[taken] = 0;
}

bool isAbsolute(const char* path) { return *path == '\\' || *path == '/' || (*path && path[1] == ':'); }

std::uint32_t ZHST_CALL fileExists(ZhstPathServices*, const char* name, std::uint32_t flag) {
    return journalled::Call("PathServices.fileExists", name, flag).result(findLibrary(name) ? 1u : 0u);
}

void ZHST_CALL baseName(ZhstPathServices*, const char* name, char* buffer) {
    const char* file = name + directoryLength(name);
    fill(buffer, file, baseEnd(file));
    journalled::Call("PathServices.baseName", name, static_cast<const char*>(buffer));
}

void ZHST_CALL directoryPart(ZhstPathServices*, const char* name, char* buffer) {
    fill(buffer, name, directoryLength(name));
    journalled::Call("PathServices.directoryPart", name, static_cast<const char*>(buffer));
}

void ZHST_CALL setCurrentDirectory(ZhstPathServices*, const char* path) {
    journalled::Call("PathServices.setCurrentDirectory", path);
    if (!path || !*path) return;
    std::string changed = isAbsolute(path) || directory.empty() ? std::string(path) : directory + path;
    if (directoryLength(changed.c_str()) != changed.size()) changed += '\\';
    directory = changed;
}

}  // namespace

constinit const ZhstPathOperations pathOperations = [] {
    ZhstPathOperations table = {};
    table.fileExists = fileExists;
    table.baseName = baseName;
    table.directoryPart = directoryPart;
    table.setCurrentDirectory = setCurrentDirectory;
    return table;
}();

const std::string& currentDirectory() { return directory; }
void resetPathServices() { directory.clear(); }

}  // namespace emulator
