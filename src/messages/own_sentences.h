#pragma once

// The library's own sentences, for what the emulator's catalogue has no message for: name, sentence, when it is shown.
// They are shown with showOwnText, but for NotCompleted, which formatStringSet fills and message 4416 shows. Those with
// a place for an insert are formats of snprintf; the last two are the reason that DescriptionNotRead gives.
#define Z7X_OWN_SENTENCES(X)                                                                                           \
    X(ConnectionStopped,                                                                                               \
      "The connection was ended or its settings were changed while the host was working on a request. "                \
      "The request was not completed.",                                                                                \
      "A change of the connection settings has taken the provider from a running transfer, which ends.")               \
    X(NotCompleted,                                                                                                    \
      "File transfer not completed.\nReceived approximately %1 records of %2.\n\n"                                     \
      "Refer to job log on host system %3.\nJob name %4, user profile %5, job number %6",                              \
      "An exchange has failed, and neither the host nor what was being done says more: inserts are the settings 772, " \
      "773, 40 in capital letters, 774, 775 and 776. The transfer ends.")                                              \
    X(StatementTooLong,                                                                                                \
      "The request for the host does not fit: the file list, the fields and the conditions together may have 4095 "    \
      "characters. Shorten them and try again.",                                                                       \
      "A request is longer than the shared buffer, or its qualifiers make it so; it is not sent.")                     \
    X(DescriptionTooShort,                                                                                             \
      "The host's description of a field is shorter than 40 bytes. The fields behind it are not read.",                \
      "Function 2 gave data of a length between 1 and 39, or none. A transfer to the host ends.")                      \
    X(TooManyDescriptions, "The host does not stop describing fields. The fields behind the last are not read.",       \
      "Function 2 was answered 8192 times. A transfer to the host ends.")                                              \
    X(NoTextForm, "Field %s is a binary number of %u bytes, which has no text form.",                                  \
      "From the host: a binary field has more than 8 bytes, and the file type wants text; the transfer ends.")         \
    X(HostRecordTooLong,                                                                                               \
      "The host returned a record that is longer than 4096 bytes. The transfer ends with the record before it.",       \
      "Function 3 gave a length above 4096.")                                                                          \
    X(NoFields, "The host described no fields for the file. Nothing has been sent.",                                   \
      "To the host: function 2 gave 0x1FFF at once.")                                                                  \
    X(SentRecordTooLong,                                                                                               \
      "The records of the host file are longer than 4096 bytes, the most that can be sent. Nothing has been sent.",    \
      "To the host: the lengths of the fields add up to more.")                                                        \
    X(UnknownFileType, "The file type of the PC file is unknown. Nothing has been sent.",                              \
      "To the host: the setting is none of the seven types.")                                                          \
    X(DescriptionPathTooLong, "The path of the PC file description %s is longer than 260 characters.",                 \
      "The directory of the PC file and the description's name together. Nothing is sent; nothing is described.")      \
    X(DescriptionNotRead, "The PC file description %s %s.",                                                            \
      "A description that is read has one of the two faults below; nothing is sent.")                                  \
    X(HasNoFieldName, "has a field line without a name", "A PCFL line has nothing behind its first blank.")            \
    X(NamesTooManyFields, "names more fields than a request can hold",                                                 \
      "The names and the commas between them have more than 2816 characters.")

namespace messages::sentence {

#define Z7X_OWN_SENTENCE(name, sentence, use) inline constexpr char name[] = sentence;
Z7X_OWN_SENTENCES(Z7X_OWN_SENTENCE)
#undef Z7X_OWN_SENTENCE

}  // namespace messages::sentence
