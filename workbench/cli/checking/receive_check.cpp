#include "checking/receive_check.h"

#include <algorithm>
#include <array>
#include <exception>
#include <iterator>

#include "Z7XFRPCS/settings.h"
#include "checking/added_records.h"
#include "checking/looked_send.h"
#include "checking/looking_host.h"
#include "checking/number.h"
#include "checking/record_places.h"
#include "temporary_file.h"

namespace checking {
namespace {

namespace setting = zhst::setting;

constexpr std::string_view BeginTuple = "-1,0\r\nBOT\r\n";
constexpr std::uint64_t LinesOfBeginTuple = 2;

// The code of a PC file type in the description of a PC file.
int codeInDescriptions(std::int32_t type) {
    constexpr int codes[] = {
#define PC_FILE_TYPE(number, name, shortName, command, code, form, separator, quotes, hex, meaning) code,
        ZHST_PC_FILE_TYPES(PC_FILE_TYPE)
#undef PC_FILE_TYPE
    };
    return codes[type];
}

// A source member's single field, which is written as it stands.
bool isSourceText(const HostLayout& layout) {
    return layout.columns.size() == 1 && layout.columns[0].name.starts_with("SRCDTA");
}

std::uint64_t lineEndsIn(std::string_view bytes) {
    return static_cast<std::uint64_t>(std::count(bytes.begin(), bytes.end(), '\n'));
}

}  // namespace

PcFileForm receivedForm(ZhstSession session, const emulator::PcSetup& pc, const HostLayout& layout) {
    // A spreadsheet program is given DIF, whatever the type is.
    const bool toSpreadsheet = emulator::number(session, setting::ReceiveOutput) == zhst::value::ToSpreadsheet;
    const std::int32_t type = toSpreadsheet ? ZhstDif : emulator::number(session, setting::ReceiveFileType);
    const bool isBare = (type == ZhstCommaSeparated || type == ZhstTabDelimited) && isSourceText(layout);
    return pcFileForm(session, pc, type, isBare);
}

ReceiveCheck::ReceiveCheck(const TransferLibrary& library, const PcText& pcText, const CommandLine& line,
                           const std::filesystem::path& programFolder, ZhstSession session, const HostLayout& layout,
                           ReceivedRecords& records)
    : library_(library),
      pcText_(pcText),
      line_(line),
      programFolder_(programFolder),
      session_(copyOfSession(session)),
      layout_(layout),
      records_(records),
      form_(receivedForm(session, line.pc, layout)),
      findings_(layout.columns, "would come back as"),
      texts_(form_),
      written_(form_, layout, findings_, [this](std::uint64_t index) { return placeOf(index); }),
      path_(emulator::nativePath(emulator::text(session, setting::PcFileName))),
      file_(path_, std::ios::binary) {}

bool ReceiveCheck::run() {
    try {
        beginFile();
        const bool isSent = send();
        while (isOpen_) endRecord(false);
        return isSent;
    } catch (const std::exception& error) {
        reason_ = error.what();
        return false;
    }
}

// What was written stands at the end of the file, behind a heading, the head of a DIF file or what was there before.
void ReceiveCheck::beginFile() {
    file_.seekg(0, std::ios::end);
    const auto size = static_cast<std::uint64_t>(std::max<std::streamoff>(file_.tellg(), 0));
    if (size < records_.pcBytes()) {
        findings_.addOfFile({Fault::FileDiffers,
                             "",
                             "",
                             "",
                             "",
                             "it has " + std::to_string(size) + " bytes of the " + std::to_string(records_.pcBytes()) +
                                 " that were written to it",
                             {}});
    }
    offset_ = size - std::min(size, records_.pcBytes());
    if (const std::string joined = joinedWithWhatWasThere(path_, form_, layout_.recordLength(), offset_);
        !joined.empty())
        findings_.addOfFile({Fault::RecordsJoined, "", "", "", "", joined, {}});
    file_.seekg(0);
    std::array<char, 64 * 1024> piece;
    for (std::uint64_t left = offset_; left > 0 && file_;) {
        file_.read(piece.data(), static_cast<std::streamsize>(std::min<std::uint64_t>(left, piece.size())));
        fileLine_ += lineEndsIn({piece.data(), static_cast<std::size_t>(file_.gcount())});
        left -= static_cast<std::uint64_t>(file_.gcount());
    }
    records_.rewind();
    isOpen_ = beginRecord();
}

bool ReceiveCheck::beginRecord() {
    if (!records_.next()) return false;
    bytes_.resize(records_.pc().size());
    file_.read(bytes_.data(), static_cast<std::streamsize>(bytes_.size()));
    bytes_.resize(static_cast<std::size_t>(std::max<std::streamsize>(file_.gcount(), 0)));
    sent_ = {};
    return true;
}

// The library says what it would make of the record, unless it has not come as far.
void ReceiveCheck::endRecord(bool isSent) {
    if (bytes_ != records_.pc())
        tellOfRecord(Fault::FileDiffers, "the file holds other bytes than those that were written");
    else if (written_.compare(index_, bytes_, records_.host()) && isSent)
        compareSent();
    offset_ += records_.pc().size();
    fileLine_ += lineEndsIn(records_.pc());
    ++index_;
    isOpen_ = beginRecord();
}

std::string ReceiveCheck::placeOf(std::uint64_t index) const {
    const bool isTuple = form_.form == RecordForm::Tuples;
    return placeName(form_, index + (isTuple ? 2 : 0), fileLine_ + (isTuple ? LinesOfBeginTuple : 0), offset_);
}

void ReceiveCheck::tellOfRecord(Fault fault, const std::string& reason) {
    findings_.add(fault, Findings::NoColumn, [&] {
        const std::string text = form_.isText() ? texts_.toUtf8(withoutLineEnd(form_, bytes_)) : hexDigits(bytes_);
        return Finding{fault, placeOf(index_), "", text, "", reason, {}};
    });
}

// --- What a send would make of it ----------------------------------------------------------------------------------

// The names are all that counts.
void ReceiveCheck::describe(const std::filesystem::path& description) const {
    std::ofstream file(description, std::ios::binary);
    file << "PCFDF\r\nPCFT " << codeInDescriptions(form_.type) << "\r\n";
    for (const HostColumn& column : layout_.columns) file << "PCFL " << column.name << " 1 1\r\n";
}

// True when the library went through the whole file.
bool ReceiveCheck::send() {
    if (!isOpen_) return true;
    const TemporaryFile description;
    describe(description.path());
    emulator::set(session_, setting::HostFileName, std::string("READ/BACK"));
    emulator::set(session_, setting::SendFileType, form_.type);
    emulator::set(session_, setting::StartRecord, 1);
    emulator::set(session_, setting::HostFileType, form_.wholeLines ? zhst::value::SourceFile : 0);
    emulator::set(session_, setting::UseDescriptionFile, form_.wholeLines ? 0 : 1);
    emulator::set(session_, setting::SendDescriptionFile, pcText_.toPc(description.path().string()));
    LookingHost host(programFolder_);
    LookingHost::attract(session_);
    LookedSend send(library_, pcText_, line_, session_, host, layout_, "reading back");
    send.beginAt(offset_ + (form_.form == RecordForm::Tuples ? BeginTuple.size() : 0));
    send.onTaken = [&](std::uint64_t index, std::string_view, std::string_view record) {
        take(send.offsetOf(index), record, {});
    };
    send.onRefused = [&](std::uint64_t index, std::string_view, std::uint32_t, const std::string& said) {
        take(send.offsetOf(index), {}, said);
    };
    send.onTooLong = [&](std::uint64_t index) { take(send.offsetOf(index), {}, send.said()); };
    const LookedSend::Ending ending = send.run();
    if (ending == LookedSend::Ending::Complete) {
        while (isOpen_) endRecord(true);
        return true;
    }
    reason_ = ending == LookedSend::Ending::Stopped     ? "a send refuses more records than are looked at"
              : ending == LookedSend::Ending::Cancelled ? "cancelled"
                                                        : send.said();
    return false;
}

// It begins in the bytes of the record in hand, or of one behind it.
void ReceiveCheck::take(std::uint64_t offset, std::string_view host, const std::string& refusal) {
    while (isOpen_ && offset >= offset_ + records_.pc().size()) endRecord(true);
    if (!isOpen_) return;
    ++sent_.count;
    sent_.host = host;
    sent_.refusal = refusal;
}

void ReceiveCheck::compareSent() {
    if (sent_.count != 1) {
        return tellOfRecord(Fault::NotSentBack, sent_.count == 0
                                                    ? "a send leaves it out, or ends in front of it"
                                                    : "a send makes " + std::to_string(sent_.count) + " records of it");
    }
    if (!sent_.refusal.empty()) return tellOfRecord(Fault::NotSentBack, "a send refuses it: " + sent_.refusal);
    for (std::size_t at = 0; at < layout_.columns.size(); ++at) compareSentField(layout_.columns[at], at);
}

// Signs and shift characters have more than one form, and blanks at the end may be zero bytes on the host.
void ReceiveCheck::compareSentField(const HostColumn& column, std::size_t at) {
    const std::string_view before = partOf(column, records_.host()), after = partOf(column, sent_.host);
    if (before == after || before.empty()) return;
    const auto number = [&](std::string_view bytes) {
        return hostDecimal(column, reinterpret_cast<const std::uint8_t*>(bytes.data()));
    };
    const bool isNumber = column.isNumber() && before.size() == after.size();
    if (isNumber && number(before) && number(before) == number(after)) return;
    if (column.isText() && texts_.read(before) == texts_.read(after)) return;
    findings_.add(Fault::SentOtherwise, at, [&] {
        const auto shown = [&](std::string_view bytes) {
            return column.isText() ? texts_.read(bytes) : hexDigits(bytes);
        };
        return Finding{Fault::SentOtherwise,
                       placeOf(index_),
                       column.name,
                       shown(before),
                       shown(after),
                       "a send stores other bytes: " + hexDigits(after),
                       {}};
    });
}

}  // namespace checking
