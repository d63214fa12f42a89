#include "exchange/ForeignFigure.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tw {
namespace {

using enum FigureUnit;

// A text, what it is read as, and the codes that it leaves, joined by blanks.
struct Case {
    std::string text;
    FigureUnit unit;
    std::optional<double> value;
    std::string codes = {};
    ZeroMeans zero = ZeroMeans::Zero;
};

std::string CodesOf(const std::string& text, const ForeignFigure& figure) {
    Findings findings;
    TellFigure(findings, {"Ale", "Hops 1: Saaz", "ALPHA"}, text, figure, "");
    std::string codes;
    for (const Finding& finding : findings.All())
        codes += (codes.empty() ? "" : " ") + std::string(WordOf(finding.code));
    return codes;
}

void ExpectAll(const std::vector<Case>& cases) {
    for (const Case& each : cases) {
        const ForeignFigure figure = ReadFigure(each.text, each.unit, each.zero);
        ASSERT_EQ(figure.value.has_value(), each.value.has_value()) << each.text;
        EXPECT_NEAR(figure.value.value_or(0), each.value.value_or(0),
                    1e-9 * (1 + std::abs(each.value.value_or(0))))
            << each.text;
        EXPECT_EQ(CodesOf(each.text, figure), each.codes) << each.text;
    }
}

TEST(ForeignFigure, PlainNumbersAreReadInSilence) {
    ExpectAll({{"5", Plain, 5},
               {" 5.50 \r\n", Percent, 5.5},
               {"+5", Plain, 5},
               {".5", Plain, 0.5},
               {"5.", Plain, 5},
               {"1e-3", Kilograms, 0.001},
               {"2.5E+1", Plain, 25},
               {"0.0283500", Kilograms, 0.02835},
               {"0", Percent, 0},
               {"\xC2\xA0"
                "7",
                Plain, 7},
               {"0000000000000000000000000000001", Plain, 1}});
}

TEST(ForeignFigure, OfTwoMarksTheLastIsTheDecimalOne) {
    ExpectAll({{"1,5", Plain, 1.5, "decimal-comma"},
               {"1.234,5", Plain, 1234.5, "decimal-comma"},
               {"1,234.5", Plain, 1234.5, "decimal-comma"},
               {"1,234", Plain, 1.234, "decimal-comma"},
               {"1,234,567", Plain, 1234567, "decimal-comma"},
               {"1.234.567", Plain, 1234567},
               {"1.234.567,8", Plain, 1234567.8, "decimal-comma"},
               {"1,055", Gravity, 1.055, "decimal-comma"},
               {"5,", Plain, 5},
               {"1.2.3", Plain, std::nullopt, "no-number"},
               {"1,2,3", Plain, std::nullopt, "no-number"},
               {"1,2.3,4", Plain, std::nullopt, "no-number"}});
}

TEST(ForeignFigure, WordsForUnknownAndImpossibleNumbersAreAbsent) {
    ExpectAll({{"", Plain, std::nullopt},
               {" \n", Plain, std::nullopt},
               {"-", Plain, std::nullopt, "no-number"},
               {"null", Plain, std::nullopt, "no-number"},
               {"Unknown", Plain, std::nullopt, "no-number"},
               {"n/a", Plain, std::nullopt, "no-number"},
               {"NaN", Plain, std::nullopt, "no-number"},
               {"NaN SRM", Srm, std::nullopt, "no-number"},
               {"inf", Plain, std::nullopt, "no-number"},
               {"-inf", Plain, std::nullopt, "no-number"},
               {"-5", Plain, std::nullopt, "no-number"},
               {"-0.1 kg", Kilograms, std::nullopt, "no-number"},
               {"1e400", Plain, std::nullopt, "no-number"},
               {"1e10", Plain, std::nullopt, "no-number"},
               {"Hallo", Plain, std::nullopt, "no-number"},
               {"12/27/2003", Plain, std::nullopt, "no-number"},
               {"5 by 6", Plain, std::nullopt, "no-number"},
               {"5-7", Plain, std::nullopt, "no-number"},
               {std::string(10'000, 'x'), Plain, std::nullopt, "no-number"},
               {std::string(10'000, '9'), Plain, std::nullopt, "no-number"}});
    EXPECT_TRUE(ReadFigure("", Plain).isEmpty);
}

TEST(ForeignFigure, LongTextsAreNoNumbers) {
    ExpectAll({{"1" + std::string(900, ' ') + "kg", Kilograms, 1.0, "unit-in-number"},
               {"1" + std::string(1000, ' ') + "kg", Kilograms, {}, "no-number"},
               {std::string(1'000'000, '0') + "1", Plain, {}, "no-number"}});
}

TEST(ForeignFigure, UnitsAreConverted) {
    // 68 F = (68 - 32) / 1.8 C; 79 EBC = 79 / 1.97 SRM; a malt of 40.1015 SRM has (40.1015 + 0.76) / 1.3546
    // L.
    ExpectAll({{"72 %", Percent, 72, "unit-in-number"},
               {"32.4 IBU", Ibus, 32.4, "unit-in-number"},
               {"1.052 sg", Gravity, 1.052, "unit-in-number"},
               {"2.4>", Volumes, 2.4, "unit-in-number"},
               {"79 EBC", Srm, 79 / 1.97, "unit-in-number"},
               {"79 EBC", Lovibond, (79 / 1.97 + 0.76) / 1.3546, "unit-in-number"},
               {"10 SRM", Lovibond, 10.76 / 1.3546, "unit-in-number"},
               {"60 L", Lovibond, 60, "unit-in-number"},
               {"60\xC2\xB0L", Lovibond, 60, "unit-in-number"},
               {"10 L", Srm, 12.786, "unit-in-number"},
               {"68 F", Celsius, 20, "unit-in-number"},
               {"68 deg. F", Celsius, 20, "unit-in-number"},
               {"14 F", Celsius, -10, "unit-in-number"},
               {"5 gal", Litres, 18.92705892, "unit-in-number"},
               {"16 oz", Kilograms, 0.45359237, "unit-in-number"},
               {"9 lb 4 oz", Kilograms, 9.25 * 0.45359237, "unit-in-number"},
               {"9lb4oz", Kilograms, 9.25 * 0.45359237, "unit-in-number"},
               {"9 lbs, 4 ounces", Kilograms, 9.25 * 0.45359237, "unit-in-number"},
               {"1 1/2 oz", Kilograms, 1.5 * 0.45359237 / 16, "unit-in-number"},
               {"1/2", Plain, 0.5},
               {"28,35 g", Kilograms, 0.02835, "decimal-comma unit-in-number"},
               {"5.5 gal (20.8 L)", Litres, 5.5 * 3.785411784, "unit-in-number"},
               {"7 days", Minutes, 10080, "unit-in-number"},
               {"2 weeks", Days, 14, "unit-in-number"},
               {"2.4 vols CO2", Volumes, 2.4, "unit-in-number"},
               {"250 ppb", MilligramsPerLitre, 0.25, "unit-in-number"},
               {"5 bananas", Kilograms, 5, "unit-in-number"},
               {"5 bananas 3 oz", Kilograms, std::nullopt, "no-number"}});
}

TEST(ForeignFigure, GravitiesAreBroughtToOneScale) {
    // 12 P: 1 + 0.0038661 * 12 + 1.3488e-5 * 144 + 4.3074e-8 * 1728 = 1.04840990...
    const double twelve = 1 + 0.0463932 + 0.001942272 + 0.0000744318720;
    ExpectAll({{"1059", Gravity, 1.059, "unit-in-number"},
               {"1038 sg", Gravity, 1.038, "unit-in-number"},
               {"900", Gravity, 0.9, "unit-in-number"},
               {"1300", Gravity, 1.3, "unit-in-number"},
               {"12", Gravity, twelve, "unit-in-number"},
               {"12 P", Gravity, twelve, "unit-in-number"},
               {"12 \xC2\xB0Plato", Gravity, twelve, "unit-in-number"},
               {"12 Brix", Gravity, twelve, "unit-in-number"},
               {"1.3", Gravity, 1.3},
               {"0.998", Gravity, 0.998},
               {"0", Gravity, std::nullopt},
               {"0.0 sg", Gravity, std::nullopt},
               {"54", Gravity, std::nullopt, "implausible"},
               {"0.5", Gravity, std::nullopt, "implausible"},
               {"1301", Gravity, std::nullopt, "implausible"},
               {"36", Potential, 1.036, "unit-in-number"},
               {"1037", Potential, 1.037, "unit-in-number"}});
}

TEST(ForeignFigure, ZeroMeansUnknownWhereItIsAskedFor) {
    ExpectAll({{"0.00", Percent, std::nullopt, "", ZeroMeans::Unknown},
               {"0 %", Percent, std::nullopt, "", ZeroMeans::Unknown},
               {"0.1", Percent, 0.1, "", ZeroMeans::Unknown}});
}

TEST(ForeignFigure, AmountsAreOfTheKindThatTheirUnitSays) {
    const auto none = ReadAmount("0.5", ForeignAmount::Of::Volume).amount;
    ASSERT_TRUE(none);
    EXPECT_EQ(none->of, ForeignAmount::Of::Volume);
    EXPECT_EQ(none->value, 0.5);
    const auto spoon = ReadAmount("3 tsp", ForeignAmount::Of::Mass).amount;
    ASSERT_TRUE(spoon);
    EXPECT_EQ(spoon->of, ForeignAmount::Of::Volume);
    EXPECT_NEAR(spoon->value, 3 * 3.785411784 / 768, 1e-12);
    const auto pack = ReadAmount("2 pkg", ForeignAmount::Of::Volume).amount;
    ASSERT_TRUE(pack);
    EXPECT_EQ(pack->of, ForeignAmount::Of::Pieces);
    EXPECT_EQ(pack->value, 2);
    EXPECT_FALSE(ReadAmount("unknown", ForeignAmount::Of::Mass).amount);
    EXPECT_FALSE(ReadAmount("0", ForeignAmount::Of::Mass, ZeroMeans::Unknown).amount);
    EXPECT_FALSE(ReadAmount("9 lb 4 l", ForeignAmount::Of::Mass).amount);
}

TEST(ForeignFigure, OnlyNumbersWithAUnitAreWrittenAmounts) {
    EXPECT_EQ(WrittenAmount(" 9.25  lb\n"), "9.25 lb");
    EXPECT_EQ(WrittenAmount("9 lb 4 oz"), "9 lb 4 oz");
    EXPECT_EQ(WrittenAmount("1.00 items"), "1.00 items");
    EXPECT_EQ(WrittenAmount("9.25"), "");
    EXPECT_EQ(WrittenAmount("some lb"), "");
    EXPECT_EQ(WrittenAmount("5 bananas"), "");
}

TEST(ForeignFigure, FindingsNameTheTextAndWhatWasRead) {
    Findings findings;
    TellFigure(findings, {"Ale", "Fermentables 1: Malt", "AMOUNT"}, " 5,5 lb ",
               ReadFigure("5,5 lb", Kilograms), WordOf(Kilograms));
    ASSERT_EQ(findings.All().size(), 2U);
    EXPECT_EQ(findings.All()[0],
              (Finding{Severity::Repaired, FindingCode::DecimalComma, "Ale", "Fermentables 1: Malt",
                       "AMOUNT \"5,5 lb\" is written with a comma and was read as 2.49476 "
                       "kilograms."}));
    EXPECT_EQ(findings.All()[1].text,
              "AMOUNT \"5,5 lb\" has a unit in it and was read as 2.49476 kilograms.");
    EXPECT_EQ(Quoted("two\nlines"), "\"two lines\"");
    EXPECT_EQ(Quoted(std::string(50, 'x')), "\"" + std::string(40, 'x') + "...\"");
}

TEST(ForeignUnits, ColoursOfMaltAreConvertedBothWays) {
    EXPECT_NEAR(SrmOfLovibond(10), 12.786, 1e-12);
    EXPECT_NEAR(LovibondOfSrm(12.786), 10, 1e-12);
    EXPECT_EQ(SrmOfLovibond(0.3), 0);
    EXPECT_EQ(LovibondOfSrm(0), 0);
}

TEST(ForeignUnits, MeasuresAreOfTheSystemThatTheirNameSays) {
    EXPECT_NEAR(FindUnit(UnitKind::Volume, "igal")->ToBase(1), 4.54609, 1e-12);
    EXPECT_NEAR(FindUnit(UnitKind::Volume, "bbl")->ToBase(1), 117.347765304, 1e-9);
    EXPECT_NEAR(FindUnit(UnitKind::Volume, "fl. oz")->ToBase(128), 3.785411784, 1e-12);
    EXPECT_EQ(FindUnit(UnitKind::Mass, "gal"), nullptr);
    EXPECT_EQ(FindUnit(UnitKind::Mass, ""), nullptr);
    EXPECT_EQ(FindUnit(UnitKind::Mass, "g|gr"), nullptr);
}

}  // namespace
}  // namespace tw
