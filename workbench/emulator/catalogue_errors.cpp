#include "emulator/catalogue.h"

// The sentences of return codes. A box gives them at most 99 characters.

namespace emulator::catalogue {
namespace {

constexpr std::uint32_t TransferTexts = 7;
constexpr std::uint32_t ProviderErrors = 22;
constexpr std::uint32_t RoutedProviderErrors = 45;

// By place in the list, and by the code itself, which is what the AS/400 client's provider is asked for.
#define TRANSFER_ERROR(index, code, sentence) \
    {TransferTexts, index, "", sentence}, { TransferTexts, code, "", sentence }
#define PROVIDER_ERROR(code, sentence) \
    {ProviderErrors, code, "", sentence}, { RoutedProviderErrors, code, "", sentence }

constexpr Text errorRows[] = {
    TRANSFER_ERROR(500, 0x0103, "The provider does not support this function."),
    TRANSFER_ERROR(501, 0x0300, "The host ended the conversation before the transfer was complete."),
    TRANSFER_ERROR(502, 0x0302, "The host did not accept the conversation."),
    TRANSFER_ERROR(503, 0x0400, "The file or member to be written already exists on the host."),
    TRANSFER_ERROR(504, 0x1FFF, "There are no more records."),
    TRANSFER_ERROR(505, 0x2000, "The transfer function was called with an unknown function."),
    TRANSFER_ERROR(506, 0x2001, "The length of the request or record is not valid."),
    TRANSFER_ERROR(507, 0x2002, "No request is open that this step could belong to."),
    TRANSFER_ERROR(508, 0x2003, "The conversation with the host is not known any more."),
    TRANSFER_ERROR(509, 0x2004, "The request is longer than the transfer function can take."),
    TRANSFER_ERROR(510, 0x2005, "The buffer is too small for what the host sent."),
    TRANSFER_ERROR(511, 0x2007, "The name of the host system is not valid."),
    TRANSFER_ERROR(512, 0x2008, "The host system of that name is not configured."),
    TRANSFER_ERROR(513, 0x2009, "No connection to the host system could be made."),
    TRANSFER_ERROR(514, 0x2010, "The user is not authorized to use the transfer function."),
    TRANSFER_ERROR(515, 0x2011, "The user name or the password was not accepted by the host."),
    TRANSFER_ERROR(516, 0x2012, "The password has expired; change it on the host."),
    TRANSFER_ERROR(517, 0x2013, "The transfer program of the host could not be started."),
    TRANSFER_ERROR(518, 0x2019, "The transfer program of the host ended unexpectedly."),
    TRANSFER_ERROR(519, 0x2020, "The transfer function ran out of memory."),
    TRANSFER_ERROR(520, 0x2021, "The transfer function has too many conversations open."),
    TRANSFER_ERROR(521, 0x2022, "The steps of the transfer came in the wrong order."),
    TRANSFER_ERROR(522, 0x2023, "The field descriptions have been read already."),
    TRANSFER_ERROR(523, 0x2024, "The transfer has been interrupted from the host side."),
    TRANSFER_ERROR(524, 0x2025, "The data of the host came in a form that is not understood."),
    TRANSFER_ERROR(525, 0x2026, "The record does not fit the host file."),
    TRANSFER_ERROR(526, 0x2027, "The host file is full."),
    TRANSFER_ERROR(527, 0x2028, "The host file is in use by another job."),
    TRANSFER_ERROR(528, 0x2029, "The transfer function of the host is of another version."),
    TRANSFER_ERROR(529, 0x2030, "An internal error occurred in the transfer function."),
    TRANSFER_ERROR(530, 0x3000, "The host refused the request."),
    TRANSFER_ERROR(531, 0x3100, "The host refused the data."),
    TRANSFER_ERROR(532, 0x5042, "The communications router is not active."),
    TRANSFER_ERROR(533, 0x5048, "The line to the host has failed."),
    TRANSFER_ERROR(534, 0x5050, "The session with the host was ended."),
    TRANSFER_ERROR(535, 0x5052, "The host did not answer in time."),
    TRANSFER_ERROR(536, 0x5054, "All sessions with the host are in use."),
    TRANSFER_ERROR(537, 0x5056, "The mode of the session is not known to the host."),
    TRANSFER_ERROR(538, 0x5058, "The device description of this PC is not known to the host."),
    TRANSFER_ERROR(539, 0x5060, "The host rejected the security information of this PC."),
    TRANSFER_ERROR(540, 0x5062, "The host is shutting down."),
    TRANSFER_ERROR(541, 0x5064, "The adapter or modem of this PC reported an error."),
    TRANSFER_ERROR(542, 0x5066, "The conversation was ended by the host program."),
    TRANSFER_ERROR(543, 0x5067, "The conversation was ended because of a time limit of the host."),
    TRANSFER_ERROR(544, 0x5071, "The router could not allocate a conversation; try again later."),
    TRANSFER_ERROR(545, 0x5310, "The network connection was lost."),
    TRANSFER_ERROR(546, 0x5311, "The network connection could not be established."),
    TRANSFER_ERROR(547, 0x5400, "The licence of the connection does not allow another transfer."),
    TRANSFER_ERROR(548, 0x9999, "The transfer function has not been started."),
    PROVIDER_ERROR(0x05, "Access to the host was denied."),
    PROVIDER_ERROR(0x06, "The connection to the host is no longer valid."),
    PROVIDER_ERROR(0x07, "The memory of the provider is damaged; restart the session."),
    PROVIDER_ERROR(0x16, "The provider did not understand the request."),
    PROVIDER_ERROR(0x1C, "The host has no room left for the data."),
    PROVIDER_ERROR(0x32, "The host does not support this request."),
    PROVIDER_ERROR(0x33, "The host system cannot be reached."),
    PROVIDER_ERROR(0x37, "The host system is no longer available."),
    PROVIDER_ERROR(0x48, "The connection to the host is paused."),
    PROVIDER_ERROR(0x4B, "The host did not accept the user name or the password."),
    PROVIDER_ERROR(0x51, "The connection to the host is already in use."),
    PROVIDER_ERROR(0x87, "The path of the host file is not valid."),
    PROVIDER_ERROR(0xD4, "The host file is locked by another job."),
    PROVIDER_ERROR(0xD5, "The host member is not available."),
    PROVIDER_ERROR(0xD7, "The host ended the transfer because of a nested request."),
    PROVIDER_ERROR(0xD8, "The host program does not fit this provider."),
    PROVIDER_ERROR(0xEC, "The conversation with the host was broken."),
    PROVIDER_ERROR(0xF5, "The provider reports an unknown state of the host."),
    PROVIDER_ERROR(202, "It is a replacement that serves this program alone; install the router of the host system."),
};

#undef PROVIDER_ERROR

}  // namespace

std::span<const Text> errors() { return errorRows; }

}  // namespace emulator::catalogue
