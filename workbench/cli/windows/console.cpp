#include "console.h"

#include <windows.h>

#include <iostream>

namespace console {
namespace {

volatile LONG interruptSeen = 0;

// Runs on a thread of the system's own. The first one is only noted; the second one is left to the default, the end.
BOOL WINAPI noteInterrupt(DWORD event) {
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT) return FALSE;
    return InterlockedExchange(&interruptSeen, 1) == 0 ? TRUE : FALSE;
}

HANDLE handleOf(Stream stream) {
    switch (stream) {
        case Stream::Input:
            return GetStdHandle(STD_INPUT_HANDLE);
        case Stream::Output:
            return GetStdHandle(STD_OUTPUT_HANDLE);
        case Stream::Error:
            break;
    }
    return GetStdHandle(STD_ERROR_HANDLE);
}

}  // namespace

// Only a real console has a mode; the null device is a character device too.
bool isTerminal(Stream stream) {
    DWORD mode = 0;
    return GetConsoleMode(handleOf(stream), &mode) != FALSE;
}

int columns() {
    CONSOLE_SCREEN_BUFFER_INFO info;
    if (!GetConsoleScreenBufferInfo(handleOf(Stream::Error), &info)) return 80;
    return info.srWindow.Right - info.srWindow.Left + 1;
}

void catchInterrupts() { SetConsoleCtrlHandler(&noteInterrupt, TRUE); }

bool interrupted() { return interruptSeen != 0; }

std::optional<std::string> readLine() {
    std::string line;
    if (interrupted() || !std::getline(std::cin, line) || interrupted()) return std::nullopt;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    return line;
}

}  // namespace console
