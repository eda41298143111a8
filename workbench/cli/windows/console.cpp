#include "console.h"

#include <windows.h>

#include <conio.h>
#include <fcntl.h>
#include <io.h>

#include <cstdio>
#include <iostream>
#include <streambuf>
#include <string>

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

// Of whichever stream is a console: data or messages may go elsewhere.
std::optional<SMALL_RECT> visiblePart() {
    CONSOLE_SCREEN_BUFFER_INFO info;
    for (const Stream stream : {Stream::Error, Stream::Output}) {
        if (GetConsoleScreenBufferInfo(handleOf(stream), &info)) return info.srWindow;
    }
    return std::nullopt;
}

std::wstring wide(const std::string& text, UINT codePage) {
    const int length = static_cast<int>(text.size());
    std::wstring result(text.size(), 0);  // never more than the bytes are
    result.resize(static_cast<std::size_t>(
        MultiByteToWideChar(codePage, 0, text.data(), length, result.data(), static_cast<int>(result.size()))));
    return result;
}

std::string narrow(const std::wstring& text, UINT codePage) {
    const int length = static_cast<int>(text.size());
    std::string result(3 * text.size(), 0);  // as many as UTF-8 takes
    result.resize(static_cast<std::size_t>(WideCharToMultiByte(codePage, 0, text.data(), length, result.data(),
                                                               static_cast<int>(result.size()), nullptr, nullptr)));
    return result;
}

// Writes UTF-8 to a console, whatever code page that has. What is no whole character waits for the rest of it.
class ConsoleBuffer : public std::streambuf {
public:
    explicit ConsoleBuffer(HANDLE console) : console_(console) {}

protected:
    int_type overflow(int_type byte) override {
        if (!traits_type::eq_int_type(byte, traits_type::eof())) pending_ += traits_type::to_char_type(byte);
        return traits_type::not_eof(byte);
    }
    std::streamsize xsputn(const char* bytes, std::streamsize count) override {
        pending_.append(bytes, static_cast<std::size_t>(count));
        constexpr std::size_t Much = 8192;
        if (pending_.size() > Much) sync();
        return count;
    }
    int sync() override {
        const std::size_t whole = wholeLength();
        const std::wstring text = wide(pending_.substr(0, whole), CP_UTF8);
        pending_.erase(0, whole);
        DWORD written = 0;
        const auto length = static_cast<DWORD>(text.size());
        return length == 0 || WriteConsoleW(console_, text.data(), length, &written, nullptr) ? 0 : -1;
    }

private:
    // Without the beginning of a character at the end.
    std::size_t wholeLength() const {
        std::size_t start = pending_.size();
        for (int back = 0; start > 0 && back < 3; ++back) {
            const auto byte = static_cast<unsigned char>(pending_[--start]);
            if (byte < 0x80) break;
            const std::size_t length = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : byte >= 0xC0 ? 2 : 0;
            if (length > pending_.size() - start) return start;
            if (length > 0) break;
        }
        return pending_.size();
    }

    HANDLE console_;
    std::string pending_;
};

// The buffer stays until the process ends: the standard library flushes its streams last of all.
void writeUnicode(std::ostream& stream, Stream which) {
    if (!isTerminal(which)) return;
    stream.rdbuf(new ConsoleBuffer(handleOf(which)));
    // A console of Windows 10 and later obeys the sequences of a terminal when it is asked to.
    constexpr DWORD ObeysSequences = 0x0004;
    DWORD mode = 0;
    if (GetConsoleMode(handleOf(which), &mode)) SetConsoleMode(handleOf(which), mode | ObeysSequences);
}

}  // namespace

// A redirected stream takes the bytes that the same program writes elsewhere, line ends included.
void setUp() {
    for (std::FILE* stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
    writeUnicode(std::cout, Stream::Output);
    writeUnicode(std::cerr, Stream::Error);
}

std::string encoded(const std::string& utf8) { return narrow(wide(utf8, CP_UTF8), GetConsoleOutputCP()); }

std::string decoded(const std::string& text) { return narrow(wide(text, GetConsoleCP()), CP_UTF8); }

// Only a real console has a mode; the null device is a character device too.
bool isTerminal(Stream stream) {
    DWORD mode = 0;
    return GetConsoleMode(handleOf(stream), &mode) != FALSE;
}

int columns() {
    const std::optional<SMALL_RECT> window = visiblePart();
    return window ? window->Right - window->Left + 1 : 80;
}

int rows() {
    const std::optional<SMALL_RECT> window = visiblePart();
    return window ? window->Bottom - window->Top + 1 : 24;
}

void catchInterrupts() { SetConsoleCtrlHandler(&noteInterrupt, TRUE); }

bool interrupted() { return interruptSeen != 0; }

std::optional<std::string> readLine() {
    std::string line;
    if (interrupted() || !std::getline(std::cin, line) || interrupted()) return std::nullopt;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    return line;
}

std::optional<std::string> readKey() {
    constexpr int Extended[] = {0x00, 0xE0}, Left = 0x4B, Right = 0x4D, CtrlC = 0x03;
    const int key = _getch();
    if (key == Extended[0] || key == Extended[1]) {
        const int arrow = _getch();
        return arrow == Right ? RightKey : arrow == Left ? LeftKey : "";
    }
    // Read so, an interrupt is a key.
    if (key == CtrlC) InterlockedExchange(&interruptSeen, 1);
    if (interrupted() || key == EOF) return std::nullopt;
    return std::string(1, static_cast<char>(key));
}

}  // namespace console
