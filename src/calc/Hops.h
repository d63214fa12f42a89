// Hop utilisation by the three bitterness methods, and the bitterness of one addition.
#pragma once

namespace tw {

enum class IbuMethod : int { Tinseth = 0, Rager = 1, Garetz = 2 };

// Each utilisation is a fraction of 1. boilSG is the specific gravity of the boil; minutes is the boil time,
// which must not be negative.

// Returns Glenn Tinseth's utilisation ("Glenn's Hop Utilization Numbers", 1997): the bigness factor 1.65 *
// 0.000125^(boilSG - 1) times the boil time factor (1 - e^(-0.04 minutes)) / 4.15. Valid where his table is,
// from 1.030 to 1.130 and to 120 minutes; nothing is limited outside. Raises "Overflow" where the result is
// not finite.
double TinsethUtilisation(double boilSG, double minutes);
// Returns Jackie Rager's utilisation ("Calculating Hop Bitterness in Beer", Zymurgy, special issue 1990)
// before the gravity adjustment, from a table of the program's own, linear between its points: 0 to 0.27 from
// 0 to 89 minutes, 0.27 from 90 on. Between 89 and 90 minutes, both exclusive, it is 0: a hole in the table,
// kept so that recipes keep their bitterness.
double RagerTableUtilisation(double minutes);
// Returns Mark Garetz's utilisation (Using Hops, 1994) before the gravity adjustment, linear between the
// points of his table: 0 until 5 minutes, then rising to 0.23 at 90, and 0.23 beyond. His corrections for
// hopping rate and temperature are not applied: a recipe does not hold what they need.
double GaretzTableUtilisation(double minutes);
// Returns the divisor of both tables, which has no unit, as Rager and Garetz define it: 1 + (boilSG - 1.05) /
// 0.2 above 1.050, otherwise 1. It has no upper limit.
double GravityAdjustment(double boilSG);

// One addition of hops.
struct HopAddition {
    double alphaAcidOunces;  // weight of the alpha acid
    double formFactor;       // multiplier of the hop form and the sock
    double minutes;          // boil time
};
// The kettle that the hops go into.
struct HopKettle {
    double boilGravity;    // specific gravity
    double totalVolume;    // US gallons
    double hopExtraction;  // multiplier
};
// Returns the IBUs of an addition: milligrams of dissolved alpha acid a litre, where an ounce in a US gallon
// is 7490 (Tinseth) or 7489 (Rager, Garetz). Valid where the utilisation is. Raises "Division by zero" for a
// total volume of 0, "Overflow" where the result is not finite.
double HopBitterness(IbuMethod method, const HopAddition& hop, const HopKettle& kettle);

// Returns the balance of bitterness and gravity as Ray Daniels defines it (Designing Great Beers, 1996): IBUs
// divided by gravity units, (originalSG - 1) * 1000. Most beers lie between 0.2 and 1.2; nothing is limited.
// Raises "Division by zero" for an original gravity of 1.
double BitternessPerGravity(double ibu, double originalSG);

// The utilisation by all three methods.
struct UtilisationFigures {
    double tinseth, rager, garetz;  // percent
};
// Returns the utilisations for a gravity and a time; sources and valid ranges are those of the functions
// above.
UtilisationFigures UtilisationAt(double boilSG, double minutes);

}  // namespace tw
