#include "bench/host_file.h"

#include <array>
#include <iterator>
#include <string>

#include "support/host_fields.h"
#include "support/host_record.h"

namespace bench {
namespace {

constexpr std::uint32_t RecordLength = 84;
constexpr std::uint32_t DistinctRecords = 1000;

const std::string descriptions[] = {hostfields::zoned("CUSNUM", 6),       hostfields::character("NAME", 25),
                                    hostfields::character("STREET", 20),  hostfields::character("STATE", 2),
                                    hostfields::character("ZIPCODE", 10), hostfields::binary("ORDERS", 4),
                                    hostfields::packed("BALANCE", 7, 2),  hostfields::packed("TURNOVER", 11, 2),
                                    hostfields::zoned("RATE", 5, 3),      hostfields::hex("FLAGS", 2)};

// Texts without and with what has to be quoted, of very different lengths.
constexpr std::array<const char*, 10> Names = {"Aldous Henderson",
                                               "Bo Li",
                                               "Charlotte van den Bergh",
                                               "Doe",
                                               "Estelle Fairweather",
                                               "Fritz Groß",
                                               "Gail O'Hara",
                                               "Hj. Ångström",
                                               "Inês Conceição Figueira",
                                               "Jones, \"J. J.\" & Sons"};
constexpr std::array<const char*, 7> Streets = {"4859 Elm Ave",          "21B NW 135 St", "PO Box 79",
                                                "1 Rue du Faubourg St.", "Am Tor 9",      "787 Lake Dr",
                                                "5963 Oak Street"};
constexpr std::array<const char*, 5> States = {"TX", "NY", "", "CA", "G"};
constexpr std::array<const char*, 4> ZipCodes = {"75217", "13041-1234", "SW1A 2AA", "0"};

std::string makeRecord(std::uint32_t number) {
    const std::int64_t sign = number % 5 == 0 ? -1 : 1;
    const auto spread = static_cast<std::int64_t>(number) * 7919;
    HostRecord record;
    record.zoned(100000 + spread % 900000, 6)
        .text(Names[number % Names.size()], 25)
        .text(Streets[number % Streets.size()], 20)
        .text(States[number % States.size()], 2)
        .text(ZipCodes[number % ZipCodes.size()], 10)
        .binary(sign * spread * 211, 4)
        .packed(sign * (spread % 10000000), 7)
        .packed(sign * spread * 9973, 11)
        .zoned(sign * (number % 100) * 25, 5)
        .zoned(number % 100, 2);  // host digits: the only bytes that hexadecimal text can carry back
    return record;
}

std::string makeRecords() {
    std::string all;
    for (std::uint32_t number = 0; number < DistinctRecords; ++number) all += makeRecord(number);
    return all;
}

std::string makeDescriptions() {
    std::string all;
    for (const std::string& description : descriptions) all += description;
    return all;
}

const std::uint8_t* bytesOf(const std::string& text) { return reinterpret_cast<const std::uint8_t*>(text.data()); }

}  // namespace

scripted::FastTransfer transferOf(std::uint32_t count) {
    static const std::string fields = makeDescriptions(), records = makeRecords();
    return {bytesOf(fields), std::size(descriptions), bytesOf(records), DistinctRecords, RecordLength, count};
}

}  // namespace bench
