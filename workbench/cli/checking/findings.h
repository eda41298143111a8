#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "host_layout.h"

namespace checking {

// What may keep a PC file from arriving as it was written: name, whether its record is refused, its name for people,
// and what they can do about it.
#define CHECKING_FAULTS(X)                                                                                        \
    X(Refused, true, "refused", "correct the field")                                                              \
    X(HeaderRefused, true, "header line", "remove the line")                                                      \
    X(RecordTooLong, true, "record too long", "shorten the record")                                               \
    X(UnknownField, true, "unknown field", "use the description that goes with this host file")                   \
    X(TextCut, false, "text cut", "shorten the text, or send to a file with a longer field")                      \
    X(FractionCut, false, "fraction cut", "round the number to the decimals of the field")                        \
    X(NumberChanged, false, "number changed", "write the number as the field takes it")                           \
    X(BlankNumber, false, "blank number", "write 0 if that is meant")                                             \
    X(CharacterLost, false, "character lost", "replace the character, or send with a host code page that has it") \
    X(TextBehindNul, false, "text behind a NUL", "remove the zero byte")                                          \
    X(TextChanged, false, "text changed", "write the text as this PC file type writes it")                        \
    X(QuoteOpen, false, "quote not closed", "close the quote, and keep line ends out of the text")                \
    X(TextBehindQuote, false, "text behind a quote", "write a quote inside a text twice")                         \
    X(HexChanged, false, "hexadecimal digits changed", "send such bytes with the PC file types random or none")   \
    X(TooFewFields, false, "too few fields", "complete the record")                                               \
    X(TooManyFields, false, "too many fields", "put a text with the separator in quotes, or remove the field")    \
    X(ByteOrderMark, false, "byte order mark", "save the file in the code page of the PC, without a mark")        \
    X(Utf8, false, "text in UTF-8", "save the file in the code page of the PC")                                   \
    X(HeaderLine, false, "header line", "remove the line")                                                        \
    X(NoHeader, false, "no header line", "send without --header if it is a record, with --allow-changes if not")  \
    X(NoRecord, false, "no record", "look whether this is the file that was meant")                               \
    X(ShortRecord, false, "record cut short", "look whether the file is whole")                                   \
    X(FileDiffers, false, "file changed", "receive once more, and look who else writes to the file")              \
    X(RecordsJoined, false, "records joined", "add records to files that end with a whole record only")           \
    X(SeparatorInText, false, "separator in a text", "receive with another list separator, or as tab or dif")     \
    X(LineEndInText, false, "line end in a text", "receive with the PC file types random or none")                \
    X(QuoteInText, false, "quote in a text", "receive as csv, tab or dif, which write it twice")                  \
    X(ZeroByteInText, false, "zero byte in a text", "receive with the PC file type none")                         \
    X(CharacterReplaced, false, "character replaced", "receive with an --ansi-code-page that has it, or as none") \
    X(NumberDamaged, false, "damaged number", "correct the number on the host")                                   \
    X(NumberUnread, false, "number not read", "receive with another decimal separator, or as dif")                \
    X(NotSentBack, false, "not sent back", "receive with the PC file types random or none to send it back")       \
    X(SentOtherwise, false, "sent otherwise", "receive with the PC file types random or none to send it back")

enum class Fault {
#define CHECKING_FAULT(name, isRefusal, title, advice) name,
    CHECKING_FAULTS(CHECKING_FAULT)
#undef CHECKING_FAULT
};

inline constexpr std::size_t FaultCount = 0
#define CHECKING_FAULT(name, isRefusal, title, advice) +1
    CHECKING_FAULTS(CHECKING_FAULT)
#undef CHECKING_FAULT
    ;

bool isRefusal(Fault fault);
std::string_view adviceOf(Fault fault);

// One of them, in full. Texts are UTF-8.
struct Finding {
    Fault fault = Fault::Refused;
    std::string place;   // "record 3 (line 4)", "row 4 (line 57)"; empty for the file as a whole
    std::string field;   // empty for the record as a whole
    std::string text;    // as it stands in the PC file
    std::string stored;  // what the host would have of it; meaningless when it is refused
    std::string reason;
    std::string option{};  // of z7xfer, to send with instead of what the fault's advice says
};

// What a check has found: the first ones in full, of all the number.
class Findings {
public:
    static constexpr std::size_t ToldInFull = 20;
    static constexpr std::size_t NoColumn = static_cast<std::size_t>(-1);  // the record, or the file

    // `columns` may still change until the first finding. `becomes` stands between a text and what it becomes.
    explicit Findings(const std::vector<HostColumn>& columns, std::string_view becomes = "would be stored as")
        : columns_(columns), becomes_(becomes) {}

    // `describe` makes the finding; it is called only for those that are told in full.
    template <class Describe>
    void add(Fault fault, std::size_t column, Describe describe) {
        if (counts_.empty()) counts_.resize(columns_.size() + 1);
        ++counts_[column == NoColumn ? columns_.size() : column][static_cast<std::size_t>(fault)];
        ++(isRefusal(fault) ? refused_ : changed_);
        if (told_.size() < ToldInFull) told_.push_back(describe());
    }

    // What concerns the file is told before everything else.
    void addOfFile(const Finding& finding) {
        ++(isRefusal(finding.fault) ? refused_ : changed_);
        ofFile_.push_back(finding);
    }

    std::uint64_t refused() const { return refused_; }
    std::uint64_t changed() const { return changed_; }
    bool isEmpty() const { return refused_ + changed_ == 0; }

    // The first ones, those of the file apart.
    const std::vector<Finding>& told() const { return told_; }

    // The findings one by one, then counts by field of all when there are more.
    void print(std::ostream& out) const;

private:
    using Counts = std::array<std::uint64_t, FaultCount>;

    const std::vector<HostColumn>& columns_;
    std::string_view becomes_;
    std::vector<Counts> counts_;  // by column, then those of no column
    std::vector<Finding> ofFile_, told_;
    std::uint64_t refused_ = 0, changed_ = 0;
};

}  // namespace checking
