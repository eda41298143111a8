#include <algorithm>
#include <numeric>
#include <sstream>

#include "Z7XFRPCS/session.h"
#include "platform/platform.h"
#include "support/transfer_fixture.h"

namespace {

using hostfields::character;
using scripted::Answer;
using Ids = std::vector<std::uint32_t>;

std::uint32_t ticks = 0;

// The parts between the bars.
std::vector<std::string> steps(const std::string& text) {
    std::vector<std::string> parts;
    std::istringstream in(text);
    for (std::string part; std::getline(in, part, '|');) parts.push_back(part);
    return parts;
}

class ReceiveDriver : public TransferFixture {
protected:
    void SetUp() override {
        TransferFixture::SetUp();
        hostFile.fields = {character("NAME", 2)};
        give(3);
        emulator::setTickCount([] { return ticks += 100; });
    }
    // How many rows there are whenever the user is asked for the next page.
    std::vector<std::size_t> stops(std::int32_t rowsPerPage) {
        set(setting::DisplayRowsPerPage, rowsPerPage);
        std::vector<std::size_t> stops;
        user.onPump = [&] {
            if (!user.display.ended) stops.push_back(user.display.rows.size());
            user.readOn();
        };
        receive(1);
        user.onPump = nullptr;
        return stops;
    }
    // 1, 2, 3 ...
    static std::vector<std::size_t> each(std::size_t rows) {
        std::vector<std::size_t> numbers(rows);
        std::iota(numbers.begin(), numbers.end(), 1u);
        return numbers;
    }
    void give(std::size_t records) { hostFile.records.assign(records, hostText("AB")); }
    static void expectEnded(const std::vector<std::string>& entries) {
        ASSERT_GE(entries.size(), 2u);
        EXPECT_EQ(entries[entries.size() - 2], "TF_END_DATA");
        EXPECT_EQ(entries.back(), "TF_END_REQUEST");
    }
    static std::string lines(std::size_t count) {
        std::string text;
        for (std::size_t i = 0; i < count; ++i) text += "AB\r\n";
        return text;
    }
    std::string text(std::uint32_t index) const { return messageText(7, index, 80); }
};

TEST_F(ReceiveDriver, StepsOfATransferToAFile) {
    set(setting::RecordProgress, 1);
    describe();
    receive(1);
    expectInOrder(steps(
        "set 772=0|set 773=0|SetStringSetting(*, 774 *\"*\"|SetStringSetting(*, 775 *\"*\"|SetStringSetting(*, 776 "
        "*\"*\"|"
        "ProgressDialogCreate(*, 1, 1, 0)|ProgressDialogSetPcName(|ProgressDialogSetHostName(*, \"QGPL/CUST\"|command "
        "23|"
        "command 24|provider TF_SEND_REQUEST|provider TF_GET_DATA|set 773=3|set 449=1|ProgressDialogSetTotal(*, 3, 1)|"
        "command 26|provider TF_SEND_REQUEST|command 16|command 27|provider TF_SEND_REQUEST|command 25|"
        "command 28|provider TF_GET_FIELD|provider TF_GET_FIELD|command 32|command 0|FileObject.openForWriting(|"
        "FileObject.openedName(|CreateFileObject(|FileObject.write(\"PCFDF|set 772=1|"
        "provider TF_GET_DATA|FileObject.write(\"AB\\r\\n\", 4)|set 448=1|command 16|set 772=2|"
        "provider TF_GET_DATA|set 772=4|provider TF_GET_DATA|set 448=3|command 4|command 1|"
        "FileObject.close(|FileObject.destroy(|ProgressDialogDestroy("));
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
        expectInOrder({"command " + std::to_string(commands[type]), "command 0"});
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
        EXPECT_EQ(user.messages[0].id, zhstMessageId(7, 416));
        EXPECT_EQ(user.messages[0].helpId, 124u);
        expectInOrder({"ProgressDialogHide(", "ShowMessage(", "ProgressDialogShow(", "command 1"});
        EXPECT_FALSE(pcFileExists());
    }
    hostFile.count = 0xFFFFFFFF;  // what stands for a failure
    user.messages.clear();
    receive();
    EXPECT_FALSE(pcFileExists());
    EXPECT_TRUE(user.messages.empty());
}

