#include "checking/host_text.h"

#include <algorithm>
#include <cstdio>

namespace checking {
namespace {

constexpr std::string_view WideBlank = "\xE3\x80\x80";  // U+3000
constexpr std::string_view HalfPair = "\xEF\xBF\xBD";   // U+FFFD, a blank to whoever receives it

std::string trimmed(std::string utf8) {
    for (;;) {
        if (utf8.ends_with(' ') || utf8.ends_with('\0'))
            utf8.pop_back();
        else if (utf8.ends_with(WideBlank) || utf8.ends_with(HalfPair))
            utf8.resize(utf8.size() - WideBlank.size());
        else
            return utf8;
    }
}

// Zero bytes at the end say as little as blanks.
std::string_view withoutEnd(std::string_view text) {
    constexpr std::string_view Nothing("\0 ", 2);
    return text.substr(0, text.find_last_not_of(Nothing) + 1);
}

std::size_t characterLength(std::string_view utf8) {
    std::size_t length = 1;
    while (length < utf8.size() && (static_cast<std::uint8_t>(utf8[length]) & 0xC0) == 0x80) ++length;
    return length;
}

// Null when it is none. Page 43 is played as page 37.
const codepages::CodePage* pageOf(std::int32_t hostCodePage) {
    const codepages::CodePage* page =
        codepages::find(hostCodePage == 43 ? 37 : static_cast<std::uint32_t>(hostCodePage));
    return page && page->isHost() ? page : nullptr;
}

}  // namespace

bool HostText::canRead(std::int32_t hostCodePage) { return pageOf(hostCodePage) != nullptr; }

HostText::HostText(const PcFileForm& form) : form_(form), hostPage_(pageOf(form.hostCodePage)) {
    isSingle_ = !hostPage_->isDoubleByte() && !form.isUtf8();
    const auto ansi = codepages::hostToPc(*hostPage_, *form.pcPage);
    std::copy(ansi.begin(), ansi.end(), toPc_.begin());
    // A receive writes a blank for a zero byte.
    toPc_[0] = ' ';
    toHost_ = codepages::pcToHost(*form.pcPage, *hostPage_);
    const codepages::CodePage* oem = codepages::find(form.pc.oemCodePage);
    if (!form.inOem || !oem) return;
    const codepages::PcTables tables = codepages::pcTables(*form.pcPage, *oem);
    for (char& byte : toPc_) byte = static_cast<char>(tables.ansiToOem[static_cast<std::uint8_t>(byte)]);
    fromOem_ = tables.oemToAnsi;
    const auto ofAnsi = toHost_;
    for (std::size_t byte = 0; byte < toHost_.size(); ++byte) toHost_[byte] = ofAnsi[fromOem_[byte]];
}

bool HostText::isSameSingle(std::string_view text, std::string_view host) const {
    const std::size_t common = std::min(text.size(), host.size());
    std::size_t at = 0;
    while (at < common && toPc_[static_cast<std::uint8_t>(host[at])] == text[at]) ++at;
    const auto isBlank = [](char byte) { return byte == ' '; };
    if (!std::all_of(text.begin() + static_cast<std::ptrdiff_t>(at), text.end(), isBlank)) return false;
    for (; at < host.size(); ++at)
        if (toPc_[static_cast<std::uint8_t>(host[at])] != ' ') return false;
    return true;
}

bool HostText::isSame(std::string_view text, std::string_view host) const {
    text = withoutEnd(text);
    if (isSingle_) return isSameSingle(text, host);
    return text.find('\0') == std::string_view::npos && isSameDouble(text, host);
}

bool HostText::isSameDouble(std::string_view text, std::string_view host) const {
    // Characters that stand for one another in the two pages come out as one.
    if (form_.isUtf8()) return trimmed(std::string(text)) == read(host);
    return form_.pcPage->encode(trimmed(toUtf8(text))) == form_.pcPage->encode(read(host));
}

// Zero bytes at the end of a host text stand for blanks.
bool HostText::isWholeSingle(std::string_view text, std::string_view host) const {
    std::size_t at = 0;
    const std::size_t common = std::min(text.size(), host.size());
    while (at < common && toHost_[static_cast<std::uint8_t>(text[at])] == static_cast<std::uint8_t>(host[at])) ++at;
    const auto isBlank = [this](char byte) { return toPc_[static_cast<std::uint8_t>(byte)] == ' '; };
    return text.find_first_not_of(' ', at) == std::string_view::npos &&
           std::all_of(host.begin() + static_cast<std::ptrdiff_t>(at), host.end(), isBlank);
}

bool HostText::isWhole(std::string_view text, std::string_view host) const {
    if (isSingle_) return isWholeSingle(text, host);
    return isSameDouble(text, host) && (form_.isUtf8() || missingCharacter(host).empty());
}

std::string HostText::read(std::string_view host) const { return trimmed(hostPage_->decode(host)); }

std::string HostText::toUtf8(std::string_view text) const {
    if (form_.isUtf8()) return std::string(text);
    if (!form_.inOem || !isSingle_) return form_.pcPage->decode(text);
    std::string ansi(text);
    for (char& byte : ansi) byte = static_cast<char>(fromOem_[static_cast<std::uint8_t>(byte)]);
    return form_.pcPage->decode(ansi);
}

std::string HostText::lostCharacter(std::string_view text, std::string_view host) const {
    const std::string wanted = toUtf8(text), stored = hostPage_->decode(host);
    std::string_view left = wanted, right = stored;
    while (!left.empty() && !right.empty()) {
        const std::string_view character = left.substr(0, characterLength(left));
        if (form_.pcPage->encode(character) != form_.pcPage->encode(right.substr(0, characterLength(right))))
            return std::string(character);
        left.remove_prefix(character.size());
        right.remove_prefix(characterLength(right));
    }
    return {};
}

std::string HostText::missingCharacter(std::string_view host) const {
    const std::string text = hostPage_->decode(host);
    for (std::string_view left = text; !left.empty();) {
        const std::string_view character = left.substr(0, characterLength(left));
        bool isLossy = false;
        const std::string ignored = form_.pcPage->encode(character, &isLossy);
        if (isLossy) return std::string(character);
        left.remove_prefix(character.size());
    }
    return {};
}

std::string codePoint(std::string_view utf8) {
    if (utf8.empty()) return {};
    const auto lead = static_cast<std::uint8_t>(utf8[0]);
    char32_t character = lead < 0x80 ? lead : lead & (lead < 0xE0 ? 0x1F : lead < 0xF0 ? 0x0F : 0x07);
    for (const char byte : utf8.substr(1)) character = character << 6 | (static_cast<std::uint8_t>(byte) & 0x3F);
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "U+%04X", static_cast<unsigned>(character));
    return buffer;
}

}  // namespace checking
