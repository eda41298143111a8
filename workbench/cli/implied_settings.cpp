#include "implied_settings.h"

#include <algorithm>
#include <cctype>
#include <ranges>
#include <stdexcept>

namespace {

namespace setting = zhst::setting;
namespace value = zhst::value;

struct Extension {
    std::string_view text;
    std::int32_t type;
};

constexpr Extension extensions[] = {
    {"csv", ZhstCommaSeparated}, {"tab", ZhstTabDelimited}, {"tsv", ZhstTabDelimited}, {"dif", ZhstDif},
    {"txt", ZhstAsciiText},      {"prn", ZhstAsciiText},    {"bin", ZhstNoConversion}, {"dat", ZhstNoConversion},
};

const Assignment* lastOf(const std::vector<Assignment>& settings, std::uint32_t id) {
    const auto found = std::find_if(settings.rbegin(), settings.rend(),
                                    [id](const Assignment& assignment) { return assignment.id == id; });
    return found == settings.rend() ? nullptr : &*found;
}

std::int32_t numberOf(const std::vector<Assignment>& settings, std::uint32_t id, std::int32_t otherwise) {
    const Assignment* found = lastOf(settings, id);
    return found ? std::get<std::int32_t>(found->value) : otherwise;
}

void add(std::vector<Assignment>& settings, std::uint32_t id, std::int32_t number) {
    const Assignment assignment{id, number};
    settings.push_back(assignment);
}

// The library reads and writes records only: on the way to the host it is told to begin behind the line.
void skipHeader(const CommandLine& line, std::uint32_t typeSetting, std::vector<Assignment>& settings) {
    const std::int32_t type = numberOf(settings, typeSetting, ZhstCommaSeparated);
    const bool toFile = numberOf(settings, setting::ReceiveOutput, value::ToPcFile) == value::ToPcFile;
    const bool isSend = line.command == Command::Send;
    if ((type != ZhstCommaSeparated && type != ZhstTabDelimited) || (!isSend && !toFile))
        throw std::invalid_argument("--header goes with a PC file of type csv or tab");
    if (isSend) add(settings, setting::StartRecord, numberOf(settings, setting::StartRecord, 1) + 1);
}

// A settings file that is refused is told when it is run.
std::vector<Assignment> quietlyRead(const std::string& settingsFile) {
    try {
        return settingsFile.empty() ? std::vector<Assignment>() : readSettingsFile(settingsFile);
    } catch (const std::invalid_argument&) {
        return {};
    }
}

std::string describedFile(const CommandLine& line, ZhstSession session, const PcText& pcText) {
    if (line.command == Command::Browse) return line.fields ? pcText.toPc(line.filter) : std::string();
    const bool creates =
        line.command == Command::Send && emulator::number(session, setting::CreateMode) == value::CreateFile;
    return emulator::text(session, creates ? setting::ReferenceFile : setting::HostFileName);
}

}  // namespace

std::optional<std::int32_t> typeOfName(std::string_view pcName) {
    const std::string_view base = pcName.substr(pcName.find_last_of("/\\:") + 1);
    const std::size_t point = base.rfind('.');
    if (point == std::string_view::npos) return std::nullopt;
    const auto sameLetter = [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); };
    const auto row = std::ranges::find_if(extensions, [&](const Extension& each) {
        return std::ranges::equal(base.substr(point + 1), each.text, sameLetter);
    });
    return row == std::end(extensions) ? std::nullopt : std::optional(row->type);
}

std::vector<Assignment> wholeSettings(const CommandLine& line, const std::vector<Assignment>& fromFile) {
    std::vector<Assignment> settings = fromFile;
    settings.insert(settings.end(), line.options.begin(), line.options.end());
    settings.insert(settings.end(), line.sets.begin(), line.sets.end());
    if (line.command != Command::Receive && line.command != Command::Send) return settings;

    const std::uint32_t type = line.command == Command::Send ? setting::SendFileType : setting::ReceiveFileType;
    const Assignment* name = lastOf(settings, setting::PcFileName);
    if (name && !lastOf(settings, type)) {
        if (const std::optional<std::int32_t> implied = typeOfName(std::get<std::string>(name->value)))
            add(settings, type, *implied);
    }
    if (line.header) skipHeader(line, type, settings);
    return settings;
}

std::vector<std::string> hostFiles(std::string_view list) {
    constexpr std::string_view separators = " ,";
    std::vector<std::string> files;
    for (std::size_t start = 0; (start = list.find_first_not_of(separators, start)) != std::string_view::npos;) {
        const std::size_t end = std::min(list.find_first_of(separators, start), list.size());
        files.emplace_back(list.substr(start, end - start));
        start = end;
    }
    return files;
}

std::optional<std::int32_t> hostCodePage(const CommandLine& line, const TransferLibrary& library, const PcText& pcText,
                                         ZhstSession session) {
    const std::vector<Assignment> said = wholeSettings(line, quietlyRead(line.settingsFile));
    const ZhstSession asking = copyOfSession(session);
    apply(asking, said, pcText);
    std::vector<std::string> files = hostFiles(describedFile(line, asking, pcText));
    // The member that a send makes is not there yet.
    if (line.command == Command::Send && !files.empty())
        files.front().resize(std::min(files.front().find('('), files.front().size()));
    if (lastOf(said, setting::HostCodePage) || files.empty() ||
        emulator::number(asking, setting::ConnectionType) == value::DemonstrationConnection)
        return std::nullopt;
    for (const HostColumn& column : askHostLayout(library, pcText, asking, files.front()).columns)
        if (column.codePage != 0) return static_cast<std::int32_t>(column.codePage);
    return std::nullopt;
}
