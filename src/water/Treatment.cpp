#include "water/Treatment.h"

#include <cmath>

#include "platform/Error.h"

namespace tw {
namespace {

constexpr std::size_t kIonCount = std::tuple_size_v<Ions>;
constexpr std::size_t kSulfate = kIonCount - 1;

// Returns by how much the doses miss the needs, the sum over all ions, in PPM.
double MissOf(const std::vector<double>& doses, const Ions& needed, std::span<const Ions> salts) {
    double miss = 0;
    for (std::size_t ion = 0; ion < kIonCount; ++ion) {
        double added = 0;
        for (std::size_t salt = 0; salt < salts.size(); ++salt)
            added = Finite(added + Finite(doses[salt] * salts[salt][ion]));
        miss = Finite(miss + std::fabs(Finite(needed[ion] - added)));
    }
    return miss;
}

}  // namespace

TreatmentAnswer SolveTreatmentWithDeviations(const Ions& needed, std::span<const Ions> salts,
                                             int maxIterations) {
    const std::size_t variables = kIonCount + salts.size();
    LPsimplex simplex;
    simplex.Initialize(static_cast<int>(variables), static_cast<int>(variables));
    std::vector<double> costs(variables, 0.0);
    for (std::size_t ion = 0; ion < kSulfate; ++ion) costs[ion] = 1;
    simplex.SpecifyObjective(costs, true);
    for (std::size_t ion = 0; ion < kIonCount; ++ion) {
        std::vector<double> row(variables, 0.0);
        row[ion] = 1;
        for (std::size_t salt = 0; salt < salts.size(); ++salt) row[kIonCount + salt] = salts[salt][ion];
        simplex.AddConstraint(row, needed[ion], LPRow::Equal);
    }
    // The solver itself keeps every variable at zero or above; these rows are there because they decide its
    // steps.
    for (std::size_t salt = 0; salt < salts.size(); ++salt) {
        std::vector<double> row(variables, 0.0);
        row[kIonCount + salt] = 1;
        simplex.AddConstraint(row, 0, LPRow::AtLeast);
    }
    const LPStatus status = simplex.Solve(maxIterations);
    const std::vector<double>& x = simplex.Solution();
    return {status, std::vector<double>(x.begin() + kIonCount, x.end())};
}

TreatmentAnswer SolveTreatmentCapped(const Ions& needed, std::span<const Ions> salts, int maxIterations) {
    LPsimplex simplex;
    simplex.Initialize(static_cast<int>(salts.size()), static_cast<int>(kIonCount));
    simplex.SpecifyObjective(std::vector<double>(salts.size(), 1.0), false);
    for (std::size_t ion = 0; ion < kIonCount; ++ion) {
        std::vector<double> row;
        for (const Ions& salt : salts) row.push_back(salt[ion]);
        simplex.AddConstraint(row, needed[ion], LPRow::AtMost);
    }
    const LPStatus status = simplex.Solve(maxIterations);
    return {status, simplex.Solution()};
}

std::optional<std::vector<double>> FindDoses(const Ions& needed, std::span<const Ions> salts,
                                             int maxIterations) {
    TreatmentAnswer deviations = SolveTreatmentWithDeviations(needed, salts, maxIterations);
    TreatmentAnswer capped = SolveTreatmentCapped(needed, salts, maxIterations);
    const bool noDeviations = deviations.status == LPStatus::NoSolution;
    const bool noCapped = capped.status == LPStatus::NoSolution;
    if (noDeviations && noCapped) return std::nullopt;
    if (noDeviations) return std::move(capped.doses);
    if (noCapped) return std::move(deviations.doses);
    const double missOfDeviations = MissOf(deviations.doses, needed, salts);
    const double missOfCapped = MissOf(capped.doses, needed, salts);
    return std::move(missOfCapped >= missOfDeviations ? deviations.doses : capped.doses);
}

}  // namespace tw
