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
// og, fg: specific gravity. Balling's relation in its usual brewing form: real extract from original and
// apparent extract with q = 0.22 + 0.001 OE, alcohol by weight from the extract fermented. An fg above og
// gives a negative alcohol, as such.
AlcoholFigures ComputeAlcohol(double og, double fg);

// Final gravity of a wort of that original gravity after an apparent attenuation in percent; the attenuation
// applies to the extract in degrees Plato, not to gravity points.
double AttenuatedGravity(double og, double attenuationPercent);

// Calories of 12 fl. oz. of beer: extract (degrees Plato), alcohol by weight (percent), final gravity.
double CaloriesPer12FlOz(double realExtract, double alcoholByWeight, double fg);

// Volumes of CO2 left in beer at that temperature (degrees F): the usual quadratic fit of solubility.
double ResidualCO2(double fahrenheit);
// Keg pressure in psi that holds that many volumes of CO2 at that temperature (degrees F): the usual fit of
// the carbonation chart.
double KegPressure(double fahrenheit, double volumes);
// The non-negative volumes of CO2 that a keg pressure (psi) gives at that temperature (degrees F), solving
// KegPressure for volumes; nothing when there are none.
std::optional<double> KegVolumes(double fahrenheit, double psi);
// Volumes of CO2 from that many ounces of a sugar in that many gallons of beer.
double PrimingVolumes(double ounces, double fermentablePercent, double gallons);
// Ounces of a sugar that give that many volumes of CO2 to that many gallons of beer: PrimingVolumes solved
// for the ounces.
double PrimingOunces(double volumes, double fermentablePercent, double gallons);

}  // namespace tw
