#include "fuzz/fuzzed_session.h"
#include "scripted/script.h"
#include "support/host_fields.h"

namespace {

// Every kind of field; the description file has the same.
const std::string fields[] = {hostfields::zoned("NUMBER", 6),       hostfields::character("NAME", 12),
                              hostfields::packed("BALANCE", 7, 2),  hostfields::binary("COUNT", 4),
                              hostfields::binary("SMALL", 2, 1),    hostfields::hex("CODE", 2),
                              hostfields::typed(7, "PICTURES", 10), hostfields::typed(8, "EITHER", 8)};

}  // namespace

// A PC file as the input has it, sent to a host file with every kind of field. With the option for a description, the
// input begins with that, up to a zero byte.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    fuzz::Input input(bytes, size);
    const fuzz::Head head(input);
    fuzz::FuzzedSession fuzzed(head);
    std::string file = input.rest();
    if (head.has(fuzz::Head::Description)) {
        const std::size_t end = std::min(file.find('\0'), file.size());
        fuzz::writeFile(fuzz::temporaryFile("description.fdf"), file.substr(0, end));
        file.erase(0, end + 1);
    }
    fuzz::writeFile(fuzz::temporaryFile("pcfile"), file);
    fuzzed.answerFrom(input);
    for (const std::string& field : fields) scripted::answerNext(TF_GET_FIELD, scripted::Answer::data(field));
    fuzzed.session().transfer(ReadySession::Direction::Send);
    return 0;
}
