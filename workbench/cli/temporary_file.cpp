#include "temporary_file.h"

#include <fstream>
#include <random>
#include <stdexcept>
#include <string>

namespace fs = std::filesystem;

TemporaryFile::TemporaryFile() {
    std::error_code error;
    const fs::path folder = fs::temp_directory_path(error);
    if (error)
        throw std::runtime_error("the system's folder for temporary files, which TMPDIR may name, cannot be used: " +
                                 error.message());
    std::random_device random;
    do {
        path_ = folder / ("z7xfer-" + std::to_string(random()) + std::to_string(random()));
    } while (fs::exists(path_));
    std::ofstream(path_, std::ios::binary).flush();
    std::error_code ignored;
    fs::permissions(path_, fs::perms::owner_read | fs::perms::owner_write, ignored);
}

TemporaryFile::~TemporaryFile() {
    std::error_code ignored;
    fs::remove(path_, ignored);
}
