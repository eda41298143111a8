#include <iterator>

#include "platform/own_module.h"
#include "platform/posix/module.h"

// The library is attached to the process when it is loaded; its module is the record of its string resources.
namespace {

constexpr PosixModule::Row rows[] = {
#define RESOURCE(id, text) {id, text},
#include "resources/strings.def"
#undef RESOURCE
};

PosixModule ownModule = {rows, std::size(rows)};

[[gnu::constructor]] void attach() { platform::attachLibrary(&ownModule); }

}  // namespace
