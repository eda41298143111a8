#include "support/transfer_fixture.h"

namespace {

using scripted::Answer;

class TransferErrors : public TwoRecords {
protected:
    // At most 99 characters, as in the buffer of a report.
    std::string text(std::uint32_t table, std::uint32_t index) const { return messageText(table, index, 100); }
    // Receives when the request is answered with this; the messages of this transfer alone.
    const std::vector<emulator::MessageBox>& told(const Answer& answer, std::uint32_t showProgress = 0) {
        user.messages.clear();
        scripted::answerNext(TF_SEND_REQUEST, answer);
        receive(showProgress);
        return user.messages;
    }
    static std::string notCompleted(const std::string& records, const std::string& job) {
        return "File transfer not completed.\nReceived approximately " + records +
               ".\n\nRefer to job log on host system AS400A.\n" + job;
    }
};

struct Row {
    const char* what;
    std::int32_t transport;
    std::uint32_t function;  // that is answered so
    std::uint32_t code, detail;
    const char* hostText;
    std::uint32_t message, help;           // 0: nothing
    std::uint32_t errorTable, errorIndex;  // of LastErrorText; 0: empty
    // Inserts: C context, N code, E error text, H host text, - the text of a transfer not completed
    const char* inserts;
};

constexpr std::uint32_t Ask = TF_SEND_REQUEST, Fetch = TF_GET_DATA;

const Row Rows[] = {
    {"request refused", 2, Ask, 0x2001, 0, "", 4406, 4406, 7, 506, "CNE"},
    {"detail counts only for the AS/400", 2, Ask, 0x2001, 3, "", 4406, 4406, 7, 506, "CNE"},
    {"code in no table", 2, Ask, 8198, 0, "", 4406, 4406, 0, 0, "CNE"},
    {"code in no table, no context", 2, Fetch, 8198, 0, "", 4416, 4416, 0, 0, "-"},
    {"record refused", 2, Fetch, 0x2001, 0, "", 4416, 4416, 7, 506, "-"},
    {"last of part B but the special one", 2, Ask, 0x5400, 0, "", 4406, 4406, 7, 547, "CNE"},
    {"5042", 2, Ask, 0x5042, 0, "", 4406, 4406, 7, 532, "CNE"},
    {"part A has no texts here", 2, Ask, 0x0005, 0, "", 4406, 4406, 0, 0, "CNE"},
    {"host text", 2, Ask, 0x2001, 0, "NO SUCH FILE", 4408, 506, 7, 506, "NEH"},
    {"host text, part A", 2, Ask, 0x0005, 0, "NO", 4408, 1200, 0, 0, "NEH"},
    {"host text, part A, last", 2, Fetch, 0x00F5, 0, "NO", 4408, 1250, 0, 0, "NEH"},
    {"host text, no code", 2, Ask, 0x0008, 0, "NO", 4408, 4254, 0, 0, "NEH"},
    {"host text alone", 2, Ask, 0x3000, 0, "NO", 4416, 4416, 7, 530, "H"},
    {"host text instead", 2, Fetch, 0x3100, 0, "NO", 4416, 4416, 7, 531, "H"},
    {"3000 without a text", 2, Ask, 0x3000, 0, "", 4406, 4406, 7, 530, "CNE"},
    {"own provider, 8", 8, Fetch, 0x0005, 0, "", 4416, 1200, 22, 5, "E"},
    {"own provider, 13, code unknown", 13, Fetch, 0x0009, 0, "", 4416, 4254, 22, 9, "E"},
    {"own provider, 5, context", 5, Ask, 0x0102, 0, "", 4406, 4406, 22, 0x102, "CNE"},
    {"own provider, part B", 7, Fetch, 0x0103, 0, "", 4416, 4416, 7, 500, "-"},
    {"AS/400, detail", 30, Ask, 0x2001, 3, "", 4416, 4416, 0, 0, "-"},
    {"AS/400, own code", 30, Ask, 0x0005, 0, "", 4406, 4406, 22, 5, "CNE"},
    {"AS/400, own code and detail", 30, Fetch, 0x0005, 1, "", 4416, 4416, 0, 0, "-"},
    {"AS/400, host text and detail", 30, Ask, 0x2001, 3, "NO", 4408, 506, 0, 0, "NEH"},
    {"AS/400, host text alone", 30, Ask, 0x3000, 7, "NO", 0, 4416, 0, 0, "scrolled"},
};

TEST_F(TransferErrors, EachFailureIsToldInItsWay) {
    for (const Row& row : Rows) {
        SCOPED_TRACE(row.what);
        useTransport(row.transport);
        set(setting::LastErrorText, "before");
        user.messages.clear();
        Answer answer = Answer::code(0xABCD0000u | row.code, row.hostText);
        answer.detail = row.detail;
        answer.place = scripted::Place::OwnMemory;
        scripted::answerNext(row.function, answer);
        receive();

        EXPECT_EQ(number(setting::LastReturnCode), static_cast<std::int32_t>(row.code));
        const std::string error = row.errorTable ? text(row.errorTable, row.errorIndex) : "";
        EXPECT_EQ(emulator::text(session, setting::LastErrorText), error);
        ASSERT_EQ(user.messages.size(), 1u);
        const emulator::MessageBox& box = user.messages[0];
        EXPECT_EQ(box.id, row.message);
        EXPECT_EQ(box.helpId, row.help);
        EXPECT_EQ(box.flags, 0x30u);
        if (std::string(row.inserts) == "scrolled") {
            EXPECT_TRUE(box.scrolling);
            EXPECT_EQ(box.text, row.hostText);
            continue;
        }
        EXPECT_FALSE(box.scrolling);
        std::vector<std::string> inserts;
        for (const char insert : std::string(row.inserts))
            inserts.push_back(insert == 'C'   ? text(7, 400)
                              : insert == 'N' ? std::to_string(row.code)
                              : insert == 'E' ? error
                              : insert == 'H'
                                  ? row.hostText
                                  : notCompleted(row.function == Fetch ? "1 records of 0" : "0 records of 0",
                                                 "Job name *, user profile *, job number *"));
        EXPECT_EQ(box.inserts, inserts);
    }
}

TEST_F(TransferErrors, TextsAndHelpOfTheWholeTable) {
    const std::uint32_t codes[] = {0x0103, 0x0300, 0x0302, 0x0400, 0x1FFF, 0x2000, 0x2001, 0x2002, 0x2003, 0x2004,
                                   0x2005, 0x2007, 0x2008, 0x2009, 0x2010, 0x2011, 0x2012, 0x2013, 0x2019, 0x2020,
                                   0x2021, 0x2022, 0x2023, 0x2024, 0x2025, 0x2026, 0x2027, 0x2028, 0x2029, 0x2030,
                                   0x3000, 0x3100, 0x5042, 0x5048, 0x5050, 0x5052, 0x5054, 0x5056, 0x5058, 0x5060,
                                   0x5062, 0x5064, 0x5066, 0x5067, 0x5071, 0x5310, 0x5311, 0x5400};
    const std::uint32_t own[][2] = {{0x05, 1200}, {0x06, 1201}, {0x07, 1202}, {0x16, 1203}, {0x1C, 1204}, {0x32, 1205},
                                    {0x33, 1206}, {0x37, 1207}, {0x48, 1208}, {0x4B, 1209}, {0x51, 1210}, {0x87, 1211},
                                    {0xD4, 1240}, {0xD5, 1241}, {0xD7, 1242}, {0xD8, 1243}, {0xEC, 1244}, {0xF5, 1250}};
    std::uint32_t index = 500;
    for (const std::uint32_t code : codes) {
        SCOPED_TRACE(code);
        const auto& messages = told(Answer::code(code, "HOST"));
        EXPECT_EQ(emulator::text(session, setting::LastErrorText), text(7, index));
        EXPECT_EQ(messages.at(0).helpId, code == 0x3000 || code == 0x3100 ? 4416 : index);
        ++index;
    }
    for (const auto& [code, help] : own) EXPECT_EQ(told(Answer::code(code, "HOST")).at(0).helpId, help);
}

TEST_F(TransferErrors, CodesThatAreNoErrors) {
    set(setting::LastErrorText, "before");
    scripted::answerNext(TF_SEND_REQUEST, Answer::code(0x5057));
    scripted::answerNext(TF_GET_DATA, Answer::code(0x7101));
    receive();
    EXPECT_EQ(number(setting::LastReturnCode), 0x7101);
    scripted::answerNext(TF_SEND_REQUEST, Answer::code(0));
    scripted::answerNext(TF_SEND_REQUEST, Answer::code(0x5057));
    hostFile.records.clear();
    receive();
    EXPECT_EQ(number(setting::LastReturnCode), 0x5057) << "the end of data is not judged";
    EXPECT_TRUE(user.messages.empty());
    told(Answer::code(0x9999));
    EXPECT_EQ(user.messageIds(), std::vector<std::uint32_t>{4432});
    EXPECT_EQ(user.messages[0].helpId, 4432u);
    EXPECT_EQ(emulator::text(session, setting::LastErrorText), "before");
}

TEST_F(TransferErrors, TheGateIsOneMessageWhateverIsShown) {
    for (const std::uint32_t disabled : {4408u, 4416u, 4406u}) {
        emulator::disableMessage(disabled);
        for (const std::uint32_t code : {0x2001u, 0x3000u}) {
            SCOPED_TRACE(std::to_string(disabled) + ", " + std::to_string(code));
            EXPECT_EQ(told(Answer::code(code, "HOST")).size(), disabled == 4406 ? 0u : 1u);
            EXPECT_EQ(number(setting::LastReturnCode), static_cast<std::int32_t>(code));
            EXPECT_EQ(emulator::text(session, setting::LastErrorText), text(7, code == 0x2001 ? 506 : 530));
        }
    }
}

TEST_F(TransferErrors, HostTextIsExactlyAsLongAsItsLength) {
    Answer answer = Answer::code(0x3000, "NO SUCH FILE AND MORE");
    answer.dataLength = 12;
    EXPECT_EQ(told(answer).at(0).inserts, std::vector<std::string>{"NO SUCH FILE"});
}

}  // namespace
