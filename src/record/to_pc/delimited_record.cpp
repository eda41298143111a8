#include "record/to_pc/delimited_record.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "Z7XFRPCS/settings.h"
#include "record/dif_pieces.h"
#include "record/quoting.h"
#include "record/to_pc/number_text.h"
#include "settings/pc_file_types.h"
#include "text/double_byte.h"

namespace record::to_pc {
namespace {

constexpr std::uint32_t PcBytesPerHostByte = 10;
constexpr std::uint32_t FieldBytesPerHostByte = 4;

// The record being built. What does not fit makes it grow by doubling; once there is no memory for that, nothing more
// is written and failed() stays true.
class GrowingRecord {
public:
    explicit GrowingRecord(services::OwnedBytes& bytes) : bytes_(bytes) {}

    bool ensure(std::uint32_t room) {
        while (!failed_ && bytes_.size() - length_ < room) failed_ = !bytes_.resize(2 * bytes_.size());
        return !failed_;
    }
    void append(char byte) {
        if (ensure(1)) bytes_.data()[length_++] = byte;
    }
    void append(std::string_view text) {
        if (!ensure(static_cast<std::uint32_t>(text.size()))) return;
        std::copy(text.begin(), text.end(), end());
        length_ += static_cast<std::uint32_t>(text.size());
    }
    void advance(std::uint32_t count) { length_ += count; }
    void shortenTo(std::uint32_t length) { length_ = length; }

    char* end() const { return bytes_.data() + length_; }
    std::uint32_t length() const { return length_; }
    std::uint32_t room() const { return bytes_.size() - length_; }
    std::string_view text() const { return {bytes_.data(), length_}; }
    bool failed() const { return failed_; }

private:
    services::OwnedBytes& bytes_;
    std::uint32_t length_ = 0;
    bool failed_ = false;
};

// One record on its way.
class DelimitedRecord {
public:
    DelimitedRecord(RecordConverter& converter, GrowingRecord& out)
        : converter_(converter),
          out_(out),
          type_(converter.transferSettings->receiveFileType),
          display_(converter.transferSettings->receiveOutput == zhst::value::ToDisplay && converter.textDisplay != 0),
          row_(display_ ? services::TextDisplayAddRow(converter.textDisplay, 0) : 0) {}

    bool convert(std::string_view hostRecord);
    void finish();

private:
    void leadIn();
    bool convertField(const HostField& field, const char* source, std::uint32_t bytes);
    bool convertCharacterField(const HostField& field, const char* source, std::uint32_t bytes);
    void quoteWhereNeeded(std::uint32_t length);
    void quoteAlways(std::uint32_t length);
    void convertNumericField(const HostField& field, const char* source);
    bool isSourceText(const HostField& field) const;
    bool refuse(const HostField& field) const;

