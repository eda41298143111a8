#pragma once

#include <string>
#include <vector>

#include "compare/host_layout.h"
#include "compare/transcript.h"
#include "support/library.h"
#include "support/recording_user.h"
#include "support/scripted_host.h"

namespace compare {

struct Options {
    std::uint64_t seed = 1;
    bool failingAllocations = true;
    bool journal = true;  // in every other transfer
};

// One client from its making to its end: one to three transfers or listings over one random host file, with a host and
// a user who now and then do something unexpected. All of it follows from the PC, the seed and the number. Its files
// are those of the process's current folder, which is emptied first.
class RandomTransfer {
public:
    RandomTransfer(const Pc& pc, const Options& options, std::uint64_t number);
    ~RandomTransfer();
    RandomTransfer(const RandomTransfer&) = delete;
    RandomTransfer& operator=(const RandomTransfer&) = delete;

    void run();
    const std::string& description() const { return description_; }
    const Transcript& transcript() const { return transcript_; }

private:
    // Something that comes in from the emulator while a transfer runs, at the Nth moment in which the host, a message
    // pump or a message box has control.
    struct Interruption {
        std::uint32_t moment, kind;
    };

    void prepareEmulator();
    void prepareHost();
    void prepareUser();
    void runJob();
    void receive();
    void send();
    void allowSurprises(bool allowed);
    void browse();
    void transfer(std::uint32_t direction);
    void list(const std::string& filter, std::uint32_t kind, std::int32_t fileCount);

    void letInterrupt();
    void interrupt(std::uint32_t kind);
    scripted::Answer answer(const scripted::Call& call);
    scripted::Answer trouble(const scripted::Call& call);
    std::int32_t showMessage(const emulator::MessageBox& box);
    void pump();

    void sayUser();
    void sayResults();

    std::int32_t number(std::uint32_t id) const { return emulator::number(session_, id); }
    std::string text(std::uint32_t id) const { return emulator::text(session_, id); }

    const Library& library_ = Library::get();
    const Pc& pc_;
    const Options& options_;
    Random random_;
    Transcript transcript_;
    std::string description_;
    RecordingUser user_;
    ScriptedHost host_;
    Layout layout_;
    decltype(emulator::newSession()) session_ = 0;
    ZXFRPCSCLIENT* client_ = nullptr;
    std::vector<Interruption> interruptions_;
    std::uint32_t moments_ = 0;
    bool surprises_ = true;           // faults, trouble and interruptions may come
    std::uint32_t calls_ = 0;         // of the provider, counted where one may go wrong
    std::uint32_t troubleEvery_ = 0;  // so many of them; 0: none
    bool ownMemory_ = false;          // the provider leaves records in memory of its own
};

}  // namespace compare
