#include <algorithm>
#include <cstring>

#include "Z7XFRPCS/settings.h"
#include "provider/transfer_function_session.h"
#include "text/double_byte.h"

// The host system designation that accompanies the requests: "SYSTEM(", eight name positions padded with blanks, ")".
namespace provider {
namespace {

constexpr std::size_t NameOffset = 7;
constexpr std::size_t NameLength = 8;

// "NET.NAME" loses everything up to the point, and with it the first character of the name, as hosts of this transport
// expect it.
const char* withoutNetwork(const char* name) {
    const char* point = std::strchr(name, '.');
    if (!point) return name;
    return point[1] ? point + 2 : point + 1;
}

void upperAscii(char* name) {
    for (std::string_view rest = name; !rest.empty(); rest.remove_prefix(text::characterBytes(rest))) {
        char& character = name[rest.data() - name];
        if (character >= 'a' && character <= 'z') character = static_cast<char>(character - 'a' + 'A');
    }
}

}  // namespace

const char* TransferFunctionSession::hostSystemDesignation() {
    std::fill(std::begin(systemDesignation_), std::end(systemDesignation_), ' ');
    char buffer[sizeof(systemDesignation_)] = {};
    services::GetStringSetting(settings_, zhst::setting::HostSystemName, buffer, sizeof(buffer));
    const char* name = connection_.transport().has(QualifiedName) ? withoutNetwork(buffer) : buffer;
    char shown[NameLength + 1];
    text::copyCut(name, shown, sizeof(shown));
    upperAscii(shown);

    char* next = std::copy_n("SYSTEM(", NameOffset, systemDesignation_);
    std::copy_n(shown, std::strlen(shown), next);
    next[NameLength] = ')';
    next[NameLength + 1] = '\0';
    return *name ? systemDesignation_ : nullptr;
}

}  // namespace provider
