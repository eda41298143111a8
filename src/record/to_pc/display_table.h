#pragma once

#include "record/host_layout.h"
#include "services/text_display.h"

// Records as rows of the text display, a column per field.
namespace record::to_pc {

// Adds the columns to a display and sets the fields' column widths. False when there are no fields.
bool defineDisplayColumns(HostLayout& layout, services::TextDisplayHandle display);

// One row; none without a display.
class DisplayRow {
public:
    explicit DisplayRow(services::TextDisplayHandle display)
        : display_(display), row_(display ? services::TextDisplayAddRow(display, 0) : 0) {}

    explicit operator bool() const { return display_ != 0; }
    void setCell(std::uint32_t column, const char* text) const {
        services::TextDisplaySetCell(display_, text, row_, column);
    }

private:
    services::TextDisplayHandle display_;
    services::TextRowHandle row_;
};

}  // namespace record::to_pc
