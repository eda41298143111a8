#include "checking/received_records.h"

#include <stdexcept>

namespace checking {

// Each text stands behind its length, in the form of this machine.
using Length = std::uint32_t;

ReceivedRecords::ReceivedRecords() : file_(place_.path(), std::ios::binary | std::ios::in | std::ios::out) {}

void ReceivedRecords::write(std::string_view bytes) {
    const auto length = static_cast<Length>(bytes.size());
    file_.write(reinterpret_cast<const char*>(&length), sizeof length);
    file_.write(bytes.data(), static_cast<std::streamsize>(length));
}

bool ReceivedRecords::read(std::string& bytes) {
    Length length = 0;
    if (!file_.read(reinterpret_cast<char*>(&length), sizeof length)) return false;
    bytes.resize(length);
    return static_cast<bool>(file_.read(bytes.data(), static_cast<std::streamsize>(length)));
}

void ReceivedRecords::keep(std::string_view host, std::string_view pc) {
    write(host);
    write(pc);
    pcBytes_ += pc.size();
}

void ReceivedRecords::rewind() {
    file_.flush();
    if (!file_) throw std::runtime_error("the records could not be kept in " + place_.path().string());
    file_.seekg(0);
}

bool ReceivedRecords::next() { return read(host_) && read(pc_); }

}  // namespace checking
