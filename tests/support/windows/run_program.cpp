#include "support/run_program.h"

#include <windows.h>

#include "environment/utf8_path.h"

namespace {

std::wstring wide(const std::string& text) { return utf8Path(text).wstring(); }

// As the C library of the program takes a command line apart: backslashes count only in front of a quote.
std::wstring quoted(const std::wstring& argument) {
    std::wstring result = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t c : argument) {
        if (c == L'"') result.append(backslashes + 1, L'\\');
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        result += c;
    }
    return result.append(backslashes, L'\\') + L'"';
}

std::wstring commandLineOf(const Program& program, const std::wstring& file) {
    std::wstring line = quoted(file);
    for (const std::string& argument : program.arguments) line += L' ' + quoted(wide(argument));
    return line;
}

// The variables one behind the other, each with a zero, and one more at the end.
std::wstring environmentOf(const Program& program) {
    std::wstring block;
    wchar_t* const own = GetEnvironmentStringsW();
    for (const wchar_t* variable = own; *variable; variable += std::wcslen(variable) + 1) {
        const std::wstring text = variable;
        const std::wstring name = text.substr(0, text.find(L'=', 1));
        if (!program.environment.contains(std::filesystem::path(name).string())) block += text + L'\0';
    }
    FreeEnvironmentStringsW(own);
    for (const auto& [name, value] : program.environment)
        if (value) block += wide(name + "=" + *value) + L'\0';
    return block + L'\0';
}

// A file that the program inherits.
class InheritedFile {
public:
    InheritedFile(const std::filesystem::path& path, DWORD access, DWORD disposition) {
        SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
        handle_ = CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, disposition,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    }
    ~InheritedFile() { CloseHandle(handle_); }
    InheritedFile(const InheritedFile&) = delete;
    InheritedFile& operator=(const InheritedFile&) = delete;
    HANDLE handle() const { return handle_; }

private:
    HANDLE handle_ = INVALID_HANDLE_VALUE;
};

}  // namespace

int runProgram(const Program& program, const StreamFiles& streams) {
    const InheritedFile input(streams.input, GENERIC_READ, OPEN_EXISTING);
    const InheritedFile output(streams.output, GENERIC_WRITE, CREATE_ALWAYS);
    const InheritedFile errors(streams.errors, GENERIC_WRITE, CREATE_ALWAYS);
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = input.handle();
    start.hStdOutput = output.handle();
    start.hStdError = errors.handle();
    const std::wstring file = std::filesystem::path(program.file).make_preferred().wstring() + L".exe";
    std::wstring line = commandLineOf(program, file), environment = environmentOf(program);
    PROCESS_INFORMATION child = {};
    if (!CreateProcessW(file.c_str(), line.data(), nullptr, nullptr, TRUE, CREATE_UNICODE_ENVIRONMENT,
                        environment.data(), program.folder.c_str(), &start, &child)) {
        return -1;
    }
    DWORD status = 0;
    WaitForSingleObject(child.hProcess, INFINITE);
    GetExitCodeProcess(child.hProcess, &status);
    CloseHandle(child.hThread);
    CloseHandle(child.hProcess);
    return static_cast<int>(status);
}
