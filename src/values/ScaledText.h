// Multiplies an amount in the form in which it was typed: "8 lb 4 oz" doubled is "16 lb 8 oz".
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tw {

// What an amount is. This decides what a bare number and an ambiguous word such as "oz" mean.
enum class AmountKind : std::uint8_t {
    Volume,     // a bare number is in gallons
    Pounds,     // a weight; a bare number is in pounds
    Ounces,     // a weight; a bare number is in ounces
    Grams,      // a weight; a bare number is in grams
    HopAmount,  // a weight as Ounces, AAUs or IBUs
    Pressure    // a bare number is in psi
};

// Returns text with its amount multiplied by factor, with the same unit written in the same way. Nothing if
// the amount or its unit cannot be read.
//
// The new number is rounded as a scale or a measuring cup of that unit is read: to a tenth of a gram, a
// millilitre or a kilopascal, to three decimals of a kilogram, an atmosphere, and of grams of salt, and to
// two decimals of everything else. An amount that would become 0 keeps one digit instead. Pounds with ounces
// behind them stay both: whole pounds, and ounces to a tenth, even if one of them is 0. Fractions become
// decimals: "2 1/2 qt" times 1.5 is "3.75 qt". A word that was in the singular for 1 follows the new number,
// as does a plural: "1 cup" doubled is "2 cups". A remark in brackets is dropped, since it may give the old
// amount in another unit.
//
// Raises "Division by zero" and "Overflow" as the parsers do. REQUIRES: factor is finite and not negative.
std::optional<std::string> ScaledText(std::string_view text, double factor, AmountKind kind);

}  // namespace tw
