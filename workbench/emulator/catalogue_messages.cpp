#include "emulator/catalogue.h"

// The sentences of messages, and the texts that are neither errors nor messages.

namespace emulator::catalogue {
namespace {

constexpr Message messageRows[] = {
    {4001, "", "There is not enough memory for the transfer. Close other sessions or programs and try again."},
    {4266, "", "The router library E32APPC.DLL was found but could not be loaded. It may be damaged."},
    {4269, "t", "The transfer function cannot work with the router library E32APPC.DLL. %1"},
    {4315, "", "The transfer has been cancelled."},
    {4400, "t", "The library %1 was not found. Check that it stands in the provider folder."},
    {4402, "", "The provider library of this connection was found but could not be loaded. It may be damaged."},
    {4403, "", "The provider library ZEHNTFW.DLL lacks an entry point. It may belong to another version."},
    {4405, "", "There is no memory for the buffer shared with the provider. Close other programs and try again."},
    {4406, "tnt", "An error occurred while %1 (return code %2). %3"},
    {4407, "", "The communications router is not running. Start it and try again."},
    {4408, "ntt", "The host reported an error (return code %1). %2 Message of the host: %3"},
    {4410, "", "A line of the PC file is longer than 4095 characters and cannot be sent."},
    {4411, "t", "The PC file description %1 is empty."},
    {4412, "", "A transfer to a data file of the host needs a PC file description, and none is to be used."},
    {4416, "t", "%1"},
    {4417, "t", "The PC file description %1 names a file type (PCFT) that is unknown or cannot be sent."},
    {4418, "t", "The host field %1 has no length, so no value can be stored in it."},
    {4419, "t", "The file %1 is no PC file description: its first line does not say PCFDF."},
    {4420, "t", "The PC file description %1 describes a field (PCFL) before the file type (PCFT)."},
    {4421, "t", "The PC file description %1 describes no field (PCFL)."},
    {4422, "t", "The PC file description %1 has two field entries (PCFL) in one line."},
    {4423, "t", "The options line of the PC file description %1 does not begin with PCFO."},
    {4424, "t", "The time format (option 1) of the PC file description %1 is not valid."},
    {4425, "t", "The time separator (option 2) of the PC file description %1 is not valid."},
    {4426, "t", "The date format (option 3) of the PC file description %1 is not valid."},
    {4427, "t", "The date separator (option 4) of the PC file description %1 is not valid."},
    {4428, "t", "The decimal separator (option 5) of the PC file description %1 is not valid."},
    {4429, "t", "The PC file description %1 has more than one file type line (PCFT)."},
    {4430, "t", "The PC file description %1 has more than one header line (PCFDF)."},
    {4431, "t", "The PC file description %1 has more than one options line (PCFO)."},
    {4432, "", "The transfer function could not be started. Check the connection settings."},
    {4433, "", "A comma cannot be both the decimal separator and the list separator of a comma-separated file."},
    {4436, "", "The window for the records could not be prepared."},
    {4593, "", "The transfer function library E32TFW.DLL was found but could not be loaded. It may be damaged."},
    {4594, "", "The transfer function library E32TFW.DLL lacks the entry point EHNTF_STF."},
    {4601, "", "A source file is sent to a host file of one field, but this host file has more."},
    {4607, "", "A value of the DIF file is not written as its host field needs it: text as 1,0 and numbers as 0."},
    {4658, "t", "The provider library %1 was found but could not be loaded. It may be damaged."},
    {4659, "t", "The provider library %1 lacks an entry point. It may belong to another version."},
    {4679, "tnt", "The file %1 is complete, but the spreadsheet program could not be started (error %2).%3"},
    {4682, "", "A DIF file cannot be added to. Choose to replace the file, or another name."},
    {4697, "", "The client provider AS4XFER.DLL lacks an entry point for this kind of router."},
    {4704, "", "The client provider AS4XFER.DLL lacks an entry point. It may belong to another version."},
};

constexpr std::uint32_t TransferTexts = 7;
constexpr std::uint32_t QuestionTexts = 17;

// The texts 400 to 405 and 88 say what was being done when an error occurred; 445 to 459 are the catalogue of the
// demonstration connection.
constexpr Text textRows[] = {
    {TransferTexts, 88, "", "sending a record to the host"},
    {TransferTexts, 400, "", "sending the request to the host"},
    {TransferTexts, 401, "", "listing the catalogue of the host"},
    {TransferTexts, 402, "", "receiving the field descriptions"},
    {TransferTexts, 403, "", "receiving a record from the host"},
    {TransferTexts, 404, "", "sending a record of the file to the host"},
    {TransferTexts, 405, "", "counting the records to be transferred"},
    {TransferTexts, 416, "", "The host file has no records that match the request. Nothing was transferred."},
    {TransferTexts, 418, "", "Records from the host"},
    {TransferTexts, 432, "", "The page is full: ask for the next one, or close the window to stop"},
    {TransferTexts, 434, "", "Screen"},
    {TransferTexts, 439, "nn", "Record %1: the value of field %2 cannot be stored in the host field."},
    {TransferTexts, 440, "", "The host record is too short for the fields of the PC file."},
    {TransferTexts, 443, "", "Length: "},
    {TransferTexts, 444, "", "Type: "},
    {TransferTexts, 445, "", "CUSNUM\tCustomer number\nType: ZONED   Length: 6"},
    {TransferTexts, 446, "", "DEMO"},
    {TransferTexts, 447, "", "CUSTOMERS"},
    {TransferTexts, 448, "", "(FIRST)"},
    {TransferTexts, 449, "", "LASTNAME\tLast name\nType: CHAR    Length: 11"},
    {TransferTexts, 450, "", "STREET\tStreet and number\nType: CHAR    Length: 21"},
    {TransferTexts, 451, "", "CITY\tCity\nType: CHAR    Length: 20"},
    {TransferTexts, 452, "", "ZIPCODE\tPostal code\nType: ZONED   Length: 5"},
    {TransferTexts, 453, "", "BALANCE\tBalance due\nType: PACKED  Length: 9"},
    {TransferTexts, 454, "", "SALES"},
    {TransferTexts, 455, "", "STOCK"},
    {TransferTexts, 456, "", "ORDERS"},
    {TransferTexts, 457, "", "PRICES"},
    {TransferTexts, 458, "", "(SECOND)"},
    {TransferTexts, 459, "", "(THIRD)"},
    {QuestionTexts, 4, "t", "The host file %1 already exists. Do you want to replace it?"},
};

}  // namespace

std::span<const Message> messages() { return messageRows; }
std::span<const Text> texts() { return textRows; }

}  // namespace emulator::catalogue
