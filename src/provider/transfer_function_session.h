#pragma once

#include <cstdint>
#include <string_view>
#include <utility>

#include "messages/box.h"
#include "monitor/monitor_store.h"
#include "provider/connection.h"
#include "provider/provider_binding.h"
#include "provider/session_phase.h"
#include "provider/shared_buffer.h"
#include "provider/system_designation.h"
#include "services/owned.h"
#include "services/owned_file.h"
#include "text/code_page_state.h"

namespace provider {

// Every conversation with the host goes through this object, one per client. It binds the provider when the first
// exchange needs it and keeps it between transfers, owns the shared buffer in which requests and records travel, and
// holds the code-page state and the monitor store.
//
// A stop (by the session's end or a change of the connection settings) that arrives while a provider call is on the
// stack is carried out when that call has returned, before anything else is sent; the exchange it interrupted then ends
// as NotStarted. Nothing of that is shown here: whoever has a request with the provider asks for takeInterruption().
class TransferFunctionSession {
public:
    // `watch` is registered for the settings of the connection and the code page; it is to call onSettingChanged.
    // `yield` is what an IBM-style provider calls while it waits; it is to call yieldToDialog.
    TransferFunctionSession(services::SessionHandle session, services::SettingWatch watch, TfYield yield);
    ~TransferFunctionSession();
    TransferFunctionSession(const TransferFunctionSession&) = delete;
    TransferFunctionSession& operator=(const TransferFunctionSession&) = delete;

    // True when exchanges may be made: the provider is bound, or the connection is the demonstration. Failures have
    // been reported.
    bool tfStart();
    // The stop of the session's end.
    void tfStop() { stop(Interruption::SessionEnd); }
    bool isStarted() const { return phase_.isStarted(); }
    // A provider call is on the stack, or the provider is being bound.
    bool isWaiting() const { return phase_.isWaiting(); }

    // One exchange: `length` bytes of the shared buffer go to the provider, its answer into `result`. Starts an idle
    // session first; NotStarted when that fails. `designation` may be null; `dialog` (0: none) is kept alive while the
    // provider waits. Shows nothing. What TF_GET_DATA returns, a record, a count or an entry of the catalogue, stands
    // in the shared buffer afterwards, at its start where the provider left it in memory of its own.
    void tfRequest(std::uint32_t function, std::uint32_t length, std::uint32_t reserved, TfResult& result,
                   const char* designation, services::ProgressDialogHandle dialog);
    void tfEndRequest();
    void tfEndData();

    // True with the AS/400 client provider: its options are binary and its qualifiers are file names.
    bool tfIsAs400Mode() const { return connection_.isAs400Mode(owner_.settings); }

    // Makes and sets up the trace file object. Nothing is written to it; exchanges are followed in the monitor store.
    void tfTraceOn(const char* fileName);

    // Whether the transfer may go on after an exchange. A failure has been shown by the message rules, its code and
    // text are in the settings LastReturnCode and LastErrorText. `contextText` is the index in message table 7 of a
    // text that says what was being done, 0 for none; `dialog` (0: none) is hidden while a message is up. False without
    // a word when the session is not started.
    bool tfCheckResult(std::uint32_t contextText, const TfResult& result, services::ProgressDialogHandle dialog);

    // "SYSTEM(NAME    )", built anew on each call; null when the session names no host system.
    const char* hostSystemDesignation();

    void onSettingChanged(std::uint32_t setting, std::int32_t newValue, std::int32_t oldValue);

    // What has taken the provider since the last start. Each stop is given once.
    enum class Interruption { None, ConnectionChange, SessionEnd };
    Interruption takeInterruption() { return std::exchange(interruption_, Interruption::None); }

    // Kept for the emulator, which hands it over; nothing depends on it.
    void setRuntimeSetting(std::uint32_t value) { runtimeSetting_ = value; }

    // The shared buffer of BufferSize bytes; null while there is none, as after a stop.
    char* dataBuffer() const { return buffer_.data(); }

    // The bytes that a result returned, as far as they can be trusted.
    std::string_view returned(const TfResult& result) const { return buffer_.returned(result); }

    std::int32_t transportType() const { return connection_.transportType; }
    const text::CodePageState& codePage() const { return codePage_; }

    // The monitor store; null when there was no memory for it.
    monitor::MonitorStore* monitorStore() const { return monitorStore_.get(); }

    // The provider waits: lets the dialog of the exchange in progress process messages. A provider calls back without
    // saying for whom, so one session of the process is the target: the first one made, until its end.
    static void yieldToDialog();

private:
    bool isDemonstration() const;
    void stop(Interruption reason);
    bool allocateBuffer();
    void endConversation();
    void releaseProvider();
    void sendControl(TfFunction function);
    void carryOutPendingStop(TfResult& result);
    void changeConnection(std::int32_t Connection::*setting, std::int32_t value);
    void onConnectionChanging(bool changing);

    // In the order in which the constructor makes them.
    messages::Owner owner_;  // the session's window
    ProviderBinding binding_;
    text::CodePageState codePage_;
    services::Owned<monitor::MonitorStore> monitorStore_;
    services::SettingWatch watch_;
    TfYield yield_;

    SessionPhase phase_;
    Interruption interruption_ = Interruption::None;
    bool stopIsOwed_ = false;  // by a change of the connection that came in while it was the demonstration
    Connection connection_;
    ConnectionChange change_;
    SharedBuffer buffer_;
    services::OwnedFile traceFile_;
    SystemDesignation designation_;
    std::uint32_t conversation_ = 0;  // the provider's handle; 0 for none
    services::ProgressDialogHandle activeDialog_ = 0;
    TfResult controlResult_;  // of the exchanges the session makes itself
    std::uint32_t runtimeSetting_ = 0;
};

}  // namespace provider
