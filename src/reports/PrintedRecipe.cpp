#include "reports/PrintedRecipe.h"

#include <string>
#include <utility>
#include <vector>

#include "record/CellRules.h"
#include "record/FieldRules.h"
#include "reports/PrintLayout.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr int kNamePoints = 18;
constexpr int kStylePoints = 14;

// True if all cells except that of ignoredCol are empty. Callers ignore the form of a hop, since a
// new row already has one.
bool IsBlankRow(const Grid& grid, int row, int ignoredCol) {
    for (int col = 0; col < grid.Cols(); ++col)
        if (col != ignoredCol && !grid.Empty(row, col)) return false;
    return true;
}

std::vector<int> DataRows(const Grid& grid, int ignoredCol = -1) {
    std::vector<int> rows;
    for (int row = Grid::FixedRows(); row < grid.EndOfData(); ++row)
        if (!IsBlankRow(grid, row, ignoredCol)) rows.push_back(row);
    return rows;
}

std::string Label(FieldId id) {
    return PlainCaption(RuleOf(id)) + ": ";
}

// Returns "Amounts are in pounds by default", for the unit of that column.
std::string UnitNote(const std::string& what, const Grid& grid, int col) {
    return "  " + what + " in " + std::string(DefaultUnit(RuleOf(grid, col).takes)) + " by default";
}

// Returns "{name} - {amount}" for each data row.
std::vector<std::string> NamesAndAmounts(const Grid& grid, int amountCol) {
    std::vector<std::string> texts;
    for (const int row : DataRows(grid))
        texts.push_back(grid.Text(row, 0) + " - " + grid.Text(row, amountCol));
    return texts;
}

std::string HopLine(const Grid& hops, int row) {
    std::string line = hops.Text(row, HopCol::Variety);
    if (!hops.Empty(row, HopCol::AlphaAcid)) line += " (" + hops.Text(row, HopCol::AlphaAcid) + " AA%)";
    line += " " + hops.Text(row, HopCol::Form) + " Hops - " + hops.Text(row, HopCol::Amount);
    line += hops.Checked(row, HopCol::DryHopped) ? " - Dry Hop" : " - Boil";
    if (!hops.Empty(row, HopCol::Time)) line += " For " + hops.Text(row, HopCol::Time);
    if (hops.Checked(row, HopCol::Sock)) line += " (use hop socks)";
    return line;
}

std::string AdjunctLine(const Grid& adjuncts, int row) {
    std::string line = adjuncts.Text(row, AdjunctCol::Name) + " - " + adjuncts.Text(row, AdjunctCol::Amount);
    const std::string& when = adjuncts.Text(row, AdjunctCol::WhenAdded);
    const std::string& time = adjuncts.Text(row, AdjunctCol::Time);
    if (when.empty() && time.empty()) return line;
    line += " (" + when;
    if (!when.empty() && !time.empty()) line += " - ";
    if (!time.empty()) line += "For " + time;
    return line + ")";
}

std::string LogLine(const Grid& log, int row) {
    std::string line;
    if (!log.Empty(row, LogCol::Date)) line = log.Text(row, LogCol::Date) + " - ";
    line += log.Text(row, LogCol::Action);
    if (!log.Empty(row, LogCol::Notes)) line += " - " + log.Text(row, LogCol::Notes);
    return line;
}

// Prints the sections of a recipe in their order on the page.
class RecipePrinter {
  public:
    RecipePrinter(const RecipeRecord& recipe, PrintLayout& layout) : recipe_(recipe), layout_(layout) {}

    void Print() {
        PrintHead();
        PrintGeneral();
        PrintWater();
        PrintGrains();
        PrintHops();
        PrintAdjuncts();
        PrintCarbonation();
        PrintNotes();
    }

  private:
    void PrintHead();
    void PrintGeneral();
    void PrintWater();
    void PrintGrains();
    void PrintHops();
    void PrintAdjuncts();
    void PrintCarbonation();
    void PrintNotes();

    const RecipeRecord& recipe_;
    PrintLayout& layout_;
};

void RecipePrinter::PrintHead() {
    layout_.PrintTitle(recipe_.txtName.Text(), kNamePoints);
    layout_.PrintTitle(recipe_.cmbStyle.Text(), kStylePoints);
    layout_.PrintRule();
}

void RecipePrinter::PrintGeneral() {
    layout_.PrintSection("General");
    layout_.PrintLabel(Label(FieldId::FinalVol));
    const std::string& finalVol = recipe_.txtFinalVol.Text();
    layout_.PrintLine(finalVol.empty() ? recipe_.txtTotalVol.Text() : finalVol);

    layout_.PrintLabel("OG: ");
    layout_.PrintText(recipe_.txtOG.Text());
    layout_.SecondColumn();
    layout_.PrintLabel(Label(FieldId::IBU));
    layout_.PrintLine(recipe_.txtIBU.Text());

    layout_.PrintLabel("FG: ");
    layout_.PrintText(recipe_.txtFG.Text());
    layout_.SecondColumn();
    layout_.PrintLabel("CO");
    layout_.PrintSubscript("2");
    layout_.PrintLabel(" Amount: ");
    layout_.PrintLine(recipe_.txtCO2.Text());

    layout_.PrintLabel(Label(FieldId::ABV));
    layout_.PrintText(recipe_.txtABV.Text());
    layout_.SecondColumn();
    layout_.PrintLabel(Label(FieldId::Color));
    layout_.PrintText(recipe_.txtColor.Text() + " ");
    layout_.PrintSwatch(recipe_.Swatch());
    layout_.NewLine();
    layout_.PrintRule();
}

