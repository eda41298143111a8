#include "receive/receive_driver.h"

#include "Z7XFRPCS/exports.h"
#include "Z7XFRPCS/settings.h"
#include "client/demonstration.h"
#include "client/display_pages.h"
#include "client/progress.h"
#include "fdf/fdf_writer.h"
#include "messages/own_sentences.h"
#include "platform/platform.h"
#include "receive/conversion_failure.h"
#include "receive/dif_header.h"
#include "receive/spreadsheet.h"
#include "record/dif_pieces.h"
#include "record/to_pc/display_table.h"
#include "record/to_pc/record_to_pc.h"
#include "request/field_descriptions.h"
#include "request/options_clause.h"
#include "request/query_clauses.h"
#include "request/select_statement.h"
#include "request/statement_exchange.h"
#include "settings/pc_file_types.h"

namespace receive {
namespace {

namespace id = zhst::setting;
using services::ProgressCommand;

// Progress is shown for every record of a small result, and in larger steps for larger ones.
bool isProgressStep(std::int32_t expectedCount, std::int32_t recordNumber) {
    if (expectedCount <= 200) return true;
    return recordNumber % (expectedCount < 500 ? 50 : 100) == 0;
}

// What converts the records of a run, made once the query is accepted.
struct Conversion {
    Conversion(const record::FileRules& rules, const ZXFRPCSCLIENT& client, services::TextDisplayHandle display)
        : layout(rules), records(layout, client.tfSession->codePage(), client.settings, display) {}

    record::HostLayout layout;
    record::to_pc::RecordToPc records;
};

// One transfer from the host. Each step is true when the next one may follow.
class ReceiveRun {
public:
    explicit ReceiveRun(ZXFRPCSCLIENT& client)
        : client_(client),
          settings_(*client.transferSettings),
          pages_(client, services::GetSetting(client.settings, id::DisplayRowsPerPage),
                 client::DisplayPages::Texts::LoadedOnce) {
        client_.lastResult.returnCode = TF_NO_MORE_DATA;  // no request is open
    }

    void run();

private:
    bool settingsFit();
    void prepareDisplay();
    void resetJobSettings();
    bool createProgressDialog();
    bool transfer();
    bool countRecords();
    bool tellNoRecords();
    bool sendOptions();
    bool sendQuery();
    bool readFields();
    bool prepareOutput();
    bool beginDisplay();
    bool openPcFile();
    bool transferRecords();
    bool transferRecord();
    bool writePcRecord(std::string_view bytes);
    bool showRow();
    void showProgress();
    void finishOutput();
    void cleanUp();

    bool toDisplay() const { return settings_.receiveOutput == zhst::value::ToDisplay; }
    bool toFile() const {
        return settings_.receiveOutput == zhst::value::ToPcFile ||
               settings_.receiveOutput == zhst::value::ToSpreadsheet;
    }
    bool isDif() const { return settings_.receiveFileType == settings::Dif; }
    bool existingFileActionIs(std::int32_t action) const {
        return services::GetSetting(client_.settings, id::ExistingFileAction) == action;
    }
    // Completed without data, where records would go on for ever.
    bool isCompletion() const {
        return client_.lastResult.returnCode == TF_COMPLETED && client_.lastResult.dataLength == 0;
    }
    bool goesOn() const { return client_.cancelRequested == 0; }
    void command(ProgressCommand code) { client::progress::command(client_, code); }
    messages::Owner owner() const { return client_.dialogOwner(); }
    bool fail(std::uint32_t message) const {
        messages::show(owner(), message);
        return false;
    }

