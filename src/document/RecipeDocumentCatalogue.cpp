// What the catalogue gives to a recipe: the entries of a cell's list, and the figures of a name that was
// chosen.
#include "calc/Figures.h"
#include "calc/GridRules.h"
#include "document/PitchedYeast.h"
#include "document/RecipeDocument.h"
#include "store/CatalogueNames.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr const char* kWhenAdded[] = {"During Boil",
                                      "After Boil while Wort cools",
                                      "After cooled Wort placed in Fermentor",
                                      "After pitching Yeast to Primary",
                                      "After racking to Secondary",
                                      "Before Bottling"};
constexpr const char* kLogActions[] = {"Steeped Specialty Grains",
                                       "Added Extracts or Sugars",
                                       "Added Hops",
                                       "Removed Wort from Heat",
                                       "Pitched Yeast",
                                       "Racked",
                                       "Dry-Hopped",
                                       "Bottled",
                                       "Tasted"};

// The statement behind a list of names; nullptr for a list that is no query.
const char* QueryOf(CellNames names) {
    switch (names) {
        case CellNames::Grains:
            return "SELECT NAME FROM GRAINS WHERE GRAIN ORDER BY 1";
        case CellNames::Extracts:
            return "SELECT NAME FROM GRAINS WHERE NOT GRAIN ORDER BY 1";
        case CellNames::Hops:
            return "SELECT NAME FROM HOPS ORDER BY 1";
        case CellNames::Sugars:
            return "SELECT NAME FROM SUGARS ORDER BY 1";
        case CellNames::Salts:
            return "SELECT NAME FROM SALTS ORDER BY 1";
        case CellNames::Waters:
            return "SELECT NAME FROM WATER_PROFILES ORDER BY 1";
        case CellNames::UsedAdjuncts:
            return "SELECT DISTINCT NAME FROM RECIPE_ADJUNCTS ORDER BY NAME";
        case CellNames::None:
        case CellNames::HopForms:
        case CellNames::TimesToAdd:
        case CellNames::LogActions:
            break;
    }
    return nullptr;
}

// The name of the row that a typed text stands for, as a literal; the text itself when there is none. The
// text stays as it was typed.
std::string RowLiteral(Database& database, CatalogueKind kind, std::string_view typed) {
    return SqlText(CatalogueNames(database).RowOf(kind, typed).value_or(std::string(typed)));
}

}  // namespace

CellList RecipeDocument::ListOf(const Grid& grid, int row, int col) const {
    CellList list;
    if (!CanEdit(grid, row, col)) return list;
    const CellNames names = RuleOf(grid, col).names;
    if (names == CellNames::HopForms) {
        list.freeText = false;
        for (const HopForm& form : kHopForms) list.entries.emplace_back(form.name);
    } else if (names == CellNames::TimesToAdd) {
        list.entries.assign(std::begin(kWhenAdded), std::end(kWhenAdded));
    } else if (names == CellNames::LogActions) {
        list.entries.assign(std::begin(kLogActions), std::end(kLogActions));
    } else if (const char* query = QueryOf(names)) {
        for (Recordset rs = database_.OpenRecordset(query); !rs.AtEnd(); rs.MoveNext())
            list.entries.push_back(rs.Fields(0).Text());
    }
    return list;
}

bool RecipeDocument::LookUp(Grid& grid, int row, int col) {
    switch (RuleOf(grid, col).names) {
        case CellNames::Grains:
        case CellNames::Extracts:
            return LookUpFermentable(grid, row);
        case CellNames::Hops:
            return LookUpHop(row);
        case CellNames::Sugars:
            return LookUpSugar(row);
        case CellNames::Salts:
            return LookUpSalt(row);
        case CellNames::Waters:
            return LookUpWater(row);
        default:
            break;
    }
    if (grid.Id() == GridId::Log && col == LogCol::Notes) LookUpYeast(row);
    return false;
}

// A mid-point of the catalogue becomes the cell's text and number; NULL empties the cell.
void RecipeDocument::FillFromCatalogue(Grid& grid, int row, int col, const Field& field) {
    if (field.IsNull()) {
        grid.Clear(row, col);
        return;
    }
    grid.SetText(row, col, NumberText(field.Number()));
    grid.SetValue(row, col, CellValue::Of(field.Number()));
}

