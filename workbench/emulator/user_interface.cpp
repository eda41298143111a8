#include "emulator/user_interface.h"

#include <utility>

#include "emulator/journal.h"

namespace emulator {
namespace {

UserInterface* current = nullptr;

}  // namespace

UserInterface* setUserInterface(UserInterface* userInterface) { return std::exchange(current, userInterface); }

UserInterface& userInterface() {
    static UserInterface agreeable;
    return current ? *current : agreeable;
}

std::int32_t askShell(std::uint32_t owner, const char* verb, const char* file, const char* parameters,
                      const char* directory, std::int32_t showState) {
    const journalled::Call call("ShellExecuteA", owner, verb, file, parameters, directory, showState);
    return call.result(userInterface().shellExecute(file, parameters));
}

}  // namespace emulator
