#include "fdf/fdf_path.h"

#include <cstdio>
#include <cstring>
#include <string_view>
#include <utility>

#include "messages/box.h"
#include "text/double_byte.h"

namespace fdf {
namespace {

// The path services are not told how much room they have: as much as the longest name has.
using NameBuffer = char[1025];

constexpr std::size_t ExtensionWithPoint = 4;

bool append(char (&path)[PathSize], std::string_view part) {
    const std::size_t length = std::strlen(path);
    text::copyCut(part, path + length, PathSize - length);
    return length + part.size() < PathSize;
}

// A directory or drive in the name. A trail byte may look like a backslash.
bool hasPlaceOfItsOwn(std::string_view name) {
    for (const char mark : {'\\', '/', ':'})
        if (text::findCharacter(name, mark) != std::string_view::npos) return true;
    return false;
}

// A path that was cut could be that of another file.
services::OwnedFile refuse(const client::TransferContext& context, const char* fdfName) {
    char message[480];
    std::snprintf(message, sizeof(message), "The path of the PC file description %s is longer than 260 characters.",
                  fdfName);
    messages::showOwnText({context.session, context.settings, context.mainWindow}, message);
    return services::OwnedFile();
}

}  // namespace

services::OwnedFile resolveFdfPath(const client::TransferContext& context, const char* pcFileName, const char* fdfName,
                                   char (&path)[PathSize]) {
    services::OwnedFile file(services::CreateFileObject(context.session));
    if (!file) {
        messages::show({context.session, context.settings, context.mainWindow}, zhst::message::OutOfMemory);
        return file;
    }
    path[0] = '\0';
    const std::string_view pattern(fdfName);
    if (hasPlaceOfItsOwn(pattern)) return append(path, pattern) ? std::move(file) : refuse(context, fdfName);
    NameBuffer part = {};
    services::PathServices* paths = context.pathServices;
    if (paths) paths->directoryPart(pcFileName, part);
    bool fits = append(path, part);
    if (paths && pattern.substr(0, 2) == "*.") {
        paths->baseName(pcFileName, part);
        fits = fits && append(path, part) && append(path, pattern.substr(1, ExtensionWithPoint));
    } else {
        fits = fits && append(path, pattern);
    }
    return fits ? std::move(file) : refuse(context, fdfName);
}

}  // namespace fdf
