#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

// The options request that comes before a statement.
namespace as400 {

struct RequestOptions {
    bool ignoreDecimalErrors = false;
    std::string datePattern;  // as in date_format.h
    std::string timePattern;
    std::string sortSequence;  // noted; this host sorts texts by character code

    RequestOptions();
};

inline constexpr std::string_view OptionsKeyword = "OPTIONS ";

// "OPTIONS IGNDECERR(Y) TIMFMT(ISO) TIMSEP(':') DATFMT(USA) DATSEP('/') SRTSEQ(*HEX) ". Throws a Refusal for an option
// or value it does not know.
RequestOptions parseTextOptions(std::string_view request);

// "OPTIONS " and seven bytes: ignore decimal errors, time format, time separator, date format, date separator, decimal
// separator, kind of sort sequence (3: its text follows, terminated). `buffer` is the whole shared buffer, because the
// length that comes with this request ends at the first byte that is zero.
RequestOptions parseBinaryOptions(std::span<const std::uint8_t> buffer);

}  // namespace as400
