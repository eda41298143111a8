#include "compare/random_settings.h"

namespace compare {
namespace {

// What a setting has mostly, and what nobody should set.
template <class Value>
struct Choice {
    std::uint32_t id;
    std::vector<Value> usual, odd;
};

const Choice<std::int32_t> numbers[] = {
    {setting::ConnectionType, {0}, {3}},
    {setting::TransportType, {2, 4, 5, 7, 8, 9, 13, 14, 15, 30}, {0, 3, 99}},
    {setting::RouterKind, {1, 1, 1, 2, 30}, {0}},
    {setting::ReceiveOutput, {0, 1, 1, 1, 1, 3}, {2, -1}},
    {setting::ReceiveFileType, {0, 1, 2, 3, 4, 5, 6}, {7, -1}},
    {setting::SendFileType, {0, 1, 2, 3, 4, 5, 6}, {7, -1}},
    {setting::CreateMode, {0, 1, 2}, {3, -1}},
    {setting::ExistingFileAction, {1, 1, 1, 2, 0}, {3}},
    {setting::UseDescriptionFile, {0, 1, 1}, {2}},
    {setting::WriteDescriptionFile, {0, 1}, {2}},
    {setting::StartRecord, {1, 1, 1, 0, 2, 5}, {-1}},
    {setting::RecordProgress, {0, 1}, {2}},
    {setting::DisplayRowsPerPage, {20, 3, 5, 1}, {0, -1}},
    {setting::TimeFormat, {0, 1, 2, 3, 4, 5, 6}, {7, -1}},
    {setting::DateFormat, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}, {10, -1}},
    {setting::TimeSeparator, {0, 1, 2, 4, 5, 6}, {3, 7}},
    {setting::DateSeparator, {0, 2, 3, 4, 5, 6, 7}, {1, 300}},
    {setting::DecimalSeparatorMode, {6, 6, 6, 2, 8}, {0, -1}},
    {setting::IgnoreDecimalErrors, {0, 1}, {2}},
    {setting::NoSignPosition, {0, 0, 1}, {2}},
    {setting::NumericWidthMode, {0, 0, 1}, {2}},
    {setting::FdfNumericLengthMode, {0, 1}, {2}},
    {setting::TrimRecordBlanks, {0, 1}, {2}},
    {setting::ConvertToOem, {0, 0, 1}, {2}},
    {setting::EofByteEndsFile, {0, 1}, {2}},
    {setting::PublicAuthority, {0, 1, 2, 3}, {4, -1}},
    {setting::RecordLength, {80, 92}, {0, -5, 40000}},
    {setting::TransferOwnerWindow, {0, 0, 77}, {-1}},
    {setting::LaunchByProgramName, {0, 1}, {2}},
};

const std::string Long(400, 'L');
const std::vector<std::string> oddDescriptions = {"", "away\\d.fdf", Long};
const Choice<std::string> texts[] = {
    {setting::HostSystemName, {"as400a", "LONGSYSTEM.DOMAIN", ".local"}, {"", Long}},
    {setting::ConnectionParam248, {"complete"}, {""}},
    {setting::ConnectionParam250, {"complete"}, {""}},
    {setting::ConnectionParam512, {"complete"}, {""}},
    {setting::HostFileName,
     {"QGPL/CUST", "QGPL/CUST(MBR1)", "lib/orders", "LIB/A,LIB/B(M), C"},
     {"", Long, std::string(2000, 'F')}},
    {setting::PcFileName,
     {"pcfile.dat", "PcFile.Dat", "sub\\data.csv", "no extension"},
     {"", "xfertrce.log", "away\\x"}},
    {setting::SendDescriptionFile, {"*.fdf", "*.fdfile", "desc.fdf", "sub\\desc.fdf"}, oddDescriptions},
    {setting::ReceiveDescriptionFile, {"*.FDF", "desc.fdf", "sub\\desc.fdf"}, oddDescriptions},
    {setting::SortSequence, {"", "*JOB", "*HEX", "*LANGIDSHR", "*LANGIDUNQ", "QUSRSYS/SEQ1"}, {"*job", Long}},
    {setting::ReferenceFile, {"", "QGPL/REF"}, {Long}},
    {setting::FileText, {"", "Customers"}, {"it's", Long}},
    {setting::MemberText, {"", "Test"}, {"it's", Long}},
    {setting::WorkingDirectory, {"", "sub"}, {"away"}},
};

}  // namespace

void setRandomSettings(Random& random, Session session, const Pc& pc) {
    for (const auto& [id, usual, odd] : numbers) emulator::set(session, id, random.pick(random.odd(25) ? odd : usual));
    for (const auto& [id, usual, odd] : texts) emulator::set(session, id, random.pick(random.odd(25) ? odd : usual));
    if (random.oneIn(12)) emulator::set(session, setting::PcFileName, pc.pair + ".Dat");
    if (random.oneIn(12)) emulator::set(session, setting::HostSystemName, "abcdefg" + pc.pair);
}

emulator::Clauses randomClauses(Random& random, const Pc& pc) {
    emulator::Clauses clauses;
    clauses.select = random.pick<std::string>({"", "", "A,B", " t1.A, T2.B ", "T2.*,t3.X,t10.Y"});
    for (std::string* clause : {&clauses.where, &clauses.join, &clauses.groupBy, &clauses.having, &clauses.orderBy})
        *clause = random.pick<std::string>({"", "", "A = 'x'", "  t1.A > T2.B and st1.C  ", "t01.A = t.B"});
    if (random.odd(10)) clauses.where += pc.pair + std::string(random.pick({100u, 3000u, 4060u, 5000u}), 'w') + pc.pair;
    if (random.odd(20)) clauses.join.assign(random.pick({1u, 3900u}), ' ');
    if (random.odd(30)) clauses.select.assign(random.pick({3900u, 4090u, 5000u}), 's');
    clauses.absent = random.odd(40);
    return clauses;
}

emulator::Faults randomFaults(Random& random, bool failingAllocations) {
    emulator::Faults faults;
    const std::uint32_t allocation = random.odd(3) ? random.between(1, random.pick({12u, 60u, 300u})) : 0;
    faults.failAllocation = failingAllocations ? allocation : 0;
    faults.failAllAfter = random.oneIn(3);
    if (random.odd(6)) faults.failWriteAfterBytes = random.below(random.pick({30u, 300u, 3000u}));
    for (bool* const fault :
         {&faults.refuseStore, &faults.refuseStoreLock, &faults.refuseProgressDialog, &faults.refuseTextDisplay,
          &faults.refuseTextDisplayBegin, &faults.refuseFileObject, &faults.failConversion, &faults.refuseGlobalMemory})
        *fault = random.odd(60);
    faults.giveNoMore = true;
    return faults;
}

}  // namespace compare
