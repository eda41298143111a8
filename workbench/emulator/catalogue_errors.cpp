#include "emulator/catalogue.h"
#include "emulator/sentences.h"

// The texts of return codes: their meanings, as the list has them, but for those with a second wording. A box gives
// them at most 99 characters.

namespace emulator::catalogue {
namespace {

// The codes of the emulator's own providers where the AS/400 client is the router.
constexpr Sentence routedProviderSentences[] = {
    {0x0005, "The AS/400 client was denied access to the host."},
    {0x0006, "The AS/400 client has lost its connection to the host."},
    {0x0007, "The memory of the AS/400 client is damaged; restart it."},
    {0x0016, "The AS/400 client did not understand the request."},
    {0x001C, "The AS/400 client found no room for the data on the host."},
    {0x0032, "The AS/400 client does not support this request."},
    {0x0033, "The AS/400 client cannot reach the host system."},
    {0x0037, "The host system is no longer available to the AS/400 client."},
    {0x0048, "The AS/400 client has paused its connection to the host."},
    {0x004B, "The AS/400 client could not sign on: user name or password were not accepted."},
    {0x0051, "The connection of the AS/400 client is already in use."},
    {0x0087, "The path of the host file is not valid for the AS/400 client."},
    {0x00D4, "The AS/400 client found the host file locked by another job."},
    {0x00D5, "The host member is not available to the AS/400 client."},
    {0x00D7, "The AS/400 client ended the transfer because of a nested request."},
    {0x00D8, "The host program does not fit the AS/400 client."},
    {0x00EC, "The conversation of the AS/400 client with the host was broken."},
    {0x00F5, "The AS/400 client reports an unknown state of the host."},
};

// Twice each: a transfer function's code by its place and, for the AS/400 client's provider, by the code itself; a
// provider's code in the table of either router, in other words, so that a box shows which table was asked.
constexpr Text errorRows[] = {
#define TRANSFER_ROWS(place, code, name, speaker, meaning) \
    {ZhstTransferTable, place, "", "", meaning}, {ZhstTransferTable, code, "", "", meaning},
    ZHST_TRANSFER_CODES(TRANSFER_ROWS)
#undef TRANSFER_ROWS
#define PROVIDER_ROWS(code, help, name, speaker, meaning) \
    {ZhstProviderTable, code, "", "", meaning},           \
        {ZhstRoutedProviderTable, code, "", "", sentenceOf(routedProviderSentences, code)},
        ZHST_PROVIDER_CODES(PROVIDER_ROWS)
#undef PROVIDER_ROWS
};

}  // namespace

std::span<const Text> errors() { return errorRows; }

}  // namespace emulator::catalogue
