#include "record/RecipeRecord.h"

#include <algorithm>

#include "record/CellRules.h"
#include "record/FieldRules.h"

namespace tw {
namespace {

TextBox FieldOf(RecordLink& link, FieldId id) {
    const FieldRule& rule = RuleOf(id);
    return {link, id, std::string(rule.name), rule.computed};
}

Grid::Layout LayoutOf(GridId id) {
    const GridRule& rule = RuleOf(id);
    Grid::Layout layout{
        id, std::string(rule.name), {}, rule.totalsRows, rule.leastDataRows, rule.rowsCanChange};
    for (const CellRule& cell : rule.columns)
        layout.columns.push_back({std::string(cell.header), cell.ReadOnly(), cell.CheckBox(), cell.pattern,
                                  cell.takes == CellTakes::RowLabel});
    return layout;
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
    : txtName(FieldOf(link_, FieldId::Name)),
      txtNumBatches(FieldOf(link_, FieldId::NumBatches)),
      txtBoilVol(FieldOf(link_, FieldId::BoilVol)),
      txtTotalVol(FieldOf(link_, FieldId::TotalVol)),
      txtOG(FieldOf(link_, FieldId::OG)),
      txtFG(FieldOf(link_, FieldId::FG)),
      txtABV(FieldOf(link_, FieldId::ABV)),
      txtColor(FieldOf(link_, FieldId::Color)),
      txtIBU(FieldOf(link_, FieldId::IBU)),
      txtCO2(FieldOf(link_, FieldId::CO2)),
      txtExtract(FieldOf(link_, FieldId::Extract)),
      txtHopExtraction(FieldOf(link_, FieldId::HopExtraction)),
      txtBG(FieldOf(link_, FieldId::BG)),
      txtTemp(FieldOf(link_, FieldId::Temp)),
      txtDilutions(FieldOf(link_, FieldId::Dilutions)),
      txtFinalVol(FieldOf(link_, FieldId::FinalVol)),
      txtNotes(FieldOf(link_, FieldId::Notes)),
      cmbStyle(link_, "cmbStyle"),
      lblOGStyle(link_, "lblOGStyle"),
      lblFGStyle(link_, "lblFGStyle"),
      lblABVStyle(link_, "lblABVStyle"),
      lblColorStyle(link_, "lblColorStyle"),
      lblIBUStyle(link_, "lblIBUStyle"),
      lblCO2Style(link_, "lblCO2Style"),
      grpIBUMethod(link_, OptionId::IbuMethod, "grpIBUMethod", {"optTinseth", "optRager", "optGaretz"}),
      grpPkgMethod(link_, OptionId::Packaging, "grpPkgMethod", {"optBottle", "optKeg"}),
      cmdStrengthDetails(link_, "cmdStrengthDetails", false),
      cmdFinalVolDetails(link_, "cmdFinalVolDetails", false),
      cmdIBUDetails(link_, "cmdIBUDetails", false),
      cmdCalcTreatment(link_, "cmdCalcTreatment", false),
      gridGrain(link_, LayoutOf(GridId::Grain)),
      gridExtract(link_, LayoutOf(GridId::Extract)),
      gridHops(link_, LayoutOf(GridId::Hops)),
      gridWater(link_, LayoutOf(GridId::Water)),
      gridTreatment(link_, LayoutOf(GridId::Treatment)),
      gridPriming(link_, LayoutOf(GridId::Priming)),
      gridPressure(link_, LayoutOf(GridId::Pressure)),
      gridAdjuncts(link_, LayoutOf(GridId::Adjuncts)),
      gridLog(link_, LayoutOf(GridId::Log)) {
    for (const FieldRule& rule : FieldRules()) textBoxes_.push_back(&(this->*rule.box));
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
