#include <filesystem>
#include <system_error>

#include "commands.h"
#include "environment/utf8_path.h"
#include "setting_options.h"
#include "suggestions.h"

namespace {

// The parser's own checks know names in the PC's code page only.
std::string existingFile(const std::string& name) {
    std::error_code ignored;
    if (std::filesystem::is_directory(utf8Path(name), ignored)) return name + " is a folder";
    return std::filesystem::exists(utf8Path(name), ignored) ? "" : "there is no file " + name;
}

std::string existingFolder(const std::string& name) {
    std::error_code ignored;
    return std::filesystem::is_directory(utf8Path(name), ignored) ? "" : "there is no folder " + name;
}

void addPc(CLI::App& app, CommandLine& line) {
    // The code pages and the language of a real one are what they are.
    const std::string group = "The PC (code pages and language are its own on Windows)";
    const auto character = [&](const std::string& name, char* place, const std::string& help) {
        return app
            .add_option_function<std::string>(
                name, [place](const std::string& value) { *place = value.front(); }, help)
            ->check([](const std::string& value) {
                return value.size() == 1 ? std::string() : std::string("must be one character");
            })
            ->type_name("C")
            ->group(group);
    };
    app.add_option("--ansi-code-page", line.pc.ansiCodePage, "code page of its texts, 1252 when not given")
        ->type_name("N")
        ->group(group);
    app.add_option("--oem-code-page", line.pc.oemCodePage, "code page of its oldest programs, 850 when not given")
        ->type_name("N")
        ->group(group);
    app.add_option("--language-id", line.pc.languageId, "language of its user, 0x409 (English) when not given")
        ->type_name("N")
        ->group(group);
    character("--decimal", &line.pc.decimalSeparator,
              "decimal separator, . when not given; for csv with a decimal comma give --list-separator too")
        ->check([](const std::string& value) {
            return value == "." || value == "," ? std::string() : std::string("must be a point or a comma");
        });
    character("--list-separator", &line.pc.listSeparator, "separator of comma-separated files, a comma when not given");
}

}  // namespace

void addJson(CLI::App& app, CommandLine& line) {
    app.add_flag("--json", line.json,
                 "tally, or what is listed, as one line of JSON on standard output; behind records that are written "
                 "there, on standard error")
        ->group("Common options");
}

void addPcFile(CLI::App& app, CommandLine& line, const std::string& header) {
    app.add_flag("--header", line.header, header);
    app.add_option_function<std::string>(
           "--encoding",
           [&line](const std::string& word) {
               const std::string small = CLI::detail::to_lower(word);
               if (small != "pc" && small != "terminal")
                   throw CLI::ValidationError("--encoding", notOneOf(word, {"pc", "terminal"}));
               line.streamEncoding = small == "pc" ? StreamEncoding::Pc : StreamEncoding::Terminal;
           },
           "of texts in standard input and output: the PC's code page, or that of the terminal; when not given, "
           "terminal on one, else pc")
        ->type_name("{pc,terminal}");
}

void addCommon(CLI::App& app, CommandLine& line) {
    const std::string group = "Common options";
    app.add_option_function<std::vector<std::string>>(
           "--set",
           [&line](const std::vector<std::string>& texts) {
               for (const std::string& text : texts) line.sets.push_back(parseAssignment(text));
           },
           "a setting of the emulator, applied last; repeatable; z7xfer settings lists them")
        ->check([](const std::string& text) { return reasonAgainst([&] { parseAssignment(text); }); })
        ->type_name("ID|NAME=VALUE")
        ->type_size(1)
        ->allow_extra_args(false)
        ->group(group);
    app.add_option("--settings", line.settingsFile, "file of such settings, a line each, # before comments")
        ->check(existingFile)
        ->group(group);
    app.add_option("--providers", line.providerFolder, "folder of the provider libraries")
        ->check(existingFolder)
        ->group(group);
    app.add_option("--host-data", line.hostData, "database of the sample host")->check(existingFile)->group(group);
    app.add_option("--journal", line.journalFile, "write every service call of the library to a file")
        ->type_name("FILE")
        ->group(group);
    app.add_option_function<std::string>(
           "--answer", [&line](const std::string& text) { line.answer = questions::StandingAnswer::parse(text); },
           "answer to every question that it fits: replace, append, yes or no; or the number of a button")
        ->check([](const std::string& text) { return reasonAgainst([&] { questions::StandingAnswer::parse(text); }); })
        ->type_name("WORD")
        ->group(group);
    addJson(app, line);
    app.add_flag("--quiet,-q", line.quiet, "no progress and no tally; messages are still shown")->group(group);
    addPc(app, line);
}
