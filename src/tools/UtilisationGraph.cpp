#include "tools/UtilisationGraph.h"

#include <algorithm>
#include <cmath>

namespace tw {
namespace {

// Returns the pixels of a value on a scale that ends at whole and is length pixels long.
int Scaled(double value, int whole, int length) {
    return value <= 0 ? 0 : static_cast<int>(std::lround(value / whole * length));
}

}  // namespace

std::array<Curve, kMethods> UtilisationCurves(double boilSG) {
    std::array<Curve, kMethods> curves;
    for (int i = 0; i <= kCurveSegments; ++i) {
        const double minutes = static_cast<double>(kGraphMinutes) / kCurveSegments * i;
        const UtilisationFigures figures = UtilisationAt(boilSG, minutes);
        for (int method = 0; method < kMethods; ++method)
            curves[static_cast<std::size_t>(method)].push_back(
                {minutes, FigureOf(figures, static_cast<IbuMethod>(method))});
    }
    return curves;
}

const char* MethodName(IbuMethod method) {
    switch (method) {
        case IbuMethod::Tinseth:
            return "Tinseth";
        case IbuMethod::Rager:
            return "Rager";
        case IbuMethod::Garetz:
            break;
    }
    return "Garetz";
}

double FigureOf(const UtilisationFigures& figures, IbuMethod method) {
    switch (method) {
        case IbuMethod::Tinseth:
            return figures.tinseth;
        case IbuMethod::Rager:
            return figures.rager;
        case IbuMethod::Garetz:
            break;
    }
    return figures.garetz;
}

int GraphArea::TimeToX(double minutes) const {
    return left + Scaled(minutes, kGraphMinutes, width);
}

int GraphArea::UtilisationToY(double percent) const {
    return top + height - Scaled(percent, kGraphPercent, height);
}

int GraphArea::MinutesAt(int x) const {
    if (width <= 0) return 0;
    const double part = static_cast<double>(x - left) / width;
    return static_cast<int>(std::lround(std::clamp(part, 0.0, 1.0) * kGraphMinutes));
}

}  // namespace tw
