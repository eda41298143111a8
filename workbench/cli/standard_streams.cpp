#include "standard_streams.h"

#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <utility>

#include "console.h"

namespace {

namespace setting = zhst::setting;
using console::Stream;

constexpr std::int32_t Utf8Page = 43;  // of the host, whose PC side is UTF-8 already

bool isTextType(std::int32_t type) { return type != ZhstBasicRandom && type != ZhstNoConversion; }

bool isRecoded(const CommandLine& line, Stream stream) {
    return line.streamEncoding ? *line.streamEncoding == StreamEncoding::Terminal : console::isTerminal(stream);
}

}  // namespace

StandardStreams::StandardStreams(const CommandLine& line, const PcText& pcText, ZhstSession session) {
    const bool isSend = line.command == Command::Send;
    if ((!isSend && line.command != Command::Receive) || emulator::text(session, setting::PcFileName) != "-") return;
    const std::int32_t type = emulator::number(session, isSend ? setting::SendFileType : setting::ReceiveFileType);
    const bool recoded = isTextType(type) && isRecoded(line, isSend ? Stream::Input : Stream::Output) &&
                         emulator::number(session, setting::HostCodePage) != Utf8Page;
    // Texts of PC files may be in the other code page of the PC.
    const bool oem = emulator::number(session, setting::ConvertToOem) != 0;
    const PcText encoding = oem ? pcText.of(line.pc.oemCodePage) : pcText;
    if (isSend) {
        keepInput(recoded ? &encoding : nullptr);
    } else if (recoded) {
        emulator::setOutputEncoder(
            [encoding](std::string_view bytes) { return console::encoded(encoding.toTerminal(bytes)); });
    }
}

StandardStreams::~StandardStreams() {
    emulator::setStandardInputFile("");
    emulator::setOutputEncoder(nullptr);
}

// By lines, so that a character that is not to be had is found.
void StandardStreams::keepInput(const PcText* encoding) {
    kept_.emplace();
    emulator::setStandardInputFile(kept_->path().string());
    std::ofstream file(kept_->path(), std::ios::binary);
    std::uint64_t number = 1;
    const auto keep = [&](const std::string& text) {
        try {
            file << (encoding ? encoding->toPc(console::decoded(text)) : text);
        } catch (const std::invalid_argument& error) {
            throw std::runtime_error("standard input, line " + std::to_string(number) + ": " + error.what());
        }
        ++number;
    };
    std::string line;
    for (int byte = std::getc(stdin); byte != EOF && !console::interrupted(); byte = std::getc(stdin)) {
        line += static_cast<char>(byte);
        if (byte == '\n') keep(std::exchange(line, {}));
    }
    keep(line);
    file.flush();
    if (!file) throw std::runtime_error("standard input could not be kept in " + kept_->path().string());
}
