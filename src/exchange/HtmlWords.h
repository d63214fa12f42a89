// The words of HTML that stand in the texts of recipes.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tw {

// Returns the code point of an entity of HTML 4, such as "eacute". Nothing for the entities that XML has
// itself and for all other names. The case of letters counts: "Eacute" differs.
std::optional<std::int32_t> CharacterOfEntity(std::string_view name);

// True for a tag by which HTML marks up text ("br", "P"), in any case.
bool IsHtmlTag(std::string_view name);

}  // namespace tw
