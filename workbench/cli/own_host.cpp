#include "own_host.h"

#include <random>
#include <stdexcept>
#include <string>

#include "environment/environment.h"
#include "environment/utf8_path.h"
#include "process.h"

namespace own_host {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const fs::path& place, const std::error_code& error) {
    throw std::runtime_error("the host of your own, " + place.string() + ", cannot be made: " + error.message() +
                             "; --host-data names another");
}

// A whole copy of the sample under a name that nobody else uses, in the same folder; it goes with this object.
class NewCopy {
public:
    NewCopy(const fs::path& sample, const fs::path& place)
        : file_(place.parent_path() / ("new-" + std::to_string(std::random_device()()) + ".db")) {
        std::error_code error;
        fs::create_directories(place.parent_path(), error);
        if (!error) fs::copy_file(sample, file_, error);
        // The sample may be there to be read only.
        if (!error) fs::permissions(file_, fs::perms::owner_write, fs::perm_options::add, error);
        if (!error) return;
        remove();
        fail(place, error);
    }
    ~NewCopy() { remove(); }
    NewCopy(const NewCopy&) = delete;
    NewCopy& operator=(const NewCopy&) = delete;

    const fs::path& file() const { return file_; }

private:
    void remove() const {
        std::error_code ignored;
        fs::remove(file_, ignored);
    }

    fs::path file_;
};

bool isThere(const fs::path& file) {
    std::error_code ignored;
    return fs::exists(file, ignored);
}

}  // namespace

fs::path place() {
    const fs::path named = utf8Path(environment::variable("Z7X_DATA_FOLDER"));
    if (!named.empty()) return named / "host.db";
    const fs::path folder = process::dataFolder();
    if (folder.empty()) {
        throw std::runtime_error(std::string("a host of your own has no place: neither ") +
                                 process::DataFolderVariables + " is set; --host-data names another");
    }
    return folder / "z7xfer" / "host.db";
}

fs::path toRead(const fs::path& sample) {
    try {
        const fs::path own = place();
        return isThere(own) ? own : sample;
    } catch (const std::runtime_error&) {
        return sample;
    }
}

// A link is made for one only, and never in place of a file that another process has made and written to meanwhile.
// Where the file system has none, the copy is given its name.
fs::path toWrite(const fs::path& sample) {
    if (!isThere(sample)) return sample;  // where there is no sample host, providers know another
    const fs::path own = place();
    if (isThere(own)) return own;
    const NewCopy copy(sample, own);
    std::error_code error;
    fs::create_hard_link(copy.file(), own, error);
    if (isThere(own)) return own;
    fs::rename(copy.file(), own, error);
    if (error) fail(own, error);
    return own;
}

// A journal that a killed process has left would be played into the new copy.
void remake(const fs::path& sample) {
    const fs::path own = place();
    const NewCopy copy(sample, own);
    std::error_code error;
    fs::remove(fs::path(own) += "-journal", error);
    if (!error) fs::rename(copy.file(), own, error);
    if (error) fail(own, error);
}

}  // namespace own_host
