#include "checking/send_check.h"

#include <filesystem>
#include <optional>
#include <stdexcept>

#include "Z7XFRPCS/settings.h"
#include "checking/file_signs.h"
#include "checking/host_text.h"
#include "checking/looked_send.h"
#include "checking/looking_host.h"
#include "checking/record_check.h"
#include "silent_transfer.h"

namespace checking {
namespace {

namespace setting = zhst::setting;

constexpr std::uint32_t ToHost = 1;

}  // namespace

// --- The records ---------------------------------------------------------------------------------------------------

// What becomes of the records, told as findings.
class SendCheck::Run {
public:
    Run(SendCheck& check, LookingHost& host);

    Verdict run();

private:
    void begin();
    void take(std::uint64_t index, std::string_view record, std::string_view hostRecord);
    void refuse(std::uint64_t index, std::string_view record, std::uint32_t field, const std::string& said);
    bool looksAtAll() const { return check_.extent_ == Extent::WholeFile; }
    bool isHeader(std::string_view record);
    std::string optionToSkip(std::uint64_t index) const;
    void tellMissingHeader(const std::filesystem::path& path);
    void finish();
    void tellOfFile(Fault fault, const std::string& place, const std::string& text, const std::string& reason,
                    const std::string& option = {}) {
        check_.findings_.addOfFile({fault, place, "", text, "", reason, option});
    }
    void tellOfRecord(Fault fault, std::uint64_t index, const std::string& reason) {
        check_.findings_.add(fault, Findings::NoColumn,
                             [&] { return Finding{fault, send_.nameOf(index), "", "", "", reason}; });
    }

    SendCheck& check_;
    LookedSend send_;

