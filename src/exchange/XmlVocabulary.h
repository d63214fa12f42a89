// The tags of BeerXML as mending asks for them: once for every tag of a file.
#pragma once

#include <bitset>
#include <cstdint>
#include <string_view>

namespace tw {

enum class TagKind : std::uint8_t {
    Leaf,    // holds text or a figure
    Record,  // holds fields
    Set      // holds records
};

struct KnownTag {
    std::string_view name;  // in upper case
    TagKind kind;
    std::uint8_t number;    // from 0, below kMostKnownTags
    std::uint32_t self;     // the bit of a record or set; 0 for a leaf
    std::uint32_t parents;  // the bits of what may hold it
};

inline constexpr std::size_t kMostKnownTags = 256;
using KnownTags = std::bitset<kMostKnownTags>;

// Returns the tag in any case of its letters; nullptr if it is none.
const KnownTag* FindTag(std::string_view name);
inline bool MayHold(const KnownTag& parent, const KnownTag& tag) {
    return (tag.parents & parent.self) != 0;
}
// True if the tag may be a root.
bool MayBeRoot(const KnownTag& tag);
// Returns the tag of the set that holds such records. REQUIRES: tag is that of a record.
std::string_view SetOf(const KnownTag& tag);

bool HasSmallLetter(std::string_view name);

// True if both names differ by no more than slips of typing: a letter doubled, missing, wrong or swapped with
// its neighbor, one for every three letters. Case does not count.
bool Resembles(std::string_view name, std::string_view meant);

}  // namespace tw
