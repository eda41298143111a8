#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "Z7XFRPCS/types.h"
#include "emulator/emulator.h"
#include "emulator/file_trouble.h"
#include "emulator/written_file.h"

namespace emulator {

void resetReadingStart();

// What a file object keeps of its file, which is read and written in large pieces. What the operating system refuses is
// told to the user once: at once by an opening, a read, a write or a close, by errorState() after the operations that
// have no answer of their own (the size, reading the whole file).
class PcFile {
public:
    explicit PcFile(ZhstSession session) : session_(session), trouble_(std::make_shared<FileTrouble>(session)) {}
    ~PcFile() { close(); }
    PcFile(const PcFile&) = delete;
    PcFile& operator=(const PcFile&) = delete;

    void setName(const char* name);
    const std::string& name() const { return name_; }
    void setExistingFileAction(std::uint32_t action) { existingFileAction_ = action; }
    // 11 for the file that a transfer is about, others for those that go with it.
    void setOpenFlags(std::uint32_t flags) { isTransferred_ = flags == 11; }
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

    Choice choose() const;
    Choice askUser() const;
    bool beginReading();
    std::size_t takeAgain(char* buffer, std::size_t maximum);
    bool goBackInPipe(std::uint64_t position);
    std::size_t takeLead(char* buffer, std::size_t maximum) const;
    bool seek(std::uint64_t position);
    bool fail(const char* doing, int error) { return trouble_->tell(name_, doing, systemReason(error)); }
    std::filesystem::path path() const;

    ZhstSession session_;
    std::string name_;
    std::uint32_t existingFileAction_ = 0;
    bool appendOffered_ = true;
    bool isTransferred_ = false;
    std::shared_ptr<FileTrouble> trouble_;
    std::unique_ptr<WrittenFile> written_;
    std::FILE* read_ = nullptr;
    std::vector<char> piece_;  // the buffer of the stream that is read
    ReadingStart start_;       // of that
    std::uint64_t place_ = 0;  // of that
    bool hasPlaces_ = false;   // a pipe has none that can be gone to
    std::string lastRead_;     // of a pipe
    std::string again_;        // what its next read begins with
};

}  // namespace emulator
