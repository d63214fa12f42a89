#include "exchange/ForeignUnits.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "values/Converter.h"

namespace tw {
namespace {

using enum UnitKind;

constexpr double kKilogramsPerOunce = kKilogramsPerPound / 16;
constexpr double kLitresPerImperialGallon = 4.54609;  // exact: Weights and Measures Act 1985
constexpr double kGallonsPerBarrel = 31;              // of beer, in the US
constexpr double kImperialGallonsPerBarrel = 36;
constexpr double kMinutesPerDay = 24 * 60;
constexpr double kGramsPerVolume = 1.977;  // of CO2 in a litre at 0 degrees Celsius and one atmosphere
constexpr double kKilopascalsPerPound = 6.894757;

double CelsiusOfFahrenheit(double fahrenheit) {
    return (fahrenheit - 32) * 5 / 9;
}
double CelsiusOfKelvin(double kelvin) {
    return kelvin - kKelvinOffset;
}

// Between bars, the words as Folded gives them.
struct Row {
    std::string_view words;
    ForeignUnit unit;
};

constexpr std::array kRows = {
    Row{"|kg|kgs|kilo|kilos|kilogram|kilograms|", {Mass, "kg"}},
    Row{"|g|gr|gm|gms|gram|grams|", {Mass, "g", 1e-3}},
    Row{"|mg|milligram|milligrams|", {Mass, "mg", 1e-6}},
    Row{"|lb|lbs|pound|pounds|#|", {Mass, "lb", kKilogramsPerPound}},
    Row{"|oz|ozs|ounce|ounces|", {Mass, "oz", kKilogramsPerOunce}},

    Row{"|l|lt|ltr|liter|liters|litre|litres|", {Volume, "l"}},
    Row{"|ml|cc|milliliter|milliliters|millilitre|millilitres|", {Volume, "ml", 1e-3}},
    Row{"|cl|centiliter|centiliters|", {Volume, "", 1e-2}},
    Row{"|dl|deciliter|deciliters|", {Volume, "", 1e-1}},
    Row{"|hl|hectoliter|hectoliters|hectolitre|hectolitres|", {Volume, "hl", 100}},
    Row{"|gal|gals|gallon|gallons|usgal|usgallons|galus|", {Volume, "gal", kLitresPerGallon}},
    Row{"|qt|qts|quart|quarts|", {Volume, "qt", kLitresPerGallon / kQuartsPerGallon}},
    Row{"|pt|pts|pint|pints|", {Volume, "pt", kLitresPerGallon / kPintsPerGallon}},
    Row{"|cup|cups|", {Volume, "cup", kLitresPerGallon / kCupsPerGallon}},
    Row{"|floz|fluidounce|fluidounces|", {Volume, "fl oz", kLitresPerGallon / kFluidOuncesPerGallon}},
    Row{"|tbsp|tbs|tbls|tablespoon|tablespoons|", {Volume, "tbsp", kLitresPerGallon / kTablespoonsPerGallon}},
    Row{"|tsp|tsps|teaspoon|teaspoons|", {Volume, "tsp", kLitresPerGallon / kTeaspoonsPerGallon}},
    Row{"|bbl|barrel|barrels|", {Volume, "bbl", kLitresPerGallon* kGallonsPerBarrel}},
    Row{"|igal|impgal|impgallon|impgallons|galimp|ukgal|", {Volume, "", kLitresPerImperialGallon}},
    Row{"|iqt|impqt|", {Volume, "", kLitresPerImperialGallon / 4}},
    Row{"|ipt|imppt|imppint|imppints|", {Volume, "", kLitresPerImperialGallon / 8}},
    Row{"|ifloz|impfloz|", {Volume, "", kLitresPerImperialGallon / 160}},
    Row{"|ibbl|impbbl|", {Volume, "", kLitresPerImperialGallon* kImperialGallonsPerBarrel}},

    Row{"|1|each|ea|unit|units|dimensionless|piece|pieces|item|items|", {Pieces, "each"}},
    Row{"|pkg|pkgs|package|packages|packet|packets|pack|packs|sachet|sachets|", {Pieces, "pkg"}},
    Row{"|tablet|tablets|tab|tabs|", {Pieces, "tablets"}},

    Row{"|c|celsius|centigrade|", {Temperature, "C"}},
    Row{"|f|fahrenheit|", {Temperature, "F", 1, CelsiusOfFahrenheit}},
    Row{"|k|kelvin|", {Temperature, "K", 1, CelsiusOfKelvin}},

    Row{"|min|mins|minute|minutes|m|", {Time, "min"}},
    Row{"|s|sec|secs|second|seconds|", {Time, "sec", 1.0 / 60}},
    Row{"|h|hr|hrs|hour|hours|", {Time, "hr", 60}},
    Row{"|d|day|days|", {Time, "days", kMinutesPerDay}},
    Row{"|w|wk|wks|week|weeks|", {Time, "weeks", 7 * kMinutesPerDay}},

    Row{"|%|percent|pct|%abv|%vol|%v/v|%aa|%alpha|", {Percent, "%"}},

    Row{"|sg|", {Gravity, "sg"}},
    Row{"|p|plato|", {Gravity, "P", 1, PlatoToSG}},
    // Both scales give the percentage of sugar and differ by less than 0.05 up to 30.
    Row{"|bx|brix|", {Gravity, "Brix", 1, PlatoToSG}},

    Row{"|srm|", {Colour, "SRM"}},
    Row{"|ebc|", {Colour, "EBC", 1 / kEbcPerSrm}},
    Row{"|l|lovi|lov|lovibond|", {Colour, "L", 1, SrmOfLovibond}},

    Row{"|ibu|ibus|ebu|bu|", {Bitterness, "IBU"}},

    Row{"|vol|vols|volume|volumes|volco2|volsco2|volumesco2|volumesofco2|", {Carbonation, "vols"}},
    Row{"|g/l|", {Carbonation, "g/l", 1 / kGramsPerVolume}},

    Row{"|mg/l|ppm|", {Concentration, "ppm"}},
    Row{"|ppb|", {Concentration, "ppb", 1e-3}},
    Row{"|g/l|", {Concentration, "g/l", 1e3}},

    Row{"|kpa|", {Pressure, "kPa"}},
    Row{"|psi|", {Pressure, "psi", kKilopascalsPerPound}},
    Row{"|bar|", {Pressure, "bar", 100}},
};

// Lower case without blanks, points, degree signs and the word for them.
std::string Folded(std::string_view word) {
    constexpr std::string_view kDropped = " \t\r\n.";
    std::string folded;
    while (!word.empty()) {
        const bool isSign =
            word.starts_with("\xC2\xB0") || word.starts_with("\xC2\xBA") || word.starts_with("\xC2\xA0");
        const char c = word.front();
        if (!isSign && kDropped.find(c) == std::string_view::npos)
            folded += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        word.remove_prefix(isSign ? 2 : 1);
    }
    for (const std::string_view degrees : {"degrees", "degree", "deg"})
        if (folded.starts_with(degrees)) folded.erase(0, degrees.size());
    return folded;
}

}  // namespace

const ForeignUnit* FindUnit(UnitKind kind, std::string_view word) {
    constexpr std::size_t kLongest = 40;
    if (word.empty() || word.size() > kLongest || word.find('|') != std::string_view::npos) return nullptr;
    const std::string folded = Folded(word);
    if (folded.empty()) return nullptr;
    const std::string between = "|" + folded + "|";
    const auto* const found = std::ranges::find_if(kRows, [&](const Row& row) {
        return row.unit.kind == kind && row.words.find(between) != std::string_view::npos;
    });
    return found == kRows.end() ? nullptr : &found->unit;
}

const ForeignUnit* FindAmountUnit(std::string_view word) {
    for (const UnitKind kind : {Mass, Volume, Pieces})
        if (const ForeignUnit* const unit = FindUnit(kind, word)) return unit;
    return nullptr;
}

double SrmOfLovibond(double lovibond) {
    return lovibond == 0 ? 0 : std::max(1.3546 * lovibond - 0.76, 0.0);
}

double LovibondOfSrm(double srm) {
    return srm == 0 ? 0 : (srm + 0.76) / 1.3546;
}

}  // namespace tw
