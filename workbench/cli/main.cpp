#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>

#include "Z7XFRPCS/provider.h"
#include "browse.h"
#include "check_before_send.h"
#include "command_line.h"
#include "console.h"
#include "damaged_numbers.h"
#include "environment/environment.h"
#include "environment/utf8_path.h"
#include "host_command.h"
#include "host_layout.h"
#include "implied_settings.h"
#include "own_host.h"
#include "process.h"
#include "refused_record.h"
#include "report.h"
#include "settings_page.h"
#include "standard_streams.h"
#include "tally.h"
#include "terminal_user.h"
#include "transfer_library.h"
#include "verify_received.h"

// z7xfer: plays the emulator around the transfer library, for a person at a terminal.

namespace {

namespace fs = std::filesystem;

constexpr std::uint32_t ToPc = 0;
constexpr std::uint32_t ToHost = 1;

// A settings file is run by the library, in the middle of a transfer; it must not undo what the command line says.
bool runSettingsFile(ZhstSession session, const std::string& file, const CommandLine& line, const PcText& pcText) {
    try {
        apply(session, wholeSettings(line, readSettingsFile(file)), pcText);
        return true;
    } catch (const std::invalid_argument& error) {
        std::cerr << "z7xfer: " << error.what() << std::endl;
        return false;
    }
}

fs::path sampleHost() { return process::executableFolder() / "sample.db"; }

enum class Use { Read, Write };

// What reads, reads what was sent.
void chooseHost(const CommandLine& line, Use use) {
    fs::path host = utf8Path(line.hostData);
    if (host.empty()) host = use == Use::Read ? own_host::toRead(sampleHost()) : own_host::toWrite(sampleHost());
    environment::set("Z7X_HOST_DATA", host.string());
}

std::string described(const emulator::PcSetup& pc) {
    std::ostringstream text;
    text << "ANSI code page " << pc.ansiCodePage << ", OEM code page " << pc.oemCodePage << " and language 0x"
         << std::hex << pc.languageId;
    return text.str();
}

std::string reasonAgainst(const emulator::PcSetup& pc) {
    if (emulator::pcIsPlayed()) return "a PC with " + described(pc) + " cannot be set up";
    return "this PC has " + described(emulator::usualPc()) + "; they hold for a transfer, and " + described(pc) +
           " cannot be had on it";
}

void setUpPc(const CommandLine& line, const fs::path& folder) {
    if (!emulator::setUpPc(line.pc)) {
        throw std::invalid_argument(reasonAgainst(line.pc));
    }
    emulator::setProviderFolder(line.providerFolder.empty() ? (folder / "providers").string() : line.providerFolder);
    if (line.appends && !line.providerFolder.empty())
        throw std::invalid_argument(
            "--create append is for the sample host; other providers would replace the records");
    chooseHost(line, Use::Read);
    environment::set("Z7X_SEND_APPENDS", line.appends ? "1" : "0");
    environment::set("Z7X_PC_CODE_PAGE", std::to_string(line.pc.ansiCodePage));
}

// A clause that does not fit into the request is left out, and without its condition the transfer would take
// everything.
void checkLength(const emulator::Clauses& clauses, const std::string& hostFiles) {
    constexpr std::size_t Longest = 4000;  // of 4095, the others are for keywords
    const std::size_t length = hostFiles.size() + clauses.where.size() + clauses.join.size() + clauses.groupBy.size() +
                               clauses.having.size() + clauses.orderBy.size();
    if (length > Longest)
        throw std::invalid_argument("host files and clauses have " + std::to_string(length) +
                                    " characters; a request takes " + std::to_string(Longest));
}

emulator::Clauses pcClauses(const CommandLine& line, const PcText& pcText) {
    emulator::Clauses clauses = line.clauses;
    for (std::string* clause :
         {&clauses.select, &clauses.where, &clauses.orderBy, &clauses.groupBy, &clauses.having, &clauses.join}) {
        *clause = pcText.toPc(*clause);
    }
    return clauses;
}

ZhstSession openSession(const CommandLine& line, const PcText& pcText) {
    const ZhstSession session = emulator::newSession();
    apply(session, defaultSettings(), pcText);
    if (Pager::isWanted()) emulator::set(session, zhst::setting::DisplayRowsPerPage, Pager::rowsPerPage());
    if (questions::canBeAsked()) emulator::set(session, zhst::setting::ExistingFileAction, zhst::value::AskUser);
    apply(session, wholeSettings(line, {}), pcText);
    const emulator::Clauses clauses = pcClauses(line, pcText);
    checkLength(clauses, emulator::text(session, zhst::setting::HostFileName));
    emulator::setClauses(session, clauses);
    const bool toFile = emulator::number(session, zhst::setting::ReceiveOutput) != zhst::value::ToDisplay &&
                        emulator::text(session, zhst::setting::PcFileName) != "-";
    if (line.verify && !toFile) throw std::invalid_argument("--verify reads a PC file back, and there is to be none");
    return session;
}

// Before there is a client.
void settleHostCodePage(const TransferLibrary& library, const CommandLine& line, const PcText& pcText,
                        ZhstSession session) {
    const auto tellHost = [&] {
        environment::set("Z7X_HOST_CODE_PAGE", std::to_string(emulator::number(session, zhst::setting::HostCodePage)));
    };
    tellHost();
    if (const std::optional<std::int32_t> page = hostCodePage(line, library, pcText, session))
        emulator::set(session, zhst::setting::HostCodePage, *page);
    tellHost();
}

Tally runCommand(const TransferLibrary& library, ZXFRPCSCLIENT* client, const CommandLine& line, const PcText& pcText,
                 TerminalUser& user, ZhstSession session, const FieldLayouts& layouts) {
    user.onCancel([&] { library.cancelTransfer(client); });
    if (line.command == Command::Browse) {
        // A listing runs no settings file of its own.
        if (!line.settingsFile.empty() && !runSettingsFile(session, line.settingsFile, line, pcText)) {
            return {"failed before any entry, the settings file was refused", ExitUsage};
        }
        return browse(library, line, pcText, user, session, layouts);
    }
    bool settingsRefused = false;
    emulator::setSettingsFileReader([&](ZhstSession asking, const std::string& file) {
        settingsRefused = !runSettingsFile(asking, file, line, pcText);
        return !settingsRefused;
    });
    const bool sending = line.command == Command::Send;
    if (sending)
        chooseHost(line, Use::Write);
    else
        emulator::holdFiles();  // the user of the terminal releases them
    library.transferFile(client, line.settingsFile.c_str(), sending ? ToHost : ToPc, 1, 0);
    emulator::forgetHeldFiles();
    emulator::setSettingsFileReader(nullptr);
    if (settingsRefused) return {"failed before any record, the settings file was refused", ExitUsage};
    return transferTally(user, pcText, session, sending);
}

// What keeps a send from running, or a file from being sent. The settings file, which the library runs later, counts.
std::optional<Tally> check(const TransferLibrary& library, const CommandLine& line, const PcText& pcText,
                           const fs::path& folder, ZhstSession session, Notes& notes) {
    if (line.command != Command::Send || line.unchecked) return std::nullopt;
    const ZhstSession checked = copyOfSession(session);
    if (!line.settingsFile.empty() && !runSettingsFile(checked, line.settingsFile, line, pcText))
        return Tally{"failed before any record, the settings file was refused", ExitUsage};
    if (emulator::number(checked, zhst::setting::ConnectionType) == zhst::value::DemonstrationConnection)
        return std::nullopt;
    return checkBeforeSend(library, pcText, line, folder, checked, notes);
}

// Whether standard output is for records.
bool writesToOutput(const CommandLine& line, ZhstSession session) {
    if (line.command != Command::Receive && line.command != Command::Demo) return false;
    return emulator::number(session, zhst::setting::ReceiveOutput) == zhst::value::ToDisplay ||
           emulator::text(session, zhst::setting::PcFileName) == "-";
}

// What only shows when the transfer is over, and its client gone.
void explainEnding(const TransferLibrary& library, const CommandLine& line, const PcText& pcText,
                   const TerminalUser& user, ZhstSession session, const Tally& tally) {
    const TransferWatch& watch = user.watch();
    if (line.command == Command::Send && watch.isRecordRefused())
        printRefusedRecord(std::cerr, library, pcText, line, process::executableFolder(), session);
    const bool failed = tally.exitStatus != ExitComplete && tally.exitStatus != ExitCancelled;
    if (failed && tally.exitStatus != ExitUsage && watch.messages() == 0) {
        std::cerr << "z7xfer: the transfer ended without a message\n";
        printBelow(std::cerr, user.reasons().ofSilence());
    }
    const TransferWatch::Answer& refusal = watch.lastRefusal();
    const bool recordRefused = refusal.function == TF_GET_DATA && refusal.code == TF_HOST_MESSAGE_INSTEAD;
    if (line.command == Command::Receive && recordRefused &&
        emulator::number(session, zhst::setting::IgnoreDecimalErrors) == 0)
        print(std::cerr, findDamagedNumbers(library, session, pcClauses(line, pcText)));
}

bool writeJournal(const std::string& file, std::ofstream& stream) {
    for (const std::string& entry : emulator::journal()) stream << entry << '\n';
    stream.flush();
    if (!stream) std::cerr << "z7xfer: " << file << " cannot be written" << std::endl;
    return static_cast<bool>(stream);
}

Tally run(const TransferLibrary& library, const CommandLine& line, const PcText& pcText, ZhstSession session,
          const FieldLayouts& layouts, Notes& notes) {
    emulator::journalOn(!line.journalFile.empty());
    TerminalUser user(line, pcText, session, notes);
    emulator::setUserInterface(&user);
    ZXFRPCSCLIENT* client = library.newClient(session);
    if (client == nullptr) throw std::runtime_error("the library made no client");
    Tally tally = runCommand(library, client, line, pcText, user, session, layouts);
    library.deleteClient(client);
    explainEnding(library, line, pcText, user, session, tally);
    user.tellLoss();
    if (line.verify) verifyReceived(library, pcText, line, process::executableFolder(), session, user, tally);
    emulator::setUserInterface(nullptr);
    tally.messages = user.messages();
    return tally;
}

int transfer(const CommandLine& line) {
    const fs::path folder = process::executableFolder();
    const PcText pcText(line.pc.ansiCodePage, codePageDataFile());
    setUpPc(line, folder);
    const ZhstSession session = openSession(line, pcText);
    std::ofstream journalStream;
    if (!line.journalFile.empty()) {
        journalStream.open(utf8Path(line.journalFile), std::ios::binary);
        if (!journalStream) throw std::invalid_argument(line.journalFile + " cannot be written");
    }

    const TransferLibrary library = loadTransferLibrary(folder);
    console::catchInterrupts();
    settleHostCodePage(library, line, pcText, session);
    const StandardStreams streams(line, pcText, session);
    const FieldLayouts layouts(library, line, pcText, session);
    Notes notes;
    std::optional<Tally> tally = check(library, line, pcText, folder, session, notes);
    if (!tally) tally = run(library, line, pcText, session, layouts, notes);
    tally->notes = notes.told();
    if (!line.journalFile.empty() && !writeJournal(line.journalFile, journalStream)) tally->exitStatus = ExitLocalFile;
    const bool hasRecordsOnOutput = writesToOutput(line, session);
    emulator::reset();

    if (line.json) {
        (hasRecordsOnOutput ? std::cerr : std::cout) << report(line, *tally) << std::endl;
    } else if (!line.quiet) {
        std::cerr << "z7xfer: " << tally->text << std::endl;
    }
    return tally->exitStatus;
}

}  // namespace

int main(int argc, char** argv) {
    console::setUp();
    ExitStatus exitStatus = ExitComplete;
    const std::optional<CommandLine> line = parseCommandLine(environment::arguments(argc, argv), &exitStatus);
    if (!line) return exitStatus;
    try {
        if (line->command == Command::Settings) {
            line->json ? void(std::cout << settingsReport(line->filter) << std::endl)
                       : printSettings(std::cout, line->filter);
            return ExitComplete;
        }
        if (line->command == Command::Host) return hostCommand(*line, sampleHost());
        return transfer(*line);
    } catch (const std::invalid_argument& error) {
        std::cerr << "z7xfer: " << error.what() << std::endl;
        return ExitUsage;
    } catch (const std::exception& error) {
        std::cerr << "z7xfer: " << error.what() << std::endl;
        return ExitFailed;
    }
}
