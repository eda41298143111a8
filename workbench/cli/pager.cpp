#include "pager.h"

#include <algorithm>
#include <iostream>
#include <string>

#include "console.h"

namespace {

using console::Stream;

constexpr int LinesAround = 3;  // two of titles, one of the question

std::string question(bool isLast, bool isWhole) {
    const std::string moving = isWhole ? "" : "> < or arrows: move, ";
    return isLast ? "[" + moving + "q: done]" : "[Enter or blank: next page, " + moving + "q: quit]";
}

}  // namespace

bool Pager::isWanted() { return console::isTerminal(Stream::Input) && console::isTerminal(Stream::Output); }

int Pager::rowsPerPage() { return std::max(console::rows() - LinesAround, 1); }

Pager::Wish Pager::show(bool isLast) {
    bool isWhole = write();
    Wish wish = Wish::NextPage;
    while (!isLast || !isWhole) {
        std::cout << question(isLast, isWhole) << std::flush;
        const std::string key = console::readKey().value_or("q");
        std::cout << "\r\x1b[K" << std::flush;
        const auto step = static_cast<std::size_t>(std::max(console::columns() / 2, 1));
        if (key == "q" || key == "Q" || key == "\x04" || console::interrupted()) {
            wish = Wish::Leave;
            break;
        }
        if (!isWhole && (key == ">" || key == console::RightKey)) {
            if (firstCell_ + step < table_.width()) firstCell_ += step;
            isWhole = write();
        } else if (!isWhole && (key == "<" || key == console::LeftKey)) {
            firstCell_ -= std::min(firstCell_, step);
            isWhole = write();
        } else if (key == " " || key == "\r" || key == "\n") {
            break;
        }
    }
    table_.dropPage();
    return wish;
}

void Pager::writeRest() {
    if (table_.isHolding()) write();
    table_.dropPage();
}

bool Pager::write() {
    const auto cells = static_cast<std::size_t>(console::columns());
    table_.writePage(firstCell_, cells);
    return firstCell_ == 0 && table_.width() <= cells;
}
