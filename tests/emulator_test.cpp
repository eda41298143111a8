#include <algorithm>
#include <cstring>
#include <tuple>

#include "Z7XFRPCS/conversion.h"
#include "Z7XFRPCS/dialogs.h"
#include "Z7XFRPCS/messages.h"
#include "Z7XFRPCS/runtime.h"
#include "Z7XFRPCS/session.h"
#include "platform/platform.h"
#include "services/objects.h"
#include "support/transfer_fixture.h"

namespace {

namespace files = std::filesystem;
using Lines = std::vector<std::string>;

class Emulator : public TransferFixture {
protected:
    Emulator() { std::filesystem::create_directory(path("Data")); }

    services::FileObject* file(const std::string& name, std::uint32_t action = 1) const {
        services::FileObject* object = services::CreateFileObject(session);
        object->setName(path(name).c_str());
        object->setExistingFileAction(action);
        return object;
    }
};

TEST_F(Emulator, ExistingFileIsTreatedAsAskedFor) {
    // Action, whether it takes new files only, answer, flags of the question (0: none) and what is in the file then.
    const std::tuple<std::uint32_t, bool, std::int32_t, std::uint32_t, std::string> cases[] = {
        {1, false, 2, 0, "new"},       {2, false, 2, 0, "oldnew"}, {0, false, 6, 0x23, "new"},
        {0, false, 7, 0x23, "oldnew"}, {0, false, 2, 0x23, "old"}, {0, true, 1, 0x21, "new"},
        {0, true, 10, 0x21, "new"},    {0, true, 7, 0x21, "old"},  {0, true, 2, 0x21, "old"},
    };
    for (const auto& [action, newFileOnly, answer, questionFlags, left] : cases) {
        SCOPED_TRACE(testing::Message() << "action " << action << " answer " << answer);
        writeFile(path("out.txt"), "old");
        user.messages.clear();
        user.answer = answer;
        services::FileObject* object = file("OUT.TXT", action);
        if (newFileOnly) object->prepareNewFile();
        EXPECT_EQ(object->openForWriting(), left != "old");
        EXPECT_EQ(object->write("new", 3), left != "old");
        object->close();
        object->destroy();
        EXPECT_EQ(fileBytes(path("out.txt")), left);
        ASSERT_GE(user.messages.size(), questionFlags ? 1u : 0u);
        EXPECT_EQ(user.messages.empty() ? 0u : user.messages[0].flags, questionFlags);
    }
    EXPECT_EQ(emulator::openObjects().files, 0u);
}

TEST_F(Emulator, FileFailureIsToldOnce) {
    services::FileObject* object = file("missing.txt");
    EXPECT_EQ(object->size(), 0u);
    EXPECT_TRUE(user.messages.empty());
    for (int i = 0; i < 2; ++i) EXPECT_TRUE(object->errorState());
    ASSERT_EQ(user.messages.size(), 1u);
    for (const char* said : {"missing.txt", "No such file"})
        EXPECT_NE(user.messages[0].text.find(said), std::string::npos);
    EXPECT_FALSE(object->openForReading());  // tells at once
    EXPECT_EQ(user.messages.size(), 2u);
    object->setName(path("Data").c_str());
    EXPECT_FALSE(object->openForWriting());
    EXPECT_EQ(user.messages.size(), 3u);
    object->setName(path("full.txt").c_str());
    setFault(&emulator::Faults::failWriteAfterBytes, 10);
    ASSERT_TRUE(object->openForWriting());
    for (const bool fits : {true, false, false}) EXPECT_EQ(object->write("12345678", 8), fits);
    EXPECT_TRUE(object->errorState());
    EXPECT_EQ(user.messages.size(), 4u);
    object->destroy();  // closes
    EXPECT_EQ(fileBytes(path("full.txt")), "12345678");
}

TEST_F(Emulator, LongOutputArrivesWholeAndInOrder) {
    services::FileObject* object = file("long.txt");
    ASSERT_TRUE(object->openForWriting());
    std::string expected;
    for (int i = 0; i < 2000; ++i) {
        const int length = i % 7 == 0 ? 70000 / (i + 1) : i % 90;
        const std::string piece(static_cast<std::size_t>(length), static_cast<char>('a' + i % 26));
        expected += piece;
        ASSERT_TRUE(object->write(piece.data(), static_cast<std::uint32_t>(piece.size())));
        ASSERT_EQ(object->position(), expected.size());
    }
    object->destroy();
    EXPECT_EQ(fileBytes(path("long.txt")), expected);
}

TEST_F(Emulator, NamesAreFoundAsOnThePc) {
    writeFile(path("Data/Cust.Txt"), "x");
    auto* paths = services::GetPathServices(session);
    const std::string root = folder.string(), expected = root + "/Data/Cust.Txt";
    std::string backslashed = root + "/dATA/CUST.txt";
    std::ranges::replace(backslashed, '/', '\\');
    const std::string drive = folder.has_root_name() ? "" : "C:";
    paths->setCurrentDirectory((root + "/data").c_str());
    for (const std::string& name : {root + "/DATA/cust.TXT", backslashed, drive + backslashed,
                                    root + "/data//./cust.txt", std::string("CUST.TXT")})
        EXPECT_TRUE(files::equivalent(emulator::nativePath(name), expected)) << name;
    const files::path newFile = emulator::nativePath(root + "/DATA/New.Txt");
    EXPECT_TRUE(files::equivalent(newFile.parent_path(), folder / "Data")) << newFile;
    EXPECT_EQ(newFile.filename(), "New.Txt");
    EXPECT_TRUE(paths->fileExists("cust.txt"));
    EXPECT_FALSE(paths->fileExists("cust.csv"));
    const std::tuple<const char*, const char*, const char*> parts[] = {{"C:\\DATA\\CUST.TXT", "C:\\DATA\\", "CUST"},
                                                                       {"CUST", "", "CUST"},
                                                                       {"C:A.B.C", "C:", "A.B"},
                                                                       {"x/y\\z.fdf", "x/y\\", "z"},
                                                                       {"d.x/f", "d.x/", "f"},
                                                                       {"", "", ""}};
    for (const auto& [name, directoryPart, baseName] : parts) {
        char directory[261], base[261];
        paths->directoryPart(name, directory);
        paths->baseName(name, base);
        EXPECT_STREQ(directory, directoryPart) << name;
        EXPECT_STREQ(base, baseName) << name;
    }
}

// The second byte of the first character is a backslash's.
TEST_F(Emulator, DoubleByteNamesAreNotCut) {
    emulator::PcSetup japanese;
    japanese.ansiCodePage = japanese.oemCodePage = 932;
    japanese.languageId = 0x0411;
    if (!emulator::setUpPc(japanese)) GTEST_SKIP() << "on another PC";
    auto* paths = services::GetPathServices(session);
    char base[261];
    paths->baseName("C:\\A\\\x95\x5C.TXT", base);
    EXPECT_STREQ(base, "\x95\x5C");
    writeFile(folder / u8"表.txt", "x");
    const files::path found = emulator::nativePath(folder.string() + "\\\x95\x5C.TXT");
    EXPECT_TRUE(files::equivalent(found, folder / u8"表.txt")) << found;
}

TEST_F(Emulator, LibrariesAreFoundLoadedAndCounted) {
    emulator::setProviderFolder(folder.string());
    writeFile(path("text.dll"), "no library");
    for (const auto& entry : files::directory_iterator(files::absolute(testing::internal::GetArgvs()[0]).parent_path()))
        if (entry.path().filename().string().find("z7xscript") != std::string::npos)
            files::copy_file(entry, folder / "Probe.Dll", files::copy_options::overwrite_existing);
    ZhstModule module = nullptr;
    EXPECT_EQ(zhstLoadModule("NONE.DLL", 1, &module), 2u);
    EXPECT_NE(zhstLoadModule("TEXT.DLL", 1, &module), 0u);
    EXPECT_EQ(module, nullptr);
    ASSERT_EQ(zhstLoadModule("PROBE.DLL", 0, &module), 0u);
    EXPECT_EQ(emulator::openObjects().modules, 1u);
    // malloc would be found in what the module depends on.
    EXPECT_EQ(platform::GetProcAddress(module, "malloc"), nullptr);
    zhstFreeModule(module);
    EXPECT_EQ(emulator::openObjects().modules, 0u);
}

// That every number of the list has a sentence is checked when the catalogue is compiled. These are read by place into
// buffers of their sizes; those that make messages also by the number of the message.
TEST_F(Emulator, CatalogueTextsFitTheirReadersAndMakeMessages) {
    const std::map<std::uint32_t, std::size_t> narrow = {{418, 39}, {432, 79}, {443, 39}, {444, 39}};
    zhstShowMessage(session, 0, 1, 0x30, 1, 0);
    const std::string absent = user.messages.back().text;
    const auto expectFits = [&](std::uint32_t table, std::uint32_t index) {
        char text[1000] = "?";
        zhstLoadMessageText(session, table, index, text, sizeof text);
        const auto longest = narrow.contains(index) ? narrow.at(index) : 99;
        EXPECT_TRUE(*text && std::strlen(text) <= longest) << table << ',' << index;
    };
    const auto expectMessage = [&](std::uint32_t table, std::uint32_t index) {
        zhstShowMessage(session, 0, zhstMessageId(table, index), 0x30, 1, 0);
        EXPECT_NE(user.messages.back().text, absent) << table << ',' << index;
    };
#define EXPECT_TEXT(table, index, ...) expectFits(table, index), expectMessage(table, index);
    ZHST_TEXTS(EXPECT_TEXT)
#define EXPECT_CODE(place, code, ...) expectFits(7, place), expectFits(7, code);
    ZHST_TRANSFER_CODES(EXPECT_CODE)
#define EXPECT_PROVIDER_CODE(code, ...) expectFits(22, code), expectFits(45, code);
    ZHST_PROVIDER_CODES(EXPECT_PROVIDER_CODE)
}

// Those of boxes stand in the records of whole transfers.
TEST_F(Emulator, InsertsAreFilledOnceAndOnlyWhereTheyFit) {
    char bounded[21] = "%1 of %2 %3", one[] = "%2", two[] = "7", tooLong[] = "123456789012345678";
    ZhstTextRecord text{bounded, 20}, first{one, 0}, second{two, 0}, third{tooLong, 0};
    const ZhstTextRecord* inserts[] = {&first, &second, &third};
    zhstFormatStringSet(&text, inserts, 3);
    EXPECT_STREQ(bounded, "%1 of %2 %3");  // would not fit
    zhstFormatStringSet(&text, inserts, 2);
    EXPECT_STREQ(bounded, "%2 of 7 %3");
}

// Their shape stands in the records of whole transfers.
TEST_F(Emulator, JournalTextsAreCutUnlessWantedWhole) {
    const std::string bytes = std::string(63, 'x') + "\x01\"\\\r\n\t\xFF", kept = std::string(63, 'x') + "\\x01";
    emulator::clearJournal();
    zhstSetStringSetting(7, 9999, bytes.c_str());
    zhstSetStoreItem(zhstOpenStore("ZHST"), 0, "lost", 4);  // not locked
    emulator::journalOn(true, emulator::JournalTexts::Whole);
    zhstSetStringSetting(7, 9999, bytes.c_str());
    const std::string line = "SetStringSetting(7, 9999, \"" + kept;
    EXPECT_EQ(emulator::journal(), (Lines{line + "\"...)", "OpenStore(\"ZHST\") = 1", "SetStoreItem(1, 0, \"lost\", 4)",
                                          line + "\\\"\\\\\\r\\n\\t\\xFF\")"}));
}

TEST_F(Emulator, ConversionKnowsPage43AndRefusesUnknownPages) {
    const ZhstConverter converter = zhstGetEmulatorConverter(session);
    unsigned char text[] = {0x4A, 0x4A};  // the cent sign, as in page 37
    set(105, 43);
    EXPECT_EQ(zhstConvertHostText(converter, ZhstHostToPc, 1, text), 0u);
    EXPECT_EQ(text[0], 0xA2);
    EXPECT_EQ(text[1], 0x4A);
    EXPECT_EQ(zhstConvertHostText(converter, ZhstPcToHost, 1, text), 0u);
    EXPECT_EQ(text[0], 0x4A);
    set(105, 99999);
    EXPECT_NE(zhstConvertHostText(converter, ZhstHostToPc, 1, text), 0u);
}

// Tests that fail each allocation in turn say nothing where none fails.
TEST_F(Emulator, AllocationsFailWhenAskedFor) {
    emulator::Faults faults;
    faults.failAllocation = 2;
    emulator::setFaults(faults);
    auto* block = static_cast<char*>(zhstAllocateObject(10, 1));
    EXPECT_EQ(zhstReallocateObject(block, 20), nullptr);
    block = static_cast<char*>(zhstReallocateObject(block, 30));
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(block[9], 0);
    EXPECT_EQ(emulator::allocations().calls, 3u);
    EXPECT_EQ(emulator::allocations().liveBlocks, 1u);
    EXPECT_EQ(emulator::allocations().liveBytes, 30u);
    zhstFreeObject(block);
    EXPECT_EQ(emulator::allocations().liveBytes, 0u);
    faults.failAllAfter = faults.refuseStore = true;
    emulator::setFaults(faults);
    zhstFreeObject(zhstAllocateObject(1, 0));
    for (int i = 0; i < 2; ++i) EXPECT_EQ(zhstAllocateObject(1, 0), nullptr);
    EXPECT_EQ(zhstOpenStore("ZHST"), 0u);
}

}  // namespace
