#ifndef Z7XFRPCS_MESSAGES_H
#define Z7XFRPCS_MESSAGES_H

#include <stdint.h>

/* Every message, text and help topic of the emulator's catalogue that the library asks for. The sentences are the
   emulator's; inserts are given by a letter each: t a text, n a number. This is the only place where these numbers
   stand; library, stand-in, journal and documentation all read it. */

/* Messages: number, name, inserts. Their help topic has the same number where the library names no other. */
#define ZHST_MESSAGES(X)                      \
    X(4001, OutOfMemory, "")                  \
    X(4266, RouterNotLoaded, "")              \
    X(4269, RouterIsReplacement, "t")         \
    X(4315, TransferCancelled, "")            \
    X(4400, LibraryNotFound, "t")             \
    X(4402, OwnProviderNotLoaded, "")         \
    X(4403, EmulatorEntryMissing, "")         \
    X(4405, BufferNotAllocated, "")           \
    X(4406, ErrorWithContext, "tnt")          \
    X(4407, RouterNotRunning, "")             \
    X(4408, ErrorWithHostText, "ntt")         \
    X(4410, RecordTooLong, "")                \
    X(4411, DescriptionEmpty, "t")            \
    X(4412, DescriptionNotUsed, "")           \
    X(4416, TextAlone, "t")                   \
    X(4417, DescriptionFileType, "t")         \
    X(4418, FieldWithoutLength, "t")          \
    X(4419, DescriptionHeader, "t")           \
    X(4420, DescriptionFieldEarly, "t")       \
    X(4421, DescriptionNoFields, "t")         \
    X(4422, DescriptionTwoFields, "t")        \
    X(4423, DescriptionOptions, "t")          \
    X(4424, DescriptionTimeFormat, "t")       \
    X(4425, DescriptionTimeSeparator, "t")    \
    X(4426, DescriptionDateFormat, "t")       \
    X(4427, DescriptionDateSeparator, "t")    \
    X(4428, DescriptionDecimalSeparator, "t") \
    X(4429, DescriptionSecondFileType, "t")   \
    X(4430, DescriptionSecondHeader, "t")     \
    X(4431, DescriptionSecondOptions, "t")    \
    X(4432, TransferFunctionNotStarted, "")   \
    X(4433, SeparatorsAlike, "")              \
    X(4436, DisplayNotBegun, "")              \
    X(4593, IbmProviderNotLoaded, "")         \
    X(4594, IbmEntryMissing, "")              \
    X(4601, SourceOfSeveralFields, "")        \
    X(4607, BadDifValue, "")                  \
    X(4658, AppcProviderNotLoaded, "t")       \
    X(4659, AppcEntryMissing, "t")            \
    X(4679, SpreadsheetNotStarted, "tnt")     \
    X(4682, DifNotAppended, "")               \
    X(4697, As400EntryMissingOtherKind, "")   \
    X(4704, As400EntryMissing, "")

/* Texts: table, index, name, inserts. Those of table 7 up to 405 say what was being done when an error occurred. */
#define ZHST_TEXTS(X)                 \
    X(7, 88, SendingTextRecord, "")   \
    X(7, 400, SendingRequest, "")     \
    X(7, 401, ListingCatalogue, "")   \
    X(7, 404, SendingRecord, "")      \
    X(7, 405, CountingRecords, "")    \
    X(7, 416, NoRecords, "")          \
    X(7, 418, DisplayTitle, "")       \
    X(7, 432, DisplayMore, "")        \
    X(7, 434, DisplayName, "")        \
    X(7, 439, BadNumber, "nn")        \
    X(7, 440, HostRecordTooShort, "") \
    X(7, 443, LengthLabel, "")        \
    X(7, 444, TypeLabel, "")          \
    X(7, 445, DemoField1, "")         \
    X(7, 446, DemoLibrary1, "")       \
    X(7, 447, DemoFile1, "")          \
    X(7, 448, DemoMember1, "")        \
    X(7, 449, DemoField2, "")         \
    X(7, 450, DemoField3, "")         \
    X(7, 451, DemoField4, "")         \
    X(7, 452, DemoField5, "")         \
    X(7, 453, DemoField6, "")         \
    X(7, 454, DemoLibrary2, "")       \
    X(7, 455, DemoLibrary3, "")       \
    X(7, 456, DemoFile2, "")          \
    X(7, 457, DemoFile3, "")          \
    X(7, 458, DemoMember2, "")        \
    X(7, 459, DemoMember3, "")        \
    X(17, 4, ReplaceHostFile, "t")    \
    X(22, 202, RouterReplacement, "")

