#include "as400/upload.h"

#include <algorithm>

#include "as400/refusal.h"

namespace as400 {

namespace {

// Source lines are numbered 1.00, 2.00 ... up to what the sequence number holds.
constexpr double HighestSequence = 9999.99;

}  // namespace

Upload::Upload(Database& database, Catalogue& catalogue, std::string_view request, const RequestOptions& options,
               std::uint32_t newFilePage)
    : database_(database), options_(options), transaction_(database) {
    const ReplaceRequest replace = parseReplace(request);
    target_ = openTarget(catalogue, replace, newFilePage);
    chooseFields(replace.fields);
    insert_.emplace(database, insertStatement());
}

void Upload::chooseFields(const std::vector<std::string>& names) {
    std::vector<Field> chosen;
    for (const std::string& name : names) {
        const Field* field = findField(target_.file.fields, name);
        if (!field) refuseRequest("HSF1040 Field " + name + " not in file " + target_.file.label() + ".");
        if (findField(chosen, name)) refuseRequest("HSF1041 Field " + name + " named twice.");
        chosen.push_back(*field);
    }
    if (names.empty()) chosen = offeredFields(target_.file);
    const codepages::CodePage& page = hostPage(target_.file.page);
    for (const Field& field : chosen) {
        fields_.push_back(makeRecordField(field, page, options_));
        recordLength_ += fields_.back().field.length;
    }
    texts_.resize(fields_.size());
}

std::string Upload::insertStatement() const {
    std::string columns, places;
    for (const RecordField& field : fields_) {
        columns += (columns.empty() ? "" : ", ") + quotedName(field.field.column);
        places += places.empty() ? "?" : ", ?";
    }
    const auto isSequence = [](const RecordField& field) { return field.field.name == "SRCSEQ"; };
    if (target_.file.isSource() && std::ranges::none_of(fields_, isSequence)) {
        columns += ", SRCSEQ";
        places += ", ?";
    }
    return "INSERT INTO " + quotedName(target_.member.table) + "(" + columns + ") VALUES(" + places + ")";
}

void Upload::put(std::span<const std::uint8_t> record) {
    if (refused_) refuseData("HSF2020 A record was refused; end the request.");
    if (record.size() != recordLength_) {
        refused_ = true;
        throw Refusal(ReturnCode::RecordMisfit, "HSF2021 Record of " + std::to_string(record.size()) + " bytes, file " +
                                                    target_.file.label() + " takes " + std::to_string(recordLength_) +
                                                    ".");
    }
    ++recordCount_;
    try {
        if (recordCount_ == 1) emptyMember();
        insert(record);
    } catch (const std::exception& error) {
        refused_ = true;
        refuseData(error.what() + std::string(" Record ") + std::to_string(recordCount_) + ".");
    }
}

void Upload::emptyMember() { database_.execute("DELETE FROM " + quotedName(target_.member.table)); }

void Upload::insert(std::span<const std::uint8_t> record) {
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        const auto bytes = record.first(fields_[i].field.length);
        record = record.subspan(bytes.size());
        insert_->bind(static_cast<int>(i + 1), readValue(fields_[i], bytes, options_, texts_[i]), SQLITE_STATIC);
    }
    const int sequence = static_cast<int>(fields_.size() + 1);
    if (sqlite3_bind_parameter_count(insert_->handle()) >= sequence) {
        insert_->bind(sequence, std::min(double(recordCount_), HighestSequence));
    }
    insert_->step();
    insert_->reset();
}

void Upload::finish() {
    insert_.reset();  // a statement in use would keep the transaction from ending
    if (!refused_) transaction_.commit();
}

}  // namespace as400
