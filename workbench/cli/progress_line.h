#pragma once

#include <cstdint>
#include <string>

// How far a transfer is.
struct Progress {
    enum class Unit { Records, Bytes };

    std::uint64_t done = 0;
    std::uint64_t total = 0;  // 0: not known
    Unit unit = Unit::Records;
    double seconds = 0;  // since it began, without the time that a person was asked
};

// "[=====     ] 50%  1,000 of 2,000 records  500/s  0:02 left", or as much of it as there is room for: less than
// `columns` characters, since a line that fills the terminal is broken by some.
std::string progressLine(const Progress& progress, int columns);

// 12,345
std::string grouped(std::uint64_t number);
// "1 record", "12,345 bytes"
std::string counted(std::uint64_t number, const std::string& thing);
