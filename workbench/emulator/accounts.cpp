#include "emulator/code_pages.h"
#include "emulator/commands.h"
#include "emulator/dialogs.h"
#include "emulator/display.h"
#include "emulator/emulator.h"
#include "emulator/file_object.h"
#include "emulator/held_files.h"
#include "emulator/journal.h"
#include "emulator/memory.h"
#include "emulator/messages.h"
#include "emulator/modules.h"
#include "emulator/path_services.h"
#include "emulator/pc_file.h"
#include "emulator/platform_side.h"
#include "emulator/sessions.h"
#include "emulator/standard_streams.h"
#include "emulator/store.h"

// What is open, and how all of it is forgotten.

namespace emulator {

OpenObjects openObjects() {
    OpenObjects open;
    open.files = liveFileObjects();
    open.progressDialogs = openProgressDialogs();
    open.textDisplays = openTextDisplays();
    open.modules = loadedModules();
    open.watches = watchCount();
    open.lockedLists = lockedLists();
    return open;
}

void reset() {
    setUserInterface(nullptr);
    setFaults({});
    journalled::reset();
    forgetSessions();
    resetCommands();
    resetDialogs();
    resetDisplays();
    resetFileObjects();
    resetHeldFiles();
    resetMessages();
    resetPathServices();
    resetReadingStart();
    setHeading(nullptr);
    resetStandardStreams();
    resetStore();
    resetModules();
    memory::reset();
    resetPc();
}

}  // namespace emulator
