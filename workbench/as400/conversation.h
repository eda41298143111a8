#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "as400/catalogue.h"
#include "as400/field.h"
#include "as400/listing.h"
#include "as400/query.h"
#include "as400/refusal.h"
#include "as400/request_options.h"
#include "as400/upload.h"

// One conversation of a PC with the host: requests one after the other, each with its exchanges of field descriptions
// and records.
namespace as400 {

enum class Function : std::uint32_t {
    SendRequest = 1,
    GetField = 2,
    GetData = 3,
    EndRequest = 4,
    Reset = 5,
    PutData = 6,
    EndData = 7,
};

// How the PC talks: with text options and positions as qualifiers, or with the binary options block and file names. The
// second hears of an empty list at once, and reads the field types of a list as they are.
enum class Dialect { Text, Binary };

struct ConversationSetup {
    std::string databasePath;
    Dialect dialect = Dialect::Text;
    std::uint32_t pcPage = 0;     // code page of request texts; 0: UTF-8, or 1252 where it is none
    std::uint32_t hostPage = 37;  // of lists and plain tables

    // What the PC knows of a send, and the protocol has no words for.
    std::function<bool()> recordsAppend = [] { return false; };  // asked with its request: behind those of the member
    std::function<bool()> sendIsWhole = [] { return true; };     // asked with the end of its request: all records came
};

struct Answer {
    ReturnCode code = ReturnCode::Success;
    // In the buffer of the call, or in the conversation until its next call; empty when there is nothing.
    std::span<const std::uint8_t> data;
};

class Conversation {
public:
    explicit Conversation(ConversationSetup setup) : setup_(std::move(setup)) {}

    // `buffer` is the whole shared buffer, `length` what the PC put into it. Never throws: a refusal is an answer with
    // a message text.
    Answer perform(Function function, std::span<std::uint8_t> buffer, std::uint32_t length);

private:
    using Work = std::variant<std::monostate, Query, Upload, Listing>;

    Answer dispatch(Function function, std::span<std::uint8_t> buffer, std::uint32_t length);
    Answer sendRequest(std::span<std::uint8_t> buffer, std::uint32_t length);
    Answer replace(std::string_view request);
    Answer extract(std::string_view request);
    void readOptions(std::string_view request, std::span<const std::uint8_t> buffer);
    Answer getField();
    Answer getData(std::span<std::uint8_t> buffer);
    Answer putData(std::span<const std::uint8_t> record);
    Answer endRequest();
    Answer endData();
    Answer endUpload(bool whole);
    const std::vector<RecordField>& openFields() const;
    void openDatabase();
    Answer refuse(ReturnCode code, std::string_view message);

    ConversationSetup setup_;
    RequestOptions options_;
    std::unique_ptr<Database> database_;
    std::unique_ptr<Catalogue> catalogue_;
    Work work_;
    std::size_t fieldPosition_ = 0;
    std::array<std::uint8_t, DescriptionLength> description_{};
    std::string message_;
};

}  // namespace as400
