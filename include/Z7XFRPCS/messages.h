#ifndef Z7XFRPCS_MESSAGES_H
#define Z7XFRPCS_MESSAGES_H

#include <stdint.h>

/* Every message, text and help topic of the emulator's catalogue that the library asks for, and every return code. The
   sentences are the emulator's; inserts are given by a letter each: t a text, n a number. This is the only place where
   these numbers stand; library, stand-in, journal and documentation all read it. */

/* Messages: number, name, inserts, when one is shown and what follows. Flags are 0x30 and the help topic is the
   message's number, where the row says nothing else; what the user answers is not looked at. All are shown only when
   IsMessageEnabled says so. */
#define ZHST_MESSAGES(X)                                                                                               \
    X(4001, OutOfMemory, "", "There is no memory for something that is needed; what was going on ends.")               \
    X(4266, RouterNotLoaded, "", "E32APPC.DLL is there and cannot be loaded; the transfer does not start.")            \
    X(4269, RouterIsReplacement, "t",                                                                                  \
      "E32APPC.DLL is the emulator's replacement of a router; %1 is text 202 of table 22. The transfer does not "      \
      "start.")                                                                                                        \
    X(4315, TransferCancelled, "",                                                                                     \
      "Never shown: asked for by pcsCancelTransfer, so that the session takes note of it.")                            \
    X(4400, LibraryNotFound, "t", "The library %1 is not to be found; the transfer does not start.")                   \
    X(4402, OwnProviderNotLoaded, "",                                                                                  \
      "ZEHNTFW.DLL or AS4XFER.DLL is there and cannot be loaded; the transfer does not start.")                        \
    X(4403, EmulatorEntryMissing, "", "ZEHNTFW.DLL lacks an entry; the transfer does not start.")                      \
    X(4405, BufferNotAllocated, "", "There is no memory for the shared buffer; the transfer does not start.")          \
    X(4406, ErrorWithContext, "tnt",                                                                                   \
      "An exchange has failed and the host says nothing: %1 is what was being done, %2 the return code, %3 its text. " \
      "Also the gate of every other report of a failed exchange. The transfer or listing ends.")                       \
    X(4407, RouterNotRunning, "", "The router does not run, or cannot be asked; the transfer does not start.")         \
    X(4408, ErrorWithHostText, "ntt",                                                                                  \
      "An exchange has failed: %1 is the return code, %2 its text, %3 the host's message. Its help is that of the "    \
      "code. The transfer or listing ends.")                                                                           \
    X(4410, RecordTooLong, "",                                                                                         \
      "A line or tuple of the PC file is longer than 4095 bytes; the transfer ends with the record before it.")        \
    X(4411, DescriptionEmpty, "t", "The PC file description %1 has no bytes; nothing is sent.")                        \
    X(4412, DescriptionNotUsed, "",                                                                                    \
      "A transfer to a data file wants a PC file description, and UseDescriptionFile is not 1; nothing is sent.")      \
    X(4416, TextAlone, "t",                                                                                            \
      "A text alone: the host's message behind 0x3000 and 0x3100; with the code's help, the text of a provider's own " \
      "code; the sentence of a transfer that was not completed. The transfer ends.")                                   \
    X(4417, DescriptionFileType, "t",                                                                                  \
      "The PC file description %1 has a PCFT line without a code that can be sent; nothing is sent.")                  \
    X(4418, FieldWithoutLength, "t",                                                                                   \
      "The numeric host field %1 (ten characters of its name) has length 0; the transfer ends.")                       \
    X(4419, DescriptionHeader, "t", "The first line of %1 does not say PCFDF; nothing is sent.")                       \
    X(4420, DescriptionFieldEarly, "t",                                                                                \
      "The PC file description %1 has a PCFL line in front of its PCFT line; nothing is sent.")                        \
    X(4421, DescriptionNoFields, "t", "The PC file description %1 has no PCFL line; nothing is sent.")                 \
    X(4422, DescriptionTwoFields, "t", "The PC file description %1 has PCFL twice in a line; nothing is sent.")        \
    X(4423, DescriptionOptions, "t",                                                                                   \
      "The PC file description %1 has PCFO elsewhere than at the start of a line; nothing is sent.")                   \
    X(4424, DescriptionTimeFormat, "t", "Option 1 of the PCFO line of %1 has no code; nothing is sent.")               \
    X(4425, DescriptionTimeSeparator, "t", "The same of option 2.")                                                    \
    X(4426, DescriptionDateFormat, "t", "The same of option 3.")                                                       \
    X(4427, DescriptionDateSeparator, "t", "The same of option 4.")                                                    \
    X(4428, DescriptionDecimalSeparator, "t", "The same of option 5, where an asterisk is no code but allowed.")       \
    X(4429, DescriptionSecondFileType, "t", "The PC file description %1 has a second PCFT line; nothing is sent.")     \
    X(4430, DescriptionSecondHeader, "t", "The PC file description %1 has a second PCFDF line; nothing is sent.")      \
    X(4431, DescriptionSecondOptions, "t", "The PC file description %1 has a second PCFO line; nothing is sent.")      \
    X(4432, TransferFunctionNotStarted, "", "An exchange has come back as 0x9999; the transfer ends.")                 \
    X(4433, SeparatorsAlike, "",                                                                                       \
      "From the host: the file type is CommaSeparated, decimal and list separator are commas; nothing is asked for.")  \
    X(4436, DisplayNotBegun, "", "The text display is not there or cannot begin; the transfer ends.")                  \
    X(4593, IbmProviderNotLoaded, "", "E32TFW.DLL is there and cannot be loaded; the transfer does not start.")        \
    X(4594, IbmEntryMissing, "", "E32TFW.DLL lacks EHNTF_STF; the transfer does not start.")                           \
    X(4601, SourceOfSeveralFields, "",                                                                                 \
      "A source file is sent to a host file of several fields that is not created; nothing is sent.")                  \
    X(4607, BadDifValue, "",                                                                                           \
      "A value of a DIF file lacks the head or the end that its field wants; the transfer ends with the record "       \
      "before.")                                                                                                       \
    X(4658, AppcProviderNotLoaded, "t",                                                                                \
      "%1, ZTFWAPPC.DLL, is there and cannot be loaded; the transfer does not start.")                                 \
    X(4659, AppcEntryMissing, "t", "%1, ZTFWAPPC.DLL, lacks an entry; the transfer does not start.")                   \
    X(4679, SpreadsheetNotStarted, "tnt",                                                                              \
      "The spreadsheet program cannot be started: %1 is the file, which is complete, %2 the system's number, %3 a "    \
      "blank.")                                                                                                        \
    X(4682, DifNotAppended, "", "From the host: a DIF file is to be appended to; nothing is asked for.")               \
    X(4697, As400EntryMissingOtherKind, "",                                                                            \
      "AS4XFER.DLL lacks an entry, and RouterKind is 30; the transfer does not start.")                                \
    X(4704, As400EntryMissing, "", "AS4XFER.DLL lacks an entry; the transfer does not start.")

