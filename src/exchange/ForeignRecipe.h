// Recipes of other programs as their files state them, whichever format the file has: names and words as
// written, figures in one unit each. Nothing is guessed or completed here: a figure that a file leaves open,
// or states as one of the ways of saying "unknown", is absent.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "exchange/Finding.h"

namespace tw {

enum class ExchangeFormat : std::uint8_t { BeerXml, BeerJson };

// An amount, and how the file shows it to a reader.
struct ForeignAmount {
    enum class Of : std::uint8_t { Mass, Volume, Pieces };
    Of of = Of::Mass;
    double value = 0;     // kilograms, litres or pieces; not negative
    std::string written;  // with its unit, "9.25 lb"; empty if the file shows none
};

struct ForeignFermentable {
    enum class Type : std::uint8_t { Grain, Adjunct, Sugar, Extract, DryExtract, Fruit, Juice, Honey, Other };
    std::string name;
    std::optional<Type> type;  // absent if missing or unknown
    std::optional<ForeignAmount> amount;
    std::optional<double> yield;      // percent of the weight, ground finely
    std::optional<double> potential;  // specific gravity of one pound in one gallon
    std::optional<double> lovibond;   // degrees Lovibond
    std::optional<bool> recommendMash;
    bool afterBoil = false;  // added to the kettle late
    std::string origin, supplier, productId, notes;
};

// When something is added. Whirlpool is a stand in hot wort, Secondary anything later than the first
// fermentation, Package bottle or keg.
enum class ForeignUse : std::uint8_t { Mash, FirstWort, Boil, Aroma, Whirlpool, Primary, Secondary, Package };

struct ForeignHop {
    enum class Form : std::uint8_t { Pellet, Plug, Leaf, WetLeaf, Extract, Powder };
    std::string name;
    std::optional<double> alpha;  // percent
    std::optional<ForeignAmount> amount;
    std::optional<ForeignUse> use;  // a hop added to the first fermentation is Primary
    std::string useWritten;         // the word of the file
    std::optional<double> minutes;  // before the end of a boil; how long it stays, for every other use
    std::optional<Form> form;
    std::string formWritten;
    std::string origin, supplier, productId, notes;
    std::optional<double> beta;  // percent
};

struct ForeignYeast {
    std::string name;
    std::string laboratory, productId;
    std::string type, form;  // the words of the file
    std::optional<ForeignAmount> amount;
    std::optional<double> attenuation;  // apparent, percent
    std::optional<double> minCelsius, maxCelsius;
    std::string flocculation, notes;
    bool secondary = false;
};

struct ForeignMisc {
    std::string name;
    std::string type;  // the word of the file
    std::optional<ForeignUse> use;
    std::string useWritten;
    std::optional<double> minutes;
    std::optional<ForeignAmount> amount;
    std::string useFor, notes;
};

// Ions in milligrams per litre.
struct ForeignWater {
    std::string name;
    std::optional<double> litres;
    std::optional<double> calcium, bicarbonate, carbonate, sulfate, chloride, sodium, magnesium;
    std::optional<double> ph;
    std::string notes;
};

struct ForeignRange {
    std::optional<double> low, high;
};

struct ForeignStyle {
    std::string name, category, categoryNumber, letter, guide;
    std::string type;                     // the word of the file
    ForeignRange og, fg;                  // specific gravity
    ForeignRange ibu, srm, volumes, abv;  // IBUs, SRM, volumes of CO2, percent by volume
    std::string notes;
};

// The figures that the file states for the finished recipe.
struct StatedFigures {
    std::optional<double> og, fg;  // specific gravity
    std::optional<double> abv;     // percent by volume
    std::optional<double> ibu;
    std::optional<double> srm;
};

enum class ForeignIbuMethod : std::uint8_t { Tinseth, Rager, Garetz };

struct ForeignRecipe {
    enum class Type : std::uint8_t { Extract, PartialMash, AllGrain };

    std::string name;  // in one line; "Untitled" if the file has none
    std::optional<Type> type;
    std::string brewer, assistant, date;                                  // the date as written
    std::optional<ForeignAmount> batchSize, boilSize, equipmentBoilSize;  // volumes
    std::optional<double> boilMinutes;
    std::optional<double> efficiency;      // percent, of the brewhouse
    std::optional<double> hopUtilization;  // percent of the usual, 100 for no change
    std::optional<double> attenuation;     // apparent, percent
    std::optional<ForeignIbuMethod> ibuMethod;
    StatedFigures stated;
    std::optional<ForeignStyle> style;
    std::vector<ForeignFermentable> fermentables;
    std::vector<ForeignHop> hops;
    std::vector<ForeignYeast> yeasts;
    std::vector<ForeignMisc> miscs;
    std::vector<ForeignWater> waters;
    std::optional<double> carbonation;  // volumes of CO2
    std::optional<bool> forced;         // carbonated by pressure
    std::optional<double> carbonationCelsius;
    std::string primingSugar;
    std::string notes, tasteNotes;
    std::optional<double> tasteRating;  // 0 to 50

    // Paths of everything that has no place in this structure: "MASH", "EQUIPMENT", "HOPS/HOP/BETA". Each
    // once, in the order of the file.
    std::vector<std::string> keptAside;
    // The recipe as the file has it, well-formed: an XML element or a JSON object, in UTF-8.
    std::string fragment;
};

// Everything that one file contains.
struct ForeignFile {
    ExchangeFormat format = ExchangeFormat::BeerXml;
    std::vector<ForeignRecipe> recipes;
    // Entries that belong to no recipe.
    std::vector<ForeignStyle> styles;
    std::vector<ForeignFermentable> fermentables;
    std::vector<ForeignHop> hops;
    std::vector<ForeignYeast> yeasts;
    std::vector<ForeignMisc> miscs;
    std::vector<ForeignWater> waters;
    Findings findings;
};

}  // namespace tw
