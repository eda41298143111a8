#include "return_codes.h"

#include <array>
#include <cstdio>

#include "Z7XFRPCS/messages.h"
#include "Z7XFRPCS/provider.h"

namespace return_codes {
namespace {

struct CodedRow {
    std::uint32_t code;
    Row row;
};

constexpr CodedRow rows[] = {
#define TRANSFER_CODE(place, code, name, speaker, meaning) {code, {#name, Speaker::speaker, meaning}},
    ZHST_TRANSFER_CODES(TRANSFER_CODE)
#undef TRANSFER_CODE
#define PROVIDER_CODE(code, help, name, speaker, meaning) {code, {#name, Speaker::speaker, meaning}},
        ZHST_PROVIDER_CODES(PROVIDER_CODE)
#undef PROVIDER_CODE
            {TF_FAILED_SILENTLY, {"FailedSilently", Speaker::Provider, "It failed, and told the user itself."}},
};

const char* nameOf(Speaker speaker) {
    switch (speaker) {
        case Speaker::Host:
            return "the host";
        case Speaker::Connection:
            return "the connection";
        default:
            return "the provider";
    }
}

std::string hexadecimal(std::uint32_t code) {
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "0x%04X", code);
    return text.data();
}

}  // namespace

const Row* find(std::uint32_t code) {
    for (const CodedRow& row : rows)
        if (row.code == code) return &row.row;
    return nullptr;
}

std::string inWords(std::uint32_t code, std::uint32_t detail) {
    const Row* row = find(code);
    std::string text = hexadecimal(code);
    if (detail != 0) text += " with detail " + hexadecimal(detail);
    if (row == nullptr) return text + ", which is in no list; whoever made the provider knows it";
    return text + " " + row->name + ", said by " + nameOf(row->speaker) + ": " + row->meaning;
}

}  // namespace return_codes
