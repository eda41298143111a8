#ifndef Z7XFRPCS_SETTINGS_H
#define Z7XFRPCS_SETTINGS_H

#include <stdint.h>

/* The settings of the emulator that a transfer reads or writes. This list is the only place where a setting's number
   stands; library, stand-in, journal, command line and documentation all read it. A row has

   - number and name;
   - kind: a Number of 32 bits with its sign, a Choice, which is a number of the list below, a Switch, 0 for no and 1
     for yes, or a Text;
   - longest: of a Text, the bytes of it that the library takes, where it takes any;
   - writer: the User, or the emulator for its user, the Library, or Both;
   - reading: Once, at the start of a transfer, so that a change does not reach the one that runs; Live, whenever it is
     needed; Never;
   - meaning. */
#define ZHST_SETTINGS(X)                                                                                               \
    X(10, EofByteEndsFile, Switch, 0, User, Live,                                                                      \
      "a byte 1A at the start of a record ends a sent file of type random")                                            \
    X(39, ConnectionType, Number, 0, User, Live, "kind of the connection")                                             \
    X(40, HostSystemName, Text, 300, User, Live, "name of the host system")                                            \
    X(102, LastErrorText, Text, 0, Library, Never, "text of the provider's last error")                                \
    X(105, HostCodePage, Number, 0, User, Live, "code page of the host's texts")                                       \
    X(117, UseDescriptionFile, Switch, 0, User, Once, "a send reads the description of its PC file")                   \
    X(118, WriteDescriptionFile, Switch, 0, User, Once, "a receive writes a description of its PC file")               \
    X(119, SendFileType, Choice, 0, User, Once, "type of a sent PC file; that of its description goes before")         \
    X(120, ReceiveFileType, Choice, 0, Both, Once, "type of a received PC file; screen and spreadsheet set their own") \
    X(121, HostFileType, Choice, 0, User, Once, "kind of the host file that is sent to")                               \
    X(122, PublicAuthority, Choice, 0, User, Once, "what everybody may do with a file that a send creates")            \
    X(123, RecordLength, Number, 0, User, Once, "bytes of a record of a source file that a send creates")              \
    X(124, TimeFormat, Choice, 0, User, Once, "form of times in host records")                                         \
    X(125, DateFormat, Choice, 0, User, Once, "form of dates in host records")                                         \
    X(126, TimeSeparator, Choice, 0, User, Once, "separator of times whose form has none of its own")                  \
    X(127, DateSeparator, Choice, 0, User, Once, "separator of dates whose form has none of its own")                  \
    X(128, IgnoreDecimalErrors, Switch, 0, User, Once, "the host passes numbers with damaged digits")                  \
    X(130, DecimalSeparatorMode, Choice, 0, User, Once, "decimal separator of numbers in PC files")                    \
    X(131, ReceiveOutput, Choice, 0, User, Once, "where received records go")                                          \
    X(132, FileText, Text, 50, User, Once, "text of a file that a send creates")                                       \
    X(133, MemberText, Text, 50, User, Once, "text of a member that a send creates")                                   \
    X(140, SendDescriptionFile, Text, 300, User, Once, "description of a sent PC file, beside it; * is its name")      \
    X(141, ReceiveDescriptionFile, Text, 300, User, Once,                                                              \
      "description of a received PC file, beside it; * is its name")                                                   \
    X(147, PcFileName, Text, 1024, User, Once, "PC file")                                                              \
    X(148, HostFileName, Text, 1024, User, Once, "host file, LIB/FILE(MBR); several for a receive")                    \
    X(149, SortSequence, Text, 300, User, Once, "order of characters: *JOB, *HEX, *LANGIDSHR, *LANGIDUNQ or a table")  \
    X(150, CreateMode, Choice, 0, User, Once, "what a send makes on the host")                                         \
    X(151, ReferenceFile, Text, 300, User, Once, "file that a file which a send creates takes its fields from")        \
    X(176, ExistingFileAction, Choice, 0, User, Live, "what becomes of a PC file that is there already")               \
    X(196, RecordProgress, Switch, 0, User, Once, "a receive counts its records first, for a progress in percent")     \
    X(197, ConvertToOem, Switch, 0, User, Live, "texts of PC files are in the OEM code page, not in the ANSI one")     \
    X(215, TransportType, Choice, 0, User, Live, "transport of the connection, by which its provider is chosen")       \
    X(218, WorkingDirectory, Text, 260, User, Once, "folder of PC files, entered behind a settings file")              \
    X(239, TrimRecordBlanks, Switch, 0, User, Live, "a received record of text loses the blanks at its end")           \
    X(248, ConnectionParam248, Text, 0, User, Once, "part of the connection that must not be empty")                   \
    X(250, ConnectionParam250, Text, 0, User, Once, "part of the connection that must not be empty")                   \
    X(313, StartRecord, Number, 0, User, Once, "first record of the PC file that is sent, from 1; not of type dif")    \
    X(317, DisplayRowsPerPage, Number, 0, User, Once, "rows of a page on the screen")                                  \
    X(324, ConnectionChanging, Switch, 0, User, Live, "settings of the connection are being changed")                  \
    X(330, TransferActive, Switch, 0, Library, Never, "a transfer runs")                                               \
    X(357, TransferOwnerWindow, Number, 0, User, Once, "window that owns the messages where the caller names none")    \
    X(426, NoSignPosition, Switch, 0, User, Live,                                                                      \
      "zoned and packed numbers of a sent text file have no place for a sign")                                         \
    X(438, LastReturnCode, Number, 0, Library, Never, "return code of the last exchange with the provider")            \
    X(439, LaunchByProgramName, Switch, 0, User, Live, "a spreadsheet file is opened with EXCEL.EXE, not by its type") \
    X(448, ProgressCount, Number, 0, Library, Never, "records of a receive, or bytes of a send, done so far")          \
    X(449, TransferDirection, Number, 0, Library, Never, "0 to the host, 1 from it")                                   \
    X(503, RouterKind, Choice, 0, Both, Live, "who serves the transports; ibm and as400 ones set it")                  \
    X(512, ConnectionParam512, Text, 0, User, Once, "part of the connection that transport 9 needs")                   \
    X(555, FdfNumericLengthMode, Choice, 0, User, Live, "what the length of a number in a description counts")         \
    X(717, NumericWidthMode, Choice, 0, User, Once, "digits of a packed number with an even number of digits")         \
    X(772, JobRecordsReceived, Number, 0, Library, Live, "number of the record that is being received")                \
    X(773, JobRecordsTotal, Number, 0, Library, Live, "records that a receive expects, once they are counted")         \
    X(774, JobName, Text, 10, Library, Live, "name of the host's job, for the text of an error")                       \
    X(775, JobUser, Text, 10, Library, Live, "user of the host's job, for the text of an error")                       \
    X(776, JobNumber, Text, 6, Library, Live, "number of the host's job, for the text of an error")

