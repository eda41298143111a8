#include "emulator/catalogue.h"

// The sentences of return codes. A box gives them at most 99 characters.

namespace emulator::catalogue {
namespace {

constexpr std::uint32_t TransferTexts = 7;
constexpr std::uint32_t ProviderErrors = 22;
constexpr std::uint32_t RoutedProviderErrors = 45;

#define PROVIDER_ERROR(code, sentence) \
    {ProviderErrors, code, "", sentence}, { RoutedProviderErrors, code, "", sentence }

// The first 49 stand in the order of their codes, which are named beside them.
constexpr Text errorRows[] = {
    {TransferTexts, 500, "", "The provider does not support this function."},                       // 0103
    {TransferTexts, 501, "", "The host ended the conversation before the transfer was complete."},  // 0300
    {TransferTexts, 502, "", "The host did not accept the conversation."},                          // 0302
    {TransferTexts, 503, "", "The file or member to be written already exists on the host."},       // 0400
    {TransferTexts, 504, "", "There are no more records."},                                         // 1FFF
    {TransferTexts, 505, "", "The transfer function was called with an unknown function."},         // 2000
    {TransferTexts, 506, "", "The length of the request or record is not valid."},                  // 2001
    {TransferTexts, 507, "", "No request is open that this step could belong to."},                 // 2002
    {TransferTexts, 508, "", "The conversation with the host is not known any more."},              // 2003
    {TransferTexts, 509, "", "The request is longer than the transfer function can take."},         // 2004
    {TransferTexts, 510, "", "The buffer is too small for what the host sent."},                    // 2005
    {TransferTexts, 511, "", "The name of the host system is not valid."},                          // 2007
    {TransferTexts, 512, "", "The host system of that name is not configured."},                    // 2008
    {TransferTexts, 513, "", "No connection to the host system could be made."},                    // 2009
    {TransferTexts, 514, "", "The user is not authorized to use the transfer function."},           // 2010
    {TransferTexts, 515, "", "The user name or the password was not accepted by the host."},        // 2011
    {TransferTexts, 516, "", "The password has expired; change it on the host."},                   // 2012
    {TransferTexts, 517, "", "The transfer program of the host could not be started."},             // 2013
    {TransferTexts, 518, "", "The transfer program of the host ended unexpectedly."},               // 2019
    {TransferTexts, 519, "", "The transfer function ran out of memory."},                           // 2020
    {TransferTexts, 520, "", "The transfer function has too many conversations open."},             // 2021
    {TransferTexts, 521, "", "The steps of the transfer came in the wrong order."},                 // 2022
    {TransferTexts, 522, "", "The field descriptions have been read already."},                     // 2023
    {TransferTexts, 523, "", "The transfer has been interrupted from the host side."},              // 2024
    {TransferTexts, 524, "", "The data of the host came in a form that is not understood."},        // 2025
    {TransferTexts, 525, "", "The record does not fit the host file."},                             // 2026
    {TransferTexts, 526, "", "The host file is full."},                                             // 2027
    {TransferTexts, 527, "", "The host file is in use by another job."},                            // 2028
    {TransferTexts, 528, "", "The transfer function of the host is of another version."},           // 2029
    {TransferTexts, 529, "", "An internal error occurred in the transfer function."},               // 2030
    {TransferTexts, 530, "", "The host refused the request."},                                      // 3000
    {TransferTexts, 531, "", "The host refused the data."},                                         // 3100
    {TransferTexts, 532, "", "The communications router is not active."},                           // 5042
    {TransferTexts, 533, "", "The line to the host has failed."},                                   // 5048
    {TransferTexts, 534, "", "The session with the host was ended."},                               // 5050
    {TransferTexts, 535, "", "The host did not answer in time."},                                   // 5052
    {TransferTexts, 536, "", "All sessions with the host are in use."},                             // 5054
    {TransferTexts, 537, "", "The mode of the session is not known to the host."},                  // 5056
    {TransferTexts, 538, "", "The device description of this PC is not known to the host."},        // 5058
    {TransferTexts, 539, "", "The host rejected the security information of this PC."},             // 5060
    {TransferTexts, 540, "", "The host is shutting down."},                                         // 5062
    {TransferTexts, 541, "", "The adapter or modem of this PC reported an error."},                 // 5064
    {TransferTexts, 542, "", "The conversation was ended by the host program."},                    // 5066
    {TransferTexts, 543, "", "The conversation was ended because of a time limit of the host."},    // 5067
    {TransferTexts, 544, "", "The router could not allocate a conversation; try again later."},     // 5071
    {TransferTexts, 545, "", "The network connection was lost."},                                   // 5310
    {TransferTexts, 546, "", "The network connection could not be established."},                   // 5311
    {TransferTexts, 547, "", "The licence of the connection does not allow another transfer."},     // 5400
    {TransferTexts, 548, "", "The transfer function has not been started."},                        // 9999
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
