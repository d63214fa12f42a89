#include "calc/GridRules.h"

#include <array>

#include "calc/RecipeCalculator.h"

namespace tw {
namespace {

using enum CellTakes;
using Stored = CellStored;
using Names = CellNames;

constexpr CellRule Figure(std::string_view header, std::string_view pattern) {
    return {header, Computed, {}, Stored::No, Names::None, {}, pattern};
}

// A fermentable's columns; its heading and the catalogue of its names differ.
constexpr std::array<CellRule, 6> Fermentables(std::string_view heading, Names names) {
    return {{{heading, AnyText, "NAME", Stored::Text, names},
             {"Amount (lbs)", Pounds, "AMOUNT", Stored::Quantity},
             {"PPG", PlainNumber, "PPG", Stored::Quantity, Names::None, "PPG"},
             Figure("Points", "#.0"),
             {"Color (°L)", PlainNumber, "COLOR", Stored::Quantity, Names::None, "Color"},
             Figure("HCU", "#.0")}};
}
constexpr auto kGrain = Fermentables("Grain", Names::Grains);
constexpr auto kExtract = Fermentables("Extract", Names::Extracts);

constexpr CellRule kHops[] = {
    {"Hop Variety", AnyText, "NAME", Stored::Text, Names::Hops},
    {"AA%", Percent, "AA", Stored::Quantity},
    {"Hop Form", HopForm, "HOP_FORM", Stored::Form, Names::HopForms},
    {"Hop Socks?", YesNo, "HOP_SOCK", Stored::Flag},
    {"Amount (oz)", HopAmount, "AMOUNT", Stored::Quantity},
    {"Dry Hopped?", YesNo, "DRY", Stored::Flag},
    {"Time (min)", Minutes, "DURATION", Stored::Quantity},
    Figure("IBU", "#.0"),
};

// The ions in their fixed order, with what an ion cell is in the grid.
constexpr std::array<std::string_view, kIons> kIonHeaders{
    "Calcium (Ca)", "Carbonate (CO3)", "Chloride (Cl)", "Magnesium (Mg)", "Sodium (Na)", "Sulfate (SO4)"};
constexpr std::array<std::string_view, kIons> kIonColumns{"CA", "CO3", "CL", "MG", "NA", "SO4"};

constexpr std::array<CellRule, 2 + kIons> WithIons(CellRule first, CellRule second, CellRule ion) {
    std::array<CellRule, 2 + kIons> rules{first, second};
    for (std::size_t i = 0; i < kIons; ++i) {
        rules[2 + i] = ion;
        rules[2 + i].header = kIonHeaders[i];
        if (ion.stored != Stored::No) rules[2 + i].column = kIonColumns[i];
    }
    return rules;
}
// The recipe's own row stores the waters.
constexpr auto kWater = WithIons({"", RowLabel}, {"Water Profile", AnyText, {}, Stored::No, Names::Waters},
                                 {"", PlainNumber, {}, Stored::No, Names::None, "PPM/Gal"});
// Behind an ion cell stands what one gram of the salt adds to one gallon.
constexpr auto kTreatment =
    WithIons({"Treatment", AnyText, "NAME", Stored::Text, Names::Salts},
             {"Amount (grams)", Grams, "AMOUNT", Stored::Quantity}, {"", Computed, "", Stored::Number});

constexpr CellRule kPriming[] = {
    {"Priming Sugar", AnyText, "NAME", Stored::Text, Names::Sugars},
    {"Fermentable%", Percent, "FERMENT", Stored::Quantity},
    {"Amount (oz)", Ounces, "AMOUNT", Stored::Quantity},
    Figure("CO2 Volumes", "#.00"),
};

// The recipe's own row stores the keg.
constexpr CellRule kPressure[] = {{"Keg Pressure (psi)", KegPsi}, Figure("CO2 Volumes", "#.00")};

constexpr CellRule kAdjuncts[] = {
    {"Adjunct", AnyText, "NAME", Stored::Text, Names::UsedAdjuncts},
    {"Amount", AnyText, "AMOUNT", Stored::Text},
    {"When Added", AnyText, "WHEN", Stored::Text, Names::TimesToAdd},
    {"Time", AnyText, "DURATION", Stored::Text},
};

constexpr CellRule kLog[] = {
    {"Date", AnyText, "LOGDATE", Stored::Text},
    {"Action", AnyText, "ACTION", Stored::Text, Names::LogActions},
    {"Notes", AnyText, "NOTES", Stored::Text},
};

void FermentableCommitted(RecipeCalculator& calculator, Grid& grid, int row, int col) {
    calculator.FermentableCommitted(grid, row, col);
}
void FermentableRemoved(RecipeCalculator& calculator, Grid& grid) {
    calculator.TotalPoints(grid);
    calculator.TotalHCU(grid);
    calculator.ShowGridTotal(grid);
    calculator.CalcOGAndColor();
}
void HopCommitted(RecipeCalculator& calculator, Grid&, int row, int) {
    calculator.HopCommitted(row);
}
void HopRemoved(RecipeCalculator& calculator, Grid& grid) {
    calculator.TotalIBU(grid);
    calculator.ShowGridTotal(grid);
    calculator.ShowIBU();
}
void WaterCommitted(RecipeCalculator& calculator, Grid&, int, int) {
    calculator.UpdateTreatmentNeeded();
}
void TreatmentCommitted(RecipeCalculator& calculator, Grid&, int row, int) {
    calculator.TreatmentCommitted(row);
}
void TreatmentRemoved(RecipeCalculator& calculator, Grid&) {
    calculator.RecalcTreatment();
}
// A sugar's name alone moves no figure.
void PrimingCommitted(RecipeCalculator& calculator, Grid&, int row, int col) {
    if (col != PrimingCol::Sugar) calculator.PrimingCommitted(row);
}
void PrimingRemoved(RecipeCalculator& calculator, Grid&) {
    calculator.TotalPrimingVolumes();
}
void PressureCommitted(RecipeCalculator& calculator, Grid&, int, int) {
    calculator.PressureCommitted();
}

constexpr GridRule kGrids[] = {
    {GridId::Grain, "gridGrain", "RECIPE_GRAINS", kGrain, 1, 1, true, FermentableCommitted,
     FermentableRemoved},
    {GridId::Extract, "gridExtract", "RECIPE_GRAINS", kExtract, 1, 1, true, FermentableCommitted,
     FermentableRemoved},
    {GridId::Hops, "gridHops", "RECIPE_HOPS", kHops, 1, 1, true, HopCommitted, HopRemoved},
    {GridId::Water, "gridWater", "", kWater, 0, 0, false, WaterCommitted, nullptr},
    {GridId::Treatment, "gridTreatment", "RECIPE_SALTS", kTreatment, 0, 0, true, TreatmentCommitted,
     TreatmentRemoved},
    {GridId::Priming, "gridPriming", "RECIPE_SUGARS", kPriming, 2, 1, true, PrimingCommitted, PrimingRemoved},
    {GridId::Pressure, "gridPressure", "", kPressure, 0, 0, false, PressureCommitted, nullptr},
    {GridId::Adjuncts, "gridAdjuncts", "RECIPE_ADJUNCTS", kAdjuncts},
    {GridId::Log, "gridLog", "RECIPE_LOG", kLog},
};

constexpr bool InOrderOfIds() {
    for (std::size_t i = 0; i < std::size(kGrids); ++i)
        if (static_cast<std::size_t>(kGrids[i].id) != i) return false;
    return true;
}
static_assert(InOrderOfIds(), "RuleOf finds a grid's rule by the place of its id");

}  // namespace

std::span<const GridRule> GridRules() {
    return kGrids;
}

const GridRule& RuleOf(GridId id) {
    return kGrids[static_cast<std::size_t>(id)];
}

}  // namespace tw
