#pragma once

#include <filesystem>

// A file in the folder of those that nobody keeps, for nobody else; it goes with this object.
class TemporaryFile {
public:
    // Empty. Throws std::runtime_error when the system has no folder for such files.
    TemporaryFile();
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};
