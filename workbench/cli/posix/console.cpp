#include "console.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

namespace console {
namespace {

volatile std::sig_atomic_t interruptSeen = 0;

extern "C" void noteInterrupt(int) { interruptSeen = 1; }

int descriptor(Stream stream) {
    switch (stream) {
        case Stream::Input:
            return STDIN_FILENO;
        case Stream::Output:
            return STDOUT_FILENO;
        case Stream::Error:
            break;
    }
    return STDERR_FILENO;
}

}  // namespace

bool isTerminal(Stream stream) { return isatty(descriptor(stream)) == 1; }

int columns() {
    winsize size{};
    if (ioctl(STDERR_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) return 80;
    return size.ws_col;
}

void catchInterrupts() {
    // Without SA_RESTART, so that a waiting readLine returns; with SA_RESETHAND, so that the second one is obeyed at
    // once even when the transfer never looks at the flag.
    struct sigaction action {};
    action.sa_handler = noteInterrupt;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    for (const int number : {SIGINT, SIGTERM}) sigaction(number, &action, nullptr);
}

bool interrupted() { return interruptSeen != 0; }

std::optional<std::string> readLine() {
    std::string line;
    for (;;) {
        if (interrupted()) return std::nullopt;
        char byte = 0;
        const ssize_t count = read(STDIN_FILENO, &byte, 1);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return std::nullopt;
        if (byte == '\n') return line;
        line += byte;
    }
}

}  // namespace console
