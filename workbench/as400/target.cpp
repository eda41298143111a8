#include "as400/target.h"

#include <algorithm>

#include "as400/lookup.h"
#include "as400/refusal.h"

namespace as400 {

namespace {

constexpr std::uint32_t DefaultSourceLength = 92, LongestRecord = 4096;
constexpr std::uint32_t DefaultCharacters = 50;

std::string requireName(std::string_view name) {
    std::string upper = upperCase(name);
    if (!isHostName(upper)) refuseRequest("HSF1033 Name " + upper + " not valid.");
    return upper;
}

HostFile referenceFile(Catalogue& catalogue, std::string_view text) {
    return requireFile(catalogue, takeFileReference(text));
}

std::vector<Field> plainCharacterFields(const std::vector<std::string>& names) {
    const auto count = static_cast<std::uint32_t>(names.size());
    std::vector<Field> fields;
    for (const std::string& name : names) {
        fields.push_back(makeField(name, "CHAR", std::clamp(LongestRecord / count, 1u, DefaultCharacters), 0, ""));
    }
    return fields;
}

void defineSource(Catalogue& catalogue, const ReplaceRequest& request, HostFile& file) {
    file.sourceLength = request.recordLength.value_or(0);
    if (!request.referenceFile.empty())
        file.sourceLength = referenceFile(catalogue, request.referenceFile).sourceLength;
    if (file.sourceLength == 0) file.sourceLength = DefaultSourceLength;
    if (file.sourceLength <= SourceOverhead || file.sourceLength > LongestRecord) {
        refuseRequest("HSF1034 Record length " + std::to_string(file.sourceLength) + " not valid for a source file.");
    }
    file.fields = sourceFields(file.sourceLength);
}

void likeReference(const HostFile& reference, HostFile& file) {
    file.fields = reference.fields;
    for (Field& field : file.fields) field.column = field.name;
    file.page = reference.page;
    file.sourceLength = reference.sourceLength;
}

void defineData(Catalogue& catalogue, const ReplaceRequest& request, HostFile& file) {
    if (!request.referenceFile.empty()) return likeReference(referenceFile(catalogue, request.referenceFile), file);
    if (request.fields.empty()) refuseRequest("HSF1035 A new data file needs a reference file or field names.");
    const auto namesake = catalogue.fileWithFields(file.name, request.fields);
    if (!namesake) {
        file.fields = plainCharacterFields(request.fields);
        return;
    }
    for (const std::string& name : request.fields) {
        file.fields.push_back(*findField(namesake->fields, name));
        file.fields.back().column = file.fields.back().name;
    }
    file.page = namesake->page;
}

HostFile createFile(Catalogue& catalogue, const ReplaceRequest& request, std::uint32_t page) {
    HostFile file;
    file.library = upperCase(request.target.library.empty() ? DefaultLibrary : request.target.library);
    if (file.library == UserLibrary) refuseRequest("HSF1036 Files cannot be created in library USER.");
    if (!catalogue.library(file.library)) refuseRequest("HSF1010 Library " + file.library + " not found.");
    file.name = requireName(request.target.file);
    file.text = request.fileText;
    file.page = page;
    if (request.source) {
        defineSource(catalogue, request, file);
    } else {
        defineData(catalogue, request, file);
    }
    catalogue.createFile(file);
    return file;
}

// A member that is to be new.
HostMember createMember(Catalogue& catalogue, const ReplaceRequest& request, const HostFile& file) {
    if (file.isPlain()) refuseRequest("HSF1037 Table " + file.name + " has no members of its own.");
    const std::string name = requireName(request.target.member.empty() ? file.name : request.target.member);
    if (catalogue.member(file, name)) {
        refuseRequest("HSF1043 Member " + name + " of file " + file.label() + " already exists and is not created.");
    }
    return catalogue.createMember(file, name, request.memberText);
}

}  // namespace

Target openTarget(Catalogue& catalogue, const ReplaceRequest& request, std::uint32_t newFilePage) {
    const FileReference& reference = request.target;
    if (request.createFile) {
        if (const auto existing = catalogue.file(reference.library, reference.file)) {
            refuseRequest("HSF1042 File " + existing->label() + " already exists and is not created.");
        }
        const HostFile file = createFile(catalogue, request, newFilePage);
        return {file, createMember(catalogue, request, file), Target::New};
    }
    const HostFile file = requireFile(catalogue, reference);
    if (request.createMember) return {file, createMember(catalogue, request, file), Target::New};
    return {file, requireMember(catalogue, file, reference.member), Target::Existing};
}

}  // namespace as400
