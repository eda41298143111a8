#include "request/demo_catalog.h"

#include <cstring>

#include "request/catalog_entry.h"
#include "text/double_byte.h"

namespace request {
namespace {

constexpr std::uint32_t TextTable = 7;
constexpr std::uint32_t DemonstrationFlag = 1;
constexpr std::size_t LibraryName = 10;
constexpr std::uint32_t ListLength = 3;
constexpr std::uint32_t FieldsPerFile = 6;

// Sample texts of the three entries of a list, and of the six fields of a file.
using SampleTexts = std::uint32_t[ListLength];
constexpr SampleTexts LibraryTexts = {446, 454, 455};
constexpr SampleTexts FileTexts = {447, 456, 457};
constexpr SampleTexts MemberTexts = {448, 458, 459};
constexpr std::uint32_t FieldTexts[FieldsPerFile] = {445, 449, 450, 451, 452, 453};

bool isFieldList(const HostCatalogEntry& entry) { return entry.entryKind == FieldListing; }

std::uint32_t entriesOf(const HostCatalogEntry& entry) {
    if (!isFieldList(entry)) return ListLength;
    return entry.fileCount >= 2 ? 2 * FieldsPerFile : FieldsPerFile;
}

void setName(const ZXFRPCSCLIENT& client, HostCatalogEntry& entry, std::string_view start, std::uint32_t text) {
    text::copyCut(start, entry.name, sizeof(entry.name));
    const auto length = static_cast<std::uint32_t>(std::strlen(entry.name));
    services::LoadMessageText(client.session, TextTable, text, entry.name + length,
                              static_cast<std::uint32_t>(sizeof(entry.name)) - length);
}

void nameField(const ZXFRPCSCLIENT& client, HostCatalogEntry& entry) {
    const char* qualifier = entry.fileCount < 2 ? "" : client.demoIndex < FieldsPerFile ? "t1." : "t2.";
    setName(client, entry, qualifier, FieldTexts[client.demoIndex % FieldsPerFile]);
}

// By the filter: nothing, a library ("LIB"), a library whose files are wanted ("LIB/"), a file ("LIB/FILE").
std::uint32_t nameFile(const ZXFRPCSCLIENT& client, std::string_view filter, HostCatalogEntry& entry) {
    const std::size_t slash = text::findCharacter(filter, '/');
    if (filter.empty()) {
        setName(client, entry, "", LibraryTexts[client.demoIndex]);
    } else if (slash == std::string_view::npos) {
        text::copyCut(filter, entry.name, LibraryName + 1);
    } else if (slash + 1 == filter.size()) {
        char library[LibraryName + 2];
        text::copyCut(filter.substr(0, slash), library, LibraryName + 1);
        text::copyCut("/", library + std::strlen(library), 2);
        setName(client, entry, library, FileTexts[client.demoIndex]);
    } else if (client.demoIndex == 0 && text::findCharacter(filter, '(') != std::string_view::npos) {
        text::copyCut(filter, entry.name, sizeof(entry.name));
        return CatalogEnd;
    } else {
        setName(client, entry, filter, MemberTexts[client.demoIndex]);
    }
    return CatalogEntryDelivered;
}

std::uint32_t deliver(const ZXFRPCSCLIENT& client, HostCatalogEntry& entry) {
    entry.status = TF_SUCCESS;
    entry.flags |= DemonstrationFlag;
    if (!isFieldList(entry)) return nameFile(client, client.workText->view(), entry);
    nameField(client, entry);
    return CatalogEntryDelivered;
}

}  // namespace

std::uint32_t firstDemoEntry(ZXFRPCSCLIENT& client, const char* filter, HostCatalogEntry& entry) {
    client.demoIndex = 0;
    if (client.workText && client.workText->assign(filter)) return deliver(client, entry);
    messages::show(client.messageOwner(), zhst::message::OutOfMemory);
    return CatalogFailure;
}

std::uint32_t nextDemoEntry(ZXFRPCSCLIENT& client, HostCatalogEntry& entry) {
    ++client.demoIndex;
    // A call behind the end of the list finds the end again.
    if (!client.workText || client.demoIndex >= entriesOf(entry)) {
        client.demoIndex = entriesOf(entry);
        return CatalogEnd;
    }
    return deliver(client, entry);
}

}  // namespace request
