#include "fuzz/fuzzed_session.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "Z7XFRPCS/settings.h"
#include "platform/platform.h"
#include "scripted/script.h"

namespace fuzz {
namespace {

namespace setting = zhst::setting;
using scripted::Answer;
using scripted::Place;

struct Folder {
    std::filesystem::path path =
        std::filesystem::temp_directory_path() / ("z7xfuzz-" + std::to_string(platform::GetCurrentProcessId()));
    Folder() { std::filesystem::create_directories(path); }
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
};

struct Pages {
    std::int32_t host;
    emulator::PcSetup pc;
};
const Pages pages[] = {{37, {}},
                       {273, {1252, 850, 0x0407, ',', ';'}},
                       {930, {932, 932, 0x0411, '.', ','}},
                       {933, {949, 949, 0x0412, '.', ','}},
                       {935, {936, 936, 0x0804, '.', ','}},
                       {937, {950, 950, 0x0404, '.', ','}},
                       {43, {932, 932, 0x0411, '.', ','}}};

// An answer begins with its kind: 0 to 3 data; 4 the end; 5 a return code with a host message; 6 a length with the
// shared buffer as it is; 7 a length without data. Then the length or code, then the bytes.
Answer takeAnswer(Input& input) {
    if (input.ended()) return Answer::code(TF_NO_MORE_DATA);
    const int kind = input.byte() % 8;
    if (kind == 4) return Answer::code(TF_NO_MORE_DATA);
    const std::uint16_t number = input.word();
    if (kind < 4) return Answer::data(input.stretch(number));
    if (kind == 5) return Answer::code(number, input.stretch(input.byte()));
    Answer answer;
    answer.place = kind == 6 ? Place::SharedBuffer : Place::Null;
    answer.dataLength = number;
    return answer;
}

void expect(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "left behind: %s\n", what);
    std::abort();
}

}  // namespace

std::string temporaryFile(const std::string& name) {
    static const Folder folder;
    return (folder.path / name).string();
}

void writeFile(const std::string& path, const std::string& bytes) { std::ofstream(path, std::ios::binary) << bytes; }

Head::Head(Input& input)
    : fileType(input.digit() % 7),
      options(input.digit()),
      page(input.digit() % std::size(pages)),
      failingAllocation(input.digit()),
      cancellingCall(input.digit()) {
    input.byte();
}

FuzzedSession::FuzzedSession(const Head& head) : head_(head), session_(temporaryFile("pcfile"), pages[head.page].pc) {
    session_.set(setting::HostCodePage, pages[head.page].host);
    session_.set(setting::ReceiveFileType, head.fileType);
    session_.set(setting::SendFileType, head.fileType);
    if (head.has(Head::Screen)) session_.set(setting::ReceiveOutput, zhst::value::ToDisplay);
    if (head.has(Head::Spreadsheet)) session_.set(setting::ReceiveOutput, zhst::value::ToSpreadsheet);
    if (head.has(Head::Append)) session_.set(setting::ExistingFileAction, zhst::value::Append);
    session_.set(setting::WriteDescriptionFile, head.has(Head::Description));
    session_.set(setting::UseDescriptionFile, head.has(Head::Description));
    session_.set(setting::SendDescriptionFile, temporaryFile("description.fdf"));
    session_.set(setting::ReceiveDescriptionFile, temporaryFile("description.fdf"));
    session_.set(setting::HostFileType, head.has(Head::Source) ? zhst::value::SourceFile : zhst::value::DataFile);
    session_.set(setting::RecordLength, 92);
    session_.set(setting::ConvertToOem, head.has(Head::Oem));
    session_.set(setting::IgnoreDecimalErrors, head.has(Head::IgnoreErrors));
    emulator::Faults faults;
    faults.failAllocation = head.failingAllocation;
    faults.failAllAfter = head.has(Head::FailAllLater);
    emulator::setFaults(faults);
}

void FuzzedSession::answerFrom(Input& answers) {
    scripted::setHandler([this, &answers](const scripted::Call& call) {
        if (++calls_ == head_.cancellingCall) Library::get().pcsCancelTransfer(session_.client());
        const bool fetches = call.function == TF_GET_FIELD || call.function == TF_GET_DATA;
        return fetches ? takeAnswer(answers) : scripted::defaultAnswer(call);
    });
}

FuzzedSession::~FuzzedSession() {
    emulator::setFaults({});
    expect(session_.number(setting::TransferActive) == 0, "an active transfer");
    session_.deleteClient();
    const auto open = emulator::openObjects();
    expect(open.files + open.progressDialogs + open.textDisplays + open.lockedLists == 0, "an open object");
    expect(open.modules + open.watches + scripted::liveClients() == 0, "a library, a watch or a provider's client");
    expect(emulator::allocations().liveBlocks == 0, "memory");
}

}  // namespace fuzz
