#include "progress_bar.h"

#include <iostream>

#include "console.h"

void ProgressBar::begin() {
    *this = ProgressBar(visible_);
    active_ = true;
}

void ProgressBar::phase(const std::string& words) {
    phase_ = words;
    draw();
}

void ProgressBar::total(std::uint64_t amount, Unit unit) {
    total_ = amount;
    totalUnit_ = unit;
}

void ProgressBar::advance(std::uint64_t done, Unit unit) {
    done_ = done;
    unit_ = unit;
    if (!visible_) return;
    const Clock::time_point now = Clock::now();
    if (active_ && !running_) run(true);
    if (now < nextDraw_) return;
    phase_.clear();
    draw();
}

void ProgressBar::hide() {
    clearLine();
    active_ = false;
    if (running_) run(false);
}

void ProgressBar::show() {
    active_ = true;
    if (done_ > 0) run(true);
    draw();
}

void ProgressBar::end() { hide(); }

void ProgressBar::run(bool running) {
    const Clock::time_point now = Clock::now();
    if (running_) before_ += now - since_;
    since_ = now;
    running_ = running;
}

void ProgressBar::draw() {
    if (!visible_ || !active_) return;
    std::cerr << "\r" << line() << "\x1b[K" << std::flush;
    drawn_ = true;
    nextDraw_ = Clock::now() + std::chrono::milliseconds(100);
}

void ProgressBar::clearLine() {
    if (drawn_) std::cerr << "\r\x1b[K" << std::flush;
    drawn_ = false;
}

std::string ProgressBar::line() const {
    if (!phase_.empty()) return phase_;
    const Clock::duration elapsed = before_ + (running_ ? Clock::now() - since_ : Clock::duration{});
    const std::uint64_t total = totalUnit_ == unit_ ? total_ : 0;
    return progressLine({done_, total, unit_, std::chrono::duration<double>(elapsed).count()}, console::columns());
}
