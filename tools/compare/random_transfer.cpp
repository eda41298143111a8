#include "compare/random_transfer.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include "compare/pc_files.h"
#include "compare/random_settings.h"
#include "emulator/setting_rows.h"

namespace compare {
namespace {

namespace files = std::filesystem;
using scripted::Answer;

constexpr std::uint32_t Receive = 0, Send = 1;
constexpr std::int32_t Demonstration = 3, ToFile = 1, SourceMember = 1;
constexpr std::uint32_t CleanupSlot = 104;

// The demonstration waits by the clock: half a second goes by between two looks at it.
std::uint32_t impatientClock() {
    static std::uint32_t now = 0;
    return now += 600;
}

// Before the transcript begins. Gives whether it takes the journal.
bool startAnew(bool withJournal) {
    emulator::reset();
    scripted::reset();
    for (const auto& entry : files::directory_iterator(".")) files::remove_all(entry.path());
    files::create_directory("sub");
    return withJournal;
}

std::string contentsOf(const files::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// In the order of their names.
std::set<files::path> allFiles() {
    std::set<files::path> found;
    for (const auto& entry : files::recursive_directory_iterator("."))
        if (entry.is_regular_file()) found.insert(entry.path());
    return found;
}

}  // namespace

RandomTransfer::RandomTransfer(const Pc& pc, const Options& options, std::uint64_t number)
    : pc_(pc),
      options_(options),
      random_(options.seed, number),
      transcript_(startAnew(random_.oneIn(2) && options.journal)) {
    prepareEmulator();
    prepareHost();
    prepareUser();
    allowSurprises(true);
    client_ = library_.newZXFRPCSCLIENT(session_);
}

RandomTransfer::~RandomTransfer() {
    scripted::reset();
    emulator::reset();
}

void RandomTransfer::prepareEmulator() {
    emulator::setUpPc(pc_.setup);
    emulator::setTickCount(&impatientClock);
    const std::string broken = random_.pick<std::string>(
        {"nothing", "router_only", "router_replacement", "router_without_query", "text_router", "text_providers",
         "without_get", "without_request", "without_new", "without_delete"});
    emulator::setProviderFolder(binFolder() + (random_.odd(20) ? "/broken/" + broken : "/scripted_families"));
    emulator::onStoreWrite([this](auto code, auto value) { transcript_.say("store", code, value); });
    session_ = emulator::newSession();
    setRandomSettings(random_, session_, pc_);
    emulator::set(session_, setting::HostFileType, random_.oneIn(4) ? SourceMember : random_.odd(20) ? 2 : 0);
    emulator::set(session_, setting::HostCodePage, random_.pick(pc_.hostPages));
    emulator::setClauses(session_, randomClauses(random_, pc_));
    if (random_.odd(12)) emulator::disableMessage(random_.pick({0u, 4001u, 4406u, 4412u, 4432u}));
    if (random_.oneIn(10)) std::ofstream(emulator::nativePath(text(setting::PcFileName))) << "what was there\r\n";
}

void RandomTransfer::prepareHost() {
    const bool source = number(setting::HostFileType) == SourceMember;
    layout_ = source ? sourceLayout(random_) : randomLayout(random_, pc_);
    for (const Field& field : layout_) host_.fields.push_back(field.description());
    for (std::uint32_t count = random_.between(random_.odd(8) ? 0 : 1, random_.oneIn(25) ? 130 : 8); count > 0; --count)
        host_.records.push_back(randomRecord(random_, layout_, pc_));
    for (std::uint32_t count = random_.below(6); count > 0; --count) {
        // The lengths that have a meaning, and others.
        const std::uint32_t length =
            random_.pick({60u, 75u, 75u, 83u, 96u, 71u, 70u, random_.below(random_.pick({250u, 3000u}))});
        host_.catalogue.push_back(randomRecord(random_, {{Character, length, 0, 0, ""}}, pc_));
    }
    if (random_.oneIn(10)) host_.count = random_.pick({3u, 200u, 201u, 499u, 500u, 0u, 0x80000000u, 0xFFFFFFFFu});
    ownMemory_ = random_.odd(12);
    if (random_.odd(2)) troubleEvery_ = random_.between(2, random_.pick({8u, 25u}));
    scripted::setSwitches({random_.odd(40), !random_.odd(40)});
    scripted::setListener([this](const std::string& entry) {
        transcript_.say("provider", entry);
        letInterrupt();
    });
    scripted::setHandler([this](const scripted::Call& call) { return answer(call); });
}

void RandomTransfer::prepareUser() {
    emulator::setUserInterface(&user_);
    user_.onMessage = [this](const emulator::MessageBox& box) { return showMessage(box); };
    user_.onPump = [this] { pump(); };
    user_.acceptConnectionDialog = !random_.oneIn(3);
    user_.shellResult = random_.pick({33, 32, 31, 2});
    for (std::uint32_t count = random_.odd(2) ? random_.between(1, 3) : 0; count > 0; --count)
        interruptions_.push_back({random_.between(1, random_.pick({10u, 40u})), random_.below(14)});
}

void RandomTransfer::run() {
    transcript_.say("client", client_ != nullptr);
    const auto other = random_.odd(20) ? emulator::newSession() : 0;
    ZXFRPCSCLIENT* const otherClient = other ? library_.newZXFRPCSCLIENT(other) : nullptr;
    runJob();
    if (random_.oneIn(3)) {
        if (random_.odd(2)) setRandomSettings(random_, session_, pc_);
        runJob();
    }
    if (random_.oneIn(3)) emulator::runCleanup(session_, CleanupSlot);
    library_.deleteZXFRPCSCLIENT(client_);
    library_.deleteZXFRPCSCLIENT(otherClient);
    sayResults();
    description_ += "| " + std::to_string(layout_.size()) + " fields, " + std::to_string(host_.records.size()) +
                    " records, transport " + std::to_string(number(setting::TransportType));
}

void RandomTransfer::runJob() {
    const std::uint32_t kind = random_.below(20);
    kind < 9 ? receive() : kind < 18 ? send() : browse();
    sayUser();
}

void RandomTransfer::receive() {
    allowSurprises(true);
    transfer(Receive);
}

// What is sent is what was received, altered.
void RandomTransfer::send() {
    const auto set = [this](std::uint32_t id, auto value) { emulator::set(session_, id, value); };
    set(setting::ReceiveOutput, ToFile);
    set(setting::ReceiveFileType, number(setting::SendFileType));
    set(setting::WriteDescriptionFile, 1);
    set(setting::ReceiveDescriptionFile, text(setting::SendDescriptionFile));
    allowSurprises(false);
    transfer(Receive);
    sayUser();
    for (const files::path& path : allFiles()) {
        const std::string contents = contentsOf(path);
        // Few transfers get beyond an altered description.
        if (!contents.starts_with("PCFDF") || random_.odd(8))
            std::ofstream(path, std::ios::binary) << altered(random_, contents);
        else if (random_.odd(3))
            std::ofstream(path, std::ios::binary) << alteredDescription(random_, contents);
    }
    if (!random_.odd(10)) set(setting::UseDescriptionFile, number(setting::HostFileType) == 0 ? 1 : 0);
    allowSurprises(true);
    transfer(Send);
}

void RandomTransfer::allowSurprises(bool allowed) {
    surprises_ = allowed;
    const emulator::Faults faults = randomFaults(random_, options_.failingAllocations);
    emulator::setFaults(allowed ? faults : emulator::Faults{.giveNoMore = true});
}

void RandomTransfer::transfer(std::uint32_t direction) {
    const std::int32_t type = number(direction == Receive ? setting::ReceiveFileType : setting::SendFileType);
    description_ += direction == Receive ? "receive to " + std::to_string(number(setting::ReceiveOutput)) : "send";
    description_ += " type " + std::to_string(type) + ' ';
    emulator::setSettingsFileReader([accepted = !random_.oneIn(3)](auto, const auto&) { return accepted; });
    const char* const settingsFile = random_.odd(10) ? "transfer.set" : "";
    const std::uint32_t progress = random_.below(2);
    library_.pcsTransferFile(client_, settingsFile, direction, progress, random_.pick({0u, 0u, 4711u}));
    transcript_.say("transferred; active", number(setting::TransferActive));
}

void RandomTransfer::browse() {
    const std::string longFilter(random_.pick({250u, 300u, 4070u, 5000u}), 'f');
    const std::string filter = random_.pick<std::string>(
        {"", "QGPL", "QGPL/", "QGPL/CUST*", "QGPL/CUST(MBR)", "VERYLONGLIBRARY/", "QGPL/" + pc_.pair});
    if (random_.oneIn(4)) emulator::set(session_, setting::ConnectionType, Demonstration);
    const std::uint32_t kind = random_.pick({0u, 1u, 2u, 2u, 3u});
    list(random_.odd(6) ? longFilter : filter, kind, random_.pick({0, 1, 2, 3, -1}));
}

void RandomTransfer::list(const std::string& filter, std::uint32_t kind, std::int32_t fileCount) {
    description_ += "list ";
    HostCatalogEntry entry{};
    entry.entryKind = kind;
    entry.fileCount = fileCount;
    std::uint32_t result = library_.pcsGetFirstHostFilename(session_, filter.c_str(), &entry);
    for (int more = 20;; --more) {
        transcript_.say("entry", result, entry.name, "|", entry.description, "|", +entry.status, +entry.flags, "whole",
                        std::string_view(reinterpret_cast<const char*>(&entry), sizeof(entry)));
        if (result != CatalogEntryDelivered || more == 0) return;
        result = library_.pcsGetNextHostFilename(session_, &entry);
    }
}

// --- While a transfer runs ---------------------------------------------------------------------------------------

void RandomTransfer::letInterrupt() {
    const std::uint32_t moment = surprises_ ? ++moments_ : 0;
    for (const Interruption& each : interruptions_)
        if (each.moment == moment) interrupt(each.kind);
}

void RandomTransfer::interrupt(std::uint32_t kind) {
    transcript_.say("interruption", kind);
    const auto set = [this](std::uint32_t id, std::int32_t value) { emulator::set(session_, id, value); };
    switch (kind) {
        case 0:
        case 1:
            return library_.pcsCancelTransfer(client_);
        case 2:
            return emulator::runCleanup(session_, CleanupSlot);
        case 3:
            return set(setting::TransportType, random_.pick({2, 9, 7, 30}));
        case 4:
            return set(setting::RouterKind, random_.pick({1, 2}));
        case 5:
        case 6:
            set(setting::ConnectionChanging, 1);
            set(setting::TransportType, random_.pick({2, 9, 7, 30}));
            if (kind == 5) set(setting::ConnectionChanging, 0);
            return;
        case 7:
            return set(setting::HostCodePage, random_.pick(pc_.hostPages));
        case 8:
            return set(setting::ConvertToOem, 1 - number(setting::ConvertToOem));
        case 9:
            return set(setting::ConnectionType, Demonstration - number(setting::ConnectionType));
        case 10:
            return transfer(random_.below(2));
        case 11:
            return list("", random_.below(3), 1);
        case 12:
            return library_.EHNTF_STF_Callback();
        default:
            library_.runtimeSettingNotification(session_, 5);
            transcript_.say("current client", library_.getZXFRPCSCLIENT(session_) == client_, "commands enabled",
                            library_.pcsAreXferCmdsEnabled(client_, random_.pick({74u, 75u, 76u, 168u})));
    }
}

Answer RandomTransfer::answer(const scripted::Call& call) {
    // A provider sees more of the buffer than the length it is given: the binary options go on behind it.
    const bool isRequest = call.function == TF_SEND_REQUEST;
    const std::size_t seen = isRequest ? std::max<std::size_t>(call.length, 400) : call.length;
    const std::string_view buffer(static_cast<const char*>(call.buffer), call.bufferSize);
    transcript_.say("call", static_cast<int>(call.family), call.function, "length", call.length,
                    call.designation.value_or("none"), "reserved", call.reserved, "client", call.client, "window",
                    call.window, "conversation", call.conversation, "size", call.bufferSize, "yield",
                    call.yield != nullptr, buffer.substr(0, seen));
    if (call.yield && random_.oneIn(2)) call.yield();
    const bool fine = !surprises_ || troubleEvery_ == 0 || ++calls_ % troubleEvery_ != 0;
    Answer given = fine ? host_.answer(call) : trouble(call);
    if (ownMemory_ && call.function == TF_GET_DATA && !given.dataLength) given.place = scripted::Place::OwnMemory;
    if (call.request.rfind("REPLACE", 0) == 0 && random_.oneIn(8))
        given = Answer::code(TF_TARGET_EXISTS, random_.pick<std::string>({"IWS2036 is there", "IWS2023", "X"}));
    if (call.request.rfind("EXTRACT", 0) == 0 && host_.catalogue.empty() && random_.oneIn(2))
        given = Answer::code(TF_NO_MORE_DATA);
    transcript_.say("answer", given.returnCode, given.detail, given.bytes);
    return given;
}

// A return code, with or without a host message, or data of another length than usual.
Answer RandomTransfer::trouble(const scripted::Call& call) {
    if (random_.oneIn(4)) {
        Answer given = host_.answer(call);
        given.dataLength = random_.pick({0u, 3u, 39u, 41u, 400u, 4096u, 4097u, 70000u});
        // More than there is can only stand in the shared buffer.
        if (given.dataLength > given.bytes.size()) given.place = scripted::Place::SharedBuffer;
        return given;
    }
    const std::uint32_t ranged =
        random_.pick({random_.below(0x100),
                      random_.pick({0x05u, 0x06u, 0x07u, 0x16u, 0x1Cu, 0x32u, 0x33u, 0x37u, 0x48u, 0x4Bu, 0x51u, 0x87u,
                                    0xD4u, 0xD5u, 0xD7u, 0xD8u, 0xECu, 0xF5u}),
                      0x2000 + random_.below(0x31), 0x5040 + random_.below(0x38)});
    const std::uint32_t special =
        random_.pick({0x5057u, 0x7101u, 0x9999u, 0x1FFFu, 0x3000u, 0x3100u, 0x0400u, 0x0103u});
    const std::uint32_t code = random_.oneIn(10) ? random_.next() : random_.oneIn(2) ? ranged : special;
    const std::string hostText = "CPF" + std::to_string(code) + " the host says " + pc_.pair;
    Answer given = Answer::code(random_.oneIn(8) ? code | 0x10000 : code, random_.oneIn(2) ? hostText : "");
    given.detail = random_.pick({0u, 0u, 3u, 0x10000u});
    return given;
}

std::int32_t RandomTransfer::showMessage(const emulator::MessageBox& box) {
    transcript_.say("message", box.id, "owner", box.owner, "flags", box.flags, "help", box.helpId, box.scrolling,
                    box.text);
    for (const std::string& insert : box.inserts) transcript_.say("insert", insert);
    letInterrupt();
    return random_.pick({1, 6, 10, 10, 7, 2});
}

// A display is mostly read on to its end.
void RandomTransfer::pump() {
    transcript_.say("pump");
    letInterrupt();
    if (random_.oneIn(6)) return;
    random_.oneIn(12) ? emulator::closeDisplay() : user_.readOn();
}

// --- What came of it ---------------------------------------------------------------------------------------------

void RandomTransfer::sayUser() {
    transcript_.say("progress", user_.progressPcName, user_.progressTotalAmount, user_.progressUnit,
                    user_.progressIsHidden, "dialogs", user_.connectionDialogs);
    for (const std::uint32_t mode : user_.progressModes) transcript_.say("progress mode", mode);
    for (const std::uint32_t command : user_.progressCommands) transcript_.say("progress command", command);
    for (const auto& [file, parameters] : user_.shellCalls) transcript_.say("shell", file, "with", parameters);
    const RecordingUser::Display& display = user_.display;
    transcript_.say("display", display.title, display.rowsPerPage, display.ended, display.open);
    for (const auto& [index, column] : display.columns)
        transcript_.say("column", index, column.title, column.width, column.alignment);
    for (const auto& row : display.rows)
        for (const auto& [column, cell] : row) transcript_.say("cell", column, cell);
    for (const std::string& status : display.statuses) transcript_.say("status", status);
}

void RandomTransfer::sayResults() {
    const auto open = emulator::openObjects();
    transcript_.say("left", emulator::allocations().liveBlocks, open.files, open.progressDialogs, open.textDisplays,
                    open.modules, open.watches, open.lockedLists, scripted::liveClients());
    for (const auto& row : emulator::settingRows)
        row.kind == emulator::SettingKind::Text ? transcript_.say(row.name, text(row.number))
                                                : transcript_.say(row.name, number(row.number));
    for (const files::path& path : allFiles()) transcript_.say("file", path.string(), contentsOf(path));
}

}  // namespace compare
