#include "PlainComparison.h"

#include "values/NumberText.h"

namespace tw::test {
namespace {

class Comparison {
  public:
    std::string difference;

    void Text(const std::string& where, const std::string& shown, const std::string& wanted) {
        if (difference.empty() && shown != wanted)
            difference = where + ": \"" + shown + "\" is not \"" + wanted + "\"";
    }
    void Number(const std::string& where, double number, double wanted) {
        Text(where + " number", NumberText(number), NumberText(wanted));
    }
    void Flag(const std::string& where, bool on, bool wanted) {
        Text(where, on ? "yes" : "no", wanted ? "yes" : "no");
    }
};

void CompareBoxes(Comparison& c, RecipeRecord& r, const PlainRecipe& plain) {
    for (const auto& [name, box] : plain.boxes) {
        const TextBox& shown = *r.FindTextBox(name);
        c.Text(name, shown.Text(), box.text);
        if (!shown.Computed()) c.Text(name + " committed", shown.Committed(), box.text);
        if (!box.text.empty()) c.Number(name, shown.Value(), box.number);
    }
}

void CompareCell(Comparison& c, const std::string& where, const Cell& cell, const PlainCell& wanted) {
    using Kind = CellValue::Kind;
    c.Text(where, cell.text, wanted.text);
    c.Number(where, cell.value.number, wanted.number);
    c.Flag(where + " AAUs", cell.value.kind == Kind::AlphaAcidUnits, wanted.kind == 'A');
    c.Flag(where + " IBUs", cell.value.kind == Kind::BitternessUnits, wanted.kind == 'I');
    c.Flag(where + " checked", cell.check == CheckState::Checked, wanted.checked);
    c.Flag(where + " bold", cell.bold, wanted.bold);
}

void CompareGrid(Comparison& c, const Grid& grid, const PlainRows& rows) {
    const int lines = grid.RowsCanChange() ? grid.DataRows() : static_cast<int>(rows.size());
    c.Number(grid.Name() + " rows", lines, static_cast<double>(rows.size()));
    if (!c.difference.empty()) return;
    // The captions of the waters are not data.
    const int firstCol = grid.Name() == "gridWater" ? 1 : 0;
    for (int row = 0; row < lines; ++row)
        for (int col = firstCol; col < grid.Cols(); ++col)
            CompareCell(c, grid.Name() + " " + std::to_string(row + 1) + "," + std::to_string(col),
                        grid.At(row + 1, col),
                        rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)]);
}

}  // namespace

std::string FirstDifference(RecipeDocument& document, const RecordingHost& host, const PlainRecipe& plain) {
    RecipeRecord& r = document.Record();
    Comparison c;
    CompareBoxes(c, r, plain);
    for (const auto& [name, rows] : plain.rows) CompareGrid(c, *r.FindGrid(name), rows);
    for (const auto& [name, row] : plain.totals) {
        const Grid& grid = *r.FindGrid(name);
        for (int col = 1; col < grid.Cols(); ++col)
            c.Text("totals of " + name + " " + std::to_string(col), grid.Text(grid.TotalsRow(), col),
                   row[static_cast<std::size_t>(col)].text);
    }
    const Grid& priming = r.gridPriming;
    c.Text("residual", priming.Text(priming.TotalsRow() - 1, PrimingCol::Volumes), plain.residual.text);
    c.Number("method", r.grpIBUMethod.Selected(), plain.method);
    c.Number("packaging", r.grpPkgMethod.Selected(), plain.packaging);
    c.Number("style", static_cast<double>(document.StyleID()), plain.style);
    c.Flag("changed", document.Changed(), plain.changed);
    c.Flag("EnableSave", host.IsOn("EnableSave"), plain.changed);
    for (const auto& [name, on] : plain.buttons) c.Flag(name, r.FindButton(name)->Enabled(), on);
    for (const auto& [name, on] : plain.commands) c.Flag(name, host.IsOn(name), on);
    return c.difference;
}

}  // namespace tw::test
