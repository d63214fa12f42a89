// Beer colour: from colour units to SRM by a power law, and to a display colour by a table of hue and
// lightness.
#pragma once

#include <map>

#include "calc/Rgb.h"

namespace tw {

// SRM of homebrew colour units (degrees Lovibond times pounds per gallon): 1.4922 * HCU^0.6859, the Morey
// equation.
double HCUToSRM(double hcu);
// The way back. REQUIRES: srm >= 0.
double SRMToHCU(double srm);

// Hue and lightness on the 0 to 240 scale of a colour dialog, keyed by whole HCU. Built once at start.
class ColorTable {
  public:
    struct Entry {
        double hue;
        double lightness;
    };

    // Fills the table (the program's LoadColorTable).
    ColorTable();

    // Of a whole HCU number; between the keys of the table interpolated, below 1 and above 294 the ends.
    Entry LookupColorEntry(int key) const;
    // Of any HCU, interpolated between the whole numbers around it; saturation is always 240. REQUIRES: hcu
    // >= 0.
    void HCUToHSL(double hcu, double& hue, double& lightness, double& saturation) const;
    // The colour to show. REQUIRES: hcu >= 0.
    Rgb HCUToColor(double hcu) const;

  private:
    std::map<int, Entry> entries_;
};

// From hue, lightness and saturation on the 0 to 240 scale.
Rgb HSLToRGB(double hue, double lightness, double saturation);
// One channel, 0 to 1, at an angle in degrees.
double HueToChannel(double m1, double m2, double h);

}  // namespace tw
