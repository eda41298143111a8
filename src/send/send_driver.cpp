#include "send/send_driver.h"

#include <algorithm>

#include "Z7XFRPCS/settings.h"
#include "client/demonstration.h"
#include "client/progress.h"
#include "messages/own_sentences.h"
#include "platform/platform.h"
#include "record/to_host/record_finder.h"
#include "request/field_descriptions.h"
#include "request/options_clause.h"
#include "request/send_statement.h"
#include "request/statement_exchange.h"
#include "request/statement_writer.h"
#include "send/text_records.h"
#include "settings/pc_file_types.h"

namespace send {
namespace {

namespace id = zhst::setting;
using services::ProgressCommand;

constexpr std::string_view TargetExistsMessages[] = {"IWS2036", "IWS2023"};

constexpr std::uint32_t ReadBufferSize = 4096;
constexpr std::uint32_t FirstDataTuple = 3;  // behind the header and the column names
constexpr char PcBlank = 0x20;
constexpr char HostBlank = 0x40;

// What the records of a run go through, made once the request is accepted.
struct Sending {
    Sending(ZXFRPCSCLIENT& client, const record::FileRules& rules)
        : sender(client, rules), textRecords(client, sender) {}

    RecordSender sender;
    TextRecords textRecords;
};

// One transfer to the host. Each step is true when the next one may follow.
class SendRun {
public:
    explicit SendRun(ZXFRPCSCLIENT& client) : client_(client), settings_(*client.transferSettings) {}

    void run();

private:
    bool createProgressDialog();
    bool openPcFile();
    bool composeRequests(std::string_view& options);
    bool allocateReadBuffer();
    bool sendRequest();
    bool isAccepted();
    bool targetExists() const;
    bool confirmReplacement();
    bool readLayout();
    bool prepareData();
    bool showFileType();
    bool sendRecords();
    ReadOutcome sendRead(std::string_view read);
    ReadOutcome sendBinaryRecord(std::string_view read);
    void finish();

    bool isText() const { return settings::recordRules(settings_.sendFileType).isText(); }
    bool goesOn() const { return client_.cancelRequested == 0; }
    void command(ProgressCommand code) { client::progress::command(client_, code); }
    void showPosition() {
        services::SetSetting(client_.settings, id::ProgressCount,
                             static_cast<std::int32_t>(client_.fileObject->position()));
    }
    messages::Owner owner() const { return client_.dialogOwner(); }
    bool fail(std::uint32_t message) const {
        messages::show(owner(), message);
        return false;
    }

