#include "document/FigureRules.h"

#include <algorithm>

#include "calc/Hops.h"
#include "values/NumberText.h"

namespace tw {
namespace {

using R = RecipeRecord;

constexpr FigureRule kFigures[] = {
    {FieldId::OG, &R::txtOG, &R::lblOGStyle, "OG", 'O', {}},
    {FieldId::FG, &R::txtFG, &R::lblFGStyle, "FG", 'G', {}},
    {FieldId::ABV, &R::txtABV, &R::lblABVStyle, "ABV", 'A', " abv"},
    {FieldId::Color, &R::txtColor, &R::lblColorStyle, "Color", 'C', " ("},
    {FieldId::IBU, &R::txtIBU, &R::lblIBUStyle, "IBU", 'U', {}},
    {FieldId::CO2, &R::txtCO2, &R::lblCO2Style, "CO2", 'K', " volumes"},
};

}  // namespace

std::span<const FigureRule> FigureRules() {
    return kFigures;
}

const FigureRule& RuleOfFigure(FieldId field) {
    return *std::ranges::find(kFigures, field, &FigureRule::field);
}

std::string ShortText(const FigureRule& rule, const RecipeRecord& record) {
    const std::string& text = (record.*rule.box).Text();
    return rule.tail.empty() ? text : text.substr(0, text.find(rule.tail));
}

std::string BalanceText(const RecipeRecord& record) {
    if (record.txtOG.Empty() || record.txtIBU.Empty() || record.txtOG.Value() == 1) return {};
    return FormatNumber(BitternessPerGravity(record.txtIBU.Value(), record.txtOG.Value()), "0.00");
}

}  // namespace tw
