#include "as400/lookup.h"

#include <utility>

#include "as400/refusal.h"

namespace as400 {

HostFile requireFile(Catalogue& catalogue, const FileReference& reference) {
    auto file = catalogue.file(reference.library, reference.file);
    if (file) return std::move(*file);
    if (reference.library.empty()) refuseRequest("HSF1011 File " + upperCase(reference.file) + " not found.");
    if (!catalogue.library(reference.library)) {
        refuseRequest("HSF1010 Library " + upperCase(reference.library) + " not found.");
    }
    refuseRequest("HSF1011 File " + upperCase(reference.file) + " in library " + upperCase(reference.library) +
                  " not found.");
}

HostMember requireMember(Catalogue& catalogue, const HostFile& file, std::string_view name) {
    auto member = catalogue.member(file, name);
    if (member) return std::move(*member);
    if (name.empty()) refuseRequest("HSF1013 File " + file.label() + " has no member.");
    refuseRequest("HSF1012 Member " + upperCase(name) + " not found in file " + file.label() + ".");
}

}  // namespace as400
