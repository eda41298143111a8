#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include "support/library.h"
#include "support/own_folder.h"
#include "support/run_program.h"

// z7xfer as a person meets it: a process with arguments, two output streams and an exit status. It is started by the
// operating system, without a shell, so that these tests run on Windows too: what a shell would do beyond splitting a
// line into arguments is asked for here, the standard input with run's second argument, variables with environment_.
class Cli : public OwnFolder {
protected:
    // Runs in the test's own folder, without a desktop. `arguments` stand as in a shell, quotes included.
    Outcome run(const std::string& arguments, const std::string& input = {}) const {
        return runProgram({program_, splitWords(arguments), folder, environment_, input});
    }
    // Ends with `status`, and says `text` on the error output.
    Outcome expect(int status, const std::string& arguments, const std::string& text) const {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.status, status) << arguments;
        EXPECT_NE(outcome.errors.find(text), std::string::npos) << arguments << "\n" << outcome.errors;
        return outcome;
    }
    std::string read(const std::string& name) const { return fileBytes(path(name)); }
    // What `text` has behind its last line end but one.
    static std::string lastLine(std::string text) {
        if (!text.empty()) text.pop_back();
        return text.substr(text.rfind('\n') + 1);
    }

    const std::filesystem::path program_ = std::filesystem::absolute(binFolder()) / "z7xfer";
    std::map<std::string, std::optional<std::string>> environment_ = {
        {"DISPLAY", {}}, {"WAYLAND_DISPLAY", {}}, {"Z7X_DATA_FOLDER", path("data")}};
};
