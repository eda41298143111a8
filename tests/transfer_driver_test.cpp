#include "support/transfer_fixture.h"

namespace {

constexpr std::int32_t Untouched = 77;  // no file type: whoever forces one is seen

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

// The type of the PC file is forced for as long as the transfer runs.
TEST_F(TransferDriver, OutputOfAReceiveForcesTheType) {
    const struct {
        std::int32_t output, type, forced;
        std::size_t files, rows, shells;
        const char* begin;  // of the PC file
    } rows[] = {{ToScreen, Dif, AsciiText, 0, 2, 0, ""},
                {2, Untouched, Untouched, 0, 0, 0, ""},
                {ToSpreadsheet, TabDelimited, Dif, 1, 0, 1, "TABLE"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.output);
        set(setting::ReceiveOutput, row.output);
        set(setting::ReceiveFileType, row.type);
        library.xferCleanup(session);
        emulator::clearJournal();
        user.display.rows.clear();
        const auto types = duringTransfer(setting::ReceiveFileType, [this] { receive(1); });
        // The exchange that starts the provider comes before the type is forced.
        ASSERT_GT(types.size(), 1u);
        for (std::size_t i = 1; i < types.size(); ++i) EXPECT_EQ(types[i], row.forced);
        EXPECT_EQ(number(setting::ReceiveFileType), row.type);
        EXPECT_EQ(journalCount("CreateFileObject("), row.files);
        EXPECT_EQ(pcFileExists(), row.files > 0);
        EXPECT_EQ(pcFileBytes().substr(0, 5), row.begin);
        EXPECT_EQ(user.display.rows.size(), row.rows);
        EXPECT_EQ(user.shellCalls.size(), row.shells);
        EXPECT_EQ(user.progressModes.at(0), 0u) << "the screen's";
    }
}

// A send has its file whatever the output of a receive is.
TEST_F(TransferDriver, FileObjectIsToldNameTypeFlagsAndAction) {
    for (std::int32_t type = AsciiText; type <= Dif; ++type) {
        for (const bool sending : {false, true}) {
            SCOPED_TRACE(std::to_string(type) + (sending ? " sent" : " received"));
            const std::int32_t receiveType = sending ? Untouched : type;
            set(setting::SendFileType, type);
            set(setting::ReceiveFileType, receiveType);
            set(setting::ReceiveOutput, sending ? type % 4 : ToFile);
            writePcFile("");
            emulator::clearJournal();
            sending ? send() : receive();
            const bool binary = type == BasicRandom || type == NoConversion;
            expectInOrder({"CreateFileObject(", "FileObject.setName(",
                           binary ? "FileObject.setTypeFlag(1" : "FileObject.setTypeFlag(0",
                           "FileObject.setOpenFlags(11", "FileObject.setExistingFileAction(1", "FileObject.destroy("});
            EXPECT_EQ(journalCount("CreateFileObject("), 1u);
            EXPECT_EQ(number(setting::ReceiveFileType), receiveType);
        }
    }
}

TEST_F(TransferDriver, OwnerWindowFallsBackToTheSettingThenToTheMainWindow) {
    set(setting::ReceiveOutput, ToScreen);
    set(setting::TransferOwnerWindow, 47114711);
    receive();
    EXPECT_EQ(journalCount("TextDisplayCreate(47114711"), 1u);
    set(setting::TransferOwnerWindow, 0);
    receive();
    EXPECT_EQ(journalCount("TextDisplayCreate(47114711"), 1u);
    EXPECT_EQ(journalCount("TextDisplayCreate(0"), 0u);
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

TEST_F(TransferDriver, WithoutAFileObjectNoDriverRunsAndTheTypeIsRestored) {
    set(setting::ReceiveOutput, ToSpreadsheet);
    setFault(&emulator::Faults::refuseFileObject, true);
    receive();
    EXPECT_EQ(scripted::entries(), (std::vector<std::string>{"EHNAPPC_IsRouterLoaded", "TF_RESET"}));
    EXPECT_EQ(number(setting::ReceiveFileType), CommaSeparated);
    ASSERT_EQ(user.messageIds(), std::vector<std::uint32_t>{4001});
    EXPECT_EQ(user.messages[0].helpId, 4001u);
}

TEST_F(TransferDriver, SettingsFileRunsFirstAndMovesToItsFolder) {
    std::filesystem::create_directory(path("elsewhere"));
    emulator::setSettingsFileReader([this](ZhstSession of, const std::string& file) {
        EXPECT_EQ(of, session);
        EXPECT_EQ(file, "daily.xfr");
        set(setting::WorkingDirectory, path("elsewhere"));
        set(setting::PcFileName, "daily.csv");
        return true;
    });
    library.pcsTransferFile(client(), "daily.xfr", 0, 0, 0);
    EXPECT_EQ(fileBytes(path("elsewhere/daily.csv")), Received);
    expectInOrder({"RunAppCommand(*, 67, 24, 3, 32, \"daily.xfr\"", "CheckCommandFailed(", "GetStringSetting(*, 218 ",
                   "PathServices.setCurrentDirectory(", "GetStringSetting(*, 40 ", "LoadModule("});
}

TEST_F(TransferDriver, FailingSettingsFileEndsBeforeAnythingStarts) {
    emulator::setSettingsFileReader([](ZhstSession, const std::string&) { return false; });
    library.pcsTransferFile(client(), "daily.xfr", 0, 0, 0);
    EXPECT_TRUE(scripted::entries().empty());
    EXPECT_EQ(emulator::openObjects().modules, 0u);
    EXPECT_TRUE(user.messages.empty());
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
