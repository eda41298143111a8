#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "emulator/emulator.h"

namespace emulator {

class WrittenFile;

// How far the holding of files is; see emulator.h.
enum class Holding { Off, On, UntilNextWrite };
extern Holding holding;
inline bool filesAreHeld() { return holding != Holding::Off; }

// A write has succeeded.
inline void noteWrite() {
    if (holding == Holding::UntilNextWrite) releaseFiles();
}
// Closes the file, now or when files are released.
void closeFile(std::unique_ptr<WrittenFile> file);
// What a file object has put into the file of this PC name; none when it left the file as it was.
void accountFor(const std::string& name, std::uint64_t bytes);

void resetHeldFiles();

}  // namespace emulator