    ZXFRPCSCLIENT& client_;
    settings::TransferSettings& settings_;
    client::DisplayPages pages_;
    std::int32_t expectedCount_ = 0;  // 0 when it is not known: every record is a progress step
    std::int32_t recordNumber_ = 1;
    services::Owned<Conversion> conversion_;
};

void ReceiveRun::run() {
    if (!settingsFit()) return;
    if (!client_.fileObject) prepareDisplay();
    resetJobSettings();
    if (createProgressDialog()) {
        if (client_.isDemonstration())
            client::runDemonstration(client_, services::Direction::FromHost);
        else if (transfer())
            finishOutput();
    }
    cleanUp();
}

// Both would give files that nobody can read: a comma that separates decimals and fields, a second DIF header in a
// file.
bool ReceiveRun::settingsFit() {
    if (settings_.receiveFileType == settings::CommaSeparated && settings_.decimalSeparator == ',' &&
        settings_.listSeparator == ',')
        return fail(zhst::message::SeparatorsAlike);
    return !isDif() || !existingFileActionIs(zhst::value::Append) || fail(zhst::message::DifNotAppended);
}

void ReceiveRun::prepareDisplay() {
    const services::TextDisplayParameters parameters = {
        client_.ownerWindow,          client_.session, pages_.loadTitle(), TextDisplayMoreNotification, 0,
        TextDisplayCloseNotification, &client_};
    client_.textDisplay = services::TextDisplayCreate(&parameters);
    messages::loadText(client_.session, zhst::text::DisplayName, client_.pcFileName);
}

// They are inserts of the message that a transfer was not completed, which may come before any is known.
void ReceiveRun::resetJobSettings() {
    services::SetSetting(client_.settings, id::JobRecordsReceived, 0);
    services::SetSetting(client_.settings, id::JobRecordsTotal, 0);
    for (const std::uint32_t setting : {id::JobName, id::JobUser, id::JobNumber})
        services::SetStringSetting(client_.settings, setting, "*");
}

bool ReceiveRun::createProgressDialog() {
    if (!client::progress::create(client_, services::Direction::FromHost)) return fail(zhst::message::OutOfMemory);
    command(ProgressCommand::Starting);
    return true;
}

bool ReceiveRun::transfer() {
    return request::composeQueryClauses(client_, true, false) && countRecords() && sendOptions() && sendQuery() &&
           readFields() && prepareOutput() && transferRecords();
}

bool ReceiveRun::countRecords() {
    if (settings_.recordProgress != 1 && !isDif()) return true;
    command(ProgressCommand::CountingRecords);
    const std::int32_t count = request::queryRecordCount(client_);
    if (count == request::CountFailed) return false;
    if (count == 0) return tellNoRecords();
    if (count == request::CountUnknown) {
        // Without a total the dialog only counts, but it is to know what.
        services::SetSetting(client_.settings, id::TransferDirection,
                             static_cast<std::int32_t>(services::Direction::FromHost));
        return true;
    }
    expectedCount_ = count;
    services::SetSetting(client_.settings, id::JobRecordsTotal, count);
    client::progress::setTotal(client_, services::Direction::FromHost, static_cast<std::uint32_t>(count));
    return true;
}

bool ReceiveRun::tellNoRecords() {
    const messages::HiddenDialog hidden(client_.progressDialog);
    if (messages::isEnabled(owner(), messages::Box::InGeneral))
        messages::show(owner(), messages::boxOf(zhst::text::NoRecords).gatedBy(messages::Box::NoGate));
    return false;
}

bool ReceiveRun::sendOptions() {
    command(ProgressCommand::OptionsRequest);
    std::string_view options;
    if (!request::composeOptionsClause(client_, options) ||
        !request::exchangeStatement(client_, options, services::Direction::FromHost))
        return false;
    command(ProgressCommand::ProcessMessages);
    return goesOn();
}

bool ReceiveRun::sendQuery() {
    if (!request::composeQueryClauses(client_, false, true) || !goesOn()) return false;
    command(ProgressCommand::TransferRequest);
    std::string_view statement;
    return request::sessionStands(client_) && request::composeSelectStatement(client_, statement) &&
           request::exchangeStatement(client_, statement, services::Direction::FromHost) && goesOn();
}

bool ReceiveRun::readFields() {
    command(ProgressCommand::PreparingConversion);
    const record::FileRules rules(settings_, settings_.receiveFileType, toDisplay());
    conversion_ = services::Owned<Conversion>::make(rules, client_, toDisplay() ? client_.textDisplay : 0);
    if (!conversion_) return fail(zhst::message::OutOfMemory);
    // Without descriptions the record loop goes on: there the provider says what became of the request.
    provider::TfResult last;
    request::readHostFields(client_, conversion_->layout, services::Direction::FromHost, last);
    if (!request::sessionStands(client_) || !goesOn()) return false;
    client::progress::showFileType(client_, settings_.receiveFileType);
    command(ProgressCommand::DataBegins);
    return true;
}

bool ReceiveRun::prepareOutput() {
    if (toDisplay()) return beginDisplay();
    return !client_.fileObject || openPcFile();
}

bool ReceiveRun::beginDisplay() {
    client::progress::destroy(client_);
    if (!client_.textDisplay || !services::TextDisplayBegin(client_.textDisplay, pages_.rowsPerPage(), 0))
        return fail(zhst::message::DisplayNotBegun);
    record::to_pc::defineDisplayColumns(conversion_->layout, client_.textDisplay);
    pages_.begin();
    pages_.loadPrompt();
    return true;
}

bool ReceiveRun::openPcFile() {
    services::FileObject& file = *client_.fileObject;
    if (isDif() && existingFileActionIs(zhst::value::AskUser)) file.prepareNewFile();
    if (!file.openForWriting()) return false;
    // The name as it was opened, in lower case, is what the description and the spreadsheet program go by.
    file.openedName(client_.pcFileName);
    platform::CharLowerA(client_.pcFileName);
    if (settings_.writeDescriptionFile)
        fdf::writeFdf(*client_.transferContext, conversion_->layout, client_.pcFileName);
    if (isDif()) writeDifHeader(conversion_->layout, expectedCount_, file);
    return true;
}

// True when the host has no more records.
bool ReceiveRun::transferRecords() {
    provider::TransferFunctionSession& tf = *client_.tfSession;
    for (;; ++recordNumber_) {
        if (!request::sessionStands(client_)) return false;
        // The record about to be fetched, not the last received: after N records it stands at N + 1.
        services::SetSetting(client_.settings, id::JobRecordsReceived, recordNumber_);
        tf.tfRequest(TF_GET_DATA, 0, 0, client_.lastResult, nullptr, client_.progressDialog);
        if (client_.lastResult.returnCode == TF_NO_MORE_DATA) return true;
        if (!request::checkLastResult(client_, request::NoContext)) return false;
        if (isCompletion()) return true;
        if (!transferRecord()) return false;
        if (toDisplay()) {
            if (!showRow()) return false;
        } else {
            if (!goesOn()) return false;
            showProgress();
        }
    }
}

bool ReceiveRun::transferRecord() {
    if (client_.lastResult.dataLength > provider::BufferSize) {
        messages::showOwnText(owner(), messages::sentence::HostRecordTooLong, client_.progressDialog);
        return false;
    }
    std::string_view record;
    const record::ConversionResult result = conversion_->records.convert(
        client_.tfSession->dataBuffer(), client_.lastResult.dataLength, provider::BufferSize, record);
    if (!result.isConverted()) {
        tellConversionFailure(client_, result);
        return false;
    }
    if (writePcRecord(record)) return true;
    client_.tfSession->tfEndData();
    return false;
}

bool ReceiveRun::writePcRecord(std::string_view bytes) {
    if (!toFile()) return true;
    if (monitor::MonitorStore* store = client_.tfSession->monitorStore()) store->recordReceivedRecord(bytes);
    return client_.fileObject->write(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
}

// False when the user has closed the display.
bool ReceiveRun::showRow() {
    if (pages_.endRow()) return true;
    client_.tfSession->tfEndData();
    return false;
}

void ReceiveRun::showProgress() {
    if (!isProgressStep(expectedCount_, recordNumber_)) return;
    if (settings_.recordProgress == 1) services::SetSetting(client_.settings, id::ProgressCount, recordNumber_);
    command(ProgressCommand::ProcessMessages);
}

void ReceiveRun::finishOutput() {
    if (toDisplay()) pages_.end();
    if (!toFile()) return;
    if (settings_.recordProgress == 1) services::SetSetting(client_.settings, id::ProgressCount, recordNumber_ - 1);
    command(ProgressCommand::AllDataTransferred);
    if (isDif() && !writePcRecord(record::dif::EndOfData)) return;
    if (settings_.receiveOutput != zhst::value::ToSpreadsheet) return;
    client_.fileObject->close();
    launchSpreadsheet(client_);
}

void ReceiveRun::cleanUp() {
    conversion_.reset();
    // The request was left before its end, or the provider wants every request ended.
    if (client_.lastResult.returnCode != TF_NO_MORE_DATA || client_.tfSession->tfIsAs400Mode())
        client_.tfSession->tfEndRequest();
    if (client_.progressDialog) command(ProgressCommand::Ended);
    if (client_.textDisplay) {
        services::TextDisplayDestroy(client_.textDisplay);
        client_.textDisplay = 0;
    }
}

}  // namespace

void receiveFromHost(ZXFRPCSCLIENT& client) {
    ReceiveRun run(client);
    run.run();
}

}  // namespace receive
