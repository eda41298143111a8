#include "emulator/catalogue.h"
#include "emulator/sentences.h"

// The sentences of messages, and of the texts that are no errors.

namespace emulator::catalogue {
namespace {

using namespace zhst::message;
using namespace zhst::text;

constexpr Sentence messageSentences[] = {
    {OutOfMemory, "There is not enough memory for the transfer. Close other sessions or programs and try again."},
    {RouterNotLoaded, "The router library E32APPC.DLL was found but could not be loaded. It may be damaged."},
    {RouterIsReplacement, "The transfer function cannot work with the router library E32APPC.DLL. %1"},
    {TransferCancelled, "The transfer has been cancelled."},
    {LibraryNotFound, "The library %1 was not found. Check that it stands in the provider folder."},
    {OwnProviderNotLoaded,
     "The provider library of this connection was found but could not be loaded. It may be damaged."},
    {EmulatorEntryMissing, "The provider library ZEHNTFW.DLL lacks an entry point. It may belong to another version."},
    {BufferNotAllocated,
     "There is no memory for the buffer shared with the provider. Close other programs and try again."},
    {ErrorWithContext, "An error occurred while %1 (return code %2). %3"},
    {RouterNotRunning, "The communications router is not running. Start it and try again."},
    {ErrorWithHostText, "The host reported an error (return code %1). %2 Message of the host: %3"},
    {RecordTooLong, "A line of the PC file is longer than 4095 characters and cannot be sent."},
    {DescriptionEmpty, "The PC file description %1 is empty."},
    {DescriptionNotUsed, "A transfer to a data file of the host needs a PC file description, and none is to be used."},
    {TextAlone, "%1"},
    {DescriptionFileType, "The PC file description %1 names a file type (PCFT) that is unknown or cannot be sent."},
    {FieldWithoutLength, "The host field %1 has no length, so no value can be stored in it."},
    {DescriptionHeader, "The file %1 is no PC file description: its first line does not say PCFDF."},
    {DescriptionFieldEarly, "The PC file description %1 describes a field (PCFL) before the file type (PCFT)."},
    {DescriptionNoFields, "The PC file description %1 describes no field (PCFL)."},
    {DescriptionTwoFields, "The PC file description %1 has two field entries (PCFL) in one line."},
    {DescriptionOptions, "The options line of the PC file description %1 does not begin with PCFO."},
    {DescriptionTimeFormat, "The time format (option 1) of the PC file description %1 is not valid."},
    {DescriptionTimeSeparator, "The time separator (option 2) of the PC file description %1 is not valid."},
    {DescriptionDateFormat, "The date format (option 3) of the PC file description %1 is not valid."},
    {DescriptionDateSeparator, "The date separator (option 4) of the PC file description %1 is not valid."},
    {DescriptionDecimalSeparator, "The decimal separator (option 5) of the PC file description %1 is not valid."},
    {DescriptionSecondFileType, "The PC file description %1 has more than one file type line (PCFT)."},
    {DescriptionSecondHeader, "The PC file description %1 has more than one header line (PCFDF)."},
    {DescriptionSecondOptions, "The PC file description %1 has more than one options line (PCFO)."},
    {TransferFunctionNotStarted, "The transfer function could not be started. Check the connection settings."},
    {SeparatorsAlike, "A comma cannot be both the decimal separator and the list separator of a comma-separated file."},
    {DisplayNotBegun, "The window for the records could not be prepared."},
    {IbmProviderNotLoaded,
     "The transfer function library E32TFW.DLL was found but could not be loaded. It may be damaged."},
    {IbmEntryMissing, "The transfer function library E32TFW.DLL lacks the entry point EHNTF_STF."},
    {SourceOfSeveralFields, "A source file is sent to a host file of one field, but this host file has more."},
    {BadDifValue, "A value of the DIF file is not written as its host field needs it: text as 1,0 and numbers as 0."},
    {AppcProviderNotLoaded, "The provider library %1 was found but could not be loaded. It may be damaged."},
    {AppcEntryMissing, "The provider library %1 lacks an entry point. It may belong to another version."},
    {SpreadsheetNotStarted, "The file %1 is complete, but the spreadsheet program could not be started (error %2).%3"},
    {DifNotAppended, "A DIF file cannot be added to. Choose to replace the file, or another name."},
    {As400EntryMissingOtherKind, "The client provider AS4XFER.DLL lacks an entry point for this kind of router."},
    {As400EntryMissing, "The client provider AS4XFER.DLL lacks an entry point. It may belong to another version."},
};

constexpr Message messageRows[] = {
#define MESSAGE_ROW(number, name, inserts, use) {number, #name, inserts, sentenceOf(messageSentences, number)},
    ZHST_MESSAGES(MESSAGE_ROW)
#undef MESSAGE_ROW
};
static_assert(std::size(messageRows) == std::size(messageSentences));

constexpr Sentence textSentences[] = {
    {messageId(SendingTextRecord), "sending a record to the host"},
    {messageId(SendingRequest), "sending the request to the host"},
    {messageId(ListingCatalogue), "listing the catalogue of the host"},
    {messageId(SendingRecord), "sending a record of the file to the host"},
    {messageId(CountingRecords), "counting the records to be transferred"},
    {messageId(NoRecords), "The host file has no records that match the request. Nothing was transferred."},
    {messageId(DisplayTitle), "Records from the host"},
    {messageId(DisplayMore), "The page is full: ask for the next one, or close the window to stop"},
    {messageId(DisplayName), "Screen"},
    {messageId(BadNumber), "Record %1: the value of field %2 cannot be stored in the host field."},
    {messageId(HostRecordTooShort), "The host record is too short for the fields of the PC file."},
    {messageId(LengthLabel), "Length: "},
    {messageId(TypeLabel), "Type: "},
    {messageId(DemoField1), "CUSNUM\tCustomer number\nType: ZONED   Length: 6"},
    {messageId(DemoLibrary1), "DEMO"},
    {messageId(DemoFile1), "CUSTOMERS"},
    {messageId(DemoMember1), "(FIRST)"},
    {messageId(DemoField2), "LASTNAME\tLast name\nType: CHAR    Length: 11"},
    {messageId(DemoField3), "STREET\tStreet and number\nType: CHAR    Length: 21"},
    {messageId(DemoField4), "CITY\tCity\nType: CHAR    Length: 20"},
    {messageId(DemoField5), "ZIPCODE\tPostal code\nType: ZONED   Length: 5"},
    {messageId(DemoField6), "BALANCE\tBalance due\nType: PACKED  Length: 9"},
    {messageId(DemoLibrary2), "SALES"},
    {messageId(DemoLibrary3), "STOCK"},
    {messageId(DemoFile2), "ORDERS"},
    {messageId(DemoFile3), "PRICES"},
    {messageId(DemoMember2), "(SECOND)"},
    {messageId(DemoMember3), "(THIRD)"},
    {messageId(ReplaceHostFile), "The host file %1 already exists. Do you want to replace it?"},
    {messageId(RouterReplacement),
     "It is a replacement that serves this program alone; install the router of the host system."},
};

constexpr Text textRows[] = {
#define TEXT_ROW(table, index, name, inserts, flags, help, goesOn, use) \
    {table, index, #name, inserts, sentenceOf(textSentences, messageId(table, index))},
    ZHST_TEXTS(TEXT_ROW)
#undef TEXT_ROW
};
static_assert(std::size(textRows) == std::size(textSentences));

}  // namespace

std::span<const Message> messages() { return messageRows; }
std::span<const Text> texts() { return textRows; }

}  // namespace emulator::catalogue
