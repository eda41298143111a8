#pragma once

#include "record/field_plan.h"
#include "services/owned.h"

namespace record {

// The fields of a host record, in host order. Owns them.
class HostLayout {
public:
    explicit HostLayout(const FileRules& rules) : rules_(rules) {}
    ~HostLayout();
    HostLayout(const HostLayout&) = delete;
    HostLayout& operator=(const HostLayout&) = delete;

    // Takes the 40 bytes of a description. False when there is no memory for the field.
    bool append(std::string_view description);

    const FileRules& rules() const { return rules_; }
    bool isEmpty() const { return !first_; }
    std::int32_t count() const { return count_; }

    class Iterator {
    public:
        explicit Iterator(PlannedField* field) : field_(field) {}
        PlannedField& operator*() const { return *field_; }
        Iterator& operator++() {
            field_ = field_->next;
            return *this;
        }
        bool operator==(const Iterator&) const = default;

    private:
        PlannedField* field_;
    };
    Iterator begin() const { return Iterator(first_); }
    Iterator end() const { return Iterator(nullptr); }

private:
    FileRules rules_;
    PlannedField* first_ = nullptr;
    PlannedField* last_ = nullptr;
    std::int32_t count_ = 0;
};

}  // namespace record
