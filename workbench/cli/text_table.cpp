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
    rowOpen_ = headingWritten_ = false;
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
    ++rows_;
}

void TextTable::setCell(std::uint32_t column, const std::string& text) {
    if (column < cells_.size()) cells_[column] = withoutControls(text);
}

void TextTable::finishRow() {
    if (!rowOpen_) return;
    if (!headingWritten_) writeHeading();
    writeLine(cells_);
    rowOpen_ = false;
}

void TextTable::end() {
    finishRow();
    if (rows_ == 0 && !headingWritten_) writeHeading();
    out_.flush();
}

void TextTable::writeHeading() {
    std::vector<std::string> titles, rules;
    for (const Column& column : columns_) {
        titles.push_back(column.title);
        rules.emplace_back(column.width, '-');
    }
    writeLine(titles);
    writeLine(rules);
    headingWritten_ = true;
}

void TextTable::writeLine(const std::vector<std::string>& cells) {
    std::string line;
    for (std::size_t index = 0; index < columns_.size(); ++index) {
        if (index > 0) line += "  ";
        line += padded(cells[index], columns_[index].width, columns_[index].right);
    }
    line.erase(line.find_last_not_of(' ') + 1);
    out_ << line << '\n';
}
