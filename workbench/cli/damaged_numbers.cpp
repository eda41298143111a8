#include "damaged_numbers.h"

#include <algorithm>
#include <array>

#include "Z7XFRPCS/provider.h"
#include "Z7XFRPCS/settings.h"
#include "silent_transfer.h"
#include "transfer_watch.h"

namespace {

namespace setting = zhst::setting;

constexpr std::uint32_t FromHost = 0;
constexpr std::int32_t ToNowhere = 2;  // records are converted, and not written

unsigned high(char byte) { return static_cast<std::uint8_t>(byte) >> 4; }
unsigned low(char byte) { return static_cast<std::uint8_t>(byte) & 0x0F; }

bool isZoned(std::string_view bytes) {
    if (bytes.empty()) return true;
    const auto isDigit = [](char byte) { return high(byte) == 0xF && low(byte) <= 9; };
    const std::string_view front = bytes.substr(0, bytes.size() - 1);
    return std::all_of(front.begin(), front.end(), isDigit) && high(bytes.back()) >= 0xA && low(bytes.back()) <= 9;
}

bool isPacked(std::string_view bytes) {
    if (bytes.empty()) return true;
    const auto areDigits = [](char byte) { return high(byte) <= 9 && low(byte) <= 9; };
    const std::string_view front = bytes.substr(0, bytes.size() - 1);
    return std::all_of(front.begin(), front.end(), areDigits) && high(bytes.back()) <= 9 && low(bytes.back()) >= 0xA;
}

std::string hexadecimal(std::string_view bytes) {
    constexpr char digits[] = "0123456789ABCDEF";
    std::string text;
    for (const char byte : bytes) {
        if (!text.empty()) text += ' ';
        text += {digits[high(byte)], digits[low(byte)]};
    }
    return text;
}

// Looks at the records of one query.
class Look {
public:
    void storeWritten(std::string_view code, std::string_view value) {
        if (code == "XDTI" && value.size() >= DescriptionBytes)
            layout_.columns.push_back(hostColumn(value, layout_.recordLength()));
        else if (code == "XDGI")
            answered(value);
    }
    DamagedNumbers take() { return std::move(found_); }

private:
    void answered(std::string_view result) {
        if (result.size() < ResultHeader || result[0] != TF_GET_DATA) return;
        result.remove_prefix(ResultHeader);
        if (layout_.columns.empty() || result.size() < layout_.recordLength()) return;
        ++record_;
        const std::uint64_t before = found_.count;
        for (const HostColumn& column : layout_.columns) look(column, result.substr(column.offset, column.length));
        if (found_.count != before) ++found_.records;
    }
    void look(const HostColumn& column, std::string_view bytes) {
        if (!isDamaged(column, bytes)) return;
        if (found_.count++ < DamagedNumbers::ToldInFull)
            found_.first.push_back({record_, column.name, hexadecimal(bytes)});
    }

    HostLayout layout_;
    std::uint64_t record_ = 0;
    DamagedNumbers found_;
};

}  // namespace

bool isDamaged(const HostColumn& column, std::string_view bytes) {
    if (column.type == column_type::Zoned) return !isZoned(bytes);
    return column.type == column_type::Packed && !isPacked(bytes);
}

DamagedNumbers findDamagedNumbers(const TransferLibrary& library, ZhstSession session,
                                  const emulator::Clauses& clauses) {
    const ZhstSession looking = copyOfSession(session);
    emulator::setClauses(looking, clauses);
    emulator::set(looking, setting::IgnoreDecimalErrors, 1);
    emulator::set(looking, setting::RecordProgress, 0);
    emulator::set(looking, setting::ReceiveFileType, ZhstNoConversion);
    emulator::set(looking, setting::WriteDescriptionFile, 0);
    emulator::set(looking, setting::ReceiveOutput, ToNowhere);
    SilentTransfer transfer(library, looking);
    Look look;
    transfer.onStoreWrite = [&](std::string_view code, std::string_view value) { look.storeWritten(code, value); };
    transfer.run(FromHost);
    return look.take();
}

void print(std::ostream& out, const DamagedNumbers& found) {
    if (found.count == 0) return;
    out << "z7xfer: damaged numbers of the host file:\n";
    for (const DamagedNumber& number : found.first)
        out << "    record " << number.record << ", field " << number.field << ": bytes " << number.bytes << '\n';
    if (found.count > found.first.size()) out << "    and " << found.count - found.first.size() << " more\n";
    out << "    " << found.count << " in " << found.records
        << " records; --ignore-decimal-errors receives them as they are" << std::endl;
}
