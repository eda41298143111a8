#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace codepages {

// A table of 65,536 values of 16 bits of which only the rows in use take memory. A row is the high byte of the index.
class RowTable {
public:
    explicit RowTable(std::uint16_t absent) : absent_(absent) { rowOf_.fill(NoRow); }

    std::uint16_t at(std::uint8_t row, std::uint8_t column) const {
        return hasRow(row) ? values_[rowOf_[row] + std::size_t{column}] : absent_;
    }
    std::uint16_t at(std::uint16_t index) const { return at(std::uint8_t(index >> 8), std::uint8_t(index & 0xFF)); }

    bool hasRow(std::uint8_t row) const { return rowOf_[row] != NoRow; }

    void set(std::uint8_t row, std::uint8_t column, std::uint16_t value) {
        if (!hasRow(row)) {
            rowOf_[row] = std::uint32_t(values_.size());
            values_.resize(values_.size() + 256, absent_);
        }
        values_[rowOf_[row] + std::size_t{column}] = value;
    }
    void set(std::uint16_t index, std::uint16_t value) {
        set(std::uint8_t(index >> 8), std::uint8_t(index & 0xFF), value);
    }

private:
    static constexpr std::uint32_t NoRow = 0xFFFFFFFF;

    std::uint16_t absent_;
    std::array<std::uint32_t, 256> rowOf_;  // where the row begins in values_
    std::vector<std::uint16_t> values_;
};

}  // namespace codepages
