#include "fdf/fdf_path.h"

#include <cstdio>
#include <cstring>
#include <string_view>

#include "messages/own_sentences.h"
#include "text/double_byte.h"

namespace fdf {
namespace {

// The path services are not told how much room they have: as much as the longest name has.
using NameBuffer = char[1025];

constexpr std::size_t ExtensionWithPoint = 4;

// Of a file object for text; what they ask for is the emulator's affair.
constexpr std::uint32_t TextFile = 0;
constexpr std::uint32_t OpenFlags = 0x26;

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

// False when the path does not fit. Without path services the name stands alone, in the current directory.
bool composePath(const client::TransferContext& context, const char* pcFileName, std::string_view fdfName,
                 char (&path)[PathSize]) {
    path[0] = '\0';
    if (hasPlaceOfItsOwn(fdfName)) return append(path, fdfName);
    NameBuffer part = {};
    services::PathServices* paths = context.pathServices;
    if (paths) paths->directoryPart(pcFileName, part);
    const bool fits = append(path, part);
    if (!paths || !fdfName.starts_with("*.")) return fits && append(path, fdfName);
    paths->baseName(pcFileName, part);
    return fits && append(path, part) && append(path, fdfName.substr(1, ExtensionWithPoint));
}

// A path that was cut could be that of another file.
void refuse(const client::TransferContext& context, const char* fdfName) {
    char text[480];
    std::snprintf(text, sizeof(text), messages::sentence::DescriptionPathTooLong, fdfName);
    messages::showOwnText(context.messageOwner(), text);
}

}  // namespace

// The file object comes first: without memory for it nothing else is asked of the emulator.
services::OwnedFile resolveFdfPath(const client::TransferContext& context, const char* pcFileName, const char* fdfName,
                                   char (&path)[PathSize]) {
    services::OwnedFile file(services::CreateFileObject(context.session));
    if (!file) {
        messages::show(context.messageOwner(), zhst::message::OutOfMemory);
        return file;
    }
    if (!composePath(context, pcFileName, fdfName, path)) {
        refuse(context, fdfName);
        return services::OwnedFile();
    }
    file->setName(path);
    file->setTypeFlag(TextFile);
    file->setOpenFlags(OpenFlags);
    return file;
}

}  // namespace fdf
