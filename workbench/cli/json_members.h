#pragma once

#include <string_view>

// What --json writes: one object in one line. Each list has the members of an object in their order: constant, name and
// meaning. The manual page tells them.

// Of a run. One that could not begin has none, only its status and the reason on standard error.
#define Z7X_RUN_MEMBERS(X)                                                                                   \
    X(Command, "command", "the command's name")                                                              \
    X(Status, "status", "the exit status")                                                                   \
    X(Outcome, "outcome", "complete, closed, cancelled or failed; of a check alone, its first word")         \
    X(Text, "text", "the tally as a person reads it")                                                        \
    X(Records, "records", "in the PC file, on the screen or accepted by the host")                           \
    X(Bytes, "bytes", "written to the PC file, or read from it; absent where nothing is known of them")      \
    X(PcFile, "pcFile", "its name as it was given; absent where there is none")                              \
    X(HostFile, "hostFile", "its name as it was given; absent where there is none")                          \
    X(Messages, "messages", "that were shown, {\"id\", \"text\"} each; 0 is the id of those about PC files") \
    X(Notes, "notes", "of z7xfer's own, {\"text\", \"advice\"} each")                                        \
    X(Entries, "entries", "of browse: what is listed, an object each")                                       \
    X(Host, "host", "of host: path of the database that takes what is sent")                                 \
    X(IsThere, "isThere", "of host: whether it is there; the first send makes it")                           \
    X(Sample, "sample", "of host: path of the sample that it is a copy of")

// Of an entry of browse that is no field.
#define Z7X_ENTRY_MEMBERS(X)                          \
    X(Name, "name", "of the library, file or member") \
    X(Description, "description", "its text on the host")

// Of a field, with the title of its column for people, and how a value is written. What is not known is absent.
#define Z7X_FIELD_MEMBERS(X)                                                                             \
    X(Name, "name", "NAME", Text, "of the field; of several files with the number of its own: t2.NAME")  \
    X(Type, "type", "TYPE", Text, "as the host calls it: CHAR, ZONED, PACKD, BIN, HEX, DATE and others") \
    X(Length, "length", "LENGTH", Number, "digits of a zoned or packed number, bytes of other fields")   \
    X(Decimals, "decimals", "DECIMALS", Number, "of a number")                                           \
    X(CodePage, "codePage", "CODE PAGE", Number, "host code page of a text")                             \
    X(Offset, "offset", "OFFSET", Number, "bytes in front of it in the host record")                     \
    X(Description, "description", "DESCRIPTION", Text, "its text on the host")

// Of settings: {"settings": [...]}, an object each.
#define Z7X_SETTING_MEMBERS(X)                                              \
    X(Number, "number", "of the setting")                                   \
    X(Name, "name", "of the setting")                                       \
    X(Kind, "kind", "number, choice, switch or text")                       \
    X(Meaning, "meaning", "what it says, for people")                       \
    X(Default, "default", "its value unless given, as a person writes it")  \
    X(Longest, "longest", "bytes of a text; absent when any length goes")   \
    X(Writer, "writer", "who changes it: user, library or both")            \
    X(Reading, "reading", "when the library reads it: once, live or never") \
    X(Values, "values", "by name, {\"value\", \"word\", \"meaning\"} each; of a choice there are no others")

#define Z7X_MEMBER_NAME(constant, name, ...) inline constexpr std::string_view constant = name;
namespace run_member {
Z7X_RUN_MEMBERS(Z7X_MEMBER_NAME)
}  // namespace run_member
namespace entry_member {
Z7X_ENTRY_MEMBERS(Z7X_MEMBER_NAME)
}  // namespace entry_member
namespace setting_member {
Z7X_SETTING_MEMBERS(Z7X_MEMBER_NAME)
}  // namespace setting_member
#undef Z7X_MEMBER_NAME
