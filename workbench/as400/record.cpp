#include "as400/record.h"

#include <algorithm>

#include "as400/date_format.h"
#include "as400/decimal.h"
#include "as400/refusal.h"

namespace as400 {

namespace {

[[noreturn]] void refuseNumber(const Field& field, std::string_view why) {
    refuseData("HSF2001 Field " + field.name + ": " + std::string(why) + ".");
}

void copyPadded(std::span<const std::uint8_t> bytes, std::span<std::uint8_t> out, std::uint8_t padding) {
    std::ranges::fill(out, padding);
    std::ranges::copy(bytes.first(std::min(bytes.size(), out.size())), out.begin());
}

bool writeNumber(const Field& field, const Decimal& number, std::span<std::uint8_t> out) {
    switch (field.type) {
        case FieldType::Zoned:
            return writeZoned(number, out);
        case FieldType::Packed:
            return writePacked(number, field.digits, out);
        default:
            return writeBinary(number, out);
    }
}

std::optional<Decimal> readNumberBytes(const Field& field, std::span<const std::uint8_t> bytes) {
    auto number = field.type == FieldType::Zoned    ? readZoned(bytes)
                  : field.type == FieldType::Packed ? readPacked(bytes)
                                                    : std::optional(readBinary(bytes));
    if (number && number->digits.size() > field.digits) number.reset();
    return number;
}

// Bytes are passed as they are; not damaged after all is, for example, a number with an unusual sign.
void writeRawNumber(const RecordField& field, const Value& value, const RequestOptions& options,
                    std::span<std::uint8_t> out) {
    const auto* bytes = std::get_if<std::span<const std::uint8_t>>(&value);
    const bool sound = bytes && bytes->size() == out.size() && readNumberBytes(field.field, *bytes);
    if (!sound && !options.ignoreDecimalErrors) refuseNumber(field.field, "decimal data error");
    if (bytes) return copyPadded(*bytes, out, 0x40);
    const auto* text = std::get_if<std::string_view>(&value);
    encodeText(text ? *text : "", FieldType::Character, *field.page, out);
}

void writeNumberValue(const RecordField& field, const Value& value, const RequestOptions& options,
                      std::span<std::uint8_t> out) {
    const bool null = std::holds_alternative<std::monostate>(value);
    const auto number = null ? Decimal{} : decimalFromValue(value, field.field.decimals);
    if (!number) return writeRawNumber(field, value, options, out);
    if (!writeNumber(field.field, *number, out)) {
        refuseNumber(field.field, "value " + decimalText(*number, field.field.decimals) + " too large");
    }
}

std::string realText(double real) {
    std::string text = decimalText(decimalFromDouble(real, 9).value_or(Decimal{}), 9);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) text.pop_back();
    return text;
}

// Of a number the text is put into `number`.
std::string_view textOf(const Value& value, std::string& number) {
    if (const auto* text = std::get_if<std::string_view>(&value)) return *text;
    if (const auto* bytes = std::get_if<std::span<const std::uint8_t>>(&value)) {
        return {reinterpret_cast<const char*>(bytes->data()), bytes->size()};
    }
    if (const auto* integer = std::get_if<std::int64_t>(&value)) number = std::to_string(*integer);
    if (const auto* real = std::get_if<double>(&value)) number = realText(*real);
    return number;
}

std::string momentText(const Field& field, const Value& value, const RequestOptions& options) {
    const bool date = field.type == FieldType::Date;
    std::string number;
    const std::string_view text = textOf(value, number);
    const auto moment = text.empty() ? Moment{} : readMoment(text, date ? StoredDate : StoredTime);
    if (!moment) refuseData("HSF2002 Field " + field.name + ": " + std::string(text) + " is no date or time.");
    return writeMoment(*moment, date ? options.datePattern : options.timePattern);
}

Value readNumber(const RecordField& field, std::span<const std::uint8_t> bytes, const RequestOptions& options,
                 std::string& text) {
    const Field& f = field.field;
    if (const auto number = readNumberBytes(f, bytes)) return storedNumber(*number, f.digits, f.decimals, text);
    if (!options.ignoreDecimalErrors) refuseNumber(f, "decimal data error");
    return bytes;
}

Value readMomentValue(const RecordField& field, std::span<const std::uint8_t> bytes, const RequestOptions& options,
                      std::string& text) {
    const bool date = field.field.type == FieldType::Date;
    decodeText(bytes, *field.page, text);
    const auto moment = readMoment(text, date ? options.datePattern : options.timePattern);
    if (!moment) refuseData("HSF2002 Field " + field.field.name + ": " + text + " is no date or time.");
    text = writeMoment(*moment, date ? StoredDate : StoredTime);
    return std::string_view(text);
}

}  // namespace

RecordField makeRecordField(const Field& field, const codepages::CodePage& page, const RequestOptions& options) {
    RecordField result{field, &page};
    if (field.type == FieldType::Date) result.field.length = static_cast<std::uint32_t>(options.datePattern.size());
    if (field.type == FieldType::Time) result.field.length = static_cast<std::uint32_t>(options.timePattern.size());
    return result;
}

void writeValue(const RecordField& field, const Value& value, const RequestOptions& options,
                std::span<std::uint8_t> out) {
    if (field.field.isNumber()) return writeNumberValue(field, value, options, out);
    std::string number;
    switch (field.field.type) {
        case FieldType::Hex: {
            const std::string_view bytes = textOf(value, number);
            return copyPadded({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()}, out, 0);
        }
        case FieldType::Date:
        case FieldType::Time:
            return encodeText(momentText(field.field, value, options), FieldType::Character, *field.page, out);
        default:
            return encodeText(textOf(value, number), field.field.type, *field.page, out);
    }
}

Value readValue(const RecordField& field, std::span<const std::uint8_t> bytes, const RequestOptions& options,
                std::string& text) {
    if (field.field.isNumber()) return readNumber(field, bytes, options, text);
    switch (field.field.type) {
        case FieldType::Hex:
            return bytes;
        case FieldType::Date:
        case FieldType::Time:
            return readMomentValue(field, bytes, options, text);
        default:
            decodeText(bytes, *field.page, text);
            return std::string_view(text);
    }
}

}  // namespace as400
