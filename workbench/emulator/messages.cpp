#include "emulator/messages.h"

#include <cstring>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "Z7XFRPCS/session.h"
#include "emulator/catalogue.h"
#include "emulator/inserts.h"
#include "emulator/journal.h"
#include "emulator/sessions.h"
#include "emulator/text_records.h"
#include "emulator/user_interface.h"

namespace emulator {
namespace {

using journalled::Call;

std::set<std::uint32_t> disabled;

// One insert, and which of the two it is.
struct Insert {
    bool isNumber;
    std::uint32_t number;
    const char* text;

    std::string shown() const { return isNumber ? std::to_string(number) : std::string(text ? text : ""); }
};

void append(std::string& line, const Insert& insert) {
    if (insert.isNumber)
        journalled::append(line, insert.number);
    else
        journalled::append(line, insert.text);
}

Insert textInsert(const char* text) { return {false, 0, text}; }
Insert numberInsert(std::uint32_t number) { return {true, number, nullptr}; }

// The catalogue says what the place holds; a place it does not know is a number.
Insert insertAt(const catalogue::Message& message, std::size_t place, ZhstInsert value) {
    if (place < message.inserts.size() && message.inserts[place] == 't')
        return textInsert(reinterpret_cast<const char*>(value));  // as it travels
    return numberInsert(static_cast<std::uint32_t>(value));
}

std::string withoutTrailingBlanks(std::string text) {
    while (!text.empty() && text.back() == ' ') text.pop_back();
    return text;
}

// What all message boxes are given in front of their inserts.
MessageBox headOf(ZhstWindow owner, std::uint32_t id, std::uint32_t flags, std::uint32_t helpId) {
    MessageBox box;
    box.id = id;
    box.owner = owner;
    box.flags = flags;
    box.helpId = helpId;
    return box;
}

std::int32_t show(MessageBox box, std::span<const Insert> inserts) {
    for (const Insert& insert : inserts) box.inserts.push_back(insert.shown());
    box.text = withoutTrailingBlanks(fillInserts(catalogue::findMessage(box.id).text, box.inserts));
    return userInterface().showMessage(box);
}

std::int32_t showReady(MessageBox box, bool scrolling, const char* text) {
    box.scrolling = scrolling;
    box.text = text ? text : "";
    return userInterface().showMessage(box);
}

}  // namespace

void disableMessage(std::uint32_t id) { disabled.insert(id); }

bool messageEnabled(std::uint32_t id) { return !disabled.contains(0) && !disabled.contains(id); }

MessageBox readyTextBox(ZhstSession session, MessageSource source) {
    MessageBox box;
    box.source = source;
    if (const Session* found = findSession(session, SessionPart::Session))
        box.owner = found->handle(SessionPart::Window);
    return box;
}

void resetMessages() { disabled.clear(); }

}  // namespace emulator

using namespace emulator;

std::uint32_t ZHST_CALL zhstIsMessageEnabled(ZhstSettings settings, std::uint32_t message) {
    return Call("IsMessageEnabled", settings, journalled::Message{message}).result(messageEnabled(message) ? 1u : 0u);
}

void ZHST_CALL zhstLoadMessageText(ZhstSession session, std::uint32_t table, std::uint32_t index, char* buffer,
                                   std::uint32_t size) {
    if (size > 0) {
        const std::string_view text = catalogue::findText(table, index).text.substr(0, size - 1);
        std::memcpy(buffer, text.data(), text.size());
        buffer[text.size()] = 0;
    }
    Call("LoadMessageText", session, journalled::Text{table, index},
         static_cast<const char*>(size > 0 ? buffer : nullptr), size);
}

std::uint32_t ZHST_CALL zhstMessageId(std::uint32_t table, std::uint32_t index) {
    return Call("MessageId", journalled::Text{table, index}).result(catalogue::messageId(table, index));
}

