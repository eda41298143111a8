#include <cstring>

#include "support/transfer_fixture.h"

namespace {

using scripted::Answer;

class Catalog : public TransferFixture {
protected:
    // An entry with bytes behind it that nobody may touch. Its numbers are not aligned: a "+" in front of one makes the
    // copy that a comparison needs.
    struct Guarded {
        HostCatalogEntry entry;
        char guard[64];
    };
    void SetUp() override {
        TransferFixture::SetUp();
        clear();
        client();
    }
    void clear() {
        std::memset(&guarded, 0x55, sizeof(guarded));
        guarded.entry.entryKind = 0;
        guarded.entry.fileCount = 1;
        guarded.entry.flags = 0;
    }
    std::uint32_t first(const std::string& filter) {
        return library.pcsGetFirstHostFilename(session, filter.c_str(), &guarded.entry);
    }
    std::uint32_t next() { return library.pcsGetNextHostFilename(session, &guarded.entry); }
    std::string name() const { return guarded.entry.name; }
    std::string description() const { return guarded.entry.description; }
    void expectUntouched() const {
        for (const char byte : guarded.guard) ASSERT_EQ(byte, 0x55);
        ASSERT_EQ(+guarded.entry.flags, 0u);
        ASSERT_TRUE(std::memchr(guarded.entry.name, 0, sizeof(guarded.entry.name)));
    }

