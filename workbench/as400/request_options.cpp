#include "as400/request_options.h"

#include <algorithm>

#include "as400/date_format.h"
#include "as400/refusal.h"

namespace as400 {

namespace {

// Formats and separators as numbers; 255 has no row and gives the default.
struct Formats {
    std::uint8_t date = 255, dateSeparator = 255, time = 255, timeSeparator = 255;
};

void apply(const Formats& formats, RequestOptions& options) {
    options.datePattern = datePattern(formats.date, formats.dateSeparator);
    options.timePattern = timePattern(formats.time, formats.timeSeparator);
}

[[noreturn]] void refuseOption(std::string_view option, std::string_view value) {
    refuseRequest("HSF1101 Option " + std::string(option) + "(" + std::string(value) + ") not recognised.");
}

std::uint8_t known(std::optional<std::uint8_t> number, std::string_view option, std::string_view value) {
    if (!number) refuseOption(option, value);
    return *number;
}

void set(std::string_view option, std::string_view value, Formats& formats, RequestOptions& options) {
    if (option == "IGNDECERR" && (value == "Y" || value == "N")) {
        options.ignoreDecimalErrors = value == "Y";
    } else if (option == "TIMFMT") {
        formats.time = known(timeFormatNumber(value), option, value);
    } else if (option == "TIMSEP") {
        formats.timeSeparator = value == "DFT" ? 255 : known(timeSeparatorNumber(value), option, value);
    } else if (option == "DATFMT") {
        formats.date = known(dateFormatNumber(value), option, value);
    } else if (option == "DATSEP") {
        formats.dateSeparator = value == "DFT" ? 255 : known(dateSeparatorNumber(value), option, value);
    } else if (option == "SRTSEQ") {
        options.sortSequence = value;
    } else {
        refuseOption(option, value);
    }
}

}  // namespace

RequestOptions::RequestOptions() { apply({}, *this); }

RequestOptions parseTextOptions(std::string_view request) {
    RequestOptions options;
    Formats formats;
    std::string_view rest = request.substr(OptionsKeyword.size());
    while (true) {
        rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
        if (rest.empty()) break;
        const auto open = rest.find('(');
        // A value ends at ") " or the end, since a separator in apostrophes may be anything.
        const auto close = std::min(rest.find(") "), rest.rfind(')'));
        if (open == std::string_view::npos || close == std::string_view::npos || close < open) refuseOption(rest, "");
        set(rest.substr(0, open), rest.substr(open + 1, close - open - 1), formats, options);
        rest.remove_prefix(close + 1);
    }
    apply(formats, options);
    return options;
}

RequestOptions parseBinaryOptions(std::span<const std::uint8_t> buffer) {
    enum : std::size_t {
        IgnoreErrors,
        TimeFormat,
        TimeSeparator,
        DateFormat,
        DateSeparator,
        Decimal,
        SortKind,
        SortText
    };
    constexpr std::uint8_t NamedSortSequence = 3;
    RequestOptions options;
    if (buffer.size() < OptionsKeyword.size() + SortText) refuseRequest("HSF1102 Options block too short.");
    const auto block = buffer.subspan(OptionsKeyword.size());
    options.ignoreDecimalErrors = block[IgnoreErrors] != 0;
    apply({block[DateFormat], block[DateSeparator], block[TimeFormat], block[TimeSeparator]}, options);
    if (block[SortKind] == NamedSortSequence) {
        const auto text = block.subspan(SortText);
        options.sortSequence.assign(text.begin(), std::ranges::find(text, std::uint8_t{0}));
    }
    return options;
}

}  // namespace as400
