#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include "progress_line.h"

// One line on standard error that says how far a transfer is. Invisible unless it was asked to be seen.
class ProgressBar {
public:
    using Unit = Progress::Unit;

    explicit ProgressBar(bool visible) : visible_(visible) {}

    void begin();
    void phase(const std::string& words);
    void total(std::uint64_t amount, Unit unit);
    void advance(std::uint64_t done, Unit unit);  // cheap: draws ten times a second at most
    void hide();                                  // while something else is written
    void show();
    void end();

private:
    using Clock = std::chrono::steady_clock;

    void draw();
    void clearLine();
    std::string line() const;
    void run(bool running);

    bool visible_;
    bool active_ = false;  // between begin and end, and not hidden
    bool drawn_ = false;
    std::string phase_;
    std::uint64_t total_ = 0;
    Unit totalUnit_ = Unit::Records;
    std::uint64_t done_ = 0;
    Unit unit_ = Unit::Records;
    Clock::time_point nextDraw_{};
    // Time is counted from the first advance on, and stands still while the bar is hidden.
    bool running_ = false;
    Clock::time_point since_{};
    Clock::duration before_{};
};
