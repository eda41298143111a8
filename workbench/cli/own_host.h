#pragma once

#include <filesystem>

// The host that a user's sends go to: a copy of the installed sample in the folder of the user's data, made by the
// first send. Until then what is read is the sample.
namespace own_host {

// $Z7X_DATA_FOLDER/host.db, or z7xfer/host.db in the folder that the operating system has for data of programs. Throws
// std::runtime_error when there is no such folder.
std::filesystem::path place();

// The user's own when it is there, else the sample.
std::filesystem::path toRead(const std::filesystem::path& sample);
// The user's own, made from the sample when it is not there (and the sample is); of several processes that make it at
// once one does, and all get the same. Throws std::runtime_error.
std::filesystem::path toWrite(const std::filesystem::path& sample);
// A new copy of the sample in its place. What was sent to the old one is lost. Throws std::runtime_error.
void remake(const std::filesystem::path& sample);

}  // namespace own_host
