#include "as400/date_format.h"

#include <algorithm>
#include <array>
#include <span>

namespace as400 {

namespace {

struct Format {
    std::string_view keyword, pattern;  // '?' takes the separator of the request
};
struct Separator {
    std::string_view keyword, text;
};

// Each table is indexed by the number of the binary form; the last row of the separators is the default. The first two
// formats, as the file says and as the job says, are the same on this host.
constexpr Format DateFormats[] = {
    {"DDS", "yyyy-mm-dd"}, {"DFT", "yyyy-mm-dd"}, {"DMY", "dd?mm?yy"}, {"EUR", "dd.mm.yyyy"}, {"ISO", "yyyy-mm-dd"},
    {"JIS", "yyyy-mm-dd"}, {"JUL", "yy?ddd"},     {"MDY", "mm?dd?yy"}, {"USA", "mm/dd/yyyy"}, {"YMD", "yy?mm?dd"},
};
constexpr Format TimeFormats[] = {
    {"DDS", "hh.ii.ss"}, {"DFT", "hh.ii.ss"}, {"EUR", "hh.ii.ss"}, {"HMS", "hh?ii?ss"},
    {"ISO", "hh.ii.ss"}, {"JIS", "hh:ii:ss"}, {"USA", "gg:ii pp"},
};
constexpr Separator DateSeparators[] = {
    {"' '", " "}, {"DFT", "/"}, {"','", ","}, {"'-'", "-"}, {"DFT", "/"},
    {"NUL", ""},  {"'.'", "."}, {"'/'", "/"}, {"DFT", "/"},
};
constexpr Separator TimeSeparators[] = {
    {"' '", " "}, {"':'", ":"}, {"','", ","}, {"DFT", ":"}, {"DFT", ":"}, {"NUL", ""}, {"'.'", "."}, {"DFT", ":"},
};

template <class Row>
std::optional<std::uint8_t> numberOf(std::span<const Row> table, std::string_view keyword) {
    const auto row = std::ranges::find(table, keyword, &Row::keyword);
    if (row == table.end()) return std::nullopt;
    return static_cast<std::uint8_t>(row - table.begin());
}

template <class Row>
const Row& rowOr(std::span<const Row> table, std::uint8_t number, std::size_t otherwise) {
    return table[number < table.size() ? number : otherwise];
}

std::string withSeparator(std::string_view pattern, std::string_view separator) {
    std::string result;
    for (const char c : pattern) {
        if (c == '?') {
            result += separator;
        } else {
            result += c;
        }
    }
    return result;
}

bool isLeap(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

int daysIn(int year, int month) {
    constexpr std::array<int, 12> days{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return days[static_cast<std::size_t>(month - 1)] + (month == 2 && isLeap(year) ? 1 : 0);
}

int dayOfYear(const Moment& moment) {
    int day = moment.day;
    for (int month = 1; month < moment.month; ++month) day += daysIn(moment.year, month);
    return day;
}

bool setDayOfYear(Moment& moment, int day) {
    for (moment.month = 1; moment.month <= 12; ++moment.month) {
        if (day <= daysIn(moment.year, moment.month)) {
            moment.day = day;
            return true;
        }
        day -= daysIn(moment.year, moment.month);
    }
    return false;
}

bool isValid(const Moment& moment) {
    const bool midnight = moment.hour == 24 && moment.minute == 0 && moment.second == 0;
    return moment.year >= 1 && moment.month >= 1 && moment.month <= 12 && moment.day >= 1 &&
           moment.day <= daysIn(moment.year, moment.month) && (moment.hour < 24 || midnight) && moment.minute <= 59 &&
           moment.second <= 59;
}

// The letters of a pattern in runs: 'y' 4, '-' 1, 'm' 2 ...
struct Run {
    char letter;
    std::size_t start, length;
};

std::size_t runLength(std::string_view pattern, std::size_t start) {
    return std::min(pattern.find_first_not_of(pattern[start], start), pattern.size()) - start;
}

bool readRun(Run run, int number, Moment& moment, int& yearDay) {
    switch (run.letter) {
        case 'y':
            moment.year = run.length == 4 ? number : number + (number < 40 ? 2000 : 1900);
            return true;
        case 'm':
            moment.month = number;
            return true;
        case 'd':
            (run.length == 3 ? yearDay : moment.day) = number;
            return true;
        case 'h':
            moment.hour = number;
            return true;
        case 'g':
            moment.hour = number % 12;
            return number >= 1 && number <= 12;
        case 'i':
            moment.minute = number;
            return true;
        default:
            moment.second = number;
            return true;
    }
}

std::optional<int> readNumber(std::string_view digits) {
    int number = 0;
    for (const char c : digits) {
        if (c < '0' || c > '9') return std::nullopt;
        number = number * 10 + (c - '0');
    }
    return number;
}

int numberFor(Run run, const Moment& moment) {
    switch (run.letter) {
        case 'y':
            return run.length == 4 ? moment.year : moment.year % 100;
        case 'm':
            return moment.month;
        case 'd':
            return run.length == 3 ? dayOfYear(moment) : moment.day;
        case 'h':
            return moment.hour;
        case 'g':
            return (moment.hour + 11) % 12 + 1;
        case 'i':
            return moment.minute;
        default:
            return moment.second;
    }
}

bool isLetter(char c) { return c >= 'a' && c <= 'z'; }

std::string padded(int number, std::size_t width) {
    const std::string digits = std::to_string(number);
    return std::string(width - std::min(width, digits.size()), '0') + digits;
}

}  // namespace

std::optional<std::uint8_t> dateFormatNumber(std::string_view keyword) {
    return numberOf<Format>(DateFormats, keyword);
}
std::optional<std::uint8_t> timeFormatNumber(std::string_view keyword) {
    return numberOf<Format>(TimeFormats, keyword);
}
std::optional<std::uint8_t> dateSeparatorNumber(std::string_view keyword) {
    return numberOf<Separator>(DateSeparators, keyword);
}
std::optional<std::uint8_t> timeSeparatorNumber(std::string_view keyword) {
    return numberOf<Separator>(TimeSeparators, keyword);
}

std::string datePattern(std::uint8_t format, std::uint8_t separator) {
    return withSeparator(rowOr<Format>(DateFormats, format, 1).pattern,
                         rowOr<Separator>(DateSeparators, separator, std::size(DateSeparators) - 1).text);
}

std::string timePattern(std::uint8_t format, std::uint8_t separator) {
    return withSeparator(rowOr<Format>(TimeFormats, format, 1).pattern,
                         rowOr<Separator>(TimeSeparators, separator, std::size(TimeSeparators) - 1).text);
}

std::optional<Moment> readMoment(std::string_view text, std::string_view pattern) {
    if (text.size() != pattern.size()) return std::nullopt;
    Moment moment;
    int yearDay = 0;
    for (std::size_t at = 0; at < pattern.size();) {
        const Run run{pattern[at], at, runLength(pattern, at)};
        const std::string_view part = text.substr(at, run.length);
        at += run.length;
        if (run.letter == 'p') {
            if (part != "AM" && part != "PM") return std::nullopt;
            moment.hour += part == "PM" ? 12 : 0;
        } else if (isLetter(run.letter)) {
            const auto number = readNumber(part);
            if (!number || !readRun(run, *number, moment, yearDay)) return std::nullopt;
        } else if (part != pattern.substr(run.start, run.length)) {
            return std::nullopt;
        }
    }
    const bool julian = pattern.find("ddd") != std::string_view::npos;
    if (julian && (yearDay < 1 || !setDayOfYear(moment, yearDay))) return std::nullopt;
    if (!isValid(moment)) return std::nullopt;
    return moment;
}

std::string writeMoment(const Moment& moment, std::string_view pattern) {
    const bool shortYear =
        pattern.find('y') != std::string_view::npos && pattern.find("yyyy") == std::string_view::npos;
    if (shortYear && (moment.year < 1940 || moment.year > 2039)) return std::string(pattern.size(), '+');
    std::string text;
    while (text.size() < pattern.size()) {
        const Run run{pattern[text.size()], text.size(), runLength(pattern, text.size())};
        if (run.letter == 'p') {
            text += moment.hour % 24 < 12 ? "AM" : "PM";
        } else if (isLetter(run.letter)) {
            text += padded(numberFor(run, moment), run.length);
        } else {
            text += pattern.substr(run.start, run.length);
        }
    }
    return text;
}

}  // namespace as400
