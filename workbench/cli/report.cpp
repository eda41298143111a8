#include "report.h"

#include "json_members.h"

namespace {

// The first word of a good end; of the others only a cancellation is told apart.
std::string_view outcomeOf(const Tally& tally) {
    const std::string_view text = tally.text, word = text.substr(0, text.find_first_of(": "));
    return tally.exitStatus == ExitComplete || word == "cancelled" || word == "complete" ? word : "failed";
}

}  // namespace

json::Object reportHead(const CommandLine& line, const Tally& tally) {
    json::Object object;
    object.text(run_member::Command, line.commandName).number(run_member::Status, static_cast<int>(tally.exitStatus));
    object.text(run_member::Outcome, outcomeOf(tally)).text(run_member::Text, tally.text);
    return object;
}

std::string report(const CommandLine& line, const Tally& tally) {
    json::Object object = reportHead(line, tally);
    if (tally.records) object.number(run_member::Records, *tally.records);
    if (tally.bytes) object.number(run_member::Bytes, *tally.bytes);
    if (!tally.pcFile.empty()) object.text(run_member::PcFile, tally.pcFile);
    if (!tally.hostFile.empty()) object.text(run_member::HostFile, tally.hostFile);
    std::vector<std::string> told;
    for (const ShownMessage& message : tally.messages)
        told.push_back(json::Object().number("id", message.id).text("text", message.text).whole());
    object.value(run_member::Messages, json::array(told));
    std::vector<std::string> notes;
    for (const Note& note : tally.notes)
        notes.push_back(json::Object().text("text", note.text).text("advice", note.advice).whole());
    object.value(run_member::Notes, json::array(notes));
    if (line.command == Command::Browse) object.value(run_member::Entries, json::array(tally.entries));
    return object.whole();
}
