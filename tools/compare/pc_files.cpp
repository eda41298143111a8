#include "compare/pc_files.h"

#include <algorithm>

namespace compare {
namespace {

const std::string Marks = ",.;:-+ ?A\"\xB7";
const std::string Controls = "\xFF\x0E\x1A\r\n\t\"\x80";

std::string oddNumber(Random& random, std::string number) {
    const std::size_t at = random.below(number.size());
    switch (random.below(4)) {
        case 0:
            number[at] = random.pick(Marks);
            return number;
        case 1:
            return number.insert(random.below(number.size() + 1), 1, random.pick(Marks));
        case 2:
            return number + std::string(random.pick({0u, 1u, 8u, 600u}), '0') + random.pick(std::string("05"));
        default:
            return random.pick<std::string>({"", number + " ", number + "  ", "0" + number, number + "9", number + "-",
                                             "-" + number, "-0", " " + number, '"' + number + '"', "2147483648",
                                             "-2147483648", "70000", "0x" + number, std::string(20, '0') + number,
                                             "98765432109876543210" + number});
    }
}

// One number in so many. A longer one mostly stands in its column all the same, where blanks give way to it.
std::string respelled(Random& random, const std::string& text, std::uint32_t chances) {
    static const std::string NumberCharacters = "0123456789.-";
    std::string made;
    for (std::size_t at = 0; at < text.size();) {
        const std::string number = text.substr(at, text.find_first_not_of(NumberCharacters, at) - at);
        const std::string odd = number.empty() || !random.oneIn(chances) ? number : oddNumber(random, number);
        for (std::size_t more = number.size(); more < odd.size() && made.ends_with(' ') && !random.oneIn(8); ++more)
            made.pop_back();
        made += number.empty() ? std::string(1, text[at]) : odd;
        at += std::max<std::size_t>(number.size(), 1);
    }
    return made;
}

void damage(Random& random, std::string& text) {
    const std::size_t at = random.below(text.size() + 1);
    if (random.oneIn(2)) text.erase(at, random.between(1, 8));
    if (random.oneIn(2)) text.insert(std::min(at, text.size()), random.pick({1, 1, 1, 2, 5000}), random.pick(Controls));
}

// A line that descriptions have, or nearly.
std::string descriptionLine(Random& random) {
    const auto number = [&random] {
        return random.pick<std::string>({"", "0", "1", "2", "7", "9", "10", "11", "0x1", "x"});
    };
    switch (random.below(4)) {
        case 0:
            return "PCFT " + number();
        case 1: {
            std::string codes = "PCFO" + random.pick<std::string>({" ", " ", ""});
            for (std::uint32_t more = random.below(7); more > 0; --more) codes += number() + (more > 1 ? "," : "");
            return codes;
        }
        case 2:
            return random.pick<std::string>({"", "PCFL", "pcfl a 1 2", "PCFX", "PCFDF", "PCFL NAME"});
        default:
            return "PCFL " + random.pick<std::string>({"", " ", "N "}) + "NAME" + number() + " " + number() + " " +
                   number() + random.pick<std::string>({"", "/", "/1", "/x"});
    }
}

}  // namespace

std::string alteredDescription(Random& random, std::string text) {
    if (random.oneIn(12)) return "";
    while (random.oneIn(2)) {
        const std::size_t at = text.find('\n', random.below(text.size() + 1));
        const std::size_t place = at == std::string::npos ? 0 : at + 1;
        if (random.oneIn(4)) text.erase(place, text.find('\n', place) + 1 - place);
        text.insert(place, descriptionLine(random) + "\r\n");
    }
    return text;
}

std::string altered(Random& random, std::string text) {
    const bool cr = random.oneIn(12), lf = random.oneIn(12);
    if (cr || lf) std::erase(text, cr ? '\n' : '\r');
    // Without the last line end, without the end of a DIF file and the line end before.
    if (random.oneIn(12)) text.resize(text.size() - std::min<std::size_t>(text.size(), random.pick({1, 2, 13})));
    if (random.oneIn(12)) text += '\x1A';
    if (!random.oneIn(3)) text = respelled(random, text, random.pick({5u, 15u, 60u}));
    while (random.odd(5)) damage(random, text);
    return text;
}

}  // namespace compare
