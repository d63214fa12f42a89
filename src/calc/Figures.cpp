#include "calc/Figures.h"

#include <cmath>

#include "platform/Error.h"
#include "values/Converter.h"

namespace tw {
namespace {

// The terms of KegPressure without the volumes, in psi.
double PressureWithoutGas(double fahrenheit) {
    const double square = fahrenheit * fahrenheit;
    return -16.6999 - 0.0101059 * fahrenheit + 0.00116512 * square;
}

}  // namespace

AlcoholFigures ComputeAlcohol(double originalSG, double finalSG) {
    AlcoholFigures f{};
    f.originalExtract = SGToPlato(originalSG);
    f.apparentExtract = SGToPlato(finalSG);
    const double q = 0.22 + 0.001 * f.originalExtract;
    f.realExtract = Divide(q * f.originalExtract + f.apparentExtract, 1 + q);
    f.byWeight = Divide(f.originalExtract - f.realExtract, 2.0665 - 0.010655 * f.originalExtract);
    f.byVolume = Finite(f.byWeight * finalSG / 0.794);
    return f;
}

double AttenuatedGravity(double originalSG, double attenuationPercent) {
    const double attenuation = attenuationPercent / 100;
    const double originalExtract = SGToPlato(originalSG);
    return Finite(PlatoToSG(originalExtract - attenuation * originalExtract));
}

double CaloriesPer12FlOz(double realExtractPlato, double alcoholPercentByWeight, double finalSG) {
    return Finite((realExtractPlato * 4.08 + alcoholPercentByWeight * 7.1) * finalSG * 3.55);
}

double ResidualCO2(double fahrenheit) {
    const double square = fahrenheit * fahrenheit;
    return Finite(3.0378 - 0.050062 * fahrenheit + 0.00026555 * square);
}

double KegPressure(double fahrenheit, double volumes) {
    return Finite(PressureWithoutGas(fahrenheit) + 0.173354 * fahrenheit * volumes + 4.24267 * volumes -
                  0.0684226 * (volumes * volumes));
}

std::optional<double> KegVolumes(double fahrenheit, double psi) {
    const double a = -0.0684226;
    const double b = 0.173354 * fahrenheit + 4.24267;
    const double c = PressureWithoutGas(fahrenheit) - psi;
    const double discriminant = b * b - 4 * a * c;
    if (discriminant < 0) return std::nullopt;
    double v = (-b + std::sqrt(discriminant)) / (2 * a);
    if (v < 0) v = (-b - std::sqrt(discriminant)) / (2 * a);
    if (v < 0) return std::nullopt;
    return Finite(v);
}

double PrimingVolumes(double ounces, double fermentablePercent, double gallons) {
    return Divide(ounces * (fermentablePercent / 100) * 0.27027, gallons * 0.133);
}

double PrimingOunces(double volumes, double fermentablePercent, double gallons) {
    return Divide(volumes / 0.27027 * 0.133 * gallons * 100, fermentablePercent);
}

}  // namespace tw
