#include "support/transfer_fixture.h"

namespace {

class TransferDriver : public TwoRecords {
protected:
    // Reads a setting whenever the provider is called.
    std::vector<std::int32_t> duringTransfer(std::uint32_t id, const std::function<void()>& transfer) {
        std::vector<std::int32_t> values;
        hostFile.observe = [&](const scripted::Call&) { values.push_back(number(id)); };
        transfer();
        hostFile.observe = nullptr;
        return values;
    }
};

TEST_F(TransferDriver, NameOfTheTraceFileSwitchesTheTraceOn) {
    const struct {
        const char* name;
        bool traced;
    } rows[] = {{"XFERTRCE.LOG", true},
                {"xfertrce.log", true},
                {"XferTrce.log", false},
                {"xfertrce.log.csv", true},
                {"xfertrce.txt", false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        set(setting::PcFileName, path(row.name));
        emulator::clearJournal();
        receive();
        EXPECT_EQ(journalCount("\"XFERLOG.TXT\"") > 0, row.traced);
        library.xferCleanup(session);
    }
}

TEST_F(TransferDriver, TransferIsActiveOnlyWhileItRunsHoweverItEnds) {
    struct Ending {
        const char* name;
        std::function<void()> prepare;
        std::vector<std::uint32_t> messages;
    };
    const auto refuse = [](bool emulator::Faults::*fault) { return [fault] { setFault(fault, true); }; };
    const std::vector<Ending> endings = {
        {"complete", [] {}, {}},
        {"request refused", [] { scripted::answerNext(TF_SEND_REQUEST, scripted::Answer::code(0x2001)); }, {4406}},
        {"silent failure", [] { scripted::answerNext(TF_SEND_REQUEST, scripted::Answer::code(0x7101)); }, {}},
        {"no file object", refuse(&emulator::Faults::refuseFileObject), {4001}},
        {"no progress dialog", refuse(&emulator::Faults::refuseProgressDialog), {4001}},
        {"cancelled",
         [this] { hostFile.during(TF_SEND_REQUEST, [this] { library.pcsCancelTransfer(client()); }); },
         {}},
    };
    receive();  // binds the provider
    for (const Ending& ending : endings) {
        SCOPED_TRACE(ending.name);
        user.messages.clear();
        ending.prepare();
        for (const auto active : duringTransfer(setting::TransferActive, [this] { receive(); })) EXPECT_EQ(active, 1);
        emulator::setFaults({});
        EXPECT_EQ(user.messageIds(), ending.messages);
        expectIdle();

        std::filesystem::remove(pcFile());
        expectReceived();  // the next transfer works
    }
}

// Nothing of a transfer depends on the store; its lock is asked for each time.
TEST_F(TransferDriver, TransferIsTheSameWithoutStoreOrLock) {
    for (const auto fault : {&emulator::Faults::refuseStore, &emulator::Faults::refuseStoreLock}) {
        deleteClient();
        setFault(fault, true);
        std::filesystem::remove(pcFile());
        expectReceived();
        EXPECT_TRUE(user.messages.empty());
        EXPECT_EQ(emulator::storeItem("XUGI").writes, 0u);
    }
    emulator::setFaults({});
    expectReceived();
    EXPECT_GT(emulator::storeItem("XUGI").writes, 0u);
}

// They are read once; the change comes while the first request of all is under way.
TEST_F(TransferDriver, SettingsThatChangeUnderATransferDoNotChangeIt) {
    const struct {
        std::uint32_t id;
        std::int32_t before, after;
    } numbers[] = {{setting::UseDescriptionFile, 0, 1},   {setting::WriteDescriptionFile, 1, 0},
                   {setting::SendFileType, AsciiText, 2}, {setting::ReceiveFileType, CommaSeparated, 1},
                   {setting::HostFileType, 2, 0},         {setting::PublicAuthority, 2, 0},
                   {setting::RecordLength, 92, 50},       {setting::TimeFormat, 4, 1},
                   {setting::DateFormat, 8, 1},           {setting::TimeSeparator, 1, 2},
                   {setting::DateSeparator, 7, 1},        {setting::IgnoreDecimalErrors, 1, 0},
                   {setting::DecimalSeparatorMode, 6, 2}, {setting::ReceiveOutput, ToFile, 2},
                   {setting::CreateMode, 0, 2},           {setting::StartRecord, 2, 1},
                   {setting::RecordProgress, 1, 0}};
    const std::pair<std::uint32_t, std::string> texts[] = {{setting::FileText, "File"},
                                                           {setting::MemberText, "Member"},
                                                           {setting::SortSequence, "*HEX"},
                                                           {setting::ReferenceFile, "QGPL/REF"},
                                                           {setting::HostFileName, "QGPL/CUST"},
                                                           {setting::PcFileName, pcFile()},
                                                           {setting::ReceiveDescriptionFile, path("kept.fdf")}};
    for (const bool sending : {false, true}) {
        std::vector<std::string> outcomes[2];
        for (const bool changing : {false, true}) {
            for (const auto& row : numbers) set(row.id, row.before);
            for (const auto& [id, text] : texts) set(id, text);
            hostFile.statements.clear();
            hostFile.received.clear();
            writePcFile("ALPHA\r\nGAMMA\r\n");
            writeFile(path("kept.fdf"), "");
            if (changing) {
                hostFile.during(TF_SEND_REQUEST, [&] {
                    for (const auto& row : numbers) set(row.id, row.after);
                    for (const auto& [id, text] : texts) set(id, path("changed"));
                });
            }
            sending ? send() : receive();
            auto& outcome = outcomes[changing] = hostFile.statements;
            outcome.insert(outcome.end(), hostFile.received.begin(), hostFile.received.end());
            outcome.insert(outcome.end(), {pcFileBytes(), fileBytes(path("kept.fdf"))});
        }
        EXPECT_EQ(outcomes[0], outcomes[1]);
        EXPECT_EQ(outcomes[0].size(), 5u);
    }
}

struct Connection {
    const char *hostSystem, *param250, *param248, *param512;
    std::int32_t transport;
    bool asks;
};

constexpr Connection Connections[] = {
    {"as400", "p", "p", "p", 9, false}, {"", "p", "p", "p", 9, true},       {"", "p", "p", "p", 8, true},
    {"", "p", "p", "p", 14, true},      {"", "p", "p", "p", 15, true},      {"", "p", "p", "p", 2, false},
    {"", "p", "p", "p", 5, false},      {"", "p", "p", "p", 30, false},     {"as400", "", "p", "p", 9, true},
    {"as.400", "", "p", "p", 9, true},  {".as400", "", "p", "p", 9, false}, {"as400", "p", "", "p", 8, true},
    {"as400", "p", "p", "", 9, true},   {"as400", "p", "p", "", 8, false},
};

TEST_F(TransferDriver, IncompleteConnectionAsksAndACancelEndsTheTransfer) {
    for (const bool messages : {true, false}) {
        if (!messages) emulator::disableMessage(0);
        for (const auto& row : Connections) {
            SCOPED_TRACE(std::string(row.hostSystem) + "/" + row.param250 + "/" + row.param248 + "/" + row.param512 +
                         ", transport " + std::to_string(row.transport) + (messages ? "" : ", without messages"));
            library.xferCleanup(session);
            set(setting::HostSystemName, row.hostSystem);
            set(setting::ConnectionParam250, row.param250);
            set(setting::ConnectionParam248, row.param248);
            set(setting::ConnectionParam512, row.param512);
            useTransport(row.transport);
            user.connectionDialogs = 0;
            user.acceptConnectionDialog = false;
            const auto before = scripted::calls().size();
            receive();
            const bool asks = row.asks && messages;
            EXPECT_EQ(user.connectionDialogs, asks ? 1u : 0u);
            EXPECT_EQ(scripted::calls().size() == before, asks);
            expectIdle();
            if (!asks) continue;
            user.acceptConnectionDialog = true;
            receive();
            EXPECT_GT(scripted::calls().size(), before) << "an accepted dialog goes on";
        }
    }
}

}  // namespace
