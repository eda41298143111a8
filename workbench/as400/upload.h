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
// Everything, the creation of file and member included, is one transaction, which finish() keeps unless the host
// refused a record. An upload that is destroyed without it leaves all as it was before the request. The old records of
// the member give way to the first new one, so that a transfer which the user declines when told that the target
// exists, and one that sends nothing, leave them alone; or the new records go behind them.
namespace as400 {

enum class Existing { Replaced, AppendedTo };

class Upload {
public:
    Upload(Database& database, Catalogue& catalogue, std::string_view request, const RequestOptions& options,
           Existing existing, std::uint32_t newFilePage);

    // The records of a member are about to be replaced: IWS2023 with its text; else empty.
    std::string notice() const;
    std::uint32_t recordCount() const { return recordCount_; }
    const std::vector<RecordField>& fields() const { return fields_; }
    std::uint32_t recordLength() const { return recordLength_; }
    void put(std::span<const std::uint8_t> record);  // throws a Refusal
    bool finish();                                   // false when nothing was kept

private:
    void chooseFields(const std::vector<std::string>& names);
    std::string insertStatement() const;
    void insert(std::span<const std::uint8_t> record);
    void prepareMember();

    Database& database_;
    RequestOptions options_;
    Existing existing_;
    Transaction transaction_;
    Target target_;
    std::vector<RecordField> fields_;
    std::vector<std::string> texts_;  // of the record being inserted, one for each field
    std::uint32_t recordLength_ = 0;
    std::uint32_t recordCount_ = 0;
    double lastSequence_ = 0;  // of the source lines that stay
    bool refused_ = false;
    std::optional<Statement> insert_;
};

}  // namespace as400
