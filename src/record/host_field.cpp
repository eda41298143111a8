#include "record/host_field.h"

#include <algorithm>
#include <string_view>

#include "bytes/byte_order.h"
#include "text/double_byte.h"

namespace record {

HostField::HostField(std::string_view bytes)
    : type_(bytes::at(bytes.data(), description::Type)),
      length_(isNumber() ? bytes::at(bytes.data(), description::Length)
                         : bytes::lowFirst16(bytes.data() + description::Length)),
      decimals_(isNumber()     ? bytes::at(bytes.data(), description::Decimals)
                : type_ == Hex ? 0
                               : -1),
      precision_(bytes::at(bytes.data(), description::Digits)) {
    const std::string_view padded = bytes.substr(description::Name, description::NameEnd - description::Name);
    const std::string_view name = text::trimmedEnd(padded.substr(0, padded.find('\0')));
    std::copy(name.begin(), name.end(), name_);
}

std::uint32_t HostField::nameLength() const {
    const std::string_view name = name_;
    std::size_t at = 0;
    while (at < name.size() && text::blankBytes(name.substr(at), text::userBlankPair()) == 0)
        at += text::characterBytes(name.substr(at));
    return static_cast<std::uint32_t>(at);
}

}  // namespace record
