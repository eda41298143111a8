#include "bench/measured_transfer.h"
#include "bench/pc_files.h"

// Whole transfers from the host, from the export to the closed PC file.
namespace bench {
namespace {

void receive(benchmark::State& state, std::int32_t fileType, std::int32_t countFirst, std::uint64_t& peak) {
    TransferSession session(fileType, receivedFile());
    session.set(zhst::setting::RecordProgress, countFirst);
    measureTransfers(state, session, Direction::Receive, peak);
}

void registerReceive(const std::string& name, std::int32_t fileType, std::int32_t countFirst) {
    auto measure = [fileType, countFirst, peak = std::uint64_t{0}](benchmark::State& state) mutable {
        receive(state, fileType, countFirst, peak);
    };
    asManyRecords(benchmark::RegisterBenchmark(("receive/" + name).c_str(), measure));
}

const bool registered = [] {
    for (const settings::PcFileTypeRow& row : settings::pcFileTypes) registerReceive(row.name, row.type, 0);
    // With the records counted first, progress moves in steps instead of with every record.
    registerReceive("csv_counted", settings::CommaSeparated, 1);
    return true;
}();

}  // namespace
}  // namespace bench
