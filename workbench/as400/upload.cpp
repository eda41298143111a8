#include "as400/upload.h"

#include <algorithm>

#include "as400/refusal.h"

namespace as400 {

namespace {

// Source lines are numbered 1.00, 2.00 ... up to what the sequence number holds.
constexpr double HighestSequence = 9999.99;

}  // namespace

Upload::Upload(Database& database, Catalogue& catalogue, std::string_view request, const RequestOptions& options,
               Existing existing, std::uint32_t newFilePage)
    : database_(database), options_(options), existing_(existing), transaction_(database) {
    const ReplaceRequest replace = parseReplace(request);
    target_ = openTarget(catalogue, replace, newFilePage);
    chooseFields(replace.fields);
    insert_.emplace(database, insertStatement());
}

std::string Upload::notice() const {
    if (target_.age == Target::New || existing_ == Existing::AppendedTo) return {};
    return "IWS2023 Member " + target_.member.name + " of file " + target_.file.label() +
           " already exists; its records will be replaced.";
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
        if (recordCount_ == 1) prepareMember();
        insert(record);
    } catch (const std::exception& error) {
        refused_ = true;
        refuseData(error.what() + std::string(" Record ") + std::to_string(recordCount_) + ".");
    }
}

void Upload::prepareMember() {
    const std::string table = quotedName(target_.member.table);
    if (existing_ == Existing::Replaced) {
        database_.execute("DELETE FROM " + table);
    } else if (target_.file.isSource()) {
        Statement last(database_, "SELECT MAX(SRCSEQ) FROM " + table);
        if (last.step()) lastSequence_ = sqlite3_column_double(last.handle(), 0);
    }
}

void Upload::insert(std::span<const std::uint8_t> record) {
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        const auto bytes = record.first(fields_[i].field.length);
        record = record.subspan(bytes.size());
        insert_->bind(static_cast<int>(i + 1), readValue(fields_[i], bytes, options_, texts_[i]), SQLITE_STATIC);
    }
    const int sequence = static_cast<int>(fields_.size() + 1);
    if (sqlite3_bind_parameter_count(insert_->handle()) >= sequence) {
        insert_->bind(sequence, std::min(lastSequence_ + recordCount_, HighestSequence));
    }
    insert_->step();
    insert_->reset();
}

bool Upload::finish() {
    insert_.reset();  // a statement in use would keep the transaction from ending
    if (refused_) return false;
    transaction_.commit();
    return true;
}

}  // namespace as400
