#include "checking/added_records.h"

#include <fstream>

namespace checking {
namespace {

bool endsWithLineEnd(const std::filesystem::path& path, std::uint64_t offset) {
    std::ifstream file(path, std::ios::binary);
    file.seekg(static_cast<std::streamoff>(offset) - 1);
    const int byte = file.get();
    return !file || byte == '\r' || byte == '\n' || byte == '\x1A';
}

}  // namespace

std::string joinedWithWhatWasThere(const std::filesystem::path& path, const PcFileForm& form, std::uint32_t recordBytes,
                                   std::uint64_t offset) {
    if (offset == 0 || form.form == RecordForm::Tuples) return {};
    if (form.form == RecordForm::Lines) {
        if (endsWithLineEnd(path, offset)) return {};
        return "what stood in it has no line end behind it: the first record that was added stands in its last line";
    }
    if (recordBytes == 0 || offset % recordBytes == 0) return {};
    return "what stood in it, " + std::to_string(offset) + " bytes, is no whole number of records of " +
           std::to_string(recordBytes) + " bytes: those that were added are not read from where they begin";
}

}  // namespace checking
