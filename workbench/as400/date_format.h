#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The forms in which dates and times stand in host records. A form is a pattern, one character a letter or separator:
// yyyy or yy year, mm month, dd day of the month, ddd day of the year, hh hour, gg hour of a 12-hour clock, ii minute,
// ss second, pp AM or PM. In the database dates are "yyyy-mm-dd" and times "hh:ii:ss".
namespace as400 {

// The options of a request, by the numbers of its binary form. `keyword` is the text form: DATFMT(keyword).
std::optional<std::uint8_t> dateFormatNumber(std::string_view keyword);
std::optional<std::uint8_t> timeFormatNumber(std::string_view keyword);
// Keywords with their apostrophes: "'/'".
std::optional<std::uint8_t> dateSeparatorNumber(std::string_view keyword);
std::optional<std::uint8_t> timeSeparatorNumber(std::string_view keyword);

// Numbers that stand for nothing give the default: ISO, '/' for dates, ':' for times. The separator options only count
// in the formats that have no separator of their own (DMY, MDY, YMD, JUL, HMS).
std::string datePattern(std::uint8_t format, std::uint8_t separator);
std::string timePattern(std::uint8_t format, std::uint8_t separator);

struct Moment {
    int year = 1, month = 1, day = 1, hour = 0, minute = 0, second = 0;
};

// Null when the text does not follow the pattern or names no day or time. Two-digit years are 1940 to 2039.
std::optional<Moment> readMoment(std::string_view text, std::string_view pattern);
// A year that two digits cannot tell gives a text of '+' characters.
std::string writeMoment(const Moment& moment, std::string_view pattern);

inline constexpr std::string_view StoredDate = "yyyy-mm-dd";
inline constexpr std::string_view StoredTime = "hh:ii:ss";

}  // namespace as400
