#pragma once

#include "text_table.h"

// Shows a table page by page at the terminal on standard output, and asks the person there what is next. Lines that are
// wider than the terminal are cut at its edge, and the person moves them.
class Pager {
public:
    enum class Wish { NextPage, Leave };

    explicit Pager(TextTable& table) : table_(table) {}

    // Where a person is at both ends.
    static bool isWanted();
    // Rows that fit on the terminal below the titles and above the question.
    static int rowsPerPage();

    // Writes the rows that the table holds, and asks. After the last page only a person who cannot see whole lines is
    // asked. To leave is also what an interrupt and a terminal that is gone mean.
    Wish show(bool isLast);
    // Writes what is still held, when there is no page to come or something else is to be read.
    void writeRest();

private:
    bool write();  // whether all lines are whole

    TextTable& table_;
    std::size_t firstCell_ = 0;  // of the lines, at the left edge
};
