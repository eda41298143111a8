#include "progress_bar.h"

#include <algorithm>
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
    if (!visible_ || std::chrono::steady_clock::now() < nextDraw_) return;
    phase_.clear();
    draw();
}

void ProgressBar::hide() {
    clearLine();
    active_ = false;
}

void ProgressBar::show() {
    active_ = true;
    draw();
}

void ProgressBar::end() { hide(); }

void ProgressBar::draw() {
    if (!visible_ || !active_) return;
    std::cerr << "\r" << line() << "\x1b[K" << std::flush;
    drawn_ = true;
    nextDraw_ = std::chrono::steady_clock::now() + std::chrono::milliseconds(100);
}

void ProgressBar::clearLine() {
    if (drawn_) std::cerr << "\r\x1b[K" << std::flush;
    drawn_ = false;
}

std::string ProgressBar::line() const {
    if (!phase_.empty()) return phase_;
    const std::string thing = unit_ == Unit::Records ? "record" : "byte";
    if (total_ == 0 || totalUnit_ != unit_) return counted(done_, thing);
    const std::uint64_t done = std::min(done_, total_);
    const std::string numbers =
        std::to_string(done * 100 / total_) + "%  " + grouped(done_) + " of " + counted(total_, thing);
    const int room = std::clamp(console::columns() - static_cast<int>(numbers.size()) - 6, 0, 50);
    if (room < 5) return numbers;
    const auto filled = static_cast<std::size_t>(done * static_cast<std::uint64_t>(room) / total_);
    return "[" + std::string(filled, '=') + std::string(static_cast<std::size_t>(room) - filled, ' ') + "] " + numbers;
}

std::string grouped(std::uint64_t number) {
    std::string text = std::to_string(number);
    for (std::size_t place = text.size(); place > 3; place -= 3) text.insert(place - 3, ",");
    return text;
}

std::string counted(std::uint64_t number, const std::string& thing) {
    return grouped(number) + " " + thing + (number == 1 ? "" : "s");
}