std::int32_t ZHST_CALL zhstShowMessage(ZhstSession session, ZhstWindow owner, std::uint32_t message,
                                       std::uint32_t flags, std::uint32_t one, std::uint32_t help) {
    const Call call("ShowMessage", session, owner, journalled::Message{message}, flags, one, help);
    return call.result(show(headOf(owner, message, flags, help), {}));
}

std::int32_t ZHST_CALL zhstShowMessage1(ZhstSession session, ZhstWindow owner, std::uint32_t message,
                                        std::uint32_t flags, std::uint32_t one, std::uint32_t help,
                                        const char* insert1) {
    const Insert inserts[] = {textInsert(insert1)};
    const Call call("ShowMessage1", session, owner, journalled::Message{message}, flags, one, help, inserts[0]);
    return call.result(show(headOf(owner, message, flags, help), inserts));
}

std::int32_t ZHST_CALL zhstShowMessage2(ZhstSession session, ZhstWindow owner, std::uint32_t message,
                                        std::uint32_t flags, std::uint32_t one, std::uint32_t help, ZhstInsert insert1,
                                        ZhstInsert insert2) {
    const catalogue::Message row = catalogue::findMessage(message);
    const Insert inserts[] = {insertAt(row, 0, insert1), insertAt(row, 1, insert2)};
    const Call call("ShowMessage2", session, owner, journalled::Message{message}, flags, one, help, inserts[0],
                    inserts[1]);
    return call.result(show(headOf(owner, message, flags, help), inserts));
}

std::int32_t ZHST_CALL zhstShowMessage3(ZhstSession session, ZhstWindow owner, std::uint32_t message,
                                        std::uint32_t flags, std::uint32_t one, std::uint32_t help, ZhstInsert insert1,
                                        ZhstInsert insert2, ZhstInsert insert3) {
    const catalogue::Message row = catalogue::findMessage(message);
    const Insert inserts[] = {insertAt(row, 0, insert1), insertAt(row, 1, insert2), insertAt(row, 2, insert3)};
    const Call call("ShowMessage3", session, owner, journalled::Message{message}, flags, one, help, inserts[0],
                    inserts[1], inserts[2]);
    return call.result(show(headOf(owner, message, flags, help), inserts));
}

std::int32_t ZHST_CALL zhstShowMessageCode(ZhstSession session, ZhstWindow owner, std::uint32_t message,
                                           std::uint32_t flags, std::uint32_t one, std::uint32_t help,
                                           std::uint32_t insert1, const char* insert2, const char* insert3) {
    const Insert inserts[] = {numberInsert(insert1), textInsert(insert2), textInsert(insert3)};
    const Call call("ShowMessageCode", session, owner, journalled::Message{message}, flags, one, help, inserts[0],
                    inserts[1], inserts[2]);
    return call.result(show(headOf(owner, message, flags, help), inserts));
}

std::int32_t ZHST_CALL zhstShowMessageText(ZhstSession session, ZhstWindow owner, std::uint32_t flags,
                                           std::uint32_t one, std::uint32_t help, const char* text) {
    const Call call("ShowMessageText", session, owner, flags, one, help, text);
    return call.result(showReady(headOf(owner, 0, flags, help), false, text));
}

std::int32_t ZHST_CALL zhstMessageBox_scroll(ZhstSession session, ZhstWindow owner, std::uint32_t message,
                                             std::uint32_t flags, std::uint32_t one, std::uint32_t help,
                                             const char* text) {
    const Call call("zhstMessageBox_scroll", session, owner, journalled::Message{message}, flags, one, help, text);
    return call.result(showReady(headOf(owner, message, flags, help), true, text));
}

void ZHST_CALL zhstFormatStringSet(ZhstTextRecord* text, const ZhstTextRecord* const* inserts, std::uint32_t count) {
    if (!text) return;
    std::vector<std::string> values;
    for (std::uint32_t i = 0; inserts && i < count; ++i)
        values.emplace_back(inserts[i] ? textOf(*inserts[i]) : std::string_view());
    Call("formatStringSet", textOf(*text), journalled::Address{inserts}, count);
    storeText(*text, fillInserts(textOf(*text), values));
}
