#include "support/run_program.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Texts = std::vector<std::string>;

Texts environmentOf(const Program& program) {
    Texts variables;
    for (char** variable = environ; *variable; ++variable) {
        const std::string text = *variable;
        if (!program.environment.contains(text.substr(0, text.find('=')))) variables.push_back(text);
    }
    for (const auto& [name, value] : program.environment)
        if (value) variables.push_back(name + "=" + *value);
    return variables;
}

// Addresses as the system takes them, with a null behind the last.
std::vector<char*> addressesOf(Texts& texts) {
    std::vector<char*> addresses;
    for (std::string& text : texts) addresses.push_back(text.data());
    addresses.push_back(nullptr);
    return addresses;
}

}  // namespace

int runProgram(const Program& program, const StreamFiles& streams) {
    Texts arguments = {program.file.string()}, environment = environmentOf(program);
    arguments.insert(arguments.end(), program.arguments.begin(), program.arguments.end());
    constexpr int Written = O_WRONLY | O_CREAT | O_TRUNC;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, streams.input.c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, streams.output.c_str(), Written, 0666);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, streams.errors.c_str(), Written, 0666);
    posix_spawn_file_actions_addchdir_np(&actions, program.folder.c_str());
    pid_t child = 0;
    const int error = posix_spawn(&child, program.file.c_str(), &actions, nullptr, addressesOf(arguments).data(),
                                  addressesOf(environment).data());
    posix_spawn_file_actions_destroy(&actions);
    int status = 0;
    if (error != 0 || waitpid(child, &status, 0) != child || !WIFEXITED(status)) return -1;
    return WEXITSTATUS(status);
}
