#include "emulator/journal.h"

#include <utility>
#include <vector>

#include "emulator/catalogue.h"
#include "emulator/emulator.h"
#include "emulator/setting_rows.h"

namespace emulator {
namespace {

std::vector<std::string> lines;
// A call that was under way when the journal was cleared must not write its result into a younger line.
std::uint64_t clearedLines = 0;
std::size_t longestText = 0;

std::string_view settingName(std::uint32_t id) {
    for (const SettingRow& row : settingRows)
        if (row.number == id) return row.name;
    return {};
}

void appendNamed(std::string& line, std::uint32_t number, std::string_view name) {
    line += std::to_string(number);
    if (!name.empty()) line.append(" ").append(name);
}

void appendByte(std::string& line, unsigned char byte) {
    static constexpr std::string_view Escaped = "\r\n\t\\\"", Letters = "rnt\\\"", Digits = "0123456789ABCDEF";
    if (const std::size_t at = Escaped.find(static_cast<char>(byte)); at != std::string_view::npos)
        line.append("\\").append(1, Letters[at]);
    else if (byte >= 0x20 && byte < 0x7F)
        line += static_cast<char>(byte);
    else
        line.append("\\x").append(1, Digits[byte >> 4]).append(1, Digits[byte & 0x0F]);
}

}  // namespace

namespace journalled {

bool active = false;

void append(std::string& line, std::string_view text) {
    line += quoted(text.substr(0, longestText));
    if (text.size() > longestText) line += "...";
}

void append(std::string& line, const char* text) {
    if (text)
        append(line, std::string_view(text));
    else
        line += '0';
}

void append(std::string& line, Setting setting) { appendNamed(line, setting.id, settingName(setting.id)); }

void append(std::string& line, Message message) {
    appendNamed(line, message.id, catalogue::findMessage(message.id).name);
}

void append(std::string& line, Text text) {
    line.append(std::to_string(text.table)).append(", ");
    appendNamed(line, text.index, catalogue::findText(text.table, text.index).name);
}

void append(std::string& line, Code code) {
    if (code.code == 0) {
        line += '0';
        return;
    }
    for (int shift = 24; shift >= 0; shift -= 8) line += static_cast<char>(code.code >> shift);
}

void append(std::string& line, Bytes bytes) {
    if (bytes.bytes)
        append(line, std::string_view(static_cast<const char*>(bytes.bytes), bytes.length));
    else
        line += '0';
}

void append(std::string& line, Address address) { line += address.address ? '*' : '0'; }

std::uint64_t Call::place(std::string line) {
    lines.push_back(std::move(line));
    return clearedLines + lines.size();
}

void Call::complete(std::uint64_t line, const std::string& result) {
    if (line > clearedLines) lines[line - clearedLines - 1] += " = " + result;
}

void reset() {
    active = false;
    clearJournal();
}

}  // namespace journalled

void journalOn(bool on, JournalTexts texts) {
    journalled::active = on;
    longestText = texts == JournalTexts::Cut ? 64 : std::string_view::npos;
}

const std::vector<std::string>& journal() { return lines; }

void clearJournal() {
    clearedLines += lines.size();
    lines.clear();
}

void note(const std::string& line) {
    if (journalled::active) lines.push_back(line);
}

std::string quoted(std::string_view text) {
    std::string shown = "\"";
    for (const char byte : text) appendByte(shown, static_cast<unsigned char>(byte));
    return shown + '"';
}

}  // namespace emulator
