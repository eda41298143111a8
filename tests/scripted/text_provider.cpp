#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <fstream>
#include <sstream>
#include <string>

#include "Z7XFRPCS/provider.h"

// E32TFW.DLL as somebody else might have written it: it answers from the file that $Z7X_SCRIPT names. A line is the
// answer to one fetch, in the order of the lines of its kind:
//
//     # a comment; empty lines count for nothing
//     GET_FIELD BYTES ...
//     GET_DATA BYTES ...
//
// BYTES are hexadecimal digits; 40*12 is one byte, twelve times. Behind the last line of its kind a fetch is answered
// with "no more data", everything else always with success. A reset starts the script anew.
namespace {

struct State {
    std::deque<std::string> fields, records;
    bool loaded = false;
    bool usable = false;
    std::string data;  // what the latest answer points to
};

State& state() {
    static State instance;
    return instance;
}

std::string bytesOf(const std::string& word) {
    const auto byteAt = [&](std::size_t at) { return static_cast<char>(std::stoi(word.substr(at, 2), nullptr, 16)); };
    const std::size_t star = word.find('*');
    if (star != std::string::npos) return std::string(std::stoul(word.substr(star + 1)), byteAt(0));
    std::string bytes;
    for (std::size_t at = 0; at < word.size(); at += 2) bytes += byteAt(at);
    return bytes;
}

bool takeLine(const std::string& line) {
    std::istringstream words(line);
    std::string kind, bytes;
    if (!(words >> kind) || kind[0] == '#') return true;
    for (std::string word; words >> word;) bytes += bytesOf(word);
    (kind == "GET_FIELD" ? state().fields : state().records).push_back(bytes);
    return kind == "GET_FIELD" || kind == "GET_DATA";
}

void load() {
    state() = State{};
    state().loaded = true;
    const char* const name = std::getenv("Z7X_SCRIPT");
    std::ifstream file(name ? name : "");
    state().usable = file.is_open();
    for (std::string line; std::getline(file, line);) state().usable &= takeLine(line);
    if (!state().usable) std::fprintf(stderr, "script provider: Z7X_SCRIPT names no script: %s\n", name ? name : "");
}

// False behind the last answer.
bool next(std::deque<std::string>& answers) {
    if (answers.empty()) return false;
    state().data = std::move(answers.front());
    answers.pop_front();
    return true;
}

}  // namespace

extern "C" {
SCRIPTED_EXPORT std::uint32_t ZHST_CALL EHNTF_STF(std::uint32_t, TfYield yield, std::uint32_t* conversation,
                                                  std::uint32_t function, void* buffer, std::uint32_t bufferSize,
                                                  std::uint32_t, const char*, std::uint32_t, void** data,
                                                  std::uint32_t* dataLength, std::uint32_t* detail) {
    if (!state().loaded || function == TF_RESET) load();
    if (!state().usable) return TF_FAILED_SILENTLY;
    if (yield) yield();
    *data = nullptr;
    *dataLength = *detail = 0;
    if (function == TF_SEND_REQUEST) *conversation = 1;
    if (function == TF_END_DATA) *conversation = 0;
    const bool record = function == TF_GET_DATA;
    if (!record && function != TF_GET_FIELD) return TF_SUCCESS;
    if (!next(record ? state().records : state().fields)) return TF_NO_MORE_DATA;
    *data = state().data.data();
    *dataLength = static_cast<std::uint32_t>(state().data.size());
    if (record) *data = std::memcpy(buffer, *data, std::min(*dataLength, bufferSize));
    return TF_SUCCESS;
}

SCRIPTED_EXPORT void ZHST_CALL E32TF_Cleanup() { state() = State{}; }
}
