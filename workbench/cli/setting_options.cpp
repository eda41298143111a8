#include "setting_options.h"

#include <charconv>
#include <stdexcept>

#include "emulator/setting_rows.h"

namespace {

// "{file,member,replace}"
std::string words(std::uint32_t setting) {
    std::string list;
    for (const emulator::SettingValueRow& row : emulator::valuesOf(settingRow(setting)))
        list += (list.empty() ? "{" : ",") + std::string(row.word);
    return list + "}";
}

// Empty for a number that an option takes.
std::string whyNoNumber(const std::string& text) {
    std::int32_t number = -1;
    const char* const end = text.data() + text.size();
    const bool isWhole = std::from_chars(text.data(), end, number).ptr == end;
    return isWhole && number >= 0 ? "" : text + " is no number from 0 to 2147483647";
}

}  // namespace

std::string reasonAgainst(const std::function<void()>& parse) {
    try {
        parse();
        return {};
    } catch (const std::invalid_argument& error) {
        return error.what();
    }
}

CLI::Option* SettingOptions::text(const std::string& name, std::uint32_t id, const std::string& help) {
    return app_.add_option_function<std::string>(
        name,
        [list = &assignments_, id](const std::string& value) {
            list->push_back({id, value});
        },
        help);
}

void SettingOptions::number(const std::string& name, std::uint32_t id, const std::string& help) {
    app_.add_option_function<std::int32_t>(
            name,
            [list = &assignments_, id](const std::int32_t& value) {
                list->push_back({id, value});
            },
            help)
        ->check(whyNoNumber)
        ->type_name("N");
}

void SettingOptions::choice(const std::string& name, std::uint32_t id, const std::string& help) {
    app_.add_option_function<std::string>(
            name, [list = &assignments_, id](const std::string& word) { list->push_back(parseValue(id, word)); }, help)
        ->check([id](const std::string& word) { return reasonAgainst([&] { parseValue(id, word); }); })
        ->type_name(words(id));
}

void SettingOptions::flag(const std::string& name, std::uint32_t id, const std::string& help) {
    app_.add_flag_callback(
        name,
        [list = &assignments_, id] {
            list->push_back({id, 1});
        },
        help);
}

void SettingOptions::description(const std::string& name, std::uint32_t wanted, std::uint32_t id,
                                 const std::string& help) {
    app_.add_option_function<std::string>(
            name,
            [list = &assignments_, wanted, id](const std::string& value) {
                list->push_back({wanted, 1});
                list->push_back({id, value});
            },
            help)
        ->type_name("NAME");
}

void SettingOptions::everyday() {
    choice("--date-format", zhst::setting::DateFormat, "form of dates, iso when not given");
    choice("--time-format", zhst::setting::TimeFormat, "form of times, iso when not given");
    flag("--ignore-decimal-errors", zhst::setting::IgnoreDecimalErrors, "let numbers with damaged digits pass");
    connection();
}

void SettingOptions::connection() {
    number("--host-code-page", zhst::setting::HostCodePage,
           "code page of the host's texts; the host says it when not given");
    choice("--transport", zhst::setting::TransportType, "transport of the connection, emulator when not given");
}
