#include "emulator/written_file.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <utility>

#include "emulator/emulator.h"
#include "emulator/faults.h"
#include "emulator/held_files.h"
#include "emulator/platform_side.h"
#include "emulator/standard_streams.h"

namespace emulator {
namespace {

namespace files = std::filesystem;

constexpr std::size_t PieceSize = 64 * 1024;

}  // namespace

WrittenFile::WrittenFile(std::string name, std::shared_ptr<FileTrouble> trouble)
    : name_(std::move(name)), trouble_(std::move(trouble)), piece_(PieceSize) {}

bool WrittenFile::open(Existing existing) {
    if (name_ == StandardStream) {
        stream_ = stdout;
        return true;
    }
    const files::path native = nativePath(name_);
    std::error_code error;
    const files::file_status status = files::status(native, error);
    // Not every system says of a folder that it is one.
    if (files::is_directory(status)) return trouble_->tell(name_, "created", systemReason(EISDIR));
    const bool isThere = files::exists(status), isRegular = files::is_regular_file(status);
    const bool isStream = isThere && !isRegular;
    const bool inPlace = existing == Existing::Replaced && !isStream;
    stream_ = inPlace ? openNativeAsItIs(native) : openNative(native, existing == Existing::Replaced ? "wb" : "ab");
    if (!stream_) return trouble_->tell(name_, "created", systemReason(errno));
    std::setvbuf(stream_, nullptr, _IONBF, 0);
    if (isStream) return true;
    path_ = files::canonical(native, error);
    if (error) path_ = files::absolute(native);
    made_ = !isThere;
    replaces_ = inPlace;
    oldLength_ = made_ ? 0 : files::file_size(path_, error);
    start_ = inPlace ? 0 : oldLength_;
    return true;
}

bool WrittenFile::write(const void* bytes, std::uint32_t length) {
    if (name_ == StandardStream) return append(asStandardOutput({static_cast<const char*>(bytes), length}));
    return append({static_cast<const char*>(bytes), length});
}

bool WrittenFile::append(std::string_view bytes) {
    const auto length = static_cast<std::uint32_t>(bytes.size());
    if (!writeAllowed(length)) return fail(ENOSPC);
    if (length > piece_.size() - pending_ && !makeRoom(length)) return false;
    if (length > 0) std::memcpy(piece_.data() + pending_, bytes.data(), length);
    pending_ += length;
    noteWrite();
    return true;
}

bool WrittenFile::makeRoom(std::uint32_t length) {
    if (!filesAreHeld() && !flush()) return false;
    if (length > piece_.size() - pending_) piece_.resize(pending_ + std::max<std::size_t>(length, PieceSize));
    return true;
}

bool WrittenFile::flush() {
    if (failed_) return false;
    const std::vector<char> old = replaces_ ? oldContent(pending_) : std::vector<char>();
    if (std::fwrite(piece_.data(), 1, pending_, stream_) != pending_) {
        const int error = errno;
        takeBack(old);
        failed_ = true;
        return fail(error);
    }
    written_ += std::exchange(pending_, 0);
    return !std::exchange(replaces_, false) || oldLength_ <= written_ || cutTo(written_);
}

// What the next `length` bytes are written over.
std::vector<char> WrittenFile::oldContent(std::size_t length) const {
    std::vector<char> content(static_cast<std::size_t>(std::min<std::uint64_t>(oldLength_, length)));
    std::ifstream file(path_, std::ios::binary);
    file.read(content.data(), static_cast<std::streamsize>(content.size()));
    content.resize(static_cast<std::size_t>(std::max<std::streamsize>(file.gcount(), 0)));
    return content;
}

// The piece that went out in part.
void WrittenFile::takeBack(const std::vector<char>& old) {
    if (path_.empty()) return;
    if (replaces_ && !old.empty() && std::fseek(stream_, 0, SEEK_SET) == 0)
        std::fwrite(old.data(), 1, old.size(), stream_);
    cutTo(replaces_ ? oldLength_ : start_ + written_);
}

bool WrittenFile::cutTo(std::uint64_t length) {
    std::error_code error;
    files::resize_file(path_, length, error);
    return !error || fail(error.value());
}

bool WrittenFile::fail(int error) { return trouble_->tell(name_, "written", systemReason(error)); }

void WrittenFile::close() {
    if (!stream_) return;
    flush();
    std::FILE* stream = std::exchange(stream_, nullptr);
    const bool closed = stream == stdout ? std::fflush(stream) == 0 : std::fclose(stream) == 0;
    if (!closed) fail(errno);
    if (!failed_ || written_ > 0) accountFor(name_, written_);
    if (failed_) removeMade();
}

void WrittenFile::abandon() {
    if (!stream_) return;
    std::FILE* stream = std::exchange(stream_, nullptr);
    if (stream != stdout) std::fclose(stream);
    removeMade();
}

// Unless something is in it.
void WrittenFile::removeMade() const {
    std::error_code error;
    if (made_ && files::file_size(path_, error) == 0 && !error) files::remove(path_, error);
}

}  // namespace emulator
