#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "as400/database.h"
#include "as400/field.h"

namespace codepages {
class CodePage;
}

// Fields for columns that no host file describes: those of plain tables, and expressions of a query. They are deduced
// from the values, and from the declared type where the values agree with it.
namespace as400 {

class Survey {
public:
    void add(const Value& value, const codepages::CodePage& page);

    // `declared` is empty for an expression.
    Field deduce(std::string_view column, std::string_view declared) const;

private:
    bool declaredFits(const Field& field) const;
    Field fromValues() const;
    Field number() const;
    void addInteger(std::int64_t value);
    void addReal(double value);

    bool anyText_ = false, anyBytes_ = false, anyReal_ = false, anyInteger_ = false;
    bool allDates_ = true, allTimes_ = true;
    std::int64_t smallest_ = 0, largest_ = 0;
    std::size_t integerDigits_ = 1, decimals_ = 0, length_ = 1;
};

// A host name of at most 29 characters without blanks.
std::string fieldNameFor(std::string_view column);

}  // namespace as400
