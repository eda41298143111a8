#include "support/transfer_fixture.h"

namespace {

using scripted::Answer;

class MonitorStore : public TransferFixture {
protected:
    using Values = std::vector<std::string>;

    void SetUp() override {
        TransferFixture::SetUp();
        hostFile.fields = {hostfields::character("NAME", 3)};
        hostFile.records = {hostText("ABC"), hostText("D  ")};
        emulator::onStoreWrite(
            [this](std::string_view code, std::string_view value) { written_.emplace_back(code, value); });
    }
    void TearDown() override {
        emulator::onStoreWrite(nullptr);
        TransferFixture::TearDown();
    }
    Values of(const std::string& code) const {
        Values values;
        for (const auto& [item, value] : written_)
            if (item == code) values.push_back(value);
        return values;
    }
    static std::string number(std::uint32_t value) {
        std::string bytes;
        for (int i = 0; i < 4; ++i) bytes += static_cast<char>(value >> (8 * i));
        return bytes;
    }
    static std::string request(char function, const std::string& data, const std::string& designation) {
        return std::string{function, '\0'} + number(static_cast<std::uint32_t>(data.size()) + 1) + designation +
               std::string(41 - designation.size(), '\0') + data + std::string(2, '\0');
    }
    static std::string result(char function, std::uint32_t code, const std::string& data, std::uint32_t detail = 0) {
        return std::string{function} + number(code) + number(detail) + number(static_cast<std::uint32_t>(data.size())) +
               data + std::string(2, '\0');
    }
    static void expectSame(const Values& values, const Values& expected) {
        ASSERT_EQ(values.size(), expected.size());
        for (std::size_t i = 0; i < values.size(); ++i) EXPECT_EQ(hexOf(values[i]), hexOf(expected[i])) << i;
    }

    std::vector<std::pair<std::string, std::string>> written_;
};

TEST_F(MonitorStore, EveryExchangeOfATransferByteForByte) {
    const std::string options = "OPTIONS IGNDECERR(N) TIMFMT(DDS) TIMSEP(' ') DATFMT(DDS) DATSEP(' ') ";
    const std::string query = "SELECT *  FROM QGPL/CUST ";
    const std::string system = "SYSTEM(AS400A  )";
    const std::string field = hostfields::character("NAME", 3);
    receive();
    expectSame(of("XUGI"),
               {request(5, "", ""), request(1, options, system), request(1, query, system), request(2, "", system),
                request(2, "", system), request(3, "", ""), request(3, "", ""), request(3, "", "")});
    expectSame(of("XDGI"),
               {result(5, 0, ""), result(1, 0, ""), result(1, 0, ""), result(2, 0, field), result(2, 0x1FFF, ""),
                result(3, 0, hostText("ABC")), result(3, 0, hostText("D  ")), result(3, 0x1FFF, "")});
    expectSame(of("XDCI"), {options + '\0', query + '\0'});
    expectSame(of("XDTI"), {field});
    expectSame(of("XDFI"), {"ABC\r\n", "D\r\n"});
    for (const char* never : {"XUCI", "XUTI", "XUDI", "XUFI", "XDDI", "XDRI", "XURI", "XDSI", "XUSI", "XDAI", "XUAI"})
        EXPECT_TRUE(of(never).empty()) << never;
    deleteClient();
    expectSame({of("XUGI").back()}, {request(7, "", "")});
}

TEST_F(MonitorStore, ResultsKeepTheirDataButForTwoKinds) {
    scripted::answerNext(TF_RESET, Answer::code(0x2005, "RESET DATA"));
    scripted::answerNext(TF_SEND_REQUEST, Answer::code(0, "IGNORED"));
    Answer refused = Answer::code(0xFFFF3000u, "NO SUCH FILE");
    refused.detail = 0xABCD0102u;
    scripted::answerNext(TF_SEND_REQUEST, refused);
    receive();
    const Values results = of("XDGI");
    ASSERT_GE(results.size(), 3u);
    EXPECT_EQ(hexOf(results[0]), hexOf(result(5, 0x2005, "")));
    EXPECT_EQ(hexOf(results[1]), hexOf(result(1, 0, "")));
    EXPECT_EQ(hexOf(results[2]), hexOf(result(1, 0x3000, "NO SUCH FILE", 0x0102)));
}

TEST_F(MonitorStore, WithoutADesignationThereAreZeros) {
    set(setting::HostSystemName, "");
    receive();
    for (const auto& value : of("XUGI")) EXPECT_EQ(value.substr(6, 41), std::string(41, '\0'));
}

// Nothing of a transfer depends on the store.
TEST_F(MonitorStore, TransferIsTheSameWithoutStoreOrLock) {
    for (const bool store : {true, false}) {
        deleteClient();
        emulator::Faults faults;
        (store ? faults.refuseStore : faults.refuseStoreLock) = true;
        emulator::setFaults(faults);
        std::filesystem::remove(pcFile());
        receive();
        EXPECT_EQ(pcFileBytes(), "ABC\r\nD\r\n");
        EXPECT_TRUE(user.messages.empty());
    }
    EXPECT_TRUE(written_.empty());
    emulator::setFaults({});
    receive();
    EXPECT_FALSE(written_.empty()) << "the lock is asked for each time";
}

TEST_F(MonitorStore, ItemsOpenAndCloseInTheirOrder) {
    client();
    const std::vector<std::string> received = {"XDTI", "XDCI", "XDRI", "XDDI", "XDSI", "XDFI", "XDAI", "XDEI", "XDGI"};
    const std::vector<std::string> sent = {"XUTI", "XUCI", "XURI", "XUDI", "XUSI", "XUFI", "XUAI", "XUEI", "XUGI"};
    std::vector<std::string> opened = {"OpenStore(\"ZHST\")", "OpenStoreNode(*XFR4", "OpenStoreList(*X4RP",
                                       "OpenStoreList(*X4SP"};
    std::vector<std::string> closed;
    for (const auto& item : received) opened.push_back("OpenStoreItem(*, X4RP, " + item + ", 0");
    for (const auto& item : sent) opened.push_back("OpenStoreItem(*, X4SP, " + item + ", 0");
    for (const auto& item : received) closed.push_back("CloseStoreItem(*, X4RP, " + item);
    for (const auto& item : sent) closed.push_back("CloseStoreItem(*, X4SP, " + item);
    closed.insert(closed.end(), {"CloseStoreList(*XFR4, X4RP", "CloseStoreList(*XFR4, X4SP", "CloseStoreNode("});
    expectInOrder(opened);
    emulator::clearJournal();
    deleteClient();
    expectInOrder(closed);
}

TEST_F(MonitorStore, EachWriteIsLockedAndStatementsTouchTheList) {
    client();
    emulator::clearJournal();
    receive();
    EXPECT_EQ(journalCount("LockStoreList("), journalCount("UnlockStoreList("));
    // Behind each of the two statements the list is locked once for nothing.
    EXPECT_EQ(journalCount("UnlockStoreList("), journalCount("SetStoreItem(") + 2);
    expectInOrder({"LockStoreList(*, X4RP", "SetStoreItem(*XDCI", "UnlockStoreList(*, X4RP", "LockStoreList(*, X4SP",
                   "SetStoreItem(*XUGI", "UnlockStoreList(*, X4SP", "provider TF_SEND_REQUEST", "LockStoreList(*, X4RP",
                   "SetStoreItem(*XDGI", "UnlockStoreList(*, X4RP", "LockStoreList(*, X4RP",
                   "UnlockStoreList(*, X4RP"});
}

}  // namespace
