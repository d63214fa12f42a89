// The steps of the solver in a plain, dense and slow version for comparison: every element is visited,
// every number is checked.
#pragma once

#include <vector>

#include "LPTest.h"

namespace tw {

struct LPAnswer {
    enum class Kind { Answered, Overflow, DivisionByZero };
    Kind kind = Kind::Answered;
    LPStatus status = LPStatus::Solved;
    std::vector<double> x = {};
    long long iterations = 0;
    double objective = 0;
    bool completedBasis = false;   // phase one has left an artificial variable in the basis
    bool artificialStays = false;  // completing the basis has added one again
};

// Returns the result of the steps. An error is reported by kind; x is then all zeros.
LPAnswer SolvePlainly(const LinearProgram& program, int maxIterations);

using Matrix = std::vector<std::vector<double>>;
// Only the completion of a basis: returns the order of the columns. Raises the same errors as the steps.
std::vector<int> AugmentPlainly(Matrix columnsByRow, std::vector<int> basis);
// Only elimination and back substitution. Raises "Overflow".
std::vector<double> SolveSystemPlainly(Matrix a, std::vector<double> b);

}  // namespace tw
