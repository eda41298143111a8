#include <algorithm>

#include "Z7XFRPCS/dialogs.h"
#include "support/ready_session.h"
#include "support/transfer_fixture.h"

namespace {

class Session : public TwoRecords {
protected:
    static bool bound() { return emulator::openObjects().modules != 0; }
    static auto entered(const std::string& entry) {
        return std::count(scripted::entries().begin(), scripted::entries().end(), entry);
    }
};

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
        expectReceived();
        library.xferCleanup(session);
    }
}

// Meanwhile nothing is exchanged, so the provider of before is only noticed when the connection is a real one again.
TEST_F(Session, ChangeInADemonstrationCountsAtTheNextRealStart) {
    const struct {
        const char* what;
        scripted::Family family;
        std::function<void()> change;
    } rows[] = {
        {"transport", scripted::Family::Requestor, [this] { set(setting::TransportType, 9); }},
        {"a router that the transport does not take", scripted::Family::Stf, [this] { set(setting::RouterKind, 2); }},
        {"connection", scripted::Family::Requestor, [this] {
             set(setting::ConnectionChanging, 1);
             set(setting::TransportType, 9);
             set(setting::ConnectionChanging, 0);
         }}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        useTransport(4);
        receive();
        set(setting::ConnectionType, 3);
        row.change();
        library.xferCleanup(session);
        EXPECT_TRUE(bound());
        set(setting::ConnectionType, 1);
        const std::vector<std::string> entries = entriesOf([this] { expectReceived(); });
        ASSERT_GE(entries.size(), 3u);
        EXPECT_EQ(entries[0], "TF_END_DATA");
        EXPECT_EQ(entries[1], "E32TF_Cleanup");
        EXPECT_EQ(scripted::calls().back().family, row.family);
        EXPECT_TRUE(user.messages.empty());
    }
}

// After a failed write the conversation is over, and so a stop has nothing to tell the provider.
TEST_F(Session, StopWithoutAConversationIsSilent) {
    setFault(&emulator::Faults::failWriteAfterBytes, 3);
    // Behind the end of the data the provider gives no conversation any more.
    hostFile.observe = [](const scripted::Call& call) {
        EXPECT_TRUE(call.function != TF_END_REQUEST || call.conversation == 0);
    };
    receive();
    EXPECT_EQ(entered("TF_END_DATA"), 1);
    library.xferCleanup(session);
    EXPECT_EQ(entered("TF_END_DATA"), 1);
    EXPECT_EQ(entered("E32TF_Cleanup"), 0);
    EXPECT_FALSE(bound());
}

// However the stop comes, and whichever call is on the stack: it waits for the call, and nothing is sent before it.
TEST_F(Session, StopDuringAProviderCallWaitsForItsEnd) {
    const struct {
        const char* name;
        std::size_t told;
        std::function<void()> stop;
    } stops[] = {{"clean-up", 0, [this] { library.xferCleanup(session); }},
                 {"transport", 1, [this] { set(setting::TransportType, 9); }},
                 {"router", 1, [this] { set(setting::RouterKind, 2); }},
                 {"connection", 1, [this] {
                      set(setting::ConnectionChanging, 1);
                      set(setting::TransportType, 9);
                      set(setting::ConnectionChanging, 0);
                  }}};
    for (const auto& stop : stops) {
        for (const std::uint32_t function : {TF_RESET, TF_SEND_REQUEST, TF_GET_FIELD, TF_GET_DATA}) {
            SCOPED_TRACE(std::string(stop.name) + " during " + scripted::functionName(function));
            library.xferCleanup(session);
            useTransport(2);
            user.messages.clear();
            std::size_t behind = 0;
            hostFile.during(function, [&] {
                stop.stop();
                EXPECT_TRUE(bound()) << "the provider is not unloaded under its own feet";
                behind = scripted::entries().size();
            });
            receive();
            ASSERT_GT(behind, 0u);
            // The conversation, when there is one, is ended at once.
            if (function == TF_RESET) {
                EXPECT_TRUE(user.messages.empty()) << "no transfer runs yet";
            } else {
                EXPECT_EQ(user.messages.size(), stop.told);
                EXPECT_EQ(number(setting::LastReturnCode), 0x9999);
                const auto& entries = scripted::entries();
                ASSERT_GE(entries.size(), behind + 2);
                EXPECT_EQ(entries[behind], "TF_END_DATA");
                EXPECT_EQ(entries[behind + 1], "E32TF_Cleanup");
            }
            expectIdle();
            useTransport(2);
            user.messages.clear();
            expectReceived();
            EXPECT_TRUE(user.messages.empty());
        }
    }
}

// The fetch that only ends the record count is one of the transfer's steps, too.
TEST_F(Session, StopBehindTheCountEndsTheTransfer) {
    set(setting::RecordProgress, 1);
    for (const bool ended : {true, false}) {
        useTransport(9);
        user.messages.clear();
        hostFile.during(TF_GET_DATA, [&] {
            hostFile.during(TF_GET_DATA,
                            [&] { ended ? library.xferCleanup(session) : set(setting::TransportType, 2); });
        });
        receive(1);
        EXPECT_EQ(user.messages.size(), ended ? 0u : 1u);
        EXPECT_FALSE(bound());
        EXPECT_FALSE(pcFileExists());
    }
}

