#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "emulator/emulator.h"
#include "host_layout.h"

// Numbers that a host has stored damaged, and refuses to deliver.

struct DamagedNumber {
    std::uint64_t record = 0;  // of the query, from 1
    std::string field;
    std::string bytes;  // hexadecimal pairs
};

struct DamagedNumbers {
    static constexpr std::size_t ToldInFull = 20;

    std::vector<DamagedNumber> first;
    std::uint64_t count = 0;    // of all
    std::uint64_t records = 0;  // that hold them
};

// Whether the host's bytes are no number of their field's type.
bool isDamaged(const HostColumn& column, std::string_view bytes);

// Asks the host once more, with the settings and clauses of a session, to deliver damaged numbers as they are, and
// looks at every record. Nothing is shown or written. To be called while the session has no client.
DamagedNumbers findDamagedNumbers(const TransferLibrary& library, ZhstSession session,
                                  const emulator::Clauses& clauses);

void print(std::ostream& out, const DamagedNumbers& found);