/* Help topics that are not the number of their message: number, name. */
#define ZHST_HELP_TOPICS(X) \
    X(124, Transfer)        \
    X(206, ReplaceHostFile) \
    X(4254, ReturnCode)

enum ZhstHelpTopic {
#define ZHST_HELP_TOPIC(number, name) ZhstHelp##name = number,
    ZHST_HELP_TOPICS(ZHST_HELP_TOPIC)
#undef ZHST_HELP_TOPIC
};

/* Texts: table, index, name, inserts, then, of those that make a box of their own, its flags, its help topic and the
   answer that goes on (0: the answer is not looked at), then what the text is for. Those of table 7 up to 405 say what
   was being done when an error occurred. */
#define ZHST_TEXTS(X)                                                                                                \
    X(7, 88, SendingTextRecord, "", 0, 0, 0,                                                                         \
      "What was being done: %1 of message 4406 when a record of a text-like file is refused.")                       \
    X(7, 400, SendingRequest, "", 0, 0, 0, "The same when a request is refused.")                                    \
    X(7, 401, ListingCatalogue, "", 0, 0, 0, "The same when an entry of a listing is refused.")                      \
    X(7, 404, SendingRecord, "", 0, 0, 0, "The same when a record of types 3 and 4 is refused.")                     \
    X(7, 405, CountingRecords, "", 0, 0, 0, "The same when the count is refused.")                                   \
    X(7, 416, NoRecords, "", 0x30, ZhstHelpTransfer, 0,                                                              \
      "From the host: the records were counted, and there are none; shown when messages in general are enabled. No " \
      "PC file is opened.")                                                                                          \
    X(7, 418, DisplayTitle, "", 0, 0, 0, "Title of the text display, and its status while rows come.")               \
    X(7, 432, DisplayMore, "", 0, 0, 0, "Status of the text display while a full page waits.")                       \
    X(7, 434, DisplayName, "", 0, 0, 0, "Shown in place of the PC file's name when the output is the display.")      \
    X(7, 439, BadNumber, "nn", 0x30, ZhstHelpTransfer, 0,                                                            \
      "Field %2 of record %1 has a text that its host field cannot store; always shown. The transfer ends with the " \
      "record before.")                                                                                              \
    X(7, 440, HostRecordTooShort, "", 0x30, ZhstHelpTransfer, 0,                                                     \
      "The host record has no room for its fields; always shown. The transfer ends with the record before.")         \
    X(7, 443, LengthLabel, "", 0, 0, 0, "In a field listing, in front of the length.")                               \
    X(7, 444, TypeLabel, "", 0, 0, 0, "In a field listing, in front of the type.")                                   \
    X(7, 445, DemoField1, "", 0, 0, 0, "Field 1 of the demonstration's catalogue.")                                  \
    X(7, 446, DemoLibrary1, "", 0, 0, 0, "Library 1 of the demonstration's catalogue.")                              \
    X(7, 447, DemoFile1, "", 0, 0, 0, "File 1 of the demonstration's catalogue.")                                    \
    X(7, 448, DemoMember1, "", 0, 0, 0, "Member 1 of the demonstration's catalogue.")                                \
    X(7, 449, DemoField2, "", 0, 0, 0, "Field 2 of the demonstration's catalogue.")                                  \
    X(7, 450, DemoField3, "", 0, 0, 0, "Field 3 of the demonstration's catalogue.")                                  \
    X(7, 451, DemoField4, "", 0, 0, 0, "Field 4 of the demonstration's catalogue.")                                  \
    X(7, 452, DemoField5, "", 0, 0, 0, "Field 5 of the demonstration's catalogue.")                                  \
    X(7, 453, DemoField6, "", 0, 0, 0, "Field 6 of the demonstration's catalogue.")                                  \
    X(7, 454, DemoLibrary2, "", 0, 0, 0, "Library 2 of the demonstration's catalogue.")                              \
    X(7, 455, DemoLibrary3, "", 0, 0, 0, "Library 3 of the demonstration's catalogue.")                              \
    X(7, 456, DemoFile2, "", 0, 0, 0, "File 2 of the demonstration's catalogue.")                                    \
    X(7, 457, DemoFile3, "", 0, 0, 0, "File 3 of the demonstration's catalogue.")                                    \
    X(7, 458, DemoMember2, "", 0, 0, 0, "Member 2 of the demonstration's catalogue.")                                \
    X(7, 459, DemoMember3, "", 0, 0, 0, "Member 3 of the demonstration's catalogue.")                                \
    X(17, 4, ReplaceHostFile, "t", 0x28, ZhstHelpReplaceHostFile, 10,                                                \
      "The host file %1 exists and CreateMode is 2: whether to replace it; always shown. Any other answer ends the " \
      "transfer before a record is sent.")                                                                           \
    X(22, 202, RouterReplacement, "", 0, 0, 0, "%1 of message 4269.")

