#pragma once

#include <cstdint>

// The settings of the emulator that a transfer reads or writes: number, name, kind. This list is the only place where
// a setting's number stands; code, journal and command line all read it. Kind is Int or Text.
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

namespace host::setting {

#define ZHST_SETTING_ID(number, name, kind) inline constexpr std::uint32_t name = number;
ZHST_SETTINGS(ZHST_SETTING_ID)
#undef ZHST_SETTING_ID

enum class Kind { Int, Text };

struct Row {
    std::uint32_t number;
    const char* name;
    Kind kind;
};

inline constexpr Row rows[] = {
#define ZHST_SETTING_ROW(number, name, kind) {number, #name, Kind::kind},
    ZHST_SETTINGS(ZHST_SETTING_ROW)
#undef ZHST_SETTING_ROW
};

}  // namespace host::setting
