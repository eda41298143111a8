#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "emulator/emulator.h"
#include "host_layout.h"
#include "transfer_watch.h"

// Indented lines, as they stand below a message.
void printBelow(std::ostream& out, const std::vector<std::string>& lines);

// What is known of a failure beyond the library's message, which stays as it is: lines in UTF-8 for below it.
class Reasons {
public:
    Reasons(const TransferWatch& watch, ZhstSession session) : watch_(watch), session_(session) {}

    // Everything that the monitor store hears.
    void storeWritten(std::string_view code, std::string_view value);

    std::vector<std::string> of(const emulator::MessageBox& box) const;
    // As far as the host has described it.
    const HostLayout& layout() const { return layout_; }
    // For an ending that no message told.
    std::vector<std::string> ofSilence() const;

private:
    std::vector<std::string> ofProvider() const;
    std::vector<std::string> ofConversion() const;

    const TransferWatch& watch_;
    ZhstSession session_;
    HostLayout layout_;
};
