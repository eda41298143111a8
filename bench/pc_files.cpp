#include "bench/pc_files.h"

#include <cstdlib>
#include <filesystem>

#include "platform/platform.h"

namespace bench {
namespace {

// In lower case: the library lower-cases the name of an opened file.
class TemporaryFile {
public:
    explicit TemporaryFile(const std::string& name)
        : path_((std::filesystem::temp_directory_path() /
                 ("z7xbench-" + std::to_string(platform::GetCurrentProcessId()) + name))
                    .string()) {}
    ~TemporaryFile() {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }
    const std::string& path() const { return path_; }

private:
    std::string path_;
};

}  // namespace

const std::string& receivedFile() {
    static const TemporaryFile file("-received");
    static const char* const named = std::getenv("Z7X_BENCH_FILE");
    static const std::string path = named && *named ? named : file.path();
    return path;
}

const std::string& sentFile() {
    static const TemporaryFile file("-sent");
    return file.path();
}

const std::string& descriptionFile() {
    static const TemporaryFile file("-sent.fdf");
    return file.path();
}

}  // namespace bench
