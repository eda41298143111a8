#include "platform/own_module.h"

namespace platform {
namespace {
services::ModuleHandle libraryModule = nullptr;
}

void attachLibrary(services::ModuleHandle module) { libraryModule = module; }
services::ModuleHandle moduleHandle() { return libraryModule; }

}  // namespace platform
