#include "host_command.h"

#include <iostream>

#include "own_host.h"
#include "questions.h"

namespace fs = std::filesystem;

namespace {

bool confirmed(const CommandLine& line, const fs::path& own) {
    std::cerr << "z7xfer: a new copy of the sample replaces " << own.string() << "; all that was sent to it is lost"
              << std::endl;
    return questions::goesOn(questions::YesOrNo, questions::ask(questions::YesOrNo, line.answer));
}

}  // namespace

int hostCommand(const CommandLine& line, const fs::path& sample) {
    const fs::path own = own_host::place();
    const bool isThere = fs::exists(own);
    if (!line.reset) {
        std::cout << own.string() << std::endl;
        if (!isThere)
            std::cerr << "z7xfer: not there yet: the first send makes it from " << sample.string() << std::endl;
        return ExitComplete;
    }
    if (isThere && !confirmed(line, own)) {
        std::cerr << "z7xfer: cancelled: " << own.string() << " is as it was" << std::endl;
        return ExitCancelled;
    }
    own_host::remake(sample);
    std::cerr << "z7xfer: complete: " << own.string() << " is a new copy of the sample" << std::endl;
    return ExitComplete;
}
