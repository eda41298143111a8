#include "provider_reasons.h"

#include <initializer_list>
#include <optional>
#include <string_view>

#include "Z7XFRPCS/settings.h"
#include "emulator/emulator.h"
#include "emulator/modules.h"
#include "library_loader.h"

namespace {

namespace setting = zhst::setting;
namespace value = zhst::value;

using Entries = std::initializer_list<const char*>;

// What the transfer library looks up in each; a clean-up entry may be missing.
struct Library {
    std::string_view name;
    Entries entries;
};
const Library libraries[] = {
    {"E32APPC.DLL", {"EHNAPPC_IsRouterLoaded"}},
    {"E32TFW.DLL", {"EHNTF_STF"}},
    {"ZEHNTFW.DLL", {"newZEHNTFWCLIENT", "zehnRequestor", "deleteZEHNTFWCLIENT"}},
    {"ZTFWAPPC.DLL", {"newZTFWAPPCCLIENT", "zehnRequestor", "deleteZTFWAPPCCLIENT"}},
    {"AS4XFER.DLL", {"newAS4XFERCLIENT", "deleteZAS4XFERCLIENT", "getAS4XFERCLIENT", "as400Request"}},
};

struct SettingValue {
    std::string_view setting;
    std::int32_t number;
    std::string_view word, meaning;
};
constexpr SettingValue values[] = {
#define SETTING_VALUE(setting, name, number, word, meaning) {#setting, number, word, meaning},
    ZHST_SETTING_VALUES(SETTING_VALUE)
#undef SETTING_VALUE
};

const SettingValue* find(std::string_view setting, std::int32_t number) {
    for (const SettingValue& row : values)
        if (row.setting == setting && row.number == number) return &row;
    return nullptr;
}

// "transport type 9 (emulator)"
std::string named(const char* what, std::string_view setting, std::int32_t number) {
    const SettingValue* row = find(setting, number);
    return std::string(what) + ' ' + std::to_string(number) + (row ? " (" + std::string(row->word) + ")" : "");
}

// Those that a connection needs, in the order they are loaded. Only the first kind of router leaves a choice by
// transport, and does not serve the AS/400 client's.
std::vector<const Library*> neededBy(std::int32_t router, std::int32_t transport) {
    std::vector<const Library*> needed;
    const SettingValue* row = find("TransportType", transport);
    const bool isChoice = router == value::RouterIbm && transport != value::TransportAs400;
    const std::string_view wanted = router != value::RouterIbm ? "AS4XFER.DLL" : isChoice && row ? row->meaning : "";
    for (const Library& library : libraries) {
        const bool isRouter = library.name == "E32APPC.DLL" && wanted.starts_with("E32TFW.DLL");
        if (isRouter || (!wanted.empty() && wanted.starts_with(library.name))) needed.push_back(&library);
    }
    return needed;
}

std::string lackOf(const Library& library) {
    const std::optional<std::string> file = emulator::findLibrary(std::string(library.name).c_str());
    const std::string name(library.name);
    if (!file) return name + " is not in the folder " + emulator::providerFolder();
    std::string reason;
    void* module = loader::open(*file, &reason);
    if (module == nullptr) return *file + " cannot be loaded: " + reason;
    std::string missing;
    for (const char* entry : library.entries)
        if (loader::find(module, entry) == nullptr) missing += (missing.empty() ? "" : ", ") + std::string(entry);
    return missing.empty() ? "" : *file + " has no entry " + missing;
}

}  // namespace

std::vector<std::string> whyNothingIsBound(ZhstSession session) {
    const std::int32_t router = emulator::number(session, setting::RouterKind);
    const std::int32_t transport = emulator::number(session, setting::TransportType);
    const std::string asked =
        named("router kind", "RouterKind", router) + " and " + named("transport type", "TransportType", transport);
    const std::vector<const Library*> needed = neededBy(router, transport);
    if (needed.empty()) return {asked + " go with no provider; \"z7xfer settings TransportType\" lists those that do"};
    std::string names;
    for (const Library* library : needed) names += (names.empty() ? "" : " and ") + std::string(library->name);
    std::vector<std::string> lines = {asked + " call for " + names};
    for (const Library* library : needed)
        if (std::string lack = lackOf(*library); !lack.empty()) lines.push_back(std::move(lack));
    if (lines.size() == 1) {
        lines.push_back(
            "the library has all its entries, but made no client, or its router does not run: whoever made "
            "the provider knows why");
    } else {
        lines.emplace_back("--providers names another folder, --transport another provider");
    }
    return lines;
}
