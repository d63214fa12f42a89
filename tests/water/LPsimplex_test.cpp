// Tests of the solver with programs solved by hand, and of its limits.
#include "water/LPsimplex.h"

#include <cmath>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

#include "LPTest.h"
#include "platform/Error.h"

namespace tw {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr LPRow kAtMost = LPRow::AtMost;
constexpr LPRow kAtLeast = LPRow::AtLeast;
constexpr LPRow kEqual = LPRow::Equal;

// y enters first (cost 5), at 12 / 2 = 6, which is less than 18 / 2 = 9; then x enters at (18 - 12) / 3 = 2,
// which is less than 4 / 1. In the third iteration no column enters: 3 * 2 + 5 * 6 = 36.
const LinearProgram kTwoPivots{
    2, {3, 5}, false, {{{1, 0}, kAtMost, 4}, {{0, 2}, kAtMost, 12}, {{3, 2}, kAtMost, 18}}};

TEST(LPsimplex, StartsAtTheOriginWhereNoRowNeedsAnArtificialVariable) {
    const Solved solved = SolveProgram(kTwoPivots, 1000);
    EXPECT_EQ(solved.status, LPStatus::Solved);
    EXPECT_THAT(solved.x, ElementsAre(2, 6));
    EXPECT_EQ(solved.objective, 36);
    EXPECT_EQ(solved.iterations, 3);
}

// The corners are (6, 0) and (0, 4) with objective 12 and (2, 2) with objective 10.
TEST(LPsimplex, MinimisesThroughBothPhases) {
    const Solved solved =
        SolveProgram({2, {2, 3}, true, {{{1, 1}, kAtLeast, 4}, {{1, 2}, kAtLeast, 6}}}, 1000);
    EXPECT_EQ(solved.status, LPStatus::Solved);
    EXPECT_THAT(solved.x, ElementsAre(2, 2));
    EXPECT_EQ(solved.objective, 10);
}

// -x - y <= -4 is x + y >= 4, and -x = -3 is x = 3, so the minimum is at y = 1.
TEST(LPsimplex, TakesNegativeRightHandSides) {
    const Solved solved =
        SolveProgram({2, {1, 1}, true, {{{-1, -1}, kAtMost, -4}, {{-1, 0}, kEqual, -3}}}, 1000);
    EXPECT_EQ(solved.status, LPStatus::Solved);
    EXPECT_THAT(solved.x, ElementsAre(3, 1));
}

// One pivot, and the iteration that detects the optimum. An artificial variable would need one more
// iteration to end phase one.
TEST(LPsimplex, NeedsNoArtificialVariableForAtLeastZero) {
    const Solved solved = SolveProgram({1, {1}, false, {{{-1}, kAtLeast, -5}, {{1}, kAtLeast, 0}}}, 1000);
    EXPECT_THAT(solved.x, ElementsAre(5));
    EXPECT_EQ(solved.iterations, 2);
}

// x replaces the artificial variable at 0, which ends phase one; y enters at 3 and raises x to
// 3, which ends phase two.
TEST(LPsimplex, NeedsAnArtificialVariableForEqualToZero) {
    const Solved solved =
        SolveProgram({2, {1, 1}, false, {{{1, -1}, kEqual, 0}, {{1, 0}, kAtMost, 3}}}, 1000);
    EXPECT_EQ(solved.status, LPStatus::Solved);
    EXPECT_THAT(solved.x, ElementsAre(3, 3));
    EXPECT_EQ(solved.iterations, 4);
}

TEST(LPsimplex, LeavesZerosWhenUnbounded) {
    for (const LinearProgram& program : std::vector<LinearProgram>{
             {2, {1, 1}, false, {{{1, -1}, kAtMost, 1}}},
             {2, {1, 1}, false, {{{0, 0}, kAtMost, 1}}},
             {1, {-1}, true, {{{1}, kAtLeast, 2}}},  // detected when x is basic, at 2
             {1, {1}, false, {}},
         }) {
        const Solved solved = SolveProgram(program, 1000);
        EXPECT_EQ(solved.status, LPStatus::NoSolution);
        EXPECT_THAT(solved.x, testing::Each(0.0));
    }
}

TEST(LPsimplex, LeavesZerosWhenInfeasible) {
    const Solved solved = SolveProgram({1, {1}, true, {{{1}, kAtMost, 1}, {{1}, kAtLeast, 2}}}, 1000);
    EXPECT_EQ(solved.status, LPStatus::NoSolution);
    EXPECT_THAT(solved.x, ElementsAre(0));
}

// 0.3 / 0.1 is 2.9999999999999996 in binary, so 4.4e-16 of the second row's artificial variable remains. The
// solver uses no tolerance.
TEST(LPsimplex, TakesARoundingErrorForInfeasible) {
    const Solved solved = SolveProgram({1, {1}, true, {{{0.1}, kEqual, 0.3}, {{1}, kEqual, 3}}}, 1000);
    EXPECT_EQ(solved.status, LPStatus::NoSolution);
    EXPECT_EQ(solved.objective, 0x1p-51);
    EXPECT_THAT(solved.x, ElementsAre(0));
}

// Phase one ends with x at 2 and the second artificial variable at 0. When (1, 2) is completed, the unit
// column of the first row is larger in the rotated second row (2 / sqrt 5) than that of the second row (1 /
// sqrt 5), and y is parallel to x. So an artificial variable enters again, y is dropped, and x stays at 2
// although 0 would be possible.
TEST(LPsimplex, MayAnswerPoorerWhenAnArtificialVariableComesBack) {
    const Solved solved = SolveProgram({2, {1, 0}, true, {{{1, 1}, kEqual, 2}, {{2, 2}, kEqual, 4}}}, 1000);
    EXPECT_EQ(solved.status, LPStatus::Solved);
    EXPECT_THAT(solved.x, ElementsAre(2, 0));
}

// Phase one ends at once, with an artificial variable at 0 next to the slack (0, 1). After the rotation along
// it, the column (-2, 0) of x is larger in the second row than the artificial one, so x completes the basis,
// and y enters in phase two.
TEST(LPsimplex, GoesOnInPhaseTwoWithACompletedBasis) {
    const Solved solved =
        SolveProgram({2, {1, 1}, false, {{{-2, 0}, kEqual, 0}, {{0, 1}, kAtMost, 3}}}, 1000);
    EXPECT_EQ(solved.status, LPStatus::Solved);
    EXPECT_THAT(solved.x, ElementsAre(0, 3));
    EXPECT_EQ(solved.iterations, 3);
}

// x = 1 three times: two artificial variables complete the basis, and no column is left outside it.
TEST(LPsimplex, StandsMoreRowsThanRealColumns) {
    const Solved solved =
        SolveProgram({1, {1}, true, {{{1}, kEqual, 1}, {{1}, kEqual, 1}, {{1}, kEqual, 1}}}, 1000);
    EXPECT_EQ(solved.status, LPStatus::Solved);
    EXPECT_THAT(solved.x, ElementsAre(1));
}

// Both rows allow 4. The upper one leaves, so the lower one stays basic at 0.
TEST(LPsimplex, LeavesTheUppermostRowOfATie) {
    const Solved solved = SolveProgram({2, {2, 1}, false, {{{1, 0}, kAtMost, 4}, {{2, 1}, kAtMost, 8}}}, 0);
    EXPECT_EQ(solved.status, LPStatus::IterationLimit);
    EXPECT_THAT(solved.x, ElementsAre(4, 0));
    // With x basic in the upper row, y has a reduced cost of 1 and enters at 0 / 1 in the lower row: the
    // optimum is found in iteration 3. If the lower row had left, the reduced cost of y, 1 - 2 * 1 / 2 = 0,
    // would end the program in iteration 2.
    EXPECT_EQ(SolveProgram({2, {2, 1}, false, {{{1, 0}, kAtMost, 4}, {{2, 1}, kAtMost, 8}}}, 1000).iterations,
              3);
}

TEST(LPsimplex, EntersTheEarliestColumnOfATie) {
    const Solved solved = SolveProgram({2, {1, 1}, false, {{{1, 1}, kAtMost, 3}}}, 1000);
    EXPECT_EQ(solved.status, LPStatus::Solved);
    EXPECT_THAT(solved.x, ElementsAre(3, 0));
}

// x enters at 1 for the slack s of the first row, then y at 1 for that of the second row. The
// positions now hold s, the other slack, z; s and z both gain 2, since the first row has the price -2.
// So s enters, although z has the lower column number: x leaves and y rises by 4. z would have entered
// at 1 and raised y by 2.
TEST(LPsimplex, TakesPositionsNotColumnNumbersForEarlier) {
    const LinearProgram program{3, {2, 1, 2}, false, {{{1, 0, 1}, kAtMost, 1}, {{4, 1, 2}, kAtMost, 5}}};
    EXPECT_THAT(SolveProgram(program, 0).x, ElementsAre(1, 0, 0));
    EXPECT_THAT(SolveProgram(program, 1).x, ElementsAre(1, 1, 0));
    EXPECT_THAT(SolveProgram(program, 2).x, ElementsAre(0, 5, 0));
}

TEST(LPsimplex, CountsAnOptimumPastTheLimitAsTheLimit) {
    const LinearProgram optimalAtOnce{1, {1}, true, {{{1}, kAtMost, 5}}};
    EXPECT_EQ(SolveProgram(optimalAtOnce, 0).status, LPStatus::IterationLimit);
    EXPECT_EQ(SolveProgram(optimalAtOnce, 0).iterations, 1);
    EXPECT_EQ(SolveProgram(optimalAtOnce, 1).status, LPStatus::Solved);
    EXPECT_EQ(SolveProgram(optimalAtOnce, -7).iterations, 1);
}

TEST(LPsimplex, ShowsThePointThatTheLimitFound) {
    EXPECT_THAT(SolveProgram(kTwoPivots, 0).x, ElementsAre(0, 6));
    EXPECT_THAT(SolveProgram(kTwoPivots, 1).x, ElementsAre(2, 6));
    EXPECT_EQ(SolveProgram(kTwoPivots, 2).status, LPStatus::IterationLimit);
    EXPECT_EQ(SolveProgram(kTwoPivots, 3).status, LPStatus::Solved);
}

// The limit is checked first: if the last iteration finds the program unbounded or ends phase one,
// the result is the limit.
TEST(LPsimplex, HeedsTheLimitBeforeTheOutcome) {
    EXPECT_EQ(SolveProgram({1, {1}, false, {}}, 0).status, LPStatus::IterationLimit);
    EXPECT_EQ(SolveProgram({1, {1}, true, {{{0}, kEqual, 1}}}, 0).status, LPStatus::IterationLimit);
}

// A cycling program of the kind of E. M. L. Beale: six pivots at the origin lead back to the first basis. All
// its numbers are exact in binary. The optimum would be 1.25 at (1, 0, 1, 0).
TEST(LPsimplex, EndsACycleAtTheLimit) {
    const LinearProgram program{
        4,
        {0.75, -20, 0.5, -6},
        false,
        {{{0.25, -8, -1, 9}, kAtMost, 0}, {{0.5, -12, -0.5, 3}, kAtMost, 0}, {{0, 0, 1, 0}, kAtMost, 1}}};
    for (const int limit : {0, 5, 6, 17, 1000, 1003, std::numeric_limits<int>::max()}) {
        const Solved solved = SolveProgram(program, limit);
        EXPECT_EQ(solved.status, LPStatus::IterationLimit);
        EXPECT_EQ(solved.iterations, std::int64_t{limit} + 1);
        EXPECT_THAT(solved.x, ElementsAre(0, 0, 0, 0));
    }
}

TEST(LPsimplex, SolvesProgramsWithoutRowsOrVariables) {
    EXPECT_EQ(SolveProgram({2, {1, 0}, true, {}}, 1000).status, LPStatus::Solved);
    EXPECT_THAT(SolveProgram({2, {1, 0}, true, {}}, 1000).x, ElementsAre(0, 0));
    EXPECT_EQ(SolveProgram({0, {}, true, {{{}, kAtMost, 1}}}, 1000).status, LPStatus::Solved);
    EXPECT_EQ(SolveProgram({0, {}, true, {{{}, kEqual, 1}}}, 1000).status, LPStatus::NoSolution);
    EXPECT_THAT(SolveProgram({0, {}, true, {}}, 1000).x, IsEmpty());
}

// Rows that are not added are 0 <= 0.
TEST(LPsimplex, StandsFewerRowsThanAnnounced) {
    LPsimplex simplex;
    simplex.Initialize(1, 3);
    simplex.AddConstraint(std::vector<double>{2}, 8, kAtMost);
    simplex.SpecifyObjective(std::vector<double>{1}, false);
    EXPECT_EQ(simplex.Solve(1000), LPStatus::Solved);
    EXPECT_THAT(simplex.Solution(), ElementsAre(4));
}

TEST(LPsimplex, TakesMoreCoefficientsThanItNeeds) {
    LPsimplex simplex;
    simplex.Initialize(1, 1);
    simplex.AddConstraint(std::vector<double>{2, 99}, 8, kAtMost);
    simplex.SpecifyObjective(std::vector<double>{1, 99}, false);
    EXPECT_EQ(simplex.Solve(1000), LPStatus::Solved);
    EXPECT_THAT(simplex.Solution(), ElementsAre(4));
}

TEST(LPsimplex, AnswersNoMinusZero) {
    const Solved solved = SolveProgram({1, {1}, false, {{{1}, kAtMost, -0.0}}}, 1000);
    ASSERT_THAT(solved.x, ElementsAre(0));
    EXPECT_FALSE(std::signbit(solved.x[0]));
}

void ExpectSubscriptFault(const std::function<void(LPsimplex&)>& misuse) {
    LPsimplex simplex;
    simplex.Initialize(2, 1);
    try {
        misuse(simplex);
        ADD_FAILURE();
    } catch (const Error& error) {
        EXPECT_EQ(error.WithNumber(), "Subscript out of range (9)");
    }
}

TEST(LPsimplex, RefusesWhatLiesOutsideItsSizes) {
    const std::vector<double> two{1, 1};
    const std::vector<double> one{1};
    ExpectSubscriptFault([&](LPsimplex& simplex) { simplex.AddConstraint(one, 1, kAtMost); });
    ExpectSubscriptFault([&](LPsimplex& simplex) { simplex.SpecifyObjective(one, true); });
    ExpectSubscriptFault([&](LPsimplex& simplex) {
        simplex.AddConstraint(two, 1, kAtMost);
        simplex.AddConstraint(two, 1, kAtMost);
    });
    ExpectSubscriptFault([](LPsimplex& simplex) { simplex.Initialize(-1, 1); });
    ExpectSubscriptFault([](LPsimplex& simplex) { simplex.Initialize(1, -1); });
}

TEST(LPsimplex, RaisesOverflowBeyondADouble) {
    constexpr double kHuge = 1e308;
    constexpr double kInfinite = std::numeric_limits<double>::infinity();
    for (const LinearProgram& program : std::vector<LinearProgram>{
             {1, {1}, false, {{{0.1}, kAtMost, kHuge}}},                    // the ratio
             {1, {kHuge}, false, {{{0.1}, kAtMost, 1}}},                    // a multiplier
             {1, {1}, true, {{{kHuge}, kEqual, 1}, {{kHuge}, kEqual, 1}}},  // a reduced cost
             {1, {kHuge}, false, {{{1}, kAtMost, 10}}},                     // the objective
             {1, {kInfinite}, false, {}},
             {1, {1}, false, {{{kInfinite}, kAtMost, 1}}},
             {1, {1}, false, {{{std::numeric_limits<double>::quiet_NaN()}, kAtMost, 1}}},
             {1, {1}, false, {{{1}, kAtMost, -kInfinite}}},
         }) {
        try {
            SolveProgram(program, 1000);
            ADD_FAILURE() << program.objective[0];
        } catch (const Error& error) {
            EXPECT_EQ(error.Number(), kOverflowNumber);
        }
    }
}

// x = 1 twice leaves an artificial variable, but the square of 1e-200 is zero in a double, so the
// reflection along x has length 0.
TEST(LPsimplex, RaisesDivisionByZeroWhereTheBasisCannotBeCompleted) {
    LPsimplex simplex;
    simplex.Initialize(1, 2);
    simplex.SpecifyObjective(std::vector<double>{1}, true);
    for (int row = 0; row < 2; ++row) simplex.AddConstraint(std::vector<double>{1e-200}, 1e-200, kEqual);
    try {
        simplex.Solve(1000);
        ADD_FAILURE();
    } catch (const Error& error) {
        EXPECT_EQ(error.Number(), kDivisionByZeroNumber);
    }
    EXPECT_THAT(simplex.Solution(), ElementsAre(0));
}

}  // namespace
}  // namespace tw
