// The formulas behind the figures of a recipe, as functions of plain numbers. Gallons are US gallons, ounces
// weights. Unless said otherwise, they raise "Division by zero" or "Overflow" where a result would not be a
// finite number.
#pragma once

#include <optional>

namespace tw {

// What original and final gravity say about a beer.
struct AlcoholFigures {
    double originalExtract;  // degrees Plato
    double apparentExtract;  // degrees Plato
    double realExtract;      // degrees Plato
    double byWeight;         // percent
    double byVolume;         // percent
};
// Computes extracts and alcohol by Carl Balling's relation between fermented extract and alcohol (19th
// century), in the form that Michael Hall gives it ("Brew by the Numbers", Zymurgy, Summer 1995): real
// extract from original and apparent extract with q = 0.22 + 0.001 OE, alcohol by weight = fermented extract
// / (2.0665 - 0.010655 OE), by volume through the density of alcohol, 0.794. Valid for beers, to about 20
// degrees Plato. Nothing is limited outside; a finalSG above originalSG yields a negative alcohol.
AlcoholFigures ComputeAlcohol(double originalSG, double finalSG);

// Returns the specific gravity of a wort after an apparent attenuation, which applies to the extract in
// degrees Plato, not to the gravity points. By the definition of apparent attenuation, (OE - AE) / OE. Valid
// for 0 to 100 percent; the same rule applies outside.
double AttenuatedGravity(double originalSG, double attenuationPercent);

// Returns the calories (kcal) of 12 fl. oz. of beer, which are 3.55 times 100 ml. The form is that of the
// ASBC Methods of Analysis with factors of the program's own: 4.08 for a gram of extract (ASBC: 4, less the
// ash), 7.1 for a gram of alcohol (ASBC: 6.9). Valid for beers; nothing is limited outside.
double CaloriesPer12FlOz(double realExtractPlato, double alcoholPercentByWeight, double finalSG);

// Returns the volumes of CO2 left in beer that has fermented at that temperature: Hall's quadratic fit ("Brew
// by the Numbers", Zymurgy, Summer 1995). Valid from freezing to fermentation temperatures. Nothing is
// limited outside: above 94 degrees F, the vertex of the parabola, the result rises again.
double ResidualCO2(double fahrenheit);
// Returns the gauge pressure in psi that holds that many volumes of CO2 in beer at that temperature: Hall's
// fit of the carbonation chart (same article). Valid where the chart is, from 30 to 60 degrees F and to about
// 30 psi. Nothing is limited outside; a little gas yields a negative pressure.
double KegPressure(double fahrenheit, double volumes);
// Returns the volumes of CO2, not negative, that a gauge pressure holds at that temperature, or nothing if
// there are none: KegPressure solved for the volumes, valid in the same range.
std::optional<double> KegVolumes(double fahrenheit, double psi);
// Returns the volumes of CO2 that a weight of sugar adds to beer. The figures are the program's own: a fully
// fermentable ounce adds 0.27027 / 0.133 = 2.032 volumes to a gallon. Proportional throughout; nothing is
// limited.
double PrimingVolumes(double ounces, double fermentablePercent, double gallons);
// Returns the weight of sugar that adds that many volumes of CO2: PrimingVolumes solved for the ounces.
double PrimingOunces(double volumes, double fermentablePercent, double gallons);

}  // namespace tw
