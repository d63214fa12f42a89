// What the text boxes of a recipe are: the one list of its fields. Whoever validates, stores or shows a field
// asks here.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "record/RecipeRecord.h"
#include "values/Reading.h"

namespace tw {

class RecipeCalculator;

// What the text of a box is. The number behind a quantity is in the unit named.
enum class FieldTakes : std::uint8_t {
    FreeText,  // no number that the text tells, and nothing to refuse
    Gallons,
    Percent,
    SpecificGravity,
    Fahrenheit,
    Multiplier  // a plain number, not negative; an empty text counts as 1
};

// How a field is stored in the recipe's row.
enum class FieldStored : std::uint8_t {
    Name,     // the recipe's name, which identifies the row
    Text,     // a column of its own
    Quantity  // text and number: the columns X and X_DATA
};

struct FieldRule {
    FieldId id;
    std::string_view name;  // of the control
    TextBox RecipeRecord::*box;
    FieldTakes takes;
    std::string_view caption;  // beside the box, "&" before its mnemonic, its unit in brackets
    std::string_view column;   // of RECIPES
    FieldStored stored = FieldStored::Quantity;
    bool computed = false;  // a figure of the program: nothing can be typed
    bool mayBeZero = true;  // otherwise a number of 0 breaks the formulas
    // What runs behind a commit; it may refuse the value. nullptr for none.
    Commit (*chain)(RecipeCalculator& calculator) = nullptr;
};

// All fields, in the order of FieldId.
std::span<const FieldRule> FieldRules();
// Both in constant time.
const FieldRule& RuleOf(FieldId id);
inline const FieldRule& RuleOf(const TextBox& box) {
    return RuleOf(box.Id());
}
// What a message calls the field: the caption without its mnemonic, unit and colon.
std::string PlainCaption(const FieldRule& rule);

}  // namespace tw
