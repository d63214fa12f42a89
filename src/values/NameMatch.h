// The search for names in every list of names: finds what a brewer means by the beginnings of words, in any
// order. "us05" finds "SafAle US-05", "hallertau mag" finds "Magnum (Hallertau)".
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tw {

// Returns the words of text as they are compared: runs of letters and runs of digits, without case and
// accents. A point between two digits belongs to the number, an apostrophe is left out, and every other
// character separates words.
std::vector<std::string> MatchWords(std::string_view text);

// How a name fits a typed text, best first. An alias that is the typed text comes before every name that only
// begins with it, since that is the name meant.
enum class NameMatch : std::uint8_t {
    Exact,       // the name has the same words in the same order
    ExactAlias,  // an alias does
    Beginning,   // the name begins with the typed words, the last of which may be incomplete
    Words,       // each typed word begins a word of the name, a different one for each
    AliasBeginning,
    AliasWords
};

// A name found.
struct FoundName {
    std::size_t index;  // of the name in its list
    NameMatch match;
    std::string_view text;  // the name or the alias that fits best, as added to the list

    // True if text is an alias.
    bool IsAlias() const {
        return match != NameMatch::Exact && match != NameMatch::Beginning && match != NameMatch::Words;
    }
};

// A list of names, each with its aliases, prepared for a search at every keystroke.
class NameList {
  public:
    NameList() = default;
    explicit NameList(std::span<const std::string_view> names);

    void Add(std::string_view name, std::span<const std::string> aliases = {});
    std::size_t Count() const { return names_.size(); }
    bool IsEmpty() const { return names_.empty(); }
    // Names are numbered from 0, in the order in which they were added. REQUIRES: index < Count().
    const std::string& Name(std::size_t index) const { return entries_[names_[index]].text; }

    // Returns the names that fit the typed text, best first; equally good ones in the order of the list. A
    // text without a word finds all names. The result is valid until the list changes.
    std::vector<FoundName> Find(std::string_view typed) const;

  private:
    // A name or an alias.
    struct Entry {
        std::size_t name;  // its number
        bool isAlias;
        std::string text;
        std::vector<std::string> words;
    };

    std::vector<Entry> entries_;      // each name followed by its aliases
    std::vector<std::size_t> names_;  // their positions in entries_
};

// Returns the name that the typed text can only mean: the first of found, if it is the only one or the only
// one that fits exactly; nullptr otherwise. REQUIRES: found is the result of Find.
const FoundName* OnlyMeant(const std::vector<FoundName>& found);

}  // namespace tw
