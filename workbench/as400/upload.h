#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "as400/record.h"
#include "as400/target.h"

// An accepted REPLACE request: the records that the PC sends into one member.
//
// Everything, the creation of file and member included, is one transaction. finish() keeps it, whether all records came
// or the PC broke the transfer off (the host is not told which, and what was sent stays sent), unless the host itself
// refused a record: then, as when the upload is destroyed without finish(), all is as it was before the request.
// The old records of the member give way to the first new one, so that a transfer which the user declines when told
// that the target exists, and one that sends nothing, leave them alone.
namespace as400 {

class Upload {
public:
    Upload(Database& database, Catalogue& catalogue, std::string_view request, const RequestOptions& options,
           std::uint32_t newFilePage);

    const std::string& notice() const { return target_.notice; }
    const std::vector<RecordField>& fields() const { return fields_; }
    std::uint32_t recordLength() const { return recordLength_; }
    void put(std::span<const std::uint8_t> record);  // throws a Refusal
    void finish();

private:
    void chooseFields(const std::vector<std::string>& names);
    std::string insertStatement() const;
    void insert(std::span<const std::uint8_t> record);
    void emptyMember();

    Database& database_;
    RequestOptions options_;
    Transaction transaction_;
    Target target_;
    std::vector<RecordField> fields_;
    std::vector<std::string> texts_;  // of the record being inserted, one for each field
    std::uint32_t recordLength_ = 0;
    std::uint32_t recordCount_ = 0;
    bool refused_ = false;
    std::optional<Statement> insert_;
};

}  // namespace as400
