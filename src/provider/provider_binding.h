#pragma once

#include <cstdint>

#include "Z7XFRPCS/provider.h"
#include "provider/tf_result.h"
#include "services/objects.h"
#include "services/session.h"

namespace provider {

enum class Family { None, Ibm, Emulator, As400 };

// The provider library chosen by transport type and router kind: found, loaded, its entries looked up, its client made.
// Every failure is shown to the user with the session's window as owner, except for unsupported transport types and
// clients that the provider does not make; what was loaded until then is released at once.
//
//   router kind 1, transport 2, 4            E32TFW.DLL    EHNTF_STF, optional E32TF_Cleanup; needs its router
//   router kind 1, transport 8, 9, 14, 15    ZEHNTFW.DLL   zehnRequestor, newZEHNTFWCLIENT, deleteZEHNTFWCLIENT
//   router kind 1, transport 5, 7, 13        ZTFWAPPC.DLL  zehnRequestor, newZTFWAPPCCLIENT, deleteZTFWAPPCCLIENT
//   any other router kind                    AS4XFER.DLL   newAS4XFERCLIENT, deleteZAS4XFERCLIENT, getAS4XFERCLIENT,
//                                                          as400Request
class ProviderBinding {
public:
    ProviderBinding() = default;
    ProviderBinding(const ProviderBinding&) = delete;
    ProviderBinding& operator=(const ProviderBinding&) = delete;

    // True when the provider is bound.
    bool bind(services::SessionHandle session, std::int32_t transportType, std::int32_t routerKind);

    // Calls the provider. `conversation` is read and updated by it; out values start at zero.
    struct Call {
        std::uint32_t function;
        void* buffer;
        std::uint32_t length;
        std::uint32_t reserved;
        const char* designation;
        TfYield yield;
    };
    TfResult call(const Call& call, std::uint32_t* conversation) const;

    Family family() const { return family_; }
    bool isBound() const { return family_ != Family::None; }

    // The IBM provider's clean-up entry, if it has one.
    void callStfCleanup() const;
    // Ends the client of an emulator's or AS/400 provider, if there is one.
    void deleteClient();
    // Releases the router, then the provider.
    void freeModules();

private:
    bool checkRouter(std::int32_t transportType, std::int32_t routerKind);
    bool checkIbmRouter();
    bool bindIbm();
    bool bindEmulator();
    bool bindAppc();
    bool bindAs400(std::int32_t routerKind);
    bool libraryExists(const char* name) const;
    bool loadProvider(const char* name, std::uint32_t search);
    bool lookUpEmulatorEntries(TfNewClientEntry newClient, const char* deleteName);
    bool makeClient(TfNewClientEntry newClient);
    template <class Entry>
    Entry lookUp(services::ModuleHandle module, const char* name) const;
    bool fail(std::uint32_t messageId, const char* insert = nullptr) const;

    services::SessionHandle session_ = 0;
    services::SettingsHandle settings_ = 0;
    services::WindowHandle window_ = 0;
    Family family_ = Family::None;
    services::ModuleHandle providerModule_ = nullptr;
    services::ModuleHandle routerModule_ = nullptr;
    TfStfEntry stfEntry_ = nullptr;
    TfStfCleanupEntry stfCleanupEntry_ = nullptr;
    // zehnRequestor or as400Request, with the constructor and destructor beside it.
    TfRequestEntry requestEntry_ = nullptr;
    TfDeleteClientEntry deleteClientEntry_ = nullptr;
    std::uint32_t client_ = 0;
};

}  // namespace provider
