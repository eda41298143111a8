#include <algorithm>
#include <numeric>

#include "Z7XFRPCS/session.h"
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
    static std::string lines(std::size_t count) {
        std::string text;
        for (std::size_t i = 0; i < count; ++i) text += "AB\r\n";
        return text;
    }
    std::string text(std::uint32_t index) const { return messageText(7, index, 80); }
};

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

TEST_F(ReceiveDriver, EmptyFileIsThereUnlessItWasCounted) {
    give(0);
    receive();
    EXPECT_TRUE(pcFileExists());
    EXPECT_EQ(pcFileBytes(), "");
    std::filesystem::remove(pcFile());
    set(setting::RecordProgress, 1);
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

TEST_F(ReceiveDriver, WriteThatFailsKeepsWhatWasWritten) {
    setFault(&emulator::Faults::failWriteAfterBytes, 9);
    const auto entries = entriesOf([this] { receive(); });
    emulator::setFaults({});
    EXPECT_EQ(pcFileBytes(), lines(2));
    EXPECT_EQ(user.messages.size(), 1u) << "the file object tells it";
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

// --- The spreadsheet --------------------------------------------------------------------------------------------

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
    library.xferCleanup(session);
    EXPECT_TRUE(scripted::entries().empty());
    EXPECT_EQ(emulator::openObjects().modules, 0u) << "nothing is bound";
}

}  // namespace
