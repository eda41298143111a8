#include "as400/query.h"

#include <algorithm>

#include "as400/lookup.h"
#include "as400/refusal.h"

namespace as400 {

namespace {

constexpr std::uint32_t LongestRecord = 4096;

std::string expressionName(const char* columnName, int column) {
    const std::string name = columnName ? fieldNameFor(columnName) : std::string();
    if (isHostName(name)) return name;
    const std::string number = std::to_string(column + 1);
    return "EXPR" + std::string(number.size() < 2 ? "0" : "") + number;
}

}  // namespace

Query::Query(Database& database, Catalogue& catalogue, std::string_view request, Qualifiers qualifiers,
             const RequestOptions& options)
    : catalogue_(catalogue), options_(options) {
    const QueryText text = splitQuery(request);
    openFiles(text.files);
    std::string sql = "SELECT ";
    sql += text.columns == "*" ? starColumns() : withAliases(text.columns, text.files, qualifiers);
    for (std::size_t i = 0; i < sources_.size(); ++i) {
        sql += (i == 0 ? " FROM " : ", ") + quotedName(sources_[i].member.table) + " AS " + aliasOf(i);
    }
    sql += " " + withAliases(text.rest, text.files, qualifiers);
    try {
        rows_.emplace(database, sql);
        describeColumns();
    } catch (const DatabaseError& error) {
        refuseRequest(std::string("HSF1020 Request refused: ") + error.what() + ".");
    }
    if (recordLength_ > LongestRecord) {
        refuseRequest("HSF1021 Record of " + std::to_string(recordLength_) + " bytes too long to transfer.");
    }
}

void Query::openFiles(const std::vector<FileReference>& list) {
    for (const FileReference& reference : list) {
        HostFile file = requireFile(catalogue_, reference);
        HostMember member = requireMember(catalogue_, file, reference.member);
        sources_.push_back({std::move(file), std::move(member)});
    }
}

std::string Query::starColumns() const {
    std::string columns;
    for (std::size_t i = 0; i < sources_.size(); ++i) {
        for (const Field& field : offeredFields(sources_[i].file)) {
            columns += (columns.empty() ? "" : ", ") + aliasOf(i) + "." + quotedName(field.column);
        }
    }
    return columns;
}

const Query::Source* Query::sourceOf(int column) const {
    const char* table = sqlite3_column_table_name(rows_->handle(), column);
    if (!table) return nullptr;
    const auto isTable = [&](const Source& source) { return sameName(source.member.table, table); };
    const auto found = std::ranges::find_if(sources_, isTable);
    return found == sources_.end() ? nullptr : &*found;
}

const Field* Query::fieldOf(int column) const {
    const Source* source = sourceOf(column);
    const char* origin = sqlite3_column_origin_name(rows_->handle(), column);
    if (!source || !origin) return nullptr;
    const auto isOrigin = [&](const Field& field) { return sameName(field.column, origin); };
    const auto found = std::ranges::find_if(source->file.fields, isOrigin);
    return found == source->file.fields.end() ? nullptr : &*found;
}

void Query::describeColumns() {
    std::vector<Survey> surveys;
    for (int column = 0; column < rows_->columnCount(); ++column) {
        const Field* known = fieldOf(column);
        if (!known && surveys.empty()) surveys = surveyRows();
        Field field = known ? *known : surveys[static_cast<std::size_t>(column)].deduce("", "");
        if (!known) field.name = expressionName(sqlite3_column_name(rows_->handle(), column), column);
        const Source* source = sourceOf(column);
        const HostFile& file = source ? source->file : sources_.front().file;
        fields_.push_back(makeRecordField(field, hostPage(file.page), options_));
        recordLength_ += fields_.back().field.length;
    }
}

// Expressions have no declared size, so their values are looked at before the first record is delivered.
std::vector<Survey> Query::surveyRows() {
    const codepages::CodePage& page = hostPage(sources_.front().file.page);
    std::vector<Survey> surveys(static_cast<std::size_t>(rows_->columnCount()));
    while (rows_->step()) {
        for (std::size_t i = 0; i < surveys.size(); ++i) surveys[i].add(rows_->value(static_cast<int>(i)), page);
    }
    rows_->reset();
    return surveys;
}

bool Query::next(std::span<std::uint8_t> out) {
    if (ended_) return false;  // SQLite would begin again
    try {
        if (!rows_->step()) {
            ended_ = true;
            rows_->reset();  // gives the database back to those who write
            return false;
        }
    } catch (const DatabaseError& error) {
        refuseData(std::string("HSF2010 Record cannot be read: ") + error.what() + ".");
    }
    ++recordNumber_;
    std::size_t position = 0;
    try {
        for (std::size_t i = 0; i < fields_.size(); ++i) {
            const std::uint32_t length = fields_[i].field.length;
            writeValue(fields_[i], rows_->value(static_cast<int>(i)), options_, out.subspan(position, length));
            position += length;
        }
    } catch (const Refusal& refusal) {
        refuseData(refusal.what() + std::string(" Record ") + std::to_string(recordNumber_) + ".");
    }
    return true;
}

}  // namespace as400
