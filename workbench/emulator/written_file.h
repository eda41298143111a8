#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "emulator/file_trouble.h"

namespace emulator {

// A PC file that is being written. Bytes are gathered into large pieces. The file stays what it was until the first
// piece goes out, and also when that one cannot be written; it is then replaced in its place, so that its owner, its
// mode and the links to it stay. Of a later piece that cannot be written nothing is kept: the file ends where a write
// ended. Pipes and devices only take what is written. While files are held (emulator.h) no piece goes out.
class WrittenFile {
public:
    enum class Existing { Replaced, AppendedTo };

    // Failures are told by `trouble` under `name`, which is that of the PC.
    WrittenFile(std::string name, std::shared_ptr<FileTrouble> trouble);
    // What has not gone out is forgotten; a file that was made for it goes.
    ~WrittenFile() { abandon(); }
    WrittenFile(const WrittenFile&) = delete;
    WrittenFile& operator=(const WrittenFile&) = delete;

    bool open(Existing existing);
    bool write(const void* bytes, std::uint32_t length);
    void close();
    // Of the end: bytes of the file when all that was written has gone out.
    std::uint64_t position() const { return start_ + written_ + pending_; }

private:
    bool append(std::string_view bytes);
    bool makeRoom(std::uint32_t length);
    bool flush();
    std::vector<char> oldContent(std::size_t length) const;
    void takeBack(const std::vector<char>& old);
    bool cutTo(std::uint64_t length);
    bool fail(int error);
    void abandon();
    void removeMade() const;

    std::string name_;
    std::shared_ptr<FileTrouble> trouble_;
    std::filesystem::path path_;  // of a regular file, without links; else empty
    std::FILE* stream_ = nullptr;
    bool made_ = false;      // there was no such file
    bool replaces_ = false;  // what was in it still is
    bool failed_ = false;
    std::vector<char> piece_;
    std::size_t pending_ = 0;    // bytes of the piece
    std::uint64_t start_ = 0;    // bytes that stay in front of what is written
    std::uint64_t written_ = 0;  // bytes that have gone out
    std::uint64_t oldLength_ = 0;
};

}  // namespace emulator
