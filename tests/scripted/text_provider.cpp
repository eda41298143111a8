#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>

#include "provider/provider_call.h"
#include "scripted/text_script.h"

// E32TFW.DLL as somebody else might have written it: it answers from the file that $Z7X_SCRIPT names.
namespace {

struct State {
    textscript::Script script;
    bool loaded = false;
    bool usable = false;
    std::string data;  // what the latest answer points to
};

State& state() {
    static State instance;
    return instance;
}

bool load() {
    state() = State{};
    state().loaded = true;
    const char* const name = std::getenv("Z7X_SCRIPT");
    std::ifstream file(name ? name : "", std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    int line = 0;
    if (!file)
        std::fprintf(stderr, "script provider: cannot read %s\n", name ? name : "a script: Z7X_SCRIPT is not set");
    else if (!textscript::parse(text.str(), &state().script, &line))
        std::fprintf(stderr, "script provider: %s, line %d is no answer\n", name, line);
    else
        state().usable = true;
    return state().usable;
}

textscript::Answer next(std::uint32_t function) {
    auto& answers = state().script[function];
    if (answers.empty()) {
        const bool fetches = function == provider::TF_GET_FIELD || function == provider::TF_GET_DATA;
        return {fetches ? std::uint32_t{provider::NoMoreData} : std::uint32_t{provider::Success}, 0, {}};
    }
    textscript::Answer answer = std::move(answers.front());
    answers.pop_front();
    return answer;
}

}  // namespace

extern "C" {
SCRIPTED_EXPORT std::uint32_t ZHST_CALL EHNTF_STF(std::uint32_t, provider::YieldCallback yield,
                                                  std::uint32_t* conversation, std::uint32_t function, void* buffer,
                                                  std::uint32_t bufferSize, std::uint32_t, const char*, std::uint32_t,
                                                  void** data, std::uint32_t* dataLength, std::uint32_t* detail) {
    if (!state().loaded || function == provider::TF_RESET) load();
    if (!state().usable) return provider::FailedSilently;
    if (yield) yield();
    const textscript::Answer answer = next(function);
    state().data = answer.bytes;
    *data = state().data.empty() ? nullptr : state().data.data();
    if (function == provider::TF_GET_DATA && *data) {
        std::memcpy(buffer, answer.bytes.data(), std::min<std::size_t>(answer.bytes.size(), bufferSize));
        *data = buffer;
    }
    *dataLength = static_cast<std::uint32_t>(answer.bytes.size());
    *detail = answer.detail;
    if (function == provider::TF_SEND_REQUEST) *conversation = 1;
    if (function == provider::TF_END_DATA) *conversation = 0;
    return answer.returnCode;
}

SCRIPTED_EXPORT void ZHST_CALL E32TF_Cleanup() { state() = State{}; }
}
