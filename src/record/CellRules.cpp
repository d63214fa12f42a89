#include "record/CellRules.h"

#include <array>

#include "record/RecipeCalculator.h"

namespace tw {
namespace {

using enum CellTakes;
using Stored = CellStored;
using Names = CellNames;

// Returns the rule of a column at which Tab stops as told.
constexpr CellRule Stopping(CellStop stop, CellRule rule) {
    rule.stop = stop;
    return rule;
}

constexpr CellRule Figure(std::string_view header, std::string_view pattern) {
    return {header, Computed, {}, Stored::No, Names::None, {}, pattern};
}

// The columns of the two fermentable grids, which differ in the heading and in the list of names.
constexpr std::array<CellRule, 6> Fermentables(std::string_view heading, Names names) {
    return {
        {{heading, AnyText, "NAME", Stored::Text, names},
         {"Amount (lbs)", Pounds, "AMOUNT", Stored::Quantity},
         Stopping(CellStop::WhileBlank, {"PPG", PlainNumber, "PPG", Stored::Quantity, Names::None, "PPG"}),
         Figure("Points", "#.0"),
         Stopping(CellStop::WhileBlank,
                  {"Color (°L)", PlainNumber, "COLOR", Stored::Quantity, Names::None, "Color"}),
         Figure("HCU", "#.0")}};
}
constexpr auto kGrain = Fermentables("Grain", Names::Grains);
constexpr auto kExtract = Fermentables("Extract", Names::Extracts);

constexpr CellRule kHops[] = {
    {"Hop Variety", AnyText, "NAME", Stored::Text, Names::Hops},
    Stopping(CellStop::Never, {"AA%", Percent, "AA", Stored::Quantity}),
    Stopping(CellStop::Never, {"Hop Form", HopForm, "HOP_FORM", Stored::Form, Names::HopForms}),
    Stopping(CellStop::Never, {"Hop Socks?", YesNo, "HOP_SOCK", Stored::Flag}),
    {"Amount (oz)", HopAmount, "AMOUNT", Stored::Quantity},
    Stopping(CellStop::Never, {"Dry Hopped?", YesNo, "DRY", Stored::Flag}),
    {"Time (min)", Minutes, "DURATION", Stored::Quantity},
    Figure("IBU", "#.0"),
};

// The ions in their fixed order; all ion cells of a grid share one rule.
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
constexpr auto kWater =
    WithIons({"", RowLabel}, {"Water Profile", AnyText, "PROFILE_NAME", Stored::Text, Names::Waters},
             {"", PlainNumber, {}, Stored::BareText, Names::None, "PPM/Gal"});
constexpr std::string_view kWaterPrefixes[] = {"SRC_", "TRG_"};
// The number of an ion cell is what 1 gram of the salt adds to 1 US gallon, in PPM.
constexpr auto kTreatment =
    WithIons({"Treatment", AnyText, "NAME", Stored::Text, Names::Salts},
             {"Amount (grams)", Grams, "AMOUNT", Stored::Quantity}, {"", Computed, "", Stored::Number});

constexpr CellRule kPriming[] = {
    {"Priming Sugar", AnyText, "NAME", Stored::Text, Names::Sugars},
    Stopping(CellStop::WhileBlank, {"Fermentable%", Percent, "FERMENT", Stored::Quantity}),
    {"Amount (oz)", Ounces, "AMOUNT", Stored::Quantity},
    Figure("CO2 Volumes", "#.00"),
};

constexpr CellRule kPressure[] = {
    {"Keg Pressure (psi)", KegPsi, "PSI", Stored::Quantity},
    {"CO2 Volumes", Computed, "VOLS", Stored::BareText, Names::None, {}, "#.00"}};
constexpr std::string_view kPressurePrefixes[] = {"KEG_"};

constexpr CellRule kAdjuncts[] = {
    {"Adjunct", AnyText, "NAME", Stored::Text, Names::UsedAdjuncts},
    {"Amount", AnyText, "AMOUNT", Stored::Text},
    {"When Added", AnyText, "WHEN", Stored::Text, Names::TimesToAdd},
    {"Time", AnyText, "DURATION", Stored::Text},
};

constexpr CellRule kLog[] = {
    {"Date", AnyText, "LOGDATE", Stored::Text},
    {"Action", AnyText, "ACTION", Stored::Text, Names::LogActions},
    {"Notes", AnyText, "NOTES", Stored::Text, Names::PitchedYeast},
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
// A change of the sugar's name alone affects no figure.
void PrimingCommitted(RecipeCalculator& calculator, Grid&, int row, int col) {
    if (col != PrimingCol::Sugar) calculator.PrimingCommitted(row);
}
void PrimingRemoved(RecipeCalculator& calculator, Grid&) {
    calculator.TotalPrimingVolumes();
}
void PressureCommitted(RecipeCalculator& calculator, Grid&, int, int) {
    calculator.PressureCommitted();
}

constexpr GridRule kGridRules[] = {
    {GridId::Grain,
     "gridGrain",
     "Malts and grains",
     kGrain,
     {"RECIPE_GRAINS", "GRAIN", true},
     {},
     1,
     1,
     true,
     FermentableCommitted,
     FermentableRemoved},
    {GridId::Extract,
     "gridExtract",
     "Extracts and sugars",
     kExtract,
     {"RECIPE_GRAINS", "GRAIN", false},
     {},
     1,
     1,
     true,
     FermentableCommitted,
     FermentableRemoved},
    {GridId::Hops, "gridHops", "Hops", kHops, {"RECIPE_HOPS"}, {}, 1, 1, true, HopCommitted, HopRemoved},
    {GridId::Water, "gridWater", "Water profile", kWater, {}, kWaterPrefixes, 0, 0, false, WaterCommitted},
    {GridId::Treatment,
     "gridTreatment",
     "Treatment",
     kTreatment,
     {"RECIPE_SALTS"},
     {},
     0,
     0,
     true,
     TreatmentCommitted,
     TreatmentRemoved},
    {GridId::Priming,
     "gridPriming",
     "Priming sugars",
     kPriming,
     {"RECIPE_SUGARS"},
     {},
     2,
     1,
     true,
     PrimingCommitted,
     PrimingRemoved},
    {GridId::Pressure,
     "gridPressure",
     "Keg pressure",
     kPressure,
     {},
     kPressurePrefixes,
     0,
     0,
     false,
     PressureCommitted},
    {GridId::Adjuncts, "gridAdjuncts", "Other adjuncts", kAdjuncts, {"RECIPE_ADJUNCTS"}},
    {GridId::Log, "gridLog", "Brew log", kLog, {"RECIPE_LOG"}},
};

constexpr bool InOrderOfIds() {
    if (std::size(kGridRules) != kGrids) return false;
    for (std::size_t i = 0; i < kGrids; ++i)
        if (static_cast<std::size_t>(kGridRules[i].id) != i) return false;
    return true;
}
static_assert(InOrderOfIds(), "RuleOf finds a grid's rule by the place of its id");

}  // namespace

std::span<const GridRule> GridRules() {
    return kGridRules;
}

const GridRule& RuleOf(GridId id) {
    return kGridRules[static_cast<std::size_t>(id)];
}

bool IsTabStop(const Grid& grid, int row, int col) {
    if (!grid.IsDataRow(row) || grid.IsReadOnly(row, col)) return false;
    const CellStop stop = RuleOf(grid, col).stop;
    return stop == CellStop::Always || (stop == CellStop::WhileBlank && grid.Empty(row, col));
}

bool IsBlankRow(const Grid& grid, int row) {
    for (int col = 0; col < grid.Cols(); ++col)
        if (!grid.Empty(row, col) && RuleOf(grid, col).takes != CellTakes::HopForm) return false;
    return true;
}

}  // namespace tw
