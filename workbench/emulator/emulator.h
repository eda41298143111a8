#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Z7XFRPCS/objects.h"
#include "Z7XFRPCS/settings.h"

// The emulator stand-in, seen from the program that plays with it. The services themselves are the functions of
// include/Z7XFRPCS; this page is how a program or a test sets up what they answer and sees what was asked of them. One
// state per process, user-interface thread only.
namespace emulator {

// --- What the user sees and does ---------------------------------------------------------------------------------

enum class MessageSource { Library, PcFile, Converter };

struct MessageBox {
    MessageSource source = MessageSource::Library;
    std::uint32_t id = 0;  // 0 for a ready text and for the boxes of file objects
    std::uint32_t owner = 0;
    std::uint32_t flags = 0;
    std::uint32_t helpId = 0;
    bool scrolling = false;
    std::vector<std::string> inserts;  // numbers in decimal
    std::string file;                  // that a file object asks about, by its PC name
    std::string text;                  // the finished sentence
};

// Every call-back arrives in the middle of a service call; exports of the library may be called from pump() and from
// showMessage(). Progress command 16 arrives as progressCommand(16) and then pump().
//
// A file object that is to write an existing file without being told what to do with it asks with a question box:
// flags 0x23 (Yes, No, Cancel), where 6, 1 and 10 replace the file and 7 adds to it; or, for a file that cannot be
// added to, flags 0x21 (OK, Cancel), where 1, 6 and 10 replace it. Every other answer leaves the file alone. Its errors
// come in a box with flags 0x30 that names the file and the operating system's reason, unless messages in general are
// disabled.
class UserInterface {
public:
    virtual ~UserInterface() = default;
    virtual std::int32_t showMessage(const MessageBox&) { return 1; }  // the button pressed
    virtual bool connectionDialog() { return true; }                   // false: cancelled
    virtual void pump() {}  // PumpMessages or progress command 16: the user acts here
    virtual void progressCreated(std::uint32_t /*direction*/, std::uint32_t /*mode*/) {}
    virtual void progressCommand(std::uint32_t /*command*/) {}
    virtual void progressNames(const std::string& /*pcName*/, const std::string& /*hostName*/) {}
    virtual void progressTotal(std::uint32_t /*total*/, std::uint32_t /*unit*/) {}
    virtual void progressHidden(bool /*hidden*/) {}
    virtual void progressDestroyed() {}
    virtual void displayCreated(const std::string& /*title*/) {}
    virtual void displayBegin(std::int32_t /*rowsPerPage*/) {}
    virtual void displayColumn(std::uint32_t /*index*/, const std::string& /*title*/, std::uint32_t /*width*/,
                               std::uint32_t /*alignment*/) {}
    virtual void displayRow() {}
    virtual void displayCell(std::uint32_t /*row*/, std::uint32_t /*column*/, const std::string& /*text*/) {}
    virtual void displayStatus(const std::string& /*text*/) {}
    virtual void displayEnd() {}
    virtual void displayDestroyed() {}
    // Result of the shell: 32 and above is success.
    virtual std::int32_t shellExecute(const std::string& /*file*/, const std::string& /*parameters*/) { return 33; }
};

// Null restores one that answers 1 to everything. Gives the one that was set before.
UserInterface* setUserInterface(UserInterface* userInterface);

// The user asks for the next page or closes the window of the display that is open: calls the notification that
// TextDisplayCreate was given. Nothing when there is none.
void requestNextPage();
void closeDisplay();

// --- The PC ------------------------------------------------------------------------------------------------------

struct PcSetup {
    std::uint32_t ansiCodePage = 1252;
    std::uint32_t oemCodePage = 850;
    std::uint16_t languageId = 0x0409;
    char decimalSeparator = '.';
    char listSeparator = ',';
};

// Fills the posix layer's PC from the code page data. On Windows code pages and language are those of the machine, and
// another PC is refused. False too when a code page is not in the data.
bool setUpPc(const PcSetup& setup);

// True where code pages and language are played, false where they are the machine's.
bool pcIsPlayed();

// The PC that there is without setting one up: an English one; on Windows the one that the program runs on.
PcSetup usualPc();

// What the library gets for GetTickCount; null restores the real clock.
void setTickCount(std::uint32_t (*clock)());

// Where the code page data stands; otherwise $Z7X_CODE_PAGES, then beside the emulator library.
void setCodePageDataFile(const std::string& path);

// The folder in which provider libraries are looked for, by LoadModule and by the path services' "file exists", without
// regard to case; behind it both look for a PC file of the name. Otherwise the folder "providers" beside the emulator
// library. LoadModule gives 2 for a file that is not there and 193 for one that is no library.
// Gives the folder that was set before.
std::string setProviderFolder(const std::string& folder);
std::string providerFolder();

// From now on a PC file that is opened for reading begins with `lead`, and goes on with the file's bytes from `offset`
// on; its size and its positions are those of what is read. For a program that goes through a file in several runs.
struct ReadingStart {
    std::string lead;
    std::uint64_t offset = 0;
};
void setReadingStart(const ReadingStart& start);

// --- Sessions and their settings ---------------------------------------------------------------------------------

// Forgets every session, setting, journal line, fault and allocation count, and puts the user interface, the PC and the
// provider folder back to their defaults.
void reset();

// A session with all settings 0 and empty but HostCodePage 37. The last digit of a handle says which part of the
// session it is: 1 session, 2 application, 3 window, 4 converter, 5 text services, 7 settings.
ZhstSession newSession();

// By the user: watchers are called, with the old value, as in the emulator. By a service call they are called too, and
// also when the value stays the same. Text settings have no watchers.
void set(ZhstSession session, std::uint32_t id, std::int32_t value);
void set(ZhstSession session, std::uint32_t id, const std::string& value);
std::int32_t number(ZhstSession session, std::uint32_t id);
std::string text(ZhstSession session, std::uint32_t id);

// What entry 91 of the session services table answers. Absent: all entries of the table are null.
struct Clauses {
    std::string select, where, orderBy, groupBy, having, join;
    bool absent = false;
};
void setClauses(ZhstSession session, const Clauses& clauses);

// Messages that IsMessageEnabled rejects. Id 0: messages in general, and so every one.
void disableMessage(std::uint32_t id);

// Application command 67 (a settings file): called with the text; false makes CheckCommandFailed report a failure.
// Without a reader the command fails.
void setSettingsFileReader(std::function<bool(ZhstSession, const std::string&)> reader);

// Runs the clean-up call-back registered in `slot`, as the emulator does when a session ends.
void runCleanup(ZhstSession session, std::uint32_t slot);

// A path of the operating system's for a PC file name in the PC's ANSI code page (either separator, optional drive
// letter, any case, relative to the directory that the path services were given).
std::filesystem::path nativePath(std::string_view pcName);

// --- PC files that are written -----------------------------------------------------------------------------------

// A receive opens its PC file, and writes a description beside it and the heading of a DIF file, before it knows of a
// single record. While files are held, all that file objects write waits in memory: a file that exists stays as it is,
// behind the file object's end too, and one that was made goes again unless it is released.
void holdFiles();
// The next write is the first that counts: files are released when it has succeeded.
void releaseFilesWithNextWrite();
// What waits is written, and files are written as usual from here on. Failures are told as those of a file object are.
void releaseFiles();
// What waits is forgotten, and files are written as usual from here on.
void forgetHeldFiles();

// What stands in front of the first record of a PC file that a transfer makes, replaces or finds empty: asked for when
// the file is opened, behind the fields' descriptions. Null for nothing.
using Heading = std::function<std::string()>;
void setHeading(Heading heading);

// The PC file "-" is the standard output where it is written, and a file that the program has filled where it is read.
// Every write to the standard output goes through the encoder; null for the bytes as they are.
using OutputEncoder = std::function<std::string(std::string_view bytes)>;
void setOutputEncoder(OutputEncoder encoder);
void setStandardInputFile(const std::string& path);

// What was written to the file of this name, or to the standard output ("-"), since files were held last: bytes,
// without those that were in the file before. Nothing when it was left as it was.
std::optional<std::uint64_t> bytesWritten(const std::string& pcName);

// --- The named store ---------------------------------------------------------------------------------------------

struct StoreItem {
    std::string value;         // the last value written
    std::uint32_t writes = 0;  // how many there were
};
// By four-character code ("XUGI"). Empty when never written. A value is taken only while its list is locked.
StoreItem storeItem(std::string_view code);
// Called with every value written, after the item took it; the value stands until the item is written again. Gives the
// listener that was set before.
using StoreListener = std::function<void(std::string_view code, std::string_view value)>;
StoreListener onStoreWrite(StoreListener listener);

// --- The journal -------------------------------------------------------------------------------------------------

// Every service call in order while the journal is on (it is off at first), one line each:
//     GetSetting(7, 215 TransportType) = 9
//     IsMessageEnabled(7, 4001 OutOfMemory) = 1
//     FileObject.write("A,B\r\n", 5) = 1
//     LockStoreList(1, X4RP) = 1
// Texts and bytes stand in double quotes, with \r \n \t \\ \" and \xHH; handles and numbers in decimal; store parts by
// their code; the number of a setting, a message or a text of the catalogue is followed by its name; addresses that are
// no texts as "*", null as 0. Bytes beyond 64 are cut, with "..." behind the quote, unless texts are wanted whole.
// Calls without a result have no " = ". Allocations are not journalled.
//
// Arguments stand in their order, the object of an object operation left out. A buffer or handle that the call fills
// shows what it was filled with:
//     GetStringSetting(7, 40 HostSystemName, "AS400A", 301) = 1
//     FileObject.read("A,B\r\n", 4095) = 5
//     PathServices.baseName("C:\\DATA\\CUST.TXT", "CUST")
//     OpenStoreItem(1, X4RP, XDTI, 0, XDTI)
// Converted text shows as it was before; records stand as their fields, so RunAppCommand(2, 67, 24, 3, 32, "A.SET").
// A line is written when its call begins: what happens inside a call follows it, and its result is added at its end.
// Operations are FileObject, PathServices, CodePageServices and SessionServices, a period and the name they have in
// objects.h; the scrolling box is zhstMessageBox_scroll. What the library asks of the shell stands among them, as
//     ShellExecuteA(3, "open", "EXCEL.EXE", "C:\\DATA\\CUST.DIF", "", 1) = 33
enum class JournalTexts { Cut, Whole };
void journalOn(bool on, JournalTexts texts = JournalTexts::Cut);
const std::vector<std::string>& journal();
void clearJournal();
// A line of the program's own, in its place among the others, and a text as the lines show it, whole.
void note(const std::string& line);
std::string quoted(std::string_view text);

// --- Faults and accounts -----------------------------------------------------------------------------------------

struct Faults {
    std::uint64_t failAllocation = 0;  // the Nth AllocateObject or ReallocateObject from now on, 0 = none
    bool failAllAfter = false;         // ... and every one behind it
    bool refuseStore = false;          // OpenStore gives 0
    bool refuseStoreLock = false;
    // File writes fail, with the reason of a full disk, once so many bytes were written to all files from now on; the
    // write that would go beyond writes nothing. -1 = never.
    std::int64_t failWriteAfterBytes = -1;
    bool refuseProgressDialog = false;
    bool refuseTextDisplay = false;  // TextDisplayCreate gives 0
    bool refuseTextDisplayBegin = false;
    bool refuseFileObject = false;
    bool failConversion = false;  // ConvertHostText gives 1
    bool refuseGlobalMemory = false;
    // Nothing comes that a caller may not rely on: memory not asked for as zeros is spoilt, GetStringSetting writes no
    // text where there is none.
    bool giveNoMore = false;
};
void setFaults(const Faults& faults);

struct Allocations {
    std::uint64_t calls = 0;       // AllocateObject and ReallocateObject so far
    std::uint64_t liveBlocks = 0;  // not yet freed
    std::uint64_t liveBytes = 0;
    std::uint64_t peakBytes = 0;
};
Allocations allocations();

struct OpenObjects {
    std::uint32_t files = 0, progressDialogs = 0, textDisplays = 0, modules = 0, watches = 0, lockedLists = 0;
};
OpenObjects openObjects();

}  // namespace emulator
