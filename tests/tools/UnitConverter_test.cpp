// Tests of converting a quantity into all units of its kind.
#include "tools/UnitConverter.h"

#include <gmock/gmock.h>

#include "platform/Error.h"

namespace tw::test {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::Pointwise;

std::vector<std::string> NamesOf(QuantityKind kind) {
    std::vector<std::string> names;
    for (const std::string_view unit : UnitsOf(kind)) names.push_back(UnitName(unit));
    return names;
}

void ExpectAll(QuantityKind kind, int from, double value, const std::vector<double>& expected) {
    EXPECT_THAT(ConvertToAllUnits(kind, from, value), Pointwise(DoubleNear(1e-9), expected))
        << KindName(kind) << " from " << from;
}

TEST(UnitConverter, NamesItsKindsAndUnitsInOrder) {
    std::vector<std::string> kinds;
    for (int i = 0; i < kQuantityKinds; ++i) kinds.emplace_back(KindName(static_cast<QuantityKind>(i)));
    EXPECT_THAT(kinds, ElementsAre("Mass/Weight", "Volume", "Gravity", "Temperature", "Pressure"));
    EXPECT_THAT(NamesOf(QuantityKind::Weight), ElementsAre("Pounds", "Ounces", "Kilograms", "Grams"));
    EXPECT_THAT(NamesOf(QuantityKind::Volume),
                ElementsAre("Gallons", "Quarts", "Pints", "Cups", "Fluid Ounces", "Tablespoons", "Teaspoons",
                            "Liters", "Milliliters"));
    EXPECT_THAT(NamesOf(QuantityKind::Gravity), ElementsAre("Specific Gravity", "Degrees Plato"));
    EXPECT_THAT(NamesOf(QuantityKind::Temperature),
                ElementsAre("Degrees Fahrenheit", "Degrees Celsius (Centigrade)", "Kelvin"));
    EXPECT_THAT(NamesOf(QuantityKind::Pressure),
                ElementsAre("Pounds per Square Inch", "Atmospheres", "Kilopascals", "Pascals"));
}

TEST(UnitConverter, BreaksTheLongNamesIntoLines) {
    EXPECT_EQ(UnitsOf(QuantityKind::Temperature)[0], "Degrees\nFahrenheit");
    EXPECT_EQ(UnitsOf(QuantityKind::Temperature)[1], "Degrees\nCelsius\n(Centigrade)");
    EXPECT_EQ(UnitsOf(QuantityKind::Pressure)[0], "Pounds per\nSquare Inch");
    EXPECT_EQ(UnitsOf(QuantityKind::Gravity)[1], "Degrees Plato");
}

TEST(UnitConverter, TakesVolumesByTheUnitsOfAGallon) {
    const std::vector<double> gallon{1, 4, 8, 16, 128, 256, 768, 3.785, 3785};
    for (int from = 0; from < static_cast<int>(gallon.size()); ++from)
        ExpectAll(QuantityKind::Volume, from, gallon[static_cast<std::size_t>(from)], gallon);
    // A quart is 2 pints, 4 cups, 32 fluid ounces, 64 tablespoons, 192 teaspoons.
    ExpectAll(QuantityKind::Volume, 1, 1, {0.25, 1, 2, 4, 32, 64, 192, 0.94625, 946.25});
}

// The factors are not consistent with one another: a pound of 453.59 grams is 16 ounces, but 16 ounces of
// 28.35 grams are 453.6 grams. Each pair of units keeps its own factor.
TEST(UnitConverter, KeepsAFactorForEveryPairOfWeights) {
    ExpectAll(QuantityKind::Weight, 0, 1, {1, 16, 0.45359, 453.59});
    ExpectAll(QuantityKind::Weight, 1, 16, {1, 16, 16 / 35.274, 453.6});
    ExpectAll(QuantityKind::Weight, 2, 1, {1000 / 453.59, 35.274, 1, 1000});
    ExpectAll(QuantityKind::Weight, 3, 453.6, {453.6 / 453.59, 16, 0.4536, 453.6});
}

// 12.3743425 = 1262.45 * 1.05 - 668.96 - 776.43 * 1.1025 + 182.94 * 1.157625; back by the other fitted curve,
// 1 + 0.0038661 * 12 + 1.3488e-5 * 144 + 4.3074e-8 * 1728.
TEST(UnitConverter, TakesGravitiesByTheTwoFits) {
    ExpectAll(QuantityKind::Gravity, 0, 1.05, {1.05, 12.3743425});
    ExpectAll(QuantityKind::Gravity, 1, 12, {1.048409903872, 12});
}

TEST(UnitConverter, TakesTemperaturesWithTheirOffsets) {
    ExpectAll(QuantityKind::Temperature, 0, 212, {212, 100, 373.15});
    ExpectAll(QuantityKind::Temperature, 0, -40, {-40, -40, 233.15});
    ExpectAll(QuantityKind::Temperature, 1, 20, {68, 20, 293.15});
    ExpectAll(QuantityKind::Temperature, 2, 300, {80.33, 26.85, 300});
}

TEST(UnitConverter, TakesPressuresThroughPsi) {
    ExpectAll(QuantityKind::Pressure, 0, 1, {1, 1 / 14.6959, 6.894757, 6894.757});
    ExpectAll(QuantityKind::Pressure, 1, 1.5, {22.04385, 1.5, 22.04385 * 6.894757, 22.04385 * 6894.757});
    ExpectAll(QuantityKind::Pressure, 2, 6.894757, {1, 1 / 14.6959, 6.894757, 6894.757});
    ExpectAll(QuantityKind::Pressure, 3, 6894.757, {1, 1 / 14.6959, 6.894757, 6894.757});
}

TEST(UnitConverter, RaisesOverflowForAFigureBeyondAllBounds) {
    EXPECT_THROW(ConvertToAllUnits(QuantityKind::Volume, 0, 1e308), Error);
    EXPECT_THROW(ConvertToAllUnits(QuantityKind::Gravity, 0, 1e200), Error);
}

}  // namespace
}  // namespace tw::test
