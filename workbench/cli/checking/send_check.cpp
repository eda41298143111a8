#include "checking/send_check.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <optional>
#include <stdexcept>

#include "Z7XFRPCS/dialogs.h"
#include "Z7XFRPCS/messages.h"
#include "checking/file_signs.h"
#include "checking/host_text.h"
#include "checking/looking_host.h"
#include "checking/record_check.h"
#include "checking/record_places.h"
#include "console.h"
#include "emulator/catalogue.h"
#include "progress_bar.h"
#include "silent_transfer.h"

namespace checking {
namespace {

namespace setting = zhst::setting;
namespace catalogue = emulator::catalogue;

constexpr std::uint32_t ToHost = 1;

// The item of the monitor store that a sent record goes to.
constexpr std::string_view RecordItem = "XUFI";

// Two empty tuples, for the header and the names of the columns, which the library skips.
constexpr char TuplesToSkip[] = "-1,0\r\nBOT\r\n-1,0\r\nBOT\r\n";
constexpr std::uint64_t SkippedTuples = 2;

constexpr std::int32_t NoType = -1;

// The PC file type that a command of the progress dialog shows.
std::int32_t shownType(std::uint32_t command) {
    constexpr std::uint32_t commands[] = {
#define PC_FILE_TYPE(number, name, shortName, command, form, separator, quotes, hex, meaning) command,
        ZHST_PC_FILE_TYPES(PC_FILE_TYPE)
#undef PC_FILE_TYPE
    };
    const auto* place = std::find(std::begin(commands), std::end(commands), command);
    return place == std::end(commands) ? NoType : static_cast<std::int32_t>(place - std::begin(commands));
}

std::string onOneLine(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](unsigned char byte) { return byte < ' '; }, ' ');
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

}  // namespace

// --- The records ---------------------------------------------------------------------------------------------------

// The transfers that the file goes through: one, and another behind every refused record.
class SendCheck::Run {
public:
    Run(SendCheck& check, LookingHost& host);

    Verdict run();

private:
    void begin(std::int32_t type);
    void startBehind(std::uint64_t index);
    void take(std::string_view hostRecord);
    std::string_view pcRecord();
    bool stoppedAtRecord();
    void refuseLast();
    void refuseHeader(std::uint64_t index);
    void finish();
    void tellHeader(std::uint64_t index);
    void tellOfFile(Fault fault, const std::string& place, const std::string& text, const std::string& reason) {
        check_.findings_.addOfFile({fault, place, "", text, "", reason});
    }
    bool looksAtAll() const { return check_.extent_ == Extent::WholeFile; }
    std::uint64_t lastIndex() const { return firstIndex_ + (form_.isText() ? published_ : taken_) - 1; }
    const emulator::MessageBox* messageOf(std::uint32_t id) const;
    std::string said() const;
    std::string nameOf(std::uint64_t index) {
        places_->moveTo(index);
        return places_->name();
    }
    Finding ofRecord(Fault fault, std::uint64_t index, const std::string& reason) {
        return {fault, nameOf(index), "", "", "", reason};
    }

    SendCheck& check_;
    LookingHost& host_;
    SilentTransfer transfer_;
    ProgressBar bar_;
    std::filesystem::path path_;

    // From the beginning of the data on.
    PcFileForm form_;
    std::optional<RecordPlaces> places_;
    std::optional<RecordCheck> records_;
    std::optional<RecordFields> fields_;
    std::optional<Utf8Watch> utf8_;
    std::ifstream file_;  // of records that are not published, as they have no ends
    std::string fileRecord_;
    std::string utf8Place_;

    // Of one transfer.
    std::uint64_t firstIndex_ = 0;             // of its first record in the file
    std::uint64_t published_ = 0, taken_ = 0;  // records so far
    std::string_view last_;                    // the record that was published last
    bool isPending_ = false;                   // and has not been taken
    bool isComplete_ = false;
    bool hasData_ = false;
};

