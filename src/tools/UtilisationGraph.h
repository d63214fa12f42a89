// The graph of hop utilisation against boil time: its curves and its scales, without a picture.
#pragma once

#include <array>
#include <vector>

#include "calc/Hops.h"

namespace tw {

inline constexpr int kGraphMinutes = 90;      // end of the horizontal scale, which runs from 0: boil time
inline constexpr int kGraphPercent = 40;      // end of the vertical scale, which runs from 0: utilisation
inline constexpr int kGraphMinutesStep = 15;  // between the labelled marks
inline constexpr int kGraphPercentStep = 10;  // between the labelled marks
inline constexpr int kCurveSegments = 30;     // of equal boil time
inline constexpr int kMethods = 3;

struct CurvePoint {
    double minutes;  // of boil time
    double percent;  // of the alpha acid used
};
// kCurveSegments + 1 points, from 0 to kGraphMinutes.
using Curve = std::vector<CurvePoint>;

// The curves of Tinseth, Rager and Garetz, in this order; sources and ranges stand at the formulas in
// calc/Hops.h.
std::array<Curve, kMethods> UtilisationCurves(double boilSG);
// "Tinseth", "Rager", "Garetz".
const char* MethodName(IbuMethod method);
// Percent.
double FigureOf(const UtilisationFigures& figures, IbuMethod method);

// The area of the curves in a picture, in pixels from its top left corner.
struct GraphArea {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    // Times and percentages as places of the picture; what is at or below 0 lies on the axis. Nothing is
    // clipped: a figure above kGraphPercent leaves the area, on purpose.
    int TimeToX(double minutes) const;
    int UtilisationToY(double percent) const;
    // The whole minute at a place of the picture, from 0 to kGraphMinutes.
    int MinutesAt(int x) const;
};

}  // namespace tw
