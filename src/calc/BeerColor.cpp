#include "calc/BeerColor.h"

#include <algorithm>
#include <cmath>

#include "platform/Error.h"

namespace tw {
namespace {

constexpr double kMoreyFactor = 1.4922;
constexpr double kMoreyPower = 0.6859;

constexpr int kLastKey = 294;
constexpr ColorTable::Entry kBelowTable{40, 240};
constexpr ColorTable::Entry kAboveTable{0, 0};

double Between(double from, double to, double fraction) {
    return (to - from) * fraction + from;
}

std::uint8_t ToByte(double channel) {
    return static_cast<std::uint8_t>(std::clamp(std::lround(channel), 0L, 255L));
}

}  // namespace

double HCUToSRM(double hcu) {
    return Finite(kMoreyFactor * std::pow(hcu, kMoreyPower));
}

double SRMToHCU(double srm) {
    return Finite(std::pow(srm / kMoreyFactor, 1 / kMoreyPower));
}

ColorTable::ColorTable()
    : entries_{{1, {40, 230}},  {2, {36, 207}},    {3, {32, 190}}, {5, {28, 167}}, {10, {24, 130}},
               {13, {20, 117}}, {16, {16, 98}},    {21, {12, 79}}, {25, {10, 63}}, {36, {6, 45}},
               {50, {3, 36}},   {75, {1, 32}},     {100, {0, 29}}, {125, {0, 25}}, {150, {0, 22}},
               {175, {0, 18}},  {200, {0, 14}},    {225, {0, 11}}, {250, {0, 7}},  {275, {0, 3}},
               {288, {0, 1}},   {kLastKey, {0, 0}}} {}

ColorTable::Entry ColorTable::LookupColorEntry(int hcu) const {
    if (hcu < 1) return kBelowTable;
    if (hcu > kLastKey) return kAboveTable;
    const auto upper = entries_.lower_bound(hcu);
    if (upper->first == hcu) return upper->second;
    const auto lower = std::prev(upper);
    const double fraction = static_cast<double>(hcu - lower->first) / (upper->first - lower->first);
    return {Between(lower->second.hue, upper->second.hue, fraction),
            Between(lower->second.lightness, upper->second.lightness, fraction)};
}

Hsl ColorTable::HCUToHSL(double hcu) const {
    constexpr double kSaturation = 240;
    // Beyond either end of the table the colour no longer changes. The clamp also keeps a huge number within
    // an int.
    const double known = std::clamp(hcu, 0.0, static_cast<double>(kLastKey + 1));
    const double floor = std::floor(known);
    const int key = static_cast<int>(floor);
    const double fraction = known - floor;
    const Entry low = LookupColorEntry(key);
    if (fraction == 0) return {low.hue, low.lightness, kSaturation};
    const Entry high = LookupColorEntry(key + 1);
    return {Between(low.hue, high.hue, fraction), Between(low.lightness, high.lightness, fraction),
            kSaturation};
}

Rgb ColorTable::HCUToColor(double hcu) const {
    const Hsl color = HCUToHSL(hcu);
    return HSLToRGB(color.hue, color.lightness, color.saturation);
}

Rgb HSLToRGB(double hue, double lightness, double saturation) {
    const double h = hue * 360 / 240;
    const double l = lightness / 240;
    const double s = saturation / 240;
    if (s == 0) return {ToByte(l * 255), ToByte(l * 255), ToByte(l * 255)};
    const double m2 = l <= 0.5 ? l * (1 + s) : l + s - l * s;
    const double m1 = 2 * l - m2;
    return {ToByte(HueToChannel(m1, m2, h + 120) * 255), ToByte(HueToChannel(m1, m2, h) * 255),
            ToByte(HueToChannel(m1, m2, h - 120) * 255)};
}

double HueToChannel(double m1, double m2, double degrees) {
    if (degrees > 360) degrees -= 360;
    if (degrees < 0) degrees += 360;
    if (degrees < 60) return m1 + (m2 - m1) * degrees / 60;
    if (degrees < 180) return m2;
    if (degrees < 240) return m1 + (m2 - m1) * (240 - degrees) / 60;
    return m1;
}

}  // namespace tw
