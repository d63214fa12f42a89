// Tests of the two programs of the treatment and the choice between them: with figures calculated by hand,
// and with random waters compared with a plain version of the same steps.
#include "water/Treatment.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <map>
#include <string>

#include "Dice.h"
#include "PlainSimplex.h"
#include "platform/Error.h"

namespace tw {
namespace {

using Salts = std::vector<Ions>;
using Doses = std::vector<double>;

constexpr int kLimit = 1000;

TEST(Treatment, OneSaltMeetsBothOfItsIons) {
    const Salts salts{{60, 0, 0, 0, 0, 150}};
    EXPECT_EQ(FindDoses({60, 0, 0, 0, 0, 150}, salts, kLimit), Doses{1});
}

TEST(Treatment, NoNeedGivesNoDose) {
    const Salts salts{{60, 0, 0, 0, 0, 150}, {0, 0, 160, 0, 100, 0}};
    EXPECT_EQ(FindDoses({}, salts, kLimit), (Doses{0, 0}));
}

// Only calcium counts for the sum, but the dose ends when the need of sulfate is met: 150 / 150 = 1.
TEST(Treatment, SulfateIsNeverOvershot) {
    const Salts salts{{60, 0, 0, 0, 0, 150}};
    EXPECT_EQ(SolveTreatmentWithDeviations({120, 0, 0, 0, 0, 150}, salts, kLimit).doses, Doses{1});
    EXPECT_EQ(SolveTreatmentCapped({120, 0, 0, 0, 0, 150}, salts, kLimit).doses, Doses{1});
}

// First program: one gram of the second salt meets chloride and sodium, which leaves no sodium for
// the salt with sulfate, so 10 ppm of sulfate are missing. The second program maximises grams: half
// a gram of the first salt meets sulfate, then 0.75 grams of the second meet sodium, and only 5 ppm
// of chloride are missing.
TEST(Treatment, TheSecondProgramWinsWhereSulfateIsWorthMore) {
    const Salts salts{{0, 0, 0, 0, 10, 20}, {0, 0, 20, 0, 20, 0}};
    const Ions needed{0, 0, 20, 0, 20, 10};
    EXPECT_EQ(SolveTreatmentWithDeviations(needed, salts, kLimit).doses, (Doses{0, 1}));
    EXPECT_EQ(SolveTreatmentCapped(needed, salts, kLimit).doses, (Doses{0.5, 0.75}));
    EXPECT_EQ(FindDoses(needed, salts, kLimit), (Doses{0.5, 0.75}));
}

// 30 g of either salt meet calcium. The first program chooses the salt that adds magnesium too; the second
// program gains no grams by either.
TEST(Treatment, TheSmallerMissDecidesNotTheGrams) {
    const Salts salts{{1, 0, 0, 0, 0, 0}, {1, 0, 0, 2, 0, 0}};
    const Ions needed{30, 0, 0, 60, 0, 0};
    EXPECT_EQ(SolveTreatmentWithDeviations(needed, salts, kLimit).doses, (Doses{0, 30}));
    EXPECT_EQ(FindDoses(needed, salts, kLimit), (Doses{0, 30}));
}

// Any doses of two equal salts that add up to 2 meet the need; those of the first program are used.
TEST(Treatment, ATieGoesToTheFirstProgram) {
    const Salts salts{{10, 0, 0, 0, 0, 0}, {10, 0, 0, 0, 0, 0}};
    const Ions needed{20, 0, 0, 0, 0, 0};
    const auto first = SolveTreatmentWithDeviations(needed, salts, kLimit).doses;
    EXPECT_EQ(first[0] + first[1], 2);
    EXPECT_EQ(FindDoses(needed, salts, kLimit), first);
}

// A salt without ions can be added without limit, so only the first program has a solution.
TEST(Treatment, ASaltOfNothingLeavesTheFirstProgramAlone) {
    const Salts salts{{60, 0, 0, 0, 0, 150}, {}};
    EXPECT_EQ(SolveTreatmentCapped({60, 0, 0, 0, 0, 150}, salts, kLimit).status, LPStatus::NoSolution);
    EXPECT_EQ(FindDoses({60, 0, 0, 0, 0, 150}, salts, kLimit), (Doses{1, 0}));
}

TEST(Treatment, ThePointAtTheLimitOfIterationsCounts) {
    const Salts salts{{60, 0, 0, 0, 0, 150}};
    const TreatmentAnswer capped = SolveTreatmentCapped({60, 0, 0, 0, 0, 150}, salts, 0);
    EXPECT_EQ(capped.status, LPStatus::IterationLimit);
    EXPECT_EQ(capped.doses, Doses{1});
    EXPECT_EQ(FindDoses({60, 0, 0, 0, 0, 150}, salts, 0), Doses{1});
}

TEST(Treatment, NumbersBeyondADoubleRaiseAnOverflow) {
    const Salts salts{{1e300, 1e-300, 0, 0, 0, 0}, {1e-300, 1e300, 1e300, 0, 0, 0}};
    try {
        FindDoses({1e300, 1e300, 1, 0, 0, 0}, salts, kLimit);
        FAIL() << "no overflow";
    } catch (const Error& error) {
        EXPECT_EQ(error.Number(), kOverflowNumber);
    }
}

// A plain version of the same steps.
struct PlainTreatment {
    enum class Way { FirstBetter, SecondBetter, OnlyFirst, OnlySecond, None, Division, Overflow };
    Way way = Way::None;
    bool limit = false;
    Doses doses = {};
};

using Way = PlainTreatment::Way;

LinearProgram FirstProgram(const Ions& needed, const Salts& salts) {
    const int n = static_cast<int>(salts.size());
    LinearProgram program{n + 6, Doses{1, 1, 1, 1, 1, 0}, true, {}};
    program.objective.resize(n + 6, 0.0);
    for (int i = 0; i < 6; ++i) {
        LinearProgram::Row row{Doses(n + 6, 0.0), LPRow::Equal, needed[i]};
        row.coefficients[i] = 1;
        for (int j = 0; j < n; ++j) row.coefficients[6 + j] = salts[j][i];
        program.rows.push_back(row);
    }
    for (int j = 0; j < n; ++j) {
        LinearProgram::Row row{Doses(n + 6, 0.0), LPRow::AtLeast, 0};
        row.coefficients[6 + j] = 1;
        program.rows.push_back(row);
    }
    return program;
}

LinearProgram SecondProgram(const Ions& needed, const Salts& salts) {
    const int n = static_cast<int>(salts.size());
    LinearProgram program{n, Doses(n, 1.0), false, {}};
    for (int i = 0; i < 6; ++i) {
        LinearProgram::Row row{Doses(n, 0.0), LPRow::AtMost, needed[i]};
        for (int j = 0; j < n; ++j) row.coefficients[j] = salts[j][i];
        program.rows.push_back(row);
    }
    return program;
}

double PlainMiss(const Doses& doses, const Ions& needed, const Salts& salts) {
    double miss = 0;
    for (int i = 0; i < 6; ++i) {
        double added = 0;
        for (std::size_t j = 0; j < salts.size(); ++j) added += doses[j] * salts[j][i];
        miss += std::fabs(needed[i] - added);
    }
    return miss;
}

PlainTreatment FindPlainly(const Ions& needed, const Salts& salts, int limit) {
    const LPAnswer first = SolvePlainly(FirstProgram(needed, salts), limit);
    if (first.kind == LPAnswer::Kind::DivisionByZero) return {Way::Division};
    if (first.kind == LPAnswer::Kind::Overflow) return {Way::Overflow};
    const LPAnswer second = SolvePlainly(SecondProgram(needed, salts), limit);
    if (second.kind == LPAnswer::Kind::DivisionByZero) return {Way::Division};
    if (second.kind == LPAnswer::Kind::Overflow) return {Way::Overflow};
    const Doses firstDoses(first.x.begin() + 6, first.x.end());
    const bool limited =
        first.status == LPStatus::IterationLimit || second.status == LPStatus::IterationLimit;
    const bool firstFailed = first.status == LPStatus::NoSolution;
    const bool secondFailed = second.status == LPStatus::NoSolution;
    if (firstFailed && secondFailed) return {Way::None, limited};
    if (secondFailed) return {Way::OnlyFirst, limited, firstDoses};
    if (firstFailed) return {Way::OnlySecond, limited, second.x};
    const double firstMiss = PlainMiss(firstDoses, needed, salts);
    const double secondMiss = PlainMiss(second.x, needed, salts);
    if (!std::isfinite(firstMiss) || !std::isfinite(secondMiss)) return {Way::Overflow};
    if (secondMiss >= firstMiss) return {Way::FirstBetter, limited, firstDoses};
    return {Way::SecondBetter, limited, second.x};
}

PlainTreatment FindOurs(const Ions& needed, const Salts& salts, int limit) {
    try {
        const auto doses = FindDoses(needed, salts, limit);
        PlainTreatment found{doses ? Way::FirstBetter : Way::None};
        if (doses) found.doses = *doses;
        return found;
    } catch (const Error& error) {
        return {error.Number() == kDivisionByZeroNumber ? Way::Division : Way::Overflow};
    }
}

bool HasDoses(Way way) {
    return way != Way::None && way != Way::Division && way != Way::Overflow;
}

// A water in which the ions of the salts and the needs are figures that a brewer could type,
// occasionally far larger ones.
struct RandomWater {
    Ions needed{};
    Salts salts;
};

RandomWater MakeWater(Dice& dice) {
    RandomWater water;
    const bool huge = dice.Below(40) == 0;
    const int size = 1 + dice.Below(10);
    for (int j = 0; j < size; ++j) {
        Ions& salt = water.salts.emplace_back();
        if (dice.Below(30) == 0) continue;
        for (double& factor : salt) {
            if (dice.Below(3) > 0) continue;
            factor = dice.Below(2) == 0 ? dice.Below(200) : dice.Below(2000) / 10.0;
            if (huge && dice.Below(2) == 0) factor *= 1e306;
        }
    }
    for (double& need : water.needed) {
        if (dice.Below(3) == 0) continue;
        need = dice.Below(3) == 0 ? dice.Below(300) : dice.Below(30000) / 100.0;
        if (huge && dice.Below(2) == 0) need *= 1e305;
    }
    return water;
}

TEST(Treatment, AgreesWithThePlainStepsOnRandomWaters) {
    Dice dice(20240309);
    std::map<Way, int> ways;
    int limited = 0;
    for (int round = 0; round < 6000; ++round) {
        const RandomWater water = MakeWater(dice);
        const int limit = dice.Below(6) == 0 ? dice.Below(12) : kLimit;
        const PlainTreatment plain = FindPlainly(water.needed, water.salts, limit);
        const PlainTreatment ours = FindOurs(water.needed, water.salts, limit);
        ++ways[plain.way];
        limited += plain.limit ? 1 : 0;
        ASSERT_EQ(HasDoses(ours.way), HasDoses(plain.way)) << "water " << round;
        if (!HasDoses(plain.way)) {
            ASSERT_EQ(ours.way, plain.way) << "water " << round;
            continue;
        }
        ASSERT_EQ(ours.doses.size(), plain.doses.size()) << "water " << round;
        for (std::size_t j = 0; j < ours.doses.size(); ++j)
            // Adding zero makes minus zero zero and changes nothing else.
            ASSERT_EQ(std::bit_cast<std::uint64_t>(ours.doses[j]),
                      std::bit_cast<std::uint64_t>(plain.doses[j] + 0.0))
                << "water " << round << ", salt " << j;
    }
    // Every outcome occurred.
    for (const Way way :
         {Way::FirstBetter, Way::SecondBetter, Way::OnlyFirst, Way::OnlySecond, Way::None, Way::Overflow})
        EXPECT_GT(ways[way], 0) << static_cast<int>(way);
    EXPECT_GT(limited, 50);
    for (const auto& [way, count] : ways)
        RecordProperty("way" + std::to_string(static_cast<int>(way)), count);
}

}  // namespace
}  // namespace tw
