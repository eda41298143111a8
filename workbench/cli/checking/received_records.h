#pragma once

#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>

#include "temporary_file.h"

namespace checking {

// The records of a receive, as the host gave them and as they went to the PC file, kept in a temporary file until the
// PC file is read back.
class ReceivedRecords {
public:
    // Throws std::runtime_error when there is no folder for temporary files.
    ReceivedRecords();

    void keep(std::string_view host, std::string_view pc);
    // What went to the PC file behind the last record.
    void keepTrailer(std::string_view pc) { pcBytes_ += pc.size(); }

    std::uint64_t pcBytes() const { return pcBytes_; }  // of all that went to the PC file

    // From the first record on. Throws std::runtime_error when some could not be kept.
    void rewind();
    // False behind the last one.
    bool next();
    const std::string& host() const { return host_; }
    const std::string& pc() const { return pc_; }

private:
    bool read(std::string& bytes);
    void write(std::string_view bytes);

    TemporaryFile place_;
    std::fstream file_;
    std::uint64_t pcBytes_ = 0;
    std::string host_, pc_;
};

}  // namespace checking
