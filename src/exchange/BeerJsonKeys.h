// The keys of BeerJSON 1.0: the only list of the fields of its records. Reading tells a key that is missing
// from one that is unknown, writing what a record must have.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace tw {

enum class JsonRecord : std::uint8_t {
    File,  // the object behind "beerjson"
    Recipe,
    Efficiency,
    Ingredients,
    Taste,
    IbuEstimate,
    Fermentable,
    Yield,
    Hop,
    Culture,
    Misc,
    Water,
    Style,
    Boil,
    BoilStep
};

enum class JsonNeed : std::uint8_t {
    Required,
    InRecipe,  // required in a recipe, not in a library
    Optional
};

struct JsonKey {
    std::string_view key;
    JsonNeed need = JsonNeed::Optional;
};

std::span<const JsonKey> KeysOf(JsonRecord record);

// The closed lists, as spelled by the format.
std::span<const std::string_view> JsonRecipeTypes();
std::span<const std::string_view> JsonFermentableTypes();
std::span<const std::string_view> JsonHopForms();
std::span<const std::string_view> JsonUses();

}  // namespace tw
