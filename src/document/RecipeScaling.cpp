#include "document/RecipeScaling.h"

#include <utility>

#include "document/CannotUndo.h"
#include "document/RecipeCells.h"
#include "document/RecipeFields.h"
#include "record/Entries.h"
#include "values/NumberText.h"

namespace tw {
namespace {

// Returns what the history stores for a committed text with that number.
EditValue StateOf(std::string_view text, double number, bool ownNumber) {
    return ownNumber ? EditValue::OfTextAndNumber(text, CellValue::Of(number)) : EditValue::OfText(text);
}

}  // namespace

bool RecipeScaling::MayChange() {
    return CanUndo() || GetUserResponse(recipe_.host, recipe_.platform.dialogs);
}

// Runs a change, which returns true if it was completed. If it raises an error, the recipe is left as it was.
void RecipeScaling::Change(ChangeType type, const std::function<bool()>& change) {
    const RedrawHold hold(recipe_.view);
    const RecordBackup before(recipe_.record);
    bool ended = false;
    try {
        ended = change();
    } catch (...) {
        before.Restore(recipe_.record);
        recipe_.calculator.RefreshCommands();
        throw;
    }
    MarkOwnNumbers(recipe_.record);
    if (CanUndo()) {
        if (Record(type, before)) recipe_.MarkChanged();
        return;
    }
    // An incomplete change keeps the history, but if it has changed any text, the recipe is no longer
    // as stored.
    if (ended || before.TextsChanged(recipe_.record)) recipe_.MarkChanged();
    if (ended) recipe_.recorder.Clear();
}

// Records everything that differs from before as one step of the history. False if nothing does.
bool RecipeScaling::Record(ChangeType type, const RecordBackup& before) {
    EditRecorder& recorder = recipe_.recorder;
    // The step of a scaling holds nothing but texts, as PutBack expects.
    recorder.RecordAwaited();
    bool any = false;
    OneStep step(recipe_, type);
    before.VisitBoxes(recipe_.record, [&](const TextBox& now, const RecordBackup::Box& old) {
        if (now.Committed() == old.committed && now.Value() == old.value) return;
        recorder.RecordEdit(now.Name(), StateOf(old.committed, old.value, old.ownNumber),
                            StateOf(now.Committed(), now.Value(), now.HasOwnNumber()),
                            {ControlType::TextBox, type});
        any = true;
    });
    before.VisitCells(recipe_.record, [&](const Grid& grid, int row, int col, const Cell& old) {
        const Cell& now = grid.At(row, col);
        if (now == old) return;
        recorder.RecordGridCell(grid, row, col, RecipeCells::StateBefore(old, now),
                                RecipeCells::StateOf(now));
        any = true;
    });
    step.Keep();
    return any;
}

// All amounts are put back before anything is recalculated: figures of a half-scaled recipe may not exist.
void RecipeScaling::PutBack(const EditTracker& step, bool undo) {
    RecipeRecord& r = recipe_.record;
    for (const EditTracker* edit = step.GetNext(); edit; edit = edit->GetNext()) {
        const EditValue& value = undo ? edit->OldValue() : edit->NewValue();
        if (TextBox* const box = r.FindTextBox(edit->GetControlID())) {
            RecipeFields::Restore(*box, value);
        } else if (Grid* const grid = r.FindGrid(edit->GetControlID());
                   grid && grid->HasCell(edit->Row(), edit->Col())) {
            RecipeCells::Restore(*grid, edit->Row(), edit->Col(), value);
        }
    }
    RecalculateAll();
    recipe_.MarkChanged();
}

void RecipeScaling::RecalculateAll() {
    const auto recalculate = [](const auto& operation) {
        try {
            operation();
        } catch (const Error&) {
            // A figure that cannot be calculated stays as it is; the recipe has had these amounts before.
        }
    };
    RecipeRecord& r = recipe_.record;
    RecipeCalculator& calculator = recipe_.calculator;
    for (Grid* const grid : {&r.gridGrain, &r.gridExtract, &r.gridHops})
        recalculate([&] { calculator.ShowGridTotal(*grid); });
    recalculate([&] { calculator.RecalcFermentables(); });
    recalculate([&] { calculator.RecalcTreatment(); });
    recalculate([&] { calculator.PressureCommitted(); });
    recalculate([&] { calculator.RecalcPriming(); });
    calculator.RefreshCommands();
}

bool RecipeScaling::MayKeepCarbonation() {
    if (CanUndo() || !recipe_.host.AskBeforeNonUndoableChange()) return true;
    return recipe_.AnswersYes("Keep the Carbonation?",
                              "Keep the carbonation of " + recipe_.record.txtCO2.Text() +
                                  "?\r\nYes changes the priming sugar or the pressure with the size; "
                                  "No leaves them as they are.",
                              Question::YesIsUsual);
}

std::string RecipeScaling::RefusalOfSize(double gallons) const {
    if (recipe_.record.txtTotalVol.Value() == 0) return {};
    const std::optional<double> volume = Scaler().FinalVolumeFor(gallons);
    if (!volume || *volume > 0) return {};
    return "The final volume would be " + FormatQuantity(*volume, 0).text +
           " gal. Please enter a larger size.";
}

void RecipeScaling::ScaleRecipe(double gallons, std::string_view sizeText, bool scaleBoilVol,
                                bool preserveIBU, std::optional<bool> keepCarbonation) {
    if (const std::string refusal = RefusalOfSize(gallons); !refusal.empty()) {
        recipe_.Tell(kInvalidEntry, refusal);
        return;
    }
    if (!MayChange() || recipe_.record.txtTotalVol.Value() == 0) return;
    const double oldIBU = recipe_.record.txtIBU.Value();
    const double oldCO2 = recipe_.calculator.CO2Volumes();
    // Asked before anything changes, so that neither the window nor an autosave sees a partly scaled recipe.
    const bool carbonate = oldCO2 > 0 && (keepCarbonation ? *keepCarbonation : MayKeepCarbonation());
    Change(ChangeType::Resize, [&] {
        const bool carbonated = Resize(gallons, sizeText, scaleBoilVol, carbonate ? oldCO2 : 0);
        return !preserveIBU || KeepBitterness(oldIBU) || carbonated;
    });
}

// volumes: the volumes of CO2 to keep, or 0. Returns true if they could be kept.
bool RecipeScaling::Resize(double gallons, std::string_view sizeText, bool scaleBoilVol, double volumes) {
    const double factor = Divide(gallons, recipe_.record.txtTotalVol.Value());
    RecipeScaler scaler = Scaler();
    scaler.ScaleVolumes(gallons, sizeText, scaleBoilVol);
    scaler.ScaleGrainGrid(recipe_.record.gridGrain, factor);
    scaler.ScaleGrainGrid(recipe_.record.gridExtract, factor);
    scaler.ScaleHops(factor);
    scaler.ScaleTreatment(factor);
    bool carbonated = false;
    if (volumes > 0) {
        // Calculates the CO2 that the sugars give in the new volume, from which their amounts are
        // then scaled.
        recipe_.calculator.RecalcPriming();
        carbonated = scaler.ScaleCO2(volumes) == RecipeScaler::CO2Outcome::Done;
    }
    recipe_.calculator.RecalcFermentables();
    recipe_.calculator.RecalcTreatment();
    recipe_.calculator.RecalcPriming();
    return carbonated;
}

// Scales the hops to that many IBUs. False if no bitterness is left to scale from: by design, the recipe has
// changed then but keeps its history.
bool RecipeScaling::KeepBitterness(double ibu) {
    const double now = recipe_.record.txtIBU.Value();
    if (now == ibu) return true;
    if (now == 0) return false;
    Scaler().ScaleHops(Divide(ibu, now));
    recipe_.calculator.RecalcHops();
    return true;
}

void RecipeScaling::ScaleOG(double newOG, bool preserveIBU) {
    if (!MayChange()) return;
    Change(ChangeType::Strength, [&] {
        const double og = recipe_.record.txtOG.Value();
        if (og == 1) return false;
        const double factor = Divide(newOG - 1, og - 1);
        const double oldIBU = recipe_.record.txtIBU.Value();
        RecipeScaler scaler = Scaler();
        scaler.ScaleGrainGrid(recipe_.record.gridGrain, factor);
        scaler.ScaleGrainGrid(recipe_.record.gridExtract, factor);
        recipe_.calculator.RecalcFermentables();
        return !preserveIBU || KeepBitterness(oldIBU);
    });
}

void RecipeScaling::ScaleIBU(double newIBU) {
    if (!MayChange()) return;
    Change(ChangeType::Bitterness, [&] {
        const double ibu = recipe_.record.txtIBU.Value();
        if (ibu == 0) return false;
        Scaler().ScaleHops(Divide(newIBU, ibu));
        recipe_.calculator.RecalcHops();
        return true;
    });
}

void RecipeScaling::ScaleCO2(double newVolumes, Asking asking) {
    using Outcome = RecipeScaler::CO2Outcome;
    if (!MayChange()) return;
    Outcome outcome = Outcome::Done;
    Change(ChangeType::Carbonation, [&] {
        outcome = Scaler().ScaleCO2(newVolumes);
        return outcome == Outcome::Done;
    });
    if (asking == Asking::Quietly) return;
    if (outcome == Outcome::TooLow)
        recipe_.Tell("Error",
                     "Desired carbonation impossible with the given temperature.\r\n"
                     "Try again with a higher value.");
    else if (outcome == Outcome::NoFermentable)
        recipe_.Tell("Error",
                     "Desired carbonation impossible. Please specify Fermentable% value\r\n"
                     "for at least one priming sugar.");
    else if (outcome == Outcome::Unreasonable)
        recipe_.Tell(kCarbonationFailed, "Please enter a more reasonable pressure.");
}

}  // namespace tw