bool RecipeDocument::LookUpFermentable(Grid& grid, int row) {
    const bool isGrain = grid.Id() == GridId::Grain;
    Recordset rs = database_.OpenRecordset(
        "SELECT NAME, (PPG_LO+PPG_HI)/2, (COLOR_LO+COLOR_HI)/2 FROM GRAINS WHERE NAME = " +
        RowLiteral(database_, isGrain ? CatalogueKind::Grain : CatalogueKind::Extract,
                   grid.Text(row, GrainCol::Name)) +
        (isGrain ? " AND GRAIN" : " AND NOT GRAIN"));
    if (rs.AtEnd()) return false;
    FillFromCatalogue(grid, row, GrainCol::Ppg, rs.Fields(1));
    FillFromCatalogue(grid, row, GrainCol::Color, rs.Fields(2));
    return true;
}

bool RecipeDocument::LookUpHop(int row) {
    Grid& hops = record_.gridHops;
    Recordset rs =
        database_.OpenRecordset("SELECT NAME, (AA_LO+AA_HI)/2 FROM HOPS WHERE NAME = " +
                                RowLiteral(database_, CatalogueKind::Hop, hops.Text(row, HopCol::Variety)));
    if (rs.AtEnd()) return false;
    FillFromCatalogue(hops, row, HopCol::AlphaAcid, rs.Fields(1));
    return true;
}

bool RecipeDocument::LookUpSugar(int row) {
    Grid& priming = record_.gridPriming;
    Recordset rs = database_.OpenRecordset(
        "SELECT NAME, (FERMENT_LO+FERMENT_HI)/2 FROM SUGARS WHERE NAME = " +
        RowLiteral(database_, CatalogueKind::Sugar, priming.Text(row, PrimingCol::Sugar)));
    if (rs.AtEnd()) return false;
    FillFromCatalogue(priming, row, PrimingCol::Fermentable, rs.Fields(1));
    return true;
}

bool RecipeDocument::LookUpWater(int row) {
    Grid& water = record_.gridWater;
    Recordset rs = database_.OpenRecordset(
        "SELECT NAME, CA, CO3, CL, MG, NA, SO4 FROM WATER_PROFILES WHERE NAME = " +
        RowLiteral(database_, CatalogueKind::Water, water.Text(row, WaterCol::Profile)));
    if (rs.AtEnd()) return false;
    for (int ion = 0; ion < kIons; ++ion) {
        const double ppm = rs.Fields(ion + 1).Number();
        water.SetText(row, WaterCol::FirstIon + ion, NumberText(ppm));
        water.SetValue(row, WaterCol::FirstIon + ion, CellValue::Of(ppm));
    }
    return true;
}

// The numbers behind the ion cells of a treatment row are what one gram of the salt adds to one gallon.
bool RecipeDocument::LookUpSalt(int row) {
    Grid& treatment = record_.gridTreatment;
    Recordset rs = database_.OpenRecordset(
        "SELECT NAME, CA, CO3, CL, MG, NA, SO4 FROM SALTS WHERE NAME = " +
        RowLiteral(database_, CatalogueKind::Salt, treatment.Text(row, TreatmentCol::Name)));
    for (int ion = 0; ion < kIons; ++ion)
        treatment.SetValue(row, TreatmentCol::FirstIon + ion,
                           rs.AtEnd() ? CellValue{} : CellValue::Of(rs.Fields(ion + 1).Number()));
    return !rs.AtEnd();
}

// Pitched yeast sets the final gravity from its apparent attenuation.
void RecipeDocument::LookUpYeast(int row) {
    const Grid& log = record_.gridLog;
    if (!SameName(log.Text(row, LogCol::Action), "PITCHED YEAST")) return;
    const std::string_view name = PitchedYeastName(log.Text(row, LogCol::Notes));
    Recordset rs = database_.OpenRecordset("SELECT NAME, (AA_LO+AA_HI)/2 FROM YEAST WHERE NAME = " +
                                           RowLiteral(database_, CatalogueKind::Yeast, name));
    if (rs.AtEnd() || rs.Fields(1).IsNull() || record_.txtOG.Empty()) return;
    TextBox& fg = record_.txtFG;
    const double gravity = AttenuatedGravity(record_.txtOG.Value(), rs.Fields(1).Number());
    // An attenuation that breaks the alcohol's formula raises before anything has changed.
    ComputeAlcohol(record_.txtOG.Value(), gravity);
    gravityChange_ = GravityChange{fg.Text(), fg.Value()};
    fg.SetValue(gravity);
    fg.SetText(FormatNumber(fg.Value(), "0.##0"));
    fg.SetCommitted(fg.Text());
    calculator_.CalcABV();
}

}  // namespace tw
