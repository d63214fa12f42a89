// Notation for linear programs in tests.
#pragma once

#include <cstdint>
#include <vector>

#include "water/LPsimplex.h"

namespace tw {

struct LinearProgram {
    int vars = 0;
    std::vector<double> objective = {};
    bool minimise = true;
    struct Row {
        std::vector<double> coefficients;
        LPRow type;
        double rightSide;
    };
    std::vector<Row> rows = {};
};

struct Solved {
    LPStatus status;
    std::vector<double> x;
    std::int64_t iterations;
    double objective;
};

inline Solved SolveProgram(const LinearProgram& program, int maxIterations) {
    LPsimplex simplex;
    simplex.Initialize(program.vars, static_cast<int>(program.rows.size()));
    simplex.SpecifyObjective(program.objective, program.minimise);
    for (const LinearProgram::Row& row : program.rows)
        simplex.AddConstraint(row.coefficients, row.rightSide, row.type);
    const LPStatus status = simplex.Solve(maxIterations);
    return {status, simplex.Solution(), simplex.Iterations(), simplex.Objective()};
}

}  // namespace tw