    ZXFRPCSCLIENT& client_;
    settings::TransferSettings& settings_;
    services::OwnedBytes readBuffer_;
    services::Owned<Sending> sending_;
    std::uint32_t filePosition_ = 0;
    std::uint32_t binaryRecords_ = 0;  // records of a file that is not text-like
};

void SendRun::run() {
    if (!createProgressDialog()) return;
    if (client_.isDemonstration()) {
        client::runDemonstration(client_, services::Direction::ToHost);
        return;
    }
    std::string_view options;
    if (!openPcFile() || !composeRequests(options) || !allocateReadBuffer()) return;
    if (request::exchangeStatement(client_, options, services::Direction::ToHost) && sendRequest() && readLayout() &&
        prepareData() && sendRecords()) {
        showPosition();
        command(ProgressCommand::AllDataTransferred);
    }
    finish();
}

bool SendRun::createProgressDialog() {
    if (client::progress::create(client_, services::Direction::ToHost)) return true;
    messages::show(client_.popupOwner(), zhst::message::OutOfMemory);
    return false;
}

bool SendRun::openPcFile() { return client_.fileObject->openForReading(); }

bool SendRun::composeRequests(std::string_view& options) {
    if (!request::composeSendStatement(client_)) return false;
    command(ProgressCommand::Starting);
    command(ProgressCommand::OptionsRequest);
    return request::composeOptionsClause(client_, options) && goesOn();
}

bool SendRun::allocateReadBuffer() {
    readBuffer_ = services::OwnedBytes::make(ReadBufferSize, false);
    if (readBuffer_) return true;
    const messages::HiddenDialog hidden(client_.progressDialog);
    return fail(zhst::message::OutOfMemory);
}

bool SendRun::sendRequest() {
    if (!goesOn()) return false;
    command(ProgressCommand::TransferRequest);
    if (!request::sessionStands(client_)) return false;
    request::StatementWriter statement(client_.tfSession->dataBuffer());
    statement.append(client_.requestText->view());
    if (!statement.fits()) return request::refuseLongStatement(client_);
    request::sendStatement(client_, statement.text(), services::Direction::ToHost, client_.progressDialog);
    return isAccepted() && goesOn();
}

bool SendRun::isAccepted() {
    if (!targetExists()) return request::checkLastResult(client_, request::SendingRequest);
    return settings_.createMode != zhst::value::ReplaceMember || confirmReplacement();
}

bool SendRun::targetExists() const {
    if (client_.lastResult.returnCode != TF_TARGET_EXISTS) return false;
    const std::string_view hostText = client_.tfSession->returned(client_.lastResult);
    return std::any_of(std::begin(TargetExistsMessages), std::end(TargetExistsMessages),
                       [&](std::string_view id) { return hostText.starts_with(id); });
}

// Asked whatever messages the user has switched off: without an answer nothing may be replaced.
bool SendRun::confirmReplacement() {
    constexpr zhst::CatalogueText Question = zhst::text::ReplaceHostFile;
    const messages::Box box = messages::boxOf(Question).gatedBy(messages::Box::NoGate);
    return messages::show(client_.messageOwner(), box, client_.hostFileName) == Question.goesOn;
}

bool SendRun::readLayout() {
    if (!request::sessionStands(client_)) return false;
    sending_ = services::Owned<Sending>::make(client_, record::FileRules(settings_, settings_.sendFileType));
    if (!sending_) return fail(zhst::message::OutOfMemory);
    provider::TfResult last;
    request::readHostFields(client_, sending_->sender.layout(), services::Direction::ToHost, last);
    // A list that was cut short, which has been reported, would give records of another layout than the host's.
    return last.returnCode == TF_NO_MORE_DATA && sending_->sender.prepare();
}

bool SendRun::prepareData() {
    services::FileObject& file = *client_.fileObject;
    const std::uint32_t size = file.size();
    client::progress::setTotal(client_, services::Direction::ToHost, size);
    if (settings_.createMode != zhst::value::CreateFile && sending_->sender.layout().count() > 1 &&
        settings_.hostFileType == zhst::value::SourceFile)
        return fail(zhst::message::SourceOfSeveralFields);
    if (!showFileType()) return false;
    // The header and the tuple of the column names are no data.
    if (settings_.sendFileType == settings::Dif) settings_.startRecord = FirstDataTuple;
    filePosition_ = file.position();
    command(ProgressCommand::DataBegins);
    return true;
}

bool SendRun::showFileType() {
    if (client::progress::showFileType(client_, settings_.sendFileType)) return true;
    messages::showOwnText(owner(), messages::sentence::UnknownFileType, client_.progressDialog);
    return false;
}

// True when the PC file has no more data.
bool SendRun::sendRecords() {
    const std::uint32_t readSize = isText() ? TextReadSize : sending_->sender.hostLength();
    for (;;) {
        if (!request::sessionStands(client_)) return false;
        const std::int32_t count = client_.fileObject->read(readBuffer_.data(), readSize);
        if (count <= 0) return true;
        const std::uint32_t bytes = std::min(static_cast<std::uint32_t>(count), readSize);
        const ReadOutcome outcome = sendRead({readBuffer_.data(), bytes});
        if (outcome != ReadOutcome::MoreData) return outcome == ReadOutcome::EndOfData;
        if (!goesOn()) return false;
        showPosition();
        command(ProgressCommand::ProcessMessages);
    }
}

ReadOutcome SendRun::sendRead(std::string_view read) {
    if (!isText()) return sendBinaryRecord(read);
    std::uint32_t complete = 0;
    const ReadOutcome outcome = sending_->textRecords.sendAll(read, complete);
    if (outcome != ReadOutcome::MoreData) return outcome;
    filePosition_ += complete;
    client_.fileObject->setPosition(filePosition_);
    return outcome;
}

ReadOutcome SendRun::sendBinaryRecord(std::string_view read) {
    const bool converted = settings::recordRules(settings_.sendFileType).form == settings::RecordForm::Binary;
    if (converted && read[0] == record::to_host::EndOfFileByte &&
        services::GetSetting(client_.settings, id::EofByteEndsFile) != 0)
        return ReadOutcome::EndOfData;
    RecordSender& sender = sending_->sender;
    const bool sent = sender.place(read, converted ? PcBlank : HostBlank) &&
                      sender.convertAndPut(sender.hostLength(), ++binaryRecords_, request::SendingRecord);
    return sent ? ReadOutcome::MoreData : ReadOutcome::Failure;
}

void SendRun::finish() {
    provider::TransferFunctionSession& tf = *client_.tfSession;
    tf.tfEndRequest();
    command(ProgressCommand::Ended);
    if (sending_ && settings_.startRecord > 1 && settings_.startRecord > sending_->textRecords.count()) tf.tfEndData();
    sending_.reset();
}

}  // namespace

void sendToHost(ZXFRPCSCLIENT& client) {
    SendRun run(client);
    run.run();
}

}  // namespace send
