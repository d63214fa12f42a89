// The graph of hop utilisation against boil time: its curves and scales, without the drawing.
#pragma once

#include <array>
#include <vector>

#include "calc/Hops.h"

namespace tw {

inline constexpr int kGraphMinutes = 90;      // end of the horizontal scale, boil time from 0
inline constexpr int kGraphPercent = 40;      // end of the vertical scale, utilisation from 0
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

// Returns the curves of Tinseth, Rager and Garetz, in this order. Sources and valid ranges are those of the
// formulas in calc/Hops.h.
std::array<Curve, kMethods> UtilisationCurves(double boilSG);
// Returns "Tinseth", "Rager" or "Garetz".
const char* MethodName(IbuMethod method);
// Returns the utilisation by one method, in percent.
double FigureOf(const UtilisationFigures& figures, IbuMethod method);

// The area of the curves in a picture, in pixels from its top left corner.
struct GraphArea {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    // Return the place of a boil time or a percentage in the picture, in pixels. What is at or below 0 is on
    // the axis. Nothing is clipped: a utilisation above kGraphPercent is above the area, so that no curve
    // shows a plateau that it does not have.
    int TimeToX(double minutes) const;
    int UtilisationToY(double percent) const;
    // Returns the whole minute at a place of the picture, clamped to 0 and kGraphMinutes.
    int MinutesAt(int x) const;
};

}  // namespace tw
