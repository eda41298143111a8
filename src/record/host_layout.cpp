#include "record/host_layout.h"

namespace record {

HostLayout::~HostLayout() {
    while (PlannedField* field = first_) {
        first_ = field->next;
        services::Owned<PlannedField>::adopt(field).reset();
    }
}

bool HostLayout::append(std::string_view description) {
    PlannedField* added = services::Owned<PlannedField>::make(description, rules_).release();
    if (!added) return false;
    (last_ ? last_->next : first_) = added;
    last_ = added;
    ++count_;
    return true;
}

}  // namespace record
