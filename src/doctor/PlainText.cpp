#include "doctor/PlainText.h"

#include <algorithm>
#include <array>

#include "exchange/AsciiCase.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr std::array<std::string_view, 16> kLineTags = {"BR", "P",  "DIV", "LI", "TR", "H1",    "H2", "H3",
                                                        "H4", "UL", "OL",  "DL", "DT", "TABLE", "DD", "HR"};
constexpr std::array<std::string_view, 21> kWordTags = {
    "B",   "I",  "U",  "A",   "EM",   "STRONG", "SPAN",  "FONT", "SMALL", "BIG",   "SUB",
    "SUP", "TD", "TH", "IMG", "CODE", "PRE",    "TBODY", "HTML", "BODY",  "CENTER"};

struct Entity {
    std::string_view name, character;
};
constexpr Entity kEntities[] = {{"&nbsp;", " "}, {"&lt;", "<"},       {"&gt;", ">"},   {"&quot;", "\""},
                                {"&#39;", "'"},  {"&deg;", "\u00B0"}, {"&apos;", "'"}, {"&amp;", "&"}};

// A tag of HTML at the beginning of a text.
struct Tag {
    std::size_t size = 0;  // 0 if there is none
    bool breaksLine = false;
};

Tag TagAt(std::string_view text) {
    const std::size_t end = text.find('>');
    if (end == std::string_view::npos) return {};
    std::string_view name = text.substr(1, end - 1);
    const bool closes = name.starts_with('/');
    if (closes) name.remove_prefix(1);
    name = name.substr(0, name.find_first_of(" \t\r\n/"));
    const std::string upper = UpperAscii(name);
    // A list or a row begins a line where it opens, a paragraph ends one where it closes, too.
    if (std::ranges::find(kLineTags, upper) != kLineTags.end()) return {end + 1, !closes || upper == "P"};
    if (std::ranges::find(kWordTags, upper) != kWordTags.end()) return {end + 1, false};
    return {};
}

bool HasHtml(std::string_view text) {
    for (std::size_t at = text.find('<'); at != std::string_view::npos; at = text.find('<', at + 1))
        if (TagAt(text.substr(at)).size > 0) return true;
    return false;
}

std::string WithoutHtml(std::string_view text) {
    std::string plain;
    while (!text.empty()) {
        const std::size_t tagAt = text.find('<');
        plain.append(text.substr(0, tagAt));
        if (tagAt == std::string_view::npos) break;
        text.remove_prefix(tagAt);
        const Tag tag = TagAt(text);
        if (tag.size == 0) {
            plain += '<';
            text.remove_prefix(1);
            continue;
        }
        if (tag.breaksLine && !plain.empty() && !plain.ends_with('\n')) plain += '\n';
        text.remove_prefix(tag.size);
    }
    for (const Entity& entity : kEntities) plain = ReplaceAll(plain, entity.name, entity.character);
    return plain;
}

}  // namespace

std::string PlainText(std::string_view text) {
    std::string plain = ReplaceAll(ReplaceAll(text, "\r\n", "\n"), "\r", "\n");
    if (HasHtml(plain)) plain = WithoutHtml(plain);
    const std::size_t first = plain.find_first_not_of(" \t\n");
    if (first == std::string::npos) return {};
    plain = plain.substr(first, plain.find_last_not_of(" \t\n") + 1 - first);
    return ReplaceAll(plain, "\n", "\r\n");
}

}  // namespace tw