/* Help topics that are not the number of their message: number, name. */
#define ZHST_HELP_TOPICS(X) \
    X(124, Transfer)        \
    X(206, ReplaceHostFile) \
    X(4254, ReturnCode)

/* The tables in which the texts of return codes stand. */
enum ZhstErrorTable {
    ZhstTransferTable = 7,        /* by the places below; for the AS/400 client's provider by the code itself */
    ZhstProviderTable = 22,       /* the emulator's own providers, by the code itself */
    ZhstRoutedProviderTable = 45, /* the same where the AS/400 client is the router */
};

/* Return codes of the transfer function in ascending order: place, code. The place is the index of the code's text in
   the transfer table, and its help topic. */
#define ZHST_TRANSFER_CODES(X) \
    X(500, 0x0103)             \
    X(501, 0x0300)             \
    X(502, 0x0302)             \
    X(503, 0x0400)             \
    X(504, 0x1FFF)             \
    X(505, 0x2000)             \
    X(506, 0x2001)             \
    X(507, 0x2002)             \
    X(508, 0x2003)             \
    X(509, 0x2004)             \
    X(510, 0x2005)             \
    X(511, 0x2007)             \
    X(512, 0x2008)             \
    X(513, 0x2009)             \
    X(514, 0x2010)             \
    X(515, 0x2011)             \
    X(516, 0x2012)             \
    X(517, 0x2013)             \
    X(518, 0x2019)             \
    X(519, 0x2020)             \
    X(520, 0x2021)             \
    X(521, 0x2022)             \
    X(522, 0x2023)             \
    X(523, 0x2024)             \
    X(524, 0x2025)             \
    X(525, 0x2026)             \
    X(526, 0x2027)             \
    X(527, 0x2028)             \
    X(528, 0x2029)             \
    X(529, 0x2030)             \
    X(530, 0x3000)             \
    X(531, 0x3100)             \
    X(532, 0x5042)             \
    X(533, 0x5048)             \
    X(534, 0x5050)             \
    X(535, 0x5052)             \
    X(536, 0x5054)             \
    X(537, 0x5056)             \
    X(538, 0x5058)             \
    X(539, 0x5060)             \
    X(540, 0x5062)             \
    X(541, 0x5064)             \
    X(542, 0x5066)             \
    X(543, 0x5067)             \
    X(544, 0x5071)             \
    X(545, 0x5310)             \
    X(546, 0x5311)             \
    X(547, 0x5400)             \
    X(548, 0x9999)

/* Return codes of the emulator's own providers: code, help topic. All are below the first one of the transfer function.
   Their texts stand in the provider tables, by the code. */
#define ZHST_PROVIDER_CODES(X) \
    X(0x0005, 1200)            \
    X(0x0006, 1201)            \
    X(0x0007, 1202)            \
    X(0x0016, 1203)            \
    X(0x001C, 1204)            \
    X(0x0032, 1205)            \
    X(0x0033, 1206)            \
    X(0x0037, 1207)            \
    X(0x0048, 1208)            \
    X(0x004B, 1209)            \
    X(0x0051, 1210)            \
    X(0x0087, 1211)            \
    X(0x00D4, 1240)            \
    X(0x00D5, 1241)            \
    X(0x00D7, 1242)            \
    X(0x00D8, 1243)            \
    X(0x00EC, 1244)            \
    X(0x00F5, 1250)

enum ZhstMessage {
#define ZHST_MESSAGE_NUMBER(number, name, inserts) ZhstMessage##name = number,
    ZHST_MESSAGES(ZHST_MESSAGE_NUMBER)
#undef ZHST_MESSAGE_NUMBER
};

#ifdef __cplusplus
namespace zhst {

/* A text of the catalogue: what LoadMessageText and MessageId take. */
struct CatalogueText {
    uint32_t table;
    uint32_t index;
};

namespace message {
#define ZHST_MESSAGE_NUMBER(number, name, inserts) inline constexpr uint32_t name = number;
ZHST_MESSAGES(ZHST_MESSAGE_NUMBER)
#undef ZHST_MESSAGE_NUMBER
}  // namespace message

namespace text {
#define ZHST_TEXT_PLACE(table, index, name, inserts) inline constexpr CatalogueText name = {table, index};
ZHST_TEXTS(ZHST_TEXT_PLACE)
#undef ZHST_TEXT_PLACE
}  // namespace text

namespace help {
#define ZHST_HELP_NUMBER(number, name) inline constexpr uint32_t name = number;
ZHST_HELP_TOPICS(ZHST_HELP_NUMBER)
#undef ZHST_HELP_NUMBER
}  // namespace help

}  // namespace zhst
#endif

#endif
