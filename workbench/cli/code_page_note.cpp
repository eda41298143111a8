#include "code_page_note.h"

#include <algorithm>
#include <map>
#include <vector>

#include "codepages.h"

namespace {

using FieldsOfPage = std::map<std::uint32_t, std::vector<std::string>>;

FieldsOfPage fieldsOfPages(const HostLayout& layout) {
    FieldsOfPage fields;
    for (const HostColumn& column : layout.columns)
        if (column.codePage != 0) fields[column.codePage].push_back(column.name);
    return fields;
}

std::string listed(const std::vector<std::string>& names) {
    constexpr std::size_t Shown = 3;
    std::string text;
    for (std::size_t at = 0; at < std::min(Shown, names.size()); ++at) text += (at > 0 ? ", " : "") + names[at];
    return names.size() > Shown ? text + " and " + std::to_string(names.size() - Shown) + " more" : text;
}

}  // namespace

std::string otherCodePages(const HostLayout& layout, std::uint32_t taken) {
    std::string text;
    for (const auto& [page, names] : fieldsOfPages(layout))
        if (page != taken) text += (text.empty() ? "" : "; ") + std::to_string(page) + " for " + listed(names);
    return text;
}

std::optional<Note> codePageNote(const HostLayout& layout, std::uint32_t taken) {
    const codepages::CodePage* const page = codepages::find(taken);
    const std::string others = otherCodePages(layout, taken);
    if (page == nullptr || !page->isHost() || others.empty()) return std::nullopt;
    const FieldsOfPage fields = fieldsOfPages(layout);
    return Note{"texts are converted with host code page " + std::to_string(taken) + ", but the host names " + others,
                fields.size() == 1 ? "--host-code-page " + std::to_string(fields.begin()->first) + " takes the host's"
                                   : "a transfer has one for all texts; --host-code-page takes another"};
}
