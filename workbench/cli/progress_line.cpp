#include "progress_line.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <vector>

namespace {

constexpr double SecondsToJudge = 1;            // before that a rate says little
constexpr double SecondsToTell = 100.0 * 3600;  // beyond that so does what is left

// "512 bytes/s", "1.4 MB/s"
std::string bytesPerSecond(double rate) {
    constexpr std::array<const char*, 3> Units = {"kB", "MB", "GB"};
    constexpr double Thousand = 1000;
    if (rate < Thousand) return std::to_string(static_cast<int>(rate)) + " bytes/s";
    std::size_t unit = 0;
    for (rate /= Thousand; rate >= Thousand && unit + 1 < Units.size(); rate /= Thousand) ++unit;
    char text[32];
    std::snprintf(text, sizeof text, "%.1f %s/s", rate, Units[unit]);
    return text;
}

// "0:07", "12:34", "1:02:03"
std::string clock(std::uint64_t seconds) {
    const auto hours = static_cast<unsigned>(seconds / 3600), minutes = static_cast<unsigned>(seconds / 60 % 60),
               rest = static_cast<unsigned>(seconds % 60);
    char text[32];
    if (hours > 0) {
        std::snprintf(text, sizeof text, "%u:%02u:%02u", hours, minutes, rest);
    } else {
        std::snprintf(text, sizeof text, "%u:%02u", minutes, rest);
    }
    return text;
}

// "  500/s", with "  0:02 left" behind it where an end is known.
std::string pace(const Progress& progress) {
    if (progress.seconds < SecondsToJudge || progress.done == 0) return {};
    const double rate = static_cast<double>(progress.done) / progress.seconds;
    std::string text = "  ";
    text += progress.unit == Progress::Unit::Bytes ? bytesPerSecond(rate)
                                                   : grouped(static_cast<std::uint64_t>(std::llround(rate))) + "/s";
    if (progress.total > progress.done) {
        const double left = static_cast<double>(progress.total - progress.done) / rate;
        if (left < SecondsToTell) text += "  " + clock(static_cast<std::uint64_t>(std::llround(left))) + " left";
    }
    return text;
}

std::string bar(const Progress& progress, std::size_t room) {
    const std::uint64_t done = std::min(progress.done, progress.total);
    const auto filled = static_cast<std::size_t>(static_cast<double>(done) / static_cast<double>(progress.total) *
                                                 static_cast<double>(room));
    return "[" + std::string(filled, '=') + std::string(room - filled, ' ') + "] ";
}

std::string percentage(const Progress& progress) {
    const std::uint64_t done = std::min(progress.done, progress.total);
    return std::to_string(
               static_cast<unsigned>(100.0 * static_cast<double>(done) / static_cast<double>(progress.total))) +
           "%";
}

}  // namespace

std::string progressLine(const Progress& progress, int columns) {
    constexpr std::size_t LeastBar = 5, LongestBar = 50, Brackets = 3;
    const auto room = static_cast<std::size_t>(std::max(columns - 1, 0));
    const std::string thing = progress.unit == Progress::Unit::Records ? "record" : "byte";
    const std::string rate = pace(progress);
    if (progress.total == 0) return (counted(progress.done, thing) + rate).substr(0, room);

    const std::string percent = percentage(progress);
    const std::string amounts =
        "  " + grouped(std::min(progress.done, progress.total)) + " of " + counted(progress.total, thing);
    // What gives way to a narrow terminal: the bar, then the amounts, then the pace.
    const std::string whole = percent + amounts + rate;
    if (whole.size() + LeastBar + Brackets <= room) {
        return bar(progress, std::min(room - whole.size() - Brackets, LongestBar)) + whole;
    }
    for (const std::string& line : {whole, percent + rate, percent}) {
        if (line.size() <= room) return line;
    }
    return {};
}

std::string grouped(std::uint64_t number) {
    std::string text = std::to_string(number);
    for (std::size_t place = text.size(); place > 3; place -= 3) text.insert(place - 3, ",");
    return text;
}

std::string counted(std::uint64_t number, const std::string& thing) {
    return grouped(number) + " " + thing + (number == 1 ? "" : "s");
}
