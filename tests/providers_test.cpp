#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "provider/provider_call.h"
#include "support/dynamic_library.h"
#include "support/host_record.h"
#include "support/library.h"

namespace {

using namespace provider;

int yields = 0;
void ZHST_CALL countYield() { ++yields; }

struct FamilyRow {
    const char *library, *request, *create, *destroy;
    bool fileNames;  // qualifiers and options of the AS/400 client
};
constexpr FamilyRow Families[] = {
    {"E32TFW", "EHNTF_STF", nullptr, "E32TF_Cleanup", false},
    {"ZEHNTFW", "zehnRequestor", "newZEHNTFWCLIENT", "deleteZEHNTFWCLIENT", false},
    {"ZTFWAPPC", "zehnRequestor", "newZTFWAPPCCLIENT", "deleteZTFWAPPCCLIENT", false},
    {"AS4XFER", "as400Request", "newAS4XFERCLIENT", "deleteZAS4XFERCLIENT", true},
};

void* load(const std::string& name) { return openLibrary((binFolder() + "/providers/" + name + ".DLL").c_str()); }

template <class Entry>
Entry entryOf(void* library, const char* name) {
    return reinterpret_cast<Entry>(findFunction(library, name));
}

// A provider with one client and one conversation, called as the transfer function calls it.
class Provider {
public:
    explicit Provider(const FamilyRow& row) : row_(row), library_(load(row.library)) {
        if (row.create) client = entryOf<NewClientEntry>(library_, row.create)(21, 22);
    }
    ~Provider() {
        if (row_.create) {
            entryOf<DeleteClientEntry>(library_, row_.destroy)(client);
        } else {
            entryOf<StfCleanupEntry>(library_, row_.destroy)();
        }
    }

    std::uint32_t call(std::uint32_t function, const std::string& text = "") {
        std::ranges::copy(text, buffer.begin());
        const auto length = static_cast<std::uint32_t>(text.size());
        const int before = yields;
        data = buffer.data();
        dataLength = detail = 77;
        const std::uint32_t code = row_.create ? entryOf<RequestEntry>(library_, row_.request)(
                                                     client, &conversation, function, buffer.data(), BufferSize, length,
                                                     nullptr, 0, &data, &dataLength, &detail)
                                               : entryOf<StfEntry>(library_, row_.request)(
                                                     22, countYield, &conversation, function, buffer.data(), BufferSize,
                                                     length, "SYSTEM(AS400A  )", 0, &data, &dataLength, &detail);
        EXPECT_EQ(yields > before, row_.create == nullptr);
        EXPECT_EQ(data == nullptr, dataLength == 0);
        EXPECT_EQ(detail, 0u);
        result = data ? std::string(static_cast<char*>(data), dataLength) : "";
        return code;
    }
    std::vector<std::string> all(std::uint32_t function) {
        std::vector<std::string> items;
        while (call(function) == Success) {
            EXPECT_EQ(data == buffer.data(), function == TF_GET_DATA);
            items.push_back(result);
        }
        return items;
    }