// The records come all the same; the dialog counts them without an end.
TEST_F(ReceiveDriver, CountThatIsNoTotalLetsTheTransferGoOn) {
    const Answer nothing = Answer::code(0), completed = Answer::code(0x5057);
    Answer shortOne = Answer::data(bytesOf("00000005"));
    shortOne.dataLength = 3;
    const std::pair<const char*, Answer> rows[] = {{"negative", Answer::data(bytesOf("FFFFFFFE"))},
                                                   {"far below", Answer::data(bytesOf("80000000"))},
                                                   {"three bytes", shortOne},
                                                   {"nothing", nothing},
                                                   {"completed", completed}};
    set(setting::RecordProgress, 1);
    for (const auto& [what, answer] : rows) {
        SCOPED_TRACE(what);
        for (const FileType type : {CommaSeparated, Dif}) {
            set(setting::ReceiveFileType, type);
            set(setting::TransferDirection, 0);
            emulator::clearJournal();
            std::filesystem::remove(pcFile());
            scripted::answerNext(TF_GET_DATA, answer);
            receive(1);
            if (type == CommaSeparated) {
                EXPECT_EQ(pcFileBytes(), lines(3));
            } else {
                EXPECT_NE(pcFileBytes().find("TUPLES\r\n0,1\r\n"), std::string::npos);
            }
            EXPECT_EQ(number(setting::JobRecordsTotal), 0);
            EXPECT_EQ(number(setting::TransferDirection), 1);
            EXPECT_EQ(journalCount("ProgressDialogSetTotal("), 0u);
            EXPECT_EQ(journalCount("SetSetting(*, 448 "), 4u);
        }
    }
    EXPECT_TRUE(user.messages.empty());
}

// A length of 0 says nothing; any other is taken at its word.
TEST_F(ReceiveDriver, DescriptionsWithoutALengthAreWhole) {
    const struct {
        std::uint32_t length;
        scripted::Place place;
        bool isField;
    } rows[] = {{0, scripted::Place::OwnMemory, true},
                {0, scripted::Place::SharedBuffer, true},
                {0, scripted::Place::Null, false},
                {39, scripted::Place::OwnMemory, false},
                {41, scripted::Place::OwnMemory, true}};
    hostFile.fields.clear();
    for (const auto& row : rows) {
        SCOPED_TRACE(row.length);
        Answer answer = Answer::data(character("NAME", 2) + "behind");
        answer.dataLength = row.length;
        answer.place = row.place;
        scripted::answerNext(TF_GET_FIELD, answer);
        user.messages.clear();
        receive();
        EXPECT_EQ(user.messages.empty(), row.isField);
        EXPECT_EQ(pcFileBytes().substr(0, 4), row.isField ? "AB\r\n" : "\r\n\r\n");
    }
}

TEST_F(ReceiveDriver, CountAndRecordsMayStandInTheProvidersMemory) {
    give(0);
    set(setting::RecordProgress, 1);
    for (const std::string& bytes : {HostRecord().binary(3, 4).str(), hostText("AB"), hostText("AB"), hostText("AB")}) {
        Answer answer = Answer::data(bytes);
        answer.place = scripted::Place::OwnMemory;
        scripted::answerNext(TF_GET_DATA, answer);
    }
    receive(1);
    EXPECT_EQ(number(setting::JobRecordsTotal), 3);
    EXPECT_EQ(pcFileBytes(), lines(3));
}

// The user cancels in the Nth call of a function; the records of before stay.
TEST_F(ReceiveDriver, CancelAtEachCheck) {
    receive();
    const std::string whole[] = {"TF_SEND_REQUEST", "TF_SEND_REQUEST", "TF_GET_FIELD",
                                 "TF_GET_FIELD",    "TF_GET_DATA",     "TF_GET_DATA"};
    const struct {
        std::uint32_t function;
        int nth;
        std::size_t entries;  // of a whole transfer, then its end
        std::size_t records;  // 99: no file
    } rows[] = {{TF_SEND_REQUEST, 1, 1, 99},
                {TF_SEND_REQUEST, 2, 2, 99},
                {TF_GET_FIELD, 1, 4, 99},
                {TF_GET_DATA, 1, 5, 1},
                {TF_GET_DATA, 2, 6, 2}};
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(scripted::functionName(row.function)) + " " + std::to_string(row.nth));
        std::filesystem::remove(pcFile());
        int calls = 0;
        hostFile.observe = [&](const scripted::Call& call) {
            if (call.function == row.function && ++calls == row.nth) library.pcsCancelTransfer(client());
        };
        const auto entries = entriesOf([this] { receive(); });
        hostFile.observe = nullptr;
        std::vector<std::string> expected(whole, whole + row.entries);
        expected.push_back("TF_END_REQUEST");
        EXPECT_EQ(entries, expected);
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
    scripted::answerNext(TF_GET_DATA, Answer::code(0x2001));
    receive();
    EXPECT_EQ(scripted::entries().back(), "TF_END_REQUEST");
}

