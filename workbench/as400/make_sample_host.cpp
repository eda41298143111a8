// Builds the sample host's database: make_sample_host LAYOUT DATABASE
#include <charconv>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>

#include "as400/catalogue.h"
#include "as400/date_format.h"
#include "as400/decimal.h"

namespace {

using namespace as400;

std::uint32_t toNumber(std::string_view text) {
    std::uint32_t number = 0;
    const auto end = std::from_chars(text.data(), text.data() + text.size(), number);
    if (text.empty() || end.ec != std::errc{}) throw std::invalid_argument("number expected: " + std::string(text));
    return number;
}

std::vector<std::string> splitTabs(const std::string& line) {
    std::vector<std::string> values;
    std::istringstream stream(line);
    for (std::string value; std::getline(stream, value, '\t');) values.push_back(value);
    return values;
}

bool isBytes(std::string_view text) { return text.starts_with("x'") && text.ends_with('\'') && text.size() > 2; }

Bytes toBytes(std::string_view text) {
    Bytes bytes;
    for (std::size_t i = 2; i + 2 < text.size(); i += 2) {
        std::uint8_t byte = 0;
        std::from_chars(text.data() + i, text.data() + i + 2, byte, 16);
        bytes.push_back(byte);
    }
    return bytes;
}

void bindNumber(Statement& insert, int position, const Field& field, const std::string& text) {
    const auto number = decimalFromText(text, field.decimals);
    if (!number || number->digits.size() > field.digits) throw std::invalid_argument(field.name + " is no " + text);
    std::string stored;
    insert.bind(position, storedNumber(*number, field.digits, field.decimals, stored));
}

void bindText(Statement& insert, int position, const Field& field, const std::string& text) {
    if (isBytes(text)) {
        insert.bind(position, toBytes(text));
        return;
    }
    if (field.isNumber()) return bindNumber(insert, position, field, text);
    const bool date = field.type == FieldType::Date;
    if ((date || field.type == FieldType::Time) && !readMoment(text, date ? StoredDate : StoredTime)) {
        throw std::invalid_argument(field.name + " is no " + text);
    }
    insert.bind(position, text);
}

class SampleMaker {
public:
    SampleMaker(Database& database, std::filesystem::path folder)
        : database_(database), catalogue_(database, 37), folder_(std::move(folder)) {}

    void takeLine(const std::string& line) {
        std::istringstream words(line);
        std::string kind, name;
        words >> kind >> name;
        if (kind == "library") return catalogue_.createLibrary({name, rest(words)});
        if (kind == "file" || kind == "source") return beginFile(kind == "source", name, words);
        if (kind == "field") return addField(name, words);
        if (kind == "member") return addMember(name, words);
        throw std::invalid_argument("unknown item " + kind);
    }

private:
    static std::string rest(std::istringstream& words) {
        std::string text;
        std::getline(words >> std::ws, text);
        return text;
    }

    void beginFile(bool source, const std::string& name, std::istringstream& words) {
        const auto slash = name.find('/');
        file_ = {};
        file_.library = name.substr(0, slash);
        file_.name = name.substr(slash + 1);
        words >> file_.page;
        if (source) words >> file_.sourceLength;
        file_.text = rest(words);
        if (source) file_.fields = sourceFields(file_.sourceLength);
    }

    void addField(const std::string& name, std::istringstream& words) {
        std::string type, size;
        words >> type >> size;
        const auto point = size.find('.');
        const auto decimals = point == std::string::npos ? 0 : toNumber(std::string_view(size).substr(point + 1));
        file_.fields.push_back(makeField(name, type, toNumber(size.substr(0, point)), decimals, rest(words)));
    }

    void addMember(const std::string& name, std::istringstream& words) {
        std::string data;
        words >> data;
        if (file_.isPlain()) catalogue_.createFile(file_);
        const HostMember member = catalogue_.createMember(file_, name, rest(words));
        if (data == "-") return;
        std::ifstream lines(folder_ / data);
        if (!lines) throw std::runtime_error("cannot read " + data);
        fill(member, lines);
    }

    void fill(const HostMember& member, std::istream& lines) {
        std::string places = "?";
        for (std::size_t i = 1; i < file_.fields.size(); ++i) places += ", ?";
        Statement insert(database_, "INSERT INTO " + quotedName(member.table) + " VALUES(" + places + ")");
        std::int64_t number = 0;
        for (std::string line; std::getline(lines, line);) {
            if (!file_.isSource() && line.starts_with('#')) continue;
            insert.reset();
            file_.isSource() ? bindSource(insert, ++number, line) : bindData(insert, line);
            insert.step();
        }
    }

    static void bindSource(Statement& insert, std::int64_t number, const std::string& line) {
        insert.bind(1, double(number)).bind(2, std::int64_t{0}).bind(3, line);
    }

    void bindData(Statement& insert, const std::string& line) {
        std::vector<std::string> values = splitTabs(line);
        if (values.size() + 1 == file_.fields.size()) values.emplace_back();  // an empty value at the end
        if (values.size() != file_.fields.size()) throw std::invalid_argument("number of values: " + line);
        for (std::size_t i = 0; i < values.size(); ++i) {
            bindText(insert, static_cast<int>(i + 1), file_.fields[i], values[i]);
        }
    }

    Database& database_;
    Catalogue catalogue_;
    std::filesystem::path folder_;
    HostFile file_;
};

void makeSample(const std::filesystem::path& layout, const std::filesystem::path& result) {
    std::filesystem::remove(result);
    Database database(result.string(), Database::Opening::Create);
    Transaction transaction(database);
    SampleMaker maker(database, layout.parent_path());
    std::ifstream lines(layout);
    if (!lines) throw std::runtime_error("cannot read " + layout.string());
    for (std::string line; std::getline(lines, line);) {
        if (!line.empty() && line[0] != '#') maker.takeLine(line);
    }
    transaction.commit();
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 3) {
        std::cerr << "usage: make_sample_host LAYOUT DATABASE\n";
        return 2;
    }
    try {
        makeSample(arguments[1], arguments[2]);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << arguments[1] << ": " << error.what() << '\n';
        return 1;
    }
}
