// The quantities that the texts of recipes state, in the exact units of other programs (ForeignUnits.h); the
// program's own factors are rounded.
#pragma once

#include <optional>
#include <string_view>

#include "exchange/ForeignRecipe.h"
#include "exchange/ForeignUnits.h"

namespace tw {

inline constexpr double kKilogramsPerOunce = kKilogramsPerPound / 16;

// Returns the word at the end of an amount: "lb" for "9.25 lb", "fl oz" for "8 fl oz".
std::string_view UnitWordOf(std::string_view amount);

// Each returns the quantity that a text states with a unit, such as "9 lb 4 oz" or "1 1/2 gal"; nullopt for
// any other text.
std::optional<double> KilogramsIn(std::string_view text);
std::optional<double> LitresIn(std::string_view text);
// Returns the minutes of "60 min", "7 days" or "1 1/2 h"; a number without a unit is in minutes.
std::optional<double> MinutesIn(std::string_view text);
// Returns a weight, a volume or a number of pieces ("2", "1 pkg"); nullopt for a text without a number.
std::optional<ForeignAmount> AmountIn(std::string_view text);

}  // namespace tw
