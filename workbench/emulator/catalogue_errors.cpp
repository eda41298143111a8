#include "emulator/catalogue.h"
#include "emulator/sentences.h"

// The sentences of return codes. A box gives them at most 99 characters.

namespace emulator::catalogue {
namespace {

constexpr Sentence transferSentences[] = {
    {0x0103, "The provider does not support this function."},
    {0x0300, "The host ended the conversation before the transfer was complete."},
    {0x0302, "The host did not accept the conversation."},
    {0x0400, "The file or member to be written already exists on the host."},
    {0x1FFF, "There are no more records."},
    {0x2000, "The transfer function was called with an unknown function."},
    {0x2001, "The length of the request or record is not valid."},
    {0x2002, "No request is open that this step could belong to."},
    {0x2003, "The conversation with the host is not known any more."},
    {0x2004, "The request is longer than the transfer function can take."},
    {0x2005, "The buffer is too small for what the host sent."},
    {0x2007, "The name of the host system is not valid."},
    {0x2008, "The host system of that name is not configured."},
    {0x2009, "No connection to the host system could be made."},
    {0x2010, "The user is not authorized to use the transfer function."},
    {0x2011, "The user name or the password was not accepted by the host."},
    {0x2012, "The password has expired; change it on the host."},
    {0x2013, "The transfer program of the host could not be started."},
    {0x2019, "The transfer program of the host ended unexpectedly."},
    {0x2020, "The transfer function ran out of memory."},
    {0x2021, "The transfer function has too many conversations open."},
    {0x2022, "The steps of the transfer came in the wrong order."},
    {0x2023, "The field descriptions have been read already."},
    {0x2024, "The transfer has been interrupted from the host side."},
    {0x2025, "The data of the host came in a form that is not understood."},
    {0x2026, "The record does not fit the host file."},
    {0x2027, "The host file is full."},
    {0x2028, "The host file is in use by another job."},
    {0x2029, "The transfer function of the host is of another version."},
    {0x2030, "An internal error occurred in the transfer function."},
    {0x3000, "The host refused the request."},
    {0x3100, "The host refused the data."},
    {0x5042, "The communications router is not active."},
    {0x5048, "The line to the host has failed."},
    {0x5050, "The session with the host was ended."},
    {0x5052, "The host did not answer in time."},
    {0x5054, "All sessions with the host are in use."},
    {0x5056, "The mode of the session is not known to the host."},
    {0x5058, "The device description of this PC is not known to the host."},
    {0x5060, "The host rejected the security information of this PC."},
    {0x5062, "The host is shutting down."},
    {0x5064, "The adapter or modem of this PC reported an error."},
    {0x5066, "The conversation was ended by the host program."},
    {0x5067, "The conversation was ended because of a time limit of the host."},
    {0x5071, "The router could not allocate a conversation; try again later."},
    {0x5310, "The network connection was lost."},
    {0x5311, "The network connection could not be established."},
    {0x5400, "The licence of the connection does not allow another transfer."},
    {0x9999, "The transfer function has not been started."},
};

constexpr Sentence providerSentences[] = {
    {0x0005, "Access to the host was denied."},
    {0x0006, "The connection to the host is no longer valid."},
    {0x0007, "The memory of the provider is damaged; restart the session."},
    {0x0016, "The provider did not understand the request."},
    {0x001C, "The host has no room left for the data."},
    {0x0032, "The host does not support this request."},
    {0x0033, "The host system cannot be reached."},
    {0x0037, "The host system is no longer available."},
    {0x0048, "The connection to the host is paused."},
    {0x004B, "The host did not accept the user name or the password."},
    {0x0051, "The connection to the host is already in use."},
    {0x0087, "The path of the host file is not valid."},
    {0x00D4, "The host file is locked by another job."},
    {0x00D5, "The host member is not available."},
    {0x00D7, "The host ended the transfer because of a nested request."},
    {0x00D8, "The host program does not fit this provider."},
    {0x00EC, "The conversation with the host was broken."},
    {0x00F5, "The provider reports an unknown state of the host."},
};

// The same codes where the AS/400 client is the router.
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
#define TRANSFER_ROWS(place, code)                                           \
    {ZhstTransferTable, place, "", "", sentenceOf(transferSentences, code)}, \
        {ZhstTransferTable, code, "", "", sentenceOf(transferSentences, code)},
    ZHST_TRANSFER_CODES(TRANSFER_ROWS)
#undef TRANSFER_ROWS
#define PROVIDER_ROWS(code, help)                                           \
    {ZhstProviderTable, code, "", "", sentenceOf(providerSentences, code)}, \
        {ZhstRoutedProviderTable, code, "", "", sentenceOf(routedProviderSentences, code)},
        ZHST_PROVIDER_CODES(PROVIDER_ROWS)
#undef PROVIDER_ROWS
};
static_assert(std::size(errorRows) ==
              2 * std::size(transferSentences) + std::size(providerSentences) + std::size(routedProviderSentences));

}  // namespace

std::span<const Text> errors() { return errorRows; }

}  // namespace emulator::catalogue
