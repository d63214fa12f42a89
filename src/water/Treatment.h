// Which salts a batch of water needs: the difference between two waters as two small linear programs over the
// doses of the salts, and the choice between their answers.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "calc/Ions.h"
#include "water/LPsimplex.h"

namespace tw {

// What one of the programs says.
struct TreatmentAnswer {
    LPStatus status = LPStatus::Solved;
    std::vector<double> doses;  // grams a gallon, one for each salt; all zeros without a solution
};

// Both take what is needed of each ion in PPM, not negative, and for each salt what one gram adds to one
// gallon in PPM; the order of the salts is that of the variables. They raise as the solver does.
//
// The smallest sum of the shortfalls of the first five ions. That of sulfate counts for nothing, although no
// ion may overshoot its need, sulfate included: intended.
TreatmentAnswer SolveTreatmentWithDeviations(const Ions& needed, std::span<const Ions> salts,
                                             int maxIterations);
// As many grams as the needs allow.
TreatmentAnswer SolveTreatmentCapped(const Ions& needed, std::span<const Ions> salts, int maxIterations);

// Grams a gallon of each salt: the doses of the answer that misses the needs by less, summed over the six
// ions; the first program's for a tie. An answer at the limit of iterations counts as it stands. Nothing when
// neither program has one. Raises "Overflow" when a number goes beyond a double, and what the solver raises.
std::optional<std::vector<double>> FindDoses(const Ions& needed, std::span<const Ions> salts,
                                             int maxIterations);

}  // namespace tw
