#include <map>

#include "Z7XFRPCS/exports.h"
#include "support/transfer_fixture.h"
#include "support/transfer_record.h"

// Whole transfers against their records in transfers/: every service call with its arguments, every store item, every
// call of a provider with its answer, every box, and the files that are there at the end. What is in a record needs no
// test of its own; what a transfer leaves undone is held by its record too.

namespace {

using namespace hostfields;
using scripted::Answer;
using scripted::Call;

constexpr std::uint32_t Ask = TF_SEND_REQUEST, Field = TF_GET_FIELD, Fetch = TF_GET_DATA, Put = TF_PUT_DATA;

class Transfers : public TransferFixture {
protected:
    void SetUp() override {
        TransferFixture::SetUp();
        emulator::journalOn(true, emulator::JournalTexts::Whole);
        emulator::onStoreWrite([](std::string_view, std::string_view) { emulator::note("taken"); });
        scripted::setHandler([this](const Call& call) { return noted(call); });
        scripted::setListener([](const std::string& entry) {
            if (!entry.starts_with("TF_")) emulator::note("provider " + entry);
        });
        user.onMessage = [this](const emulator::MessageBox& box) { return noted(box); };
        user.onPump = [this] {
            if (user.display.open) emulator::note("-- the user reads on");
            user.readOn();
        };
        hostFile.fields = {character("NAME", 10), packed("BALANCE", 7, 2)};
        hostFile.records = {customer("ACME, INC.", 12345), customer("THE \"SHOP\"", -99)};
        set(setting::LastErrorText, "of before");
    }
    static std::string customer(const char* name, std::int64_t balance) {
        return HostRecord().text(name, 10).packed(balance, 7);
    }
    // Everything from here on, with the client in place.
    void begin() {
        client();
        emulator::clearJournal();
    }
    static void step(const std::string& what) { emulator::note("-- " + what); }
    // The Nth call of this function, from here on, is answered so.
    void answer(std::uint32_t function, int nth, const Answer& answer) {
        hostFile.intercept = [=, seen = 0](const Call& call) mutable -> std::optional<Answer> {
            return call.function == function && ++seen == nth ? std::optional(answer) : std::nullopt;
        };
    }
    // What the host's descriptions of a PC file become for a send; the file is there too.
    void describeToHost(const char* typeAndOptions, const char* fields, const std::string& pcFile) {
        set(setting::UseDescriptionFile, 1);
        set(setting::SendDescriptionFile, "pcfile.fdf");
        writeFile(path("pcfile.fdf"), std::string("PCFDF\r\n") + typeAndOptions + fields);
        writePcFile(pcFile);
    }
    void list(const char* filter, std::uint32_t kind, std::int32_t files) {
        step(std::string("list \"") + filter + "\", kind " + std::to_string(kind) + ", " + std::to_string(files));
        HostCatalogEntry entry{};
        entry.entryKind = kind;
        entry.fileCount = files;
        std::uint32_t result = library.pcsGetFirstHostFilename(session, filter, &entry);
        for (int most = 20; most > 0; --most) {
            emulator::note("listed " + std::to_string(result) + ": " + emulator::quoted(entry.name) + ", " +
                           emulator::quoted(entry.description) + ", " + std::to_string(+entry.status) + ", " +
                           std::to_string(+entry.flags));
            if (result != CatalogEntryDelivered) break;
            result = library.pcsGetNextHostFilename(session, &entry);
        }
    }
    // With the files that are there now, line by line.
    void expectRecord(const std::string& name) {
        std::map<std::string, std::string> files;
        for (const auto& entry : std::filesystem::directory_iterator(folder))
            files[entry.path().filename().string()] = fileBytes(entry.path());
        for (const auto& [file, bytes] : files) {
            step("file " + file);
            for (std::size_t begin = 0, end; begin < bytes.size(); begin = end) {
                end = std::min(bytes.find('\n', begin), bytes.size() - 1) + 1;
                emulator::note(emulator::quoted(std::string_view(bytes).substr(begin, end - begin)));
            }
        }
        transferrecord::expectRecorded(name, transferrecord::settled(emulator::journal(), folder.string()));
    }

private:
    Answer noted(const Call& call) {
        static constexpr const char* Families[] = {"E32TFW.", "ZEHNTFW.", "ZTFWAPPC.", "AS4XFER."};
        const auto number = [](std::uint32_t value) { return ", " + std::to_string(value); };
        emulator::note(Families[static_cast<int>(call.family)] + std::string(scripted::functionName(call.function)) +
                       "(" + std::to_string(call.client) + number(call.window) + number(call.conversation) +
                       number(call.length) + ", " + emulator::quoted(call.request) + ", " +
                       (call.designation ? emulator::quoted(*call.designation) : "0") + number(call.bufferSize) +
                       number(call.reserved) + (call.yield ? ", *)" : ", 0)"));
        const Answer answer = hostFile.answer(call);
        emulator::note("answers 0x" + hexOf(std::string{static_cast<char>(answer.returnCode >> 8)}) +
                       hexOf(std::string{static_cast<char>(answer.returnCode)}) + number(answer.detail) + ", " +
                       emulator::quoted(answer.bytes));
        return answer;
    }
    std::int32_t noted(const emulator::MessageBox& box) const {
        emulator::note("box " + std::to_string(box.id) + ", owner " + std::to_string(box.owner) + ", flags " +
                       std::to_string(box.flags) + ", help " + std::to_string(box.helpId) +
                       (box.scrolling ? ", scrolling: " : ": ") + emulator::quoted(box.text));
        return user.answer;
    }
};

TEST_F(Transfers, ReceiveToAFile) {
    begin();
    set(setting::RecordProgress, 1);
    set(setting::ExistingFileAction, 0);
    describe();
    step("a provider that calls back while nothing goes on, and while a request does");
    library.EHNTF_STF_Callback();
    hostFile.during(Ask, [] { scripted::calls().back().yield(); });
    library.pcsTransferFile(client(), "", 0, 1, 47114711);
    expectRecord("receive_to_file");
}

TEST_F(Transfers, ReceiveOfEachType) {
    hostFile.records.resize(1);
    begin();
    for (std::int32_t type = AsciiText; type <= Dif; ++type) {
        step("type " + std::to_string(type));
        set(setting::ReceiveFileType, type);
        receive(1);
    }
    step("records that were counted and are none");
    hostFile.records.clear();
    set(setting::RecordProgress, 1);
    receive(1);
    set(setting::ReceiveFileType, CommaSeparated);
    receive(1);
    step("a DIF header that cannot be written");
    set(setting::ReceiveFileType, Dif);
    set(setting::ExistingFileAction, 0);
    std::filesystem::remove(pcFile());
    hostFile.count = 1;
    setFault(&emulator::Faults::failWriteAfterBytes, 40);
    receive(1);
    expectRecord("receive_of_each_type");
}

TEST_F(Transfers, ReceiveToTheDisplay) {
    hostFile.fields = {character("ABCDEFGHIJKLMNOPQRST", 3),
                       zoned("Z", 5, 2),
                       hex("HX", 2),
                       packed("P", 5),
                       binary("B", 2),
                       typed(9, "T", 4)};
    const HostRecord record = HostRecord().text("a", 3).zoned(-125, 5).hex("0AFF").packed(42, 5).binary(7, 2);
    hostFile.records.assign(3, HostRecord(record).text("x", 4));
    begin();
    set(setting::ReceiveOutput, ToScreen);
    set(setting::ReceiveFileType, Dif);
    set(setting::DisplayRowsPerPage, 2);
    set(setting::TransferOwnerWindow, 47114711);
    receive(1);
    step("closed while it waits for the next page");
    set(setting::TransferOwnerWindow, 0);
    user.onPump = [] { emulator::closeDisplay(); };
    receive();
    step("to nowhere, without a host system");
    set(setting::ReceiveOutput, 2);
    set(setting::ReceiveFileType, 77);
    set(setting::HostSystemName, "");
    receive();
    expectRecord("receive_to_display");
}

TEST_F(Transfers, ReceiveToTheSpreadsheet) {
    begin();
    set(setting::ReceiveOutput, ToSpreadsheet);
    set(setting::ReceiveFileType, TabDelimited);
    set(setting::PcFileName, path("CUST.DIF"));
    set(setting::RecordProgress, 2);
    describe();
    user.shellResult = 32;
    receive(1);
    step("by its name, and not started");
    set(setting::LaunchByProgramName, 1);
    set(setting::WriteDescriptionFile, 0);
    hostFile.records.resize(1);
    user.shellResult = 31;
    receive();
    step("no file object");
    setFault(&emulator::Faults::refuseFileObject, true);
    receive();
    expectRecord("receive_to_spreadsheet");
}

TEST_F(Transfers, SettingsFile) {
    hostFile.fields.clear();
    hostFile.records.clear();
    emulator::setSettingsFileReader([this](ZhstSession, const std::string& file) {
        step("the settings file " + file);
        set(setting::WorkingDirectory, folder.string());
        set(setting::PcFileName, "daily.csv");
        return file == "daily.xfr";
    });
    begin();
    library.pcsTransferFile(client(), "daily.xfr", 0, 0, 0);
    library.pcsTransferFile(client(), "missing.xfr", 0, 0, 0);
    expectRecord("settings_file");
}

TEST_F(Transfers, Demonstration) {
    static std::uint32_t ticks;
    ticks = 0xFFFFFE00;  // the clock wraps around on the way
    emulator::setTickCount([] { return ticks += 100; });
    set(setting::ConnectionType, 3);
    set(setting::ReceiveFileType, Dif);
    set(setting::SendFileType, TabDelimited);
    begin();
    receive(1);
    step("cancelled");
    user.onPump = [this] {
        if (number(setting::ProgressCount) == 1404) library.pcsCancelTransfer(client());
    };
    receive(1);
    step("sent");
    writePcFile(std::string(1001, 'x'));
    send(1);
    step("to the display, and closed behind the second page");
    set(setting::ReceiveOutput, ToScreen);
    set(setting::DisplayRowsPerPage, 3);
    user.onPump = [this] { user.display.rows.size() < 6 ? user.readOn() : emulator::closeDisplay(); };
    receive();
    for (const char* filter : {"", "LONGLIBNAME1", "LONGLIBNAME1/", "L/F", "QGPL/CUST(MBR)"}) list(filter, 0, 1);
    for (const std::int32_t files : {1, 2}) list("x", 2, files);
    expectRecord("demonstration");
}

TEST_F(Transfers, SendByADescription) {
    useListSeparator(';');
    describeToHost("PCFT 99\r\nPCFO 2,2,7,4,2\r\n", "PCFL NAME 1 10\r\nPCFL BALANCE 2 9/2\r\n",
                   "ACME;123,45\r\n\"THE \"\"SHOP\"\"\";-,99\r\n");
    set(setting::CreateMode, 0);
    set(setting::PublicAuthority, 2);
    set(setting::FileText, "Customers");
    set(setting::MemberText, "It's");
    set(setting::DecimalSeparatorMode, 2);
    begin();
    send(1);
    step("to a member that is there");
    set(setting::CreateMode, 2);
    answer(Ask, 2, Answer::code(0x0400, "IWS2036 The member exists."));
    user.answer = 10;
    send(1);
    expectRecord("send_by_description");
}

TEST_F(Transfers, SendThatIsCancelled) {
    describeToHost("PCFT 99\r\n", "PCFL NAME 1 10\r\n", "ONE\r\nTWO\r\nTHREE\r\nFOUR\r\n");
    hostFile.fields = {character("NAME", 10)};
    set(setting::CreateMode, 1);
    begin();
    hostFile.during(Put, [this] { hostFile.during(Put, [this] { library.pcsCancelTransfer(client()); }); });
    send(1);
    step("with fewer lines than it is to begin behind");
    set(setting::StartRecord, 5);
    send(1);
    expectRecord("send_cancelled");
}

TEST_F(Transfers, SendOfRecords) {
    set(setting::CreateMode, 2);
    describeToHost("PCFT 2\r\n", "PCFL NAME 1 4\r\nPCFL CUSTNO 5 2\r\nPCFL BALANCE 4 2\r\n",
                   bytesOf("41424344 31B2 D204 4142"));
    hostFile.fields = {character("NAME", 4), zoned("CUSTNO", 2), binary("BALANCE", 2)};
    begin();
    send();
    step("without conversion, the last one short");
    describeToHost("PCFT 6\r\n", "PCFL NAME 10 4\r\n", "ABCDEF");
    hostFile.fields = {character("NAME", 4)};
    send();
    step("a number that is none");
    describeToHost("PCFT 99\r\n", "PCFL NAME 1 1\r\nPCFL CUSTNO 2 2\r\n", "A,1\r\nB,2\r\nC,3x\r\nD,4\r\n");
    hostFile.fields = {character("NAME", 1), zoned("CUSTNO", 2)};
    send(1);
    step("a source file, of several fields");
    set(setting::UseDescriptionFile, 0);
    set(setting::HostFileType, 1);
    set(setting::SendFileType, AsciiText);
    set(setting::CreateMode, 1);
    send(1);
    expectRecord("send_of_records");
}

TEST_F(Transfers, Catalogue) {
    begin();
    for (const bool as400 : {false, true}) {
        useTransport(as400 ? 30 : 2);
        const auto padded = [](const char* text, std::size_t length) { return HostRecord().text(text, length).str(); };
        const std::string type = as400 ? std::string("CHAR\0", 5) : hostText("CHAR "), length = bytesOf("040000000000");
        hostFile.catalogue = {padded("QGPL", 10) + padded("General library", 50), padded("QSYS", 10) + padded("", 50)};
        list("", 0, 1);
        hostFile.catalogue = {padded("QGPL/CUST", 21) + padded("Customers", 54), padded("", 70)};
        list("QGPL/", 0, 1);
        hostFile.catalogue = {padded("QGPL/CUST(MBR)", 33) + padded("First member", 50),
                              padded("QGPL/CUST(OTHER)", 44) + padded("Second", 52)};
        list("QGPL/CUST", 0, 1);
        hostFile.catalogue = {padded("NAME", 10) + type + length + padded("Name", 50)};
        list("QGPL/CUST", 2, 1);
        hostFile.catalogue = {padded("t1.NAME", 13) + type + std::string(1, '\0') + length + padded("Name", 50)};
        list("QGPL/CUST QGPL/ORDERS", 2, 2);
    }
    expectRecord("catalogue");
}

TEST_F(Transfers, Session) {
    hostFile.fields.resize(1);
    hostFile.records.resize(1);
    set(setting::RecordProgress, 1);
    step("a client, and its first transfer");
    client();
    receive();
    step("the same again");
    set(setting::TransportType, 2);
    set(setting::RouterKind, 1);
    step("another transport");
    set(setting::TransportType, 8);
    receive();
    step("another transport, with the connection");
    set(setting::ConnectionChanging, 1);
    set(setting::TransportType, 5);
    step("the connection has changed");
    set(setting::ConnectionChanging, 0);
    receive();
    step("another router");
    set(setting::RouterKind, 2);
    receive();
    step("clean-up, twice");
    emulator::runCleanup(session, 104);
    library.xferCleanup(session);
    step("again, and the end of the client");
    useTransport(2);
    receive();
    deleteClient();
    expectRecord("session");
}

TEST_F(Transfers, ErrorsOfTheHost) {
    begin();
    const auto refusedRecord = [this](const char* what, std::uint32_t code, const char* text = "") {
        step(what);
        answer(Fetch, 2, Answer::code(code, text));
        receive(1);
    };
    step("data where none is due, and where it is");
    hostFile.intercept = [asked = 0](const Call& call) mutable -> std::optional<Answer> {
        if (call.function == TF_RESET) return Answer::code(0x2005, "RESET DATA");
        if (call.function != Ask) return std::nullopt;
        if (++asked == 1) return Answer::data("IGNORED");
        Answer refused = Answer::code(0xFFFF3000u, "NO SUCH FILE");
        refused.detail = 0xABCD0102u;
        return refused;
    };
    receive();
    step("a field description that is none");
    answer(Field, 2, Answer::code(0x5057));
    receive();
    step("a request refused");
    answer(Ask, 2, Answer::code(0x0103));
    receive();
    set(setting::RecordProgress, 1);
    hostFile.count = 17;
    hostFile.during(Field, [this] {
        set(setting::JobName, "QZDASOINIT");
        set(setting::JobUser, "QUSER");
        set(setting::JobNumber, "123456");
    });
    refusedRecord("a code in no table, as the answer to the first of 17 records", 8198);
    set(setting::RecordProgress, 0);
    refusedRecord("a record refused", 0x2026, "CPF5006 The record is locked.");
    useTransport(9, 2);
    refusedRecord("a provider's own code, behind the AS/400 client", 0x0005);
    useTransport(9);
    refusedRecord("the same code without it", 0x0005);
    refusedRecord("a provider that was not started", 0x9999);
    emulator::disableMessage(4432);
    refusedRecord("the same, which nobody wants to hear", 0x9999);
    expectRecord("errors_of_the_host");
}

}  // namespace
