#include "document/RecipeScaling.h"

#include "document/CannotUndo.h"
#include "document/RecordBackup.h"
#include "record/Entries.h"
#include "values/NumberText.h"

namespace tw {

bool RecipeScaling::MayChangeForGood() {
    return GetUserResponse(recipe_.host, recipe_.platform.dialogs);
}

// Runs a change, which returns true if it was completed. If it raises an error, the recipe is left as it was.
void RecipeScaling::ChangeForGood(const std::function<bool()>& change) {
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
    // An incomplete change keeps the history, but if it has changed any text, the recipe is no longer
    // as stored.
    if (ended || before.TextsChanged(recipe_.record)) recipe_.MarkChanged();
    if (ended) recipe_.recorder.Clear();
}

bool RecipeScaling::MayKeepCarbonation() {
    if (!recipe_.host.AskBeforeNonUndoableChange()) return true;
    return recipe_.AnswersYes("Keep the Carbonation?",
                              "Keep the carbonation of " + recipe_.record.txtCO2.Text() +
                                  "?\r\nYes changes the priming sugar or the pressure with the size; "
                                  "No leaves them as they are.",
                              Question::YesIsUsual);
}

std::string RecipeScaling::RefusalOfSize(double gallons) const {
    if (recipe_.record.txtTotalVol.Value() == 0) return {};
    const std::optional<double> volume = scaler_.FinalVolumeFor(gallons);
    if (!volume || *volume > 0) return {};
    return "The final volume would be " + FormatQuantity(*volume, 0).text +
           " gal. Please enter a larger size.";
}

void RecipeScaling::ScaleRecipe(double gallons, std::string_view sizeText, bool scaleBoilVol,
                                bool preserveIBU) {
    if (const std::string refusal = RefusalOfSize(gallons); !refusal.empty()) {
        recipe_.Tell(kInvalidEntry, refusal);
        return;
    }
    if (!MayChangeForGood() || recipe_.record.txtTotalVol.Value() == 0) return;
    const double oldIBU = recipe_.record.txtIBU.Value();
    const double oldCO2 = recipe_.calculator.CO2Volumes();
    // Asked before anything changes, so that neither the window nor an autosave sees a partly scaled recipe.
    const bool carbonate = oldCO2 > 0 && MayKeepCarbonation();
    ChangeForGood([&] {
        const bool carbonated = Resize(gallons, sizeText, scaleBoilVol, carbonate ? oldCO2 : 0);
        return !preserveIBU || KeepBitterness(oldIBU) || carbonated;
    });
}

// volumes: the volumes of CO2 to keep, or 0. Returns true if they could be kept.
bool RecipeScaling::Resize(double gallons, std::string_view sizeText, bool scaleBoilVol, double volumes) {
    const double factor = Divide(gallons, recipe_.record.txtTotalVol.Value());
    scaler_.ScaleVolumes(gallons, sizeText, scaleBoilVol);
    scaler_.ScaleGrainGrid(recipe_.record.gridGrain, factor);
    scaler_.ScaleGrainGrid(recipe_.record.gridExtract, factor);
    scaler_.ScaleHops(factor);
    scaler_.ScaleTreatment(factor);
    bool carbonated = false;
    if (volumes > 0) {
        // Calculates the CO2 that the sugars give in the new volume, from which their amounts are
        // then scaled.
        recipe_.calculator.RecalcPriming();
        carbonated = scaler_.ScaleCO2(volumes) == RecipeScaler::CO2Outcome::Done;
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
    scaler_.ScaleHops(Divide(ibu, now));
    recipe_.calculator.RecalcHops();
    return true;
}

void RecipeScaling::ScaleOG(double newOG, bool preserveIBU) {
    if (!MayChangeForGood()) return;
    ChangeForGood([&] {
        const double og = recipe_.record.txtOG.Value();
        if (og == 1) return false;
        const double factor = Divide(newOG - 1, og - 1);
        const double oldIBU = recipe_.record.txtIBU.Value();
        scaler_.ScaleGrainGrid(recipe_.record.gridGrain, factor);
        scaler_.ScaleGrainGrid(recipe_.record.gridExtract, factor);
        recipe_.calculator.RecalcFermentables();
        return !preserveIBU || KeepBitterness(oldIBU);
    });
}

void RecipeScaling::ScaleIBU(double newIBU) {
    if (!MayChangeForGood()) return;
    ChangeForGood([&] {
        const double ibu = recipe_.record.txtIBU.Value();
        if (ibu == 0) return false;
        scaler_.ScaleHops(Divide(newIBU, ibu));
        recipe_.calculator.RecalcHops();
        return true;
    });
}

void RecipeScaling::ScaleCO2(double newVolumes, Asking asking) {
    using Outcome = RecipeScaler::CO2Outcome;
    if (!MayChangeForGood()) return;
    Outcome outcome = Outcome::Done;
    ChangeForGood([&] {
        outcome = scaler_.ScaleCO2(newVolumes);
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