    Guarded guarded;
};

std::string padded(const std::string& text, std::size_t length) { return HostRecord().text(text, length); }

TEST_F(Catalog, RecordsOfEveryLengthStayInTheEntry) {
    const std::string bytes(5000, static_cast<char>(0xC1));
    for (const std::uint32_t kind : {0u, 2u}) {
        for (std::uint32_t length = 0; length <= 4096; ++length) {
            Answer record = Answer::data(bytes.substr(0, length));
            if (length % 89 == 2) record.place = scripted::Place::OwnMemory;
            if (length % 97 == 1) record.dataLength = 0xFFFFFFFFu - length;
            clear();
            guarded.entry.entryKind = kind;
            guarded.entry.fileCount = static_cast<std::int32_t>(length % 3);
            guarded.entry.description[0] = '\0';
            scripted::answerNext(TF_GET_DATA, record);
            ASSERT_EQ(next(), 0u);
            expectUntouched();
            ASSERT_TRUE(std::memchr(guarded.entry.description, 0, sizeof(guarded.entry.description)));
            if (kind == 0 && length == 4096) {
                EXPECT_EQ(description(), std::string(100, 'A'));
            }
        }
    }
}

TEST_F(Catalog, FiltersOfEveryLengthFitOrAreRefused) {
    const std::size_t longest = 4095 - std::strlen("EXTRACT TABLES ");
    for (const std::size_t length : {256u, 257u, 300u, 4000u}) {
        clear();
        EXPECT_EQ(first(std::string(length, 'A')), 2u);
        EXPECT_EQ(name(), std::string(256, 'A'));
        EXPECT_EQ(description(), "");
        expectUntouched();
    }
    EXPECT_EQ(first(std::string(longest, 'A')), 2u);
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(first(std::string(longest + 1, 'A')), 3u);
    EXPECT_EQ(user.messages.size(), 1u);
    EXPECT_EQ(hostFile.statements.back().size(), 4095u);
}

TEST_F(Catalog, AnswersThatAreNoRecords) {
    const std::uint32_t request = TF_SEND_REQUEST;
    const std::uint32_t data = TF_GET_DATA;
    const struct {
        const char* what;
        int transport;
        std::uint32_t function, code, result;
        std::size_t messages, ended;
        const char* name;  // null: the entry is not touched
    } rows[] = {
        {"refused", 2, request, 0x2001, 3, 1, 1, nullptr}, {"nothing to list", 30, request, 0x1FFF, 2, 0, 0, "F"},
        {"no list", 2, request, 0x1FFF, 3, 1, 0, nullptr}, {"completed request", 2, request, 0x5057, 4, 0, 1, "F"},
        {"failed record", 2, data, 0x2001, 3, 1, 1, "F"},  {"completed record", 2, data, 0x5057, 4, 0, 1, "F"},
        {"empty", 2, data, 0x1FFF, 2, 0, 0, "F"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        library.xferCleanup(session);
        useTransport(row.transport);
        clear();
        std::strcpy(guarded.entry.name, "untouched");
        user.messages.clear();
        emulator::clearJournal();
        scripted::answerNext(row.function, Answer::code(row.code));
        EXPECT_EQ(first("F"), row.result);
        EXPECT_EQ(user.messages.size(), row.messages);
        EXPECT_EQ(journalCount("provider TF_END_REQUEST"), row.ended);
        EXPECT_EQ(name(), row.name ? row.name : "untouched");
        if (row.name) {
            EXPECT_EQ(+guarded.entry.status, row.code);
        }
    }
    EXPECT_EQ(library.pcsGetFirstHostFilename(session + 1000, "", &guarded.entry), 3u);
}

// The list goes on, and nothing of the entry before shows in its place.
TEST_F(Catalog, TextThatCannotBeConvertedEndsItsEntryAlone) {
    for (const std::uint32_t kind : {0u, 2u}) {
        clear();
        guarded.entry.entryKind = kind;
        hostFile.catalogue.assign(3, padded("QGPL", 10) + padded("Library", 61));
        if (kind == 0) hostFile.catalogue.assign(3, padded("QGPL", 10) + padded("Library", 50));
        EXPECT_EQ(first(""), 0u);
        const std::string before = name();
        setFault(&emulator::Faults::failConversion, true);
        EXPECT_EQ(next(), 0u);
        EXPECT_EQ(name(), "");
        EXPECT_EQ(+guarded.entry.status, 0u);
        if (kind == 0) {
            EXPECT_EQ(description(), "");
        }
        emulator::setFaults({});
        EXPECT_EQ(next(), 0u);
        EXPECT_EQ(name(), before);
    }
    EXPECT_EQ(journalCount("provider TF_END_REQUEST"), 0u);
}

// Its length says nothing about a field's record: what stands in the buffer counts.
TEST_F(Catalog, FieldIsReadWholeWhateverItsLength) {
    const std::string column = padded("CUSTNO", 10) + hostText("CHAR ") + bytesOf("0400") + std::string(4, '\0') +
                               padded("Customer number", 50);
    for (const std::uint32_t length : {0u, 12u, 71u, 9999u}) {
        SCOPED_TRACE(length);
        guarded.entry.entryKind = 2;
        Answer answer = Answer::data(column);
        answer.dataLength = length;
        scripted::answerNext(TF_GET_DATA, answer);
        EXPECT_EQ(next(), 0u);
        EXPECT_EQ(name(), "CUSTNO    \tCustomer number\nType: CHAR    Length: 1024");
    }
}

TEST_F(Catalog, ConnectionDialogCanBeCancelled) {
    useTransport(9);
    set(setting::ConnectionParam512, "");
    user.acceptConnectionDialog = false;
    EXPECT_EQ(first(""), 3u);
    EXPECT_EQ(user.connectionDialogs, 1u);
    EXPECT_TRUE(hostFile.statements.empty());
}

TEST_F(Catalog, EachAllocationFails) {
    hostFile.catalogue = {padded("QGPL", 60)};
    failEachAllocation([this] { EXPECT_TRUE(first("X") != 0 || next() == 2); },
                       [this] { library.xferCleanup(session); });
}

TEST_F(Catalog, DemonstrationHasItsOwnLists) {
    set(setting::ConnectionType, 3);
    // Also while a transfer runs.
    guarded.entry.entryKind = 0;
    std::uint32_t found = 0;
    user.onPump = [&] { found += first("") == 0 && next() == 0 && next() == 0 && next() == 2; };
    receive();
    EXPECT_GT(found, 0u);
    EXPECT_EQ(first(std::string(300, 'A') + "/"), 0u);
    EXPECT_EQ(first("L/" + std::string(5000, 'A')), 0u);
    EXPECT_EQ(name().size(), 256u);
    EXPECT_TRUE(hostFile.statements.empty());
}

}  // namespace
