#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// Writes the journal. A service makes one Call at the place where its line belongs: at its beginning when other
// services can be called from inside it, behind its work when the line shows what the call filled. While the journal is
// off that costs one test.
namespace emulator::journalled {

struct Setting {
    std::uint32_t id;
};
struct Message {
    std::uint32_t id;
};
struct Text {
    std::uint32_t table, index;
};
// Four characters of a store part; 0 is no part.
struct Code {
    std::uint32_t code;
};
struct Bytes {
    const void* bytes;
    std::size_t length;
};
struct Address {
    const void* address;
};

extern bool active;

void append(std::string& line, std::integral auto number) { line += std::to_string(number); }
void append(std::string& line, const char* text);
void append(std::string& line, std::string_view text);
void append(std::string& line, Setting setting);
void append(std::string& line, Message message);
void append(std::string& line, Text text);
void append(std::string& line, Code code);
void append(std::string& line, Bytes bytes);
void append(std::string& line, Address address);

class Call {
public:
    template <class... Arguments>
    explicit Call(const char* name, Arguments... arguments) {
        if (active) [[unlikely]]
            line_ = begin(name, arguments...);
    }

    template <class Result>
    Result result(Result value) const {
        if (line_ != 0) [[unlikely]]
            finish(line_, value);
        return value;
    }

private:
    // Kept out of the services, and everything by value: what nobody writes down shall not move a service's own
    // variables to memory.
    template <class... Arguments>
    [[gnu::cold, gnu::noinline]] static std::uint64_t begin(const char* name, Arguments... arguments) {
        std::string line = std::string(name) + '(';
        [[maybe_unused]] const char* separator = "";
        ((line += separator, append(line, arguments), separator = ", "), ...);
        return place(line + ')');
    }
    template <class Result>
    [[gnu::cold, gnu::noinline]] static void finish(std::uint64_t line, Result value) {
        std::string text;
        append(text, value);
        complete(line, text);
    }
    static std::uint64_t place(std::string line);
    static void complete(std::uint64_t line, const std::string& result);

    std::uint64_t line_ = 0;  // counted from 1 over all journals; 0 is none
};

// Off and empty.
void reset();

}  // namespace emulator::journalled
