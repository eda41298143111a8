#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <vector>

#include "bench/pc_files.h"
#include "bench/transfer_session.h"
#include "settings/pc_file_types.h"

// How many records a second go through whole transfers, from the export to the closed PC file, by the processor time of
// this process. Each kind of transfer is run with a tenth of the records, too: the time must be in proportion, and the
// memory the same.
namespace bench {
namespace {

namespace setting = zhst::setting;

struct Measured {
    double seconds;  // the median of the rounds
    std::uint64_t peakBytes;
    std::string failure;
};

double secondsNow() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

// `session` has made one transfer already, which bound the provider.
Measured measure(TransferSession& session, Direction direction, std::uint32_t records, int rounds) {
    std::vector<double> seconds;
    std::string failure;
    for (int round = 0; round < rounds && failure.empty(); ++round) {
        const double start = secondsNow();
        failure = session.transfer(direction, records);
        seconds.push_back(secondsNow() - start);
    }
    std::sort(seconds.begin(), seconds.end());
    return {seconds[seconds.size() / 2], session.peakBytes(), failure};
}

// A file to send, and its description, as a receive makes them.
std::string makeSentFile(std::int32_t fileType, std::uint32_t records) {
    TransferSession session(fileType, sentFile());
    session.set(setting::WriteDescriptionFile, 1);
    session.set(setting::ReceiveDescriptionFile, descriptionFile());
    return session.transfer(Direction::Receive, records);
}

Measured receive(std::int32_t fileType, bool counted, std::uint32_t records, int rounds) {
    TransferSession session(fileType, receivedFile());
    session.set(setting::RecordProgress, counted);
    session.transfer(Direction::Receive, 1);
    return measure(session, Direction::Receive, records, rounds);
}

Measured send(std::int32_t fileType, std::uint32_t records, int rounds) {
    const std::string failure = makeSentFile(fileType, records);
    if (!failure.empty()) return {0, 0, "no file to send: " + failure};
    TransferSession session(fileType, sentFile());
    session.set(setting::UseDescriptionFile, 1);
    session.set(setting::SendDescriptionFile, descriptionFile());
    return measure(session, Direction::Send, records, rounds + 1);  // the first round binds the provider
}

bool report(const char* name, std::uint32_t records, const Measured& few, const Measured& many) {
    std::string failure = few.failure + many.failure;
    if (failure.empty() && few.peakBytes != many.peakBytes) failure = "the memory grew with the records";
    if (failure.empty())
        std::printf("%-16s %10.0f records/s %8.2f times as long for 10 times as many %8llu bytes\n", name,
                    records / many.seconds, many.seconds / few.seconds,
                    static_cast<unsigned long long>(many.peakBytes));
    else
        std::printf("%-16s FAILED: %s\n", name, failure.c_str());
    std::fflush(stdout);
    return failure.empty();
}

bool measureAll(std::uint32_t records, int rounds) {
    bool allPassed = true;
    const auto both = [&](const std::string& name, auto run) {
        const Measured few = run(records / 10);
        allPassed &= report(name.c_str(), records, few, run(records));
    };
    for (const settings::PcFileTypeRow& row : settings::pcFileTypes) {
        const std::string name = row.name;
        both("receive " + name, [&](std::uint32_t count) { return receive(row.type, false, count, rounds); });
        both("send " + name, [&](std::uint32_t count) { return send(row.type, count, rounds); });
    }
    // With the records counted first, progress moves in steps instead of with every record.
    both("receive counted",
         [&](std::uint32_t count) { return receive(settings::CommaSeparated, true, count, rounds); });
    return allPassed;
}

}  // namespace
}  // namespace bench

int main(int argumentCount, char** arguments) {
    const auto argument = [&](int at, long usual) {
        return argumentCount > at ? std::strtol(arguments[at], nullptr, 10) : usual;
    };
    const long records = argument(1, 200'000), rounds = argument(2, 5);
    if (argumentCount > 3 || records < 10 || rounds < 1) {
        std::fputs("usage: z7xbench_transfers [RECORDS [ROUNDS]]\n", stderr);
        return 2;
    }
    return bench::measureAll(static_cast<std::uint32_t>(records), static_cast<int>(rounds)) ? 0 : 1;
}
