#include <algorithm>

#include "host/session.h"
#include "platform/platform.h"
#include "support/transfer_fixture.h"

namespace {

using hostfields::character;
using scripted::Answer;
using Ids = std::vector<std::uint32_t>;

std::uint32_t ticks = 0;

class ReceiveDriver : public TransferFixture {
protected:
    void SetUp() override {
        TransferFixture::SetUp();
        hostFile.fields = {character("NAME", 2)};
        give(3);
        emulator::setTickCount([] { return ticks += 100; });
    }
    void give(std::size_t records) { hostFile.records.assign(records, hostText("AB")); }
    static std::string lines(std::size_t count) {
        std::string text;
        for (std::size_t i = 0; i < count; ++i) text += "AB\r\n";
        return text;
    }
    std::string text(std::uint32_t index) {
        char buffer[80] = "";
        host::LoadMessageText(session, 7, index, buffer, sizeof buffer);
        return buffer;
    }
    std::vector<std::string> entriesOf(const std::function<void()>& transfer) {
        const auto before = static_cast<std::ptrdiff_t>(scripted::entries().size());
        transfer();
        return {scripted::entries().begin() + before, scripted::entries().end()};
    }
};

TEST_F(ReceiveDriver, StepsOfATransferToAFile) {
    set(setting::RecordProgress, 1);
    set(setting::WriteDescriptionFile, 1);
    set(setting::ReceiveDescriptionFile, "*.FDF");
    receive(1);
    expectInOrder({"SetSetting(*, 772 *, 0)",
                   "SetSetting(*, 773 *, 0)",
                   "SetStringSetting(*, 774 *\"*\"",
                   "SetStringSetting(*, 775 *\"*\"",
                   "SetStringSetting(*, 776 *\"*\"",
                   "ProgressDialogCreate(*, 1, 1, 0)",
                   "ProgressDialogSetPcName(",
                   "ProgressDialogSetHostName(*, \"QGPL/CUST\"",
                   "ProgressDialogCommand(*, 23)",
                   "ProgressDialogCommand(*, 24)",
                   "provider TF_SEND_REQUEST",
                   "provider TF_GET_DATA",
                   "SetSetting(*, 773 *, 3)",
                   "SetSetting(*, 449 *, 1)",
                   "ProgressDialogSetTotal(*, 3, 1)",
                   "ProgressDialogCommand(*, 26)",
                   "provider TF_SEND_REQUEST",
                   "ProgressDialogCommand(*, 16)",
                   "ProgressDialogCommand(*, 27)",
                   "provider TF_SEND_REQUEST",
                   "ProgressDialogCommand(*, 25)",
                   "ProgressDialogCommand(*, 28)",
                   "provider TF_GET_FIELD",
                   "provider TF_GET_FIELD",
                   "ProgressDialogCommand(*, 32)",
                   "ProgressDialogCommand(*, 0)",
                   "FileObject.openForWriting(",
                   "FileObject.openedName(",
                   "CreateFileObject(",
                   "FileObject.write(\"PCFDF",
                   "SetSetting(*, 772 *, 1)",
                   "provider TF_GET_DATA",
                   "FileObject.write(\"AB\\r\\n\", 4)",
                   "SetSetting(*, 448 *, 1)",
                   "ProgressDialogCommand(*, 16)",
                   "SetSetting(*, 772 *, 2)",
                   "provider TF_GET_DATA",
                   "SetSetting(*, 772 *, 4)",
                   "provider TF_GET_DATA",
                   "SetSetting(*, 448 *, 3)",
                   "ProgressDialogCommand(*, 4)",
                   "ProgressDialogCommand(*, 1)",
                   "FileObject.close(",
                   "FileObject.destroy(",
                   "ProgressDialogDestroy("});
    EXPECT_EQ(journalCount("provider TF_END"), 0u) << "a request at its end is not ended again";
    EXPECT_EQ(number(setting::JobRecordsReceived), 4);
    EXPECT_EQ(number(setting::ProgressCount), 3);
    EXPECT_EQ(user.progressPcName, pcFile());
}

TEST_F(ReceiveDriver, TypeAndModeOfTheProgress) {
    const std::uint32_t commands[] = {29, 34, 32, 30, 31, 33, 35};
    for (std::int32_t type = AsciiText; type <= Dif; ++type) {
        SCOPED_TRACE(type);
        set(setting::ReceiveFileType, type);
        emulator::clearJournal();
        receive(1);
        expectInOrder(
            {"ProgressDialogCommand(*, " + std::to_string(commands[type]) + ")", "ProgressDialogCommand(*, 0)"});
    }
    user.progressModes.clear();
    set(setting::ReceiveFileType, AsciiText);
    for (const std::int32_t progress : {0, 1, 2}) {
        set(setting::RecordProgress, progress);
        receive(0);
        receive(1);
    }
    EXPECT_EQ(user.progressModes, (Ids{0, 2, 0, 1, 0, 2}));
}

TEST_F(ReceiveDriver, ProgressGoesInStepsOfTheExpectedCount) {
    const struct {
        std::uint32_t count;
        std::size_t records;
        std::vector<int> steps;  // empty: every record
    } rows[] = {{200, 60, {}}, {201, 201, {50, 100, 150, 200}}, {499, 160, {50, 100, 150}}, {500, 260, {100, 200}}};
    set(setting::RecordProgress, 1);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.count);
        give(row.records);
        hostFile.count = row.count;
        emulator::clearJournal();
        user.progressCommands.clear();
        receive();
        const std::size_t steps = row.steps.empty() ? row.records : row.steps.size();
        EXPECT_EQ(journalCount("SetSetting(*, 448 "), steps + 1);
        // One more behind the options request.
        EXPECT_EQ(std::count(user.progressCommands.begin(), user.progressCommands.end(), 16u),
                  static_cast<std::ptrdiff_t>(steps) + 1);
        for (const int step : row.steps)
            EXPECT_GE(journalCount("SetSetting(*, 448 *, " + std::to_string(step) + ")"), 1u);
        EXPECT_EQ(number(setting::ProgressCount), static_cast<std::int32_t>(row.records));
    }
}

