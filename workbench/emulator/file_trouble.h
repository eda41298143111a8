#pragma once

#include <string>

#include "Z7XFRPCS/types.h"

namespace emulator {

// What went wrong with one PC file. The first failure counts, since what follows from it is no news, and it is told to
// the user once.
class FileTrouble {
public:
    explicit FileTrouble(ZhstSession session) : session_(session) {}

    bool happened() const { return !sentence_.empty(); }
    void forget() { sentence_.clear(); }
    // The user's own decision: a failure that is not told.
    void declined();
    // "The file NAME could not be DOING: REASON.", to be told later or now. Always false.
    bool note(const std::string& name, const char* doing, const std::string& reason);
    bool tell(const std::string& name, const char* doing, const std::string& reason);
    void tell();

private:
    ZhstSession session_;
    std::string sentence_;  // empty: nothing happened
    bool told_ = false;
};

std::string systemReason(int error);

}  // namespace emulator