    // From the beginning of the data on.
    std::optional<RecordCheck> records_;
    std::optional<RecordFields> fields_;
    std::optional<Utf8Watch> utf8_;
    std::string utf8Place_;
};

SendCheck::Run::Run(SendCheck& check, LookingHost& host)
    : check_(check),
      send_(check.library_, check.pcText_, check.line_, check.session_, host, check.target_.layout, "checking") {
    send_.onBegin = [this] { begin(); };
    send_.onSplitOff = [this](std::uint64_t index, std::string_view record) {
        if (utf8_->look(record)) utf8Place_ = send_.nameOf(index);
    };
    send_.onTaken = [this](std::uint64_t index, std::string_view record, std::string_view hostRecord) {
        take(index, record, hostRecord);
    };
    send_.onRefused = [this](std::uint64_t index, std::string_view record, std::uint32_t field,
                             const std::string& said) { refuse(index, record, field, said); };
    send_.onTooLong = [this](std::uint64_t index) {
        tellOfRecord(Fault::RecordTooLong, index, "a record has at most 4,094 characters");
    };
}

void SendCheck::Run::begin() {
    records_.emplace(send_.form(), check_.target_.layout, check_.findings_,
                     [this](std::uint64_t index) { return send_.nameOf(index); });
    fields_.emplace(send_.form(), check_.target_.layout.columns);
    utf8_.emplace(send_.form());
}

Verdict SendCheck::Run::run() {
    const LookedSend::Ending ending = send_.run(looksAtAll() ? LookedSend::ManyRefused : 1);
    check_.isStopped_ = ending == LookedSend::Ending::Stopped;
    check_.records_ = send_.records();
    if (ending == LookedSend::Ending::Cancelled) return Verdict::Cancelled;
    if (ending == LookedSend::Ending::Failed) {
        check_.reason_ = send_.said();
        check_.status_ = send_.status();
        return Verdict::NotChecked;
    }
    if (looksAtAll()) finish();
    if (check_.findings_.refused() > 0) return Verdict::Refused;
    return check_.findings_.isEmpty() ? Verdict::Sound : Verdict::Changes;
}

void SendCheck::Run::take(std::uint64_t index, std::string_view record, std::string_view hostRecord) {
    if (!looksAtAll()) return;
    if (send_.records() == 1 && isHeader(record)) {
        tellOfFile(Fault::HeaderLine, send_.nameOf(index), check_.pcText_.toTerminal(record),
                   "it holds the names of the fields, and would be sent as a record", optionToSkip(index));
    }
    const PcFileForm& form = send_.form();
    if (!form.isText() && record.size() < check_.target_.layout.recordLength()) {
        tellOfRecord(Fault::ShortRecord, index,
                     "it has " + std::to_string(record.size()) + " bytes of " +
                         std::to_string(check_.target_.layout.recordLength()));
    } else if (form.form != RecordForm::Unchanged) {
        records_->compare(index, record, hostRecord);
    }
}

void SendCheck::Run::refuse(std::uint64_t index, std::string_view record, std::uint32_t field,
                            const std::string& said) {
    if (send_.records() == 1 && isHeader(record)) {
        tellOfFile(Fault::HeaderRefused, send_.nameOf(index), check_.pcText_.toTerminal(record),
                   "it holds the names of the fields", optionToSkip(index));
    } else {
        records_->refuse(index, record, field, said);
    }
}

bool SendCheck::Run::isHeader(std::string_view record) {
    const PcFileForm& form = send_.form();
    if (form.form != RecordForm::Lines || form.wholeLines || form.isFixed()) return false;
    fields_->split(record);
    return isHeaderLine(fields_->fields(), check_.target_.layout.columns);
}

// Start records count from behind a line that --header skips.
std::string SendCheck::Run::optionToSkip(std::uint64_t index) const {
    const bool hasHeader = check_.line_.header;
    const std::int32_t type = send_.form().type;
    if ((type == ZhstCommaSeparated || type == ZhstTabDelimited) && index == 0 && !hasHeader) return "--header";
    return "--start-record " + std::to_string(index + (hasHeader ? 1 : 2));
}

void SendCheck::Run::tellMissingHeader(const std::filesystem::path& path) {
    const std::string line = firstLine(path);
    if (line.empty() || send_.form().separator == '\0' || holdsFieldName(line, *fields_, check_.target_.layout)) return;
    tellOfFile(Fault::NoHeader, "record 1 (line 1)", check_.pcText_.toTerminal(line),
               "it is no line of field names, and would be skipped as one");
}

// What the file as a whole gives away.
void SendCheck::Run::finish() {
    const PcFileForm& form = send_.form();
    const std::filesystem::path path = emulator::nativePath(emulator::text(check_.session_, setting::PcFileName));
    const bool skipsHeader = check_.line_.header;
    if (skipsHeader) tellMissingHeader(path);
    const std::string encoding = form.isText() ? markedEncoding(path) : std::string();
    const bool isSkipped = skipsHeader && encoding == "UTF-8";
    if (!encoding.empty() && !isSkipped) {
        tellOfFile(Fault::ByteOrderMark, "", "",
                   "it begins with the byte order mark of " + encoding + ", which would be sent as text");
    }
    if (utf8_ && utf8_->isUtf8() && !check_.isStopped_) {
        tellOfFile(Fault::Utf8, utf8Place_, check_.pcText_.toTerminal(utf8_->word()),
                   "all that is not ASCII in this file is UTF-8, as this is for \"" + utf8_->word() +
                       "\"; the code page of the PC is " + std::to_string(form.pc.ansiCodePage));
    }
    if (send_.records() == 0) tellOfFile(Fault::NoRecord, "", "", "it gives no record to send");
}

// --- The whole -----------------------------------------------------------------------------------------------------

SendCheck::SendCheck(const TransferLibrary& library, const PcText& pcText, const CommandLine& line,
                     const std::filesystem::path& programFolder, ZhstSession session)
    : library_(library),
      pcText_(pcText),
      line_(line),
      programFolder_(programFolder),
      session_(copyOfSession(session)),
      findings_(target_.layout.columns) {}

SendCheck::~SendCheck() = default;

Verdict SendCheck::run(Extent extent) {
    extent_ = extent;
    std::error_code ignored;
    const std::string name = emulator::text(session_, setting::PcFileName);
    const std::filesystem::path path = emulator::nativePath(name);
    const bool isStream = std::filesystem::exists(path, ignored) && !std::filesystem::is_regular_file(path, ignored) &&
                          !std::filesystem::is_directory(path, ignored);
    if (isStream) {
        reason_ = pcText_.toTerminal(name) + " can be read only once";
        return Verdict::NotChecked;
    }
    try {
        return learnTarget() ? checkRecords() : Verdict::NotChecked;
    } catch (const std::exception& error) {
        reason_ = error.what();
        return Verdict::NotChecked;
    }
}

Verdict SendCheck::checkRecords() {
    if (!target_.unknownFields.empty()) {
        tellUnknownFields();
        return Verdict::Refused;
    }
    const std::int32_t hostCodePage = emulator::number(session_, setting::HostCodePage);
    if (!HostText::canRead(hostCodePage)) {
        reason_ = "there is no host code page " + std::to_string(hostCodePage);
        return Verdict::NotChecked;
    }
    LookingHost host(programFolder_);
    LookingHost::attract(session_);
    return Run(*this, host).run();
}

// The request that the library makes of description and settings says which fields of which file; the host, what they
// are.
bool SendCheck::learnTarget() {
    std::string options, request;
    {
        LookingHost host(programFolder_);
        const ZhstSession asking = copyOfSession(session_);
        LookingHost::attract(asking);
        SilentTransfer transfer(library_, asking);
        transfer.run(ToHost);
        options = host.options();
        request = host.request();
        if (request.empty()) {
            isToldBySend_ = true;
            reason_ = "no request was made";
            if (transfer.messages().empty()) return false;
            reason_ = transfer.said(pcText_);
            status_ = statusOf(transfer.messages().front(), 0);
            return false;
        }
    }
    target_ = targetLayout(library_, pcText_, session_, options, request);
    reason_ = target_.layout.refusal;
    status_ = target_.layout.status;
    return !target_.layout.columns.empty();
}

void SendCheck::tellUnknownFields() {
    for (const std::string& name : target_.unknownFields) {
        findings_.add(Fault::UnknownField, Findings::NoColumn, [&] {
            return Finding{Fault::UnknownField,
                           "the description",
                           name,
                           "",
                           "",
                           "the host file has no such field; it has " + [this] {
                               std::string names;
                               for (const HostColumn& column : target_.layout.columns)
                                   names += (names.empty() ? "" : ", ") + column.name;
                               return names;
                           }()};
        });
    }
}

}  // namespace checking
