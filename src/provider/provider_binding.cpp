#include "provider/provider_binding.h"

#include <utility>

#include "Z7XFRPCS/settings.h"
#include "messages/box.h"
#include "platform/platform.h"
#include "provider/transports.h"
#include "services/runtime.h"

namespace provider {
namespace {

constexpr char IbmLibrary[] = "E32TFW.DLL";
constexpr char IbmRouterLibrary[] = "E32APPC.DLL";
constexpr char EmulatorLibrary[] = "ZEHNTFW.DLL";
constexpr char AppcLibrary[] = "ZTFWAPPC.DLL";
constexpr char As400Library[] = "AS4XFER.DLL";

constexpr std::uint32_t SearchIbm = 0;
constexpr std::uint32_t SearchOwn = 1;

constexpr std::int32_t MisplacedRouterKind = 30;  // a transport type where a router kind belongs

enum Message : std::uint32_t {
    RouterNotLoaded = 4266,
    RouterIsReplacement = 4269,
    LibraryNotFound = 4400,
    OwnProviderNotLoaded = 4402,
    EmulatorEntryMissing = 4403,
    RouterNotRunning = 4407,
    IbmProviderNotLoaded = 4593,
    IbmEntryMissing = 4594,
    AppcProviderNotLoaded = 4658,
    AppcEntryMissing = 4659,
    As400EntryMissingOtherKind = 4697,
    As400EntryMissing = 4704,
};

constexpr std::uint32_t ReplacementTextTable = 22;
constexpr std::uint32_t ReplacementText = 202;

}  // namespace

bool ProviderBinding::bind(services::SessionHandle session, std::int32_t transportType, std::int32_t routerKind) {
    session_ = session;
    settings_ = services::GetSessionSettings(session);
    window_ = services::GetSessionWindow(settings_);
    bool bound = false;
    if (checkRouter(transportType, routerKind)) {
        if (routerKind != zhst::value::RouterIbm) {
            bound = bindAs400(routerKind);
        } else {
            const Transport transport = transportOf(transportType);
            bound = (transport == Transport::Ibm && bindIbm()) ||
                    (transport == Transport::Emulator && bindEmulator()) ||
                    (transport == Transport::Appc && bindAppc());
        }
    }
    if (!bound) {
        deleteClient();
        freeModules();
    }
    return bound;
}

bool ProviderBinding::checkRouter(std::int32_t transportType, std::int32_t routerKind) {
    if (routerKind != zhst::value::RouterIbm) return true;
    const Transport transport = transportOf(transportType);
    if (transport == Transport::Ibm) return checkIbmRouter();
    return transport != Transport::Unknown;
}

bool ProviderBinding::checkIbmRouter() {
    if (!libraryExists(IbmRouterLibrary)) return false;
    if (services::LoadModule(IbmRouterLibrary, SearchIbm, &routerModule_) != 0) {
        routerModule_ = nullptr;
        return fail(RouterNotLoaded);
    }
    if (platform::GetProcAddress(routerModule_, "EHNAPPC_KVX")) {
        char text[300] = {};
        services::LoadMessageText(session_, ReplacementTextTable, ReplacementText, text, sizeof(text));
        return fail(RouterIsReplacement, text);
    }
    const auto isLoaded = lookUp<TfIsRouterLoadedEntry>(routerModule_, "EHNAPPC_IsRouterLoaded");
    return (isLoaded && isLoaded(session_) != 0) || fail(RouterNotRunning);
}

bool ProviderBinding::bindIbm() {
    if (!libraryExists(IbmLibrary)) return false;
    if (!loadProvider(IbmLibrary, SearchIbm)) return fail(IbmProviderNotLoaded);
    stfEntry_ = lookUp<TfStfEntry>(providerModule_, "EHNTF_STF");
    stfCleanupEntry_ = lookUp<TfStfCleanupEntry>(providerModule_, "E32TF_Cleanup");
    if (!stfEntry_) return fail(IbmEntryMissing);
    family_ = Family::Ibm;
    return true;
}

bool ProviderBinding::bindEmulator() {
    if (!libraryExists(EmulatorLibrary)) return false;
    if (!loadProvider(EmulatorLibrary, SearchOwn)) return fail(OwnProviderNotLoaded);
    const auto newClient = lookUp<TfNewClientEntry>(providerModule_, "newZEHNTFWCLIENT");
    if (!lookUpEmulatorEntries(newClient, "deleteZEHNTFWCLIENT")) return fail(EmulatorEntryMissing);
    return makeClient(newClient);
}

bool ProviderBinding::bindAppc() {
    if (!libraryExists(AppcLibrary)) return false;
    if (!loadProvider(AppcLibrary, SearchOwn)) return fail(AppcProviderNotLoaded, AppcLibrary);
    const auto newClient = lookUp<TfNewClientEntry>(providerModule_, "newZTFWAPPCCLIENT");
    if (!lookUpEmulatorEntries(newClient, "deleteZTFWAPPCCLIENT")) return fail(AppcEntryMissing, AppcLibrary);
    return makeClient(newClient);
}

bool ProviderBinding::bindAs400(std::int32_t routerKind) {
    if (!libraryExists(As400Library)) return false;
    if (!loadProvider(As400Library, SearchOwn)) return fail(OwnProviderNotLoaded);
    // The client is made before the other entries are looked at; without a destructor it cannot be ended either.
    const auto newClient = lookUp<TfNewClientEntry>(providerModule_, "newAS4XFERCLIENT");
    client_ = newClient ? newClient(session_, window_) : 0;
    if (client_ == 0) return false;
    deleteClientEntry_ = lookUp<TfDeleteClientEntry>(providerModule_, "deleteZAS4XFERCLIENT");
    const auto getClient = lookUp<TfGetClientEntry>(providerModule_, "getAS4XFERCLIENT");
    requestEntry_ = lookUp<TfRequestEntry>(providerModule_, "as400Request");
    if (!deleteClientEntry_ || !getClient || !requestEntry_)
        return fail(routerKind == MisplacedRouterKind ? As400EntryMissingOtherKind : As400EntryMissing);
    family_ = Family::As400;
    return true;
}

bool ProviderBinding::libraryExists(const char* name) const {
    auto* paths = services::GetPathServices(session_);
    return (paths && paths->fileExists(name)) || fail(LibraryNotFound, name);
}

bool ProviderBinding::loadProvider(const char* name, std::uint32_t search) {
    if (services::LoadModule(name, search, &providerModule_) == 0) return true;
    providerModule_ = nullptr;
    return false;
}

bool ProviderBinding::lookUpEmulatorEntries(TfNewClientEntry newClient, const char* deleteName) {
    requestEntry_ = lookUp<TfRequestEntry>(providerModule_, "zehnRequestor");
    deleteClientEntry_ = lookUp<TfDeleteClientEntry>(providerModule_, deleteName);
    return requestEntry_ && newClient && deleteClientEntry_;
}

bool ProviderBinding::makeClient(TfNewClientEntry newClient) {
    client_ = newClient(session_, window_);
    if (client_ == 0) return false;
    family_ = Family::Emulator;
    return true;
}

template <class Entry>
Entry ProviderBinding::lookUp(services::ModuleHandle module, const char* name) const {
    return reinterpret_cast<Entry>(platform::GetProcAddress(module, name));
}

bool ProviderBinding::fail(std::uint32_t messageId, const char* insert) const {
    const messages::Owner owner{session_, settings_, window_};
    if (insert)
        messages::show(owner, messageId, insert);
    else
        messages::show(owner, messageId);
    return false;
}

TfResult ProviderBinding::call(const Call& call, std::uint32_t* conversation) const {
    void* data = nullptr;
    std::uint32_t dataLength = 0;
    std::uint32_t detail = 0;
    std::uint32_t code = 0;
    if (family_ == Family::Ibm) {
        code = stfEntry_(window_, call.yield, conversation, call.function, call.buffer, BufferSize, call.length,
                         call.designation, call.reserved, &data, &dataLength, &detail);
    } else {
        code = requestEntry_(client_, conversation, call.function, call.buffer, BufferSize, call.length,
                             call.designation, call.reserved, &data, &dataLength, &detail);
    }
    return {static_cast<std::uint16_t>(code), static_cast<std::uint16_t>(detail), dataLength, data};
}

void ProviderBinding::callStfCleanup() const {
    if (stfCleanupEntry_) stfCleanupEntry_();
}

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
