#include "provider_reasons.h"

#include <optional>
#include <string_view>

#include "Z7XFRPCS/provider.h"
#include "Z7XFRPCS/settings.h"
#include "emulator/emulator.h"
#include "emulator/modules.h"
#include "library_loader.h"

namespace {

namespace setting = zhst::setting;
namespace value = zhst::value;

constexpr std::string_view libraries[] = {
#define LIBRARY(family, file) file,
    ZHST_ROUTER_LIBRARIES(LIBRARY) ZHST_PROVIDER_LIBRARIES(LIBRARY)
#undef LIBRARY
};

namespace file_of {
#define LIBRARY(family, file) constexpr std::string_view family = file;
ZHST_ROUTER_LIBRARIES(LIBRARY)
ZHST_PROVIDER_LIBRARIES(LIBRARY)
#undef LIBRARY
}  // namespace file_of

enum class Need { Needed, Optional };

struct Entry {
    std::string_view library;
    const char* name;
    Need need;
};
constexpr Entry entries[] = {
#define ENTRY(family, use, name, type, need) {file_of::family, name, Need::need},
    ZHST_PROVIDER_ENTRIES(ENTRY)
#undef ENTRY
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
std::vector<std::string> neededBy(std::int32_t router, std::int32_t transport) {
    std::vector<std::string> needed;
    const SettingValue* row = find("TransportType", transport);
    const bool isChoice = router == value::RouterIbm && transport != value::TransportAs400;
    const std::string_view wanted = router != value::RouterIbm ? file_of::As400 : isChoice && row ? row->meaning : "";
    for (const std::string_view library : libraries) {
        const bool isRouter = library == file_of::Router && wanted.starts_with(file_of::Ibm);
        if (isRouter || (!wanted.empty() && wanted.starts_with(library))) needed.emplace_back(library);
    }
    return needed;
}

std::string lackOf(const std::string& library) {
    const std::optional<std::string> file = emulator::findLibrary(library.c_str());
    if (!file) return library + " is not in the folder " + emulator::providerFolder();
    std::string reason;
    void* module = loader::open(*file, &reason);
    if (module == nullptr) return *file + " cannot be loaded: " + reason;
    std::string missing;
    for (const Entry& entry : entries) {
        const bool isWanted = entry.library == library && entry.need == Need::Needed;
        if (isWanted && loader::find(module, entry.name) == nullptr)
            missing += (missing.empty() ? "" : ", ") + std::string(entry.name);
    }
    return missing.empty() ? "" : *file + " has no entry " + missing;
}

}  // namespace

std::vector<std::string> whyNothingIsBound(ZhstSession session) {
    const std::int32_t router = emulator::number(session, setting::RouterKind);
    const std::int32_t transport = emulator::number(session, setting::TransportType);
    const std::string asked =
        named("router kind", "RouterKind", router) + " and " + named("transport type", "TransportType", transport);
    const std::vector<std::string> needed = neededBy(router, transport);
    if (needed.empty()) return {asked + " go with no provider; \"z7xfer settings TransportType\" lists those that do"};
    std::string names;
    for (const std::string& library : needed) names += (names.empty() ? "" : " and ") + library;
    std::vector<std::string> lines = {asked + " call for " + names};
    for (const std::string& library : needed)
        if (std::string lack = lackOf(library); !lack.empty()) lines.push_back(std::move(lack));
    if (lines.size() == 1) {
        lines.push_back(
            "the library has all its entries, but made no client, or its router does not run: whoever made "
            "the provider knows why");
    } else {
        lines.emplace_back("--providers names another folder, --transport another provider");
    }
    return lines;
}
