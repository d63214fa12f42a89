// Hop utilisation by the three bitterness methods, and the bitterness of one addition.
#pragma once

namespace tw {

enum class IbuMethod : int { Tinseth = 0, Rager = 1, Garetz = 2 };

// Each utilisation is a fraction of 1. boilSG is the specific gravity of the boil, minutes the boil time, not
// negative.

// Glenn Tinseth ("Glenn's Hop Utilization Numbers", 1997): the bigness factor 1.65 * 0.000125^(boilSG - 1)
// times the boil time factor (1 - e^(-0.04 minutes)) / 4.15. His table runs from 1.030 to 1.130 and to 120
// minutes; outside the formula goes on. Raises "Overflow" where that is beyond all numbers.
double TinsethUtilisation(double boilSG, double minutes);
// Jackie Rager's method ("Calculating Hop Bitterness in Beer", Zymurgy, special issue 1990), before the
// gravity adjustment, with a table of the program's own, linear between its points: 0 to 0.27 over 0 to 89
// minutes; 0.27 from 90 on. Between 89 and 90 minutes, both exclusive, it is 0: a hole in the table as built,
// kept on purpose.
double RagerTableUtilisation(double minutes);
// Mark Garetz's table (Using Hops, 1994), linear between its points, before the gravity adjustment: 0 until 5
// minutes, then rising to 0.23 at 90, and 0.23 beyond. His hopping-rate and temperature corrections are not
// applied, on purpose.
double GaretzTableUtilisation(double minutes);
// The divisor of both tables, as Rager and Garetz have it: 1 + (boilSG - 1.05) / 0.2 above 1.050,
// otherwise 1. It has no upper limit.
double GravityAdjustment(double boilSG);

// One addition of hops.
struct HopAddition {
    double alphaAcidOunces;  // weight of the alpha acid
    double formFactor;       // multiplier of the hop form and the sock
    double minutes;          // boil time
};
// The kettle that it goes into.
struct HopKettle {
    double boilGravity;    // specific gravity
    double totalVolume;    // US gallons
    double hopExtraction;  // multiplier
};
// IBUs: milligrams of dissolved alpha acid in a litre, an ounce in a US gallon being 7490 (Tinseth) or 7489.
// Raises "Division by zero" for a total volume of 0.
double HopBitterness(IbuMethod method, const HopAddition& hop, const HopKettle& kettle);

// All three methods for one gravity and time, in percent.
struct UtilisationFigures {
    double tinseth, rager, garetz;  // percent
};
UtilisationFigures UtilisationAt(double boilSG, double minutes);

}  // namespace tw
