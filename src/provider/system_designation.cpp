#include <algorithm>
#include <cstring>

#include "host/setting_ids.h"
#include "provider/transfer_function_session.h"
#include "text/double_byte.h"

// The host system designation that accompanies the requests: "SYSTEM(", eight name positions padded with blanks, ")".
namespace provider {
namespace {

constexpr std::size_t NameOffset = 7;
constexpr std::size_t NameLength = 8;
constexpr std::int32_t QualifiedNameTransport = 8;

// "NET.NAME" loses everything up to the point, and with it the first character of the name, as hosts of this transport
// expect it.
const char* withoutNetwork(const char* name) {
    const char* point = std::strchr(name, '.');
    if (!point) return name;
    return point[1] ? point + 2 : point + 1;
}

char upperAscii(char character) {
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
}

}  // namespace

const char* TransferFunctionSession::hostSystemDesignation() {
    std::fill(std::begin(systemDesignation_), std::end(systemDesignation_), ' ');
    char buffer[sizeof(systemDesignation_)] = {};
    host::GetStringSetting(settings_, host::setting::HostSystemName, buffer, sizeof(buffer));
    const char* name = transportType_ == QualifiedNameTransport ? withoutNetwork(buffer) : buffer;
    const std::string_view shown = std::string_view(name).substr(0, NameLength);

    char* next = std::copy_n("SYSTEM(", NameOffset, systemDesignation_);
    std::transform(shown.begin(), shown.end(), next, upperAscii);
    next[NameLength] = ')';
    next[NameLength + 1] = '\0';
    return *name ? systemDesignation_ : nullptr;
}

}  // namespace provider
