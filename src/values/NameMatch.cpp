#include "values/NameMatch.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <optional>
#include <utf8proc.h>

#include "values/Text.h"
#include "values/Utf8.h"

namespace tw {
namespace {

using Words = std::vector<std::string>;

enum class CharacterKind : std::uint8_t { Letter, Digit, Point, Apostrophe, Separator };

constexpr std::int32_t kTypographicApostrophe = 0x2019;

CharacterKind KindOf(std::int32_t codePoint) {
    if (codePoint >= 'a' && codePoint <= 'z') return CharacterKind::Letter;
    if (codePoint >= '0' && codePoint <= '9') return CharacterKind::Digit;
    if (codePoint == '.') return CharacterKind::Point;
    if (codePoint == '\'' || codePoint == kTypographicApostrophe) return CharacterKind::Apostrophe;
    if (codePoint == kNoCodePoint) return CharacterKind::Letter;
    switch (utf8proc_category(codePoint)) {
        case UTF8PROC_CATEGORY_LU:
        case UTF8PROC_CATEGORY_LL:
        case UTF8PROC_CATEGORY_LT:
        case UTF8PROC_CATEGORY_LM:
        case UTF8PROC_CATEGORY_LO:
            return CharacterKind::Letter;
        case UTF8PROC_CATEGORY_ND:
            return CharacterKind::Digit;
        default:
            return CharacterKind::Separator;
    }
}

// Returns text without case and accents; unchanged if it is not valid UTF-8.
std::string Folded(std::string_view text) {
    if (IsAscii(text)) return Lower(text);
    utf8proc_uint8_t* folded = nullptr;
    const utf8proc_ssize_t size =
        utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
                     static_cast<utf8proc_ssize_t>(text.size()), &folded,
                     static_cast<utf8proc_option_t>(UTF8PROC_DECOMPOSE | UTF8PROC_COMPAT |
                                                    UTF8PROC_STRIPMARK | UTF8PROC_CASEFOLD));
    const std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> owner(folded, &std::free);
    if (size < 0) return std::string(text);
    return {reinterpret_cast<const char*>(folded), static_cast<std::size_t>(size)};
}

// Appends a letter, in ASCII for the strokes and ligatures of European names, which are letters of their own
// and not accents.
void AppendLetter(std::string& word, std::int32_t codePoint, std::string_view bytes) {
    switch (codePoint) {
        case 0xE6:
            word += "ae";
            return;
        case 0xF8:
            word += 'o';
            return;
        case 0x111:
            word += 'd';
            return;
        case 0x142:
            word += 'l';
            return;
        case 0x153:
            word += "oe";
            return;
        default:
            word += bytes;
    }
}

bool BeginsWithDigit(std::string_view text) {
    return !text.empty() && KindOf(FrontCodePoint(text).value) == CharacterKind::Digit;
}

// True if typed words, from the one at index on, each begin a word that is not yet used.
bool RestFits(const Words& name, const Words& typed, std::size_t index, std::vector<bool>& used) {
    if (index == typed.size()) return true;
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (used[i] || !name[i].starts_with(typed[index])) continue;
        used[i] = true;
        if (RestFits(name, typed, index + 1, used)) return true;
        used[i] = false;
    }
    return false;
}

// Returns how the words of a name fit, as if it were no alias.
std::optional<NameMatch> FitOf(const Words& name, const Words& typed) {
    if (typed.size() > name.size()) return std::nullopt;
    const auto [typedRest, nameRest] = std::mismatch(typed.begin(), typed.end(), name.begin());
    const auto different = typed.end() - typedRest;
    if (different == 0) return name.size() == typed.size() ? NameMatch::Exact : NameMatch::Beginning;
    if (different == 1 && nameRest->starts_with(*typedRest)) return NameMatch::Beginning;
    // Most names fail here, without memory being allocated.
    const bool each = std::ranges::all_of(typed, [&](const std::string& word) {
        return std::ranges::any_of(name, [&](const std::string& other) { return other.starts_with(word); });
    });
    if (!each) return std::nullopt;
    std::vector<bool> used(name.size());
    if (!RestFits(name, typed, 0, used)) return std::nullopt;
    return NameMatch::Words;
}

NameMatch AsAlias(NameMatch match) {
    switch (match) {
        case NameMatch::Exact:
            return NameMatch::ExactAlias;
        case NameMatch::Beginning:
            return NameMatch::AliasBeginning;
        default:
            return NameMatch::AliasWords;
    }
}

}  // namespace

std::vector<std::string> MatchWords(std::string_view text) {
    const std::string folded = Folded(text);
    Words words;
    CharacterKind last = CharacterKind::Separator;
    for (std::string_view rest = folded; !rest.empty();) {
        const CodePoint front = FrontCodePoint(rest);
        const std::string_view bytes = rest.substr(0, front.bytes);
        rest.remove_prefix(front.bytes);
        CharacterKind kind = KindOf(front.value);
        if (kind == CharacterKind::Apostrophe) continue;
        if (kind == CharacterKind::Point)
            kind = last == CharacterKind::Digit && BeginsWithDigit(rest) ? CharacterKind::Digit
                                                                         : CharacterKind::Separator;
        if (kind != CharacterKind::Separator) {
            if (kind != last) words.emplace_back();
            AppendLetter(words.back(), front.value, bytes);
        }
        last = kind;
    }
    return words;
}

NameList::NameList(std::span<const std::string_view> names) {
    for (const std::string_view name : names) Add(name);
}

void NameList::Add(std::string_view name, std::span<const std::string> aliases) {
    const std::size_t number = names_.size();
    names_.push_back(entries_.size());
    entries_.push_back({number, false, std::string(name), MatchWords(name)});
    for (const std::string& alias : aliases) entries_.push_back({number, true, alias, MatchWords(alias)});
}

std::vector<FoundName> NameList::Find(std::string_view typed) const {
    std::vector<FoundName> found;
    const Words words = MatchWords(typed);
    if (words.empty()) {
        for (std::size_t index = 0; index < Count(); ++index)
            found.push_back({index, NameMatch::Words, Name(index)});
        return found;
    }
    for (const Entry& entry : entries_) {
        const auto fit = FitOf(entry.words, words);
        if (!fit) continue;
        const FoundName hit = {entry.name, entry.isAlias ? AsAlias(*fit) : *fit, entry.text};
        if (found.empty() || found.back().index != entry.name)
            found.push_back(hit);
        else if (hit.match < found.back().match)
            found.back() = hit;
    }
    std::ranges::stable_sort(found, {}, &FoundName::match);
    return found;
}

const FoundName* OnlyMeant(const std::vector<FoundName>& found) {
    if (found.empty()) return nullptr;
    const FoundName& best = found.front();
    if (found.size() == 1) return &best;
    const bool onlyExact = best.match <= NameMatch::ExactAlias && found[1].match != best.match;
    return onlyExact ? &best : nullptr;
}

}  // namespace tw