    std::uint32_t client = 0, conversation = 0;
    std::array<char, BufferSize> buffer{};
    void* data = nullptr;
    std::uint32_t dataLength = 0, detail = 0;
    std::string result;

private:
    const FamilyRow& row_;
    void* library_;
};

TEST(Providers, ExactlyTheirEntriesAreVisible) {
    const char* const all[] = {"EHNTF_STF",           "E32TF_Cleanup",        "EHNAPPC_IsRouterLoaded",
                               "EHNAPPC_KVX",         "zehnRequestor",        "newZEHNTFWCLIENT",
                               "deleteZEHNTFWCLIENT", "newZTFWAPPCCLIENT",    "deleteZTFWAPPCCLIENT",
                               "newAS4XFERCLIENT",    "deleteZAS4XFERCLIENT", "getAS4XFERCLIENT",
                               "as400Request"};
    const struct {
        const char* library;
        std::vector<int> entries;  // of the list above
    } cases[] = {{"E32TFW", {0, 1}},
                 {"E32APPC", {2}},
                 {"ZEHNTFW", {4, 5, 6}},
                 {"ZTFWAPPC", {4, 7, 8}},
                 {"AS4XFER", {9, 10, 11, 12}}};
    for (const auto& row : cases) {
        void* library = load(row.library);
        ASSERT_TRUE(library) << row.library;
        for (int i = 0; i < 13; ++i) {
            const bool wanted = std::ranges::find(row.entries, i) != row.entries.end();
            EXPECT_EQ(findFunction(library, all[i]) != nullptr, wanted) << row.library << " " << all[i];
        }
    }
    EXPECT_NE(entryOf<IsRouterLoadedEntry>(load("E32APPC"), all[2])(1), 0u);
}

TEST(Providers, EveryFamilyGivesTheSameBytes) {
    std::vector<std::string> fields, records;
    for (const FamilyRow& row : Families) {
        Provider provider(row);
        EXPECT_EQ(provider.call(TF_RESET), Success);
        EXPECT_EQ(provider.conversation, 0u) << row.library;
        const std::string options = row.fileNames
                                        ? std::string("OPTIONS \0\4\1\4\3\0\0", 15)
                                        : "OPTIONS IGNDECERR(N) TIMFMT(ISO) TIMSEP(':') DATFMT(ISO) DATSEP('-') ";
        EXPECT_EQ(provider.call(TF_SEND_REQUEST, options), Success);
        EXPECT_NE(provider.conversation, 0u);
        const std::string from = " FROM QGPL/CUST,WORLD/COUNTRY where ";
        const std::string join = row.fileNames ? "CUST.CNTRY = COUNTRY.CODE" : "t1.CNTRY = T2.CODE";
        EXPECT_EQ(provider.call(TF_SEND_REQUEST, "SELECT COUNT(*)" + from + join), Success);
        EXPECT_EQ(provider.call(TF_GET_DATA), Success);
        EXPECT_EQ(hexOf(provider.result), "00 00 00 0A");
        EXPECT_EQ(provider.call(TF_SEND_REQUEST, "SELECT * " + from + join + " order by CUSTNO"), Success);
        const auto gotFields = provider.all(TF_GET_FIELD), gotRecords = provider.all(TF_GET_DATA);
        EXPECT_EQ(provider.call(TF_END_REQUEST), Success);
        EXPECT_EQ(gotFields.size(), 12u);
        EXPECT_EQ(gotRecords.size(), 10u);
        EXPECT_TRUE(fields.empty() || (gotFields == fields && gotRecords == records)) << row.library;
        fields = gotFields;
        records = gotRecords;
    }
}

TEST(Providers, ConversationsBeginAndEnd) {
    for (const FamilyRow& row : Families) {
        Provider provider(row);
        EXPECT_EQ(provider.call(TF_GET_DATA), 0x2002u) << row.library;
        EXPECT_EQ(provider.call(TF_END_REQUEST), Success);
        EXPECT_EQ(provider.call(0), 0x2000u);
        EXPECT_EQ(provider.call(8), 0x2000u);
        EXPECT_EQ(provider.call(TF_SEND_REQUEST, "SELECT * FROM NONE "), 0x3000u);
        EXPECT_EQ(provider.result, "HSF1011 File NONE not found.");
        EXPECT_EQ(provider.call(TF_END_REQUEST), Success);
        const std::uint32_t first = provider.conversation;
        EXPECT_EQ(provider.call(TF_END_DATA), Success);
        EXPECT_EQ(provider.conversation, 0u) << row.library;
        EXPECT_EQ(provider.call(TF_SEND_REQUEST, "SELECT * FROM QGPL/CUST "), Success);
        EXPECT_NE(provider.conversation, first);
        const std::uint32_t open = provider.conversation;
        provider.conversation = 99999;
        EXPECT_EQ(provider.call(TF_GET_DATA), 0x2003u) << row.library;
        provider.conversation = open;
        EXPECT_EQ(provider.call(TF_GET_DATA), Success);
        EXPECT_EQ(provider.call(TF_RESET), Success);
        EXPECT_EQ(provider.conversation, 0u);
        if (row.create) {
            const std::uint32_t client = std::exchange(provider.client, 12345);
            EXPECT_EQ(provider.call(TF_RESET), 0x2003u);
            provider.client = client;
        }
    }
    Provider client(Families[3]);
    const auto find = entryOf<GetClientEntry>(load("AS4XFER"), "getAS4XFERCLIENT");
    EXPECT_EQ(find(21), client.client);
    EXPECT_EQ(find(23), 0u);
}

}  // namespace
