#include "emulator/pc_file.h"

#include <cerrno>
#include <filesystem>
#include <utility>

#include "Z7XFRPCS/runtime.h"
#include "emulator/emulator.h"
#include "emulator/held_files.h"
#include "emulator/messages.h"
#include "emulator/platform_side.h"
#include "emulator/standard_streams.h"
#include "emulator/user_interface.h"

namespace emulator {
namespace {

namespace files = std::filesystem;

constexpr std::size_t PieceSize = 64 * 1024;

ReadingStart readingStart;
Heading wantedHeading;

}  // namespace

void setReadingStart(const ReadingStart& start) { readingStart = start; }
void resetReadingStart() { readingStart = {}; }
void setHeading(Heading heading) { wantedHeading = std::move(heading); }

void PcFile::setName(const char* name) { name_ = name ? name : ""; }

files::path PcFile::path() const { return nativePath(name_); }

// Yes and No are offered while text can be added to the file, else OK and Cancel. 10 is the answer of a question box
// with buttons of its own.
PcFile::Choice PcFile::askUser() const {
    constexpr std::uint32_t Question = 0x20, YesNoCancel = 0x03, OkCancel = 0x01;
    constexpr std::int32_t Ok = 1, Yes = 6, No = 7, Replace = 10;
    MessageBox box = readyTextBox(session_, MessageSource::PcFile);
    box.flags = Question | (appendOffered_ ? YesNoCancel : OkCancel);
    box.file = name_;
    box.text = "The file " + name_ + " already exists. ";
    box.text += appendOffered_ ? "Replace it, or add the new data to its end?" : "Replace it?";
    const std::int32_t answer = userInterface().showMessage(box);
    if (answer == Ok || answer == Yes || answer == Replace) return Choice::Replace;
    return appendOffered_ && answer == No ? Choice::Append : Choice::Cancel;
}

bool PcFile::openForReading() {
    close();
    trouble_->forget();
    if (path().empty()) return trouble_->tell(name_, "opened", "the standard output cannot be read");
    std::error_code ignored;
    // The C library opens a folder for reading and fails later, with a worse reason.
    if (files::is_directory(path(), ignored)) return fail("opened", EISDIR);
    read_ = openNative(path(), "rb");
    if (!read_) return fail("opened", errno);
    return beginReading();
}

bool PcFile::beginReading() {
    piece_.resize(PieceSize);
    std::setvbuf(read_, piece_.data(), _IOFBF, PieceSize);
    hasPlaces_ = std::ftell(read_) >= 0;  // a pipe has none
    place_ = 0;
    again_.clear();
    start_ = hasPlaces_ ? readingStart : ReadingStart{};
    return start_.offset == 0 || seek(0);
}

bool PcFile::openForWriting() {
    close();
    trouble_->forget();
    const Choice choice = choose();
    if (choice == Choice::Cancel) {
        trouble_->declined();
        return false;
    }
    const auto existing =
        choice == Choice::Append ? WrittenFile::Existing::AppendedTo : WrittenFile::Existing::Replaced;
    auto file = std::make_unique<WrittenFile>(name_, trouble_);
    if (!file->open(existing)) return false;
    written_ = std::move(file);
    if (!wantedHeading || !isTransferred_ || written_->position() > 0) return true;
    const std::string bytes = wantedHeading();
    return written_->write(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
}

PcFile::Choice PcFile::choose() const {
    constexpr std::uint32_t AlwaysReplace = 1, AlwaysAppend = 2;
    if (existingFileAction_ == AlwaysReplace) return Choice::Replace;
    if (existingFileAction_ == AlwaysAppend) return Choice::Append;
    std::error_code ignored;
    // Devices and pipes have nothing to lose.
    const bool isThere = name_ != StandardStream && files::is_regular_file(path(), ignored);
    return isThere ? askUser() : Choice::Replace;
}

std::int32_t PcFile::read(void* buffer, std::uint32_t maximum) {
    if (!read_) return fail("read", EBADF), -1;
    auto* const bytes = static_cast<char*>(buffer);
    std::size_t count = hasPlaces_ ? takeLead(bytes, maximum) : takeAgain(bytes, maximum);
    count += std::fread(bytes + count, 1, maximum - count, read_);
    // A signal in the wait for a pipe is no end of its data.
    while (count < maximum && std::ferror(read_) && errno == EINTR) {
        std::clearerr(read_);
        count += std::fread(bytes + count, 1, maximum - count, read_);
    }
    if (count == 0 && std::ferror(read_)) return fail("read", errno), -1;
    if (!hasPlaces_) lastRead_.assign(bytes, count);
    place_ += count;
    return static_cast<std::int32_t>(count);
}

// What a pipe was asked to go back to.
std::size_t PcFile::takeAgain(char* buffer, std::size_t maximum) {
    const std::size_t count = again_.copy(buffer, maximum);
    again_.erase(0, count);
    return count;
}

// A pipe goes back as far as the last read began, which is as far as any send goes.
bool PcFile::goBackInPipe(std::uint64_t position) {
    const std::uint64_t back = place_ - position;
    if (position > place_ || back > lastRead_.size()) return false;
    again_ = lastRead_.substr(lastRead_.size() - static_cast<std::size_t>(back));
    place_ = position;
    return true;
}

std::size_t PcFile::takeLead(char* buffer, std::size_t maximum) const {
    if (place_ >= start_.lead.size()) return 0;
    return start_.lead.copy(buffer, maximum, static_cast<std::size_t>(place_));
}

bool PcFile::write(const void* bytes, std::uint32_t length) {
    return written_ ? written_->write(bytes, length) : fail("written", EBADF);
}

void PcFile::close() {
    if (written_) closeFile(std::move(written_));
    if (read_) std::fclose(std::exchange(read_, nullptr));
}

bool PcFile::errorState() {
    if (!trouble_->happened()) return false;
    trouble_->tell();
    return true;
}

std::uint32_t PcFile::size() {
    if (written_) return static_cast<std::uint32_t>(written_->position());
    std::error_code error;
    const auto size = files::file_size(path(), error);
    if (!error) return static_cast<std::uint32_t>(read_ ? size - start_.offset + start_.lead.size() : size);
    trouble_->note(name_, "opened", error.message());
    return 0;
}

void* PcFile::readWhole() {
    const std::uint32_t length = size();
    if (trouble_->happened()) return nullptr;
    std::FILE* stream = openNative(path(), "rb");
    if (!stream) return trouble_->note(name_, "opened", systemReason(errno)), nullptr;
    void* block = zhstAllocateObject(length, 0);
    if (!block) {
        trouble_->note(name_, "read", systemReason(ENOMEM));
    } else if (std::fread(block, 1, length, stream) != length) {
        trouble_->note(name_, "read", systemReason(std::ferror(stream) ? errno : EIO));
        zhstFreeObject(std::exchange(block, nullptr));
    }
    std::fclose(stream);
    return block;
}

// A file that is written goes on at its end.
void PcFile::setPosition(std::uint32_t position) {
    if (read_ && (hasPlaces_ || !goBackInPipe(position))) seek(position);
}

// The lead stands in front of the file's bytes.
bool PcFile::seek(std::uint64_t position) {
    const std::uint64_t place = start_.offset + (position < start_.lead.size() ? 0 : position - start_.lead.size());
    if (std::fseek(read_, static_cast<long>(place), SEEK_SET) != 0) return fail("read", errno);
    place_ = position;
    return true;
}

// Asked for behind every record; the stream would ask the operating system.
std::uint32_t PcFile::position() {
    if (written_) return static_cast<std::uint32_t>(written_->position());
    return read_ && hasPlaces_ ? static_cast<std::uint32_t>(place_) : 0;
}

}  // namespace emulator
