#include <memory>

#include "fuzz/fuzzed_session.h"

// A catalogue as the host answers it: a filter that ends with a zero byte, then the answers. The head's file type is
// the kind of entry.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    fuzz::Input input(bytes, size);
    const fuzz::Head head(input);
    fuzz::FuzzedSession fuzzed(head);
    std::string filter;
    while (const char next = static_cast<char>(input.byte())) filter += next;
    fuzzed.answerFrom(input);
    const auto entry = std::make_unique<HostCatalogEntry>();
    entry->entryKind = head.fileType;
    entry->fileCount = head.has(fuzz::Head::Append) ? 2 : 1;
    const Library& library = Library::get();
    std::uint32_t result = library.pcsGetFirstHostFilename(fuzzed.session().handle(), filter.c_str(), entry.get());
    while (result == CatalogEntryDelivered)
        result = library.pcsGetNextHostFilename(fuzzed.session().handle(), entry.get());
    return 0;
}
