#include "bench/host_file.h"

#include <array>

#include "support/host_fields.h"
#include "support/host_record.h"

namespace bench {
namespace {

std::vector<Field> makeFields() {
    std::vector<Field> made = {
        {"zoned_6.0", hostfields::zoned("CUSNUM", 6), 0, 6},
        {"character_25", hostfields::character("NAME", 25), 0, 25},
        {"character_20", hostfields::character("STREET", 20), 0, 20},
        {"character_2", hostfields::character("STATE", 2), 0, 2},
        {"character_10", hostfields::character("ZIPCODE", 10), 0, 10},
        {"binary_4", hostfields::binary("ORDERS", 4), 0, 4},
        {"packed_7.2", hostfields::packed("BALANCE", 7, 2), 0, 4},
        {"packed_11.2", hostfields::packed("TURNOVER", 11, 2), 0, 6},
        {"zoned_5.3", hostfields::zoned("RATE", 5, 3), 0, 5},
        {"hex_2", hostfields::hex("FLAGS", 2), 0, 2},
    };
    std::uint32_t offset = 0;
    for (Field& field : made) {
        field.offset = offset;
        offset += field.length;
    }
    return made;
}

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
    for (const Field& field : fields()) all += field.description;
    return all;
}

const std::uint8_t* bytesOf(const std::string& text) { return reinterpret_cast<const std::uint8_t*>(text.data()); }

}  // namespace

const std::vector<Field>& fields() {
    static const std::vector<Field> made = makeFields();
    return made;
}

const std::string& records() {
    static const std::string made = makeRecords();
    return made;
}

scripted::FastTransfer transferOf(std::uint32_t count) {
    static const std::string descriptions = makeDescriptions();
    const auto fieldCount = static_cast<std::uint32_t>(fields().size());
    return {bytesOf(descriptions), fieldCount, bytesOf(records()), DistinctRecords, RecordLength, count};
}

}  // namespace bench
