#include "text/code_page_state.h"

#include <algorithm>
#include <cstring>

#include "bytes/byte_order.h"
#include "platform/platform.h"
#include "services/session.h"
#include "text/double_byte.h"

namespace text {
namespace {

constexpr std::uint32_t ConversionFailed = 1;
constexpr std::int32_t CodePage43 = 43;

constexpr char ShiftOut = 0x0E;
constexpr char ShiftIn = 0x0F;
constexpr char PcBlank = 0x20;
constexpr std::uint16_t PcBlankPair = 0x2020;  // two blanks: not every PC page has a double-byte one
constexpr std::uint16_t HostBlankPair = 0x4040;

// The converted pair, first byte high; `unknown` when the table has none.
std::uint16_t convertedPair(const services::OwnedBytes& table, const char* pair, std::uint16_t unknown) {
    const std::uint32_t row = bytes::at(table.data(), ZhstPairRowNumbers + bytes::at(pair, 0));
    if (row >= ZhstPairRowCount) return unknown;  // 255: the first byte of no pair; the table ends behind its last row
    const std::uint16_t converted =
        bytes::lowFirst16(table.data() + ZhstPairRows + row * ZhstPairRowSize + 2 * bytes::at(pair, 1));
    return converted ? converted : unknown;
}

// Host bytes being produced, up to a fixed number.
class HostText {
public:
    HostText(char* bytes, std::uint32_t length) : next_(bytes), end_(bytes + length) {}
    bool isFull() const { return next_ == end_; }
    void put(char byte) {
        if (!isFull()) *next_++ = byte;
    }

private:
    char* next_;
    char* end_;
};

}  // namespace

CodePageState::CodePageState(services::SessionHandle session)
    : session_(session),
      sessionServices_(services::GetSessionServices(session)),
      emulatorConverter_(services::GetEmulatorConverter(session)),
      textServicesHandle_(services::GetTextServices(session)) {}

void CodePageState::setHostCodePage(std::int32_t hostCodePage) {
    isCodePage43_ = hostCodePage == CodePage43;
    dbcsToPcTable_.reset();
    dbcsToHostTable_.reset();
    auto* services = services::GetCodePageServices(session_);
    dbcsTablesLoaded_ = services && services->isDoubleByte(hostCodePage);
    if (dbcsTablesLoaded_) loadDoubleByteTables(hostCodePage);
}

// All three are filled even when one of the large ones finds no memory: the other direction still works.
void CodePageState::loadDoubleByteTables(std::int32_t hostCodePage) {
    dbcsToPcTable_ = services::OwnedBytes::make(ZhstPairTableSize, true);
    dbcsToHostTable_ = services::OwnedBytes::make(ZhstPairTableSize, true);
    if (dbcsToPcTable_)
        services::LoadCodeTable(session_, dbcsToPcTable_.data(), ZhstPairsToPc, hostCodePage, ZhstPairTableSize);
    if (dbcsToHostTable_)
        services::LoadCodeTable(session_, dbcsToHostTable_.data(), ZhstPairsToHost, hostCodePage, ZhstPairTableSize);
    services::LoadCodeTable(session_, singleByteTables_, ZhstSingleByteTables, hostCodePage, sizeof(singleByteTables_));
}

std::uint32_t CodePageState::hostToPcText(const char* source, char* destination, std::uint32_t length,
                                          std::uint32_t capacity, std::uint32_t* convertedLength) const {
    if (convertedLength) *convertedLength = 0;
    if (length > capacity) return ConversionFailed;
    std::memcpy(destination, source, length);
    if (dbcsTablesLoaded_) return dbcsHostToPc(length, destination);
    if (isCodePage43_) {
        // An entry that the session lacks is skipped, like every absent one; the text stays as it is.
        const auto convert = sessionServices_ ? sessionServices_->hostTextToPc : nullptr;
        if (!convert) return 0;
        // What the shorter text leaves of the field becomes blanks; the host's bytes copied above would show there.
        const std::uint32_t converted =
            std::min(convert(textServicesHandle_, source, length, destination, capacity, 2), capacity);
        if (converted < length) std::fill(destination + converted, destination + length, PcBlank);
        if (convertedLength) *convertedLength = converted;
        return 0;
    }
    // Here and below a failed conversion counts only without OEM text.
    const std::uint32_t result = services::ConvertHostText(emulatorConverter_, services::HostToPc, length, destination);
    if (convertToOem_ == 0) return result;
    platform::CharToOemBuffA(destination, destination, length);
    return 0;
}

std::uint32_t CodePageState::pcToHostText(const char* source, char* destination, std::uint32_t length,
                                          std::uint32_t destinationLength) const {
    if (dbcsTablesLoaded_) return dbcsPcToHost(std::min(length, destinationLength), source, destination);
    if (isCodePage43_) {
        const auto convert = sessionServices_ ? sessionServices_->pcTextToHost : nullptr;
        if (convert) convert(textServicesHandle_, source, length, destination, destinationLength, 1, 2);
        return 0;
    }
    length = std::min(length, destinationLength);
    std::memcpy(destination, source, length);
    if (convertToOem_ != 0) platform::OemToCharBuffA(destination, destination, length);
    const std::uint32_t result = services::ConvertHostText(emulatorConverter_, services::PcToHost, length, destination);
    return convertToOem_ == 0 ? result : 0;
}

// Shift bytes leave the text: what is behind them moves up and blanks fill the end. The read position never falls
// behind the write position, so this works in place.
std::uint32_t CodePageState::dbcsHostToPc(std::uint32_t length, char* buffer) const {
    if (!dbcsToPcTable_) return ConversionFailed;
    const char* read = buffer;
    const char* const end = buffer + length;
    char* write = buffer;
    bool doubleByte = false;
    while (read < end) {
        if (*read == ShiftOut || *read == ShiftIn) {
            doubleByte = *read++ == ShiftOut;
        } else if (!doubleByte) {
            *write++ = singleByteTables_[ZhstSingleBytesToPc + bytes::at(read++, 0)];
        } else if (end - read < 2) {
            *write++ = PcBlank;  // half a pair
            ++read;
        } else {
            bytes::putHighFirst(write, convertedPair(dbcsToPcTable_, read, PcBlankPair), 2);
            read += 2;
            write += 2;
        }
    }
    std::fill(write, buffer + length, PcBlank);
    return 0;
}

// The source is never read beyond `length` bytes: a pair is only taken inside double-byte text, whose shift-out has put
// the host text one byte ahead of the source. No shift-in is put at the end; senders see to it that double-byte text
// ends before its field.
std::uint32_t CodePageState::dbcsPcToHost(std::uint32_t length, const char* source, char* destination) const {
    if (!dbcsToHostTable_) return ConversionFailed;
    HostText out(destination, length);
    bool doubleByte = false;
    while (!out.isFull()) {
        const bool pairAhead = isLeadByte(*source);
        if (pairAhead != doubleByte) {
            out.put(pairAhead ? ShiftOut : ShiftIn);
            doubleByte = pairAhead;
            if (out.isFull()) break;
        }
        if (pairAhead) {
            char pair[2];
            bytes::putHighFirst(pair, convertedPair(dbcsToHostTable_, source, HostBlankPair), sizeof(pair));
            out.put(pair[0]);
            out.put(pair[1]);
            source += 2;
        } else {
            out.put(singleByteTables_[ZhstSingleBytesToHost + bytes::at(source++, 0)]);
        }
    }
    return 0;
}

}  // namespace text
