#include "host_command.h"

#include <iostream>

#include "json_members.h"
#include "own_host.h"
#include "questions.h"
#include "report.h"

namespace fs = std::filesystem;

namespace {

bool confirmed(const CommandLine& line, const fs::path& own) {
    std::cerr << "z7xfer: a new copy of the sample replaces " << own.string() << "; all that was sent to it is lost"
              << std::endl;
    return questions::goesOn(questions::YesOrNo, questions::ask(questions::YesOrNo, line.answer));
}

Tally reset(const CommandLine& line, const fs::path& own, const fs::path& sample) {
    if (fs::exists(own) && !confirmed(line, own))
        return {"cancelled: " + own.string() + " is as it was", ExitCancelled};
    own_host::remake(sample);
    return {"complete: " + own.string() + " is a new copy of the sample", ExitComplete};
}

std::string notThere(const fs::path& sample) {
    return "not there yet: the first send makes it from " + sample.string();
}

void print(const fs::path& own, const fs::path& sample) {
    std::cout << own.string() << std::endl;
    if (!fs::exists(own)) std::cerr << "z7xfer: " << notThere(sample) << std::endl;
}

Tally place(const fs::path& own, const fs::path& sample) {
    return {"complete: " + own.string() + (fs::exists(own) ? "" : ", " + notThere(sample)), ExitComplete};
}

std::string hostReport(const CommandLine& line, const Tally& tally, const fs::path& own, const fs::path& sample) {
    json::Object object = reportHead(line, tally);
    object.text(run_member::Host, own.string()).truth(run_member::IsThere, fs::exists(own));
    return object.text(run_member::Sample, sample.string()).whole();
}

}  // namespace

int hostCommand(const CommandLine& line, const fs::path& sample) {
    const fs::path own = own_host::place();
    const Tally tally = line.reset ? reset(line, own, sample) : place(own, sample);
    if (line.json)
        std::cout << hostReport(line, tally, own, sample) << std::endl;
    else if (line.reset)
        std::cerr << "z7xfer: " << tally.text << std::endl;
    else
        print(own, sample);
    return tally.exitStatus;
}