/* The tables in which the texts of return codes stand. */
enum ZhstErrorTable {
    ZhstTransferTable = 7,        /* by the places below; for the AS/400 client's provider by the code itself */
    ZhstProviderTable = 22,       /* the emulator's own providers, by the code itself */
    ZhstRoutedProviderTable = 45, /* the same where the AS/400 client is the router */
};

/* Return codes of the transfer function in ascending order: place, code, name, who says so, meaning. The place is the
   index of the code's text in the transfer table, and its help topic. Who says so is the Host, the Connection on the
   way to it, or the Provider itself. The meaning is the stand-in's text of the code; a box shows 99 characters of it.
 */
#define ZHST_TRANSFER_CODES(X)                                                                                         \
    X(500, 0x0103, FunctionNotSupported, Provider, "The provider does not support this function.")                     \
    X(501, 0x0300, ConversationEnded, Connection, "The host ended the conversation before the transfer was complete.") \
    X(502, 0x0302, ConversationRefused, Host, "The host did not accept the conversation.")                             \
    X(503, 0x0400, TargetExists, Host, "The file or member to be written already exists on the host.")                 \
    X(504, 0x1FFF, NoMoreData, Host, "There are no more records.")                                                     \
    X(505, 0x2000, UnknownFunction, Provider, "The transfer function was called with an unknown function.")            \
    X(506, 0x2001, LengthInvalid, Provider, "The length of the request or record is not valid.")                       \
    X(507, 0x2002, NoRequestOpen, Provider, "No request is open that this step could belong to.")                      \
    X(508, 0x2003, UnknownConversation, Provider, "The conversation with the host is not known any more.")             \
    X(509, 0x2004, RequestTooLong, Provider, "The request is longer than the transfer function can take.")             \
    X(510, 0x2005, BufferTooSmall, Provider, "The buffer is too small for what the host sent.")                        \
    X(511, 0x2007, SystemNameInvalid, Connection, "The name of the host system is not valid.")                         \
    X(512, 0x2008, SystemNotConfigured, Connection, "The host system of that name is not configured.")                 \
    X(513, 0x2009, NoConnection, Connection, "No connection to the host system could be made.")                        \
    X(514, 0x2010, NotAuthorized, Host, "The user is not authorized to use the transfer function.")                    \
    X(515, 0x2011, SignOnRefused, Host, "The user name or the password was not accepted by the host.")                 \
    X(516, 0x2012, PasswordExpired, Host, "The password has expired; change it on the host.")                          \
    X(517, 0x2013, HostProgramNotStarted, Host, "The transfer program of the host could not be started.")              \
    X(518, 0x2019, HostProgramEnded, Connection, "The transfer program of the host ended unexpectedly.")               \
    X(519, 0x2020, OutOfMemory, Provider, "The transfer function ran out of memory.")                                  \
    X(520, 0x2021, TooManyConversations, Provider, "The transfer function has too many conversations open.")           \
    X(521, 0x2022, WrongOrder, Provider, "The steps of the transfer came in the wrong order.")                         \
    X(522, 0x2023, FieldsAlreadyRead, Provider, "The field descriptions have been read already.")                      \
    X(523, 0x2024, InterruptedByHost, Host, "The transfer has been interrupted from the host side.")                   \
    X(524, 0x2025, DataNotUnderstood, Provider, "The data of the host came in a form that is not understood.")         \
    X(525, 0x2026, RecordMisfit, Host, "The record does not fit the host file.")                                       \
    X(526, 0x2027, FileFull, Host, "The host file is full.")                                                           \
    X(527, 0x2028, FileInUse, Host, "The host file is in use by another job.")                                         \
    X(528, 0x2029, OtherVersion, Connection, "The transfer function of the host is of another version.")               \
    X(529, 0x2030, InternalError, Provider, "An internal error occurred in the transfer function.")                    \
    X(530, 0x3000, HostMessage, Host, "The host refused the request.")                                                 \
    X(531, 0x3100, HostMessageInstead, Host, "The host refused the data.")                                             \
    X(532, 0x5042, RouterNotActive, Connection, "The communications router is not active.")                            \
    X(533, 0x5048, LineFailed, Connection, "The line to the host has failed.")                                         \
    X(534, 0x5050, SessionEnded, Connection, "The session with the host was ended.")                                   \
    X(535, 0x5052, NoAnswer, Connection, "The host did not answer in time.")                                           \
    X(536, 0x5054, SessionsInUse, Connection, "All sessions with the host are in use.")                                \
    X(537, 0x5056, ModeUnknown, Connection, "The mode of the session is not known to the host.")                       \
    X(538, 0x5058, DeviceUnknown, Connection, "The device description of this PC is not known to the host.")           \
    X(539, 0x5060, SecurityRejected, Host, "The host rejected the security information of this PC.")                   \
    X(540, 0x5062, ShuttingDown, Host, "The host is shutting down.")                                                   \
    X(541, 0x5064, AdapterFailed, Connection, "The adapter or modem of this PC reported an error.")                    \
    X(542, 0x5066, EndedByHostProgram, Host, "The conversation was ended by the host program.")                        \
    X(543, 0x5067, TimeLimit, Host, "The conversation was ended because of a time limit of the host.")                 \
    X(544, 0x5071, NoConversation, Connection, "The router could not allocate a conversation; try again later.")       \
    X(545, 0x5310, NetworkLost, Connection, "The network connection was lost.")                                        \
    X(546, 0x5311, NetworkNotReached, Connection, "The network connection could not be established.")                  \
    X(547, 0x5400, LicenceExceeded, Connection, "The licence of the connection does not allow another transfer.")      \
    X(548, 0x9999, NotStarted, Provider, "The transfer function has not been started.")

