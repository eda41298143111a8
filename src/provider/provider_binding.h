#pragma once

#include <cstdint>

#include "Z7XFRPCS/provider.h"
#include "messages/box.h"
#include "provider/connection.h"
#include "provider/tf_result.h"
#include "services/objects.h"

namespace provider {

// The provider library that a connection asks for: found, loaded, its entries looked up, its client made. Every failure
// is shown to the user with the session's window as owner, except for unsupported transport types and clients that the
// provider does not make; what was loaded until then is released at once.
//
//   router kind 1, transport 2, 4            E32TFW.DLL, which needs its router
//   router kind 1, transport 8, 9, 14, 15    ZEHNTFW.DLL
//   router kind 1, transport 5, 7, 13        ZTFWAPPC.DLL
//   any other router kind                    AS4XFER.DLL
class ProviderBinding {
public:
    // The owner's window is given to the provider, too.
    ProviderBinding(const messages::Owner& owner, services::PathServices* pathServices)
        : owner_(owner), pathServices_(pathServices) {}
    ProviderBinding(const ProviderBinding&) = delete;
    ProviderBinding& operator=(const ProviderBinding&) = delete;

    // True when the provider is bound.
    bool bind(const Connection& connection);

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

    // Of the provider that is bound.
    Family family() const { return family_; }
    bool isBound() const { return family_ != Family::None; }

    // The IBM provider's clean-up entry, if it has one.
    void callStfCleanup() const;
    // Ends the client of an emulator's or AS/400 provider, if there is one.
    void deleteClient();
    // Releases the router, then the provider.
    void freeModules();

private:
    bool bindProvider(const Connection& connection);
    bool bindIbm();
    bool hasIbmRouter();
    bool bindOwn(Family family);
    bool bindAs400(std::int32_t routerKind);
    bool load(const char* name, std::uint32_t search, services::ModuleHandle& module, std::uint32_t notLoaded,
              const char* insert = nullptr) const;
    bool fail(std::uint32_t message, const char* insert = nullptr) const;

    const messages::Owner& owner_;
    services::PathServices* pathServices_;
    Family family_ = Family::None;
    services::ModuleHandle providerModule_ = nullptr;
    services::ModuleHandle routerModule_ = nullptr;
    TfStfEntry stfEntry_ = nullptr;
    TfStfCleanupEntry stfCleanupEntry_ = nullptr;
    // zehnRequestor or as400Request, with the destructor beside it.
    TfRequestEntry requestEntry_ = nullptr;
    TfDeleteClientEntry deleteClientEntry_ = nullptr;
    std::uint32_t client_ = 0;
};

}  // namespace provider
