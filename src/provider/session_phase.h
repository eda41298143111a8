#pragma once

namespace provider {

// Where a transfer-function session stands. All runs on one thread, but while a provider or a message box is on the
// stack the emulator goes on working, and what it does may come back to the session. The phase says what is under way,
// and so what may be done meanwhile.
//
//               start              bound                 call
//       Idle ----------> Binding ----------> Ready <--------------> Calling
//        ^                  |                |   ^     returned        |
//        |                  | stop      stop |   |                     | stop
//        |                  v                |   |     returned        v
//        |           BindingStopped          |   +-------------- CallingStopped
//        |                  | bound          |     (and stopped)
//        |    released      v                v            call
//        +<----------- Discarding        Stopping <--------------> StoppingCall
//        |                                   |         returned
//        +<----------------------------------+
//                         released
//
// A binding that fails leads back to Idle. Where no arrow "stop" leaves, a stop changes nothing.
enum class Phase {
    Idle,            // nothing is bound
    Binding,         // the provider is being loaded; this shows messages and calls its entries
    BindingStopped,  // the same; what has been bound is released at once
    Discarding,      // the client of a provider that was bound in vain is being ended
    Ready,           // bound: an exchange may be made. Started are this phase and all behind it
    Calling,         // an exchange is with the provider
    CallingStopped,  // the same; it is stopped when the exchange is back, before anything else is sent
    Stopping,        // takes leave of the provider, with exchanges like any other, and releases it
    StoppingCall,    // such an exchange, or the end of the client, is with the provider
};

// The phase of one session, and the only ways from one to another.
class SessionPhase {
public:
    // The provider is bound, or was until the stop that is under way.
    bool isStarted() const { return phase_ >= Phase::Ready; }
    bool isReady() const { return phase_ == Phase::Ready; }
    bool isBinding() const { return phase_ == Phase::Binding || phase_ == Phase::BindingStopped; }
    // A call is with the provider, which serves one at a time.
    bool isCalling() const {
        return phase_ == Phase::Discarding || phase_ == Phase::Calling || phase_ == Phase::CallingStopped ||
               phase_ == Phase::StoppingCall;
    }
    // Something of the provider is on the stack, and the session not to be had.
    bool isWaiting() const { return isCalling() || isBinding(); }
    // A stop has come in and waits for what is on the stack.
    bool isStopPending() const { return phase_ == Phase::BindingStopped || phase_ == Phase::CallingStopped; }

    void beginBinding() { phase_ = Phase::Binding; }
    // Ready afterwards, unless nothing was bound or a stop has come in meanwhile.
    void endBinding(bool bound) { phase_ = bound && phase_ == Phase::Binding ? Phase::Ready : Phase::Idle; }

    // True when a stop has to wait; it is pending then.
    bool deferStop() {
        if (phase_ == Phase::Binding) phase_ = Phase::BindingStopped;
        if (phase_ == Phase::Calling) phase_ = Phase::CallingStopped;
        return isStopPending();
    }
    // True once, when a stop has waited for the call that is back.
    bool takePendingStop() {
        if (phase_ != Phase::CallingStopped) return false;
        phase_ = Phase::Ready;
        return true;
    }
    void beginStop() { phase_ = Phase::Stopping; }
    void released() { phase_ = Phase::Idle; }

    // Stands on the stack while the provider works.
    class ProviderCall {
    public:
        explicit ProviderCall(SessionPhase& session) : phase_(session.phase_) {
            if (phase_ == Phase::Idle) phase_ = Phase::Discarding;
            if (phase_ == Phase::Ready) phase_ = Phase::Calling;
            if (phase_ == Phase::Stopping) phase_ = Phase::StoppingCall;
        }
        ~ProviderCall() {
            if (phase_ == Phase::Discarding) phase_ = Phase::Idle;
            if (phase_ == Phase::Calling) phase_ = Phase::Ready;
            if (phase_ == Phase::StoppingCall) phase_ = Phase::Stopping;
        }
        ProviderCall(const ProviderCall&) = delete;
        ProviderCall& operator=(const ProviderCall&) = delete;

    private:
        Phase& phase_;
    };

private:
    Phase phase_ = Phase::Idle;
};

}  // namespace provider