void RecipePrinter::PrintWater() {
    const std::string& source = recipe_.gridWater.Text(WaterRow::Source, WaterCol::Profile);
    const std::vector<std::string> salts = NamesAndAmounts(recipe_.gridTreatment, TreatmentCol::Amount);
    if (IsBlank(source) && salts.empty()) return;
    layout_.PrintSection("Water Treatment");
    if (!IsBlank(source)) {
        layout_.PrintLabel("Source Water: ");
        layout_.PrintLine(source);
    }
    if (!salts.empty()) {
        layout_.PrintSmallNote(UnitNote("Amounts are", recipe_.gridTreatment, TreatmentCol::Amount));
        layout_.PrintTwoColumns(salts);
    }
    layout_.PrintRule();
}

// The mash water is printed between the grains and the extracts on purpose, because it belongs to the mash.
void RecipePrinter::PrintGrains() {
    const std::vector<std::string> grains = NamesAndAmounts(recipe_.gridGrain, GrainCol::Amount);
    const std::vector<std::string> extracts = NamesAndAmounts(recipe_.gridExtract, GrainCol::Amount);
    if (grains.empty() && extracts.empty()) return;
    layout_.PrintSection("Grains and Extracts");
    layout_.PrintSmallNote(UnitNote("Amounts are", recipe_.gridGrain, GrainCol::Amount));
    if (!grains.empty()) layout_.PrintTwoColumns(grains);
    const std::string& boilVol = recipe_.txtBoilVol.Text();
    if (!boilVol.empty())
        layout_.PrintSmallNote(
            (grains.empty() ? "  Add enough water for a boil volume of "
                            : "  Sparge grains with or top off with enough water for a boil volume of ") +
            boilVol);
    if (!extracts.empty()) layout_.PrintTwoColumns(extracts);
    layout_.PrintRule();
}

void RecipePrinter::PrintHops() {
    const Grid& hops = recipe_.gridHops;
    const std::vector<int> rows = DataRows(hops, HopCol::Form);
    if (rows.empty()) return;
    layout_.PrintSection("Hops");
    layout_.PrintSmallNote(UnitNote("Amounts are", hops, HopCol::Amount));
    for (const int row : rows) layout_.PrintLine(HopLine(hops, row));
    layout_.PrintRule();
}

void RecipePrinter::PrintAdjuncts() {
    const Grid& adjuncts = recipe_.gridAdjuncts;
    const std::vector<int> rows = DataRows(adjuncts);
    if (rows.empty()) return;
    layout_.PrintSection("Other Adjuncts");
    for (const int row : rows) layout_.PrintLine(AdjunctLine(adjuncts, row));
    layout_.PrintRule();
}

void RecipePrinter::PrintCarbonation() {
    if (recipe_.txtCO2.Text().empty()) return;
    layout_.PrintSection("Carbon Dioxide");
    const std::string& temperature = recipe_.txtTemp.Text();
    if (recipe_.Bottled()) {
        layout_.PrintText("Bottle beer at a temperature of " + temperature);
        const std::vector<std::string> sugars = NamesAndAmounts(recipe_.gridPriming, PrimingCol::Amount);
        if (sugars.empty()) {
            layout_.NewLine();
        } else {
            layout_.PrintLine(" and prime with the following");
            layout_.PrintSmallNote(UnitNote("Amounts are", recipe_.gridPriming, PrimingCol::Amount));
            layout_.PrintTwoColumns(sugars);
        }
    } else {
        layout_.PrintSmallNote(UnitNote("Pressure is", recipe_.gridPressure, PressureCol::Pressure));
        layout_.PrintLine("Keg beer - store at a temperature of " + temperature + " and a pressure of " +
                          recipe_.gridPressure.Text(1, PressureCol::Pressure));
    }
    layout_.PrintRule();
}

void RecipePrinter::PrintNotes() {
    const Grid& log = recipe_.gridLog;
    const std::vector<int> rows = DataRows(log);
    if (IsBlank(recipe_.txtNotes.Text()) && rows.empty()) return;
    layout_.PrintSection("Notes");
    const std::string& totalVol = recipe_.txtTotalVol.Text();
    if (!totalVol.empty()) layout_.PrintSmallNote("  After boil, top off to a total volume of " + totalVol);
    for (const int row : rows) layout_.PrintLine(LogLine(log, row));
    layout_.NewLine();
    layout_.PrintWrapped(recipe_.txtNotes.Text());
}

}  // namespace

void PrintRecipe(const RecipeRecord& recipe, std::unique_ptr<PrinterDevice> device) {
    TWPrinter printer;
    RunPrintJob(printer, [&] {
        PrintLayout layout(printer);
        layout.BeginPrint(std::move(device), recipe.txtName.Text());
        RecipePrinter(recipe, layout).Print();
        layout.EndPrint();
    });
}

PrintSteps LayOutRecipe(const RecipeRecord& recipe, PrintSize page, const TextMeasure& measure) {
    PrintSteps steps;
    PrintRecipe(recipe, std::make_unique<StepRecorder>(page, measure, steps));
    return steps;
}

}  // namespace tw
