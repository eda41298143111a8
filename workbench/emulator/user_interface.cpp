#include "emulator/user_interface.h"

namespace emulator {
namespace {

UserInterface* current = nullptr;

}  // namespace

void setUserInterface(UserInterface* userInterface) { current = userInterface; }

UserInterface& userInterface() {
    static UserInterface agreeable;
    return current ? *current : agreeable;
}

}  // namespace emulator
