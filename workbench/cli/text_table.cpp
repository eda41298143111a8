#include "text_table.h"

#include <algorithm>

#include "pc_text.h"

namespace {

std::string padded(const std::string& text, std::size_t width, bool right) {
    const std::size_t cells = cellWidth(text);
    const std::string padding(cells < width ? width - cells : 0, ' ');
    return right ? padding + text : text + padding;
}

}  // namespace

void TextTable::clear() {
    columns_.clear();
    cells_.clear();
    page_.clear();
    rowOpen_ = false;
    rows_ = 0;
}

void TextTable::addColumn(std::uint32_t index, const std::string& title, std::uint32_t width, bool right) {
    if (columns_.size() <= index) columns_.resize(index + std::size_t{1});
    const std::string visible = withoutControls(title);
    columns_[index] = {visible, std::max<std::size_t>(width, cellWidth(visible)), right};
}

void TextTable::startRow() {
    finishRow();
    cells_.assign(columns_.size(), std::string());
    rowOpen_ = true;
}

void TextTable::setCell(std::uint32_t column, const std::string& text) {
    if (column < cells_.size()) cells_[column] = withoutControls(text);
}

void TextTable::finishRow() {
    if (!rowOpen_) return;
    rowOpen_ = false;
    if (rows_++ == 0 && !held_) writeHeading();
    writeOrHold(lineOf(cells_));
}

void TextTable::end() {
    finishRow();
    if (rows_ == 0 && !held_) writeHeading();
    out_.flush();
}

void TextTable::writePage(std::size_t firstCell, std::size_t cells) {
    if (rows_ > 0 && page_.empty()) return;
    const auto write = [&](const std::string& line) {
        const bool goesOn = cellWidth(line) > firstCell + cells;
        out_ << cellsOf(line, firstCell, goesOn ? cells - 1 : cells) << (goesOn ? ">" : "") << '\n';
    };
    for (const std::string& line : heading()) write(line);
    for (const std::string& line : page_) write(line);
    out_.flush();
}

std::size_t TextTable::width() const {
    std::size_t longest = cellWidth(heading().back());
    for (const std::string& line : page_) longest = std::max(longest, cellWidth(line));
    return longest;
}

void TextTable::writeHeading() {
    for (const std::string& line : heading()) out_ << line << '\n';
}

void TextTable::writeOrHold(const std::string& line) {
    if (held_) {
        page_.push_back(line);
    } else {
        out_ << line << '\n';
    }
}

std::array<std::string, 2> TextTable::heading() const {
    std::vector<std::string> titles, rules;
    for (const Column& column : columns_) {
        titles.push_back(column.title);
        rules.emplace_back(column.width, '-');
    }
    return {lineOf(titles), lineOf(rules)};
}

std::string TextTable::lineOf(const std::vector<std::string>& cells) const {
    std::string line;
    for (std::size_t index = 0; index < columns_.size(); ++index) {
        if (index > 0) line += "  ";
        line += padded(cells[index], columns_[index].width, columns_[index].right);
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line;
}
