#include "surroundings.h"

#include <cstdlib>
#include <string>
#include <system_error>

#include "codepages/codepages.h"
#include "environment/environment.h"
#include "own_folder.h"

namespace providers {

namespace {

std::uint32_t environmentNumber(const char* name, std::uint32_t otherwise) {
    const std::string value = environment::variable(name);
    return value.empty() ? otherwise : static_cast<std::uint32_t>(std::strtoul(value.c_str(), nullptr, 10));
}

// The file that the environment names, or the one beside this library or above its folder.
std::string locate(const char* variable, const char* fileName) {
    if (const std::string named = environment::variable(variable); !named.empty()) return named;
    const std::filesystem::path folder = ownFolder();
    std::error_code ignored;
    const auto beside = folder / fileName;
    if (std::filesystem::exists(beside, ignored)) return beside.string();
    return (folder.parent_path() / fileName).string();
}

}  // namespace

as400::ConversationSetup surroundings(as400::Dialect dialect) {
    // A file that cannot be loaded leaves no pages, and the first request that wants one says so.
    std::string error;
    codepages::load(locate("Z7X_CODE_PAGES", "codepages.dat"), &error);
    as400::ConversationSetup setup;
    setup.databasePath = locate("Z7X_HOST_DATA", "sample.db");
    setup.dialect = dialect;
    setup.pcPage = environmentNumber("Z7X_PC_CODE_PAGE", 0);
    setup.hostPage = environmentNumber("Z7X_HOST_CODE_PAGE", 37);
    setup.recordsAppend = [] { return environment::variable("Z7X_SEND_APPENDS") == "1"; };
    setup.sendIsWhole = [] { return environment::variable("Z7X_SEND_IS_WHOLE") != "0"; };
    return setup;
}

}  // namespace providers
