// The solver's steps written down plainly, dense and without any haste, for comparison: every place is
// visited, every number is checked.
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
    bool completedBasis = false;   // phase one left an artificial variable in the basis
    bool artificialStays = false;  // and one came back by its completion
};

// What the steps lead to. Faults are told by kind, x is all zeros then.
LPAnswer SolvePlainly(const LinearProgram& program, int maxIterations);

using Matrix = std::vector<std::vector<double>>;
// The completion of a basis alone: the order of the columns. Raises as the steps do.
std::vector<int> AugmentPlainly(Matrix columnsByRow, std::vector<int> basis);
// Elimination and back substitution alone. Raises "Overflow".
std::vector<double> SolveSystemPlainly(Matrix a, std::vector<double> b);

}  // namespace tw
