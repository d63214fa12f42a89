#include "document/RecipeStorage.h"

#include <algorithm>

#include "document/RecipeMapping.h"
#include "document/UnusableNumbers.h"
#include "platform/ScopeGuard.h"
#include "record/Entries.h"
#include "store/RecipeFollowers.h"
#include "store/RowNames.h"
#include "values/Text.h"

namespace tw {
namespace {

// During a scope, changes of the record are not edits: nothing is recorded, and the recipe is not marked
// as changed.
class Filling {
  public:
    explicit Filling(OpenRecipe& recipe) : recipe_(recipe), filledBefore_(recipe.SetFilled(false)) {
        recipe.recorder.SetTracking(false);
    }
    ~Filling() {
        recipe_.SetFilled(filledBefore_);
        recipe_.recorder.SetTracking(true);
    }
    Filling(const Filling&) = delete;
    Filling& operator=(const Filling&) = delete;

  private:
    OpenRecipe& recipe_;
    bool filledBefore_;
};

}  // namespace

bool RecipeStorage::AskOverwrite() {
    const std::string name(Trim(recipe_.record.txtName.Text()));
    return recipe_.AnswersYes("Overwrite existing recipe?",
                              "Another recipe named '" + name + "' already exists.\r\nOverwrite it?",
                              Question::YesNo);
}

std::optional<std::int64_t> RecipeStorage::DeleteOwnRow() {
    const ScopedValue savingOver(savingOver_, true);
    return recipe_.host.DeleteRecipe(std::string(recipe_.place.origName), RecipeEnd::SavedAnew);
}

std::optional<std::int64_t> RecipeStorage::Write(const StoredRecipe& stored, SaveAs way,
                                                 std::optional<std::int64_t> otherId) {
    RecipePlace& place = recipe_.place;
    const bool sameName = SameName(stored.name, place.origName);
    // An earlier save that failed halfway may have written the row that has the name now.
    const bool otherIsOwn = otherId && otherId == place.id;
    if (otherId)
        recipe_.host.DeleteRecipe(stored.name, otherIsOwn ? RecipeEnd::SavedAnew : RecipeEnd::Overwritten);
    // Save As with another name makes a copy and leaves the old recipe as it is; a plain save with an edited
    // name renames the recipe, and nothing is left under the old name.
    const bool copies = way == SaveAs::Yes && !sameName && !otherIsOwn;
    std::optional<std::int64_t> replacedId;
    if (way == SaveAs::Yes ? sameName : !place.origName.empty()) replacedId = DeleteOwnRow();
    const auto tell = [&](std::int64_t newId) {
        if (copies && place.id) return RecipeCopied(recipe_.database, *place.id, newId);
        // The row differs from the one known here if an import has overwritten the stored recipe.
        if (replacedId && replacedId != place.id) RecipeSaved(recipe_.database, replacedId, newId);
        RecipeSaved(recipe_.database, place.id, newId);
        place.id = newId;
    };
    return InsertRecipe(recipe_.database, stored, tell);
}

// If the disk has undone the save, no row has that id, and another recipe will get it.
void RecipeStorage::ForgetUndoneId(std::optional<std::int64_t> idBefore) {
    std::optional<std::int64_t>& id = recipe_.place.id;
    if (id == idBefore) return;
    try {
        if (id && NameById(recipe_.database, "RECIPES", *id)) return;
    } catch (const Error&) {
        // The error of the save is already being reported; whether the new row is there remains unknown.
    }
    id = idBefore;
}

bool RecipeStorage::Save(SaveAs way, Asking asking) {
    RecipePlace& place = recipe_.place;
    const std::string name(Trim(recipe_.record.txtName.Text()));
    const bool saveAs = way == SaveAs::Yes;
    const bool sameName = SameName(name, place.origName);
    const std::optional<std::int64_t> otherId = sameName ? std::nullopt : RecipeId(recipe_.database, name);
    if ((otherId || (saveAs && sameName)) && asking == Asking::Aloud && !AskOverwrite()) return false;
    // A row that is still to be typed is not part of the recipe.
    const OfferPause pause(lines_);
    bool committed = false;
    const ScopeGuard settle([this, &committed, before = place.id] {
        if (!committed) ForgetUndoneId(before);
    });
    UnitOfWork unit(recipe_.database);
    const DateTime now = recipe_.platform.clock.Now();
    if (!place.createdWhen) place.createdWhen = now;
    StoredRecipe stored = StoredFrom(recipe_.record);
    stored.name = name;
    stored.styleId = style_.Id();
    stored.folderId = place.folderId;
    stored.createdWhen = place.createdWhen;
    stored.modifiedWhen = now;
    const std::optional<std::int64_t> newId = Write(stored, way, otherId);
    if (!newId) {
        unit.Commit();
        committed = true;
        recipe_.Tell("UNKNOWN ERROR", "Error saving recipe to database!");
        return true;
    }
    recipe_.host.RecipeStored(name);
    unit.Commit();
    committed = true;
    place.origName = name;
    place.id = newId;
    for (TextBox* const box : recipe_.record.TextBoxes())
        if (RuleOf(*box).takes == FieldTakes::FreeText && !box->Computed()) box->SetCommitted(box->Text());
    recipe_.ClearChanged();
    // Nothing before a save can be undone.
    recipe_.recorder.Clear();
    recipe_.host.AddToMRU(name);
    return true;
}

bool RecipeStorage::SaveUnder(std::string_view name, std::int64_t folderId, Asking asking) {
    RecipePlace& place = recipe_.place;
    TextBox& box = recipe_.record.txtName;
    const std::string oldName = box.Text();
    const std::int64_t oldFolder = place.folderId;
    const std::optional<DateTime> oldCreated = place.createdWhen;
    const bool wasChanged = recipe_.Changed();
    fields_.SetText(box, name);
    place.folderId = folderId;
    place.createdWhen = recipe_.platform.clock.Now();
    if (Save(SaveAs::Yes, asking)) return true;
    // The brewer has cancelled: undo the changes.
    fields_.SetText(box, oldName);
    place.folderId = oldFolder;
    place.createdWhen = oldCreated;
    if (!wasChanged) recipe_.ClearChanged();
    return false;
}

void RecipeStorage::Open(std::string_view name) {
    const std::optional<StoredRecipe> stored = ReadRecipe(recipe_.database, name);
    if (!stored)
        throw Error("RecipeDocument.OpenRecipe", "Recipe '" + std::string(name) + "' no longer exists!", 5);
    CheckStored(*stored);
    std::vector<std::string> failed;
    {
        const Filling filling(recipe_);
        Fill(*stored);
        failed = FillGrids(*stored);
        MarkOwnNumbers(recipe_.record);
    }
    recipe_.recorder.Clear();
    recipe_.place.origName = Trim(recipe_.record.txtName.Text());
    recipe_.ClearChanged();
    if (recipe_.IsActive()) focus_.Activate();
    recipe_.host.AddToMRU(recipe_.place.origName);
    if (!failed.empty()) TellUnusableNumbers(failed);
}

void RecipeStorage::Fill(const StoredRecipe& stored) {
    recipe_.place.id = stored.id;
    recipe_.place.createdWhen = stored.createdWhen;
    TextBox& name = recipe_.record.txtName;
    name.SetText(stored.name);
    name.SetCommitted(stored.name);
    if (stored.folderId) recipe_.place.folderId = *stored.folderId;
    if (stored.styleId) style_.SetId(*stored.styleId);
    FillFields(recipe_.record, stored);
}

// Fills the grids and returns the names of the figures that could not be calculated: a stored number that
// breaks a formula leaves its figure as it is, and the recipe is opened nevertheless.
std::vector<std::string> RecipeStorage::FillGrids(const StoredRecipe& stored) {
    RecipeRecord& r = recipe_.record;
    RecipeCalculator& calculator = recipe_.calculator;
    std::vector<std::string> failed;
    const auto recalculate = [&](const std::string& figure, const std::function<void()>& operation) {
        try {
            operation();
        } catch (const Error&) {
            failed.push_back(figure);
        }
    };
    const auto fill = [&](Grid& grid) {
        FillGrid(grid, stored, [this](Grid& g) { lines_.AddBlankRow(g, g.EndOfData()); });
    };
    fill(r.gridWater);
    fill(r.gridPressure);
    recalculate("Treatment Needed", [&] { calculator.UpdateTreatmentNeeded(); });
    for (Grid* const grid : {&r.gridGrain, &r.gridExtract}) {
        fill(*grid);
        recalculate("Points and HCU of " + grid->ColumnAt(0).header, [&] {
            calculator.ShowGridTotal(*grid);
            calculator.RecalcPoints(*grid, grid->Id() == GridId::Grain);
            calculator.RecalcHCU(*grid);
        });
    }
    recalculate("Color", [&] { calculator.CalcColor(); });
    fill(r.gridHops);
    recalculate("IBUs", [&] {
        calculator.ShowGridTotal(r.gridHops);
        calculator.RecalcHops();
    });
    fill(r.gridTreatment);
    recalculate("Treatment Totals", [&] { calculator.RecalcTreatment(); });
    fill(r.gridPriming);
    recalculate("CO2 Amount", [&] {
        calculator.CalcCarbonation();
        calculator.RecalcPriming();
    });
    fill(r.gridAdjuncts);
    fill(r.gridLog);
    return failed;
}

// Shows the message about unusable numbers. If each number is usable by itself, names the figures that they
// break together.
void RecipeStorage::TellUnusableNumbers(const std::vector<std::string>& figures) {
    const std::vector<std::string> fields = UnusableNumbers(recipe_.record);
    recipe_.Tell("Error", UnusableNumbersText(recipe_.place.origName, fields.empty() ? figures : fields));
}

bool RecipeStorage::IsStoredAs(std::string_view name) const {
    return !recipe_.place.origName.empty() && SameName(name, recipe_.place.origName);
}

void RecipeStorage::Detach() {
    if (savingOver_) return;
    recipe_.place.folderId = -1;
    recipe_.place.origName.clear();
    recipe_.place.id.reset();
    recipe_.MarkChanged();
}

}  // namespace tw
