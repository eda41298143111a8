#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "Z7XFRPCS/types.h"

namespace emulator {

// What a file object keeps of its file. It is read and written in large pieces. Bytes written are gathered here; what
// the operating system refuses then is told when they go out, at the latest when the file is closed. Every failure is
// told to the user once: at once by an opening, a read, a write or a close, by errorState() after the operations that
// have no answer of their own (the size, reading the whole file).
class PcFile {
public:
    explicit PcFile(ZhstSession session) : session_(session) {}
    ~PcFile() { close(); }
    PcFile(const PcFile&) = delete;
    PcFile& operator=(const PcFile&) = delete;

    void setName(const char* name);
    const std::string& name() const { return name_; }
    void setExistingFileAction(std::uint32_t action) { existingFileAction_ = action; }
    void offerNoAppend() { appendOffered_ = false; }

    bool openForReading();
    // An existing file is replaced (action 1), added to (2), or the user is asked (every other action).
    bool openForWriting();
    // Bytes read; 0 at the end, -1 after a failure.
    std::int32_t read(void* buffer, std::uint32_t maximum);
    bool write(const void* bytes, std::uint32_t length);
    void close();
    bool errorState();
    // Of the open file, or else of the file of this name.
    std::uint32_t size();
    void* readWhole();
    void setPosition(std::uint32_t position);
    std::uint32_t position();

private:
    enum class Choice { Replace, Append, Cancel };

    Choice askUser() const;
    bool openStream(const char* mode, const char* doing);
    void beginReading();
    bool flush();
    bool fail(const char* doing, const std::string& reason);
    bool failNow(const char* doing, const std::string& reason);
    void tell();
    std::string path() const;

    ZhstSession session_;
    std::string name_;
    std::uint32_t existingFileAction_ = 0;
    bool appendOffered_ = true;
    std::FILE* stream_ = nullptr;
    bool writing_ = false;
    std::vector<char> piece_;  // of a file read: the stream's buffer; of one written: the bytes that wait
    std::size_t pendingLength_ = 0;
    std::uint64_t place_ = 0;  // of a file read, while it has places
    bool hasPlaces_ = false;
    std::string failure_;  // empty: no error
    bool told_ = false;
};

}  // namespace emulator
