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

constexpr char IbmLibrary[] = "E32TFW.DLL";
constexpr char IbmRouterLibrary[] = "E32APPC.DLL";
constexpr char As400Library[] = "AS4XFER.DLL";

// The libraries of the emulator's own transfer-function providers. The messages of the second have its name as insert,
// those of the first stand for it alone.
struct OwnLibrary {
    const char* name;
    const char* newClient;
    const char* deleteClient;
    std::uint32_t notLoaded;
    std::uint32_t entryMissing;
    const char* insert;
};
constexpr OwnLibrary OwnLibraries[] = {
    {"ZEHNTFW.DLL", "newZEHNTFWCLIENT", "deleteZEHNTFWCLIENT", message::OwnProviderNotLoaded,
     message::EmulatorEntryMissing, nullptr},
    {"ZTFWAPPC.DLL", "newZTFWAPPCCLIENT", "deleteZTFWAPPCCLIENT", message::AppcProviderNotLoaded,
     message::AppcEntryMissing, "ZTFWAPPC.DLL"},
};

template <class Entry>
Entry lookUp(services::ModuleHandle module, const char* name) {
    return reinterpret_cast<Entry>(platform::GetProcAddress(module, name));
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
    if (!load(IbmRouterLibrary, ZhstSearchIbm, routerModule_, message::RouterNotLoaded)) return false;
    // The emulator's own replacement of that library, which its entry gives away, cannot serve the IBM provider.
    if (platform::GetProcAddress(routerModule_, "EHNAPPC_KVX")) {
        char text[300] = {};
        messages::loadText(owner_.session, zhst::text::RouterReplacement, text);
        return fail(message::RouterIsReplacement, text);
    }
    // A router that cannot be asked is taken for one that does not run.
    const auto isLoaded = lookUp<TfIsRouterLoadedEntry>(routerModule_, "EHNAPPC_IsRouterLoaded");
    return (isLoaded && isLoaded(owner_.session) != 0) || fail(message::RouterNotRunning);
}

bool ProviderBinding::bindIbm() {
    if (!load(IbmLibrary, ZhstSearchIbm, providerModule_, message::IbmProviderNotLoaded)) return false;
    stfEntry_ = lookUp<TfStfEntry>(providerModule_, "EHNTF_STF");
    stfCleanupEntry_ = lookUp<TfStfCleanupEntry>(providerModule_, "E32TF_Cleanup");
    if (!stfEntry_) return fail(message::IbmEntryMissing);
    family_ = Family::Ibm;
    return true;
}

bool ProviderBinding::bindOwn(Family family) {
    const OwnLibrary& library = OwnLibraries[family == Family::Appc ? 1 : 0];
    if (!load(library.name, ZhstSearchOwn, providerModule_, library.notLoaded, library.insert)) return false;
    const auto newClient = lookUp<TfNewClientEntry>(providerModule_, library.newClient);
    requestEntry_ = lookUp<TfRequestEntry>(providerModule_, "zehnRequestor");
    deleteClientEntry_ = lookUp<TfDeleteClientEntry>(providerModule_, library.deleteClient);
    if (!requestEntry_ || !newClient || !deleteClientEntry_) return fail(library.entryMissing, library.insert);
    client_ = newClient(owner_.session, owner_.window);
    if (client_ == 0) return false;
    family_ = family;
    return true;
}

bool ProviderBinding::bindAs400(std::int32_t routerKind) {
    if (!load(As400Library, ZhstSearchOwn, providerModule_, message::OwnProviderNotLoaded)) return false;
    // The client is made before the other entries are looked at; without a destructor it cannot be ended either.
    const auto newClient = lookUp<TfNewClientEntry>(providerModule_, "newAS4XFERCLIENT");
    client_ = newClient ? newClient(owner_.session, owner_.window) : 0;
    if (client_ == 0) return false;
    deleteClientEntry_ = lookUp<TfDeleteClientEntry>(providerModule_, "deleteZAS4XFERCLIENT");
    const auto getClient = lookUp<TfGetClientEntry>(providerModule_, "getAS4XFERCLIENT");
    requestEntry_ = lookUp<TfRequestEntry>(providerModule_, "as400Request");
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
