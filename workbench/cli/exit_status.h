#pragma once

#include <string>

#include "emulator/emulator.h"

// How the program ends, as a script reads it: number, name, meaning. Help and code take them from here.
#define Z7X_EXIT_STATUSES(X)                                                                \
    X(0, Complete, "all that was asked for is done")                                        \
    X(1, Failed, "another failure: the provider, the connection, the program")              \
    X(2, Usage, "wrong usage: options or settings that do not go together; nothing begun")  \
    X(3, HostRefused, "refused by the host")                                                \
    X(4, LocalFile, "a file of this PC could not be read or written")                       \
    X(5, BadData, "data that cannot be converted, or that the host does not take as it is") \
    X(130, Cancelled, "cancelled, or not confirmed")

enum ExitStatus {
#define Z7X_EXIT_STATUS(number, name, meaning) Exit##name = number,
    Z7X_EXIT_STATUSES(Z7X_EXIT_STATUS)
#undef Z7X_EXIT_STATUS
};

// A line each, for --help.
std::string exitStatusHelp();

// The status of a transfer that ends with this message. `returnCode` is the provider's last refusal, 0 when there was
// none.
ExitStatus statusOf(const emulator::MessageBox& box, std::uint32_t returnCode);
