// The colour of beer: homebrew colour units (HCU) converted to SRM by a power law, and to a colour on the
// screen by a table of hue and lightness.
#pragma once

#include <map>

#include "calc/Rgb.h"

namespace tw {

// Returns the SRM colour of homebrew colour units (degrees Lovibond times pounds per US gallon): 1.4922 *
// HCU^0.6859, Dan Morey's equation (1995). Valid to about 50 SRM; nothing is limited above. Raises "Overflow"
// for a negative HCU, whose power is not a number.
double HCUToSRM(double hcu);
// Inverts HCUToSRM, within the same range. REQUIRES: srm >= 0.
double SRMToHCU(double srm);

// A colour on the scales of a colour dialog, which have no unit.
struct Hsl {
    double hue = 0;         // 0 to 240
    double lightness = 0;   // 0 to 240
    double saturation = 0;  // 0 to 240
};

// Hue and lightness of beer, keyed by whole HCU from 1 to 294: the program's own table.
class ColorTable {
  public:
    struct Entry {
        double hue;        // 0 to 240, no unit
        double lightness;  // 0 to 240, no unit
    };

    // Fills the table (LoadColorTable).
    ColorTable();

    // Returns the entry of a whole HCU, interpolated between the keys of the table: white (40, 240) below 1,
    // black (0, 0) above 294.
    Entry LookupColorEntry(int hcu) const;
    // Returns the colour of any HCU, interpolated between the whole numbers around it; its saturation is
    // always 240. REQUIRES: hcu >= 0.
    Hsl HCUToHSL(double hcu) const;
    // Returns the colour to show. REQUIRES: hcu >= 0.
    Rgb HCUToColor(double hcu) const;

  private:
    std::map<int, Entry> entries_;
};

// Converts hue, lightness and saturation, each from 0 to 240 without a unit, by the HLS model of Foley, van
// Dam, Feiner and Hughes (Computer Graphics: Principles and Practice, 1990). Channels outside 0 to 255 are
// clamped.
Rgb HSLToRGB(double hue, double lightness, double saturation);
// Returns one channel of that model, between its bounds m1 and m2; all three are from 0 to 1 and have no
// unit. degrees is the hue as an angle in degrees, from -360 to 720: it is brought into the circle by one
// turn.
double HueToChannel(double m1, double m2, double degrees);

}  // namespace tw
