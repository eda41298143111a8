#include "support/transfer_fixture.h"

namespace {

class Exports : public TwoRecords {};

TEST_F(Exports, SecondSessionTakesTheRegistryOver) {
    const auto other = emulator::newSession();
    ZXFRPCSCLIENT* const second = (client(), library.newZXFRPCSCLIENT(other));
    EXPECT_EQ(library.getZXFRPCSCLIENT(session), nullptr);
    EXPECT_EQ(library.getZXFRPCSCLIENT(other), second);
    library.deleteZXFRPCSCLIENT(second);
    EXPECT_EQ(library.getZXFRPCSCLIENT(other), nullptr);
    EXPECT_EQ(library.getZXFRPCSCLIENT(session), nullptr) << "the first does not come back by itself";
}

TEST_F(Exports, FirstClientOfTheSessionIsRegisteredUntilItsDeletion) {
    ZXFRPCSCLIENT* const second = (client(), library.newZXFRPCSCLIENT(session));
    EXPECT_EQ(library.getZXFRPCSCLIENT(session), client());
    library.deleteZXFRPCSCLIENT(second);
    EXPECT_EQ(library.getZXFRPCSCLIENT(session), client());
    deleteClient();
    EXPECT_EQ(library.getZXFRPCSCLIENT(session), nullptr);
    EXPECT_EQ(library.getZXFRPCSCLIENT(0), nullptr);
    EXPECT_EQ(library.getZXFRPCSCLIENT(session), nullptr);
    EXPECT_NE(client(), nullptr);
    EXPECT_EQ(library.getZXFRPCSCLIENT(session), client());
}

TEST_F(Exports, CommandsAreEnabledInThreeStates) {
    for (const std::uint32_t code : {74u, 75u, 168u}) EXPECT_NE(library.pcsAreXferCmdsEnabled(client(), code), 0u);
    for (const std::uint32_t code : {0u, 73u, 76u, 167u, 169u, 0x8000004Au, 0xFFFFFFFFu})
        EXPECT_EQ(library.pcsAreXferCmdsEnabled(client(), code), 0u) << code;
    EXPECT_NE(library.pcsAreXferCmdsEnabled(nullptr, 74), 0u);
}

TEST_F(Exports, StrangersAreIgnored) {
    client();
    const auto stranger = session + 1000;
    library.runtimeSettingNotification(stranger, 5);
    EXPECT_EQ(library.stateChangeProc(stranger, setting::TransportType, 9, 2), 1u);
    EXPECT_EQ(library.stateChangeProc(session, 999, 9, 2), 1u);
    HostCatalogEntry entry{};
    EXPECT_EQ(library.pcsGetNextHostFilename(stranger, &entry), CatalogFailure);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Exports, CleanUpReleasesTheProviderOfTheCurrentSessionOnly) {
    receive();
    ASSERT_GT(emulator::openObjects().modules, 0u);
    library.xferCleanup(session + 1000);
    EXPECT_GT(emulator::openObjects().modules, 0u);
    emulator::runCleanup(session, 104);
    EXPECT_EQ(emulator::openObjects().modules, 0u);
    EXPECT_EQ(scripted::entries().back(), "E32TF_Cleanup");
    const auto entries = scripted::entries().size();
    library.xferCleanup(session);
    EXPECT_EQ(scripted::entries().size(), entries) << "a stopped session has nothing to stop";

    std::filesystem::remove(pcFile());
    expectReceived();
}

// The first allocation is the client, the second its transfer-function session, which a transfer makes again.
TEST_F(Exports, CreationSurvivesEachFailingAllocation) {
    for (std::uint64_t failing = 1;; ++failing) {
        SCOPED_TRACE("failing allocation " + std::to_string(failing));
        const auto before = emulator::allocations();
        setFault(&emulator::Faults::failAllocation, failing);
        ZXFRPCSCLIENT* const made = client();
        emulator::setFaults({});
        const bool hit = emulator::allocations().calls - before.calls >= failing;
        EXPECT_EQ(made == nullptr, failing == 1);
        if (made) {
            user.messages.clear();
            receive();
            EXPECT_TRUE(pcFileBytes() == Received || (failing > 2 && !user.messages.empty()));
        }
        deleteClient();
        std::filesystem::remove(pcFile());
        EXPECT_EQ(emulator::allocations().liveBlocks, before.liveBlocks);
        if (!hit || HasFailure()) break;
    }
}

}  // namespace
