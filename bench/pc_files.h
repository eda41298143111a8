#pragma once

#include <string>

// The PC side of the measurements.
namespace bench {

// The file that is received to: $Z7X_BENCH_FILE, or one in the folder for temporary files, which goes away at the end.
const std::string& receivedFile();
// The file that is sent, and its description; they go away at the end.
const std::string& sentFile();
const std::string& descriptionFile();

}  // namespace bench
