// Compares the solver with the plain steps on random programs, to the last bit, and checks
// its answers by duality.
#include <algorithm>
#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <map>
#include <string>
#include <vector>

#include "Dice.h"
#include "LPTest.h"
#include "PlainSimplex.h"
#include "platform/Error.h"

namespace tw {
namespace {

LPAnswer Answer(const LinearProgram& program, int limit) {
    LPAnswer answer;
    try {
        const Solved solved = SolveProgram(program, limit);
        answer.status = solved.status;
        answer.x = solved.x;
        answer.iterations = solved.iterations;
        answer.objective = solved.objective;
    } catch (const Error& error) {
        answer.kind = error.Number() == kDivisionByZeroNumber ? LPAnswer::Kind::DivisionByZero
                                                              : LPAnswer::Kind::Overflow;
    }
    return answer;
}

// Counts how often each outcome occurred, so that no test passes without reaching it.
using Counts = std::map<std::string, int>;

void Count(Counts& counts, const LPAnswer& answer) {
    if (answer.kind == LPAnswer::Kind::Overflow) ++counts["overflow"];
    if (answer.kind == LPAnswer::Kind::DivisionByZero) ++counts["division by zero"];
    if (answer.kind != LPAnswer::Kind::Answered) return;
    ++counts["status " + std::to_string(static_cast<int>(answer.status))];
    if (answer.status == LPStatus::IterationLimit && answer.iterations > 200) ++counts["cycle"];
    if (answer.completedBasis) ++counts["basis completed"];
    if (answer.artificialStays) ++counts["artificial variable back"];
}

void Compare(const LinearProgram& program, int limit, Counts& counts, const std::string& name) {
    const LPAnswer plain = SolvePlainly(program, limit);
    const LPAnswer own = Answer(program, limit);
    Count(counts, plain);
    ASSERT_EQ(static_cast<int>(own.kind), static_cast<int>(plain.kind)) << name;
    if (plain.kind != LPAnswer::Kind::Answered) return;
    ASSERT_EQ(own.status, plain.status) << name;
    ASSERT_EQ(own.iterations, plain.iterations) << name;
    ASSERT_EQ(own.objective, plain.objective) << name;
    ASSERT_EQ(own.x.size(), plain.x.size()) << name;
    for (std::size_t i = 0; i < own.x.size(); ++i) {
        // Adding zero makes minus zero zero and changes nothing else.
        ASSERT_EQ(std::bit_cast<std::uint64_t>(own.x[i]), std::bit_cast<std::uint64_t>(plain.x[i] + 0.0))
            << name << " x" << i << ": " << own.x[i] << " and " << plain.x[i];
    }
}

struct Shape {
    int rows;
    int vars;
    int zerosOfTen;
    int zeroRightSidesOfTen;
};

LinearProgram RandomProgram(Dice& dice, const Shape& shape) {
    LinearProgram program{shape.vars, {}, dice.Below(2) == 0, {}};
    for (int j = 0; j < shape.vars; ++j) program.objective.push_back(dice.Coefficient(2));
    const int onlyType = dice.Below(6);
    for (int i = 0; i < shape.rows; ++i) {
        LinearProgram::Row row{{}, static_cast<LPRow>(onlyType < 3 ? onlyType : dice.Below(3)), 0};
        for (int j = 0; j < shape.vars; ++j) row.coefficients.push_back(dice.Coefficient(shape.zerosOfTen));
        row.rightSide = dice.Coefficient(shape.zeroRightSidesOfTen);
        if (dice.Below(3) > 0) row.rightSide = std::fabs(row.rightSide);
        if (i > 0 && dice.Below(6) == 0) {  // repeats an earlier row or a multiple of it
            row = program.rows[dice.Below(i)];
            const double factor = dice.Below(2) == 0 ? 1 : 1 + dice.Below(4);
            for (double& value : row.coefficients) value *= factor;
            row.rightSide *= factor;
        }
        program.rows.push_back(row);
    }
    if (shape.vars > 1 && dice.Below(4) == 0) {  // makes two columns equal, or one empty
        const int to = dice.Below(shape.vars);
        const int from = dice.Below(shape.vars);
        const double factor = dice.Below(3) / 2.0;
        for (LinearProgram::Row& row : program.rows) row.coefficients[to] = row.coefficients[from] * factor;
    }
    return program;
}

TEST(SimplexComparison, AgreesOnSmallProgramsOfEveryShape) {
    Dice dice(1);
    Counts counts;
    for (int turn = 0; turn < 20000; ++turn) {
        const Shape shape{dice.Below(8), dice.Below(8), dice.Below(9), dice.Below(11)};
        const LinearProgram program = RandomProgram(dice, shape);
        const int limits[] = {250, 250, 250, dice.Below(6)};
        ASSERT_NO_FATAL_FAILURE(
            Compare(program, limits[dice.Below(4)], counts, "program " + std::to_string(turn)));
    }
    for (const char* const way :
         {"status 0", "status 1", "status 2", "basis completed", "artificial variable back"})
        EXPECT_GT(counts[way], 100) << way;
}

// Equalities, one of them redundant, often with right side 0.
TEST(SimplexComparison, AgreesBehindACompletedBasis) {
    Dice dice(2);
    Counts counts;
    for (int turn = 0; turn < 5000; ++turn) {
        LinearProgram program = RandomProgram(dice, {1 + dice.Below(4), 2 + dice.Below(6), 3, 6});
        for (LinearProgram::Row& row : program.rows)
            if (dice.Below(3) > 0) row.type = LPRow::Equal;
        const int copies = 1 + dice.Below(2);
        for (int i = 0; i < copies; ++i) program.rows.push_back(program.rows[i % program.rows.size()]);
        ASSERT_NO_FATAL_FAILURE(Compare(program, 250, counts, "program " + std::to_string(turn)));
    }
    EXPECT_GT(counts["basis completed"], 500);
    EXPECT_GT(counts["artificial variable back"], 300);
}

// The needs of six ions met by salts of the shelf, some of them twice: the first program of the water
// treatment (shortfalls, and a row for each dose) or, if capped, the second one (as much as fits).
LinearProgram Treatment(Dice& dice, bool capped) {
    const int salts = 2 + dice.Below(12);
    const int first = capped ? 0 : 6;
    LinearProgram program{salts + first, {}, !capped, {}};
    program.objective.assign(salts + first, capped ? 1 : 0);
    for (int i = 0; i < 5 && !capped; ++i) program.objective[i] = 1;
    for (int ion = 0; ion < 6; ++ion) {
        const double need = dice.Below(3) == 0 ? 0 : dice.Below(30000) / 100.0;
        program.rows.push_back(
            {std::vector<double>(salts + first, 0), capped ? LPRow::AtMost : LPRow::Equal, need});
        if (!capped) program.rows.back().coefficients[ion] = 1;
    }
    for (int salt = 0; salt < salts; ++salt) {
        const int like = salt > 0 && dice.Below(4) == 0 ? dice.Below(salt) : -1;
        for (int ion = 0; ion < 6; ++ion) {
            double& factor = program.rows[ion].coefficients[first + salt];
            if (like >= 0)
                factor = program.rows[ion].coefficients[first + like];
            else if (dice.Below(3) == 0)
                factor = dice.Below(2000) / 10.0;
        }
    }
    for (int salt = 0; salt < salts && !capped; ++salt) {
        program.rows.push_back({std::vector<double>(salts + first, 0), LPRow::AtLeast, 0});
        program.rows.back().coefficients[first + salt] = 1;
    }
    return program;
}

TEST(SimplexComparison, AgreesOnWaterTreatments) {
    Dice dice(3);
    Counts counts;
    for (int turn = 0; turn < 2000; ++turn)
        ASSERT_NO_FATAL_FAILURE(
            Compare(Treatment(dice, turn % 2 == 1), 300, counts, "treatment " + std::to_string(turn)));
    for (const char* const way : {"status 0", "status 1", "cycle"}) EXPECT_GT(counts[way], 10) << way;
}

// More rows than a machine word has bits.
TEST(SimplexComparison, AgreesOnLargePrograms) {
    Dice dice(4);
    Counts counts;
    for (int turn = 0; turn < 12; ++turn) {
        const LinearProgram program = RandomProgram(dice, {60 + dice.Below(80), 20 + dice.Below(60), 9, 1});
        ASSERT_NO_FATAL_FAILURE(Compare(program, 40, counts, "program " + std::to_string(turn)));
    }
}

// Numbers of all magnitudes: if one of the two leaves the range of a double, so must the other.
TEST(SimplexComparison, AgreesOnFaults) {
    Dice dice(5);
    Counts counts;
    for (int turn = 0; turn < 10000; ++turn) {
        const Shape shape{1 + dice.Below(5), 1 + dice.Below(5), dice.Below(6), dice.Below(5)};
        LinearProgram program = RandomProgram(dice, shape);
        const auto scale = [&](double& value) {
            if (dice.Below(2) == 0) value *= std::pow(10.0, dice.Below(3) * 306 - 306);
        };
        std::for_each(program.objective.begin(), program.objective.end(), scale);
        for (LinearProgram::Row& row : program.rows) {
            std::for_each(row.coefficients.begin(), row.coefficients.end(), scale);
            scale(row.rightSide);
        }
        ASSERT_NO_FATAL_FAILURE(Compare(program, 100, counts, "program " + std::to_string(turn)));
    }
    EXPECT_GT(counts["overflow"], 100);
    EXPECT_GT(counts["division by zero"], 0);
    EXPECT_GT(counts["status 0"], 100);
}

double Product(const std::vector<double>& a, const std::vector<double>& b) {
    double sum = 0;
    for (std::size_t i = 0; i < a.size(); ++i) sum += a[i] * b[i];
    return sum;
}

void ExpectFeasible(const LinearProgram& program, const std::vector<double>& x) {
    for (const double value : x) EXPECT_GE(value, -1e-9);
    for (const LinearProgram::Row& row : program.rows) {
        const double left = Product(row.coefficients, x);
        if (row.type == LPRow::AtMost)
            EXPECT_LE(left, row.rightSide + 1e-9);
        else
            EXPECT_GE(left, row.rightSide - 1e-9);
    }
}

// max c x, A x <= b against min b y, A' y >= c: feasible points with the same objective are both optimal,
// however they were found. Random real numbers have no ties, so the steps end correctly.
TEST(SimplexComparison, EndsAtTheOptimumOfTheDualProgram) {
    Dice dice(6);
    int proven = 0;
    for (int turn = 0; turn < 1000; ++turn) {
        const int rows = 1 + dice.Below(10);
        const int vars = 1 + dice.Below(10);
        LinearProgram primal{vars, {}, false, {}};
        LinearProgram dual{rows, {}, true, {}};
        for (int j = 0; j < vars; ++j) {
            primal.objective.push_back(dice.Fraction() * 5);
            dual.rows.push_back({{}, LPRow::AtLeast, primal.objective.back()});
        }
        for (int i = 0; i < rows; ++i) {
            dual.objective.push_back(1 + dice.Fraction() * 9);
            primal.rows.push_back({{}, LPRow::AtMost, dual.objective.back()});
            for (int j = 0; j < vars; ++j) {
                primal.rows.back().coefficients.push_back(0.1 + dice.Fraction());
                dual.rows[j].coefficients.push_back(primal.rows.back().coefficients.back());
            }
        }
        const Solved one = SolveProgram(primal, 1000);
        const Solved other = SolveProgram(dual, 1000);
        if (other.status == LPStatus::NoSolution)
            continue;  // a rounding error left by phase one, for which there is no tolerance
        ASSERT_EQ(one.status, LPStatus::Solved);
        ASSERT_EQ(other.status, LPStatus::Solved);
        ExpectFeasible(primal, one.x);
        ExpectFeasible(dual, other.x);
        EXPECT_NEAR(Product(primal.objective, one.x), Product(dual.objective, other.x), 1e-9);
        EXPECT_NEAR(one.objective, other.objective, 1e-9);
        ++proven;
    }
    EXPECT_GT(proven, 900);
}

}  // namespace
}  // namespace tw