SendCheck::Run::Run(SendCheck& check, LookingHost& host)
    : check_(check),
      host_(host),
      transfer_(check.library_, check.session_),
      bar_(!check.line_.quiet && console::isTerminal(console::Stream::Error)),
      path_(emulator::nativePath(emulator::text(check.session_, setting::PcFileName))) {
    host_.onRecord = [this](std::string_view record) { take(record); };
    transfer_.onStoreWrite = [this](std::string_view code, std::string_view value) {
        if (code != RecordItem) return;
        last_ = value;
        isPending_ = !value.empty();
        ++published_;
        if (utf8_ && utf8_->look(value)) utf8Place_ = nameOf(lastIndex());
    };
    transfer_.onProgressCommand = [this](std::uint32_t command) {
        if (const std::int32_t type = shownType(command); type != NoType) begin(type);
        if (command == ZhstDataBegins) hasData_ = true;
        if (command == ZhstAllDataTransferred) isComplete_ = true;
    };
    transfer_.onPump = [this] {
        if (console::interrupted()) transfer_.cancel();
        bar_.advance(check_.records_, ProgressBar::Unit::Records);
    };
}

// The type is known: with it the form of the file, and where its first record stands.
void SendCheck::Run::begin(std::int32_t type) {
    if (records_) return;
    const ZhstSession session = check_.session_;
    const bool toSource = emulator::number(session, setting::HostFileType) == zhst::value::SourceFile &&
                          emulator::number(session, setting::UseDescriptionFile) != 1;
    form_ = pcFileForm(session, check_.line_.pc, type, toSource);
    places_.emplace(path_, form_, check_.target_.layout.recordLength());
    records_.emplace(form_, check_.target_.layout, check_.findings_,
                     [this](std::uint64_t index) { return nameOf(index); });
    fields_.emplace(form_, check_.target_.layout.columns);
    utf8_.emplace(form_);
    if (form_.form == RecordForm::Tuples)
        firstIndex_ = SkippedTuples;
    else if (form_.isText())
        firstIndex_ = static_cast<std::uint64_t>(std::max(emulator::number(session, setting::StartRecord), 1)) - 1;
    else
        file_.open(path_, std::ios::binary);
}

Verdict SendCheck::Run::run() {
    bar_.begin();
    bar_.phase("checking");
    do {
        published_ = taken_ = 0;
        isPending_ = isComplete_ = hasData_ = false;
        transfer_.run(ToHost);
    } while (!console::interrupted() && stoppedAtRecord() && looksAtAll());
    bar_.end();
    emulator::setReadingStart({});
    if (console::interrupted()) return Verdict::Cancelled;
    if (!looksAtAll() && check_.findings_.refused() > 0) return Verdict::Refused;
    if (!isComplete_) {
        check_.reason_ = said();
        return Verdict::NotChecked;
    }
    if (looksAtAll()) finish();
    if (check_.findings_.refused() > 0) return Verdict::Refused;
    return check_.findings_.isEmpty() ? Verdict::Sound : Verdict::Changes;
}

const emulator::MessageBox* SendCheck::Run::messageOf(std::uint32_t id) const {
    const auto& messages = transfer_.messages();
    const auto found = std::find_if(messages.begin(), messages.end(), [id](const auto& box) { return box.id == id; });
    return found == messages.end() ? nullptr : &*found;
}

std::string SendCheck::Run::said() const {
    if (transfer_.messages().empty()) return "the transfer library ended without a word";
    return onOneLine(check_.pcText_.toTerminal(transfer_.messages().front().text));
}

// --- What was taken

std::string_view SendCheck::Run::pcRecord() {
    if (form_.isText()) return last_;
    fileRecord_.resize(check_.target_.layout.recordLength());
    file_.read(fileRecord_.data(), static_cast<std::streamsize>(fileRecord_.size()));
    fileRecord_.resize(static_cast<std::size_t>(file_.gcount()));
    return fileRecord_;
}

void SendCheck::Run::take(std::string_view hostRecord) {
    ++taken_;
    ++check_.records_;
    isPending_ = false;
    const std::string_view record = pcRecord();
    if (!looksAtAll()) return;
    const std::uint64_t index = lastIndex();
    if (check_.records_ == 1) tellHeader(index);
    if (!form_.isText() && record.size() < check_.target_.layout.recordLength()) {
        check_.findings_.add(Fault::ShortRecord, Findings::NoColumn, [&] {
            return ofRecord(Fault::ShortRecord, index,
                            "it has " + std::to_string(record.size()) + " bytes of " +
                                std::to_string(check_.target_.layout.recordLength()));
        });
    } else if (form_.form != RecordForm::Unchanged) {
        records_->compare(index, record, hostRecord);
    }
}

