#pragma once

// The library's own sentences, for what the emulator's catalogue has no message for. They are shown with showOwnText;
// those with a place for an insert are formats of snprintf.
namespace messages::sentence {

inline constexpr char ConnectionStopped[] =
    "The connection was ended or its settings were changed while the host was working on a request. "
    "The request was not completed.";
// Text alone of message 4416; filled by formatStringSet.
inline constexpr char NotCompleted[] =
    "File transfer not completed.\nReceived approximately %1 records of %2.\n\n"
    "Refer to job log on host system %3.\nJob name %4, user profile %5, job number %6";

inline constexpr char StatementTooLong[] =
    "The request for the host does not fit: the file list, the fields and the conditions together may have 4095 "
    "characters. Shorten them and try again.";
inline constexpr char DescriptionTooShort[] =
    "The host's description of a field is shorter than 40 bytes. The fields behind it are not read.";
inline constexpr char TooManyDescriptions[] =
    "The host does not stop describing fields. The fields behind the last are not read.";

// Field name, bytes.
inline constexpr char NoTextForm[] = "Field %s is a binary number of %u bytes, which has no text form.";
inline constexpr char HostRecordTooLong[] =
    "The host returned a record that is longer than 4096 bytes. The transfer ends with the record before it.";

inline constexpr char NoFields[] = "The host described no fields for the file. Nothing has been sent.";
inline constexpr char SentRecordTooLong[] =
    "The records of the host file are longer than 4096 bytes, the most that can be sent. Nothing has been sent.";
inline constexpr char UnknownFileType[] = "The file type of the PC file is unknown. Nothing has been sent.";

// Path; the second also what is wrong.
inline constexpr char DescriptionPathTooLong[] =
    "The path of the PC file description %s is longer than 260 characters.";
inline constexpr char DescriptionNotRead[] = "The PC file description %s %s.";
inline constexpr char HasNoFieldName[] = "has a field line without a name";
inline constexpr char NamesTooManyFields[] = "names more fields than a request can hold";

}  // namespace messages::sentence
