#include "client/library.h"

namespace client {
namespace {
host::ModuleHandle libraryModule = nullptr;
}

void attachLibrary(host::ModuleHandle module) { libraryModule = module; }
host::ModuleHandle moduleHandle() { return libraryModule; }

}  // namespace client
