#pragma once

#include <cstdint>

#include "services/objects.h"
#include "services/owned.h"
#include "text/text_buffer.h"

namespace settings {

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
    std::uint32_t startRecord = 0;                 // first record sent, from 1
    services::Owned<text::TextBuffer> selectList;  // null when there was no memory: all fields
    services::SettingsHandle settings;
    services::SessionHandle session;
    const services::SessionServices* sessionServices;

private:
    void readIntegers();
    void readStrings();
};

}  // namespace settings