/* Values of settings that have a meaning of their own: setting, name, value, the word that people write for it,
   meaning. The types of PC files stand below. The words of dates and times are those of the host's own commands. */
#define ZHST_SETTING_VALUES(X)                                                                                         \
    X(ConnectionType, HostConnection, 0, "host", "a host, as every number but that of the demonstration")              \
    X(ConnectionType, DemonstrationConnection, 3, "demonstration", "built-in tables, no host")                         \
    X(HostFileType, DataFile, 0, "data", "records of fields")                                                          \
    X(HostFileType, SourceFile, 1, "source", "lines of a program's source")                                            \
    X(PublicAuthority, AuthorityAll, 0, "all", "everything")                                                           \
    X(PublicAuthority, AuthorityNone, 1, "none", "nothing")                                                            \
    X(PublicAuthority, AuthorityRead, 2, "read", "read")                                                               \
    X(PublicAuthority, AuthorityReadWrite, 3, "readwrite", "read and write")                                           \
    X(TimeFormat, TimeDds, 0, "dds", "as the host file says")                                                          \
    X(TimeFormat, TimeDefault, 1, "default", "as the host's job says")                                                 \
    X(TimeFormat, TimeEur, 2, "eur", "hh.mm.ss")                                                                       \
    X(TimeFormat, TimeHms, 3, "hms", "hh:mm:ss, with TimeSeparator")                                                   \
    X(TimeFormat, TimeIso, 4, "iso", "hh.mm.ss")                                                                       \
    X(TimeFormat, TimeJis, 5, "jis", "hh:mm:ss")                                                                       \
    X(TimeFormat, TimeUsa, 6, "usa", "hh:mm AM or PM")                                                                 \
    X(DateFormat, DateDds, 0, "dds", "as the host file says")                                                          \
    X(DateFormat, DateDefault, 1, "default", "as the host's job says")                                                 \
    X(DateFormat, DateDmy, 2, "dmy", "dd/mm/yy, with DateSeparator")                                                   \
    X(DateFormat, DateEur, 3, "eur", "dd.mm.yyyy")                                                                     \
    X(DateFormat, DateIso, 4, "iso", "yyyy-mm-dd")                                                                     \
    X(DateFormat, DateJis, 5, "jis", "yyyy-mm-dd")                                                                     \
    X(DateFormat, DateJul, 6, "jul", "yy/ddd, the day of the year, with DateSeparator")                                \
    X(DateFormat, DateMdy, 7, "mdy", "mm/dd/yy, with DateSeparator")                                                   \
    X(DateFormat, DateUsa, 8, "usa", "mm/dd/yyyy")                                                                     \
    X(DateFormat, DateYmd, 9, "ymd", "yy/mm/dd, with DateSeparator")                                                   \
    X(TimeSeparator, TimeBlank, 0, "blank", "a blank")                                                                 \
    X(TimeSeparator, TimeColon, 1, "colon", ":")                                                                       \
    X(TimeSeparator, TimeComma, 2, "comma", ",")                                                                       \
    X(TimeSeparator, TimeSeparatorDefault, 4, "default", "as the host's job says")                                     \
    X(TimeSeparator, TimeNoSeparator, 5, "none", "nothing")                                                            \
    X(TimeSeparator, TimePeriod, 6, "period", ".")                                                                     \
    X(DateSeparator, DateBlank, 0, "blank", "a blank")                                                                 \
    X(DateSeparator, DateComma, 2, "comma", ",")                                                                       \
    X(DateSeparator, DateHyphen, 3, "hyphen", "-")                                                                     \
    X(DateSeparator, DateSeparatorDefault, 4, "default", "as the host's job says")                                     \
    X(DateSeparator, DateNoSeparator, 5, "none", "nothing")                                                            \
    X(DateSeparator, DatePeriod, 6, "period", ".")                                                                     \
    X(DateSeparator, DateSlash, 7, "slash", "/")                                                                       \
    X(DecimalSeparatorMode, DecimalComma, 2, "comma", ",")                                                             \
    X(DecimalSeparatorMode, DecimalPeriod, 6, "period", ".")                                                           \
    X(DecimalSeparatorMode, DecimalOfLocale, 8, "locale", "that of the PC's user")                                     \
    X(ReceiveOutput, ToDisplay, 0, "screen", "pages of a table")                                                       \
    X(ReceiveOutput, ToPcFile, 1, "file", "a PC file")                                                                 \
    X(ReceiveOutput, ToSpreadsheet, 3, "spreadsheet", "a PC file of type dif, opened in the spreadsheet program")      \
    X(CreateMode, CreateFile, 0, "file", "the file and its member")                                                    \
    X(CreateMode, CreateMember, 1, "member", "a member of a file that there is")                                       \
    X(CreateMode, ReplaceMember, 2, "replace", "nothing; the records of a member that there is give way")              \
    X(ExistingFileAction, AskUser, 0, "ask", "the user is asked")                                                      \
    X(ExistingFileAction, Replace, 1, "replace", "it is replaced")                                                     \
    X(ExistingFileAction, Append, 2, "append", "the records go behind those that it has; not of type dif")             \
    X(TransportType, TransportIbm, 2, "ibm", "E32TFW.DLL")                                                             \
    X(TransportType, TransportIbm4, 4, "ibm4", "E32TFW.DLL")                                                           \
    X(TransportType, TransportAppc, 5, "appc", "ZTFWAPPC.DLL")                                                         \
    X(TransportType, TransportAppc7, 7, "appc7", "ZTFWAPPC.DLL")                                                       \
    X(TransportType, TransportEmulator8, 8, "emulator8",                                                               \
      "ZEHNTFW.DLL; the host's name may have its network before it")                                                   \
    X(TransportType, TransportEmulator, 9, "emulator", "ZEHNTFW.DLL")                                                  \
    X(TransportType, TransportAppc13, 13, "appc13", "ZTFWAPPC.DLL")                                                    \
    X(TransportType, TransportEmulator14, 14, "emulator14", "ZEHNTFW.DLL")                                             \
    X(TransportType, TransportEmulator15, 15, "emulator15", "ZEHNTFW.DLL")                                             \
    X(TransportType, TransportAs400, 30, "as400", "AS4XFER.DLL")                                                       \
    X(RouterKind, RouterIbm, 1, "ibm", "the provider of the transport")                                                \
    X(RouterKind, RouterAs400, 2, "as400", "AS4XFER.DLL, whatever the transport")                                      \
    X(FdfNumericLengthMode, LengthWithSign, 0, "positions", "its digits and the places of sign and decimal separator") \
    X(FdfNumericLengthMode, LengthOfDigits, 1, "digits", "its digits")                                                 \
    X(NumericWidthMode, WidthAsDeclared, 0, "declared", "those that it was declared with")                             \
    X(NumericWidthMode, WidthOfBytes, 1, "bytes", "all that its bytes can hold, one more")

