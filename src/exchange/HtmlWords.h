// The words of HTML that stand in the texts of recipes.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tw {

// Returns the code point of an entity of HTML 4, such as "eacute". Nothing for the entities that XML has
// itself and for all other names. The case of letters counts: "Eacute" differs.
std::optional<std::int32_t> CharacterOfEntity(std::string_view name);

// Returns the number of a reference such as "#65" or "#x41", UINT32_MAX for a larger one; nothing for every
// other name.
std::optional<std::uint32_t> NumberOfReference(std::string_view name);

// What a tag by which HTML marks up text does to its lines.
enum class HtmlTag : std::uint8_t {
    WithinLine,
    LineBreak,      // begins a line where it opens
    ParagraphBreak  // and where it closes
};
// Returns the tag of that name ("br", "P"), in any case of its letters; nothing if there is none.
std::optional<HtmlTag> FindHtmlTag(std::string_view name);
inline bool IsHtmlTag(std::string_view name) {
    return FindHtmlTag(name).has_value();
}

}  // namespace tw
