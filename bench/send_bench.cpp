#include "bench/measured_transfer.h"
#include "bench/pc_files.h"

// Whole transfers to the host. The file that is sent was received right before, with its description.
namespace bench {
namespace {

namespace setting = zhst::setting;

// Empty, or why there is no file to send.
std::string makeSentFile(std::int32_t fileType, std::uint32_t count) {
    TransferSession session(fileType, sentFile());
    session.set(setting::WriteDescriptionFile, 1);
    session.set(setting::ReceiveDescriptionFile, descriptionFile());
    return session.transfer(Direction::Receive, count);
}

void send(benchmark::State& state, std::int32_t fileType, std::uint64_t& peak) {
    const std::string failure = makeSentFile(fileType, static_cast<std::uint32_t>(state.range(0)));
    TransferSession session(fileType, sentFile());
    session.set(setting::UseDescriptionFile, 1);
    session.set(setting::SendDescriptionFile, descriptionFile());
    measureTransfers(state, session, Direction::Send, peak);
    if (!failure.empty()) reportFailure(state, "no file to send: " + failure);
}

const bool registered = [] {
    for (const settings::PcFileTypeRow& row : settings::pcFileTypes) {
        auto measure = [type = row.type, peak = std::uint64_t{0}](benchmark::State& state) mutable {
            send(state, type, peak);
        };
        asManyRecords(benchmark::RegisterBenchmark((std::string("send/") + row.name).c_str(), measure));
    }
    return true;
}();

}  // namespace
}  // namespace bench
