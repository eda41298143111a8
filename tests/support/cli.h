#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "support/library.h"
#include "support/own_folder.h"

// z7xfer as a person meets it: a process with arguments, two output streams and an exit status.
class Cli : public OwnFolder {
protected:
    struct Outcome {
        int status = -1;
        std::string output, errors;
    };

    // Runs in the test's own folder, without a desktop.
    Outcome run(const std::string& arguments) const {
        const std::string command = "cd \"" + folder.string() + "\" && env -u DISPLAY -u WAYLAND_DISPLAY \"" +
                                    program_.string() + "\" " + arguments + " >stdout.txt 2>stderr.txt </dev/null";
        const int status = std::system(command.c_str());
        return {status >= 0 && (status & 0xFF) == 0 ? status >> 8 & 0xFF : -1, read("stdout.txt"), read("stderr.txt")};
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
};
