#include <benchmark/benchmark.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "bench/host_file.h"
#include "emulator/emulator.h"
#include "provider/transfer_function_session.h"
#include "record/to_pc/number_text.h"
#include "record/to_pc/record_to_pc.h"
#include "settings/transfer_settings.h"

// The conversions of a receive, without provider, monitor store and file.
namespace bench {
namespace {

namespace setting = zhst::setting;

std::uint32_t ZHST_CALL ignoreSetting(ZhstSession, std::uint32_t, std::int32_t, std::int32_t) { return 1; }
void ZHST_CALL doNotYield() {}

ZhstSession sessionFor(std::int32_t fileType) {
    emulator::reset();
    emulator::setUpPc({});
    const ZhstSession session = emulator::newSession();
    emulator::set(session, setting::ReceiveFileType, fileType);
    emulator::set(session, setting::ReceiveOutput, 1);
    return session;
}

// What the receive driver makes before the first record.
struct Conversion {
    explicit Conversion(std::int32_t fileType)
        : session(sessionFor(fileType)),
          functions(session, ignoreSetting, doNotYield),
          snapshot(session),
          layout(record::FileRules(snapshot, fileType)),
          records(layout, functions.codePage(), snapshot.settings, 0) {
        for (const Field& field : fields()) layout.append(field.description);
    }

    ZhstSession session;
    provider::TransferFunctionSession functions;
    settings::TransferSettings snapshot;
    record::HostLayout layout;
    record::to_pc::RecordToPc records;
};

std::string_view nextRecord(std::uint32_t& number) {
    number = number + 1 == DistinctRecords ? 0 : number + 1;
    return {records().data() + std::size_t{RecordLength} * number, RecordLength};
}

void numberText(benchmark::State& state, std::int32_t fileType, const Field& field) {
    Conversion conversion(fileType);
    const record::PlannedField planned(field.description, conversion.layout.rules());
    char text[2 * RecordLength + 600];
    std::uint32_t number = 0;
    for ([[maybe_unused]] const auto iteration : state)
        benchmark::DoNotOptimize(
            record::to_pc::formatNumericField(planned.plan, nextRecord(number).data() + field.offset, text));
    state.SetItemsProcessed(state.iterations());
}

void pcText(benchmark::State& state, const Field& field) {
    Conversion conversion(settings::CommaSeparated);
    char text[RecordLength];
    std::uint32_t number = 0;
    for ([[maybe_unused]] const auto iteration : state)
        benchmark::DoNotOptimize(conversion.functions.codePage().hostToPcText(
            nextRecord(number).data() + field.offset, text, field.length, sizeof(text), nullptr));
    state.SetItemsProcessed(state.iterations());
}

void pcRecord(benchmark::State& state, std::int32_t fileType) {
    Conversion conversion(fileType);
    std::uint32_t number = 0;
    std::uint64_t bytes = 0;
    for ([[maybe_unused]] const auto iteration : state) {
        const std::string_view hostRecord = nextRecord(number);
        char buffer[TF_BUFFER_SIZE];
        std::copy(hostRecord.begin(), hostRecord.end(), buffer);
        record::to_pc::PcRecord record;
        if (!conversion.records.convert(buffer, RecordLength, sizeof(buffer), record).isConverted())
            return state.SkipWithError("a record could not be converted");
        bytes += record.bytes.size();
    }
    state.SetItemsProcessed(state.iterations());
    state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
}

void registerNumber(const Field& field, const settings::PcFileTypeRow& row) {
    const std::string name = std::string("number/") + field.kind + "/" + row.name;
    benchmark::RegisterBenchmark(name.c_str(), [&](benchmark::State& state) { numberText(state, row.type, field); });
}

const bool registered = [] {
    for (const Field& field : fields()) {
        if (std::string_view(field.kind).substr(0, 9) == "character") {
            benchmark::RegisterBenchmark((std::string("text/") + field.kind).c_str(),
                                         [&](benchmark::State& state) { pcText(state, field); });
            continue;
        }
        // The fixed form and the shortest.
        registerNumber(field, settings::pcFileTypes[settings::AsciiText]);
        registerNumber(field, settings::pcFileTypes[settings::CommaSeparated]);
    }
    for (const settings::PcFileTypeRow& row : settings::pcFileTypes) {
        if (row.type == settings::NoConversion) continue;
        benchmark::RegisterBenchmark((std::string("record/") + row.name).c_str(),
                                     [&row](benchmark::State& state) { pcRecord(state, row.type); });
    }
    return true;
}();

}  // namespace
}  // namespace bench
