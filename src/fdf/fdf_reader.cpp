#include "fdf/fdf_reader.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

#include "Z7XFRPCS/settings.h"
#include "fdf/code_tables.h"
#include "fdf/fdf_path.h"
#include "messages/own_sentences.h"
#include "monitor/monitor_store.h"
#include "services/owned.h"
#include "settings/transfer_settings.h"
#include "text/parse_unsigned.h"

namespace fdf {
namespace {

namespace message = zhst::message;
namespace sentence = messages::sentence;

constexpr std::uint32_t LargestCode = 255;
constexpr std::int32_t Unspecified = -1;

bool contains(std::string_view line, std::string_view keyword) { return line.find(keyword) != std::string_view::npos; }

// The next line that is not empty, taken off the text; empty at its end. A run of CR and LF is one line end, so that
// files of any system are read alike.
std::string_view takeLine(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of("\r\n"), text.size()));
    const std::string_view line = text.substr(0, text.find_first_of("\r\n"));
    text.remove_prefix(line.size());
    return line;
}

// A code is any number as people write one: 1, 01 and 0x1 are the same.
std::int32_t valueOfCode(FdfCodeTable table, std::string_view code) {
    const auto number = text::parseUnsigned(code, LargestCode);
    return number ? fdfCodeToValue(table, *number) : NoCode;
}

// One description being read.
class Reader {
public:
    Reader(const client::TransferContext& context, const char* path, char* names, std::uint32_t capacity)
        : context_(context), path_(path), names_(names), capacity_(capacity) {
        *names_ = '\0';
    }

    bool read(std::string_view text);
    bool fail(std::uint32_t number) const {
        messages::show(context_.messageOwner(), number, path_);
        return false;
    }

private:
    bool readLine(std::string_view line);
    bool readField(std::string_view line);
    bool readFileType(std::string_view line);
    bool readOptions(std::string_view line);
    bool readOption(std::string_view& rest, std::size_t length, FdfCodeTable table, std::int32_t& value,
                    std::uint32_t number) const;
    bool failText(const char* reason) const;

    const client::TransferContext& context_;
    const char* path_;
    char* names_;
    std::uint32_t capacity_;
    std::uint32_t namesLength_ = 0;
    bool fileTypeSeen_ = false;
    bool optionsSeen_ = false;
    bool fieldSeen_ = false;
};

bool Reader::read(std::string_view text) {
    const std::string_view header = takeLine(text);
    if (!header.empty() && !contains(header, "PCFDF")) return fail(message::DescriptionHeader);
    for (std::string_view line = takeLine(text); !line.empty(); line = takeLine(text))
        if (!readLine(line)) return false;
    return fieldSeen_ || fail(message::DescriptionNoFields);
}

// The first keyword of this order decides, wherever it stands in the line: other text in front of it is no harm. A line
// without any is skipped, as a remark.
bool Reader::readLine(std::string_view line) {
    if (contains(line, "PCFL")) return readField(line);
    if (contains(line, "PCFT")) return readFileType(line);
    if (contains(line, "PCFO")) return readOptions(line);
    return !contains(line, "PCFDF") || fail(message::DescriptionSecondHeader);
}

// Only the name counts; type code and length are the PC file's affair. A line without a name, and names that do not
// fit, are refused: the request would name other fields than the file has.
bool Reader::readField(std::string_view line) {
    if (!fileTypeSeen_) return fail(message::DescriptionFieldEarly);
    if (contains(line.substr(line.find("PCFL") + 4), "PCFL")) return fail(message::DescriptionTwoFields);
    std::string_view name = line.substr(std::min(line.find(' '), line.size()));
    name.remove_prefix(std::min(name.find_first_not_of(' '), name.size()));
    name = name.substr(0, name.find(' '));
    if (name.empty()) return failText(sentence::HasNoFieldName);
    const std::uint32_t comma = fieldSeen_ ? 1 : 0;
    if (namesLength_ + comma + name.size() > capacity_) return failText(sentence::NamesTooManyFields);
    char* next = names_ + namesLength_;
    if (comma) *next++ = ',';
    next = std::copy(name.begin(), name.end(), next);
    *next = '\0';
    namesLength_ = static_cast<std::uint32_t>(next - names_);
    fieldSeen_ = true;
    return true;
}

