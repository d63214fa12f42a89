// The units that other programs write behind their figures, and the one unit of each kind in which a
// ForeignRecipe holds them.
#pragma once

#include <cstdint>
#include <string_view>

namespace tw {

// The comment says the unit in which a ForeignRecipe holds the kind.
enum class UnitKind : std::uint8_t {
    Mass,           // kilograms
    Volume,         // litres
    Pieces,         // pieces
    Temperature,    // degrees Celsius
    Time,           // minutes
    Percent,        // percent
    Gravity,        // specific gravity
    Colour,         // SRM
    Bitterness,     // IBUs
    Carbonation,    // volumes of CO2
    Concentration,  // milligrams per litre
    Pressure        // kilopascals
};

struct ForeignUnit {
    UnitKind kind;
    std::string_view shown;  // as a brewer reads it: "lb"; empty if the program's texts have no word for it
    double factor = 1;       // of the unit above
    double (*convert)(double) = nullptr;  // to the unit above where no factor does; nullptr for the others

    double ToBase(double value) const { return convert != nullptr ? convert(value) : value * factor; }
    bool IsBase() const { return convert == nullptr && factor == 1; }
};

// Returns the unit of that kind that the word means: "lbs", "Pounds", "fl. oz", "deg C", "IBUs". Case,
// blanks, points and degree signs do not count. nullptr if there is none.
const ForeignUnit* FindUnit(UnitKind kind, std::string_view word);
// Returns the unit of the amount that the word means, of mass, volume or pieces; nullptr if there is none.
const ForeignUnit* FindAmountUnit(std::string_view word);

inline constexpr double kKilogramsPerPound = 0.45359237;  // exact: the international pound of 1959
inline constexpr double kLitresPerGallon = 3.785411784;   // exact: 231 cubic inches, the US gallon
inline constexpr double kEbcPerSrm = 1.97;                // the colour methods of the EBC and the ASBC

// Returns the SRM colour of wort from malt of so many degrees Lovibond: 1.3546 L - 0.76, the usual linear fit
// of malt analyses. 0 stays 0 and nothing is below 0.
double SrmOfLovibond(double lovibond);
// Inverts SrmOfLovibond for an SRM above 0; 0 stays 0.
double LovibondOfSrm(double srm);

}  // namespace tw
