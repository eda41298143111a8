#include "provider/transfer_function_session.h"

#include <algorithm>

#include "Z7XFRPCS/exports.h"
#include "Z7XFRPCS/settings.h"
#include "platform/platform.h"
#include "provider/result_judge.h"

namespace provider {
namespace {

namespace id = zhst::setting;

constexpr std::uint32_t WatchedSettings[] = {
#define WATCHED_SETTING(name, effect) id::name,
    ZHST_WATCHED_SETTINGS(WATCHED_SETTING)
#undef WATCHED_SETTING
};

constexpr std::uint32_t TraceIsBinary = 1;
constexpr std::uint32_t TraceOption = 1;

// The only state of the process, not of a session: who is meant when a provider calls back. The process is noted, since
// the data of a library may be seen by several.
struct YieldTarget {
    TransferFunctionSession* session = nullptr;
    std::uint32_t process = 0;
};
YieldTarget yieldTarget;

// Behind any other code the data are a message of the host.
bool isRecord(const TfResult& result) { return result.returnCode == TF_SUCCESS || result.returnCode == TF_COMPLETED; }

}  // namespace

TransferFunctionSession::TransferFunctionSession(services::SessionHandle session, services::SettingWatch watch,
                                                 TfYield yield)
    : owner_{session, services::GetSessionSettings(session), 0},
      binding_(owner_, services::GetPathServices(session)),
      codePage_(session),
      monitorStore_(services::Owned<monitor::MonitorStore>::make()),
      watch_(watch),
      yield_(yield) {
    owner_.window = services::GetSessionWindow(owner_.settings);
    const std::int32_t hostCodePage = services::GetSetting(owner_.settings, id::HostCodePage);
    if (!yieldTarget.session) yieldTarget = {this, platform::GetCurrentProcessId()};
    for (const std::uint32_t setting : WatchedSettings) services::WatchSetting(owner_.settings, setting, watch_);
    services::AttachSession(session);
    codePage_.setHostCodePage(hostCodePage);
}

TransferFunctionSession::~TransferFunctionSession() {
    tfStop();
    // A provider bound before the connection became a demonstration, and the buffer of a binding that failed.
    releaseProvider();
    for (const std::uint32_t setting : WatchedSettings) services::UnwatchSetting(owner_.settings, setting, watch_);
    if (yieldTarget.session == this) yieldTarget.session = nullptr;
}

bool TransferFunctionSession::isDemonstration() const {
    return services::GetSetting(owner_.settings, id::ConnectionType) == zhst::value::DemonstrationConnection;
}

bool TransferFunctionSession::tfStart() {
    if (stopIsOwed_ && phase_.isReady()) stop(Interruption::ConnectionChange);
    if (isStarted() || isDemonstration()) return true;
    // Binding shows messages and calls the provider, so exports may come in and find the session half started.
    if (isWaiting()) return false;
    interruption_ = Interruption::None;
    connection_.settle(owner_.settings);
    phase_.beginBinding();
    const bool bound = allocateBuffer() && binding_.bind(connection_);
    phase_.endBinding(bound);
    if (!bound) return false;
    if (isStarted()) {
        sendControl(TF_RESET);
        codePage_.setConvertToOem(services::GetSetting(owner_.settings, id::ConvertToOem));
    } else {
        releaseProvider();
    }
    return isStarted();
}

bool TransferFunctionSession::allocateBuffer() {
    if (buffer_.allocate()) return true;
    messages::show(owner_, zhst::message::BufferNotAllocated);
    return false;
}

// A connection that has become the demonstration keeps its provider, and so keeps in mind that another one is wanted.
void TransferFunctionSession::stop(Interruption reason) {
    const bool waits = phase_.deferStop();
    if (!waits && !phase_.isReady()) return;
    if (!waits && isDemonstration()) {
        stopIsOwed_ = stopIsOwed_ || reason == Interruption::ConnectionChange;
        return;
    }
    interruption_ = std::max(interruption_, reason);
    if (waits) return;
    stopIsOwed_ = false;
    phase_.beginStop();
    endConversation();
    releaseProvider();
}

// The IBM provider's clean-up is for a conversation, and so is not called without one.
void TransferFunctionSession::endConversation() {
    if (conversation_ == 0) return;
    if (binding_.family() == Family::Ibm) {
        sendControl(TF_END_DATA);
        const SessionPhase::ProviderCall call(phase_);
        binding_.callStfCleanup();
    } else if (isOwnProvider(binding_.family())) {
        sendControl(TF_RESET);
    }
    conversation_ = 0;
}

// The client goes first: it may use the buffer, and needs its library, to its end.
void TransferFunctionSession::releaseProvider() {
    {
        const SessionPhase::ProviderCall call(phase_);
        binding_.deleteClient();
    }
    buffer_.free();
    binding_.freeModules();
    traceFile_ = services::OwnedFile();
    phase_.released();
}

void TransferFunctionSession::tfRequest(std::uint32_t function, std::uint32_t length, std::uint32_t reserved,
                                        TfResult& result, const char* designation,
                                        services::ProgressDialogHandle dialog) {
    result = {};
    // The provider serves one call at a time; one that comes in through its yield call-back is turned away. In a
    // demonstration the session starts without a provider.
    if (phase_.isCalling() || (!isStarted() && !tfStart()) || !binding_.isBound()) {
        result.returnCode = TF_NOT_STARTED;
        return;
    }
    activeDialog_ = dialog;
    length = std::min(length, BufferSize);
    if (monitorStore_) monitorStore_->recordRequest(function, reserved, {dataBuffer(), length}, designation);
    {
        const SessionPhase::ProviderCall call(phase_);
        result = binding_.call({function, dataBuffer(), length, reserved, designation, yield_}, &conversation_);
    }
    activeDialog_ = 0;
    if (function == TF_END_DATA) conversation_ = 0;
    if (monitorStore_) monitorStore_->recordResult(function, result.returnCode, result.detailCode, returned(result));
    if (function == TF_GET_DATA && isRecord(result)) buffer_.take(result);
    if (phase_.takePendingStop()) carryOutPendingStop(result);
}

// What the provider returned goes with the provider.
void TransferFunctionSession::carryOutPendingStop(TfResult& result) {
    stop(takeInterruption());
    if (isStarted()) return;
    connection_.read(owner_.settings);
    result = {TF_NOT_STARTED};
}

void TransferFunctionSession::sendControl(TfFunction function) {
    tfRequest(function, 0, 0, controlResult_, nullptr, 0);
}

// A session that was stopped has no request left to end, and is not started again for it.
void TransferFunctionSession::tfEndRequest() {
    if (isStarted() && !isDemonstration()) sendControl(TF_END_REQUEST);
}

// During a call the conversation is the provider's to change.
void TransferFunctionSession::tfEndData() {
    if (phase_.isCalling()) return;
    if (isStarted()) sendControl(TF_END_DATA);
    conversation_ = 0;
}

void TransferFunctionSession::tfTraceOn(const char* fileName) {
    if (!traceFile_) traceFile_ = services::OwnedFile(services::CreateFileObject(owner_.session));
    if (!traceFile_) return;
    traceFile_->setName(fileName);
    traceFile_->setTypeFlag(TraceIsBinary);
    traceFile_->setExistingFileAction(zhst::value::Append);
    traceFile_->setOption(TraceOption);
}

// A result with a length but no address has no host text, and is told as one without.
bool TransferFunctionSession::tfCheckResult(std::uint32_t contextText, const TfResult& result,
                                            services::ProgressDialogHandle dialog) {
    return isStarted() && judgeResult(owner_, connection_, {result, returned(result), contextText, dialog});
}

const char* TransferFunctionSession::hostSystemDesignation() {
    return designation_.make(owner_.settings, connection_.transport().has(QualifiedName));
}

void TransferFunctionSession::yieldToDialog() {
    const auto& [session, process] = yieldTarget;
    if (!session || process != platform::GetCurrentProcessId() || !session->activeDialog_) return;
    services::ProgressDialogCommand(session->activeDialog_, services::ProgressCommand::ProcessMessages);
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
    if (!isStarted() && !phase_.isBinding()) return;
    stop(Interruption::ConnectionChange);
    if (!isStarted() && !phase_.isStopPending()) connection_.*setting = value;
}

void TransferFunctionSession::onConnectionChanging(bool changing) {
    if (changing) {
        change_.begin();
    } else if (change_.end(connection_)) {
        stop(Interruption::ConnectionChange);
        if (!isStarted() && !phase_.isStopPending()) connection_.read(owner_.settings);
    }
}

}  // namespace provider
