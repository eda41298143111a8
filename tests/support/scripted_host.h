#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "scripted/script.h"

// A host that plays whole requests over z7xscript: one file that can be counted, received and sent to, and a catalogue.
class ScriptedHost {
public:
    // --- What it has
    std::vector<std::string> fields;     // 40 bytes each (hostfields::)
    std::vector<std::string> records;    // host records
    std::vector<std::string> catalogue;  // records answered to EXTRACT
    std::optional<std::uint32_t> count;  // answer to the count query, otherwise the number of records
    // Asked first, at every call; nothing means the answer below.
    std::function<std::optional<scripted::Answer>(const scripted::Call&)> intercept;

    // --- What it was told
    std::vector<std::string> statements;  // every request text
    std::vector<std::string> received;    // every record sent to it

    // Makes this host the handler of z7xscript; it has to live as long as calls arrive.
    void install();
    scripted::Answer answer(const scripted::Call& call);
    // Hears of every call that arrives here, before it is answered.
    std::function<void(const scripted::Call&)> observe;
    // `act` runs once, while the next call of the function is on the stack and nothing is answered yet.
    void during(std::uint32_t function, std::function<void()> act) { acts_[function] = std::move(act); }

private:
    enum class Request { None, Count, Data, Catalogue };

    scripted::Answer begin(const std::string& statement);
    scripted::Answer nextField();
    scripted::Answer nextData();

    std::map<std::uint32_t, std::function<void()>> acts_;
    Request request_ = Request::None;
    std::size_t nextField_ = 0;
    std::size_t nextData_ = 0;
};
