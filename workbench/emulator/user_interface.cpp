#include "emulator/user_interface.h"

#include "emulator/journal.h"

namespace emulator {
namespace {

UserInterface* current = nullptr;

}  // namespace

void setUserInterface(UserInterface* userInterface) { current = userInterface; }

UserInterface& userInterface() {
    static UserInterface agreeable;
    return current ? *current : agreeable;
}

std::int32_t askShell(const char* file, const char* parameters) {
    const journalled::Call call("ShellExecuteA", file, parameters);
    return call.result(userInterface().shellExecute(file, parameters));
}

}  // namespace emulator
