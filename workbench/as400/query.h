#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "as400/catalogue.h"
#include "as400/query_text.h"
#include "as400/record.h"
#include "as400/survey.h"

// An accepted SELECT request: its fields and its records.
namespace as400 {

class Query {
public:
    // Throws a Refusal naming what is wrong with the request.
    Query(Database& database, Catalogue& catalogue, std::string_view request, Qualifiers qualifiers,
          const RequestOptions& options);

    const std::vector<RecordField>& fields() const { return fields_; }
    std::uint32_t recordLength() const { return recordLength_; }
    // Writes the next record to the start of `out`; false after the last one. A record that is refused is not lost: the
    // next call goes on behind it.
    bool next(std::span<std::uint8_t> out);

private:
    struct Source {
        HostFile file;
        HostMember member;
    };
    void openFiles(const std::vector<FileReference>& list);
    std::string starColumns() const;
    void describeColumns();
    const Source* sourceOf(int column) const;  // null for an expression
    const Field* fieldOf(int column) const;
    std::vector<Survey> surveyRows();

    Catalogue& catalogue_;
    RequestOptions options_;
    std::vector<Source> sources_;
    std::vector<RecordField> fields_;
    std::uint32_t recordLength_ = 0;
    std::uint32_t recordNumber_ = 0;
    bool ended_ = false;
    std::optional<Statement> rows_;
};

}  // namespace as400
