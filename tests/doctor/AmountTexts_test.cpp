// Amounts of foreign recipes as texts.
#include "doctor/AmountTexts.h"

#include <gtest/gtest.h>

namespace tw {
namespace {

using Of = ForeignAmount::Of;

ForeignRecipe Batch(double litres, std::string written = {}) {
    ForeignRecipe recipe;
    recipe.batchSize = ForeignAmount{Of::Volume, litres, std::move(written)};
    return recipe;
}

std::string Malt(ImportUnits units, double kilograms, const std::string& written = {}) {
    return AmountTexts(units, Batch(20)).Weight({Of::Mass, kilograms, written}, Weighed::Malt);
}
std::string Hops(ImportUnits units, double kilograms, const std::string& written = {}) {
    return AmountTexts(units, Batch(20)).Weight({Of::Mass, kilograms, written}, Weighed::Hops);
}

TEST(AmountTexts, WeightsHaveTheUnitOfWhatIsWeighed) {
    EXPECT_EQ(Malt(ImportUnits::Metric, 4.5), "4.5 kg");
    EXPECT_EQ(Malt(ImportUnits::Metric, 0.25), "250 g");
    EXPECT_EQ(Hops(ImportUnits::Metric, 0.0283), "28.3 g");
    EXPECT_EQ(Hops(ImportUnits::US, 0.028349523125), "1 oz");
    EXPECT_EQ(Hops(ImportUnits::US, 0.0141747615625), "0.5 oz");
}

TEST(AmountTexts, PoundsAndOuncesStandForWholeAndQuarterOunces) {
    // 9.25 lb are 4.1957294225 kg.
    EXPECT_EQ(Malt(ImportUnits::US, 4.1957294225), "9 lb 4 oz");
    EXPECT_EQ(Malt(ImportUnits::US, 0.45359237 * 9), "9 lb");
    EXPECT_EQ(Malt(ImportUnits::US, 0.45359237 * (2 + 3.25 / 16)), "2 lb 3.25 oz");
    // 0.4 oz is no quarter: 1 lb 0.4 oz is 1.025 lb.
    EXPECT_EQ(Malt(ImportUnits::US, 0.45359237 * 1.025), "1.025 lb");
    EXPECT_EQ(Malt(ImportUnits::US, 0.45359237 / 2), "8 oz");
}

TEST(AmountTexts, TheTextOfTheFileIsKeptIfItIsTheQuantity) {
    EXPECT_EQ(Malt(ImportUnits::AsInFile, 4.1957294225, "9.25 lb"), "9.25 lb");
    // 4.50 kg is rounded: 4.4969891 kg are 0.07 % less.
    EXPECT_EQ(Malt(ImportUnits::AsInFile, 4.4969891, "4.50 kg"), "4.497 kg");
    EXPECT_EQ(Hops(ImportUnits::AsInFile, 0.0052058, "5.21 g"), "5.206 g");
    // In the other units, the text of the file does not count.
    EXPECT_EQ(Malt(ImportUnits::Metric, 4.1957294225, "9.25 lb"), "4.196 kg");
}

TEST(AmountTexts, TheBatchTellsTheUnitsOfAFileThatShowsNone) {
    const ForeignAmount pound{Of::Mass, 0.45359237, {}};
    // 5 gal are 18.92705892 l.
    EXPECT_EQ(AmountTexts(ImportUnits::AsInFile, Batch(18.927)).Weight(pound, Weighed::Malt), "1 lb");
    EXPECT_EQ(AmountTexts(ImportUnits::AsInFile, Batch(20)).Weight(pound, Weighed::Malt), "453.6 g");
    // 40 gal are 151.42 l, and 151.5 l is a multiple of half a litre within 0.2 %.
    EXPECT_EQ(AmountTexts(ImportUnits::AsInFile, Batch(151.4)).Weight(pound, Weighed::Malt), "453.6 g");
    EXPECT_EQ(AmountTexts(ImportUnits::AsInFile, Batch(20, "5.28 gal")).Weight(pound, Weighed::Malt), "1 lb");
    EXPECT_EQ(AmountTexts(ImportUnits::AsInFile, Batch(18.927, "18.93 L")).Weight(pound, Weighed::Malt),
              "453.6 g");
}

TEST(AmountTexts, VolumesTemperaturesAndPieces) {
    const AmountTexts us(ImportUnits::US, Batch(20)), metric(ImportUnits::Metric, Batch(20));
    EXPECT_EQ(us.Volume({Of::Volume, 18.92705892, {}}), "5 gal");
    EXPECT_EQ(metric.Volume({Of::Volume, 23, {}}), "23 L");
    EXPECT_EQ(metric.Volume({Of::Volume, 0.125, {}}), "125 ml");
    EXPECT_EQ(us.Temperature(20), "68 F");
    EXPECT_EQ(metric.Temperature(20), "20 C");
    EXPECT_EQ(us.Any({Of::Pieces, 1, "1 pkg"}, Weighed::Other), "1 pkg");
    EXPECT_EQ(us.Any({Of::Pieces, 2, {}}, Weighed::Other), "2");
}

TEST(AmountTexts, SmallAmountsHaveAUnitThatKeepsThem) {
    const AmountTexts us(ImportUnits::US, Batch(20));
    // 1 g is 0.035274 oz, and 0.0353 oz would be 0.07 % more.
    EXPECT_EQ(Hops(ImportUnits::US, 0.001), "1 g");
    EXPECT_EQ(Malt(ImportUnits::US, 0.002), "2 g");
    // 5 g are 0.17637 oz, and 0.1764 oz is 0.017 % more.
    EXPECT_EQ(Malt(ImportUnits::US, 0.005), "0.1764 oz");
    // 10 ml are 2.02884 tsp and 0.00264 gal; 250 ml are 8.4535 fl oz; a gallon has 128 fl oz or 768 tsp.
    EXPECT_EQ(us.Volume({Of::Volume, 0.01, {}}), "2.029 tsp");
    EXPECT_EQ(us.Volume({Of::Volume, 0.25, {}}), "8.454 fl oz");
    EXPECT_EQ(us.Volume({Of::Volume, 3.785411784 / 4, {}}), "0.25 gal");
    // A hundredth of a milliliter is 0.0020 tsp, with too few digits to be exact.
    EXPECT_EQ(us.Volume({Of::Volume, 0.00001, {}}), "0.01 ml");
    // The file's own unit would lose it, too: 0.0002 kg would be 0.2 g.
    EXPECT_EQ(Hops(ImportUnits::AsInFile, 0.000234, "0.00 kg"), "0.234 g");
    EXPECT_EQ(AmountTexts(ImportUnits::AsInFile, Batch(20)).Volume({Of::Volume, 0.01, "0.0 gal"}), "10 ml");
}

TEST(AmountTexts, DecimalsAreTheFewestThatKeepTheQuantity) {
    EXPECT_EQ(FewestDecimals(36.9712), "36.97");
    EXPECT_EQ(FewestDecimals(5), "5");
    EXPECT_EQ(FewestDecimals(0.75), "0.75");
    EXPECT_EQ(FewestDecimals(1.0 / 3), "0.3333");
    EXPECT_EQ(FewestDecimals(0), "0");
}

TEST(AmountTexts, GravitiesHaveThreeDecimalsOrFour) {
    EXPECT_EQ(GravityText(1.012), "1.012");
    EXPECT_EQ(GravityText(1.01), "1.010");
    EXPECT_EQ(GravityText(1.0123), "1.0123");
}

TEST(AmountTexts, TimesAreDaysFromOneDayOn) {
    EXPECT_EQ(TimeText(60), "60 min");
    EXPECT_EQ(TimeText(7.5), "7.5 min");
    EXPECT_EQ(TimeText(1440), "1 day");
    EXPECT_EQ(TimeText(10080), "7 days");
}

}  // namespace
}  // namespace tw
