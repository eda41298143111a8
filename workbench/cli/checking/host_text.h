#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "checking/pc_file_form.h"
#include "codepages.h"

namespace checking {

// Texts of a host record, read back from the host code page.
class HostText {
public:
    // The host code page of the form is one that can be read.
    explicit HostText(const PcFileForm& form);
    static bool canRead(std::int32_t hostCodePage);

    // Whether each byte of a text is a character, on both systems. Then these hold, too.
    bool isOfBytes() const { return isSingle_; }
    // A zero byte is one.
    char toPc(std::uint8_t host) const { return host == 0 ? '\0' : toPc_[host]; }
    // Whether a character that is received and sent is the same byte again.
    bool comesBack(std::uint8_t host) const { return toHost_[static_cast<std::uint8_t>(toPc(host))] == host; }

    // Whether host bytes say what the text says, blanks and zero bytes at its end apart. `text` is in the PC's code
    // page, quotes undoubled.
    bool isSame(std::string_view text, std::string_view host) const;
    // Whether a PC text that was received is all that the host bytes say, so that it would be the same bytes again;
    // blanks at its end apart.
    bool isWhole(std::string_view text, std::string_view host) const;
    // What a receive would give, in UTF-8 and without the blanks at its end.
    std::string read(std::string_view host) const;
    // A PC text in UTF-8.
    std::string toUtf8(std::string_view text) const;
    // The first character of a text that host bytes do not give back, in UTF-8; empty when there is none.
    std::string lostCharacter(std::string_view text, std::string_view host) const;
    // The first character of host bytes that the PC's code page does not have, in UTF-8; empty when it has all.
    std::string missingCharacter(std::string_view host) const;

private:
    bool isSameSingle(std::string_view text, std::string_view host) const;
    bool isSameDouble(std::string_view text, std::string_view host) const;
    bool isWholeSingle(std::string_view text, std::string_view host) const;

    const PcFileForm& form_;
    const codepages::CodePage* hostPage_;
    bool isSingle_;
    std::array<char, 256> toPc_{};  // single bytes
    std::array<std::uint8_t, 256> fromOem_{};
    std::array<std::uint8_t, 256> toHost_{};  // of the bytes of PC texts
};

// The number of a character as people write it: U+20AC.
std::string codePoint(std::string_view utf8);

}  // namespace checking
