#pragma once

// On this platform there is one calling convention and every address has the width of the machine.
#define ZHST_CALL
#define ZHST_EXPORT __attribute__((visibility("default")))