bool Reader::readFileType(std::string_view line) {
    if (fileTypeSeen_) return fail(message::DescriptionSecondFileType);
    const std::size_t blank = line.find(' ');
    if (blank == std::string_view::npos) return fail(message::DescriptionFileType);
    const std::string_view code = line.substr(blank + 1);
    const std::int32_t value = valueOfCode(FdfFileTypes, code.substr(0, code.find(' ')));
    if (value == NoCode) return fail(message::DescriptionFileType);
    // At once, as everything here: what the lines in front of a failure say stays.
    context_.transferSettings->sendFileType = value;
    fileTypeSeen_ = true;
    return true;
}

// Unlike the others, this keyword begins its line: a blank in front of it would be taken for the one behind which the
// options stand. Without a blank there are none, but the line counts as the one that there may be.
bool Reader::readOptions(std::string_view line) {
    if (optionsSeen_) return fail(message::DescriptionSecondOptions);
    if (line.substr(0, 4) != "PCFO") return fail(message::DescriptionOptions);
    optionsSeen_ = true;
    const std::size_t blank = line.find(' ');
    if (blank == std::string_view::npos) return true;
    settings::TransferSettings& options = *context_.transferSettings;
    std::string_view rest = line.substr(blank + 1);
    if (!readOption(rest, 1, FdfTimeFormats, options.timeFormat, message::DescriptionTimeFormat) ||
        !readOption(rest, 1, FdfTimeSeparators, options.timeSeparator, message::DescriptionTimeSeparator))
        return false;
    const std::size_t dateLength = rest.size() > 1 && rest[1] != ',' ? 2 : 1;  // its codes alone go up to 10
    if (!readOption(rest, dateLength, FdfDateFormats, options.dateFormat, message::DescriptionDateFormat) ||
        !readOption(rest, 1, FdfDateSeparators, options.dateSeparator, message::DescriptionDateSeparator))
        return false;
    if (rest.substr(0, 1) == "*") {
        options.decimalSeparatorMode = Unspecified;
        return true;
    }
    return readOption(rest, 1, FdfDecimalSeparators, options.decimalSeparatorMode,
                      message::DescriptionDecimalSeparator);
}

// Takes `length` characters and the comma behind them off the line; what stands in the comma's place is not looked at.
// A failure leaves -1 in the option.
bool Reader::readOption(std::string_view& rest, std::size_t length, FdfCodeTable table, std::int32_t& value,
                        std::uint32_t number) const {
    value = valueOfCode(table, rest.substr(0, length));
    rest.remove_prefix(std::min(length + 1, rest.size()));
    return value != NoCode || fail(number);
}

bool Reader::failText(const char* reason) const {
    char text[PathSize + 100];
    std::snprintf(text, sizeof(text), sentence::DescriptionNotRead, path_, reason);
    messages::showOwnText(context_.messageOwner(), text);
    return false;
}

// The object reports its errors itself, when its state is asked for.
bool readText(const client::TransferContext& context, services::FileObject& file, const Reader& reader,
              services::OwnedBytes& text) {
    const std::uint32_t size = file.size();
    if (file.errorState()) return false;
    text = services::OwnedBytes::adopt(file.readWhole(), size);
    if (file.errorState()) return false;
    if (size == 0) return reader.fail(message::DescriptionEmpty);
    if (text) return true;
    messages::show(context.messageOwner(), message::OutOfMemory);
    return false;
}

}  // namespace

bool readFdf(const client::TransferContext& context, const char* pcFileName, char* names, std::uint32_t capacity) {
    char path[PathSize] = {};
    Reader reader(context, path, names, capacity);
    if (!context.transferSettings->useDescriptionFile) {
        messages::show(context.messageOwner(), message::DescriptionNotUsed);
        return false;
    }
    const services::OwnedFile file =
        resolveFdfPath(context, pcFileName, context.transferSettings->sendDescriptionFile, path);
    if (!file) return false;
    // Given to this file object as to every other, although nothing is written.
    file->setExistingFileAction(
        static_cast<std::uint32_t>(services::GetSetting(context.settings, zhst::setting::ExistingFileAction)));
    services::OwnedBytes text;
    if (!readText(context, *file, reader, text)) return false;
    // The monitor gets the file as it is; the description ends at the first zero byte.
    const std::string_view whole(text.data(), text.size());
    if (context.monitorStore) context.monitorStore->recordSendDescription(whole);
    return reader.read(whole.substr(0, whole.find('\0')));
}

}  // namespace fdf