// With the request open nothing is sent to the session that would start in the place of the stopped one.
TEST_F(Session, StopInThePumpIsToldOnceByTheDriver) {
    for (const bool ended : {true, false}) {
        for (const std::uint32_t command : {16u, 27u, 25u, 28u, 0u}) {
            SCOPED_TRACE(std::to_string(command) + (ended ? ", the session's end" : ", another connection"));
            useTransport(2);
            user.messages.clear();
            user.onProgressCommand = [&](std::uint32_t shown) {
                if (shown != command || !bound()) return;
                ended ? library.xferCleanup(session) : set(setting::TransportType, 9);
            };
            receive();
            EXPECT_FALSE(bound());
            EXPECT_EQ(user.messages.size(), ended ? 0u : 1u);
            EXPECT_EQ(number(setting::LastReturnCode), 0x9999);
            expectIdle();
        }
    }
}

// A request that finds the session stopped has it bound anew, and may lose it once more meanwhile.
TEST_F(Session, StopWhileARequestBindsAnewIsTold) {
    useTransport(2);
    user.onProgressCommand = [this](std::uint32_t command) {
        if (command != ZhstStarting || !bound()) return;
        set(setting::TransportType, 9);
        hostFile.during(TF_RESET, [this] { set(setting::TransportType, 2); });
    };
    receive();
    EXPECT_EQ(user.messages.size(), 1u);
    EXPECT_EQ(number(setting::LastReturnCode), 0x9999);
    EXPECT_TRUE(hostFile.statements.empty());
}

TEST_F(Session, StopUnderAListingIsItsFailure) {
    HostCatalogEntry entry = {};
    for (const std::uint32_t function : {TF_SEND_REQUEST, TF_GET_DATA}) {
        useTransport(2);
        client();
        hostFile.during(function, [this] { set(setting::TransportType, 9); });
        EXPECT_EQ(library.pcsGetFirstHostFilename(session, "", &entry), 3u);
        EXPECT_EQ(number(setting::LastReturnCode), 0x9999);
        EXPECT_TRUE(user.messages.empty());
    }
}

TEST_F(Session, TransferInAListingIsTurnedAway) {
    hostFile.catalogue = {hostText("QGPL      ")};
    HostCatalogEntry entry = {};
    client();
    hostFile.during(TF_GET_DATA, [this] { receive(); });
    EXPECT_EQ(library.pcsGetFirstHostFilename(session, "", &entry), 0u);
    EXPECT_EQ(hostFile.statements.size(), 1u);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Session, ClientDeletedSessionsStayApart) {
    const auto other = emulator::newSession();
    ZXFRPCSCLIENT* const second = (client(), library.newZXFRPCSCLIENT(other));
    receive();
    ASSERT_TRUE(bound());
    emulator::set(other, setting::TransportType, 9);
    library.deleteZXFRPCSCLIENT(second);
    EXPECT_TRUE(bound()) << "another session's end is nothing to this one";
    expectReceived();
}

TEST_F(Session, CancelInTheYieldEndsTheTransfer) {
    user.onProgressCommand = [this](std::uint32_t command) {
        if (command == 16 && user.progressCommands.size() == 99) library.pcsCancelTransfer(client());
    };
    hostFile.during(TF_GET_DATA, [this] {
        user.progressCommands.resize(98);
        scripted::calls().back().yield();
    });
    receive();
    EXPECT_EQ(pcFileBytes(), "ALPHA\r\n");
    EXPECT_EQ(scripted::entries().back(), "TF_END_REQUEST");
}

// The call-back names nobody: it goes to the client that was made first, until that one is deleted.
TEST_F(Session, OnlyTheFirstClientIsCalledBack) {
    const auto other = emulator::newSession();
    completeSettings(other, path("other.dat"));
    const auto pumped = [this](ZXFRPCSCLIENT* running) {
        std::size_t commands = 0;
        hostFile.during(TF_SEND_REQUEST, [&] {
            const auto before = user.progressCommands.size();
            library.EHNTF_STF_Callback();
            commands = user.progressCommands.size() - before;
        });
        library.pcsTransferFile(running, "", 0, 0, 0);
        return commands;
    };
    ZXFRPCSCLIENT* const second = (client(), library.newZXFRPCSCLIENT(other));
    EXPECT_EQ(pumped(second), 0u);
    EXPECT_EQ(pumped(client()), 1u);
    deleteClient();
    EXPECT_EQ(pumped(second), 0u) << "nobody takes the place that has become free";
    library.deleteZXFRPCSCLIENT(second);
    EXPECT_EQ(pumped(client()), 1u) << "but a new one";
}

TEST_F(Session, WithoutTheSharedBufferNothingStarts) {
    setFault(&emulator::Faults::refuseGlobalMemory, true);
    receive();
    EXPECT_EQ(user.messageIds(), std::vector<std::uint32_t>{4405});
    EXPECT_FALSE(bound());
    emulator::setFaults({});
    expectReceived();
}

}  // namespace
