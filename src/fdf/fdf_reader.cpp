#include "fdf/fdf_reader.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

#include "Z7XFRPCS/settings.h"
#include "fdf/code_tables.h"
#include "fdf/fdf_path.h"
#include "provider/transfer_function_session.h"
#include "services/owned.h"
#include "text/parse_unsigned.h"

namespace fdf {
namespace {

enum Message : std::uint32_t {
    EmptyFile = 4411,
    DescriptionNotUsed = 4412,
    BadFileType = 4417,
    NoHeader = 4419,
    FieldBeforeFileType = 4420,
    NoFields = 4421,
    TwoFieldsInLine = 4422,
    OptionsNotAtStart = 4423,
    BadTimeFormat = 4424,
    BadTimeSeparator = 4425,
    BadDateFormat = 4426,
    BadDateSeparator = 4427,
    BadDecimalSeparator = 4428,
    SecondFileType = 4429,
    SecondHeader = 4430,
    SecondOptions = 4431,
};

constexpr std::uint32_t LargestCode = 255;
constexpr std::int32_t Unspecified = -1;

bool contains(std::string_view line, std::string_view keyword) { return line.find(keyword) != std::string_view::npos; }

// The next line that is not empty, taken off the text; empty at its end.
std::string_view takeLine(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of("\r\n"), text.size()));
    const std::string_view line = text.substr(0, text.find_first_of("\r\n"));
    text.remove_prefix(line.size());
    return line;
}

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
    bool fail(Message message) const {
        messages::show(owner(), message, path_);
        return false;
    }

private:
    messages::Owner owner() const { return {context_.session, context_.settings, context_.mainWindow}; }
    bool readLine(std::string_view line);
    bool readField(std::string_view line);
    bool readFileType(std::string_view line);
    bool readOptions(std::string_view line);
    bool readOption(std::string_view& rest, std::size_t length, FdfCodeTable table, std::int32_t& value,
                    Message message) const;
    bool failText(const char* text) const;

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
    if (!header.empty() && !contains(header, "PCFDF")) return fail(NoHeader);
    for (std::string_view line = takeLine(text); !line.empty(); line = takeLine(text))
        if (!readLine(line)) return false;
    return fieldSeen_ || fail(NoFields);
}

bool Reader::readLine(std::string_view line) {
    if (contains(line, "PCFL")) return readField(line);
    if (contains(line, "PCFT")) return readFileType(line);
    if (contains(line, "PCFO")) return readOptions(line);
    return !contains(line, "PCFDF") || fail(SecondHeader);
}

// Only the name counts; type code and length are the PC file's affair.
bool Reader::readField(std::string_view line) {
    if (!fileTypeSeen_) return fail(FieldBeforeFileType);
    if (contains(line.substr(line.find("PCFL") + 4), "PCFL")) return fail(TwoFieldsInLine);
    std::string_view name = line.substr(std::min(line.find(' '), line.size()));
    name.remove_prefix(std::min(name.find_first_not_of(' '), name.size()));
    name = name.substr(0, name.find(' '));
    if (name.empty()) return failText("has a field line without a name");
    const std::uint32_t comma = fieldSeen_ ? 1 : 0;
    if (namesLength_ + comma + name.size() > capacity_) return failText("names more fields than a request can hold");
    char* next = names_ + namesLength_;
    if (comma) *next++ = ',';
    next = std::copy(name.begin(), name.end(), next);
    *next = '\0';
    namesLength_ = static_cast<std::uint32_t>(next - names_);
    fieldSeen_ = true;
    return true;
}

bool Reader::readFileType(std::string_view line) {
    if (fileTypeSeen_) return fail(SecondFileType);
    const std::size_t blank = line.find(' ');
    if (blank == std::string_view::npos) return fail(BadFileType);
    const std::string_view code = line.substr(blank + 1);
    const std::int32_t value = valueOfCode(FdfFileTypes, code.substr(0, code.find(' ')));
    if (value == NoCode) return fail(BadFileType);
    context_.transferSettings->sendFileType = value;
    fileTypeSeen_ = true;
    return true;
}

bool Reader::readOptions(std::string_view line) {
    if (optionsSeen_) return fail(SecondOptions);
    if (line.substr(0, 4) != "PCFO") return fail(OptionsNotAtStart);
    optionsSeen_ = true;
    const std::size_t blank = line.find(' ');
    if (blank == std::string_view::npos) return true;
    settings::TransferSettings& options = *context_.transferSettings;
    std::string_view rest = line.substr(blank + 1);
    if (!readOption(rest, 1, FdfTimeFormats, options.timeFormat, BadTimeFormat) ||
        !readOption(rest, 1, FdfTimeSeparators, options.timeSeparator, BadTimeSeparator))
        return false;
    const std::size_t dateLength = rest.size() > 1 && rest[1] != ',' ? 2 : 1;
    if (!readOption(rest, dateLength, FdfDateFormats, options.dateFormat, BadDateFormat) ||
        !readOption(rest, 1, FdfDateSeparators, options.dateSeparator, BadDateSeparator))
        return false;
    if (rest.substr(0, 1) == "*") {
        options.decimalSeparatorMode = Unspecified;
        return true;
    }
    return readOption(rest, 1, FdfDecimalSeparators, options.decimalSeparatorMode, BadDecimalSeparator);
}

// Takes `length` characters and the comma behind them off the line. A failure leaves -1 in the option.
bool Reader::readOption(std::string_view& rest, std::size_t length, FdfCodeTable table, std::int32_t& value,
                        Message message) const {
    value = valueOfCode(table, rest.substr(0, length));
    rest.remove_prefix(std::min(length + 1, rest.size()));
    return value != NoCode || fail(message);
}

bool Reader::failText(const char* text) const {
    char message[PathSize + 100];
    std::snprintf(message, sizeof(message), "The PC file description %s %s.", path_, text);
    messages::showOwnText(owner(), message);
    return false;
}

bool readText(const client::TransferContext& context, services::FileObject& file, const Reader& reader,
              services::OwnedBytes& text) {
    const std::uint32_t size = file.size();
    if (file.errorState()) return false;
    text = services::OwnedBytes::adopt(file.readWhole(), size);
    if (file.errorState()) return false;
    if (size == 0) return reader.fail(EmptyFile);
    if (text) return true;
    messages::show({context.session, context.settings, context.mainWindow}, zhst::message::OutOfMemory);
    return false;
}

}  // namespace

bool readFdf(const client::TransferContext& context, const char* pcFileName, char* names, std::uint32_t capacity) {
    char path[PathSize] = {};
    Reader reader(context, path, names, capacity);
    if (!context.transferSettings->useDescriptionFile) {
        messages::show({context.session, context.settings, context.mainWindow}, DescriptionNotUsed);
        return false;
    }
    const services::OwnedFile file =
        resolveFdfPath(context, pcFileName, context.transferSettings->sendDescriptionFile, path);
    if (!file) return false;
    file->setName(path);
    file->setTypeFlag(0);
    file->setOpenFlags(OpenFlags);
    file->setExistingFileAction(
        static_cast<std::uint32_t>(services::GetSetting(context.settings, zhst::setting::ExistingFileAction)));
    services::OwnedBytes text;
    if (!readText(context, *file, reader, text)) return false;
    const std::string_view whole(text.data(), text.size());
    if (monitor::MonitorStore* store = context.tfSession->monitorStore()) store->recordSendDescription(whole);
    return reader.read(whole.substr(0, whole.find('\0')));
}

}  // namespace fdf
