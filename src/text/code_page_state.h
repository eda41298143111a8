#pragma once

#include <cstdint>

#include "Z7XFRPCS/code_tables.h"
#include "services/conversion.h"
#include "services/objects.h"
#include "services/owned.h"

namespace text {

// Everything that the conversion of text between the host's code page and the PC's depends on. A transfer-function
// session owns one.
class CodePageState {
public:
    // Both handles of the conversion services, obtained once; no code page yet.
    explicit CodePageState(services::SessionHandle session);

    // Takes the host code page, releasing the tables of the previous one and loading those of a double-byte page. A
    // table that finds no memory stays missing; conversions that need it then fail.
    void setHostCodePage(std::int32_t hostCodePage);
    void setConvertToOem(std::int32_t convertToOem) { convertToOem_ = convertToOem; }

    bool isCodePage43() const { return isCodePage43_; }

    // Both return 0 for success, otherwise the failure value of the way taken. Source and destination do not overlap.
    // hostToPcText: the destination has `capacity` bytes, and `convertedLength` (may be null) is set to 0 except by the
    // code page 43 way, the only one in which the length changes.
    std::uint32_t hostToPcText(const char* source, char* destination, std::uint32_t length, std::uint32_t capacity,
                               std::uint32_t* convertedLength) const;
    // pcToHostText: gives exactly `destinationLength` host bytes, or `length` of them when that is less.
    std::uint32_t pcToHostText(const char* source, char* destination, std::uint32_t length,
                               std::uint32_t destinationLength) const;

private:
    void loadDoubleByteTables(std::int32_t hostCodePage);
    std::uint32_t dbcsHostToPc(std::uint32_t length, char* buffer) const;
    std::uint32_t dbcsPcToHost(std::uint32_t length, const char* source, char* destination) const;

    services::SessionHandle session_;
    const services::SessionServices* sessionServices_;
    services::ConverterHandle emulatorConverter_;
    services::TextServicesHandle textServicesHandle_;
    std::int32_t convertToOem_ = 0;
    bool isCodePage43_ = false;
    bool dbcsTablesLoaded_ = false;
    services::OwnedBytes dbcsToPcTable_;    // kind 6
    services::OwnedBytes dbcsToHostTable_;  // kind 5
    char singleByteTables_[ZhstSingleByteTableSize] = {};
};

}  // namespace text
