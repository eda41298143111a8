#include "support/transfer_fixture.h"

namespace {

using namespace hostfields;

class FdfWrite : public TransferFixture {
protected:
    void SetUp() override {
        TransferFixture::SetUp();
        describe();
        set(setting::ReceiveFileType, AsciiText);
        hostFile.fields = {character("NAME", 20)};
    }
    std::string fdf() const { return fileBytes(emulator::nativePath(path("pcfile.fdf"))); }
    std::string written() {
        receive();
        return fdf();
    }
};

constexpr const char* Zeros = "PCFO 6,4,9,5,*\r\n";  // all of the settings 0

TEST_F(FdfWrite, FieldsInEachFileType) {
    hostFile.fields = {hex("HX", 3),          binary("B2", 2),    binary("B4", 4, 2),   character("NAME", 20),
                       zoned("AMOUNT", 7, 2), packed("COUNT", 9), packed("PD", 5, 2),   typed(6, "T6", 10),
                       typed(7, "T7", 11),    typed(8, "T8", 12), typed(11, "T11", 1),  typed(12, "T12", 2),
                       typed(13, "T13", 300), typed(9, "T9", 4),  raw(0, 2, 0, "HD", 4)};
    const std::string text =
        "PCFL HX 2 1\r\nPCFL B2 2 5\r\nPCFL B4 2 11/2\r\nPCFL NAME 1 20\r\nPCFL AMOUNT 2 9/2\r\nPCFL COUNT 2 10\r\n"
        "PCFL PD 2 7/2\r\nPCFL T6 1 10\r\nPCFL T7 1 11\r\nPCFL T8 1 12\r\nPCFL T11 1 1\r\nPCFL T12 1 2\r\n"
        "PCFL T13 1 300\r\nPCFL T9 1 4\r\nPCFL HD 2 5\r\n";
    const std::string random =
        "PCFL HX 3 3\r\nPCFL B2 4 2\r\nPCFL B4 4 4\r\nPCFL NAME 1 20\r\nPCFL AMOUNT 5 7\r\nPCFL COUNT 6 5\r\n"
        "PCFL PD 6 3\r\nPCFL T6 1 10\r\nPCFL T7 1 11\r\nPCFL T8 1 12\r\nPCFL T11 1 1\r\nPCFL T12 1 2\r\n"
        "PCFL T13 1 300\r\nPCFL T9 1 4\r\nPCFL HD 3 2\r\n";
    const std::string none =
        "PCFL HX 3 3\r\nPCFL B2 4 2\r\nPCFL B4 4 4\r\nPCFL NAME 10 20\r\nPCFL AMOUNT 11 7\r\nPCFL COUNT 12 5\r\n"
        "PCFL PD 12 3\r\nPCFL T6 10 10\r\nPCFL T7 10 11\r\nPCFL T8 10 12\r\nPCFL T11 10 1\r\nPCFL T12 10 2\r\n"
        "PCFL T13 10 300\r\nPCFL T9 10 4\r\nPCFL HD 3 2\r\n";
    const struct {
        FileType type;
        const char* code;
        const std::string& fields;
    } rows[] = {{AsciiText, "1", text},     {BasicSequential, "3", text}, {CommaSeparated, "99", text},
                {TabDelimited, "98", text}, {BasicRandom, "2", random},   {NoConversion, "6", none}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.type);
        set(setting::ReceiveFileType, row.type);
        EXPECT_EQ(written(), "PCFDF\r\nPCFT " + std::string(row.code) + "\r\n" + Zeros + row.fields);
    }
    hostFile.records = {std::string(400, '\xC1')};
    set(setting::ReceiveFileType, Dif);
    EXPECT_EQ(written(), "PCFDF\r\nPCFT 5\r\n" + std::string(Zeros) + text);

    set(setting::ReceiveFileType, AsciiText);
    set(setting::FdfNumericLengthMode, 1);
    hostFile.fields = {zoned("AMOUNT", 7, 2), zoned("WHOLE", 7), character("NAME", 20)};
    EXPECT_EQ(written(),
              "PCFDF\r\nPCFT 1\r\n" + std::string(Zeros) + "PCFL AMOUNT 2 7/2\r\nPCFL WHOLE 2 7\r\nPCFL NAME 1 20\r\n");
}

TEST_F(FdfWrite, EachValueOfTheOptions) {
    using Codes = std::vector<std::string>;  // of the values 0, 1, 2 ...
    const auto check = [this](std::uint32_t id, const Codes& codes, const std::string& before, const char* after) {
        for (std::size_t value = 0; value < codes.size(); ++value) {
            set(id, static_cast<std::int32_t>(value));
            const std::string options = "\r\nPCFO " + before + codes[value] + after + "\r\n";
            EXPECT_NE(written().find(options), std::string::npos) << id << " = " << value;
        }
        set(id, 0);
    };
    check(setting::TimeFormat, {"6", "7", "4", "1", "2", "5", "3", "-1"}, "", ",4,9,5,*");
    check(setting::TimeSeparator, {"4", "1", "3", "-1", "6", "5", "2", "-1"}, "6,", ",9,5,*");
    check(setting::DateFormat, {"9", "10", "2", "7", "5", "8", "4", "1", "6", "3", "-1"}, "6,4,", ",5,*");
    check(setting::DateSeparator, {"5", "-1", "4", "2", "7", "6", "3", "1", "-1"}, "6,4,9,", ",*");
    check(setting::DecimalSeparatorMode, {"*", "*", "2", "*", "*", "*", "1", "*", "*"}, "6,4,9,5,", "");
    set(setting::TimeFormat, -1);
    EXPECT_NE(written().find("PCFO -1,"), std::string::npos);
}

TEST_F(FdfWrite, WhereTheDescriptionGoes) {
    std::filesystem::create_directory(path("sub"));
    const struct {
        const char* setting;
        const char* file;
    } rows[] = {{"*.FDF", "pcfile.fdf"}, {"*.DESCRIPTION", "pcfile.des"}, {"ORDERS.FDF", "orders.fdf"}};
    const auto find = [this](const std::string& name) {
        return std::filesystem::exists(emulator::nativePath(path(name)));
    };
    for (const auto& row : rows) {
        set(setting::ReceiveDescriptionFile, row.setting);
        receive();
        EXPECT_TRUE(find(row.file)) << row.setting;
    }
    set(setting::ReceiveDescriptionFile, path("sub/own.fdf"));
    receive();
    EXPECT_TRUE(find("sub/own.fdf"));
    set(setting::WriteDescriptionFile, 2);
    set(setting::ReceiveDescriptionFile, "never.fdf");
    receive();
    EXPECT_FALSE(find("never.fdf")) << "only the value 1 counts";
}

TEST_F(FdfWrite, ExistingFileIsReplacedButNeverAddedTo) {
    for (const std::int32_t action : {1, 2}) {
        writeFile(path("pcfile.FDF"), "OLD");
        set(setting::ExistingFileAction, action);
        EXPECT_EQ(written().substr(0, 5), "PCFDF") << action;
    }
}

// The transfer goes on without its description.
TEST_F(FdfWrite, FailureIsNoneOfTheTransfers) {
    hostFile.records = {HostRecord().text("ABC", 20)};
    set(setting::ReceiveDescriptionFile, path("nowhere/own.fdf"));
    receive();
    EXPECT_EQ(pcFileBytes(), "ABC                 \r\n");
    expectIdle();
}

}  // namespace
