#include "provider/provider_binding.h"

#include <utility>

#include "Z7XFRPCS/messages.h"
#include "Z7XFRPCS/settings.h"
#include "platform/platform.h"
#include "services/objects.h"
#include "services/runtime.h"

namespace provider {
namespace {

namespace message = zhst::message;

namespace library {
#define LIBRARY(family, file) constexpr char family[] = file;
ZHST_PROVIDER_LIBRARIES(LIBRARY)
ZHST_ROUTER_LIBRARIES(LIBRARY)
#undef LIBRARY
}  // namespace library

// An export, and what it is when it has been found.
template <class Entry>
struct Export {
    const char* name;
};
namespace entry {
#define ENTRY(family, use, name, type, need) constexpr Export<type> family##use = {name};
ZHST_PROVIDER_ENTRIES(ENTRY)
#undef ENTRY
}  // namespace entry

// The libraries of the emulator's own transfer-function providers. The messages of the second have its name as insert,
// those of the first stand for it alone.
struct OwnLibrary {
    const char* name;
    Export<TfNewClientEntry> newClient;
    Export<TfRequestEntry> request;
    Export<TfDeleteClientEntry> deleteClient;
    std::uint32_t notLoaded;
    std::uint32_t entryMissing;
    const char* insert;
};
constexpr OwnLibrary OwnLibraries[] = {
    {library::Emulator, entry::EmulatorNewClient, entry::EmulatorRequest, entry::EmulatorDeleteClient,
     message::OwnProviderNotLoaded, message::EmulatorEntryMissing, nullptr},
    {library::Appc, entry::AppcNewClient, entry::AppcRequest, entry::AppcDeleteClient, message::AppcProviderNotLoaded,
     message::AppcEntryMissing, library::Appc},
};

template <class Entry>
Entry lookUp(services::ModuleHandle module, Export<Entry> wanted) {
    return reinterpret_cast<Entry>(platform::GetProcAddress(module, wanted.name));
}

}  // namespace

bool ProviderBinding::bind(const Connection& connection) {
    if (bindProvider(connection)) return true;
    deleteClient();
    freeModules();
    return false;
}

// Only the IBM router leaves a choice by transport. Transport 30 has nothing to do with it and is not served there.
bool ProviderBinding::bindProvider(const Connection& connection) {
    if (connection.routerKind != zhst::value::RouterIbm) return bindAs400(connection.routerKind);
    const Family family = connection.transport().family;
    if (family == Family::Ibm) return hasIbmRouter() && bindIbm();
    return isOwnProvider(family) && bindOwn(family);
}

// The router stays loaded as long as the provider, which calls it.
bool ProviderBinding::hasIbmRouter() {
    if (!load(library::Router, ZhstSearchIbm, routerModule_, message::RouterNotLoaded)) return false;
    // The emulator's own replacement of that library, which its entry gives away, cannot serve the IBM provider.
    if (platform::GetProcAddress(routerModule_, "EHNAPPC_KVX")) {
        char text[300] = {};
        messages::loadText(owner_.session, zhst::text::RouterReplacement, text);
        return fail(message::RouterIsReplacement, text);
    }
    // A router that cannot be asked is taken for one that does not run.
    const auto isLoaded = lookUp(routerModule_, entry::RouterIsLoaded);
    return (isLoaded && isLoaded(owner_.session) != 0) || fail(message::RouterNotRunning);
}

bool ProviderBinding::bindIbm() {
    if (!load(library::Ibm, ZhstSearchIbm, providerModule_, message::IbmProviderNotLoaded)) return false;
    stfEntry_ = lookUp(providerModule_, entry::IbmRequest);
    stfCleanupEntry_ = lookUp(providerModule_, entry::IbmCleanup);
    if (!stfEntry_) return fail(message::IbmEntryMissing);
    family_ = Family::Ibm;
    return true;
}

bool ProviderBinding::bindOwn(Family family) {
    const OwnLibrary& own = OwnLibraries[family == Family::Appc ? 1 : 0];
    if (!load(own.name, ZhstSearchOwn, providerModule_, own.notLoaded, own.insert)) return false;
    const auto newClient = lookUp(providerModule_, own.newClient);
    requestEntry_ = lookUp(providerModule_, own.request);
    deleteClientEntry_ = lookUp(providerModule_, own.deleteClient);
    if (!requestEntry_ || !newClient || !deleteClientEntry_) return fail(own.entryMissing, own.insert);
    client_ = newClient(owner_.session, owner_.window);
    if (client_ == 0) return false;
    family_ = family;
    return true;
}

bool ProviderBinding::bindAs400(std::int32_t routerKind) {
    if (!load(library::As400, ZhstSearchOwn, providerModule_, message::OwnProviderNotLoaded)) return false;
    // The client is made before the other entries are looked at; without a destructor it cannot be ended either.
    const auto newClient = lookUp(providerModule_, entry::As400NewClient);
    client_ = newClient ? newClient(owner_.session, owner_.window) : 0;
    if (client_ == 0) return false;
    deleteClientEntry_ = lookUp(providerModule_, entry::As400DeleteClient);
    const auto getClient = lookUp(providerModule_, entry::As400GetClient);
    requestEntry_ = lookUp(providerModule_, entry::As400Request);
    if (deleteClientEntry_ && getClient && requestEntry_) {
        family_ = Family::As400;
        return true;
    }
    // The catalogue has a second message for this, for a transport type that stands where a router kind belongs.
    const bool misplaced = routerKind == zhst::value::TransportAs400;
    return fail(misplaced ? message::As400EntryMissingOtherKind : message::As400EntryMissing);
}

// The search is LoadModule's. A library is asked for by its name first, so that one that is not there and one that
// cannot be loaded have messages of their own.
bool ProviderBinding::load(const char* name, std::uint32_t search, services::ModuleHandle& module,
                           std::uint32_t notLoaded, const char* insert) const {
    if (!pathServices_ || !pathServices_->fileExists(name)) return fail(message::LibraryNotFound, name);
    if (services::LoadModule(name, search, &module) == 0) return true;
    module = nullptr;
    return fail(notLoaded, insert);
}

bool ProviderBinding::fail(std::uint32_t message, const char* insert) const {
    insert ? messages::show(owner_, message, insert) : messages::show(owner_, message);
    return false;
}

// By what was bound, not by the transport type of the moment. The two agree for the router kinds 1 and 2; with any
// other the AS/400 client is bound, and so it is also called and ended.
TfResult ProviderBinding::call(const Call& call, std::uint32_t* conversation) const {
    void* data = nullptr;
    std::uint32_t dataLength = 0, detail = 0;
    const std::uint32_t code =
        family_ == Family::Ibm
            ? stfEntry_(owner_.window, call.yield, conversation, call.function, call.buffer, BufferSize, call.length,
                        call.designation, call.reserved, &data, &dataLength, &detail)
            : requestEntry_(client_, conversation, call.function, call.buffer, BufferSize, call.length,
                            call.designation, call.reserved, &data, &dataLength, &detail);
    return {static_cast<std::uint16_t>(code), static_cast<std::uint16_t>(detail), dataLength, data};
}

void ProviderBinding::callStfCleanup() const {
    if (stfCleanupEntry_) stfCleanupEntry_();
}

// The client is forgotten before its end, so that it cannot be ended a second time from inside.
void ProviderBinding::deleteClient() {
    const std::uint32_t client = std::exchange(client_, 0);
    if (client != 0 && deleteClientEntry_) deleteClientEntry_(client);
}

void ProviderBinding::freeModules() {
    family_ = Family::None;
    stfEntry_ = nullptr;
    stfCleanupEntry_ = nullptr;
    requestEntry_ = nullptr;
    deleteClientEntry_ = nullptr;
    if (routerModule_) services::FreeModule(std::exchange(routerModule_, nullptr));
    if (providerModule_) services::FreeModule(std::exchange(providerModule_, nullptr));
}

}  // namespace provider
