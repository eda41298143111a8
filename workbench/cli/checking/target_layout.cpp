#include "checking/target_layout.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "Z7XFRPCS/settings.h"
#include "emulator/emulator.h"

namespace checking {
namespace {

namespace setting = zhst::setting;
namespace value = zhst::value;

// Dates and times have the length of their format, which a description of the PC file may have chosen: the keywords of
// the options, by the value of the setting.
struct FormatRow {
    std::string_view option;
    std::uint32_t setting;
    std::string_view keywords[10];
};
constexpr FormatRow formats[] = {
    {"TIMFMT(", setting::TimeFormat, {"DDS", "DFT", "EUR", "HMS", "ISO", "JIS", "USA"}},
    {"TIMSEP(", setting::TimeSeparator, {"' '", "':'", "','", "DFT", "DFT", "NUL", "'.'"}},
    {"DATFMT(", setting::DateFormat, {"DDS", "DFT", "DMY", "EUR", "ISO", "JIS", "JUL", "MDY", "USA", "YMD"}},
    {"DATSEP(", setting::DateSeparator, {"' '", "DFT", "','", "'-'", "DFT", "NUL", "'.'", "'/'"}}};

void takeFormats(ZhstSession session, std::string_view options) {
    for (const FormatRow& row : formats) {
        const std::size_t found = options.find(row.option);
        if (found == std::string_view::npos) continue;
        std::string_view keyword = options.substr(found + row.option.size());
        keyword = keyword.substr(0, keyword.find(')'));
        const auto* place = std::find(std::begin(row.keywords), std::end(row.keywords), keyword);
        if (place == std::end(row.keywords)) continue;
        emulator::set(session, row.setting, static_cast<std::int32_t>(place - std::begin(row.keywords)));
    }
}

// The names between "REPLACE " and " into "; none for "*".
std::vector<std::string> namesIn(std::string_view request) {
    constexpr std::string_view Keyword = "REPLACE ";
    std::vector<std::string> names;
    if (!request.starts_with(Keyword)) return names;
    request.remove_prefix(Keyword.size());
    request = request.substr(0, request.find(" into "));
    while (!request.empty() && request != "*") {
        const std::size_t comma = std::min(request.find(','), request.size());
        std::string name(request.substr(0, comma));
        std::erase(name, ' ');
        names.push_back(std::move(name));
        request.remove_prefix(std::min(comma + 1, request.size()));
    }
    return names;
}

struct FileName {
    std::string qualified;  // LIB/FILE
    std::string file, member;
};

FileName fileNameOf(const std::string& hostFile) {
    FileName name;
    name.qualified = hostFile.substr(0, hostFile.find('('));
    if (name.qualified.size() < hostFile.size()) {
        name.member = hostFile.substr(name.qualified.size() + 1);
        name.member = name.member.substr(0, name.member.find(')'));
    }
    name.file = name.qualified.substr(name.qualified.find('/') + 1);
    return name;
}

HostColumn textColumn(const std::string& name, std::uint32_t length, std::uint32_t offset) {
    constexpr std::size_t NameAt = 3, NameBytes = 29;
    std::string description(DescriptionBytes, '\0');
    description[0] = static_cast<char>(column_type::Character);
    description[1] = static_cast<char>(length);
    description[2] = static_cast<char>(length >> 8);
    std::string padded = name.substr(0, NameBytes);
    padded.resize(NameBytes + 1, ' ');
    description.replace(NameAt, padded.size(), padded);
    return hostColumn(description, offset);
}

HostLayout textFile(const std::vector<std::string>& names, std::uint32_t length) {
    HostLayout layout;
    for (const std::string& name : names) layout.columns.push_back(textColumn(name, length, layout.recordLength()));
    return layout;
}

HostLayout sourceFile(ZhstSession session) {
    constexpr std::int32_t Overhead = 12;  // sequence number and date
    const std::int32_t length = emulator::number(session, setting::RecordLength) - Overhead;
    return textFile({"SRCDTA"}, static_cast<std::uint32_t>(std::clamp(length, 1, 4096)));
}

// Null when the layout lacks one.
std::optional<HostLayout> chosen(const HostLayout& layout, const std::vector<std::string>& names,
                                 std::vector<std::string>& unknown) {
    HostLayout result;
    for (const std::string& name : names) {
        if (const HostColumn* column = layout.find(name)) {
            const std::string_view description(column->description.data(), column->description.size());
            result.columns.push_back(hostColumn(description, result.recordLength()));
        } else {
            unknown.push_back(name);
        }
    }
    if (!unknown.empty()) return std::nullopt;
    return result;
}

class Asking {
public:
    Asking(const TransferLibrary& library, const PcText& pcText, ZhstSession session)
        : library_(library), pcText_(pcText), session_(session) {}

    HostLayout of(const std::string& hostFile) const { return askHostLayout(library_, pcText_, session_, hostFile); }
    HostLayout ofNewFile(const FileName& name, const std::vector<std::string>& names, bool isSource) const;

private:
    const TransferLibrary& library_;
    const PcText& pcText_;
    ZhstSession session_;
};

HostLayout Asking::ofNewFile(const FileName& name, const std::vector<std::string>& names, bool isSource) const {
    const std::string reference = emulator::text(session_, setting::ReferenceFile);
    if (isSource && reference.empty()) return sourceFile(session_);
    if (!reference.empty()) return of(reference);
    if (names.empty()) return {{}, "a new file needs a reference file or a description"};
    constexpr std::uint32_t LongestRecord = 4096, UsualLength = 50;
    const HostLayout namesake = of("*LIBL/" + name.file);
    std::vector<std::string> lacking;
    if (!namesake.columns.empty() && chosen(namesake, names, lacking)) return namesake;
    const auto count = static_cast<std::uint32_t>(names.size());
    return textFile(names, std::clamp(LongestRecord / count, 1u, UsualLength));
}

}  // namespace

Target targetLayout(const TransferLibrary& library, const PcText& pcText, ZhstSession session,
                    const std::string& options, const std::string& request) {
    const ZhstSession asking = copyOfSession(session);
    takeFormats(asking, options);
    const Asking host(library, pcText, asking);
    const std::vector<std::string> names = namesIn(request);
    const std::string hostFile = emulator::text(asking, setting::HostFileName);
    const FileName name = fileNameOf(hostFile);
    const bool isSource = emulator::number(asking, setting::HostFileType) == value::SourceFile && names.empty();
    const std::int32_t mode = emulator::number(asking, setting::CreateMode);

    Target target;
    target.layout = mode == value::CreateFile     ? host.ofNewFile(name, names, isSource)
                    : mode == value::CreateMember ? host.of(name.qualified)
                                                  : host.of(hostFile);
    if (names.empty() || target.layout.columns.empty()) return target;
    if (auto layout = chosen(target.layout, names, target.unknownFields)) target.layout = std::move(*layout);
    return target;
}

}  // namespace checking