    RecordConverter& converter_;
    GrowingRecord& out_;
    std::int32_t type_;
    bool display_;
    services::TextRowHandle row_;
    std::uint32_t index_ = 0;
};

bool DelimitedRecord::convert(std::string_view hostRecord) {
    for (const HostField& field : converter_.fields) {
        if (hostRecord.empty()) break;
        const FieldLength declared = field.fieldLength();
        const auto bytes = std::min(declared.bytes, static_cast<std::uint32_t>(hostRecord.size()));
        if (bytes < declared.bytes && !declared.isCharacter()) break;  // a number that is not whole
        leadIn();
        if (!out_.ensure(std::max(field.columnWidth + 2, bytes * FieldBytesPerHostByte))) return true;
        if (!convertField(field, hostRecord.data(), bytes)) return false;
        hostRecord.remove_prefix(bytes);
        ++index_;
    }
    return true;
}

void DelimitedRecord::leadIn() {
    if (index_ == 0) {
        if (type_ == settings::Dif) out_.append(dif::BeginTuple);
    } else if (display_) {
        out_.append(' ');
    } else if (type_ == settings::CommaSeparated) {
        out_.append(converter_.transferSettings->listSeparator);
    } else if (type_ == settings::BasicSequential) {
        out_.append(',');
    } else if (type_ == settings::TabDelimited) {
        out_.append('\t');
    }
}

bool DelimitedRecord::convertField(const HostField& field, const char* source, std::uint32_t bytes) {
    if (field.fieldLength().isCharacter()) return convertCharacterField(field, source, bytes);
    if (!hasTextForm(field)) return refuse(field);
    convertNumericField(field, source);
    return true;
}

bool DelimitedRecord::convertCharacterField(const HostField& field, const char* source, std::uint32_t bytes) {
    const bool quoted = type_ == settings::BasicSequential || type_ == settings::Dif;
    if (type_ == settings::Dif) out_.append(dif::StringHead);
    if (quoted) out_.append('"');
    // The conversion may need all the room its bytes give it, behind the head, and a zero byte.
    if (!out_.ensure(bytes * FieldBytesPerHostByte + 1)) return true;
    std::uint32_t converted = 0;
    if (!converter_.hostToPc(source, out_.end(), bytes, out_.room() - 1, &converted)) return false;
    const std::uint32_t length = std::max(bytes, converted);
    out_.end()[length] = '\0';
    if (display_) {
        services::TextDisplaySetCell(converter_.textDisplay, out_.end(), row_, index_);
        out_.advance(length);
        for (std::uint32_t at = bytes; at < field.columnWidth; ++at) out_.append(' ');
    } else if (quoted) {
        quoteAlways(length);
    } else if (type_ == settings::AsciiText || isSourceText(field)) {
        out_.advance(length);
    } else {
        quoteWhereNeeded(length);
    }
    return true;
}

// The field's text ends at its first zero byte.
void DelimitedRecord::quoteWhereNeeded(std::uint32_t length) {
    // Room for every character a double quote, and two around them.
    if (!out_.ensure(2 * length + 3)) return;
    char* field = out_.end();
    const std::string_view text(field, std::strlen(field));
    const char special = type_ == settings::CommaSeparated ? ',' : '\t';
    const std::string_view trimmed = text::trimmedEnd(text);
    if (text::findCharacter(text, '"') == std::string_view::npos &&
        text::findCharacter(text, special) == std::string_view::npos) {
        out_.advance(static_cast<std::uint32_t>(trimmed.size()));
        return;
    }
    std::memmove(field + 1, field, trimmed.size());
    *field = '"';
    const std::size_t doubled = doubleQuotesInPlace(field + 1, trimmed.size(), out_.room() - 1);
    out_.advance(static_cast<std::uint32_t>(doubled) + 1);
    out_.append('"');
}

// The opening quote stands already. Only DIF doubles the quotes inside.
void DelimitedRecord::quoteAlways(std::uint32_t length) {
    if (!out_.ensure(2 * length + 4)) return;
    char* field = out_.end();
    std::size_t trimmed = text::trimmedEnd({field, std::strlen(field)}).size();
    if (type_ == settings::Dif) trimmed = doubleQuotesInPlace(field, trimmed, out_.room());
    out_.advance(static_cast<std::uint32_t>(trimmed));
    out_.append('"');
    if (type_ == settings::Dif) out_.append("\r\n");
}

// A source member's text is data as it stands: blanks kept, no quotes.
bool DelimitedRecord::isSourceText(const HostField& field) const {
    constexpr std::string_view SourceField = "SRCDTA";
    return converter_.fields.count() == 1 && std::string_view(field.name()).substr(0, 6) == SourceField;
}

void DelimitedRecord::convertNumericField(const HostField& field, const char* source) {
    const std::uint32_t length = formatNumericField(field, source, converter_.numberText);
    if (display_) {
        services::TextDisplaySetCell(converter_.textDisplay, converter_.numberText, row_, index_);
        return;
    }
    const bool asString = field.type() == Hex;
    if (type_ == settings::Dif) out_.append(asString ? dif::StringHead : dif::NumberHead);
    out_.append(std::string_view(converter_.numberText, length));
    if (type_ == settings::Dif) out_.append(asString ? std::string_view("\r\n") : dif::NumberEnd);
}

bool DelimitedRecord::refuse(const HostField& field) const {
    char text[160];
    std::snprintf(text, sizeof(text), "Field %s is a binary number of %u bytes, which has no text form.", field.name(),
                  static_cast<unsigned>(field.fieldLength().bytes));
    messages::showOwnText(converter_.messageOwner(), text);
    return false;
}

void DelimitedRecord::finish() {
    if (display_) return;
    if (services::GetSetting(converter_.settings, zhst::setting::TrimRecordBlanks) == 1)
        out_.shortenTo(static_cast<std::uint32_t>(text::trimmedEnd(out_.text()).size()));
    if (type_ != settings::Dif) out_.append("\r\n");
    if (!out_.failed()) blankOutNulls(out_.end() - out_.length(), out_.length());
}

}  // namespace

bool toDelimitedRecord(RecordConverter& converter, std::string_view hostRecord, services::OwnedBytes& work,
                       std::uint32_t& length) {
    GrowingRecord out(work);
    DelimitedRecord record(converter, out);
    work = services::OwnedBytes::make(static_cast<std::uint32_t>(hostRecord.size()) * PcBytesPerHostByte + 2, true);
    if (work) {
        if (!record.convert(hostRecord)) return false;
        record.finish();
        length = out.length();
    }
    if (work && !out.failed()) return true;
    messages::show(converter.messageOwner(), zhst::message::OutOfMemory);
    return false;
}

}  // namespace record::to_pc
