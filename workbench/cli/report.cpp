#include "report.h"

#include "json.h"

namespace {

// The first word of a good end; of the others only a cancellation is told apart.
std::string_view outcomeOf(const Tally& tally) {
    const std::string_view text = tally.text, word = text.substr(0, text.find_first_of(": "));
    return tally.exitStatus == ExitComplete || word == "cancelled" ? word : "failed";
}

}  // namespace

std::string report(const CommandLine& line, const Tally& tally) {
    json::Object object;
    object.text("command", line.commandName).number("status", static_cast<int>(tally.exitStatus));
    object.text("outcome", outcomeOf(tally)).text("text", tally.text);
    if (tally.records) object.number("records", *tally.records);
    if (tally.bytes) object.number("bytes", *tally.bytes);
    if (!tally.pcFile.empty()) object.text("pcFile", tally.pcFile);
    if (!tally.hostFile.empty()) object.text("hostFile", tally.hostFile);
    std::vector<std::string> told;
    for (const ShownMessage& message : tally.messages)
        told.push_back(json::Object().number("id", message.id).text("text", message.text).whole());
    object.value("messages", json::array(told));
    std::vector<std::string> notes;
    for (const Note& note : tally.notes)
        notes.push_back(json::Object().text("text", note.text).text("advice", note.advice).whole());
    object.value("notes", json::array(notes));
    if (line.command == Command::Browse) object.value("entries", json::array(tally.entries));
    return object.whole();
}
