#include <fcntl.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

#include "emulator/code_pages.h"
#include "emulator/emulator.h"
#include "emulator/path_services.h"
#include "emulator/platform_side.h"
#include "emulator/standard_streams.h"
#include "environment/utf8_path.h"
#include "platform/platform.h"

// PC file names on a file system that is particular about case and knows one separator. PC names are in the ANSI code
// page, the file system's are in UTF-8.

namespace emulator {
namespace {

namespace files = std::filesystem;

bool isAscii(std::string_view text) {
    for (const char byte : text)
        if (static_cast<unsigned char>(byte) >= 0x80) return false;
    return true;
}

std::string toNative(const std::string& pcName) {
    const codepages::CodePage* page = isAscii(pcName) ? nullptr : ansiPage();
    return page ? page->decode(pcName) : pcName;
}

// Capital letters in the PC's own sense, so that national letters find each other too.
std::string folded(const std::string& nativeName) {
    const codepages::CodePage* page = isAscii(nativeName) ? nullptr : ansiPage();
    std::string name = page ? page->encode(nativeName) : nativeName;
    platform::CharUpperA(name.data());
    return name;
}

// The name in `folder` that is meant: itself when it is there, else one that differs in case, else itself.
std::string actualName(const files::path& folder, const std::string& name) {
    std::error_code error;
    if (files::exists(files::symlink_status(folder / name, error))) return name;
    const std::string wanted = folded(name);
    std::string found;
    for (files::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        std::string candidate = entry->path().filename().string();
        // The first of several in byte order, so that the answer does not depend on the order of the folder.
        if (folded(candidate) == wanted && (found.empty() || candidate < found)) found = std::move(candidate);
    }
    return found.empty() ? name : found;
}

// Calls `take` with each part of the path between separators; drive and empty parts are dropped.
template <class Take>
void forEachPart(const std::string& name, Take take) {
    std::string part;
    for (const char* at = name.c_str(); *at;) {
        const char* next = platform::CharNextA(at);
        if (*at == '\\' || *at == '/') {
            if (!part.empty()) take(std::exchange(part, {}));
        } else {
            part.append(at, next);
        }
        at = next;
    }
    if (!part.empty()) take(part);
}

bool hasDrive(const std::string& name) {
    const auto isLetter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
    return name.size() >= 2 && name[1] == ':' && isLetter(name[0]);
}

bool startsAtRoot(const std::string& name) { return !name.empty() && (name[0] == '\\' || name[0] == '/'); }

}  // namespace

files::path nativePath(std::string_view pcName) {
    if (pcName == StandardStream) return utf8Path(standardInputFile());
    std::string name(hasDrive(std::string(pcName)) ? pcName.substr(2) : pcName);
    if (!startsAtRoot(name) && !currentDirectory().empty()) {
        const std::string& directory = currentDirectory();
        name.insert(0, hasDrive(directory) ? directory.substr(2) : directory);
    }
    files::path path = startsAtRoot(name) ? "/" : "";
    forEachPart(name, [&path](const std::string& part) {
        if (part == ".") return;
        if (part == "..")
            path /= part;
        else
            path /= actualName(path.empty() ? "." : path, toNative(part));
    });
    return path.empty() ? "." : path;
}

std::FILE* openNative(const files::path& nativePath, const char* mode) { return std::fopen(nativePath.c_str(), mode); }

std::FILE* openNativeAsItIs(const files::path& nativePath) {
    constexpr mode_t EverybodyButTheMask = 0666;
    const int file = open(nativePath.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, EverybodyButTheMask);
    return file < 0 ? nullptr : fdopen(file, "wb");
}

}  // namespace emulator
