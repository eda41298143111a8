#include <functional>
#include <string>

#include "emulator/commands.h"
#include "emulator/journal.h"
#include "emulator/sessions.h"
#include "emulator/user_interface.h"

// Commands of the application, and its message pump.

namespace emulator {
namespace {

constexpr std::uint32_t RunSettingsFile = 67;
constexpr std::uint32_t TextArgument = 32;

std::function<bool(ZhstSession, const std::string&)> settingsFileReader;

// Only settings files are known. Without a reader there is nobody who could run one, so the command fails.
bool run(const Session& session, std::uint32_t command, const ZhstAppCommandArgument* argument) {
    if (command != RunSettingsFile || !argument || argument->type != TextArgument || !argument->text) return false;
    return settingsFileReader && settingsFileReader(session.handle(SessionPart::Session), argument->text);
}

}  // namespace

void setSettingsFileReader(std::function<bool(ZhstSession, const std::string&)> reader) {
    settingsFileReader = std::move(reader);
}

void resetCommands() { settingsFileReader = nullptr; }

}  // namespace emulator

using namespace emulator;
using journalled::Call;

void ZHST_CALL zhstRunAppCommand(ZhstApp app, std::uint32_t command, std::uint32_t subCode, std::uint32_t mode,
                                 const ZhstAppCommandArgument* argument) {
    Call("RunAppCommand", app, command, subCode, mode, argument ? argument->type : 0,
         argument ? argument->text : nullptr);
    Session* session = findSession(app, SessionPart::App);
    if (session) session->commandFailed = !run(*session, command, argument);
}

std::uint32_t ZHST_CALL zhstCheckCommandFailed(ZhstSettings settings) {
    const Session* session = findSession(settings, SessionPart::Settings);
    return Call("CheckCommandFailed", settings).result(session && session->commandFailed ? 1u : 0u);
}

void ZHST_CALL zhstPumpMessages(ZhstApp app, std::uint32_t one) {
    Call("PumpMessages", app, one);
    userInterface().pump();
}
