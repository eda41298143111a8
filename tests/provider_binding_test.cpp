#include <cstdlib>

#include "Z7XFRPCS/session.h"
#include "support/transfer_fixture.h"

namespace {

using scripted::Family;

class ProviderBinding : public TwoRecords {
protected:
    // A new session of the same kind, so that rows of a table do not see one another.
    void startOver() {
        TearDown();
        SetUp();
        std::filesystem::remove(pcFile());
        user.messages.clear();
    }
    std::uint32_t sessionWindow() { return zhstGetSessionWindow(zhstGetSessionSettings(session)); }
};

struct Refusal {
    const char* folder;
    std::int32_t transport;
    std::uint32_t message;  // 0 for none
    const char* insert = nullptr;
    bool routerRunning = true;
    bool refuseClient = false;
    std::int32_t routerKind = 1;
    std::uint32_t clientsLeft = 0;
};

// Everything that can be wrong with a library, and the message that says so.
constexpr Refusal Refusals[] = {
    {"broken/nothing", 2, 4400, "E32APPC.DLL"},
    {"broken/nothing", 4, 4400, "E32APPC.DLL"},
    {"broken/nothing", 9, 4400, "ZEHNTFW.DLL"},
    {"broken/nothing", 7, 4400, "ZTFWAPPC.DLL"},
    {"broken/nothing", 30, 4400, "AS4XFER.DLL"},
    {"broken/router_only", 2, 4400, "E32TFW.DLL"},
    {"broken/text_router", 2, 4266},
    {"broken/router_replacement", 2, 4269},
    {"broken/router_replacement", 4, 4269, nullptr, false},
    {"broken/router_without_query", 2, 4407},
    {"scripted_families", 2, 4407, nullptr, false},
    {"broken/text_providers", 2, 4593},
    {"broken/text_providers", 8, 4402},
    {"broken/text_providers", 5, 4658, "ZTFWAPPC.DLL"},
    {"broken/text_providers", 30, 4402},
    {"broken/without_request", 4, 4594},
    {"broken/without_request", 14, 4403},
    {"broken/without_request", 5, 4659, "ZTFWAPPC.DLL"},
    {"broken/without_request", 30, 4704},
    {"broken/without_new", 15, 4403},
    {"broken/without_new", 7, 4659, "ZTFWAPPC.DLL"},
    {"broken/without_new", 30, 0},
    {"broken/without_delete", 9, 4403},
    {"broken/without_delete", 13, 4659, "ZTFWAPPC.DLL"},
    {"broken/without_delete", 30, 4704, nullptr, true, false, 1, 1},  // nobody can delete that client
    {"broken/without_get", 30, 4704},
    {"scripted_families", 9, 0, nullptr, true, true},
    {"scripted_families", 5, 0, nullptr, true, true},
    {"scripted_families", 30, 0, nullptr, true, true},
    {"scripted_families", 6, 0},
    {"scripted_families", 10, 0},
    {"scripted_families", 11, 0},
    {"scripted_families", 12, 0},
    {"scripted_families", 0, 0},
    {"broken/without_get", 6, 4704, nullptr, true, false, 2},
};

TEST_F(ProviderBinding, SaysWhatIsWrongWithALibraryAndHoldsNothing) {
    for (const Refusal& row : Refusals) {
        SCOPED_TRACE(std::string(row.folder) + ", transport " + std::to_string(row.transport));
        startOver();
        useProviders(row.folder);
        useTransport(row.transport, row.routerKind);
        scripted::Switches switches;
        switches.routerRunning = row.routerRunning;
        switches.refuseClient = row.refuseClient;
        scripted::setSwitches(switches);
        receive();

        ASSERT_EQ(user.messageIds(), row.message ? std::vector{row.message} : std::vector<std::uint32_t>{});
        if (row.message) {
            const auto& box = user.messages.front();
            EXPECT_EQ(box.flags, 0x30u);
            EXPECT_EQ(box.helpId, row.message);
            EXPECT_EQ(box.owner, sessionWindow());
        }
        if (row.insert) {
            EXPECT_EQ(user.messages.front().inserts, std::vector<std::string>{row.insert});
        }
        if (row.message == 4269) {
            EXPECT_EQ(user.messages.front().inserts, std::vector{messageText(22, 202)});
        }
        EXPECT_TRUE(scripted::calls().empty());
        EXPECT_EQ(emulator::openObjects().modules, 0u);
        EXPECT_EQ(scripted::liveClients(), row.clientsLeft);
        EXPECT_EQ(number(setting::TransferActive), 0);
        scripted::reset();
    }
}

TEST_F(ProviderBinding, DisabledMessageIsNotShownAndTheLibraryMayComeLater) {
    emulator::disableMessage(4400);
    useProviders("broken/router_only");
    receive();
    EXPECT_TRUE(user.messages.empty());
    useProviders("scripted_families");
    expectReceived();
}

struct Binding {
    std::int32_t transport, routerKind;
    Family family;
    std::int32_t routerKindAfter;
};

const Binding Bindings[] = {{2, 1, Family::Stf, 1},           {2, 2, Family::Stf, 1},
                            {4, 0, Family::Stf, 1},           {8, 1, Family::Requestor, 1},
                            {9, 1, Family::Requestor, 1},     {14, 1, Family::Requestor, 1},
                            {15, 1, Family::Requestor, 1},    {5, 1, Family::AppcRequestor, 1},
                            {7, 1, Family::AppcRequestor, 1}, {13, 1, Family::AppcRequestor, 1},
                            {30, 1, Family::As400, 2},        {6, 2, Family::As400, 2},
                            {12, 0, Family::As400, 0}};

TEST_F(ProviderBinding, EachTransportReachesItsFamily) {
    for (const Binding& row : Bindings) {
        SCOPED_TRACE("transport " + std::to_string(row.transport) + ", router " + std::to_string(row.routerKind));
        startOver();
        useTransport(row.transport, row.routerKind);
        expectReceived();
        EXPECT_EQ(number(setting::RouterKind), row.routerKindAfter);
        for (const auto& call : scripted::calls()) EXPECT_EQ(call.family, row.family);
        if (row.family != Family::Stf) {
            EXPECT_EQ(scripted::lastConstruction().session, session);
            EXPECT_EQ(scripted::lastConstruction().window, sessionWindow());
        }
    }
}

TEST_F(ProviderBinding, CleanUpEntryOfTheIbmLibraryMayBeMissing) {
    useProviders("broken/without_delete");
    expectReceived();
    deleteClient();
    EXPECT_EQ(scripted::entries().back(), "TF_END_DATA");
    EXPECT_TRUE(user.messages.empty());
}

// A library that knows nothing of this process: it answers from a text file.
TEST_F(ProviderBinding, AProviderFromElsewhereIsLoadedAndWorks) {
    ASSERT_NE(std::getenv("Z7X_SCRIPT"), nullptr);
    useProviders("scripted");
    receive();
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(pcFileBytes(),
              "1,\"ACME, INC.\",123.45\r\n"
              "2,\"THE \"\"SHOP\"\"\",-.99\r\n"
              "-999999,LAST,99999.99\r\n");
}

}  // namespace
