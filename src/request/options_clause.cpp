#include "request/options_clause.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "request/statement_exchange.h"
#include "request/statement_writer.h"

namespace request {
namespace {

constexpr std::string_view Prefix = "OPTIONS ";
constexpr std::string_view Default = "DFT";

// Keywords by setting value. Every value beyond a table's end is the default, and so are those within that have no
// keyword of their own.
constexpr std::string_view timeFormats[] = {"DDS", Default, "EUR", "HMS", "ISO", "JIS", "USA"};
constexpr std::string_view timeSeparators[] = {"' '", "':'", "','", Default, Default, "NUL", "'.'"};
constexpr std::string_view dateFormats[] = {"DDS", Default, "DMY", "EUR", "ISO", "JIS", "JUL", "MDY", "USA", "YMD"};
constexpr std::string_view dateSeparators[] = {"' '", Default, "','", "'-'", Default, "NUL", "'.'", "'/'"};

template <std::size_t Size>
std::string_view keyword(const std::string_view (&table)[Size], std::int32_t value) {
    return value >= 0 && static_cast<std::size_t>(value) < Size ? table[value] : Default;
}

void appendOption(StatementWriter& writer, std::string_view name, std::string_view value) {
    writer.append({name, "(", value, ") "});
}

void appendSortSequence(StatementWriter& writer, std::string_view sequence) {
    if (sequence.empty() || sequence == "*JOB") return;
    const std::string_view quote = sequence[0] == '*' ? "" : "'";
    writer.append({"SRTSEQ(", quote, sequence, quote, ") "});
}

void composeText(char* buffer, const settings::TransferSettings& options) {
    StatementWriter writer(buffer);
    writer.append(Prefix);
    appendOption(writer, "IGNDECERR", options.ignoreDecimalErrors ? "Y" : "N");
    appendOption(writer, "TIMFMT", keyword(timeFormats, options.timeFormat));
    appendOption(writer, "TIMSEP", keyword(timeSeparators, options.timeSeparator));
    appendOption(writer, "DATFMT", keyword(dateFormats, options.dateFormat));
    appendOption(writer, "DATSEP", keyword(dateSeparators, options.dateSeparator));
    appendSortSequence(writer, options.sortSequence);
}

// *HEX is none here, although the text form names it: to compare bytes takes no sequence.
enum SortSequenceKind : char { None = 0, SharedWeights = 1, UniqueWeights = 2, Other = 3 };

SortSequenceKind sortSequenceKind(std::string_view sequence) {
    if (sequence.empty() || sequence == "*JOB" || sequence == "*HEX") return None;
    if (sequence == "*LANGIDSHR") return SharedWeights;
    if (sequence == "*LANGIDUNQ") return UniqueWeights;
    return Other;
}

// In the order of the text form, which is not that of the settings' numbers; each value as it is, cut to a byte.
void composeBlock(char* buffer, const settings::TransferSettings& options) {
    const std::string_view sequence = options.sortSequence;
    const SortSequenceKind kind = sortSequenceKind(sequence);
    const std::int32_t values[] = {options.ignoreDecimalErrors, options.timeFormat,    options.timeSeparator,
                                   options.dateFormat,          options.dateSeparator, options.decimalSeparatorMode};
    char* next = std::copy(Prefix.begin(), Prefix.end(), buffer);
    next = std::transform(std::begin(values), std::end(values), next,
                          [](std::int32_t value) { return static_cast<char>(value); });
    *next++ = kind;
    if (kind == Other) *std::copy(sequence.begin(), sequence.end(), next) = '\0';
}

}  // namespace

// The length that goes with either form is that of a text, to the first zero. A block may have none: then it goes on
// into what an older request left in the buffer.
bool composeOptionsClause(ZXFRPCSCLIENT& client, std::string_view& request) {
    char* buffer = requestBuffer(client);
    if (!buffer) return false;
    const settings::TransferSettings& options = *client.transferSettings;
    client.tfSession->tfIsAs400Mode() ? composeBlock(buffer, options) : composeText(buffer, options);
    request = {buffer, strnlen(buffer, provider::BufferSize)};
    return true;
}

}  // namespace request
