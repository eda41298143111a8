#include "checking/looking_host.h"

#include <stdexcept>

#include "Z7XFRPCS/settings.h"
#include "emulator/emulator.h"
#include "library_loader.h"
#include "looking/looking_provider.h"

namespace checking {
namespace {

namespace setting = zhst::setting;

constexpr char ProviderName[] = "ZEHNTFW.DLL";
constexpr std::int32_t Transport = 9;  // that of the provider's family

SetLookingHostEntry entryOf(const std::filesystem::path& file) {
    std::string reason;
    void* const library = loader::open(file, &reason);
    void* const entry = library ? loader::find(library, SetLookingHostName) : nullptr;
    if (entry == nullptr) throw std::runtime_error("cannot check: " + file.string() + " cannot be used " + reason);
    return reinterpret_cast<SetLookingHostEntry>(entry);
}

}  // namespace

LookingHost* LookingHost::current = nullptr;

LookingHost::LookingHost(const std::filesystem::path& programFolder) {
    const std::filesystem::path folder = programFolder / "looking";
    entryOf(folder / ProviderName)(&LookingHost::answer);
    formerFolder_ = emulator::setProviderFolder(folder.string());
    current = this;
}

LookingHost::~LookingHost() {
    current = nullptr;
    emulator::setProviderFolder(formerFolder_);
}

void LookingHost::attract(ZhstSession session) {
    emulator::set(session, setting::RouterKind, zhst::value::RouterIbm);
    emulator::set(session, setting::TransportType, Transport);
    // What the connection dialog would ask for.
    for (const std::uint32_t id : {setting::HostSystemName, setting::ConnectionParam248, setting::ConnectionParam250,
                                   setting::ConnectionParam512})
        emulator::set(session, id, std::string("LOOKING"));
}

std::uint32_t ZHST_CALL LookingHost::answer(std::uint32_t, std::uint32_t* conversation, std::uint32_t function,
                                            void* buffer, std::uint32_t, std::uint32_t length, const char*,
                                            std::uint32_t, void** data, std::uint32_t* dataLength,
                                            std::uint32_t* detail) {
    *data = nullptr;
    *dataLength = *detail = 0;
    if (current == nullptr) return TF_FAILED_SILENTLY;
    const std::string_view sent(static_cast<const char*>(buffer), length);
    switch (function) {
        case TF_SEND_REQUEST:
            *conversation = 1;
            return current->takeRequest(sent);
        case TF_GET_FIELD:
            return current->giveField(data, dataLength);
        case TF_PUT_DATA:
            if (current->onRecord) current->onRecord(sent);
            return TF_SUCCESS;
        default:
            return TF_SUCCESS;
    }
}

std::uint32_t LookingHost::takeRequest(std::string_view text) {
    nextField_ = 0;
    if (text.starts_with("OPTIONS ")) {
        options_ = text;
        return TF_SUCCESS;
    }
    request_ = text;
    return layout_ ? TF_SUCCESS : TF_FAILED_SILENTLY;
}

std::uint32_t LookingHost::giveField(void** data, std::uint32_t* dataLength) {
    if (layout_ == nullptr || nextField_ == layout_->columns.size()) return TF_NO_MORE_DATA;
    const auto& description = layout_->columns[nextField_++].description;
    *data = const_cast<char*>(description.data());
    *dataLength = static_cast<std::uint32_t>(description.size());
    return TF_SUCCESS;
}

}  // namespace checking
