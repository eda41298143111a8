#include "as400/conversation.h"

#include <algorithm>

namespace as400 {

namespace {

std::span<const std::uint8_t> bytesOf(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

bool begins(std::string_view request, std::string_view keyword) {
    return sameName(request.substr(0, keyword.size()), keyword);
}

[[noreturn]] void noRequest(const char* what) {
    throw Refusal(ReturnCode::NoRequestOpen, std::string("HSF3002 No request is open that ") + what + ".");
}

Answer copyTo(std::span<std::uint8_t> buffer, std::span<const std::uint8_t> record) {
    const auto place = buffer.first(std::min(buffer.size(), record.size()));
    std::ranges::copy(record.first(place.size()), place.begin());
    return {ReturnCode::Success, place};
}

}  // namespace

Answer Conversation::perform(Function function, std::span<std::uint8_t> buffer, std::uint32_t length) {
    try {
        if (length > buffer.size()) {
            return refuse(ReturnCode::LengthInvalid, "HSF3001 Length " + std::to_string(length) + " not valid.");
        }
        return dispatch(function, buffer, length);
    } catch (const Refusal& refusal) {
        return refuse(refusal.code(), refusal.what());
    } catch (const std::exception& error) {
        return refuse(ReturnCode::RequestRefused, std::string("HSF1090 Database: ") + error.what() + ".");
    }
}

Answer Conversation::refuse(ReturnCode code, std::string_view message) {
    message_ = toPc(message, setup_.pcPage);
    return {code, bytesOf(message_)};
}

Answer Conversation::dispatch(Function function, std::span<std::uint8_t> buffer, std::uint32_t length) {
    switch (function) {
        case Function::SendRequest:
            return sendRequest(buffer, length);
        case Function::GetField:
            return getField();
        case Function::GetData:
            return getData(buffer);
        case Function::PutData:
            return putData(buffer.first(length));
        case Function::EndRequest:
            return endRequest();
        case Function::EndData:
            return endData();
        case Function::Reset:
            work_.emplace<std::monostate>();
            options_ = {};
            return {};
    }
    const auto number = std::to_string(static_cast<std::uint32_t>(function));
    throw Refusal(ReturnCode::UnknownFunction, "HSF3000 Function " + number + " not known.");
}

void Conversation::openDatabase() {
    if (database_) return;
    try {
        auto database = std::make_unique<Database>(setup_.databasePath);
        database->hasTable("");  // a file that is no database shows itself with the first statement only
        database_ = std::move(database);
    } catch (const DatabaseError& error) {
        refuseRequest("HSF1091 Database " + setup_.databasePath + " cannot be used: " + error.what() + ".");
    }
    catalogue_ = std::make_unique<Catalogue>(*database_, setup_.hostPage);
}

Answer Conversation::sendRequest(std::span<std::uint8_t> buffer, std::uint32_t length) {
    work_.emplace<std::monostate>();  // a request that was not ended is undone
    fieldPosition_ = 0;
    const std::string_view raw(reinterpret_cast<const char*>(buffer.data()), length);
    if (begins(raw, OptionsKeyword)) {
        readOptions(raw, buffer);
        return {};
    }
    openDatabase();
    const std::string request = fromPc(raw, setup_.pcPage);
    if (begins(request, "REPLACE ")) return replace(request);
    if (begins(request, "EXTRACT ")) return extract(request);
    const auto qualifiers = setup_.dialect == Dialect::Binary ? Qualifiers::FileNames : Qualifiers::Positions;
    work_.emplace<Query>(*database_, *catalogue_, request, qualifiers, options_);
    return {};
}

void Conversation::readOptions(std::string_view request, std::span<const std::uint8_t> buffer) {
    options_ = setup_.dialect == Dialect::Binary ? parseBinaryOptions(buffer) : parseTextOptions(request);
}

Answer Conversation::replace(std::string_view request) {
    const Existing existing = setup_.recordsAppend() ? Existing::AppendedTo : Existing::Replaced;
    const auto& upload = work_.emplace<Upload>(*database_, *catalogue_, request, options_, existing, setup_.hostPage);
    const std::string notice = upload.notice();
    return notice.empty() ? Answer{} : refuse(ReturnCode::TargetExists, notice);
}

Answer Conversation::extract(std::string_view request) {
    const bool binary = setup_.dialect == Dialect::Binary;
    const auto& listing = work_.emplace<Listing>(*catalogue_, request, hostPage(setup_.hostPage), binary);
    return {binary && listing.isEmpty() ? ReturnCode::NoMoreData : ReturnCode::Success, {}};
}

const std::vector<RecordField>& Conversation::openFields() const {
    if (const auto* query = std::get_if<Query>(&work_)) return query->fields();
    if (const auto* upload = std::get_if<Upload>(&work_)) return upload->fields();
    noRequest("has fields");
}

Answer Conversation::getField() {
    const auto& fields = openFields();
    if (fieldPosition_ >= fields.size()) return {ReturnCode::NoMoreData, {}};
    const RecordField& field = fields[fieldPosition_++];
    description_ = describe(field.field, field.page->number());
    return {ReturnCode::Success, description_};
}

Answer Conversation::getData(std::span<std::uint8_t> buffer) {
    if (auto* listing = std::get_if<Listing>(&work_)) {
        const Bytes* record = listing->next();
        return record ? copyTo(buffer, *record) : Answer{ReturnCode::NoMoreData, {}};
    }
    auto* query = std::get_if<Query>(&work_);
    if (!query) noRequest("delivers records");
    if (query->recordLength() > buffer.size()) {
        throw Refusal(ReturnCode::BufferTooSmall, "HSF3003 Record longer than the buffer.");
    }
    if (!query->next(buffer)) return {ReturnCode::NoMoreData, {}};
    return {ReturnCode::Success, buffer.first(query->recordLength())};
}

Answer Conversation::putData(std::span<const std::uint8_t> record) {
    auto* upload = std::get_if<Upload>(&work_);
    if (!upload) noRequest("takes records");
    upload->put(record);
    return {};
}

// The same at every end of a send that the PC has not found fault with itself, be it cancelled or complete.
Answer Conversation::endRequest() { return endUpload(setup_.sendIsWhole()); }

// Of a send: the PC has refused a record of its own, or goes away.
Answer Conversation::endData() { return endUpload(false); }

Answer Conversation::endUpload(bool whole) {
    struct Discard {
        Work& work;
        // NOLINTNEXTLINE(bugprone-exception-escape): the destructors it runs end their work without throwing.
        ~Discard() { work.emplace<std::monostate>(); }
    } discard{work_};
    auto* upload = std::get_if<Upload>(&work_);
    if (!upload || (whole && upload->finish()) || upload->recordCount() == 0) return {};
    return refuse(ReturnCode::NothingKept, "HSF2022 Not all records have come; none of them is kept.");
}

}  // namespace as400
