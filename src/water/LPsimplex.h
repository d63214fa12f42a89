// A two-phase revised simplex solver for small linear programs over variables that are not negative. Its
// steps and the order of its arithmetic are fixed, and every comparison is with exactly zero, so that a
// program has the same answer everywhere, to the last bit. There is no tolerance and no rule against cycling:
// a rounding error may make a program infeasible, and a cycle ends at the limit of iterations.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "water/ColumnMatrix.h"
#include "water/LinearSystem.h"

namespace tw {

enum class LPRow : std::uint8_t { AtMost, AtLeast, Equal };

enum class LPStatus : std::uint8_t {
    Solved = 0,
    NoSolution = 1,     // infeasible or unbounded
    IterationLimit = 2  // the point reached may be neither optimal nor feasible
};

// An object solves one program: call Initialize, then SpecifyObjective and AddConstraint in any order, then
// Solve once. These raise "Overflow" if a number is, or becomes, infinite or NaN. All numbers are in the
// caller's units; the solver knows none.
class LPsimplex {
  public:
    // Sets the sizes of the program. Raises "Subscript out of range" if one is negative.
    void Initialize(int numVars, int numConstraints);

    // Sets the objective to the first numVars coefficients. Raises "Subscript out of range" if there are
    // fewer.
    void SpecifyObjective(std::span<const double> coefficients, bool minimise);

    // Fills the next row with the first numVars coefficients. A row that is never filled is 0 <= 0. Raises
    // "Subscript out of range" if there are fewer coefficients, or if all rows are filled.
    void AddConstraint(std::span<const double> coefficients, double rightHandSide, LPRow type);

    // Makes at most maxIterations + 1 iterations; an optimum found by the last of them still counts as the
    // limit. Raises "Division by zero" if phase one leaves an artificial variable in the basis and the basis
    // cannot be completed.
    LPStatus Solve(int maxIterations);

    // Returns the values of the variables, no minus zero among them: the optimum, the current basic point at
    // the limit, all zeros if there is no solution or if Solve has raised.
    const std::vector<double>& Solution() const { return solution_; }
    // Returns the iterations of Solve, both phases together.
    std::int64_t Iterations() const { return iterations_; }
    // Returns the objective, in the caller's sign, of the last optimum that Solve has found; that of phase
    // one is the sum of the artificial variables. Returns 0 if none was found.
    double Objective() const { return objectiveValue_; }

  private:
    enum class Outcome : std::uint8_t { Pivoted, Optimal, Unbounded };

    // All that the further steps depend on, to recognise a cycle.
    struct Milestone {
        std::vector<int> basis;
        std::vector<int> nonBasis;
        std::vector<double> basicValues;
        std::int64_t iteration = 0;
    };

    void SetupBasis();
    void AddSlacks();
    void SetupPhaseOne();
    void GetRidOfArtificials();
    void ListInColumnOrder(const std::vector<char>& basic, const std::vector<double>& valueOf);
    double ObjectiveValue() const;
    Outcome Iterate();
    void ComputeMultipliers();
    void PriceColumns();
    int ChooseEntering();
    void ComputeDirection(int column);
    bool IsUnbounded() const;
    int ChooseLeaving();
    void UpdateBasis(int entering, int leaving);
    void SkipCycle(int maxIterations);
    void GetSolution();
    bool IsArtificial(int column) const { return column >= firstArtificial_; }

    int numVars_ = 0;
    int numConstraints_ = 0;
    std::vector<ColumnMatrix::Place> given_;  // the caller's coefficients, row by row
    std::vector<int> rowEnds_;                // where the rows end in given_
    std::vector<double> rhs_;
    std::vector<LPRow> rowTypes_;
    int nextRow_ = 0;
    bool minimising_ = true;

    ColumnMatrix matrix_;  // structural columns, then slack and surplus columns, then artificial ones
    int firstArtificial_ = 0;
    bool phaseOne_ = false;
    bool savedMinimising_ = true;
    std::vector<double> costs_;
    std::vector<double> savedCosts_;
    std::vector<int> basis_;
    std::vector<int> nonBasis_;
    std::vector<double> basicValues_;

    std::unique_ptr<LinearSystem> system_;
    std::vector<double> rightSide_;
    std::vector<double> multipliers_;
    std::vector<double> products_;  // of each column with the multipliers
    std::vector<double> direction_;
    double theta_ = 0;
    double objectiveValue_ = 0;
    std::vector<double> solution_;
    std::int64_t iterations_ = 0;
    Milestone milestone_;
};

}  // namespace tw
