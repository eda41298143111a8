#include "provider/transfer_function_session.h"

#include <algorithm>
#include <utility>

#include "Z7XFRPCS/settings.h"
#include "platform/platform.h"
#include "provider/result_judge.h"

namespace provider {
namespace {

namespace id = zhst::setting;

constexpr std::uint32_t WatchedSettings[] = {id::TransportType, id::RouterKind, id::ConnectionChanging,
                                             id::ConvertToOem, id::HostCodePage};

constexpr std::uint32_t TraceIsBinary = 1;
constexpr std::uint32_t TraceOption = 1;

constexpr char StoppedText[] =
    "The connection was ended or its settings were changed while the host was working on a request. "
    "The request was not completed.";

// The session whose dialog a waiting provider keeps alive: the first one made in this process.
TransferFunctionSession* callbackSession = nullptr;
std::uint32_t callbackProcess = 0;

bool isControl(std::uint32_t function) {
    return function == TF_END_REQUEST || function == TF_RESET || function == TF_END_DATA;
}

}  // namespace

TransferFunctionSession::TransferFunctionSession(services::SessionHandle session, services::SettingWatch watch,
                                                 TfYield yield)
    : session_(session),
      settings_(services::GetSessionSettings(session)),
      codePage_(session),
      monitorStore_(services::Owned<monitor::MonitorStore>::make()),
      sessionWindow_(services::GetSessionWindow(settings_)),
      watch_(watch),
      yield_(yield) {
    const std::int32_t hostCodePage = services::GetSetting(settings_, id::HostCodePage);
    if (!callbackSession) {
        callbackSession = this;
        callbackProcess = platform::GetCurrentProcessId();
    }
    for (const std::uint32_t setting : WatchedSettings) services::WatchSetting(settings_, setting, watch_);
    services::AttachSession(session);
    codePage_.setHostCodePage(hostCodePage);
}

TransferFunctionSession::~TransferFunctionSession() {
    tfStop();
    // A provider bound before the connection became a demonstration, and the buffer of a binding that failed.
    releaseProvider();
    for (const std::uint32_t setting : WatchedSettings) services::UnwatchSetting(settings_, setting, watch_);
    if (callbackSession == this) callbackSession = nullptr;
}

bool TransferFunctionSession::isDemonstration() const {
    return services::GetSetting(settings_, id::ConnectionType) == zhst::value::DemonstrationConnection;
}

bool TransferFunctionSession::tfStart() {
    if (started_) return true;
    if (isDemonstration()) return true;
    // Binding shows messages and calls the provider, so exports may come in and find the session half started.
    if (starting_) return false;
    connection_.settle(settings_);
    starting_ = true;
    const bool bound = allocateBuffer() && binding_.bind(session_, connection_);
    starting_ = false;
    const bool stopArrived = std::exchange(stopPending_, false);
    if (!bound) return false;
    if (stopArrived) {
        releaseProvider();
    } else {
        started_ = true;
        sendControl(TF_RESET);
        codePage_.setConvertToOem(services::GetSetting(settings_, id::ConvertToOem));
    }
    if (!started_) messages::showOwnText(messageOwner(), StoppedText);
    return started_;
}

bool TransferFunctionSession::allocateBuffer() {
    if (buffer_.allocate()) return true;
    messages::show(messageOwner(), zhst::message::BufferNotAllocated);
    return false;
}

void TransferFunctionSession::tfStop() {
    if (starting_ || (started_ && inProviderCall_ && !stopping_)) {
        stopPending_ = true;
        return;
    }
    if (!started_ || stopping_ || isDemonstration()) return;
    stopping_ = true;
    endConversation();
    releaseProvider();
    stopping_ = false;
}

void TransferFunctionSession::endConversation() {
    if (conversation_ == 0) return;
    if (binding_.family() == Family::Ibm) {
        sendControl(TF_END_DATA);
        inProviderCall_ = true;
        binding_.callStfCleanup();
        inProviderCall_ = false;
    } else if (isOwnProvider(binding_.family())) {
        sendControl(TF_RESET);
    }
    conversation_ = 0;
}

void TransferFunctionSession::releaseProvider() {
    inProviderCall_ = true;
    binding_.deleteClient();
    inProviderCall_ = false;
    buffer_.free();
    binding_.freeModules();
    if (traceFile_) std::exchange(traceFile_, nullptr)->destroy();
    started_ = false;
}

void TransferFunctionSession::tfRequest(std::uint32_t function, std::uint32_t length, std::uint32_t reserved,
                                        TfResult& result, const char* designation,
                                        services::ProgressDialogHandle dialog) {
    result = {};
    // The provider serves one call at a time; one that comes in through its yield call-back is turned away.
    if (inProviderCall_ || !tfStart() || !binding_.isBound()) {
        result.returnCode = TF_NOT_STARTED;
        return;
    }
    activeDialog_ = dialog;
    length = std::min(length, BufferSize);
    if (monitorStore_) monitorStore_->recordRequest(function, reserved, {dataBuffer(), length}, designation);
    inProviderCall_ = true;
    result = binding_.call({function, dataBuffer(), length, reserved, designation, yield_}, &conversation_);
    inProviderCall_ = false;
    activeDialog_ = 0;
    if (function == TF_END_DATA) conversation_ = 0;
    if (monitorStore_) monitorStore_->recordResult(function, result.returnCode, result.detailCode, returned(result));
    carryOutPendingStop(function, result, dialog);
}

// What the provider returned goes with the provider.
void TransferFunctionSession::carryOutPendingStop(std::uint32_t function, TfResult& result,
                                                  services::ProgressDialogHandle dialog) {
    if (stopping_ || !std::exchange(stopPending_, false)) return;
    tfStop();
    connection_.read(settings_);
    result = {};
    result.returnCode = TF_NOT_STARTED;
    if (!isControl(function)) tellInterruption(dialog);
}

// The code of the exchange before would stand in the settings and read as success.
void TransferFunctionSession::tellInterruption(services::ProgressDialogHandle dialog) const {
    services::SetSetting(settings_, id::LastReturnCode, TF_NOT_STARTED);
    messages::showOwnText(messageOwner(), StoppedText, dialog);
}

void TransferFunctionSession::sendControl(TfFunction function) {
    tfRequest(function, 0, 0, controlResult_, nullptr, 0);
}

// A session that was stopped has no request left to end, and is not started again for it.
void TransferFunctionSession::tfEndRequest() {
    if (started_ && !isDemonstration()) sendControl(TF_END_REQUEST);
}

void TransferFunctionSession::tfEndData() {
    if (inProviderCall_) return;
    if (started_) sendControl(TF_END_DATA);
    conversation_ = 0;
}

void TransferFunctionSession::tfTraceOn(const char* fileName) {
    if (!traceFile_) traceFile_ = services::CreateFileObject(session_);
    if (!traceFile_) return;
    traceFile_->setName(fileName);
    traceFile_->setTypeFlag(TraceIsBinary);
    traceFile_->setExistingFileAction(zhst::value::Append);
    traceFile_->setOption(TraceOption);
}

// A result with a length but no address has no host text, and is told as one without.
bool TransferFunctionSession::tfCheckResult(std::uint32_t contextText, const TfResult& result,
                                            services::ProgressDialogHandle dialog) {
    return started_ && judgeResult(messageOwner(), connection_, {result, returned(result), contextText, dialog});
}

void TransferFunctionSession::yieldToDialog() {
    if (!callbackSession || callbackProcess != platform::GetCurrentProcessId()) return;
    if (const services::ProgressDialogHandle dialog = callbackSession->activeDialog_)
        services::ProgressDialogCommand(dialog, services::ProgressCommand::ProcessMessages);
}

void TransferFunctionSession::onSettingChanged(std::uint32_t setting, std::int32_t newValue, std::int32_t oldValue) {
    if (newValue == oldValue) return;
    if (setting == id::HostCodePage) codePage_.setHostCodePage(newValue);
    if (setting == id::ConvertToOem) codePage_.setConvertToOem(newValue);
    if (setting == id::TransportType) changeConnection(&Connection::transportType, newValue);
    if (setting == id::RouterKind) changeConnection(&Connection::routerKind, newValue);
    if (setting == id::ConnectionChanging) onConnectionChanging(newValue != 0);
}

// An idle session takes no note: it reads both settings when it starts. A stop that waits keeps the values of the
// provider it has to take leave of, and reads both settings behind it.
void TransferFunctionSession::changeConnection(std::int32_t Connection::*setting, std::int32_t value) {
    if (change_.isUnderWay()) {
        change_.keep(setting, value);
        return;
    }
    if (!started_ && !starting_) return;
    tfStop();
    if (!stopPending_) connection_.*setting = value;
}

void TransferFunctionSession::onConnectionChanging(bool changing) {
    if (changing) {
        change_.begin();
    } else if (change_.end(connection_)) {
        tfStop();
        if (!stopPending_) connection_.read(settings_);
    }
}

}  // namespace provider
