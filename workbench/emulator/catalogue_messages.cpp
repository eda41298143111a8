#include "emulator/catalogue.h"
#include "emulator/sentences.h"

// The sentences of messages, and of the texts that are no errors.

namespace emulator::catalogue {
namespace {

namespace message = zhst::message;
namespace text = zhst::text;

constexpr Sentence messageSentences[] = {
    {message::OutOfMemory,
     "There is not enough memory for the transfer. Close other sessions or programs and try again."},
    {message::RouterNotLoaded, "The router library E32APPC.DLL was found but could not be loaded. It may be damaged."},
    {message::RouterIsReplacement, "The transfer function cannot work with the router library E32APPC.DLL. %1"},
    {message::TransferCancelled, "The transfer has been cancelled."},
    {message::LibraryNotFound, "The library %1 was not found. Check that it stands in the provider folder."},
    {message::OwnProviderNotLoaded,
     "The provider library of this connection was found but could not be loaded. It may be damaged."},
    {message::EmulatorEntryMissing,
     "The provider library ZEHNTFW.DLL lacks an entry point. It may belong to another version."},
    {message::BufferNotAllocated,
     "There is no memory for the buffer shared with the provider. Close other programs and try again."},
    {message::ErrorWithContext, "An error occurred while %1 (return code %2). %3"},
    {message::RouterNotRunning, "The communications router is not running. Start it and try again."},
    {message::ErrorWithHostText, "The host reported an error (return code %1). %2 Message of the host: %3"},
    {message::RecordTooLong, "A line of the PC file is longer than 4095 characters and cannot be sent."},
    {message::DescriptionEmpty, "The PC file description %1 is empty."},
    {message::DescriptionNotUsed,
     "A transfer to a data file of the host needs a PC file description, and none is to be used."},
    {message::TextAlone, "%1"},
    {message::DescriptionFileType,
     "The PC file description %1 names a file type (PCFT) that is unknown or cannot be sent."},
    {message::FieldWithoutLength, "The host field %1 has no length, so no value can be stored in it."},
    {message::DescriptionHeader, "The file %1 is no PC file description: its first line does not say PCFDF."},
    {message::DescriptionFieldEarly,
     "The PC file description %1 describes a field (PCFL) before the file type (PCFT)."},
    {message::DescriptionNoFields, "The PC file description %1 describes no field (PCFL)."},
    {message::DescriptionTwoFields, "The PC file description %1 has two field entries (PCFL) in one line."},
    {message::DescriptionOptions, "The options line of the PC file description %1 does not begin with PCFO."},
    {message::DescriptionTimeFormat, "The time format (option 1) of the PC file description %1 is not valid."},
    {message::DescriptionTimeSeparator, "The time separator (option 2) of the PC file description %1 is not valid."},
    {message::DescriptionDateFormat, "The date format (option 3) of the PC file description %1 is not valid."},
    {message::DescriptionDateSeparator, "The date separator (option 4) of the PC file description %1 is not valid."},
    {message::DescriptionDecimalSeparator,
     "The decimal separator (option 5) of the PC file description %1 is not valid."},
    {message::DescriptionSecondFileType, "The PC file description %1 has more than one file type line (PCFT)."},
    {message::DescriptionSecondHeader, "The PC file description %1 has more than one header line (PCFDF)."},
    {message::DescriptionSecondOptions, "The PC file description %1 has more than one options line (PCFO)."},
    {message::TransferFunctionNotStarted, "The transfer function could not be started. Check the connection settings."},
    {message::SeparatorsAlike,
     "A comma cannot be both the decimal separator and the list separator of a comma-separated file."},
    {message::DisplayNotBegun, "The window for the records could not be prepared."},
    {message::IbmProviderNotLoaded,
     "The transfer function library E32TFW.DLL was found but could not be loaded. It may be damaged."},
    {message::IbmEntryMissing, "The transfer function library E32TFW.DLL lacks the entry point EHNTF_STF."},
    {message::SourceOfSeveralFields, "A source file is sent to a host file of one field, but this host file has more."},
    {message::BadDifValue,
     "A value of the DIF file is not written as its host field needs it: text as 1,0 and numbers as 0."},
    {message::AppcProviderNotLoaded, "The provider library %1 was found but could not be loaded. It may be damaged."},
    {message::AppcEntryMissing, "The provider library %1 lacks an entry point. It may belong to another version."},
    {message::SpreadsheetNotStarted,
     "The file %1 is complete, but the spreadsheet program could not be started (error %2).%3"},
    {message::DifNotAppended, "A DIF file cannot be added to. Choose to replace the file, or another name."},
    {message::As400EntryMissingOtherKind,
     "The client provider AS4XFER.DLL lacks an entry point for this kind of router."},
    {message::As400EntryMissing,
     "The client provider AS4XFER.DLL lacks an entry point. It may belong to another version."},
};

constexpr Message messageRows[] = {
#define MESSAGE_ROW(number, name, inserts) {number, #name, inserts, sentenceOf(messageSentences, number)},
    ZHST_MESSAGES(MESSAGE_ROW)
#undef MESSAGE_ROW
};
static_assert(std::size(messageRows) == std::size(messageSentences));

constexpr Sentence textSentences[] = {
    {messageId(text::SendingTextRecord), "sending a record to the host"},
    {messageId(text::SendingRequest), "sending the request to the host"},
    {messageId(text::ListingCatalogue), "listing the catalogue of the host"},
    {messageId(text::SendingRecord), "sending a record of the file to the host"},
    {messageId(text::CountingRecords), "counting the records to be transferred"},
    {messageId(text::NoRecords), "The host file has no records that match the request. Nothing was transferred."},
    {messageId(text::DisplayTitle), "Records from the host"},
    {messageId(text::DisplayMore), "The page is full: ask for the next one, or close the window to stop"},
    {messageId(text::DisplayName), "Screen"},
    {messageId(text::BadNumber), "Record %1: the value of field %2 cannot be stored in the host field."},
    {messageId(text::HostRecordTooShort), "The host record is too short for the fields of the PC file."},
    {messageId(text::LengthLabel), "Length: "},
    {messageId(text::TypeLabel), "Type: "},
    {messageId(text::DemoField1), "CUSNUM\tCustomer number\nType: ZONED   Length: 6"},
    {messageId(text::DemoLibrary1), "DEMO"},
    {messageId(text::DemoFile1), "CUSTOMERS"},
    {messageId(text::DemoMember1), "(FIRST)"},
    {messageId(text::DemoField2), "LASTNAME\tLast name\nType: CHAR    Length: 11"},
    {messageId(text::DemoField3), "STREET\tStreet and number\nType: CHAR    Length: 21"},
    {messageId(text::DemoField4), "CITY\tCity\nType: CHAR    Length: 20"},
    {messageId(text::DemoField5), "ZIPCODE\tPostal code\nType: ZONED   Length: 5"},
    {messageId(text::DemoField6), "BALANCE\tBalance due\nType: PACKED  Length: 9"},
    {messageId(text::DemoLibrary2), "SALES"},
    {messageId(text::DemoLibrary3), "STOCK"},
    {messageId(text::DemoFile2), "ORDERS"},
    {messageId(text::DemoFile3), "PRICES"},
    {messageId(text::DemoMember2), "(SECOND)"},
    {messageId(text::DemoMember3), "(THIRD)"},
    {messageId(text::ReplaceHostFile), "The host file %1 already exists. Do you want to replace it?"},
    {messageId(text::RouterReplacement),
     "It is a replacement that serves this program alone; install the router of the host system."},
};

constexpr Text textRows[] = {
#define TEXT_ROW(table, index, name, inserts) \
    {table, index, #name, inserts, sentenceOf(textSentences, messageId(table, index))},
    ZHST_TEXTS(TEXT_ROW)
#undef TEXT_ROW
};
static_assert(std::size(textRows) == std::size(textSentences));

}  // namespace

std::span<const Message> messages() { return messageRows; }
std::span<const Text> texts() { return textRows; }

}  // namespace emulator::catalogue
