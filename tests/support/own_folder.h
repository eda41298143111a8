#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "platform/platform.h"

// A test with a folder of its own, in lower case throughout: the library lower-cases the name of an opened file.
class OwnFolder : public ::testing::Test {
protected:
    OwnFolder() {
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
    }
    ~OwnFolder() override {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    std::string path(const std::string& name) const { return (folder / name).string(); }
    static std::string fileBytes(const std::filesystem::path& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    static void writeFile(const std::filesystem::path& path, const std::string& bytes) {
        std::ofstream(path, std::ios::binary) << bytes;
    }

    // One test runs at a time.
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("z7x-" + std::to_string(platform::GetCurrentProcessId()));
};
