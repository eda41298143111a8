#pragma once

#include <cstdint>

#include "services/objects.h"
#include "services/owned.h"
#include "text/text_buffer.h"

namespace settings {

// Read live on purpose, and so not here:
//   of the connection   39, 215, 503 (the session's, which watches the last two), 40 (the designation is built anew
//   each
//                       time), 248, 250, 512 (asked for before there is a snapshot), 105, 197 (of the session's texts)
//   of the frame        147, 148, 218, 357 (read once, into the client), 119, 120 for the type flag of the PC file,
//   since
//                       a forced type stands there too, 176 for every file object
//   by the record       10 (send, at a first byte 1A), 239 (receive, at a record's end), 426 (send, at a fixed number),
//                       555 (a description's number), 317 and 439 (before the first and behind the last record)
//
// The settings of one transfer, read once at its start; a change of the live settings does not reach the transfer.
// The comments give the setting each field is read from where the name does not.
struct TransferSettings {
    explicit TransferSettings(services::SessionHandle owner);

    char fileText[51] = {};
    char memberText[51] = {};
    char sendDescriptionFile[301] = {};
    char receiveDescriptionFile[301] = {};
    char sortSequence[301] = {};
    char referenceFile[301] = {};
    char decimalSeparator = '.';            // '.' or ',', by DecimalSeparatorMode and the locale
    char listSeparator = ',';               // the locale's
    std::int32_t useDescriptionFile = 0;    // 1 exactly when the setting is 1
    std::int32_t writeDescriptionFile = 0;  // likewise
    std::int32_t numericWidthMode = 0;
    std::int32_t ignoreDecimalErrors = 0;
    std::int32_t sendFileType = 0;     // PcFileType
    std::int32_t receiveFileType = 0;  // PcFileType; forced for screen and spreadsheet output
    std::int32_t hostFileType = 0;
    std::int32_t publicAuthority = 0;
    std::int32_t recordLength = 0;
    std::int32_t timeFormat = 0;
    std::int32_t dateFormat = 0;
    std::int32_t timeSeparator = 0;
    std::int32_t dateSeparator = 0;
    std::int32_t decimalSeparatorMode = 0;
    std::int32_t receiveOutput = 0;
    std::int32_t createMode = 0;
    std::int32_t recordProgress = 0;
    std::uint32_t startRecord = 0;  // first record sent, from 1
    services::SessionHandle session;
    services::SettingsHandle settings;
    const services::SessionServices* sessionServices;
    services::Owned<text::TextBuffer> selectList;  // null when there was no memory: all fields

private:
    void readIntegers();
    void readStrings();
};

}  // namespace settings
