#pragma once

#include <optional>

#include "command_line.h"
#include "emulator/emulator.h"
#include "pc_text.h"
#include "temporary_file.h"

// Standard input and output as the PC file of one transfer, "-". A person at a terminal reads and writes texts in the
// terminal's encoding; other programs get the bytes that a PC file would hold, unless the command line says otherwise.
// What is read is kept in a file, since a PC file is read more than once.
class StandardStreams {
public:
    // Throws std::runtime_error when the input cannot be kept, or has a character that the PC does not have.
    StandardStreams(const CommandLine& line, const PcText& pcText, ZhstSession session);
    ~StandardStreams();
    StandardStreams(const StandardStreams&) = delete;
    StandardStreams& operator=(const StandardStreams&) = delete;

private:
    void keepInput(const PcText* encoding);

    std::optional<TemporaryFile> kept_;
};