/* The seven PC file types, values of SendFileType and ReceiveFileType: number, name, short name, command of the
   progress dialog that shows the type, its code in a PC file description, then what its records are, and that in words.

   - Form: Lines of text, Tuples of DIF, Binary fields at the host's positions, or the host's bytes Unchanged.
   - Separator between fields: None, Comma, Tab, or List, which is the locale's.
   - Double quotes around character fields: Never, WhereNeeded or Always.
   - Hexadecimal digits stand Bare or Quoted. */
#define ZHST_PC_FILE_TYPES(X)                                                                                          \
    X(0, AsciiText, "text", 29, 1, Lines, None, Never, Bare, "lines with each field at its place")                     \
    X(1, BasicSequential, "basic", 34, 3, Lines, Comma, Always, Quoted,                                                \
      "lines, commas between fields, every text quoted")                                                               \
    X(2, CommaSeparated, "csv", 32, 99, Lines, List, WhereNeeded, Bare, "lines, the list separator between fields")    \
    X(3, BasicRandom, "random", 30, 2, Binary, None, Never, Bare, "records of fixed length, binary numbers of the PC") \
    X(4, NoConversion, "none", 31, 6, Unchanged, None, Never, Bare, "the host's records, byte for byte")               \
    X(5, TabDelimited, "tab", 33, 98, Lines, Tab, WhereNeeded, Bare, "lines, a tab between fields")                    \
    X(6, Dif, "dif", 35, 5, Tuples, None, Always, Quoted, "spreadsheet table in DIF form")

