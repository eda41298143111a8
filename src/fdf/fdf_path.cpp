#include "fdf/fdf_path.h"

#include <cstdio>
#include <cstring>
#include <string_view>

#include "provider/message_box.h"

namespace fdf {
namespace {

// The path services are not told how much room they have: as much as the longest name has.
using NameBuffer = char[1025];

constexpr std::size_t ExtensionWithPoint = 4;

}  // namespace

host::OwnedFile resolveFdfPath(const settings::TransferContext& context, const char* pcFileName, const char* fdfName,
                               char (&path)[PathSize]) {
    host::OwnedFile file(host::CreateFileObject(context.session));
    if (!file) {
        provider::showMessage({context.session, context.settings, context.mainWindow}, provider::OutOfMemory);
        return file;
    }
    NameBuffer directory = {};
    NameBuffer name = {};
    if (std::strpbrk(fdfName, "\\/:")) {
        std::snprintf(path, PathSize, "%s", fdfName);
        return file;
    }
    context.pathServices->directoryPart(pcFileName, directory);
    const std::string_view pattern(fdfName);
    if (pattern.substr(0, 2) == "*.") {
        const std::string_view extension = pattern.substr(1, ExtensionWithPoint);
        context.pathServices->baseName(pcFileName, name);
        std::snprintf(path, PathSize, "%s%s%.*s", directory, name, static_cast<int>(extension.size()),
                      extension.data());
    } else {
        std::snprintf(path, PathSize, "%s%s", directory, fdfName);
    }
    return file;
}

}  // namespace fdf
