#include "refused_record.h"

#include "checking/send_check.h"

void printRefusedRecord(std::ostream& out, const TransferLibrary& library, const PcText& pcText,
                        const CommandLine& line, const std::filesystem::path& programFolder, ZhstSession session) {
    checking::SendCheck check(library, pcText, line, programFolder, session);
    check.run(checking::Extent::ToRefusedRecord);
    check.findings().print(out);
    out.flush();
}
