#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>

#include <cwchar>
#include <filesystem>
#include <string>
#include <string_view>

#include "emulator/emulator.h"
#include "emulator/path_services.h"
#include "emulator/platform_side.h"
#include "emulator/standard_streams.h"
#include "environment/utf8_path.h"

// PC file names are the operating system's own; only their code page is not.

namespace emulator {
namespace {

namespace files = std::filesystem;

files::path widened(std::string_view pcName) {
    const int length = static_cast<int>(pcName.size());
    std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, pcName.data(), length, nullptr, 0)), 0);
    MultiByteToWideChar(CP_ACP, 0, pcName.data(), length, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

}  // namespace

files::path nativePath(std::string_view pcName) {
    if (pcName == StandardStream) return utf8Path(standardInputFile());
    files::path path = widened(currentDirectory()) / widened(pcName);
    return path.empty() ? "." : path.make_preferred();
}

std::FILE* openNative(const files::path& nativePath, const char* mode) {
    return _wfopen(nativePath.c_str(), files::path(mode).c_str());
}

std::FILE* openNativeAsItIs(const files::path& nativePath) {
    const int file = _wopen(nativePath.c_str(), _O_WRONLY | _O_CREAT | _O_BINARY, _S_IREAD | _S_IWRITE);
    return file < 0 ? nullptr : _fdopen(file, "wb");
}

}  // namespace emulator
