#include "request/demo_catalog.h"

#include <cstring>

#include "request/catalog_entry.h"
#include "text/double_byte.h"

namespace request {
namespace {

namespace sample = zhst::text;

constexpr std::uint32_t DemonstrationFlag = 1;
constexpr std::size_t LibraryName = 10;
constexpr std::uint32_t ListLength = 3;
constexpr std::uint32_t FieldsPerFile = 6;

// Sample texts of the three entries of a list, and of the six fields of a file.
constexpr zhst::CatalogueText LibraryTexts[ListLength] = {sample::DemoLibrary1, sample::DemoLibrary2,
                                                          sample::DemoLibrary3};
constexpr zhst::CatalogueText FileTexts[ListLength] = {sample::DemoFile1, sample::DemoFile2, sample::DemoFile3};
constexpr zhst::CatalogueText MemberTexts[ListLength] = {sample::DemoMember1, sample::DemoMember2, sample::DemoMember3};
constexpr zhst::CatalogueText FieldTexts[FieldsPerFile] = {sample::DemoField1, sample::DemoField2, sample::DemoField3,
                                                           sample::DemoField4, sample::DemoField5, sample::DemoField6};

bool isFieldList(const HostCatalogEntry& entry) { return entry.entryKind == CatalogFieldListing; }

std::uint32_t entriesOf(const HostCatalogEntry& entry) {
    if (!isFieldList(entry)) return ListLength;
    return entry.fileCount >= 2 ? 2 * FieldsPerFile : FieldsPerFile;
}

// The sample text is loaded into the room that `start` leaves.
void setName(const ZXFRPCSCLIENT& client, HostCatalogEntry& entry, std::string_view start, zhst::CatalogueText place) {
    text::copyCut(start, entry.name, sizeof(entry.name));
    const auto length = static_cast<std::uint32_t>(std::strlen(entry.name));
    services::LoadMessageText(client.session, place.table, place.index, entry.name + length,
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
        // A member has nothing below it. Only the first call says so.
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