TEST_F(ReceiveDriver, WriteThatFailsKeepsWhatWasWritten) {
    setFault(&emulator::Faults::failWriteAfterBytes, 9);
    const auto entries = entriesOf([this] { receive(); });
    emulator::setFaults({});
    EXPECT_EQ(pcFileBytes(), lines(2));
    EXPECT_EQ(user.messages.size(), 1u) << "the file object tells it";
    expectEnded(entries);
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
        set(setting::ReceiveOutput, row.output);
        user.messages.clear();
        client();
        setFault(row.fault, true);
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

TEST_F(ReceiveDriver, FieldWithoutATextFormIsNamedWithTheProgressHidden) {
    hostFile.fields = {hostfields::raw(1, 9, 0, "LONGNUMBER", 20)};
    hostFile.records = {std::string(9, '\0')};
    receive(1);
    ASSERT_EQ(user.messages.size(), 1u);
    EXPECT_NE(user.messages[0].text.find("LONGNUMBER"), std::string::npos);
    expectInOrder({"ProgressDialogHide(", "ShowMessageText(", "ProgressDialogShow(", "provider TF_END_REQUEST"});
}

// --- The display ------------------------------------------------------------------------------------------------

TEST_F(ReceiveDriver, ColumnsAreAsWideAsTextOrName) {
    set(setting::ReceiveOutput, ToScreen);
    hostFile.fields = {
        character("ABCDEFGHIJKLMNOPQRST", 3), hostfields::zoned("Z", 5, 2), hostfields::hex("HX", 2),
        hostfields::packed("P", 5),           hostfields::binary("B", 2),   hostfields::typed(9, "T", 4)};
    hostFile.records = {HostRecord().text("a", 3).zoned(-125, 5).hex("0AFF").packed(42, 5).binary(7, 2).text("x", 4)};
    receive();
    const struct {
        const char* cell;
        std::uint32_t width, alignment;
    } expected[] = {{"a  ", 20, 0},   {"  -1.25", 8, 2}, {"0AFF", 4, 2},
                    {"    42", 6, 2}, {"     7", 6, 2},  {"x   ", 4, 0}};
    ASSERT_EQ(user.display.columns.size(), 6u);
    ASSERT_EQ(user.display.rows.size(), 1u);
    ASSERT_EQ(user.display.rows[0].size(), 6u);
    for (std::uint32_t i = 0; i < 6; ++i) {
        EXPECT_EQ(user.display.columns.at(i).width, expected[i].width) << i;
        EXPECT_EQ(user.display.columns.at(i).alignment, expected[i].alignment) << i;
        EXPECT_EQ(user.display.rows[0].at(i), expected[i].cell);
    }
    EXPECT_EQ(user.display.columns.at(0).title, "ABCDEFGHIJKLMNOPQRST");
    EXPECT_EQ(user.display.title, text(418).substr(0, 39));
}

TEST_F(ReceiveDriver, DisplayStopsBehindEachFullPage) {
    set(setting::ReceiveOutput, ToScreen);
    const std::pair<std::int32_t, std::vector<std::size_t>> rows[] = {{20, {20, 40}}, {1, each(45)}, {0, each(45)},
                                                                      {-5, each(45)}, {45, {45}},    {46, {}}};
    give(45);
    for (const auto& [rowsPerPage, expected] : rows) {
        SCOPED_TRACE(rowsPerPage);
        user.display.statuses.clear();
        auto seen = stops(rowsPerPage);
        std::erase(seen, 0u);  // the exchange processes messages before there are rows
        EXPECT_EQ(seen, expected);
        const auto& statuses = user.display.statuses;
        EXPECT_EQ(static_cast<std::size_t>(std::count(statuses.begin(), statuses.end(), text(432))), expected.size());
        EXPECT_EQ(statuses.back(), text(418).substr(0, 39));
        EXPECT_FALSE(user.display.open);
    }
}

TEST_F(ReceiveDriver, ClosingTheDisplayEndsTheTransfer) {
    set(setting::ReceiveOutput, ToScreen);
    set(setting::DisplayRowsPerPage, 2);
    user.onPump = [] { emulator::closeDisplay(); };
    const auto entries = entriesOf([this] { receive(); });
    EXPECT_EQ(user.display.rows.size(), 2u);
    expectEnded(entries);
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
    const std::pair<std::int32_t, std::vector<std::size_t>> rows[] = {{10, {10, 20}}, {23, {23}},    {24, {}},
                                                                      {12, {12}},     {1, each(23)}, {0, each(23)}};
    for (const auto& [rowsPerPage, expected] : rows) {
        SCOPED_TRACE(rowsPerPage);
        EXPECT_EQ(stops(rowsPerPage), expected);
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
    library.xferCleanup(session);
    EXPECT_TRUE(scripted::entries().empty());
    EXPECT_EQ(emulator::openObjects().modules, 0u) << "nothing is bound";
}

TEST_F(ReceiveDriver, DemonstrationSimulatesFiveSteps) {
    set(setting::ConnectionType, 3);
    set(setting::ReceiveFileType, Dif);
    receive(1);
    EXPECT_EQ(user.progressCommands, (Ids{23, 35, 0, 1, 1}));
    EXPECT_EQ(user.progressTotalAmount, 2340u);
    EXPECT_EQ(user.progressUnit, 1u);
    EXPECT_EQ(number(setting::TransferDirection), 1);
    expectInOrder({"set 448=468", "PumpMessages(", "set 448=936", "PumpMessages(", "set 448=1404", "set 448=1872",
                   "set 448=2340"});

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
    expectInOrder({"command 33", "set 448=200", "set 448=400", "set 448=600", "set 448=800", "set 448=1000"});
    EXPECT_TRUE(hostFile.statements.empty());
}

}  // namespace
