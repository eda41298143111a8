#include "codepages.h"

#include <algorithm>
#include <fstream>
#include <memory>
#include <utility>

#include "contents.h"
#include "data_file.h"
#include "environment/utf8_path.h"
#include "utf8.h"

namespace codepages {
namespace {

// Taken from the file when somebody first asks for it.
struct Page {
    PageEntry entry;
    std::unique_ptr<CodePage> taken;

    std::uint32_t number() const { return entry.number; }
};

struct Loaded {
    std::string path;
    std::vector<char> file;
    std::vector<Page> pages;  // by number
};

Loaded& loaded() {
    static Loaded state;
    return state;
}

std::optional<std::vector<char>> readFile(const std::string& path, std::string* error) {
    std::ifstream file(utf8Path(path), std::ios::binary | std::ios::ate);
    if (!file) {
        if (error) *error = "the file cannot be opened";
        return std::nullopt;
    }
    const std::streamoff length = file.tellg();
    std::vector<char> bytes(length > 0 && length <= UINT32_MAX ? static_cast<std::size_t>(length) : 0);
    if (file.seekg(0).read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) return bytes;
    if (error) *error = "the file cannot be read";
    return std::nullopt;
}

bool readPages(Loaded& into, std::string* error) {
    auto file = readFile(into.path, error);
    const auto entries = file ? readEntries({file->data(), file->size()}, error) : std::nullopt;
    if (!entries) return false;
    into.file = *std::move(file);  // stays where it is: the entries lead into it
    for (const PageEntry& entry : *entries) into.pages.push_back({entry, nullptr});
    std::ranges::sort(into.pages, {}, &Page::number);
    return true;
}

}  // namespace

bool load(const std::string& path, std::string* error) {
    Loaded& state = loaded();
    if (!state.pages.empty() && state.path == path) return true;
    Loaded read{path, {}, {}};
    if (!readPages(read, error)) {
        if (error) *error = path + ": " + *error;
        return false;
    }
    state = std::move(read);
    return true;
}

Contents contents() {
    const Loaded& state = loaded();
    const auto hosts = std::ranges::count_if(state.pages, [](const Page& page) { return page.entry.host; });
    const auto hostPages = static_cast<std::size_t>(hosts);
    return {hostPages, state.pages.size() - hostPages, readOrigin({state.file.data(), state.file.size()})};
}

const CodePage* find(std::uint32_t number) {
    auto& pages = loaded().pages;
    const auto place = std::ranges::lower_bound(pages, number, {}, &Page::number);
    if (place == pages.end() || place->number() != number) return nullptr;
    if (!place->taken) place->taken = std::make_unique<CodePage>(readPage(place->entry));
    return place->taken.get();
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
