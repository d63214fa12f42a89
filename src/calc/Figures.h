// The formulas of a recipe's figures as functions of numbers alone. Unless said otherwise they raise
// "Division by zero" or "Overflow" where a result would not be a finite number.
#pragma once

#include <optional>

namespace tw {

// What original and final gravity say about the beer.
struct AlcoholFigures {
    double originalExtract;  // degrees Plato
    double apparentExtract;  // degrees Plato
    double realExtract;      // degrees Plato
    double byWeight;         // percent
    double byVolume;         // percent
};
// Carl Balling's relation between extract fermented and alcohol (19th century), in the form that Michael Hall
// gives it ("Brew by the Numbers", Zymurgy, Summer 1995): real extract from original and apparent extract
// with q = 0.22 + 0.001 OE, alcohol by weight = extract fermented / (2.0665 - 0.010655 OE), by volume through
// the density of alcohol, 0.794. Holds for beers, to about 20 degrees Plato. Nothing is limited outside: a
// finalSG above originalSG gives a negative alcohol, as such.
AlcoholFigures ComputeAlcohol(double originalSG, double finalSG);

// The specific gravity of a wort of that original gravity after an apparent attenuation, which applies to the
// extract in degrees Plato and not to gravity points; apparent attenuation by its definition, (OE - AE) / OE.
// For 0 to 100 percent; more or less goes on by the same rule.
double AttenuatedGravity(double originalSG, double attenuationPercent);

// Calories (kcal) of 12 fl. oz. of beer, of which 100 ml go 3.55 times into the bottle. The program's own
// factors: 4.08 for a gram of extract, 7.1 for a gram of alcohol. The form is that of the ASBC's method of
// analysis, which takes 4 and 6.9 and leaves the ash out. Nothing is limited.
double CaloriesPer12FlOz(double realExtractPlato, double alcoholPercentByWeight, double finalSG);

// Volumes of CO2 left in beer that has fermented at that temperature: Hall's quadratic fit ("Brew by the
// Numbers", Zymurgy, Summer 1995). Holds from freezing to the temperatures of fermentation; above 94 degrees
// F, where the parabola turns, it rises again, which is kept.
double ResidualCO2(double fahrenheit);
// Gauge pressure in psi that holds that many volumes of CO2 in beer at that temperature: Hall's fit of the
// carbonation chart (the same article). The chart holds for 30 to 60 degrees F and to about 30 psi; outside
// the fit goes on unchecked, and a little gas gives a negative pressure.
double KegPressure(double fahrenheit, double volumes);
// The non-negative volumes of CO2 that a gauge pressure gives at that temperature: KegPressure solved for the
// volumes, within the same range; nothing when there are none.
std::optional<double> KegVolumes(double fahrenheit, double psi);
// Volumes of CO2 from that many ounces (weight) of a sugar in that many US gallons of beer. The program's own
// figures: an ounce that ferments wholly gives a gallon 0.27027 / 0.133 = 2.032 volumes. Proportional
// throughout; nothing is limited.
double PrimingVolumes(double ounces, double fermentablePercent, double gallons);
// Ounces of a sugar that give that many volumes of CO2 to that many US gallons of beer: PrimingVolumes solved
// for the ounces.
double PrimingOunces(double volumes, double fermentablePercent, double gallons);

}  // namespace tw