TEST_F(ReceiveDriver, CombinationsThatAreRefusedBeforeAnything) {
    receive();  // starts the provider
    set(setting::DecimalSeparatorMode, 2);
    EXPECT_TRUE(entriesOf([this] { receive(1); }).empty());
    set(setting::ReceiveFileType, Dif);
    set(setting::ExistingFileAction, 2);
    EXPECT_TRUE(entriesOf([this] { receive(1); }).empty());
    EXPECT_EQ(user.messageIds(), (Ids{4433, 4682}));
    for (const auto& box : user.messages) EXPECT_EQ(box.helpId, box.id);
    EXPECT_EQ(user.progressModes.size(), 1u) << "no dialog for the refused ones";
    EXPECT_EQ(pcFileBytes(), lines(3));
}

TEST_F(ReceiveDriver, EmptyFileIsToldOnlyWhenItWasCounted) {
    give(0);
    receive();
    EXPECT_TRUE(pcFileExists());
    EXPECT_EQ(pcFileBytes(), "");
    std::filesystem::remove(pcFile());
    for (const FileType type : {CommaSeparated, Dif}) {
        SCOPED_TRACE(type);
        set(setting::RecordProgress, 1);
        set(setting::ReceiveFileType, type);
        user.messages.clear();
        emulator::clearJournal();
        receive(1);
        ASSERT_EQ(user.messages.size(), 1u);
        EXPECT_EQ(user.messages[0].id, host::MessageId(7, 416));
        EXPECT_EQ(user.messages[0].helpId, 124u);
        expectInOrder({"ProgressDialogHide(", "ShowMessage(", "ProgressDialogShow(", "ProgressDialogCommand(*, 1)"});
        EXPECT_FALSE(pcFileExists());
    }
    hostFile.count = 0xFFFFFFFF;  // less than nothing
    receive();
    EXPECT_FALSE(pcFileExists());
}

