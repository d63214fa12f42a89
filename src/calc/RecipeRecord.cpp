#include "calc/RecipeRecord.h"

#include <algorithm>

namespace tw {
namespace {

Grid::Layout FermentableLayout(std::string name, std::string heading) {
    return {std::move(name),
            {{std::move(heading)},
             {"Amount (lbs)"},
             {"PPG"},
             {"Points", true, false, "#.0"},
             {"Color (°L)"},
             {"HCU", true, false, "#.0"}},
            1,
            1};
}

Grid::Layout HopLayout() {
    return {"gridHops",
            {{"Hop Variety"},
             {"AA%"},
             {"Hop Form"},
             {"Hop Socks?", false, true, {}},
             {"Amount (oz)"},
             {"Dry Hopped?", false, true, {}},
             {"Time (min)"},
             {"IBU", true, false, "#.0"}},
            1,
            1};
}

std::vector<Column> WithIons(std::vector<Column> first, bool readOnly, std::string_view pattern) {
    for (const char* ion : {"Calcium (Ca)", "Carbonate (CO3)", "Chloride (Cl)", "Magnesium (Mg)",
                            "Sodium (Na)", "Sulfate (SO4)"})
        first.push_back({ion, readOnly, false, pattern});
    return first;
}

Grid::Layout WaterLayout() {
    return {"gridWater", WithIons({{"", true, false, {}, true}, {"Water Profile"}}, false, {}), 0, 0, false};
}

Grid::Layout TreatmentLayout() {
    return {"gridTreatment", WithIons({{"Treatment"}, {"Amount (grams)"}}, true, {})};
}

Grid::Layout PrimingLayout() {
    return {"gridPriming",
            {{"Priming Sugar"}, {"Fermentable%"}, {"Amount (oz)"}, {"CO2 Volumes", true, false, "#.00"}},
            2,
            1};
}

Grid::Layout PressureLayout() {
    return {"gridPressure", {{"Keg Pressure (psi)"}, {"CO2 Volumes", true, false, "#.00"}}, 0, 0, false};
}

void BuildWaterRows(Grid& grid) {
    static constexpr std::array<const char*, 5> kLabels{"Source Water", "Target Water", "",
                                                        "Treatment Needed", "Treatment Totals"};
    for (int i = 0; i < static_cast<int>(kLabels.size()); ++i) {
        const int row = i + 1;
        grid.InsertRow(row);
        grid.SetText(row, WaterCol::Label, kLabels[static_cast<std::size_t>(i)]);
        if (row >= WaterRow::Spacer) grid.SetRowReadOnly(row);
    }
    grid.SetRowPaint(WaterRow::Needed, CellPaint::ReadOnly);
    grid.SetRowPaint(WaterRow::Totals, CellPaint::Total);
}

template <class Control>
Control* FindByName(const std::vector<Control*>& controls, std::string_view name) {
    const auto found =
        std::find_if(controls.begin(), controls.end(), [&](Control* c) { return c->Name() == name; });
    return found == controls.end() ? nullptr : *found;
}

}  // namespace

RecipeRecord::RecipeRecord()
    : txtName(link_, "txtName"),
      txtNumBatches(link_, "txtNumBatches"),
      txtBoilVol(link_, "txtBoilVol"),
      txtTotalVol(link_, "txtTotalVol"),
      txtOG(link_, "txtOG", true),
      txtFG(link_, "txtFG"),
      txtABV(link_, "txtABV", true),
      txtColor(link_, "txtColor", true),
      txtIBU(link_, "txtIBU", true),
      txtCO2(link_, "txtCO2", true),
      txtExtract(link_, "txtExtract"),
      txtHopExtraction(link_, "txtHopExtraction"),
      txtBG(link_, "txtBG", true),
      txtTemp(link_, "txtTemp"),
      txtDilutions(link_, "txtDilutions"),
      txtFinalVol(link_, "txtFinalVol"),
      txtNotes(link_, "txtNotes"),
      cmbStyle(link_, "cmbStyle"),
      lblOGStyle(link_, "lblOGStyle"),
      lblFGStyle(link_, "lblFGStyle"),
      lblABVStyle(link_, "lblABVStyle"),
      lblColorStyle(link_, "lblColorStyle"),
      lblIBUStyle(link_, "lblIBUStyle"),
      lblCO2Style(link_, "lblCO2Style"),
      grpIBUMethod(link_, "grpIBUMethod", {"optTinseth", "optRager", "optGaretz"}),
      grpPkgMethod(link_, "grpPkgMethod", {"optBottle", "optKeg"}),
      cmdStrengthDetails(link_, "cmdStrengthDetails", false),
      cmdFinalVolDetails(link_, "cmdFinalVolDetails", false),
      cmdIBUDetails(link_, "cmdIBUDetails", false),
      cmdCalcTreatment(link_, "cmdCalcTreatment", false),
      gridGrain(link_, FermentableLayout("gridGrain", "Grain")),
      gridExtract(link_, FermentableLayout("gridExtract", "Extract")),
      gridHops(link_, HopLayout()),
      gridWater(link_, WaterLayout()),
      gridTreatment(link_, TreatmentLayout()),
      gridPriming(link_, PrimingLayout()),
      gridPressure(link_, PressureLayout()),
      gridAdjuncts(link_, {"gridAdjuncts", {{"Adjunct"}, {"Amount"}, {"When Added"}, {"Time"}}}),
      gridLog(link_, {"gridLog", {{"Date"}, {"Action"}, {"Notes"}}}) {
    textBoxes_ = {&txtName, &txtNumBatches, &txtBoilVol,   &txtTotalVol, &txtOG,      &txtFG,
                  &txtABV,  &txtColor,      &txtIBU,       &txtCO2,      &txtExtract, &txtHopExtraction,
                  &txtBG,   &txtTemp,       &txtDilutions, &txtFinalVol, &txtNotes};
    grids_ = {&gridGrain,   &gridExtract,  &gridHops,     &gridWater, &gridTreatment,
              &gridPriming, &gridPressure, &gridAdjuncts, &gridLog};
    labels_ = {&lblOGStyle, &lblFGStyle, &lblABVStyle, &lblColorStyle, &lblIBUStyle, &lblCO2Style};
    buttons_ = {&cmdStrengthDetails, &cmdFinalVolDetails, &cmdIBUDetails, &cmdCalcTreatment};

    for (Grid* grid : {&gridGrain, &gridExtract, &gridHops}) grid->SetText(grid->TotalsRow(), 0, "Total");
    gridPriming.SetText(gridPriming.TotalsRow() - 1, PrimingCol::Sugar, "Residual");
    gridPriming.SetText(gridPriming.TotalsRow(), PrimingCol::Sugar, "Total");
    gridPriming.SetRowPaint(gridPriming.TotalsRow() - 1, CellPaint::ReadOnly);
    gridPressure.InsertRow(1);
    BuildWaterRows(gridWater);
}

TextBox* RecipeRecord::FindTextBox(std::string_view name) {
    return FindByName(textBoxes_, name);
}
Grid* RecipeRecord::FindGrid(std::string_view name) {
    return FindByName(grids_, name);
}
Button* RecipeRecord::FindButton(std::string_view name) {
    return FindByName(buttons_, name);
}
Label* RecipeRecord::FindLabel(std::string_view name) {
    return FindByName(labels_, name);
}

OptionGroup* RecipeRecord::FindOptionGroup(std::string_view name) {
    for (OptionGroup* group : {&grpIBUMethod, &grpPkgMethod})
        if (group->Name() == name || group->IndexOf(name) >= 0) return group;
    return nullptr;
}

void RecipeRecord::SetSwatch(Rgb color) {
    if (swatch_ == color) return;
    swatch_ = color;
    if (link_.observer) link_.observer->SwatchChanged(color);
}

}  // namespace tw
