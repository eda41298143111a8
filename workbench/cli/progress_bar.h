#pragma once

#include <chrono>
#include <cstdint>
#include <string>

// One line on standard error that says how far a transfer is. Invisible unless it was asked to be seen.
class ProgressBar {
public:
    enum class Unit { Records, Bytes };

    explicit ProgressBar(bool visible) : visible_(visible) {}

    void begin();
    void phase(const std::string& words);
    void total(std::uint64_t amount, Unit unit);
    void advance(std::uint64_t done, Unit unit);  // cheap: draws ten times a second at most
    void hide();                                  // while something else is written
    void show();
    void end();

private:
    void draw();
    void clearLine();
    std::string line() const;

    bool visible_;
    bool active_ = false;  // between begin and end, and not hidden
    bool drawn_ = false;
    std::string phase_;
    std::uint64_t total_ = 0;
    Unit totalUnit_ = Unit::Records;
    std::uint64_t done_ = 0;
    Unit unit_ = Unit::Records;
    std::chrono::steady_clock::time_point nextDraw_{};
};

// 12,345
std::string grouped(std::uint64_t number);
// "1 record", "12,345 bytes"
std::string counted(std::uint64_t number, const std::string& thing);
