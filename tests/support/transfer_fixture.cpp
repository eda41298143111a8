#include "support/transfer_fixture.h"

#include <algorithm>

#include "Z7XFRPCS/session.h"
#include "support/ready_session.h"

namespace {

// Whether the pieces of `pattern` between its asterisks follow one another in the line.
bool matches(const std::string& line, const std::string& pattern) {
    std::size_t at = 0;
    for (std::size_t begin = 0; begin <= pattern.size();) {
        const std::size_t end = std::min(pattern.find('*', begin), pattern.size());
        const std::string piece = pattern.substr(begin, end - begin);
        at = line.find(piece, at);
        if (at == std::string::npos) return false;
        at += piece.size();
        begin = end + 1;
    }
    return true;
}

}  // namespace

void TransferFixture::SetUp() {
    emulator::reset();
    scripted::reset();
    emulator::setUserInterface(&user);
    ASSERT_TRUE(emulator::setUpPc(emulator::usualPc()));
    useProviders("scripted_families");
    session = emulator::newSession();
    completeSettings(session, pcFile());
    set(setting::HostSystemName, "as400a");
    hostFile.install();
    scripted::setListener([](const std::string& entry) { emulator::note("provider " + entry); });
    blocksBefore_ = emulator::allocations().liveBlocks;
    emulator::journalOn(true);
}

void TransferFixture::TearDown() {
    // Deleting the client still talks to the provider, when the locals these hold on to are gone.
    hostFile.intercept = nullptr;
    hostFile.observe = nullptr;
    user.onMessage = nullptr;
    user.onPump = nullptr;
    user.onProgressCommand = nullptr;
    emulator::setFaults({});
    deleteClient();
    expectIdle();
    EXPECT_EQ(emulator::openObjects().modules, 0u);
    EXPECT_EQ(emulator::openObjects().watches, 0u);
    EXPECT_EQ(scripted::liveClients(), 0u);
    EXPECT_EQ(emulator::allocations().liveBlocks, blocksBefore_);
    scripted::reset();
    emulator::setUserInterface(nullptr);
}

ZXFRPCSCLIENT* TransferFixture::client() {
    if (!client_) client_ = library.newZXFRPCSCLIENT(session);
    return client_;
}

void TransferFixture::useListSeparator(char separator) {
    emulator::PcSetup pc = emulator::usualPc();
    pc.listSeparator = separator;
    ASSERT_TRUE(emulator::setUpPc(pc));
}

std::string TransferFixture::messageText(std::uint32_t table, std::uint32_t index, std::size_t room) const {
    std::string text(room, '\0');
    zhstLoadMessageText(session, table, index, text.data(), static_cast<std::uint32_t>(room));
    return text.c_str();
}

void TransferFixture::sendByDescription(int type) {
    set(setting::CreateMode, 2);
    set(setting::UseDescriptionFile, 1);
    set(setting::SendDescriptionFile, "pcfile.fdf");
    writeFile(path("pcfile.fdf"), "PCFDF\r\nPCFT " + std::to_string(type) + "\r\nPCFL NAME 1 3\r\n");
}

std::string TransferFixture::received(FileType type, const std::vector<std::string>& fields,
                                      const std::vector<std::string>& records) {
    hostFile.fields = fields;
    hostFile.records = records;
    set(setting::ReceiveFileType, type);
    receive();
    return pcFileBytes();
}

std::string TransferFixture::lastTuple(const std::string& dif) {
    const auto at = dif.rfind("BOT\r\n") + 5;
    const auto end = dif.rfind("-1,0\r\nEOD\r\n");
    return end == std::string::npos || end < at ? dif : dif.substr(at, end - at);
}

std::vector<std::string> TransferFixture::entriesOf(const std::function<void()>& transfer) {
    const auto before = static_cast<std::ptrdiff_t>(scripted::entries().size());
    transfer();
    return {scripted::entries().begin() + before, scripted::entries().end()};
}

void TransferFixture::failEachAllocation(const std::function<void()>& transfer, const std::function<void()>& prepare) {
    for (const bool everyLater : {false, true}) failEachAllocation(transfer, prepare, everyLater);
}

void TransferFixture::failEachAllocation(const std::function<void()>& transfer, const std::function<void()>& prepare,
                                         bool everyLater) {
    constexpr std::uint64_t Limit = 5000;
    for (std::uint64_t failing = 1; failing <= Limit; ++failing) {
        SCOPED_TRACE("failing allocation " + std::to_string(failing) + (everyLater ? " and all later ones" : ""));
        std::filesystem::remove(pcFile());
        user.messages.clear();
        prepare();
        emulator::Faults faults;
        faults.failAllocation = failing;
        faults.failAllAfter = everyLater;
        const std::uint64_t before = emulator::allocations().calls;
        emulator::setFaults(faults);
        transfer();
        emulator::setFaults({});
        expectIdle();
        if (HasFailure() || emulator::allocations().calls - before < failing) return;
    }
    ADD_FAILURE() << "after " << Limit << " allocations the transfer still had more";
}

void TransferFixture::expectInOrder(const std::vector<std::string>& texts) const {
    auto line = emulator::journal().begin();
    for (const auto& text : texts) {
        line = std::find_if(line, emulator::journal().end(), [&](const auto& each) { return matches(each, text); });
        ASSERT_NE(line, emulator::journal().end()) << "not in the journal, or too early: " << text;
        ++line;
    }
}

std::size_t TransferFixture::journalCount(const std::string& text) const {
    std::size_t count = 0;
    for (const auto& line : emulator::journal()) count += matches(line, text);
    return count;
}

void TransferFixture::expectIdle() const {
    EXPECT_EQ(number(setting::TransferActive), 0);
    const auto open = emulator::openObjects();
    EXPECT_EQ(open.files, 0u);
    EXPECT_EQ(open.progressDialogs, 0u);
    EXPECT_EQ(open.textDisplays, 0u);
    EXPECT_EQ(open.lockedLists, 0u);
}
