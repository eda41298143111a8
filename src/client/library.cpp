#include "client/library.h"

namespace client {
namespace {
services::ModuleHandle libraryModule = nullptr;
}

void attachLibrary(services::ModuleHandle module) { libraryModule = module; }
services::ModuleHandle moduleHandle() { return libraryModule; }

}  // namespace client
