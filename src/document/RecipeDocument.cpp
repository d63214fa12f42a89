#include "document/RecipeDocument.h"

#include "platform/ScopeGuard.h"
#include "values/Text.h"

namespace tw {

RecipeDocument::RecipeDocument(DocumentHost& host, Platform& platform, Database& database,
                               const ColorTable& colors, int number)
    : recipe_(*this, host, platform, database, colors),
      catalogue_(database),
      fields_(recipe_),
      focus_(recipe_, fields_),
      options_(recipe_, focus_),
      cells_(recipe_, catalogue_),
      lines_(recipe_, focus_, cells_),
      style_(recipe_, catalogue_, cells_),
      missing_(recipe_.record, catalogue_),
      yeast_(recipe_, cells_, lines_),
      picks_(recipe_, style_, cells_, missing_, yeast_),
      edit_(recipe_, fields_, focus_, cells_),
      scaling_(recipe_),
      replay_(recipe_, {fields_, focus_, options_, style_, cells_, lines_, scaling_}),
      water_(recipe_, catalogue_, focus_, cells_, lines_),
      storage_(recipe_, fields_, focus_, style_, lines_),
      notices_(recipe_, style_, storage_),
      number_(number) {
    recipe_.replay = &replay_;
    recipe_.recorder.SetTracking(false);
    RecipeRecord& r = recipe_.record;
    // An empty box means the multiplier 1, even before the first commit.
    r.txtHopExtraction.SetValue(1);
    for (Grid* const grid : r.Grids())
        while (grid->RowsCanChange() && grid->DataRows() < grid->LeastDataRows())
            lines_.AddBlankRow(*grid, grid->EndOfData());
    style_.Reload();
    ApplyDefaults();
    recipe_.SetFilled(true);
    recipe_.recorder.SetTracking(true);
}

void RecipeDocument::ApplyDefaults() {
    const RecipeDefaults defaults = recipe_.host.Defaults();
    RecipeRecord& r = recipe_.record;
    fields_.CommitDefault(r.txtExtract, defaults.grainExtraction);
    fields_.CommitDefault(r.txtHopExtraction, defaults.hopExtraction);
    cells_.EditCell(r.gridWater, WaterRow::Source, WaterCol::Profile, defaults.waterProfile, Asking::Quietly);
    fields_.CommitDefault(r.txtBoilVol, defaults.boilVol);
    fields_.CommitDefault(r.txtTotalVol, defaults.totalVol);
    options_.ChooseDefaults(defaults.ibuMethod, defaults.packaging);
    recipe_.calculator.RecalcHops();
    recipe_.calculator.ShowCO2();
}

void RecipeDocument::FillFrom(const std::function<void()>& fill) {
    const RedrawHold hold(recipe_.view);
    recipe_.recorder.SetTracking(false);
    recipe_.SetFilled(false);
    const ScopeGuard filled([this] {
        recipe_.SetFilled(true);
        recipe_.recorder.SetTracking(true);
        recipe_.recorder.Clear();
    });
    fill();
    recipe_.Renamed();
}

std::string RecipeDocument::Caption() const {
    const std::string_view name = Trim(BeerName());
    if (!name.empty()) return std::string(name);
    return number_ > 0 ? "Untitled " + std::to_string(number_) : "Untitled";
}

}  // namespace tw
