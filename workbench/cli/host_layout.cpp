#include "host_layout.h"

#include <algorithm>
#include <cctype>

#include "Z7XFRPCS/dialogs.h"
#include "Z7XFRPCS/settings.h"
#include "codepages.h"
#include "emulator/setting_rows.h"
#include "silent_transfer.h"
#include "transfer_watch.h"

namespace {

namespace setting = zhst::setting;

// Where the parts of a description stand.
constexpr std::size_t NameAt = 3, NameBytes = 30, DigitsAt = 33, CodePageAt = 34;

constexpr std::uint32_t FromHost = 0;

std::uint32_t byteAt(std::string_view bytes, std::size_t place) { return static_cast<std::uint8_t>(bytes[place]); }

std::uint32_t lowFirst(std::string_view bytes, std::size_t place) {
    return byteAt(bytes, place) | byteAt(bytes, place + 1) << 8;
}

// Providers that tell no code page may leave anything there, blanks for instance.
std::uint32_t codePageIn(std::string_view description) {
    const std::uint32_t number = lowFirst(description, CodePageAt);
    const codepages::CodePage* page = codepages::find(number);
    return page != nullptr && page->isHost() ? number : 0;
}

// The answer goes to no file, and is not counted.
void makeQuery(ZhstSession session, const std::string& hostFile) {
    emulator::set(session, setting::HostFileName, hostFile);
    emulator::set(session, setting::PcFileName, "-");
    emulator::set(session, setting::ReceiveFileType, ZhstCommaSeparated);
    emulator::set(session, setting::ReceiveOutput, zhst::value::ToPcFile);
    emulator::set(session, setting::RecordProgress, 0);
    emulator::set(session, setting::DecimalSeparatorMode, 1);  // a point, which no list separator of a locale is
}

}  // namespace

HostColumn hostColumn(std::string_view description, std::uint32_t offset) {
    HostColumn column;
    std::copy_n(description.begin(), DescriptionBytes, column.description.begin());
    const std::string_view name = description.substr(NameAt, NameBytes);
    column.name = name.substr(0, name.find_last_not_of(std::string_view(" \0", 2)) + 1);
    column.type = static_cast<std::uint8_t>(description[0]);
    column.length = column.isNumber() ? byteAt(description, 1) : lowFirst(description, 1);
    column.decimals = column.isNumber() ? byteAt(description, 2) : 0;
    column.digits = column.isNumber() ? byteAt(description, DigitsAt) : 0;
    column.codePage = column.isText() ? codePageIn(description) : 0;
    column.offset = offset;
    return column;
}

std::uint32_t HostLayout::recordLength() const {
    return columns.empty() ? 0 : columns.back().offset + columns.back().length;
}

const HostColumn* HostLayout::find(std::string_view name) const {
    const auto sameLetter = [](unsigned char a, unsigned char b) { return std::toupper(a) == std::toupper(b); };
    const auto found = std::find_if(columns.begin(), columns.end(), [&](const HostColumn& column) {
        return std::equal(column.name.begin(), column.name.end(), name.begin(), name.end(), sameLetter);
    });
    return found == columns.end() ? nullptr : &*found;
}

ZhstSession copyOfSession(ZhstSession session) {
    const ZhstSession copy = emulator::newSession();
    for (const emulator::SettingRow& row : emulator::settingRows) {
        if (row.kind != emulator::SettingKind::Text)
            emulator::set(copy, row.number, emulator::number(session, row.number));
        else
            emulator::set(copy, row.number, emulator::text(session, row.number));
    }
    return copy;
}

HostLayout askHostLayout(const TransferLibrary& library, const PcText& pcText, ZhstSession session,
                         const std::string& hostFile) {
    const ZhstSession asking = copyOfSession(session);
    makeQuery(asking, hostFile);
    HostLayout layout;
    SilentTransfer transfer(library, asking);
    TransferWatch watch;
    transfer.onStoreWrite = [&](std::string_view code, std::string_view value) {
        watch.storeWritten(code, value);
        if (code != DescriptionItem || value.size() < DescriptionBytes) return;
        layout.columns.push_back(hostColumn(value, layout.recordLength()));
    };
    // The descriptions are still read, and nothing behind them.
    transfer.onProgressCommand = [&](std::uint32_t command) {
        if (command == ZhstReadingFields) transfer.cancel();
    };
    transfer.run(FromHost);
    if (layout.columns.empty() || !transfer.messages().empty()) {
        layout.columns.clear();
        layout.refusal = "the host described no fields";
        if (transfer.messages().empty()) return layout;
        layout.refusal = transfer.said(pcText);
        layout.status = statusOf(transfer.messages().front(), watch.lastRefusal().code);
    }
    return layout;
}
