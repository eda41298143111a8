#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <tuple>
#include <utility>
#include <vector>

#include "Z7XFRPCS/provider.h"
#include "support/dynamic_library.h"
#include "support/library.h"

namespace {

void* load(const std::string& name) { return openLibrary((binFolder() + "/providers/" + name + ".DLL").c_str()); }

template <class Entry>
Entry entryOf(void* library, const char* name) {
    return reinterpret_cast<Entry>(findFunction(library, name));
}

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
    EXPECT_NE(entryOf<TfIsRouterLoadedEntry>(load("E32APPC"), "EHNAPPC_IsRouterLoaded")(1), 0u);
}

TEST(Providers, HandlesOfNobodyAreRefused) {
    const std::tuple<const char*, const char*, const char*, const char*> families[] = {
        {"ZEHNTFW", "zehnRequestor", "newZEHNTFWCLIENT", "deleteZEHNTFWCLIENT"},
        {"ZTFWAPPC", "zehnRequestor", "newZTFWAPPCCLIENT", "deleteZTFWAPPCCLIENT"},
        {"AS4XFER", "as400Request", "newAS4XFERCLIENT", "deleteZAS4XFERCLIENT"}};
    std::array<char, TF_BUFFER_SIZE> buffer{};
    for (const auto& [name, request, create, destroy] : families) {
        void* const library = load(name);
        const std::uint32_t client = entryOf<TfNewClientEntry>(library, create)(21, 22);
        const auto call = [&, entry = entryOf<TfRequestEntry>(library, request)](std::uint32_t of, std::uint32_t talk) {
            void* data = nullptr;
            std::uint32_t length = 0, detail = 0;
            return entry(of, &talk, TF_GET_DATA, buffer.data(), TF_BUFFER_SIZE, 0, nullptr, 0, &data, &length, &detail);
        };
        EXPECT_EQ(call(client, 0), 0x2002u);
        EXPECT_EQ(call(client, 99999), 0x2003u);
        EXPECT_EQ(call(client + 1, 0), 0x2003u);
        if (const auto find = entryOf<TfGetClientEntry>(library, "getAS4XFERCLIENT")) {
            EXPECT_EQ(find(21), client);
            EXPECT_EQ(find(23), 0u);
        }
        entryOf<TfDeleteClientEntry>(library, destroy)(client);
    }
}

}  // namespace
