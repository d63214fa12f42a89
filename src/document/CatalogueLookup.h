// What the catalogue knows about the names in a recipe. All queries of a recipe to the catalogue are here;
// they do not depend on its record or grids.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "calc/Ions.h"
#include "record/CellRules.h"
#include "store/CatalogueKind.h"
#include "store/Database.h"
#include "values/NameMatch.h"

namespace tw {

// The middles of the catalogue's ranges; nullopt where the catalogue leaves an end of the range open.
struct FermentableFigures {
    std::optional<double> ppg;       // gravity points that one pound gives to one gallon
    std::optional<double> lovibond;  // degrees Lovibond
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

// The range of one figure; nullopt for an open end.
struct FigureRange {
    std::optional<double> low, high;
};
// The ranges of a style: og and fg are specific gravities, abv percent of alcohol by volume, color SRM, ibu
// IBUs, and co2 volumes of CO2.
struct StyleFigures {
    FigureRange og, fg, abv, color, ibu, co2;
    std::optional<std::string> waterProfile;
};
struct StyleName {
    std::int64_t id;
    std::string name;
};

// A salt, and what one gram of it adds to one gallon of water, in PPM.
struct SaltIons {
    std::string name;
    Ions ppm;
};

// Returns the catalogue that contains the names of a list; nullopt for a list with other names.
std::optional<CatalogueKind> CatalogueOf(CellNames list);
// Returns the list of the names in a catalogue; nullopt for the styles, which no cell contains.
std::optional<CellNames> CellNamesOf(CatalogueKind kind);

class CatalogueLookup {
  public:
    // REQUIRES: database outlives this object. Nothing is cached: each call reads the database. All functions
    // raise the store's errors.
    explicit CatalogueLookup(Database& database) : database_(database) {}

    // Returns the names that a cell's list reads from the database, sorted, each with the other names that
    // the catalogue knows for it; empty for every other list.
    NameList Names(CellNames list) const;

    // True if the catalogue has a row that name means (CatalogueNames::RowOf).
    bool Knows(CatalogueKind kind, std::string_view name) const;

    // Return the figures of the row that name means: its own name, an alias or its code
    // (CatalogueNames::RowOf). nullopt if there is no such row. REQUIRES for Fermentable: kind is Grain
    // or Extract.
    std::optional<FermentableFigures> Fermentable(CatalogueKind kind, std::string_view name) const;
    std::optional<HopFigures> Hop(std::string_view name) const;
    std::optional<SugarFigures> Sugar(std::string_view name) const;
    std::optional<YeastFigures> Yeast(std::string_view name) const;
    // Returns the ions of a water profile, in PPM.
    std::optional<Ions> Water(std::string_view name) const;
    // What one gram of the salt adds to one gallon of water, in PPM.
    std::optional<Ions> Salt(std::string_view name) const;
    // Returns all salts in the order of their table.
    std::vector<SaltIons> Salts() const;

    // Returns all styles, sorted by name.
    std::vector<StyleName> Styles() const;
    // Returns the given names in their order, to be searched by the other names and the codes of styles, too.
    NameList StyleNames(std::span<const std::string> names) const;
    // nullopt if no style has that id, and for 0, which means no style.
    std::optional<StyleFigures> Style(std::int64_t id) const;
    // Returns the name of the style that typed means (CatalogueNames::RowOf); nullopt if there is none.
    std::optional<std::string> StyleNamed(std::string_view typed) const;

  private:
    std::string RowName(CatalogueKind kind, std::string_view typed) const;
    std::optional<Ions> IonsOf(CatalogueKind kind, std::string_view name) const;

    Database& database_;
};

}  // namespace tw