// The user cancels in the Nth call of a function; the records of before stay.
TEST_F(ReceiveDriver, CancelAtEachCheck) {
    receive();
    const struct {
        std::uint32_t function;
        int nth;
        std::vector<std::string> entries;
        std::size_t records;  // 99: no file
    } rows[] = {
        {provider::TF_SEND_REQUEST, 1, {"TF_SEND_REQUEST", "TF_END_REQUEST"}, 99},
        {provider::TF_SEND_REQUEST, 2, {"TF_SEND_REQUEST", "TF_SEND_REQUEST", "TF_END_REQUEST"}, 99},
        {provider::TF_GET_FIELD,
         1,
         {"TF_SEND_REQUEST", "TF_SEND_REQUEST", "TF_GET_FIELD", "TF_GET_FIELD", "TF_END_REQUEST"},
         99},
        {provider::TF_GET_DATA,
         1,
         {"TF_SEND_REQUEST", "TF_SEND_REQUEST", "TF_GET_FIELD", "TF_GET_FIELD", "TF_GET_DATA", "TF_END_REQUEST"},
         1},
        {provider::TF_GET_DATA,
         2,
         {"TF_SEND_REQUEST", "TF_SEND_REQUEST", "TF_GET_FIELD", "TF_GET_FIELD", "TF_GET_DATA", "TF_GET_DATA",
          "TF_END_REQUEST"},
         2},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(scripted::functionName(row.function)) + " " + std::to_string(row.nth));
        std::filesystem::remove(pcFile());
        int calls = 0;
        hostFile.intercept = [&](const scripted::Call& call) -> std::optional<Answer> {
            if (call.function == row.function && ++calls == row.nth) library.pcsCancelTransfer(client());
            return std::nullopt;
        };
        const auto entries = entriesOf([this] { receive(); });
        hostFile.intercept = nullptr;
        EXPECT_EQ(entries, row.entries);
        EXPECT_EQ(pcFileExists(), row.records != 99);
        EXPECT_EQ(pcFileBytes(), row.records == 99 ? "" : lines(row.records));
        EXPECT_TRUE(user.messages.empty());
        expectIdle();
    }
}

TEST_F(ReceiveDriver, RequestIsEndedWhenItWasLeftOrTheClientWantsIt) {
    useTransport(30);
    receive();
    EXPECT_EQ(scripted::entries().back(), "TF_END_REQUEST");
    useTransport(2);
    scripted::answerNext(provider::TF_GET_DATA, Answer::code(0x2001));
    receive();
    EXPECT_EQ(scripted::entries().back(), "TF_END_REQUEST");
}

TEST_F(ReceiveDriver, WriteThatFailsKeepsWhatWasWritten) {
    emulator::Faults faults;
    faults.failWriteAfterBytes = 9;
    emulator::setFaults(faults);
    const auto entries = entriesOf([this] { receive(); });
    emulator::setFaults({});
    EXPECT_EQ(pcFileBytes(), lines(2));
    EXPECT_EQ(user.messages.size(), 1u) << "the file object tells it";
    ASSERT_GE(entries.size(), 2u);
    EXPECT_EQ(entries[entries.size() - 2], "TF_END_DATA");
    EXPECT_EQ(entries.back(), "TF_END_REQUEST");
    receive();
    EXPECT_EQ(pcFileBytes(), lines(3));
}

TEST_F(ReceiveDriver, RefusedWindowsAndFiles) {
    using emulator::Faults;
    const struct {
        const char* what;
        bool Faults::*fault;
        std::int32_t output;
        std::uint32_t message;
    } rows[] = {{"progress", &Faults::refuseProgressDialog, ToFile, 4001},
                {"progress of a display", &Faults::refuseProgressDialog, ToScreen, 4001},
                {"display", &Faults::refuseTextDisplayBegin, ToScreen, 4436},
                {"no display", &Faults::refuseTextDisplay, ToScreen, 4436}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        Faults faults;
        faults.*row.fault = true;
        set(setting::ReceiveOutput, row.output);
        user.messages.clear();
        client();
        emulator::setFaults(faults);
        receive(1);
        emulator::setFaults({});
        EXPECT_EQ(user.messageIds(), Ids{row.message});
        expectIdle();
    }
    set(setting::ReceiveOutput, ToFile);
    set(setting::PcFileName, path("nowhere/file.csv"));
    user.messages.clear();
    receive();
    EXPECT_EQ(user.messages.size(), 1u);
    EXPECT_EQ(scripted::entries().back(), "TF_END_REQUEST");
}

// --- The display ------------------------------------------------------------------------------------------------

