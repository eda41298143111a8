#include "codepages.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <utility>

#include "data_file.h"
#include "utf8.h"

namespace codepages {
namespace {

struct Loaded {
    std::string path;
    std::vector<CodePage> pages;  // by number
};

Loaded& loaded() {
    static Loaded state;
    return state;
}

std::optional<std::string> readFile(const std::string& path, std::string* error) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        if (error) *error = "the file cannot be opened";
        return std::nullopt;
    }
    std::string bytes{std::istreambuf_iterator<char>(file), {}};
    if (!file.bad()) return bytes;
    if (error) *error = "the file cannot be read";
    return std::nullopt;
}

std::optional<std::vector<PageData>> readPages(const std::string& path, std::string* error) {
    const auto bytes = readFile(path, error);
    return bytes ? parseDataFile(*bytes, error) : std::nullopt;
}

}  // namespace

bool load(const std::string& path, std::string* error) {
    Loaded& state = loaded();
    if (!state.pages.empty() && state.path == path) return true;
    auto contents = readPages(path, error);
    if (!contents) {
        if (error) *error = path + ": " + *error;
        return false;
    }
    state.pages.clear();
    for (PageData& data : *contents) state.pages.emplace_back(std::move(data));
    std::ranges::sort(state.pages, {}, &CodePage::number);
    state.path = path;
    return true;
}

const CodePage* find(std::uint32_t number) {
    const auto& pages = loaded().pages;
    const auto place = std::ranges::lower_bound(pages, number, {}, &CodePage::number);
    return place != pages.end() && place->number() == number ? &*place : nullptr;
}

CodePage::CodePage(PageData data) : data_(std::move(data)), codes_(invert(data_)) {
    for (std::size_t byte = 0; byte < utf8Forms_.size(); ++byte) {
        std::string utf8;
        appendUtf8(utf8, data_.single[byte]);
        std::ranges::copy(utf8, utf8Forms_[byte].bytes.begin());
        utf8Forms_[byte].length = std::uint8_t(utf8.size());
    }
    for (std::size_t character = 0; character < asciiBytes_.size(); ++character) {
        asciiBytes_[character] = singleByte(char16_t(character));
    }
}

char16_t CodePage::toUnicode(std::uint8_t byte) const { return data_.single[byte]; }

char16_t CodePage::toUnicode(std::uint8_t first, std::uint8_t second) const { return data_.pairs.at(first, second); }

std::optional<CodePage::Code> CodePage::fromUnicode(char16_t character) const {
    const std::uint16_t code = codes_.at(character);
    if (code == NoCode && character != 0) return std::nullopt;
    return Code{code, code > 0xFF};
}

std::uint8_t CodePage::singleByte(char16_t character) const {
    return std::uint8_t(fromUnicode(character).value_or(Code{substitute(), false}).code);
}

bool CodePage::isLeadByte(std::uint8_t byte) const { return data_.leadBytes[byte]; }

std::uint8_t CodePage::upper(std::uint8_t byte) const { return data_.upper[byte]; }

std::uint8_t CodePage::lower(std::uint8_t byte) const { return data_.lower[byte]; }

}  // namespace codepages
