// The rules of a recipe's text boxes: the only list of its fields. All code that validates, stores or shows a
// field uses these rules.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "record/Controls.h"
#include "values/Reading.h"

namespace tw {

class RecipeCalculator;
class RecipeRecord;

// What the text of a box means. A quantity's number is in the unit named.
enum class FieldTakes : std::uint8_t {
    FreeText,  // no number; any text is accepted
    Gallons,
    Percent,
    SpecificGravity,
    Fahrenheit,
    Multiplier  // a plain number of at least 0; an empty text means 1
};

// How a field is stored in the recipe's row of the database.
enum class FieldStored : std::uint8_t {
    Name,     // the recipe's name, which identifies the row
    Text,     // a column with the text
    Quantity  // text and number, in the columns X and X_DATA
};

struct FieldRule {
    FieldId id;
    std::string_view name;  // of the control
    TextBox RecipeRecord::*box;
    FieldTakes takes;
    std::string_view caption;  // the label beside the box: "&" marks the access key, the unit is in brackets
    std::string_view column;   // in the table RECIPES
    FieldStored stored = FieldStored::Quantity;
    bool computed = false;  // the program calculates it and the brewer cannot type into it
    bool mayBeZero = true;  // if false, the formulas fail for 0
    // Runs after a commit and may refuse the new value. nullptr for none.
    Commit (*chain)(RecipeCalculator& calculator) = nullptr;
};

// All fields, in the order of FieldId.
std::span<const FieldRule> FieldRules();
// Return the rule of a field. Constant time.
const FieldRule& RuleOf(FieldId id);
inline const FieldRule& RuleOf(const TextBox& box) {
    return RuleOf(box.Id());
}
// Returns the name of the field for messages: the caption without access key, unit and colon.
std::string PlainCaption(const FieldRule& rule);

}  // namespace tw
