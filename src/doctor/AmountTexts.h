// Amounts of foreign recipes as a brewer would type them: in the units of the file, in US or in metric units,
// with the fewest decimals that keep the quantity.
#pragma once

#include <cstdint>
#include <string>

#include "exchange/ForeignRecipe.h"

namespace tw {

// Which units the texts of imported recipes have; the numbers are those of the setting ImportUnits.
enum class ImportUnits : std::uint8_t { AsInFile = 0, US = 1, Metric = 2 };

// What is weighed, which decides about the unit: malt in pounds or kilograms, hops in ounces or grams.
enum class Weighed : std::uint8_t { Malt, Hops, PrimingSugar, Salt, Other };

// Units are exact: 0.45359237 kg a pound, 3.785411784 l a gallon (international yard and pound agreement of
// 1959; US liquid gallon of 231 cubic inches).
class AmountTexts {
  public:
    // For a recipe whose file does not say in which units it was typed, its batch size does: US units if it
    // is a multiple of half a gallon, within 0.2 %, and none of half a litre.
    AmountTexts(ImportUnits units, const ForeignRecipe& recipe);

    // REQUIRES: amount.of is Volume.
    std::string Volume(const ForeignAmount& amount) const;
    // REQUIRES: amount.of is Mass.
    std::string Weight(const ForeignAmount& amount, Weighed what) const;
    // An amount of any kind; pieces with the word in which they are counted.
    std::string Any(const ForeignAmount& amount, Weighed what) const;
    // Returns the temperature with its unit.
    std::string Temperature(double celsius) const;

  private:
    std::string WeightIn(bool us, double kilograms, Weighed what) const;

    bool asInFile_;
    bool us_;
};

// Returns value with the fewest decimals, up to four, that keep it within 0.02 %.
std::string FewestDecimals(double value);
// Returns a specific gravity with three decimals, or four if three lose a tenth of a point or more.
std::string GravityText(double gravity);
inline constexpr double kMinutesPerDay = 1440;
std::string MinutesText(double minutes);  // "60 min"
// Returns a time: whole days as "7 days" from one day on, else minutes.
std::string TimeText(double minutes);

}  // namespace tw
