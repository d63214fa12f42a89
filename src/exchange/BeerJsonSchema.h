// The shapes of BeerJSON 1.0: the only description of its records. By it, reading tells a key that is missing
// from one that is unknown, and written recipes are made valid.
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
    BoilStep,
    Timing
};

enum class JsonNeed : std::uint8_t {
    Optional,
    InRecipe,  // required in a recipe, not in a library
    Required
};

enum class JsonHolds : std::uint8_t {
    Anything,  // written as it is
    Text,
    Number,
    Integer,
    Boolean,
    Word,      // one of words
    Letter,    // one upper-case letter or a blank
    Date,      // a text that contains a date as 2013-09-21
    Quantity,  // an object of value and unit, which is one of words; the first is meant if there is none
    Time,      // a quantity whose value is an integer
    Object,
    Array,      // of objects
    FullArray,  // of at least one object
    Texts       // an array of texts
};

struct JsonShape;

struct JsonField {
    std::string_view key;
    JsonHolds holds;
    std::span<const std::string_view> words = {};
    const JsonShape* shape = nullptr;  // of an object or of the elements of an array
    JsonNeed need = JsonNeed::Optional;

    bool IsRequired(bool isInRecipe) const {
        return need == JsonNeed::Required || (isInRecipe && need == JsonNeed::InRecipe);
    }
};

struct JsonShape {
    std::span<const JsonField> fields;
    bool isClosed = false;  // without any other keys
    // A field that the object has if it has no other one; empty if it may be empty.
    std::string_view least = {};
};

const JsonShape& ShapeOf(JsonRecord record);
// Returns nullptr if the shape has no such field.
const JsonField* FieldOf(const JsonShape& shape, std::string_view key);

}  // namespace tw