enum ZhstSetting {
#define ZHST_SETTING_NUMBER(number, name, kind, longest, writer, reading, meaning) ZhstSetting##name = number,
    ZHST_SETTINGS(ZHST_SETTING_NUMBER)
#undef ZHST_SETTING_NUMBER
};

enum ZhstSettingValue {
#define ZHST_SETTING_VALUE(setting, name, value, word, meaning) ZhstValue##name = value,
    ZHST_SETTING_VALUES(ZHST_SETTING_VALUE)
#undef ZHST_SETTING_VALUE
};

enum ZhstPcFileType {
#define ZHST_PC_FILE_TYPE(number, name, shortName, command, code, form, separator, quotes, hex, meaning) \
    Zhst##name = number,
    ZHST_PC_FILE_TYPES(ZHST_PC_FILE_TYPE)
#undef ZHST_PC_FILE_TYPE
};

#ifdef __cplusplus
/* The same with the types that the services take. */
namespace zhst::setting {
#define ZHST_SETTING_NUMBER(number, name, kind, longest, writer, reading, meaning) \
    inline constexpr uint32_t name = number;
ZHST_SETTINGS(ZHST_SETTING_NUMBER)
#undef ZHST_SETTING_NUMBER
}  // namespace zhst::setting

namespace zhst::value {
#define ZHST_SETTING_VALUE(setting, name, value, word, meaning) inline constexpr int32_t name = value;
ZHST_SETTING_VALUES(ZHST_SETTING_VALUE)
#undef ZHST_SETTING_VALUE
}  // namespace zhst::value
#endif

#endif