TEST_F(ReceiveDriver, ColumnsAreAsWideAsTextOrName) {
    set(setting::ReceiveOutput, ToScreen);
    hostFile.fields = {
        character("ABCDEFGHIJKLMNOPQRST", 3), hostfields::zoned("Z", 5, 2), hostfields::hex("HX", 2),
        hostfields::packed("P", 5),           hostfields::binary("B", 2),   hostfields::typed(9, "T", 4)};
    hostFile.records = {HostRecord().text("a", 3).zoned(-125, 5).hex("0AFF").packed(42, 5).binary(7, 2).text("x", 4)};
    receive();
    const auto& columns = user.display.columns;
    ASSERT_EQ(columns.size(), 6u);
    const std::uint32_t widths[] = {20, 8, 4, 6, 6, 4}, alignments[] = {0, 2, 2, 2, 2, 0};
    for (std::uint32_t i = 0; i < 6; ++i) {
        EXPECT_EQ(columns.at(i).width, widths[i]) << i;
        EXPECT_EQ(columns.at(i).alignment, alignments[i]) << i;
    }
    EXPECT_EQ(columns.at(0).title, "ABCDEFGHIJKLMNOPQRST");
    ASSERT_EQ(user.display.rows.size(), 1u);
    const std::map<std::uint32_t, std::string> row = {{0, "a  "},    {1, "  -1.25"}, {2, "0AFF"},
                                                      {3, "    42"}, {4, "     7"},  {5, "x   "}};
    EXPECT_EQ(user.display.rows[0], row);
    EXPECT_EQ(user.display.title, text(418).substr(0, 39));
}

TEST_F(ReceiveDriver, DisplayStopsBehindEachFullPage) {
    set(setting::ReceiveOutput, ToScreen);
    const struct {
        std::int32_t rowsPerPage;
        std::vector<std::size_t> stops;
    } rows[] = {{20, {20, 40}}, {1, {}}, {0, {}}, {-5, {}}, {45, {45}}, {46, {0}}};
    give(45);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.rowsPerPage);
        set(setting::DisplayRowsPerPage, row.rowsPerPage);
        std::vector<std::size_t> stops;
        user.onPump = [&] {
            if (!user.display.rows.empty() && !user.display.ended) {
                stops.push_back(user.display.rows.size());
                EXPECT_EQ(user.display.statuses.back(), text(432));
            }
            user.readOn();
        };
        receive();
        if (row.stops == std::vector<std::size_t>{0}) {
            EXPECT_TRUE(stops.empty());
        } else if (row.stops.empty()) {
            EXPECT_EQ(stops.size(), 45u);
        } else {
            EXPECT_EQ(stops, row.stops);
        }
        EXPECT_EQ(user.display.statuses.back(), text(418).substr(0, 39));
        EXPECT_FALSE(user.display.open);
    }
}

TEST_F(ReceiveDriver, ClosingTheDisplayEndsTheTransfer) {
    set(setting::ReceiveOutput, ToScreen);
    set(setting::DisplayRowsPerPage, 2);
    user.onPump = [] { emulator::closeDisplay(); };
    receive();
    EXPECT_EQ(user.display.rows.size(), 2u);
    const auto& entries = scripted::entries();
    EXPECT_EQ(entries[entries.size() - 2], "TF_END_DATA");
    EXPECT_EQ(entries.back(), "TF_END_REQUEST");
    EXPECT_FALSE(pcFileExists());
}

// --- The spreadsheet --------------------------------------------------------------------------------------------

TEST_F(ReceiveDriver, SpreadsheetOpensTheClosedFile) {
    set(setting::ReceiveOutput, ToSpreadsheet);
    set(setting::PcFileName, path("CUST.DIF"));
    std::string opened = path("CUST.DIF");
    platform::CharLowerA(opened.data());
    using Call = std::pair<std::string, std::string>;
    receive();
    EXPECT_EQ(user.shellCalls, std::vector<Call>({{opened, ""}}));
    set(setting::LaunchByProgramName, 1);
    receive();
    EXPECT_EQ(user.shellCalls.back(), Call("EXCEL.EXE", opened));
    EXPECT_TRUE(user.messages.empty());
    user.shellResult = 31;
    receive();
    ASSERT_EQ(user.messageIds(), Ids{4679});
    EXPECT_EQ(user.messages[0].inserts, (std::vector<std::string>{opened, "31", " "}));
    user.shellResult = 32;
    receive();
    EXPECT_EQ(user.messages.size(), 1u);
}

