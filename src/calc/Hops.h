// Hop utilisation by the three bitterness methods, and the bitterness of one addition.
#pragma once

namespace tw {

enum class IbuMethod : int { Tinseth = 0, Rager = 1, Garetz = 2 };

// Each as a fraction of 1. boilGravity is a specific gravity, minutes the boil time (not negative).

// Glenn Tinseth's bigness factor times his boil time factor.
double TinsethUtilisation(double boilGravity, double minutes);
// Jackie Rager's table, linear between its points, before the gravity adjustment. Between 89 and 90 minutes,
// both exclusive, it is 0: a hole in the table as built, kept on purpose.
double RagerTableUtilisation(double minutes);
// Mark Garetz's table, linear between its points, before the gravity adjustment. His hopping-rate and
// temperature corrections are not applied, on purpose.
double GaretzTableUtilisation(double minutes);
// The divisor of both tables: 1 + (boilGravity - 1.05) / 0.2 above 1.050, otherwise 1.
double GravityAdjustment(double boilGravity);

// One addition of hops.
struct HopAddition {
    double alphaAcidOunces;  // alpha acid, ounces
    double formFactor;       // of the hop form and the sock
    double minutes;          // boil time
};
// The kettle that it goes into.
struct HopKettle {
    double boilGravity;    // specific gravity
    double totalVolume;    // gallons
    double hopExtraction;  // multiplier
};
// IBUs. Raises "Division by zero" for a total volume of 0.
double HopBitterness(IbuMethod method, const HopAddition& hop, const HopKettle& kettle);

// All three methods for one gravity and time, in percent.
struct UtilisationFigures {
    double tinseth, rager, garetz;
};
UtilisationFigures UtilisationAt(double gravity, double minutes);

}  // namespace tw
