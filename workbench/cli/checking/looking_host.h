#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "Z7XFRPCS/provider.h"
#include "Z7XFRPCS/session.h"
#include "host_layout.h"

namespace checking {

// Answers a send as a host with one layout would, and only looks at the records: the other end of the looking provider.
// One at a time.
class LookingHost {
public:
    // The provider stands in the folder "looking" beside the program. Throws std::runtime_error when it cannot be
    // loaded.
    explicit LookingHost(const std::filesystem::path& programFolder);
    ~LookingHost();
    LookingHost(const LookingHost&) = delete;
    LookingHost& operator=(const LookingHost&) = delete;

    // Has a session's transfers come here, whatever its connection. The provider folder stays the looking one as long
    // as this object lives.
    static void attract(ZhstSession session);

    // Without a layout a request is noted and refused, without a message.
    void setLayout(const HostLayout* layout) { layout_ = layout; }
    // Called with every record that is sent.
    std::function<void(std::string_view record)> onRecord;

    // The last ones that came: "OPTIONS ...", "REPLACE ..."; in the PC's code page.
    const std::string& options() const { return options_; }
    const std::string& request() const { return request_; }

private:
    static std::uint32_t ZHST_CALL answer(std::uint32_t client, std::uint32_t* conversation, std::uint32_t function,
                                          void* buffer, std::uint32_t bufferSize, std::uint32_t length,
                                          const char* designation, std::uint32_t reserved, void** data,
                                          std::uint32_t* dataLength, std::uint32_t* detail);
    std::uint32_t takeRequest(std::string_view text);
    std::uint32_t giveField(void** data, std::uint32_t* dataLength);

    static LookingHost* current;

    const HostLayout* layout_ = nullptr;
    std::size_t nextField_ = 0;
    std::string options_, request_;
    std::string formerFolder_;
};

}  // namespace checking
