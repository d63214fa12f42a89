// Beer colour: from colour units to SRM by a power law, and to a display colour by a table of hue and
// lightness.
#pragma once

#include <map>

#include "calc/Rgb.h"

namespace tw {

// SRM of homebrew colour units (degrees Lovibond times pounds per US gallon): 1.4922 * HCU^0.6859, Dan
// Morey's equation (1995), which holds to about 50 SRM and goes on above. Raises "Overflow" for a negative
// HCU, whose power is no number.
double HCUToSRM(double hcu);
// HCUToSRM solved for the colour units. REQUIRES: srm >= 0.
double SRMToHCU(double srm);

// A color on the scales of a color dialog, which have no unit.
struct Hsl {
    double hue = 0;         // 0 to 240
    double lightness = 0;   // 0 to 240
    double saturation = 0;  // 0 to 240
};

// Hue and lightness of beer, keyed by whole HCU from 1 to 294: the program's own table. Built once at start.
class ColorTable {
  public:
    struct Entry {
        double hue;        // 0 to 240, no unit
        double lightness;  // 0 to 240, no unit
    };

    // Fills the table (the program's LoadColorTable).
    ColorTable();

    // Of a whole HCU number; between the keys of the table interpolated, below 1 and above 294 the ends.
    Entry LookupColorEntry(int hcu) const;
    // Of any HCU, interpolated between the whole numbers around it; saturation is always 240. REQUIRES: hcu
    // >= 0.
    Hsl HCUToHSL(double hcu) const;
    // The colour to show. REQUIRES: hcu >= 0.
    Rgb HCUToColor(double hcu) const;

  private:
    std::map<int, Entry> entries_;
};

// From hue, lightness and saturation, each from 0 to 240 without a unit: the HLS model of Foley, van Dam,
// Feiner and Hughes (Computer Graphics: Principles and Practice, 1990). Channels outside 0 to 255 become the
// ends.
Rgb HSLToRGB(double hue, double lightness, double saturation);
// One channel of that model between its two bounds m1 and m2, all three from 0 to 1 without a unit. degrees
// is the hue as an angle in degrees; it is taken round the circle once, so that it may be from -360 to 720.
double HueToChannel(double m1, double m2, double degrees);

}  // namespace tw
