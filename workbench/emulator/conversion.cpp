#include "emulator/conversion.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <string>
#include <tuple>

#include "Z7XFRPCS/conversion.h"
#include "Z7XFRPCS/settings.h"
#include "emulator/code_pages.h"
#include "emulator/faults.h"
#include "emulator/journal.h"
#include "emulator/messages.h"
#include "emulator/user_interface.h"

namespace emulator {
namespace {

[[gnu::cold, gnu::noinline]] void makeTables(ConversionTables& tables, std::int32_t hostPage) {
    const codepages::CodePage* host = hostCodePage(hostPage);
    const codepages::CodePage* pc = ansiPage();
    tables.made = true;
    tables.hostPage = hostPage;
    tables.pcNumber = pcSetupNumber();
    tables.usable = host && host->isHost() && pc;
    if (!tables.usable) return;
    tables.hostToPc = codepages::hostToPc(*host, *pc);
    tables.pcToHost = codepages::pcToHost(*pc, *host);
}

std::uint32_t convert(Session* session, std::uint32_t direction, std::uint32_t length, void* buffer) {
    const ConversionTables* tables = session && !faults().failConversion ? conversionTables(*session) : nullptr;
    if (!tables) return 1;
    const auto& table = direction == ZhstHostToPc ? tables->hostToPc : tables->pcToHost;
    auto* bytes = static_cast<std::uint8_t*>(buffer);
    // Half of the instructions for a byte would be the loop's.
#pragma GCC unroll 8
    for (std::uint32_t at = 0; at < length; ++at) bytes[at] = table[bytes[at]];
    return 0;
}

[[gnu::cold, gnu::noinline]] void tellRefusal(const Session& session) {
    if (!messageEnabled(0)) return;
    constexpr std::uint32_t Exclamation = 0x30;
    MessageBox box = readyTextBox(session.handle(SessionPart::Session), MessageSource::Converter);
    box.flags = Exclamation;
    box.text = "A text cannot be converted between host code page " +
               std::to_string(session.numbers[zhst::setting::HostCodePage]) + " and the code page of the PC.";
    userInterface().showMessage(box);
}

// Made once per pair of pages: a table of pairs takes a walk over a whole page.
const std::vector<std::uint8_t>& keptCodeTable(std::uint32_t kind, const codepages::CodePage& host,
                                               const codepages::CodePage& pc) {
    static std::map<std::tuple<std::uint32_t, std::uint32_t, std::uint32_t, std::uint64_t>, std::vector<std::uint8_t>>
        made;
    const auto [entry, isNew] = made.try_emplace({kind, host.number(), pc.number(), codeDataNumber()});
    if (isNew) entry->second = codepages::codeTable(kind, host, pc);
    return entry->second;
}

std::uint32_t ZHST_CALL isDoubleByte(ZhstCodePageServices*, std::int32_t number) {
    const codepages::CodePage* page = hostCodePage(number);
    return journalled::Call("CodePageServices.isDoubleByte", number).result(page && page->isDoubleByte() ? 1u : 0u);
}

}  // namespace

const ConversionTables* conversionTables(Session& session) {
    ConversionTables& tables = session.conversion;
    const std::int32_t hostPage = session.numbers[zhst::setting::HostCodePage];
    if (!tables.made || tables.hostPage != hostPage || tables.pcNumber != pcSetupNumber()) [[unlikely]]
        makeTables(tables, hostPage);
    return tables.usable ? &tables : nullptr;
}

constinit const ZhstCodePageOperations codePageOperations = {{}, isDoubleByte};

}  // namespace emulator

using namespace emulator;
using journalled::Call;

std::uint32_t ZHST_CALL zhstConvertHostText(ZhstConverter converter, std::uint32_t direction, std::uint32_t length,
                                            void* buffer) {
    const Call call("ConvertHostText", converter, direction, length, journalled::Bytes{buffer, length});
    Session* session = findSession(converter, SessionPart::Converter);
    const std::uint32_t failure = convert(session, direction, length, buffer);
    if (failure != 0 && session) tellRefusal(*session);
    return call.result(failure);
}

void ZHST_CALL zhstLoadCodeTable(ZhstSession session, void* table, std::uint32_t kind, std::int32_t hostCodePage,
                                 std::uint32_t size) {
    Call("LoadCodeTable", session, journalled::Address{table}, kind, hostCodePage, size);
    const codepages::CodePage* host = emulator::hostCodePage(hostCodePage);
    const codepages::CodePage* pc = ansiPage();
    if (!table || !host || !pc) return;
    const auto& contents = keptCodeTable(kind, *host, *pc);
    if (contents.empty()) return;
    std::memcpy(table, contents.data(), std::min<std::size_t>(size, contents.size()));
}
