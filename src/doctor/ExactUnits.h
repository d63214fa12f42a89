// The units of amounts in the texts of recipes, with their exact sizes, and the quantities that such texts
// state. The program's own factors are rounded; other programs get and give exact ones.
#pragma once

#include <optional>
#include <string_view>

#include "exchange/ForeignRecipe.h"

namespace tw {

// The international pound of 1959, and the US liquid gallon of 231 cubic inches.
inline constexpr double kKilogramsPerPound = 0.45359237;
inline constexpr double kKilogramsPerOunce = kKilogramsPerPound / 16;
inline constexpr double kLitresPerGallon = 3.785411784;

// A unit as files and brewers write it (in upper case), the word that the program writes, and its size in
// kilograms or litres.
struct ExactUnit {
    std::string_view written;
    std::string_view word;
    double size;
};

// Each returns the unit of that word in any case, with or without a point; nullptr if there is none.
const ExactUnit* WeightUnit(std::string_view word);
const ExactUnit* VolumeUnit(std::string_view word);

// Returns the word at the end of an amount: "lb" for "9.25 lb".
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
