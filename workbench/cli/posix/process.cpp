#include "process.h"

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

#include <system_error>

#include "environment/environment.h"
#include "environment/utf8_path.h"

namespace process {
namespace {

bool isSet(const char* name) { return !environment::variable(name).empty(); }

}  // namespace

std::filesystem::path executableFolder() {
    std::error_code error;
    const std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::filesystem::current_path() : self.parent_path();
}

const char* const DataFolderVariables = "XDG_DATA_HOME nor HOME";

std::filesystem::path dataFolder() {
    const std::filesystem::path data = utf8Path(environment::variable("XDG_DATA_HOME")),
                                home = utf8Path(environment::variable("HOME"));
    if (data.is_absolute()) return data;  // a relative one is to be ignored
    return home.empty() ? home : home / ".local" / "share";
}

bool hasDesktop() { return isSet("DISPLAY") || isSet("WAYLAND_DISPLAY"); }

std::int32_t openOnDesktop(const std::filesystem::path& path) {
    // What the desktop prints must not end up among the data on standard output.
    posix_spawn_file_actions_t quiet;
    posix_spawn_file_actions_init(&quiet);
    posix_spawn_file_actions_addopen(&quiet, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&quiet, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    std::string program = "xdg-open";
    std::string argument = std::filesystem::absolute(path).string();
    char* arguments[] = {program.data(), argument.data(), nullptr};
    pid_t child = 0;
    const int error = posix_spawnp(&child, program.c_str(), &quiet, nullptr, arguments, environ);
    posix_spawn_file_actions_destroy(&quiet);
    return error == 0 ? 33 : 2;
}

}  // namespace process
