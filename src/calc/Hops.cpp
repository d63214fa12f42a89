#include "calc/Hops.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <span>

#include "platform/Error.h"

namespace tw {
namespace {

struct Point {
    double minutes;
    double utilisation;
};

constexpr std::array<Point, 8> kRager{
    {{0, 0}, {9, 0.05}, {19, 0.12}, {29, 0.15}, {44, 0.19}, {59, 0.22}, {74, 0.24}, {89, 0.27}}};
constexpr std::array<Point, 14> kGaretz{{{5, 0},
                                         {10, 0.01},
                                         {15, 0.02},
                                         {20, 0.05},
                                         {25, 0.08},
                                         {30, 0.11},
                                         {35, 0.14},
                                         {40, 0.16},
                                         {45, 0.18},
                                         {50, 0.19},
                                         {60, 0.20},
                                         {70, 0.21},
                                         {80, 0.22},
                                         {90, 0.23}}};

// Returns the utilisation interpolated from the left point of the segment that holds minutes; 0 outside the
// table.
double Interpolate(std::span<const Point> table, double minutes) {
    for (std::size_t i = 0; i + 1 < table.size(); ++i) {
        const Point& left = table[i];
        const Point& right = table[i + 1];
        if (minutes == right.minutes) return right.utilisation;
        if (minutes >= left.minutes && minutes < right.minutes)
            return left.utilisation + (minutes - left.minutes) * (right.utilisation - left.utilisation) /
                                          (right.minutes - left.minutes);
    }
    return 0;
}

double Bigness(double boilSG) {
    return 1.65 * std::pow(0.000125, boilSG - 1);
}
double BoilTimeFactor(double minutes) {
    return (1 - std::exp(-0.04 * minutes)) / 4.15;
}

}  // namespace

double TinsethUtilisation(double boilSG, double minutes) {
    return Finite(Bigness(boilSG) * BoilTimeFactor(minutes));
}

double RagerTableUtilisation(double minutes) {
    if (minutes >= 90) return 0.27;
    return Interpolate(kRager, minutes);
}

double GaretzTableUtilisation(double minutes) {
    if (minutes > 90) return 0.23;
    return Interpolate(kGaretz, minutes);
}

double GravityAdjustment(double boilSG) {
    return boilSG > 1.05 ? 1 + (boilSG - 1.05) / 0.2 : 1;
}

double HopBitterness(IbuMethod method, const HopAddition& hop, const HopKettle& kettle) {
    if (method == IbuMethod::Tinseth) {
        const double concentration = Divide(hop.alphaAcidOunces * 7490, kettle.totalVolume);
        return Finite(hop.formFactor * kettle.hopExtraction * concentration * Bigness(kettle.boilGravity) *
                      BoilTimeFactor(hop.minutes));
    }
    const double utilisation =
        method == IbuMethod::Rager ? RagerTableUtilisation(hop.minutes) : GaretzTableUtilisation(hop.minutes);
    // 7489 here and 7490 above: each method is defined with a constant of its own.
    return Divide(utilisation * hop.alphaAcidOunces * 7489 * hop.formFactor * kettle.hopExtraction,
                  GravityAdjustment(kettle.boilGravity) * kettle.totalVolume);
}

double BitternessPerGravity(double ibu, double originalSG) {
    return Divide(ibu, (originalSG - 1) * 1000);
}

UtilisationFigures UtilisationAt(double boilSG, double minutes) {
    const double adjustment = GravityAdjustment(boilSG);
    return {Finite(Bigness(boilSG) * (1 - std::exp(-0.04 * minutes)) / 4.15 * 100),
            RagerTableUtilisation(minutes) * 100 / adjustment,
            GaretzTableUtilisation(minutes) * 100 / adjustment};
}

}  // namespace tw
