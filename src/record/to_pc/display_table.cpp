#include "record/to_pc/display_table.h"

#include <algorithm>

namespace record::to_pc {

bool defineDisplayColumns(HostLayout& layout, services::TextDisplayHandle display) {
    std::uint32_t index = 0;
    for (PlannedField& each : layout) {
        const std::uint32_t point = each.field.isNumber() && each.field.decimals() > 0 ? 1 : 0;
        each.columnWidth = std::max(each.plan.width + point, each.field.nameLength());
        services::TextDisplayAddColumn(display, index++, each.field.name(), each.columnWidth,
                                       each.field.isCharacter() ? services::AlignLeft : services::AlignRight);
    }
    return index > 0;
}

}  // namespace record::to_pc