TEST_F(ReceiveDriver, DifAsksAboutAnExistingFileInItsOwnWay) {
    set(setting::ReceiveFileType, Dif);
    set(setting::ExistingFileAction, 0);
    receive();
    expectInOrder({"FileObject.prepareNewFile(", "FileObject.openForWriting("});
    emulator::clearJournal();
    set(setting::ReceiveFileType, CommaSeparated);
    receive();
    EXPECT_EQ(journalCount("FileObject.prepareNewFile("), 0u);
}

// --- The demonstration ------------------------------------------------------------------------------------------

TEST_F(ReceiveDriver, DemonstrationTableStopsBehindEachPage) {
    set(setting::ConnectionType, 3);
    set(setting::ReceiveOutput, ToScreen);
    const std::map<std::int32_t, std::vector<std::size_t>> stopsOf = {{10, {10, 20}}, {23, {23}}, {24, {}}, {12, {12}}};
    for (const std::int32_t size : {10, 23, 24, 12, 1, 0}) {
        SCOPED_TRACE(size);
        set(setting::DisplayRowsPerPage, size);
        std::vector<std::size_t> stops;
        user.onPump = [&] {
            if (!user.display.ended) stops.push_back(user.display.rows.size());
            user.readOn();
        };
        receive(1);
        if (size > 1) {
            EXPECT_EQ(stops, stopsOf.at(size));
        } else {
            EXPECT_EQ(stops.size(), 23u);
        }
        ASSERT_EQ(user.display.rows.size(), 23u);
    }
    const char* titles[] = {"LAST", "FIRST", "STREET", "CITY", "STATE", "ZIPCODE"};
    const std::uint32_t widths[] = {12, 15, 22, 21, 6, 7};
    for (std::uint32_t i = 0; i < 6; ++i) {
        EXPECT_EQ(user.display.columns.at(i).title, titles[i]);
        EXPECT_EQ(user.display.columns.at(i).width, widths[i]);
        for (const auto& row : user.display.rows) EXPECT_EQ(row.at(i).size(), i == 5 ? 5u : widths[i] - 1);
    }
    set(setting::DisplayRowsPerPage, 5);
    user.onPump = [] { emulator::closeDisplay(); };
    receive();
    EXPECT_EQ(user.display.rows.size(), 5u);
    EXPECT_TRUE(scripted::calls().empty());
}

TEST_F(ReceiveDriver, DemonstrationSimulatesFiveSteps) {
    set(setting::ConnectionType, 3);
    set(setting::ReceiveFileType, Dif);
    receive(1);
    EXPECT_EQ(user.progressCommands, (Ids{23, 35, 0, 1, 1}));
    EXPECT_EQ(user.progressTotalAmount, 2340u);
    EXPECT_EQ(user.progressUnit, 1u);
    EXPECT_EQ(number(setting::TransferDirection), 1);
    expectInOrder({"SetSetting(*, 448 *, 468)", "PumpMessages(", "SetSetting(*, 448 *, 936)", "PumpMessages(",
                   "SetSetting(*, 448 *, 1404)", "SetSetting(*, 448 *, 1872)", "SetSetting(*, 448 *, 2340)"});

    user.onPump = [this] {
        if (number(setting::ProgressCount) == 1404) library.pcsCancelTransfer(client());
    };
    user.progressCommands.clear();
    ticks = 0xFFFFFF00;  // the clock wraps around on the way
    receive(1);
    EXPECT_EQ(user.progressCommands, (Ids{23, 35, 0, 2, 1}));
    EXPECT_EQ(number(setting::ProgressCount), 1404);
    EXPECT_FALSE(pcFileExists());
}

TEST_F(ReceiveDriver, DemonstrationOfASendCountsTheBytesOfTheFile) {
    set(setting::ConnectionType, 3);
    set(setting::SendFileType, TabDelimited);
    writePcFile(std::string(1001, 'x'));
    send(1);
    EXPECT_EQ(user.progressTotalAmount, 1001u);
    EXPECT_EQ(user.progressUnit, 2u);
    EXPECT_EQ(number(setting::TransferDirection), 0);
    expectInOrder({"ProgressDialogCommand(*, 33)", "SetSetting(*, 448 *, 200)", "SetSetting(*, 448 *, 400)",
                   "SetSetting(*, 448 *, 600)", "SetSetting(*, 448 *, 800)", "SetSetting(*, 448 *, 1000)"});
}

}  // namespace
