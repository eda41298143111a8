#include "checking/loss_watch.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace checking {
namespace {

constexpr char Replacement = '?';  // what the emulator writes for a character that the PC does not have
constexpr std::size_t Block = 16;

// Control characters but `allowed`, and question marks. Every byte is looked at whatever stood before, which compilers
// turn into one comparison for all of them.
bool hasSignIn(const char* bytes, char allowed) {
    std::uint8_t signs = 0;
    for (std::size_t at = 0; at < Block; ++at) {
        const auto byte = static_cast<std::uint8_t>(bytes[at]);
        const bool isControl = byte < ' ' && byte != static_cast<std::uint8_t>(allowed);
        signs = static_cast<std::uint8_t>(signs | (isControl ? 1 : 0) | (byte == Replacement ? 1 : 0));
    }
    return signs != 0;
}

// The last block may begin in the one before.
bool hasSign(std::string_view bytes, char allowed) {
    if (bytes.size() < Block) {
        char block[Block];
        std::memset(block, ' ', Block);
        std::copy(bytes.begin(), bytes.end(), block);
        return hasSignIn(block, allowed);
    }
    for (std::size_t at = 0; at + Block <= bytes.size(); at += Block)
        if (hasSignIn(bytes.data() + at, allowed)) return true;
    return hasSignIn(bytes.data() + bytes.size() - Block, allowed);
}

std::uint64_t countOf(char byte, std::string_view bytes) {
    return static_cast<std::uint64_t>(std::count(bytes.begin(), bytes.end(), byte));
}

}  // namespace

LossWatch::LossWatch(const PcFileForm& form, const HostLayout& layout)
    : form_(form),
      findings_(layout.columns),
      written_(form_, layout, findings_,
               [this](std::uint64_t index) {
                   return form_.form == RecordForm::Tuples ? "row " + std::to_string(index + 2)
                                                           : "record " + std::to_string(index + 1);
               }),
      isOpen_(form.form != RecordForm::Unchanged) {
    // Converted by pairs, or by two tables, a character may be lost to another one than the replacement.
    const codepages::CodePage* const page = codepages::find(static_cast<std::uint32_t>(form.hostCodePage));
    readsAll_ = page == nullptr || page->isDoubleByte() || form.isUtf8() || form.inOem;
    std::uint64_t quoted = 0;
    for (const HostColumn& column : layout.columns) {
        if (!column.isNumber()) ++quoted;
        if (!column.isText()) continue;
        if (!texts_.empty() && texts_.back().offset + texts_.back().length == column.offset)
            texts_.back().length += column.length;
        else
            texts_.push_back({column.offset, column.length});
    }
    const std::uint64_t columns = layout.columns.size();
    if (form.separator == '\t') allowed_ = '\t';
    if (form.form == RecordForm::Tuples) {
        readsAll_ = true;
    } else if (form.type == ZhstBasicSequential) {
        counted_ = '"';
        wanted_ = 2 * quoted;
    } else if (form.type == ZhstCommaSeparated && form.separator != ',' && !form.wholeLines) {
        counted_ = form.separator;
        wanted_ = columns - 1;
    }
}

bool LossWatch::hasZeroByte(std::string_view host) const {
    return std::any_of(texts_.begin(), texts_.end(), [host](const Range& range) {
        if (range.offset >= host.size()) return false;
        const std::size_t length = std::min<std::size_t>(range.length, host.size() - range.offset);
        return std::memchr(host.data() + range.offset, '\0', length) != nullptr;
    });
}

bool LossWatch::mayLose(std::string_view record, std::string_view host) const {
    if (readsAll_) return true;
    if (form_.form == RecordForm::Binary) return record.find(Replacement) != std::string_view::npos;
    if (hasZeroByte(host)) return true;
    const std::string_view line = withoutLineEnd(form_, record);
    return hasSign(line, allowed_) || (counted_ != '\0' && countOf(counted_, line) != wanted_);
}

std::optional<Note> LossWatch::note() const {
    if (findings_.told().empty()) return std::nullopt;
    const Finding& finding = findings_.told().front();
    return Note{
        finding.place + ", field " + finding.field + " would not be read back as the host has it: " + finding.reason,
        "there may be more, --verify tells of all; to do: " + std::string(adviceOf(finding.fault))};
}

}  // namespace checking
