#pragma once

#include "services/handles.h"

// The library as a module of the process.
namespace platform {

// Called once, by the platform's library entry, when the library is attached to the process.
void attachLibrary(services::ModuleHandle module);

// The library's own handle: holds its string resources and is passed to the connection dialog.
services::ModuleHandle moduleHandle();

}  // namespace platform
