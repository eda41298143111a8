#include "fuzz/fuzzed_session.h"

// A host file as the input has it, field descriptions and records, received.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    fuzz::Input input(bytes, size);
    const fuzz::Head head(input);
    fuzz::FuzzedSession fuzzed(head);
    fuzz::writeFile(fuzz::temporaryFile("pcfile"), "what was there\r\n");
    fuzzed.answerFrom(input);
    fuzzed.session().transfer(ReadySession::Direction::Receive);
    return 0;
}
