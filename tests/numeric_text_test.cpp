#include "support/transfer_fixture.h"

namespace {

using namespace hostfields;

const std::string LineEnd = "\r\n";

class NumericText : public TransferFixture {
protected:
    void SetUp() override {
        TransferFixture::SetUp();
        useListSeparator(';');  // so that a comma may be the decimal separator in every file type
    }
};

struct Number {
    std::string field;
    const char* bytes;
    const char* fixed;
    const char* delimited;
    std::int32_t separatorMode = 6;  // 2: a comma
    std::int32_t widthMode = 0;
};

const Number Numbers[] = {
    {zoned("N", 5, 2), "F0F0F1F2F5", "   1.25", "1.25"},
    {zoned("N", 5, 2), "F0F0F1F2D5", "  -1.25", "-1.25"},
    {zoned("N", 5, 2), "F0F0F1F2B5", "  -1.25", "-1.25"},
    {zoned("N", 5, 2), "F0F0F1F2C5", "   1.25", "1.25"},
    {zoned("N", 5, 2), "F0F0F0F5F0", "    .50", ".5"},
    {zoned("N", 5, 2), "F1F0F0F0F0", " 100.00", "100."},
    {zoned("N", 5, 2), "F1F2F3F4D5", "-123.45", "-123.45"},
    {zoned("N", 5), "F0F0F0F4F2", "    42", "42"},
    {zoned("N", 5), "F0F0F0F0F0", "     0", "0"},
    {zoned("N", 4, 2), "F0F0F0F0", "   .00", "0"},
    {zoned("N", 5, 2), "F0F0F1F2F5", "   1,25", "1,25", 2},
    {zoned("N", 2), "F1FA", " 1:", "1:"},
    {zoned("N", 2, 2), "F0F5", " .05", ".05"},
    {packed("N", 5, 2), "12345D", "-123.45", "-123.45"},
    {packed("N", 5), "12345F", " 12345", "12345"},
    {packed("N", 4), "01234C", " 1234", "1234"},
    {packed("N", 4), "01234C", "  1234", "1234", 6, 1},
    {packed("N", 4, 2), "01234C", " 12.34", "12.34"},
    {packed("N", 4, 2), "01234C", "  12.34", "12.34", 6, 1},
    {packed("N", 3, 1), "005D", "  -.5", "-.5"},
    {packed("N", 3, 1), "005B", "  -.5", "-.5"},
    {raw(4, 1, 0, "N", 0), "5F", " 5", "5"},  // a precision of 0 reduces nothing
    {binary("N", 2), "FFFB", "    -5", "-5"},
    {binary("N", 2), "8000", "-32768", "-32768"},
    {binary("N", 2, 2), "FFFB", "   -,05", "-,05", 2},
    {binary("N", 2, 2), "04D2", "  12,34", "12,34", 2},
    {binary("N", 2, 2), "03E8", "  10,00", "10,", 2},
    {binary("N", 2, 2), "0000", "    ,00", "0", 2},
    {binary("N", 4, 3), "0001E240", "     123,456", "123,456", 2},
    {binary("N", 4), "80000000", "-2147483648", "-2147483648"},
    {binary("N", 4), "7FFFFFFF", " 2147483647", "2147483647"},
    {hex("N", 3), "0AFF00", "0AFF00", "0AFF00"},
    // A negative zero is a zero; a pad nibble is no digit of it.
    {packed("N", 4), "10000D", "    0", "0"},
    {packed("N", 4, 2), "10000D", "   .00", "0"},
    {zoned("N", 3), "F0F0D0", "   0", "0"},
    {zoned("N", 4, 2), "F0F0F0D0", "   .00", "0"},
    {packed("N", 3), "000D", "   0", "0"},
    {packed("N", 3, 1), "000D", "   .0", "0"},
};

TEST_F(NumericText, FixedAndDelimitedForms) {
    for (const Number& row : Numbers) {
        SCOPED_TRACE(std::string(row.bytes) + " " + hexOf(row.field.substr(0, 3)) + ", width mode " +
                     std::to_string(row.widthMode));
        set(setting::DecimalSeparatorMode, row.separatorMode);
        set(setting::NumericWidthMode, row.widthMode);
        const std::string record = bytesOf(row.bytes);
        const bool isHex = row.field[0] == 0;
        const std::string quoted = isHex ? "\"" + std::string(row.delimited) + "\"" : row.delimited;
        EXPECT_EQ(received(AsciiText, {row.field}, {record}), row.fixed + LineEnd);
        EXPECT_EQ(received(BasicSequential, {row.field}, {record}), quoted + LineEnd);
        EXPECT_EQ(received(CommaSeparated, {row.field}, {record}), row.delimited + LineEnd);
        EXPECT_EQ(received(TabDelimited, {row.field}, {record}), row.delimited + LineEnd);
        EXPECT_EQ(lastTuple(received(Dif, {row.field}, {record})),
                  isHex ? "1,0\r\n" + quoted + "\r\n" : "0," + quoted + "\r\nV\r\n");
    }
}

TEST_F(NumericText, SeparatorFollowsTheModeAndTheLocale) {
    const struct {
        std::int32_t mode;
        char locale;
        const char* text;
    } rows[] = {{2, '.', "1,25"}, {8, ',', "1,25"}, {8, '.', "1.25"}, {8, '\'', "1.25"},
                {0, ',', "1.25"}, {1, ',', "1.25"}, {6, ',', "1.25"}, {7, ',', "1.25"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(std::to_string(row.mode) + row.locale);
        emulator::PcSetup pc;
        pc.decimalSeparator = row.locale;
        pc.listSeparator = ';';
        ASSERT_TRUE(emulator::setUpPc(pc));
        set(setting::DecimalSeparatorMode, row.mode);
        EXPECT_EQ(received(CommaSeparated, {zoned("N", 5, 2)}, {bytesOf("F0F0F1F2F5")}), row.text + LineEnd);
    }
}

TEST_F(NumericText, FieldsAsLongAsADescriptionCanSay) {
    const std::string digits(255, '\xF7');
    EXPECT_EQ(received(AsciiText, {zoned("N", 255)}, {digits}), " " + std::string(255, '7') + LineEnd);
    EXPECT_EQ(received(CommaSeparated, {zoned("N", 255)}, {digits}), std::string(255, '7') + LineEnd);
    EXPECT_EQ(received(CommaSeparated, {zoned("N", 255, 254)}, {digits}), "7." + std::string(254, '7') + LineEnd);
    const std::string packedDigits = std::string(254, '\x11') + '\x1F';
    EXPECT_EQ(received(CommaSeparated, {raw(4, 255, 0, "N", 255)}, {packedDigits}), std::string(509, '1') + LineEnd);
    std::string many;
    for (int i = 0; i < 4096; ++i) many += "AB";
    const std::string bytes(4096, '\xAB');
    EXPECT_EQ(received(CommaSeparated, {hex("N", 4096)}, {bytes}), many + LineEnd);
    EXPECT_EQ(received(BasicSequential, {hex("N", 4096)}, {bytes}), "\"" + many + "\"" + LineEnd);
    EXPECT_TRUE(user.messages.empty());
}

// Descriptions that make no sense harm nothing but themselves: the field behind them arrives, or a message says why
// not.
TEST_F(NumericText, NonsenseDescriptionsDoNoHarm) {
    const std::string fields[] = {raw(4, 0, 0, "N", 0),   raw(4, 0, 5, "N", 9),   raw(3, 0, 0, "N", 0),
                                  raw(3, 2, 5, "N", 2),   raw(3, 2, 255, "N", 2), raw(4, 2, 9, "N", 3),
                                  raw(4, 2, 255, "N", 2), raw(1, 2, 200, "N", 4), raw(1, 4, 255, "N", 9),
                                  raw(1, 3, 0, "N", 9),   raw(1, 0, 1, "N", 0),   raw(1, 200, 3, "N", 4),
                                  raw(0, 0, 0, "N", 0)};
    for (const std::string& field : fields) {
        const auto length = static_cast<std::uint8_t>(field[1]);
        const std::string record = std::string(length, '\x11') + hostText("Z");
        for (const FileType type : {AsciiText, BasicSequential, CommaSeparated, TabDelimited, Dif, BasicRandom}) {
            SCOPED_TRACE(hexOf(field.substr(0, 3)) + ", type " + std::to_string(type));
            user.messages.clear();
            received(type, {field, character("C", 1)}, {record});
            EXPECT_NE(pcFileBytes().find('Z') != std::string::npos, !user.messages.empty());
        }
    }
}

}  // namespace
