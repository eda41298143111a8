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
        row_.create ? entryOf<DeleteClientEntry>(library_, row_.destroy)(client)
                    : entryOf<StfCleanupEntry>(library_, row_.destroy)();
    }
    std::uint32_t call(std::uint32_t function, const std::string& text = "") {
        std::ranges::copy(text, buffer.begin());
        const auto length = static_cast<std::uint32_t>(text.size());
        const int before = yields;
        void* const own = data = buffer.data();
        std::uint32_t dataLength = 77, detail = 77;
        const std::uint32_t code =
            row_.create
                ? entryOf<RequestEntry>(library_, row_.request)(client, &conversation, function, own, BufferSize,
                                                                length, nullptr, 0, &data, &dataLength, &detail)
                : entryOf<StfEntry>(library_, row_.request)(22, countYield, &conversation, function, own, BufferSize,
                                                            length, "SYSTEM(AS400A  )", 0, &data, &dataLength, &detail);
        EXPECT_EQ(yields > before, row_.create == nullptr);
        EXPECT_EQ(data == nullptr, dataLength == 0);
        EXPECT_EQ(detail, 0u);
        result = data ? std::string(static_cast<char*>(data), dataLength) : "";
        return code;
    }
    void expect(std::uint32_t code, std::uint32_t function, const std::string& text = "") {
        EXPECT_EQ(call(function, text), code) << row_.library << ", function " << function << " " << text;
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
    std::string result;

private:
    const FamilyRow& row_;
    void* library_;
};

TEST(Providers, ExactlyTheirEntriesAreVisible) {
    using Names = std::vector<std::string>;
    const std::pair<const char*, Names> cases[] = {
        {"E32TFW", {"EHNTF_STF", "E32TF_Cleanup"}},
        {"E32APPC", {"EHNAPPC_IsRouterLoaded"}},
        {"ZEHNTFW", {"zehnRequestor", "newZEHNTFWCLIENT", "deleteZEHNTFWCLIENT"}},
        {"ZTFWAPPC", {"zehnRequestor", "newZTFWAPPCCLIENT", "deleteZTFWAPPCCLIENT"}},
        {"AS4XFER", {"newAS4XFERCLIENT", "deleteZAS4XFERCLIENT", "getAS4XFERCLIENT", "as400Request"}}};
    Names all = {"EHNAPPC_KVX"};  // which only a replacement of the router has
    for (const auto& row : cases) all.insert(all.end(), row.second.begin(), row.second.end());
    for (const auto& [name, entries] : cases) {
        void* library = load(name);
        ASSERT_TRUE(library) << name;
        for (const std::string& entry : all) {
            const bool wanted = std::ranges::find(entries, entry) != entries.end();
            EXPECT_EQ(findFunction(library, entry.c_str()) != nullptr, wanted) << name << " " << entry;
        }
    }
    EXPECT_NE(entryOf<IsRouterLoadedEntry>(load("E32APPC"), "EHNAPPC_IsRouterLoaded")(1), 0u);
}

TEST(Providers, EveryFamilyGivesTheSameBytes) {
    std::vector<std::string> fields, records;
    for (const FamilyRow& row : Families) {
        Provider provider(row);
        const std::string options = row.fileNames
                                        ? std::string("OPTIONS \0\4\1\4\3\0\0", 15)
                                        : "OPTIONS IGNDECERR(N) TIMFMT(ISO) TIMSEP(':') DATFMT(ISO) DATSEP('-') ";
        provider.expect(Success, TF_SEND_REQUEST, options);
        EXPECT_NE(provider.conversation, 0u);
        const std::string from = " FROM QGPL/CUST,WORLD/COUNTRY where ";
        const std::string join = row.fileNames ? "CUST.CNTRY = COUNTRY.CODE" : "t1.CNTRY = T2.CODE";
        provider.expect(Success, TF_SEND_REQUEST, "SELECT COUNT(*)" + from + join);
        provider.expect(Success, TF_GET_DATA);
        EXPECT_EQ(hexOf(provider.result), "00 00 00 0A");
        provider.expect(Success, TF_SEND_REQUEST, "SELECT * " + from + join + " order by CUSTNO");
        const auto gotFields = provider.all(TF_GET_FIELD), gotRecords = provider.all(TF_GET_DATA);
        provider.expect(Success, TF_END_REQUEST);
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
        provider.expect(0x2002, TF_GET_DATA);
        provider.expect(Success, TF_END_REQUEST);
        for (const std::uint32_t unknown : {0, 8}) provider.expect(0x2000, unknown);
        provider.expect(0x3000, TF_SEND_REQUEST, "SELECT * FROM NONE ");
        EXPECT_EQ(provider.result, "HSF1011 File NONE not found.");
        provider.expect(Success, TF_END_REQUEST);
        const std::uint32_t first = provider.conversation;
        provider.expect(Success, TF_END_DATA);
        EXPECT_EQ(provider.conversation, 0u) << row.library;
        provider.expect(Success, TF_SEND_REQUEST, "SELECT * FROM QGPL/CUST ");
        EXPECT_NE(provider.conversation, first);
        const std::uint32_t open = std::exchange(provider.conversation, 99999);
        provider.expect(0x2003, TF_GET_DATA);
        provider.conversation = open;
        provider.expect(Success, TF_GET_DATA);
        for (int i = 0; i < 2; ++i) {  // also without a conversation
            provider.expect(Success, TF_RESET);
            EXPECT_EQ(provider.conversation, 0u) << row.library;
        }
        if (!row.create) continue;
        const std::uint32_t client = std::exchange(provider.client, 12345);
        provider.expect(0x2003, TF_RESET);
        provider.client = client;
    }
    Provider client(Families[3]);
    const auto find = entryOf<GetClientEntry>(load("AS4XFER"), "getAS4XFERCLIENT");
    EXPECT_EQ(find(21), client.client);
    EXPECT_EQ(find(23), 0u);
}

}  // namespace
