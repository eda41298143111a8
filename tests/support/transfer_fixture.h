#pragma once

#include <functional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "emulator/emulator.h"
#include "scripted/script.h"
#include "support/host_fields.h"
#include "support/host_record.h"
#include "support/library.h"
#include "support/own_folder.h"
#include "support/recording_user.h"
#include "support/scripted_host.h"

namespace setting = zhst::setting;

// A session that is ready to transfer: complete connection settings, a PC file in a folder of its own, the scripted
// providers, a user who writes everything down, the journal on (with every provider entry as "provider NAME"). The end
// of each test checks that nothing is left behind.
class TransferFixture : public OwnFolder {
protected:
    // Values of setting 131.
    enum Output { ToScreen = 0, ToFile = 1, ToSpreadsheet = 3 };
    // Values of settings 119 and 120.
    enum FileType { AsciiText, BasicSequential, CommaSeparated, BasicRandom, NoConversion, TabDelimited, Dif };

    void SetUp() override;
    void TearDown() override;

    // --- The session
    const Library& library = Library::get();
    ZhstSession session = 0;
    RecordingUser user;
    ScriptedHost hostFile;

    // Made on first use, so that a test can set things up before.
    ZXFRPCSCLIENT* client();
    void deleteClient() { library.deleteZXFRPCSCLIENT(std::exchange(client_, nullptr)); }
    void set(std::uint32_t id, std::int32_t value) { emulator::set(session, id, value); }
    void set(std::uint32_t id, const char* value) { emulator::set(session, id, std::string(value)); }
    void set(std::uint32_t id, const std::string& value) { emulator::set(session, id, value); }
    std::int32_t number(std::uint32_t id) const { return emulator::number(session, id); }
    // 2 and 4: Stf; 5, 7 and 13: AppcRequestor; 8, 9, 14 and 15: Requestor; 30, or routerKind 2: As400.
    void useTransport(std::int32_t transportType, std::int32_t routerKind = 1) {
        set(setting::TransportType, transportType);
        set(setting::RouterKind, routerKind);
    }
    // A folder below binFolder().
    static void useProviders(const std::string& folder) { emulator::setProviderFolder(binFolder() + "/" + folder); }
    // The usual PC with another list separator.
    static void useListSeparator(char separator);
    // One fault, and no other: setFault(&emulator::Faults::failConversion, true).
    template <class Value>
    static void setFault(Value emulator::Faults::*fault, std::type_identity_t<Value> value) {
        emulator::Faults faults;
        faults.*fault = value;
        emulator::setFaults(faults);
    }
    // As it fits into `room` bytes with the zero byte.
    std::string messageText(std::uint32_t table, std::uint32_t index, std::size_t room = 300) const;

    // --- Transfers
    void receive(std::uint32_t showProgress = 0) { library.pcsTransferFile(client(), "", 0, showProgress, 0); }
    void send(std::uint32_t showProgress = 0) { library.pcsTransferFile(client(), "", 1, showProgress, 0); }
    // A receive writes a description beside its file.
    void describe() {
        set(setting::WriteDescriptionFile, 1);
        set(setting::ReceiveDescriptionFile, "*.FDF");
    }
    // A send goes by a description of this type (PCFT), into a file that exists.
    void sendByDescription(int type);
    // The PC file that the host's records become in a type.
    std::string received(FileType type, const std::vector<std::string>& fields,
                         const std::vector<std::string>& records);
    // The values of the last tuple of a DIF file.
    static std::string lastTuple(const std::string& dif);
    // The provider entries that a transfer reaches.
    static std::vector<std::string> entriesOf(const std::function<void()>& transfer);
    // Runs `transfer` with its first, second, third ... allocation failing, until one runs through; then once more with
    // all later ones failing too. Before each the PC file and the messages go and `prepare` comes; after each, nothing
    // may be open or active.
    void failEachAllocation(
        const std::function<void()>& transfer, const std::function<void()>& prepare = [] {});

    // --- The PC
    std::string pcFile() const { return path("pcfile.dat"); }
    std::string pcFileBytes() const { return fileBytes(pcFile()); }
    bool pcFileExists() const { return std::filesystem::exists(pcFile()); }
    void writePcFile(const std::string& bytes) const { writeFile(pcFile(), bytes); }

    // --- The journal
    // Lines that contain these texts follow one another, with any others between; and how many lines contain one. A "*"
    // in a text stands for anything: "WatchSetting(*, 215".
    void expectInOrder(const std::vector<std::string>& texts) const;
    std::size_t journalCount(const std::string& text) const;

    // --- The end
    // No transfer runs and none left anything open; the client, its provider and its watches may be there.
    void expectIdle() const;

private:
    void failEachAllocation(const std::function<void()>& transfer, const std::function<void()>& prepare,
                            bool everyLater);

    ZXFRPCSCLIENT* client_ = nullptr;
    std::uint64_t blocksBefore_ = 0;
};

// A host file of two records with one field.
class TwoRecords : public TransferFixture {
protected:
    static constexpr const char* Received = "ALPHA\r\nGAMMA\r\n";

    void SetUp() override {
        TransferFixture::SetUp();
        hostFile.fields = {hostfields::character("NAME", 5)};
        hostFile.records = {hostText("ALPHA"), hostText("GAMMA")};
    }
    void expectReceived() {
        receive();
        EXPECT_EQ(pcFileBytes(), Received);
    }
};
