// The six figures of a recipe, in the order in which its windows show them: the only list of them.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "record/RecipeRecord.h"

namespace tw {

struct FigureRule {
    FieldId field;
    TextBox RecipeRecord::*box;
    Label RecipeRecord::*range;  // of the recipe's style
    const char* shortName;
    char key;  // with Alt, goes to the figure from any tab
    // ShortText cuts the figure's text off where this begins; empty to keep the whole text.
    std::string_view tail;
};

std::span<const FigureRule> FigureRules();
// REQUIRES: the field is one of the figures.
const FigureRule& RuleOfFigure(FieldId field);
// Returns the text of a figure without what its short name or its unit says already: "5.2%" for "5.2% abv",
// "7 SRM" for "7 SRM (5 HCU)".
std::string ShortText(const FigureRule& rule, const RecipeRecord& record);

// Returns the ratio of bitterness to gravity, as "0.73" (BitternessPerGravity); empty while the recipe lacks
// one of them or its gravity is 1.
std::string BalanceText(const RecipeRecord& record);

}  // namespace tw