void SendCheck::Run::tellHeader(std::uint64_t index) {
    if (!form_.isText() || form_.wholeLines || form_.isFixed() || form_.form == RecordForm::Tuples) return;
    fields_->split(last_);
    if (!isHeaderLine(fields_->fields(), check_.target_.layout.columns)) return;
    tellOfFile(Fault::HeaderLine, nameOf(index), check_.pcText_.toTerminal(last_),
               "it holds the names of the fields, and would be sent as a record");
}

// --- What was refused

// True when the run ended at a record that was refused, and another can begin behind it.
bool SendCheck::Run::stoppedAtRecord() {
    if (isComplete_ || !hasData_ || !records_) return false;
    const bool isLong = messageOf(zhst::message::RecordTooLong) != nullptr;
    const bool isRefused = form_.isText() ? isPending_ : !transfer_.messages().empty();
    if (!isLong && !isRefused) return false;
    ++check_.records_;
    if (isLong) {
        ++published_;
        check_.findings_.add(Fault::RecordTooLong, Findings::NoColumn, [&] {
            return ofRecord(Fault::RecordTooLong, lastIndex(), "a record has at most 4,094 characters");
        });
    } else {
        refuseLast();
    }
    startBehind(lastIndex());
    return true;
}

void SendCheck::Run::refuseLast() {
    if (!form_.isText()) ++taken_;
    const std::string_view record = pcRecord();
    const std::uint64_t index = lastIndex();
    if (check_.records_ == 1 && form_.isText() && form_.separator != '\0') {
        fields_->split(record);
        if (isHeaderLine(fields_->fields(), check_.target_.layout.columns)) return refuseHeader(index);
    }
    const emulator::MessageBox* box = messageOf(catalogue::messageId(zhst::text::BadNumber));
    const bool isNamed = box != nullptr && box->inserts.size() == 2;
    const auto field = isNamed ? static_cast<std::uint32_t>(std::stoul(box->inserts[1])) : 0;
    records_->refuse(index, record, field, said());
}

void SendCheck::Run::refuseHeader(std::uint64_t index) {
    tellOfFile(Fault::HeaderRefused, nameOf(index), check_.pcText_.toTerminal(last_),
               "it holds the names of the fields");
}

// The library goes on at the first record that it sees; tuples it skips stand in front.
void SendCheck::Run::startBehind(std::uint64_t index) {
    places_->moveTo(index + 1);
    firstIndex_ = index + 1;
    const bool isTuples = form_.form == RecordForm::Tuples;
    emulator::setReadingStart({isTuples ? TuplesToSkip : "", places_->offset()});
    if (!isTuples) emulator::set(check_.session_, setting::StartRecord, 1);
    if (form_.isText()) return;
    file_.clear();
    file_.seekg(static_cast<std::streamoff>(places_->offset()));
}

// --- What the file as a whole gives away

void SendCheck::Run::finish() {
    const std::string encoding = form_.isText() ? markedEncoding(path_) : std::string();
    if (!encoding.empty()) {
        tellOfFile(Fault::ByteOrderMark, "", "",
                   "it begins with the byte order mark of " + encoding + ", which would be sent as text");
    }
    if (utf8_ && utf8_->isUtf8()) {
        tellOfFile(Fault::Utf8, utf8Place_, check_.pcText_.toTerminal(utf8_->word()),
                   "all that is not ASCII in this file is UTF-8, as this is for \"" + utf8_->word() +
                       "\"; the code page of the PC is " + std::to_string(form_.pc.ansiCodePage));
    }
    if (check_.records_ == 0) tellOfFile(Fault::NoRecord, "", "", "it gives no record to send");
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
    host.setLayout(&target_.layout);
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
            const auto& messages = transfer.messages();
            isToldBySend_ = true;
            reason_ = messages.empty() ? "no request was made" : onOneLine(pcText_.toTerminal(messages.front().text));
            return false;
        }
    }
    target_ = targetLayout(library_, pcText_, session_, options, request);
    reason_ = target_.layout.refusal;
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
