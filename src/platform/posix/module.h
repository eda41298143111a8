#pragma once

#include <cstdint>

// What stands for a library's own module on this platform: the string resources that a Windows library carries in its
// file. The library hands the address of such a record wherever its module handle is wanted.
struct PosixModule {
    struct Row {
        std::uint32_t id;
        const char* text;  // zero-terminated
    };
    const Row* rows;
    std::uint32_t count;
};
