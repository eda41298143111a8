#pragma once

#include <array>
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

// A table written as it grows: column titles, a rule, rows. Or, held, page by page: its rows are kept until writePage.
// Texts are UTF-8.
class TextTable {
public:
    TextTable(std::ostream& out, bool held) : out_(out), held_(held) {}

    void clear();  // no columns, no rows
    void addColumn(std::uint32_t index, const std::string& title, std::uint32_t width, bool right);
    void startRow();
    void setCell(std::uint32_t column, const std::string& text);  // of the row that was started last
    void finishRow();                                             // nothing when none is open
    void end();                                                   // a table without a row still shows its titles

    // Writes titles and rows of the page that is held, of each line what stands in `cells` cells from the first on; a
    // line that goes on behind them says so in the last one.
    void writePage(std::size_t firstCell, std::size_t cells);
    void dropPage() { page_.clear(); }
    bool isHolding() const { return !page_.empty(); }
    std::size_t width() const;  // of the longest line that is held, in cells
    std::uint64_t rows() const { return rows_; }

private:
    struct Column {
        std::string title;
        std::size_t width = 0;
        bool right = false;
    };

    void writeHeading();
    void writeOrHold(const std::string& line);
    std::array<std::string, 2> heading() const;  // titles, and a rule that is as long as the longest of them
    std::string lineOf(const std::vector<std::string>& cells) const;

    std::ostream& out_;
    bool held_;
    std::vector<Column> columns_;
    std::vector<std::string> cells_;
    std::vector<std::string> page_;  // lines
    bool rowOpen_ = false;
    std::uint64_t rows_ = 0;
};
