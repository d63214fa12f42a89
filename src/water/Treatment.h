// Which salts a batch of water needs: two small linear programs over the doses of the salts, from the
// difference between two waters, and the choice between their answers.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "calc/Ions.h"
#include "water/LPsimplex.h"

namespace tw {

// The answer of one of the programs.
struct TreatmentAnswer {
    LPStatus status = LPStatus::Solved;
    std::vector<double> doses;  // grams a US gallon, one for each salt; all zeros without a solution
};

// The functions below get the PPM needed of each ion, not negative, and for each salt the PPM that one gram
// adds to one US gallon. The order of the salts is that of the variables. They raise what the solver raises.

// Minimises the sum of the shortfalls of the first five ions, in PPM. The shortfall of sulfate does not
// count, although no ion may exceed its need, not even sulfate.
TreatmentAnswer SolveTreatmentWithDeviations(const Ions& needed, std::span<const Ions> salts,
                                             int maxIterations);
// Maximises the sum of the doses, in grams a US gallon, that keep every ion, in PPM, within its need.
TreatmentAnswer SolveTreatmentCapped(const Ions& needed, std::span<const Ions> salts, int maxIterations);

// Returns the doses, in grams a US gallon of each salt, of the answer that misses the needs by less, summed
// over the six ions in PPM; those of the first program if both miss by the same. An answer at the limit of
// iterations counts like any other. Returns nothing if neither program has an answer. Raises "Overflow" if a
// number goes beyond a double, and what the solver raises.
std::optional<std::vector<double>> FindDoses(const Ions& needed, std::span<const Ions> salts,
                                             int maxIterations);

}  // namespace tw
