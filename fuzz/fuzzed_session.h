#pragma once

#include <string>

#include "fuzz/input.h"
#include "support/ready_session.h"

namespace fuzz {

// Files of this process, in a folder that goes away with it; in lower case, as the library lower-cases names.
std::string temporaryFile(const std::string& name);
void writeFile(const std::string& path, const std::string& bytes);

// What every input begins with: five digits ("0" and the characters behind it) and a line end (any byte).
struct Head {
    enum Option : std::uint8_t {
        Screen = 1,
        Spreadsheet = 2,
        Description = 4,
        Append = 8,
        Source = 16,
        Oem = 32,
        IgnoreErrors = 64,
        FailAllLater = 128
    };

    explicit Head(Input& input);
    bool has(Option option) const { return (options & option) != 0; }

    std::uint8_t fileType;           // 0 to 6
    std::uint8_t options;            // of Option
    std::uint8_t page;               // of the host and the PC: index into the table of the source
    std::uint8_t failingAllocation;  // 0: none; with FailAllLater all behind it fail too
    std::uint8_t cancellingCall;     // 0: none; else the user cancels while the provider has that call
};

// A session as the head of an input has it, with a provider that answers from the rest.
class FuzzedSession {
public:
    explicit FuzzedSession(const Head& head);
    // Deletes the client. Ends the process when anything is left open, active or allocated.
    ~FuzzedSession();

    // Requests for fields and data are answered from `answers`, then with the end of the data.
    void answerFrom(Input& answers);
    ReadySession& session() { return session_; }

private:
    Head head_;
    ReadySession session_;
    unsigned calls_ = 0;
};

}  // namespace fuzz
