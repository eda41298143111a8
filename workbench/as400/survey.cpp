#include "as400/survey.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>

#include "as400/date_format.h"
#include "as400/host_text.h"

namespace as400 {

namespace {

// What a floating point value holds exactly, and what a packed field can have.
constexpr std::size_t RealDigits = 15, MostDecimals = 9, MostDigits = 31;

struct Declared {
    std::string word;
    std::uint32_t size = 0, decimals = 0;
};

Declared parseDeclared(std::string_view text) {
    Declared declared;
    const auto open = text.find('(');
    declared.word = upperCase(text.substr(0, std::min(open, text.find(' '))));
    if (open == std::string_view::npos) return declared;
    const char* end = text.data() + text.size();
    const auto size = std::from_chars(text.data() + open + 1, end, declared.size);
    const char* next = std::find_if(size.ptr, end, [](char c) { return c != ',' && c != ' '; });
    std::from_chars(next, end, declared.decimals);
    return declared;
}

// The host type that a declared type asks for; null where only the values tell.
std::optional<Field> declaredField(std::string_view text) {
    const Declared declared = parseDeclared(text);
    const auto is = [&](std::initializer_list<std::string_view> words) {
        return std::ranges::find(words, declared.word) != words.end();
    };
    const bool sized = declared.size > 0;
    try {
        if (is({"SMALLINT", "INT2"})) return makeField("", "BINARY", 2, 0, "");
        if (is({"INT", "INTEGER", "BIGINT", "MEDIUMINT"})) return makeField("", "BINARY", 4, 0, "");
        if (is({"DATE"})) return makeField("", "DATE", 10, 0, "");
        if (is({"TIME"})) return makeField("", "TIME", 8, 0, "");
        if (sized && is({"DECIMAL", "DEC", "NUMERIC"})) {
            return makeField("", "PACKED", declared.size, declared.decimals, "");
        }
        if (sized && is({"CHAR", "CHARACTER", "VARCHAR", "NCHAR", "NVARCHAR", "TEXT"})) {
            return makeField("", "CHAR", declared.size, 0, "");
        }
        if (sized && is({"BLOB", "BINARY", "VARBINARY"})) return makeField("", "HEX", declared.size, 0, "");
    } catch (const std::invalid_argument&) {
        // A size that no host field has.
    }
    return std::nullopt;
}

std::size_t digitCount(std::int64_t value) {
    const std::string text = std::to_string(value);
    return text.size() - (value < 0 ? 1 : 0);
}

}  // namespace

void Survey::add(const Value& value, const codepages::CodePage& page) {
    if (const auto* integer = std::get_if<std::int64_t>(&value)) return addInteger(*integer);
    if (const auto* real = std::get_if<double>(&value)) return addReal(*real);
    if (const auto* text = std::get_if<std::string_view>(&value)) {
        anyText_ = true;
        length_ = std::max(length_, encodedLength(*text, page));
        allDates_ = allDates_ && readMoment(*text, StoredDate);
        allTimes_ = allTimes_ && readMoment(*text, StoredTime);
    } else if (const auto* bytes = std::get_if<std::span<const std::uint8_t>>(&value)) {
        anyBytes_ = true;
        length_ = std::max(length_, bytes->size());
    }
}

void Survey::addInteger(std::int64_t value) {
    anyInteger_ = true;
    smallest_ = std::min(smallest_, value);
    largest_ = std::max(largest_, value);
    integerDigits_ = std::max(integerDigits_, digitCount(value));
    length_ = std::max(length_, digitCount(value) + 1);
}

void Survey::addReal(double value) {
    anyReal_ = true;
    std::array<char, 400> buffer;
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value), std::chars_format::fixed);
    const std::string_view text(buffer.data(), end.ptr);
    const auto point = std::min(text.find('.'), text.size());
    const std::size_t fraction = point == text.size() ? 0 : text.size() - point - 1;
    const std::size_t whole = text.starts_with("0") ? 0 : point;
    integerDigits_ = std::max(integerDigits_, point);
    decimals_ = std::max(decimals_, std::min({fraction, MostDecimals, RealDigits - std::min(whole, RealDigits)}));
    length_ = std::max(length_, text.size() + 1);
}

Field Survey::deduce(std::string_view column, std::string_view declared) const {
    const auto wanted = declaredField(declared);
    Field field = wanted && declaredFits(*wanted) ? *wanted : fromValues();
    field.name = fieldNameFor(column);
    field.column = column;
    return field;
}

bool Survey::declaredFits(const Field& field) const {
    switch (field.type) {
        case FieldType::Binary: {
            const std::int64_t limit = std::int64_t{1} << (field.length * 8 - 1);
            return !anyText_ && !anyBytes_ && !anyReal_ && smallest_ >= -limit && largest_ < limit;
        }
        case FieldType::Packed:
            // Bytes are damaged numbers, which a number field can deliver.
            return !anyText_ && decimals_ <= field.decimals && integerDigits_ <= field.digits - field.decimals;
        case FieldType::Date:
            return allDates_ && !anyBytes_ && !anyInteger_ && !anyReal_;
        case FieldType::Time:
            return allTimes_ && !anyBytes_ && !anyInteger_ && !anyReal_;
        case FieldType::Hex:
            return !anyText_ && !anyInteger_ && !anyReal_ && length_ <= field.length;
        default:
            return !anyBytes_ && length_ <= field.length;
    }
}

Field Survey::fromValues() const {
    const auto length = static_cast<std::uint32_t>(length_);
    if (anyText_ || (anyBytes_ && (anyInteger_ || anyReal_))) {
        return makeField("", "CHAR", std::min(length, 4096u), 0, "");
    }
    if (anyBytes_) return makeField("", "HEX", std::min(length, 2046u), 0, "");
    return anyInteger_ || anyReal_ ? number() : makeField("", "CHAR", 1, 0, "");
}

Field Survey::number() const {
    const bool small = smallest_ >= INT32_MIN && largest_ <= INT32_MAX;
    if (!anyReal_ && small) return makeField("", "BINARY", 4, 0, "");
    const std::size_t digits = std::clamp(integerDigits_ + decimals_, RealDigits, MostDigits);
    return makeField("", "PACKED", static_cast<std::uint32_t>(digits), static_cast<std::uint32_t>(decimals_), "");
}

std::string fieldNameFor(std::string_view column) {
    std::string name = upperCase(column.substr(0, 29));
    std::ranges::replace(name, ' ', '_');
    return name;
}

}  // namespace as400
