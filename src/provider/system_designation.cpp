#include "provider/system_designation.h"

#include <algorithm>
#include <cstring>

#include "Z7XFRPCS/settings.h"
#include "text/double_byte.h"

namespace provider {
namespace {

constexpr std::size_t NameOffset = 7;
constexpr std::size_t NameLength = 8;

// Everything up to the point is lost, and with it the first character of the name: hosts of this transport expect that.
const char* withoutNetwork(const char* name) {
    const char* point = std::strchr(name, '.');
    if (!point) return name;
    return point[1] ? point + 2 : point + 1;
}

// A host's name knows no other letters. Trail bytes that look like them are left alone.
void upperAscii(char* name) {
    for (std::string_view rest = name; !rest.empty(); rest.remove_prefix(text::characterBytes(rest))) {
        char& character = name[rest.data() - name];
        if (character >= 'a' && character <= 'z') character = static_cast<char>(character - 'a' + 'A');
    }
}

}  // namespace

const char* SystemDesignation::make(services::SettingsHandle settings, bool mayBeQualified) {
    char setting[Capacity];
    setting[0] = '\0';
    services::GetStringSetting(settings, zhst::setting::HostSystemName, setting, sizeof(setting));
    if (mayBeQualified != mayBeQualified_ || std::strcmp(setting, setting_) != 0) {
        text::copyCut(setting, setting_, sizeof(setting_));
        mayBeQualified_ = mayBeQualified;
        compose(mayBeQualified ? withoutNetwork(setting) : setting);
    }
    return isNamed_ ? text_ : nullptr;
}

void SystemDesignation::compose(const char* name) {
    // The whole area is blank first, and so are the positions that a shorter name leaves.
    std::fill(std::begin(text_), std::end(text_), ' ');
    isNamed_ = *name != '\0';
    char shown[NameLength + 1];
    text::copyCut(name, shown, sizeof(shown));
    upperAscii(shown);
    char* next = std::copy_n("SYSTEM(", NameOffset, text_);
    std::copy_n(shown, std::strlen(shown), next);
    next[NameLength] = ')';
    next[NameLength + 1] = '\0';
}

}  // namespace provider
