#include "console.h"

#include <iconv.h>
#include <langinfo.h>
#include <locale.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
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

// Of whichever stream is one: data or messages may go elsewhere.
winsize terminalSize() {
    winsize size{};
    for (const int stream : {STDERR_FILENO, STDOUT_FILENO, STDIN_FILENO}) {
        if (ioctl(stream, TIOCGWINSZ, &size) == 0) return size;
    }
    return {};
}

// A terminal that gives keys as they are pressed, until the end of the life.
class KeyByKey {
public:
    KeyByKey() : was_(), changed_(tcgetattr(STDIN_FILENO, &was_) == 0) {
        termios raw = was_;
        raw.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO);
        raw.c_cc[VMIN] = 1;
        raw.c_cc[VTIME] = 0;
        if (changed_) tcsetattr(STDIN_FILENO, TCSANOW, &raw);
    }
    KeyByKey(const KeyByKey&) = delete;
    KeyByKey& operator=(const KeyByKey&) = delete;
    ~KeyByKey() {
        if (changed_) tcsetattr(STDIN_FILENO, TCSANOW, &was_);
    }

private:
    termios was_;
    bool changed_;
};

// Nothing at the end of the input and when interrupted.
std::optional<char> readByte() {
    for (;;) {
        if (interrupted()) return std::nullopt;
        char byte = 0;
        const ssize_t count = read(STDIN_FILENO, &byte, 1);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return std::nullopt;
        return byte;
    }
}

// Whether more of a key has come already: an arrow sends three bytes at once.
bool isByteWaiting() {
    pollfd input{STDIN_FILENO, POLLIN, 0};
    return poll(&input, 1, 50) == 1 && (input.revents & POLLIN) != 0;
}

// The encoding of the user's locale. One that has ASCII only says nothing of the terminal, which then has UTF-8.
std::string userEncoding() {
    const locale_t locale = newlocale(LC_CTYPE_MASK, "", nullptr);
    if (locale == nullptr) return "UTF-8";
    const std::string name = nl_langinfo_l(CODESET, locale);
    freelocale(locale);
    return name == "ANSI_X3.4-1968" ? "UTF-8" : name;
}

std::string converted(const std::string& text, const std::string& from, const std::string& to) {
    if (from == to) return text;
    const iconv_t converter = iconv_open(to.c_str(), from.c_str());
    if (converter == reinterpret_cast<iconv_t>(-1)) return text;
    std::string source = text, result(4 * text.size() + 16, '\0');  // no encoding takes more, with shifts
    char *in = source.data(), *out = result.data();
    std::size_t inLeft = source.size(), outLeft = result.size();
    while (inLeft > 0 && iconv(converter, &in, &inLeft, &out, &outLeft) == static_cast<std::size_t>(-1) && inLeft > 0) {
        // A character that is not to be had: one mark for all its bytes.
        *out++ = '?';
        --outLeft;
        do {
            ++in;
            --inLeft;
        } while (inLeft > 0 && from == "UTF-8" && (static_cast<unsigned char>(*in) & 0xC0) == 0x80);
    }
    iconv_close(converter);
    result.resize(result.size() - outLeft);
    return result;
}

}  // namespace

void setUp() {}

std::string encoded(const std::string& utf8) { return converted(utf8, "UTF-8", userEncoding()); }

std::string decoded(const std::string& text) { return converted(text, userEncoding(), "UTF-8"); }

bool isTerminal(Stream stream) { return isatty(descriptor(stream)) == 1; }

int columns() {
    const winsize size = terminalSize();
    return size.ws_col == 0 ? 80 : size.ws_col;
}

int rows() {
    const winsize size = terminalSize();
    return size.ws_row == 0 ? 24 : size.ws_row;
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
    while (const std::optional<char> byte = readByte()) {
        if (*byte == '\n') return line;
        line += *byte;
    }
    return std::nullopt;
}

std::optional<std::string> readKey() {
    const KeyByKey terminal;
    const std::optional<char> first = readByte();
    if (!first) return std::nullopt;
    std::string key(1, *first);
    while (key.front() == '\x1b' && key.size() < 3 && isByteWaiting()) {
        if (const std::optional<char> next = readByte()) key += *next;
    }
    return key;
}

}  // namespace console
