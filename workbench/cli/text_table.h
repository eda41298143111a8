#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

// A table written as it grows: column titles, a rule, rows. Texts are UTF-8.
class TextTable {
public:
    explicit TextTable(std::ostream& out) : out_(out) {}

    void clear();  // no columns, no rows
    void addColumn(std::uint32_t index, const std::string& title, std::uint32_t width, bool right);
    void startRow();
    void setCell(std::uint32_t column, const std::string& text);  // of the row that was started last
    void finishRow();                                             // writes it; nothing when none is open
    void startPage() { headingWritten_ = false; }                 // the titles come again before the next row
    void end();                                                   // a table without a row still shows its titles
    std::uint64_t rows() const { return rows_; }

private:
    struct Column {
        std::string title;
        std::size_t width = 0;
        bool right = false;
    };

    void writeHeading();
    void writeLine(const std::vector<std::string>& cells);

    std::ostream& out_;
    std::vector<Column> columns_;
    std::vector<std::string> cells_;
    bool rowOpen_ = false;
    bool headingWritten_ = false;
    std::uint64_t rows_ = 0;
};
