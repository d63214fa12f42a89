// Tests of the parts of the solver: systems of equations, and completing a basis.
#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

#include "Dice.h"
#include "PlainSimplex.h"
#include "platform/Error.h"
#include "water/AugmentBasis.h"
#include "water/ColumnMatrix.h"
#include "water/LinearSystem.h"

namespace tw {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

ColumnMatrix FromRows(const Matrix& rows) {
    std::vector<ColumnMatrix::Place> places;
    for (int row = 0; row < std::ssize(rows); ++row)
        for (int col = 0; col < std::ssize(rows[row]); ++col)
            if (rows[row][col] != 0.0) places.push_back({row, col, rows[row][col]});
    return {rows.empty() ? 0 : static_cast<int>(rows[0].size()), places};
}

std::vector<double> SolveRows(const Matrix& rows, std::vector<double> rightSide) {
    const ColumnMatrix matrix = FromRows(rows);
    std::vector<int> columns;
    for (int col = 0; col < matrix.Columns(); ++col) columns.push_back(col);
    std::vector<double> x(rows.size());
    LinearSystem::Make(static_cast<int>(rows.size()))->Solve(matrix, columns, rightSide, x);
    return x;
}

TEST(ColumnMatrix, KeepsTheRowsOfAColumnInOrder) {
    ColumnMatrix matrix = FromRows({{1, 0, 2}, {0, 0, 3}});
    matrix.Append({{{1, -1.0}}});
    ASSERT_EQ(matrix.Columns(), 4);
    EXPECT_TRUE(matrix.Column(1).empty());
    ASSERT_EQ(matrix.Column(2).size(), 2U);
    EXPECT_EQ(matrix.Column(2)[0].row, 0);
    EXPECT_EQ(matrix.Column(2)[0].value, 2);
    EXPECT_EQ(matrix.Column(2)[1].row, 1);
    EXPECT_EQ(matrix.Column(2)[1].value, 3);
    EXPECT_EQ(matrix.Column(3)[0].value, -1);
}

TEST(LinearSystem, SolvesWithRowsExchanged) {
    // The second row is the first pivot: x + 3y = 5 and 2x + 4y = 8 have the solution x = 2, y = 1.
    EXPECT_THAT(SolveRows({{1, 3}, {2, 4}}, {5, 8}), ElementsAre(2, 1));
}

TEST(LinearSystem, SolvesTheTranspose) {
    const ColumnMatrix matrix = FromRows({{1, 2}, {3, 4}});
    const std::vector<int> columns{0, 1};
    std::vector<double> rightSide{5, 8};
    std::vector<double> x(2);
    LinearSystem::Make(2)->SolveTransposed(matrix, columns, rightSide, x);
    EXPECT_THAT(x, ElementsAre(2, 1));
}

TEST(LinearSystem, DividesOnlyWithOneEquation) {
    EXPECT_THAT(SolveRows({{4}}, {10}), ElementsAre(2.5));
    EXPECT_THAT(SolveRows({}, {}), IsEmpty());
}

// For a singular system, a wrong answer is returned without an error. In the second one the lower row is the
// pivot, which leaves 0 y = 5 - 8 / 2, so y = 1 and x = (8 - 4 * 1) / 2.
TEST(LinearSystem, LeavesUnknownsWithoutAPivotUndivided) {
    EXPECT_THAT(SolveRows({{0}}, {10}), ElementsAre(10));
    EXPECT_THAT(SolveRows({{1, 2}, {2, 4}}, {5, 8}), ElementsAre(2, 1));
    EXPECT_THAT(SolveRows({{0, 2}, {0, 1}}, {5, 8}), ElementsAre(5 - 2 * 8, 8));
}

// Of equal pivots, the uppermost is used. 2x + 4y = 8 and 2x + 4y = 10 leave y = 10 - 8 = 2 undivided, and x
// = (8 - 4 * 2) / 2; with the lower row, y would be -2.
TEST(LinearSystem, TakesTheUppermostOfEqualPivots) {
    EXPECT_THAT(SolveRows({{2, 4}, {2, 4}}, {8, 10}), ElementsAre(0, 2));
    EXPECT_THAT(SolveRows({{2, 4}, {-2, -4}}, {8, 10}), ElementsAre((8 - 4 * 18) / 2.0, 18));
}

TEST(LinearSystem, CanBeUsedAgain) {
    const std::unique_ptr<LinearSystem> system = LinearSystem::Make(2);
    const ColumnMatrix matrix = FromRows({{1, 3, 0}, {2, 4, 5}});
    for (int turn = 0; turn < 2; ++turn) {
        std::vector<double> rightSide{5, 8};
        std::vector<double> x(2);
        system->Solve(matrix, std::vector<int>{0, 1}, rightSide, x);
        EXPECT_THAT(x, ElementsAre(2, 1));
        rightSide = {6, 10};
        system->Solve(matrix, std::vector<int>{2, 1}, rightSide, x);
        EXPECT_THAT(x, ElementsAre((10 - 4 * 2) / 5.0, 2));
    }
}

TEST(LinearSystem, RaisesOverflow) {
    constexpr double kHuge = 1.7e308;
    // Overflow in the quotient; in elimination, hidden on the diagonal; in elimination, next to the diagonal.
    EXPECT_THROW(SolveRows({{1e-10}}, {kHuge}), Error);
    EXPECT_THROW(SolveRows({{1, kHuge}, {-1, kHuge}}, {1, 1}), Error);
    EXPECT_THROW(SolveRows({{1, 0, kHuge}, {-1, 1, kHuge}, {0, 0, 1}}, {1, 1, 0}), Error);
}

Matrix Rows(Dice& dice, int rows, int columns, int zerosOfTen) {
    Matrix made(rows, std::vector<double>(columns));
    for (std::vector<double>& row : made)
        for (double& value : row) value = dice.Coefficient(zerosOfTen);
    return made;
}

// Compared as numbers: a zero may have another sign, which has no effect later.
TEST(LinearSystem, AgreesWithPlainEliminationToTheLastBit) {
    Dice dice(11);
    for (int turn = 0; turn < 3000; ++turn) {
        const int size = turn % 100 == 0 ? 60 + dice.Below(90) : 1 + dice.Below(12);
        const Matrix rows = Rows(dice, size, size, size > 12 ? 9 : dice.Below(9));
        std::vector<double> rightSide;
        for (int i = 0; i < size; ++i) rightSide.push_back(dice.Coefficient(3));
        std::vector<double> plain;
        try {
            plain = SolveSystemPlainly(rows, rightSide);
        } catch (const Error&) {
            EXPECT_THROW(SolveRows(rows, rightSide), Error) << "turn " << turn;
            continue;
        }
        ASSERT_EQ(SolveRows(rows, rightSide), plain) << "turn " << turn;
    }
}

TEST(AugmentBasis, AgreesWithPlainReflectionsToTheLastBit) {
    Dice dice(12);
    int raised = 0;
    for (int turn = 0; turn < 3000; ++turn) {
        const int rows = turn % 300 == 0 ? 65 : 1 + dice.Below(8);
        const Matrix matrix = Rows(dice, rows, rows + dice.Below(8), dice.Below(8));
        std::vector<int> basis;
        for (int col = 0; col < std::ssize(matrix[0]) && std::ssize(basis) < rows - 1; ++col)
            if (dice.Below(3) == 0) basis.push_back(col);
        std::reverse(basis.begin(), basis.end());
        try {
            const std::vector<int> plain = AugmentPlainly(matrix, basis);
            ASSERT_EQ(AugmentBasis(FromRows(matrix), rows, basis), plain) << "turn " << turn;
        } catch (const Error& error) {
            ++raised;
            EXPECT_EQ(error.Number(), kDivisionByZeroNumber);
            EXPECT_THROW(AugmentBasis(FromRows(matrix), rows, basis), Error) << "turn " << turn;
        }
    }
    EXPECT_GT(raised, 0);
}

// Without a given column, the others are in descending order and the largest of the first row is chosen:
// column 1 with its 3. Rotated along (3, 4), the unit columns 2 and 3 have 0.8 and 0.6 in the second row,
// so they follow by size.
TEST(AugmentBasis, TakesTheLargestOfEachRow) {
    EXPECT_THAT(AugmentBasis(FromRows({{1, 3, 1, 0}, {1, 4, 0, 1}}), 2, {}),
                Optional(ElementsAre(1, 2, 3, 0)));
}

TEST(AugmentBasis, PutsGivenColumnsFirstInAscendingOrder) {
    const std::vector<int> basis{3, 1};
    EXPECT_THAT(AugmentBasis(FromRows({{0, 1, 0, 0}, {5, 0, 1, 0}, {0, 0, 0, 1}}), 3, basis),
                Optional(ElementsAre(1, 3, 0, 2)));
}

TEST(AugmentBasis, RefusesWhatIsNoPartOfABasis) {
    const ColumnMatrix matrix = FromRows({{1, 0}, {0, 1}});
    EXPECT_FALSE(AugmentBasis(matrix, 3, {}));
    EXPECT_FALSE(AugmentBasis(matrix, 0, {}));
    EXPECT_FALSE(AugmentBasis(matrix, 1, std::vector<int>{0, 1}));
    EXPECT_FALSE(AugmentBasis(matrix, 2, std::vector<int>{-1}));
    EXPECT_FALSE(AugmentBasis(matrix, 2, std::vector<int>{2}));
    EXPECT_FALSE(AugmentBasis(ColumnMatrix(), 0, {}));
}

TEST(AugmentBasis, LeavesACompleteBasisAlone) {
    EXPECT_THAT(AugmentBasis(FromRows({{1, 0}, {0, 1}}), 2, std::vector<int>{1, 0}), Optional(IsEmpty()));
}

TEST(AugmentBasis, RaisesDivisionByZeroAlongAZeroColumn) {
    try {
        AugmentBasis(FromRows({{0, 1, 0}, {0, 0, 1}}), 2, std::vector<int>{0});
        ADD_FAILURE();
    } catch (const Error& error) {
        EXPECT_EQ(error.Number(), kDivisionByZeroNumber);
    }
}

TEST(AugmentBasis, RaisesOverflowForSquaresBeyondADouble) {
    try {
        AugmentBasis(FromRows({{1e200, 1, 0}, {0, 0, 1}}), 2, std::vector<int>{0});
        ADD_FAILURE();
    } catch (const Error& error) {
        EXPECT_EQ(error.Number(), kOverflowNumber);
    }
}

}  // namespace
}  // namespace tw
