// The words that the brewer may write for each unit. One word may name several units ("G" gallons and grams,
// "P" pints and Plato); the caller knows which one is meant.
#pragma once

#include <cstdint>
#include <string_view>

namespace tw {

enum class Unit : std::uint8_t {
    SG,
    Plato,
    Gallons,
    Quarts,
    Pints,
    Cups,
    FluidOunces,
    Tablespoons,
    Teaspoons,
    Liters,
    Milliliters,
    Pounds,
    Ounces,
    Grams,
    Kilograms,
    Percent,
    AAU,
    IBU,
    CO2Volumes,
    Minutes,
    Hours,
    Seconds,
    Fahrenheit,
    Celsius,
    Kelvin,
    PSI,
    KPa,
    Pa,
    Atm
};

// A set of units.
class UnitSet {
  public:
    constexpr UnitSet() = default;
    constexpr bool Has(Unit unit) const { return (bits_ & Bit(unit)) != 0; }
    constexpr void Add(Unit unit) { bits_ |= Bit(unit); }

  private:
    static constexpr std::uint32_t Bit(Unit unit) { return std::uint32_t{1} << static_cast<unsigned>(unit); }
    std::uint32_t bits_ = 0;
};

// Returns the units that the whole of word names: those that a bare number may mean for the empty word, none
// for an unknown word. REQUIRES: word is in upper case.
UnitSet UnitsOf(std::string_view word);

// True for the words that may stand between a number and the name of a temperature or Plato scale.
bool IsDegreeWord(std::string_view word);
// True for the words that may stand between a number and "OZ" for fluid ounces.
bool IsFluidWord(std::string_view word);

}  // namespace tw
