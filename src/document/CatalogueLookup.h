// What the catalogue knows about the names in a recipe: all questions of a recipe to the catalogue. It knows
// no record and no grid.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calc/Ions.h"
#include "record/CellRules.h"
#include "store/CatalogueKind.h"
#include "store/Database.h"

namespace tw {

// The middles of the catalogue's ranges; nothing where the catalogue leaves a range open.
struct FermentableFigures {
    std::optional<double> ppg;       // points a pound gives to a gallon
    std::optional<double> lovibond;  // degrees
};
struct HopFigures {
    std::optional<double> alphaAcid;  // percent
};
struct SugarFigures {
    std::optional<double> fermentable;  // percent
};
struct YeastFigures {
    std::optional<double> attenuation;  // apparent, percent
};

// The range of one figure; an end that is not given is open.
struct FigureRange {
    std::optional<double> low, high;
};
// What a style says, in the units of its figures: specific gravities, percent of alcohol by volume, SRM,
// IBUs, volumes of CO2.
struct StyleFigures {
    FigureRange og, fg, abv, color, ibu, co2;
    std::optional<std::string> waterProfile;
};
struct StyleName {
    std::int64_t id;
    std::string name;
};

// A salt of the table, and what one gram of it adds to one gallon, in PPM.
struct SaltIons {
    std::string name;
    Ions ppm;
};

class CatalogueLookup {
  public:
    // REQUIRES: database lives for as long. Nothing is kept: each call sees the database as it is.
    explicit CatalogueLookup(Database& database) : database_(database) {}

    // The names of the list, in its order; none for a list that is no list of names.
    std::vector<std::string> Names(CellNames list) const;

    // The figures of the row that name stands for: its own name, another name of it, or its code
    // (CatalogueNames::RowOf). Nothing when there is no such row. REQUIRES: kind is Grain or Extract.
    std::optional<FermentableFigures> Fermentable(CatalogueKind kind, std::string_view name) const;
    std::optional<HopFigures> Hop(std::string_view name) const;
    std::optional<SugarFigures> Sugar(std::string_view name) const;
    std::optional<YeastFigures> Yeast(std::string_view name) const;
    // PPM.
    std::optional<Ions> Water(std::string_view name) const;
    // What one gram adds to one gallon, in PPM.
    std::optional<Ions> Salt(std::string_view name) const;
    // All salts in the table's own order.
    std::vector<SaltIons> Salts() const;

    // All styles, by name.
    std::vector<StyleName> Styles() const;
    // Nothing for the id of no style, and for 0, which stands for none.
    std::optional<StyleFigures> Style(std::int64_t id) const;
    // The name of the style that a typed text stands for, as above.
    std::optional<std::string> StyleNamed(std::string_view typed) const;

  private:
    std::string RowName(CatalogueKind kind, std::string_view typed) const;
    std::optional<Ions> IonsOf(CatalogueKind kind, std::string_view name) const;

    Database& database_;
};

}  // namespace tw
