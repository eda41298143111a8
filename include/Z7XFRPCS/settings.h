#ifndef Z7XFRPCS_SETTINGS_H
#define Z7XFRPCS_SETTINGS_H

#include <stdint.h>

/* The settings of the emulator that a transfer reads or writes: number, name, kind (Int or Text). This list is the only
   place where a setting's number stands; library, stand-in, journal and command line all read it. */
#define ZHST_SETTINGS(X)                 \
    X(10, EofByteEndsFile, Int)          \
    X(39, ConnectionType, Int)           \
    X(40, HostSystemName, Text)          \
    X(102, LastErrorText, Text)          \
    X(105, HostCodePage, Int)            \
    X(117, UseDescriptionFile, Int)      \
    X(118, WriteDescriptionFile, Int)    \
    X(119, SendFileType, Int)            \
    X(120, ReceiveFileType, Int)         \
    X(121, HostFileType, Int)            \
    X(122, PublicAuthority, Int)         \
    X(123, RecordLength, Int)            \
    X(124, TimeFormat, Int)              \
    X(125, DateFormat, Int)              \
    X(126, TimeSeparator, Int)           \
    X(127, DateSeparator, Int)           \
    X(128, IgnoreDecimalErrors, Int)     \
    X(130, DecimalSeparatorMode, Int)    \
    X(131, ReceiveOutput, Int)           \
    X(132, FileText, Text)               \
    X(133, MemberText, Text)             \
    X(140, SendDescriptionFile, Text)    \
    X(141, ReceiveDescriptionFile, Text) \
    X(147, PcFileName, Text)             \
    X(148, HostFileName, Text)           \
    X(149, SortSequence, Text)           \
    X(150, CreateMode, Int)              \
    X(151, ReferenceFile, Text)          \
    X(176, ExistingFileAction, Int)      \
    X(196, RecordProgress, Int)          \
    X(197, ConvertToOem, Int)            \
    X(215, TransportType, Int)           \
    X(218, WorkingDirectory, Text)       \
    X(239, TrimRecordBlanks, Int)        \
    X(248, ConnectionParam248, Text)     \
    X(250, ConnectionParam250, Text)     \
    X(313, StartRecord, Int)             \
    X(317, DisplayRowsPerPage, Int)      \
    X(324, ConnectionChanging, Int)      \
    X(330, TransferActive, Int)          \
    X(357, TransferOwnerWindow, Int)     \
    X(426, NoSignPosition, Int)          \
    X(438, LastReturnCode, Int)          \
    X(439, LaunchByProgramName, Int)     \
    X(448, ProgressCount, Int)           \
    X(449, TransferDirection, Int)       \
    X(503, RouterKind, Int)              \
    X(512, ConnectionParam512, Text)     \
    X(555, FdfNumericLengthMode, Int)    \
    X(717, NumericWidthMode, Int)        \
    X(772, JobRecordsReceived, Int)      \
    X(773, JobRecordsTotal, Int)         \
    X(774, JobName, Text)                \
    X(775, JobUser, Text)                \
    X(776, JobNumber, Text)

/* Values of settings that have a meaning of their own: setting, name, value. The types of PC files stand below. */
#define ZHST_SETTING_VALUES(X)                    \
    X(ConnectionType, DemonstrationConnection, 3) \
    X(ReceiveOutput, ToDisplay, 0)                \
    X(ReceiveOutput, ToPcFile, 1)                 \
    X(ReceiveOutput, ToSpreadsheet, 3)            \
    X(HostFileType, DataFile, 0)                  \
    X(HostFileType, SourceFile, 1)                \
    X(CreateMode, CreateFile, 0)                  \
    X(CreateMode, CreateMember, 1)                \
    X(CreateMode, ReplaceMember, 2)               \
    X(ExistingFileAction, AskUser, 0)             \
    X(ExistingFileAction, Replace, 1)             \
    X(ExistingFileAction, Append, 2)              \
    X(RouterKind, RouterIbm, 1)                   \
    X(RouterKind, RouterAs400, 2)                 \
    X(TransportType, TransportAs400, 30)

/* The seven PC file types, values of SendFileType and ReceiveFileType: number, name, short name, command of the
   progress dialog that shows the type, then what its records are.

   - Form: Lines of text, Tuples of DIF, Binary fields at the host's positions, or the host's bytes Unchanged.
   - Separator between fields: None, Comma, Tab, or List, which is the locale's.
   - Double quotes around character fields: Never, WhereNeeded or Always.
   - Hexadecimal digits stand Bare or Quoted. */
#define ZHST_PC_FILE_TYPES(X)                                        \
    X(0, AsciiText, "text", 29, Lines, None, Never, Bare)            \
    X(1, BasicSequential, "basic", 34, Lines, Comma, Always, Quoted) \
    X(2, CommaSeparated, "csv", 32, Lines, List, WhereNeeded, Bare)  \
    X(3, BasicRandom, "random", 30, Binary, None, Never, Bare)       \
    X(4, NoConversion, "none", 31, Unchanged, None, Never, Bare)     \
    X(5, TabDelimited, "tab", 33, Lines, Tab, WhereNeeded, Bare)     \
    X(6, Dif, "dif", 35, Tuples, None, Always, Quoted)

enum ZhstSetting {
#define ZHST_SETTING_NUMBER(number, name, kind) ZhstSetting##name = number,
    ZHST_SETTINGS(ZHST_SETTING_NUMBER)
#undef ZHST_SETTING_NUMBER
};

enum ZhstSettingValue {
#define ZHST_SETTING_VALUE(setting, name, value) ZhstValue##name = value,
    ZHST_SETTING_VALUES(ZHST_SETTING_VALUE)
#undef ZHST_SETTING_VALUE
};

enum ZhstPcFileType {
#define ZHST_PC_FILE_TYPE(number, name, shortName, command, form, separator, quotes, hex) Zhst##name = number,
    ZHST_PC_FILE_TYPES(ZHST_PC_FILE_TYPE)
#undef ZHST_PC_FILE_TYPE
};

#ifdef __cplusplus
/* The same with the types that the services take. */
namespace zhst::setting {
#define ZHST_SETTING_NUMBER(number, name, kind) inline constexpr uint32_t name = number;
ZHST_SETTINGS(ZHST_SETTING_NUMBER)
#undef ZHST_SETTING_NUMBER
}  // namespace zhst::setting

namespace zhst::value {
#define ZHST_SETTING_VALUE(setting, name, value) inline constexpr int32_t name = value;
ZHST_SETTING_VALUES(ZHST_SETTING_VALUE)
#undef ZHST_SETTING_VALUE
}  // namespace zhst::value
#endif

#endif
