#include "values/UnitWords.h"

#include <array>
#include <cstddef>

#include "values/Split.h"

namespace tw {
namespace {

struct UnitEntry {
    Unit unit;
    bool bareNumber;         // a number without a word may mean this unit
    std::string_view words;  // separated by commas
};

constexpr UnitEntry kUnits[] = {
    {Unit::SG, true, "SG"},
    {Unit::Plato, false, "P,P.,PL,PL.,PLATO"},
    {Unit::Gallons, true, "G,G.,GAL,GAL.,GALS,GALS.,GALLON,GALLONS"},
    {Unit::Quarts, false, "Q,Q.,QT,QT.,QTS,QTS.,QUART,QUARTS"},
    {Unit::Pints, false, "P,P.,PT,PT.,PTS,PTS.,PINT,PINTS"},
    {Unit::Cups, false, "C,C.,CUP,CUPS"},
    {Unit::FluidOunces, false, "O,O.,OZ,OZ.,OUNCE,OUNCES"},
    {Unit::Tablespoons, false, "TBSP,TBSP.,TBSPS,TBSPS.,TABLESPOON,TABLESPOONS"},
    {Unit::Teaspoons, false, "TSP,TSP.,TSPS,TSPS.,TEASPOON,TEASPOONS"},
    {Unit::Liters, false, "L,L.,LITER,LITERS"},
    {Unit::Milliliters, false, "ML,ML.,MILLILITER,MILLILITERS"},
    {Unit::Pounds, true, "LB,LB.,LBS,LBS.,POUND,POUNDS"},
    {Unit::Ounces, true, "O,O.,OZ,OZ.,OUNCE,OUNCES"},
    {Unit::Grams, true, "G,G.,GRAM,GRAMS"},
    {Unit::Kilograms, false, "KG,KG.,KILOGRAM,KILOGRAMS,K,K.,KILO,KILO.,KILOS,KILOS."},
    {Unit::Percent, true, "%"},
    {Unit::AAU, false, "AU,AU.,AUS,AUS.,AA,AA.,AAS,AAS.,AAU,AAU.,AAUS,AAUS."},
    {Unit::IBU, true, "IBU,IBU.,IBUS,IBUS.,BU,BU.,BUS,BUS."},
    {Unit::CO2Volumes, true, "CO2,VOL,VOLS,VOL.,VOLS.,VOL CO2,VOL.CO2,VOL. CO2,VOLS CO2,VOLS.CO2,VOLS. CO2"},
    {Unit::Minutes, true, "M,M.,MIN,MIN.,MS,MS.,MINS,MINS.,MINUTE,MINUTES"},
    {Unit::Hours, false, "H,H.,HR,HR.,HRS,HRS.,HS,HS.,HOUR,HOURS"},
    {Unit::Seconds, false, "S,S.,SEC,SEC.,SECS,SECS.,SECOND,SECONDS"},
    {Unit::Fahrenheit, true, "F,F.,FAHRENHEIT"},
    {Unit::Celsius, false, "C,C.,CELSIUS,CENTIGRADE"},
    {Unit::Kelvin, false, "K,K.,KELVIN,KELVINS"},
    {Unit::PSI, true, "PSI,PSI."},
    {Unit::KPa, false, "KPA,KPA.,KPAS,KPAS.,KILOPASCAL,KILOPASCALS"},
    {Unit::Pa, false, "PA,PA.,PAS,PAS.,PASCAL,PASCALS"},
    {Unit::Atm, false, "ATM,ATM.,ATMS,ATMS.,ATMOSPHERE,ATMOSPHERES"},
};

constexpr std::size_t kSlots = 512;  // a power of two, some four times the number of words

// A hash table with open addressing, filled by the compiler.
struct WordTable {
    struct Slot {
        std::string_view word;
        UnitSet units;
    };
    std::array<Slot, kSlots> slots{};
    UnitSet bareNumber;

    // Returns the slot of word, unless another word has taken it. Computed from three of its bytes, since
    // units are looked up with every entry. REQUIRES: word is not empty.
    static constexpr std::size_t FirstSlot(std::string_view word) {
        const auto at = [word](std::size_t i) {
            return static_cast<std::size_t>(static_cast<unsigned char>(word[i]));
        };
        return (at(0) * 41 + at(word.size() / 2) * 13 + at(word.size() - 1) * 5 + word.size() * 67) % kSlots;
    }

    // Returns the slot of word, or the empty slot where it would be. REQUIRES: word is not empty.
    constexpr std::size_t Find(std::string_view word) const {
        std::size_t at = FirstSlot(word);
        while (!slots[at].word.empty() && slots[at].word != word) at = (at + 1) % kSlots;
        return at;
    }

    constexpr void Add(std::string_view word, Unit unit) {
        const std::size_t at = Find(word);
        slots[at].word = word;
        slots[at].units.Add(unit);
    }
};

constexpr WordTable MakeWordTable() {
    WordTable table;
    for (const UnitEntry& entry : kUnits) {
        if (entry.bareNumber) table.bareNumber.Add(entry.unit);
        for (std::string_view words = entry.words; !words.empty();)
            table.Add(CutPart(words, ','), entry.unit);
    }
    return table;
}

constexpr WordTable kWords = MakeWordTable();

}  // namespace

UnitSet UnitsOf(std::string_view word) {
    if (word.empty()) return kWords.bareNumber;
    return kWords.slots[kWords.Find(word)].units;
}

bool IsDegreeWord(std::string_view word) {
    return word == "\u00B0" || word == "DEG" || word == "DEG." || word == "DEGREE" || word == "DEGREES";
}

bool IsFluidWord(std::string_view word) {
    return word == "FL" || word == "FL." || word == "FLUID";
}

}  // namespace tw
