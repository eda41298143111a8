#include "support/transfer_fixture.h"

namespace {

using scripted::Answer;

class Session : public TransferFixture {
protected:
    void SetUp() override {
        TransferFixture::SetUp();
        hostFile.fields = {hostfields::character("NAME", 5)};
        hostFile.records = {hostText("ALPHA"), hostText("GAMMA")};
    }
    static bool bound() { return emulator::openObjects().modules != 0; }
    static std::size_t entered(const std::string& entry) {
        std::size_t count = 0;
        for (const auto& name : scripted::entries()) count += name == entry;
        return count;
    }
    static constexpr const char* Received = "ALPHA\r\nGAMMA\r\n";
};

TEST_F(Session, ChangedSettingsReleaseTheProviderAtOnce) {
    receive();
    set(setting::TransportType, 2);
    set(setting::RouterKind, 1);
    EXPECT_TRUE(bound()) << "the same values change nothing";
    set(setting::TransportType, 9);
    EXPECT_FALSE(bound());
    EXPECT_EQ(scripted::entries().back(), "E32TF_Cleanup");
    receive();
    EXPECT_EQ(scripted::calls().back().family, scripted::Family::Requestor);
    EXPECT_EQ(pcFileBytes(), Received);
    set(setting::RouterKind, 2);
    EXPECT_FALSE(bound());
    receive();
    EXPECT_EQ(scripted::calls().back().family, scripted::Family::As400);
}

TEST_F(Session, ChangesOfAConnectionCountAtItsEnd) {
    const struct {
        const char* what;
        std::int32_t transport, router;  // 0: not touched
        bool stops;
    } rows[] = {{"nothing", 0, 0, false},
                {"another transport", 9, 0, true},
                {"there and back", 2, 0, false},
                {"another router", 0, 2, true},
                {"router there and back", 0, 1, false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        useTransport(2);
        receive();
        set(setting::ConnectionChanging, 1);
        if (row.transport) set(setting::TransportType, 9);
        if (row.transport) set(setting::TransportType, row.transport);
        if (row.router) set(setting::RouterKind, 2);
        if (row.router) set(setting::RouterKind, row.router);
        EXPECT_TRUE(bound());
        set(setting::ConnectionChanging, 0);
        EXPECT_EQ(bound(), !row.stops);
        receive();
        EXPECT_EQ(pcFileBytes(), Received);
        library.xferCleanup(session);
    }
}

TEST_F(Session, ConversationLivesFromRequestToStop) {
    receive();
    std::vector<std::uint32_t> conversations;
    for (const auto& call : scripted::calls()) conversations.push_back(call.conversation);
    EXPECT_EQ(conversations.front(), 0u);
    EXPECT_EQ(conversations.back(), 1u);
    library.xferCleanup(session);
    EXPECT_EQ(entered("TF_END_DATA"), 1u);
    EXPECT_EQ(entered("E32TF_Cleanup"), 1u);
}

// After a failed write the conversation is over, and so a stop has nothing to tell the provider.
TEST_F(Session, StopWithoutAConversationIsSilent) {
    emulator::Faults faults;
    faults.failWriteAfterBytes = 3;
    emulator::setFaults(faults);
    // Behind the end of the data the provider gives no conversation any more.
    hostFile.intercept = [](const scripted::Call& call) -> std::optional<Answer> {
        if (call.function != provider::TF_END_REQUEST) return std::nullopt;
        EXPECT_EQ(call.conversation, 0u);
        return std::nullopt;
    };
    receive();
    EXPECT_EQ(entered("TF_END_DATA"), 1u);
    library.xferCleanup(session);
    EXPECT_EQ(entered("TF_END_DATA"), 1u);
    EXPECT_EQ(entered("E32TF_Cleanup"), 0u);
    EXPECT_FALSE(bound());
}

// However the stop comes, and whichever call is on the stack: it waits for the call, and nothing is sent before it.
TEST_F(Session, StopDuringAProviderCallWaitsForItsEnd) {
    const struct {
        const char* name;
        std::function<void()> stop;
    } stops[] = {{"clean-up", [this] { library.xferCleanup(session); }},
                 {"transport", [this] { set(setting::TransportType, 9); }},
                 {"router", [this] { set(setting::RouterKind, 2); }},
                 {"connection", [this] {
                      set(setting::ConnectionChanging, 1);
                      set(setting::TransportType, 9);
                      set(setting::ConnectionChanging, 0);
                  }}};
    for (const auto& stop : stops) {
        for (const std::uint32_t function :
             {provider::TF_RESET, provider::TF_SEND_REQUEST, provider::TF_GET_FIELD, provider::TF_GET_DATA}) {
            SCOPED_TRACE(std::string(stop.name) + " during " + scripted::functionName(function));
            library.xferCleanup(session);
            useTransport(2);
            const auto before = static_cast<std::ptrdiff_t>(scripted::entries().size());
            std::size_t behind = 0;
            Answer answer = function == provider::TF_GET_FIELD  ? Answer::data(hostFile.fields[0])
                            : function == provider::TF_GET_DATA ? Answer::data(hostText("ALPHA"))
                                                                : Answer{};
            answer.meanwhile = [&] {
                stop.stop();
                EXPECT_TRUE(bound()) << "the provider is not unloaded under its own feet";
                behind = scripted::entries().size();
            };
            scripted::answerNext(function, answer);
            receive();
            ASSERT_GT(behind, 0u);
            // What follows is the stop: the end of the conversation when there is one, else nothing, then no more of
            // it.
            const std::vector<std::string> entries(scripted::entries().begin() + before, scripted::entries().end());
            const std::size_t next = behind - static_cast<std::size_t>(before);
            if (function != provider::TF_RESET) {
                ASSERT_GE(entries.size(), next + 2);
                EXPECT_EQ(entries[next], "TF_END_DATA");
                EXPECT_EQ(entries[next + 1], "E32TF_Cleanup");
            }
            expectIdle();
            useTransport(2);
            user.messages.clear();
            receive();
            EXPECT_EQ(pcFileBytes(), Received);
            EXPECT_TRUE(user.messages.empty());
        }
    }
}

TEST_F(Session, ClientDeletedSessionsStayApart) {
    const auto other = emulator::newSession();
    ZXFRPCSCLIENT* const second = (client(), library.newZXFRPCSCLIENT(other));
    receive();
    ASSERT_TRUE(bound());
    emulator::set(other, setting::TransportType, 9);
    library.deleteZXFRPCSCLIENT(second);
    EXPECT_TRUE(bound()) << "another session's end is nothing to this one";
    receive();
    EXPECT_EQ(pcFileBytes(), Received);
}

// The call-back of the IBM library lets the user act in the dialog of the exchange.
TEST_F(Session, YieldPumpsTheDialogOfTheExchange) {
    Answer answer;
    provider::YieldCallback yield = nullptr;
    hostFile.intercept = [&](const scripted::Call& call) -> std::optional<Answer> {
        yield = call.yield;
        return std::nullopt;
    };
    client();
    library.EHNTF_STF_Callback();
    EXPECT_TRUE(user.progressCommands.empty()) << "no exchange, no dialog";
    receive();
    ASSERT_NE(yield, nullptr);
    user.progressCommands.clear();
    answer.meanwhile = [&] {
        const auto before = user.progressCommands.size();
        yield();
        EXPECT_EQ(user.progressCommands.size(), before + 1);
        EXPECT_EQ(user.progressCommands.back(), 16u);
    };
    scripted::answerNext(provider::TF_SEND_REQUEST, answer);
    receive();
}

TEST_F(Session, CancelInTheYieldEndsTheTransfer) {
    user.onProgressCommand = [this](std::uint32_t command) {
        if (command == 16 && user.progressCommands.size() == 99) library.pcsCancelTransfer(client());
    };
    Answer answer = Answer::data(hostText("ALPHA"));
    answer.meanwhile = [this] {
        user.progressCommands.resize(98);
        scripted::calls().back().yield();
    };
    scripted::answerNext(provider::TF_GET_DATA, answer);
    receive();
    EXPECT_EQ(pcFileBytes(), "ALPHA\r\n");
    EXPECT_EQ(scripted::entries().back(), "TF_END_REQUEST");
}

TEST_F(Session, OnlyTheFirstSessionIsCalledBack) {
    const auto other = emulator::newSession();
    ZXFRPCSCLIENT* const second = (client(), library.newZXFRPCSCLIENT(other));
    deleteClient();
    library.EHNTF_STF_Callback();
    library.deleteZXFRPCSCLIENT(second);
    Answer answer;
    std::size_t pumped = 0;
    answer.meanwhile = [&] {
        const auto before = user.progressCommands.size();
        library.EHNTF_STF_Callback();
        pumped = user.progressCommands.size() - before;
    };
    scripted::answerNext(provider::TF_SEND_REQUEST, answer);
    receive();
    EXPECT_EQ(pumped, 1u) << "a new session takes the place that has become free";
}

TEST_F(Session, WithoutTheSharedBufferNothingStarts) {
    emulator::Faults faults;
    faults.refuseGlobalMemory = true;
    emulator::setFaults(faults);
    receive();
    EXPECT_EQ(user.messageIds(), std::vector<std::uint32_t>{4405});
    EXPECT_FALSE(bound());
    emulator::setFaults({});
    receive();
    EXPECT_EQ(pcFileBytes(), Received);
}

TEST_F(Session, DemonstrationBindsNothing) {
    set(setting::ConnectionType, 3);
    set(setting::ReceiveOutput, ToScreen);
    receive();
    library.xferCleanup(session);
    EXPECT_TRUE(scripted::entries().empty());
    EXPECT_FALSE(bound());
}

// A page that changes between transfers is the one of the next; single and double byte, and back.
TEST_F(Session, HostCodePageIsFollowed) {
    const struct {
        std::int32_t page;
        const char *host, *pc;
    } rows[] = {{37, "4A", "\xA2"}, {273, "4A", "\xC4"}, {939, "C1", "A"}, {37, "4A", "\xA2"}, {500, "4A", "["}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.page);
        set(setting::HostCodePage, row.page);
        hostFile.fields = {hostfields::character("NAME", 1)};
        hostFile.records = {bytesOf(row.host)};
        receive();
        EXPECT_EQ(pcFileBytes(), row.pc + std::string("\r\n"));
    }
}

}  // namespace
