#include "fdf/fdf_path.h"

#include <cstring>
#include <string_view>

#include "provider/message_box.h"
#include "text/double_byte.h"

namespace fdf {
namespace {

// The path services are not told how much room they have: as much as the longest name has.
using NameBuffer = char[1025];

constexpr std::size_t ExtensionWithPoint = 4;

void appendCut(char (&path)[PathSize], std::string_view part) {
    const std::size_t length = std::strlen(path);
    text::copyCut(part, path + length, PathSize - length);
}

}  // namespace

host::OwnedFile resolveFdfPath(const settings::TransferContext& context, const char* pcFileName, const char* fdfName,
                               char (&path)[PathSize]) {
    host::OwnedFile file(host::CreateFileObject(context.session));
    if (!file) {
        provider::showMessage({context.session, context.settings, context.mainWindow}, provider::OutOfMemory);
        return file;
    }
    path[0] = '\0';
    const std::string_view pattern(fdfName);
    if (pattern.find_first_of("\\/:") != std::string_view::npos) {
        appendCut(path, pattern);
        return file;
    }
    NameBuffer part = {};
    context.pathServices->directoryPart(pcFileName, part);
    appendCut(path, part);
    if (pattern.substr(0, 2) == "*.") {
        context.pathServices->baseName(pcFileName, part);
        appendCut(path, part);
        appendCut(path, pattern.substr(1, ExtensionWithPoint));
    } else {
        appendCut(path, pattern);
    }
    return file;
}

}  // namespace fdf