/* Return codes of the emulator's own providers: code, help topic, name, who says so, meaning. All are below the first
   one of the transfer function. Their texts stand in the provider tables, by the code. */
#define ZHST_PROVIDER_CODES(X)                                                                              \
    X(0x0005, 1200, AccessDenied, Host, "Access to the host was denied.")                                   \
    X(0x0006, 1201, ConnectionInvalid, Connection, "The connection to the host is no longer valid.")        \
    X(0x0007, 1202, MemoryDamaged, Provider, "The memory of the provider is damaged; restart the session.") \
    X(0x0016, 1203, RequestNotUnderstood, Provider, "The provider did not understand the request.")         \
    X(0x001C, 1204, NoRoom, Host, "The host has no room left for the data.")                                \
    X(0x0032, 1205, RequestNotSupported, Host, "The host does not support this request.")                   \
    X(0x0033, 1206, SystemUnreachable, Connection, "The host system cannot be reached.")                    \
    X(0x0037, 1207, SystemGone, Connection, "The host system is no longer available.")                      \
    X(0x0048, 1208, ConnectionPaused, Connection, "The connection to the host is paused.")                  \
    X(0x004B, 1209, LogonRefused, Host, "The host did not accept the user name or the password.")           \
    X(0x0051, 1210, ConnectionInUse, Connection, "The connection to the host is already in use.")           \
    X(0x0087, 1211, PathInvalid, Host, "The path of the host file is not valid.")                           \
    X(0x00D4, 1240, FileLocked, Host, "The host file is locked by another job.")                            \
    X(0x00D5, 1241, MemberNotAvailable, Host, "The host member is not available.")                          \
    X(0x00D7, 1242, NestedRequest, Host, "The host ended the transfer because of a nested request.")        \
    X(0x00D8, 1243, ProgramMisfit, Provider, "The host program does not fit this provider.")                \
    X(0x00EC, 1244, ConversationBroken, Connection, "The conversation with the host was broken.")           \
    X(0x00F5, 1250, UnknownState, Provider, "The provider reports an unknown state of the host.")

enum ZhstMessage {
#define ZHST_MESSAGE_NUMBER(number, name, inserts, use) ZhstMessage##name = number,
    ZHST_MESSAGES(ZHST_MESSAGE_NUMBER)
#undef ZHST_MESSAGE_NUMBER
};

#ifdef __cplusplus
namespace zhst {

/* A text of the catalogue: what LoadMessageText and MessageId take; and the box that it makes, if it makes one. */
struct CatalogueText {
    uint32_t table;
    uint32_t index;
    uint32_t flags = 0;
    uint32_t help = 0;
    int32_t goesOn = 0;  // the answer that does
};

namespace message {
#define ZHST_MESSAGE_NUMBER(number, name, inserts, use) inline constexpr uint32_t name = number;
ZHST_MESSAGES(ZHST_MESSAGE_NUMBER)
#undef ZHST_MESSAGE_NUMBER
}  // namespace message

namespace text {
#define ZHST_TEXT_PLACE(table, index, name, inserts, flags, help, goesOn, use) \
    inline constexpr CatalogueText name = {table, index, flags, help, goesOn};
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
