#include "emulator/pc_file.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <utility>

#include "Z7XFRPCS/runtime.h"
#include "emulator/emulator.h"
#include "emulator/faults.h"
#include "emulator/messages.h"
#include "emulator/platform_side.h"
#include "emulator/user_interface.h"

namespace emulator {
namespace {

namespace files = std::filesystem;

constexpr std::size_t PieceSize = 64 * 1024;
constexpr const char* StandardOutput = "-";

std::string systemReason(int error) { return std::strerror(error); }

}  // namespace

void PcFile::setName(const char* name) { name_ = name ? name : ""; }

std::string PcFile::path() const { return nativePath(name_); }

// Yes and No are offered while text can be added to the file, else OK and Cancel. 10 is the answer of a question box
// with buttons of its own.
PcFile::Choice PcFile::askUser() const {
    constexpr std::uint32_t Question = 0x20, YesNoCancel = 0x03, OkCancel = 0x01;
    constexpr std::int32_t Ok = 1, Yes = 6, No = 7, Replace = 10;
    MessageBox box = readyTextBox(session_);
    box.flags = Question | (appendOffered_ ? YesNoCancel : OkCancel);
    box.text = "The file " + name_ + " already exists. ";
    box.text += appendOffered_ ? "Replace it, or add the new data to its end?" : "Replace it?";
    const std::int32_t answer = userInterface().showMessage(box);
    if (answer == Ok || answer == Yes || answer == Replace) return Choice::Replace;
    return appendOffered_ && answer == No ? Choice::Append : Choice::Cancel;
}

bool PcFile::openStream(const char* mode, const char* doing) {
    const std::string path = this->path();
    std::error_code ignored;
    // The C library opens a folder for reading and fails later, with a worse reason.
    if (files::is_directory(path, ignored)) return failNow(doing, systemReason(EISDIR));
    stream_ = openNative(path, mode);
    return stream_ ? true : failNow(doing, systemReason(errno));
}

bool PcFile::openForReading() {
    close();
    failure_.clear();
    writing_ = false;
    if (name_ == StandardOutput) return failNow("opened", "the standard output cannot be read");
    if (!openStream("rb", "opened")) return false;
    beginReading();
    return true;
}

void PcFile::beginReading() {
    piece_.resize(PieceSize);
    std::setvbuf(stream_, piece_.data(), _IOFBF, PieceSize);
    hasPlaces_ = std::ftell(stream_) >= 0;  // a pipe has none
    place_ = 0;
}

bool PcFile::openForWriting() {
    constexpr std::uint32_t AlwaysReplace = 1, AlwaysAppend = 2;
    close();
    failure_.clear();
    writing_ = true;
    piece_.resize(PieceSize);
    if (name_ == StandardOutput) {
        stream_ = stdout;
        return true;
    }
    std::error_code ignored;
    Choice choice = existingFileAction_ == AlwaysAppend ? Choice::Append : Choice::Replace;
    // Devices and pipes have nothing to lose.
    if (existingFileAction_ != AlwaysReplace && existingFileAction_ != AlwaysAppend &&
        files::is_regular_file(path(), ignored))
        choice = askUser();
    if (choice == Choice::Cancel) {
        failure_ = "cancelled";
        told_ = true;
        return false;
    }
    if (!openStream(choice == Choice::Append ? "ab" : "wb", "created")) return false;
    std::setvbuf(stream_, nullptr, _IONBF, 0);
    return true;
}

std::int32_t PcFile::read(void* buffer, std::uint32_t maximum) {
    if (!stream_ || writing_) return failNow("read", systemReason(EBADF)), -1;
    const std::size_t count = std::fread(buffer, 1, maximum, stream_);
    if (count == 0 && std::ferror(stream_)) return failNow("read", systemReason(errno)), -1;
    place_ += count;
    return static_cast<std::int32_t>(count);
}

bool PcFile::write(const void* bytes, std::uint32_t length) {
    if (!stream_ || !writing_) return failNow("written", systemReason(EBADF));
    if (!writeAllowed(length)) return failNow("written", systemReason(ENOSPC));
    if (length > PieceSize - pendingLength_ && !flush()) return false;
    if (length > PieceSize) {
        if (std::fwrite(bytes, 1, length, stream_) == length) return true;
        return failNow("written", systemReason(errno));
    }
    if (length > 0) std::memcpy(piece_.data() + pendingLength_, bytes, length);
    pendingLength_ += length;
    return true;
}

bool PcFile::flush() {
    const std::size_t length = std::exchange(pendingLength_, 0);
    if (length == 0 || std::fwrite(piece_.data(), 1, length, stream_) == length) return true;
    return failNow("written", systemReason(errno));
}

void PcFile::close() {
    if (!stream_) return;
    if (writing_) flush();
    std::FILE* stream = std::exchange(stream_, nullptr);
    const bool closed = stream == stdout ? std::fflush(stream) == 0 : std::fclose(stream) == 0;
    if (!closed && writing_ && failure_.empty()) failNow("written", systemReason(errno));
}

bool PcFile::errorState() {
    if (failure_.empty()) return false;
    tell();
    return true;
}

std::uint32_t PcFile::size() {
    if (writing_ && stream_) flush();
    std::error_code error;
    const auto size = files::file_size(path(), error);
    if (!error) return static_cast<std::uint32_t>(size);
    fail("opened", error.message());
    return 0;
}

void* PcFile::readWhole() {
    const std::uint32_t length = size();
    if (!failure_.empty()) return nullptr;
    std::FILE* stream = openNative(path(), "rb");
    if (!stream) return fail("opened", systemReason(errno)), nullptr;
    void* block = zhstAllocateObject(length, 0);
    if (!block) {
        fail("read", systemReason(ENOMEM));
    } else if (std::fread(block, 1, length, stream) != length) {
        fail("read", systemReason(std::ferror(stream) ? errno : EIO));
        zhstFreeObject(std::exchange(block, nullptr));
    }
    std::fclose(stream);
    return block;
}

void PcFile::setPosition(std::uint32_t position) {
    if (!stream_ || (writing_ && !flush())) return;
    if (std::fseek(stream_, static_cast<long>(position), SEEK_SET) == 0)
        place_ = position;
    else
        fail("read", systemReason(errno));
}

// Asked for behind every record; the stream would ask the operating system.
std::uint32_t PcFile::position() {
    if (!stream_) return 0;
    if (!writing_) return hasPlaces_ ? static_cast<std::uint32_t>(place_) : 0;
    const long place = std::ftell(stream_);
    return place < 0 ? 0 : static_cast<std::uint32_t>(place) + static_cast<std::uint32_t>(pendingLength_);
}

// The first failure counts: what follows from it is no news.
bool PcFile::fail(const char* doing, const std::string& reason) {
    if (!failure_.empty()) return false;
    failure_ = "The file " + name_ + " could not be " + doing + ": " + reason + ".";
    told_ = false;
    return false;
}

bool PcFile::failNow(const char* doing, const std::string& reason) {
    fail(doing, reason);
    tell();
    return false;
}

void PcFile::tell() {
    if (std::exchange(told_, true) || !messageEnabled(0)) return;
    constexpr std::uint32_t Exclamation = 0x30;
    MessageBox box = readyTextBox(session_);
    box.flags = Exclamation;
    box.text = failure_;
    userInterface().showMessage(box);
}

}  // namespace emulator
