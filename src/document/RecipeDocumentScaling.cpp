// The changes that no undo takes back: another size, strength, bitterness or carbonation of the whole recipe.
#include "document/CannotUndo.h"
#include "document/RecipeDocument.h"
#include "document/RecordBackup.h"
#include "values/NumberText.h"
#include "values/ParserValidater.h"

namespace tw {

bool RecipeDocument::MayChangeForGood() {
    return GetUserResponse(host_, platform_.dialogs);
}

// Runs a change, which tells whether it went through to its end. One that raises leaves the recipe as it was.
void RecipeDocument::ChangeForGood(const std::function<bool()>& change) {
    const RedrawHold hold(view_);
    const RecordBackup before(record_);
    bool ended = false;
    try {
        ended = change();
    } catch (...) {
        before.Restore(record_);
        calculator_.RefreshCommands();
        throw;
    }
    // A change that stopped on the way keeps the history, but what it has moved is not stored.
    if (ended || before.TextsChanged(record_)) MarkChanged();
    if (ended) recorder_.Clear();
}

bool RecipeDocument::MayKeepCarbonation() {
    if (!host_.AskBeforeNonUndoableChange()) return true;
    return platform_.messages.Ask("Keep the Carbonation?",
                                  "Keep the carbonation of " + record_.txtCO2.Text() +
                                      "?\r\nYes changes the priming sugar or the pressure with the size; "
                                      "No leaves them as they are.",
                                  Question::YesIsUsual) == Answer::Yes;
}

std::string RecipeDocument::RefusalOfSize(double newSize) const {
    if (record_.txtTotalVol.Value() == 0) return {};
    std::optional<double> volume = calculator_.FinalVolumeFor(newSize);
    if (!volume || *volume > 0) return {};
    return "The final volume would be " + FormatQuantity(*volume, 0) + " gal. Please enter a larger size.";
}

void RecipeDocument::ScaleRecipe(double newSize, std::string_view sizeText, bool scaleBoilVol,
                                 bool preserveIBU) {
    if (const std::string refusal = RefusalOfSize(newSize); !refusal.empty()) {
        platform_.messages.ShowMessage(kInvalidEntry, refusal);
        return;
    }
    if (!MayChangeForGood() || record_.txtTotalVol.Value() == 0) return;
    const double oldIBU = record_.txtIBU.Value();
    const double oldCO2 = calculator_.CO2Volumes();
    // Asked before anything changes, so that neither the window nor an autosave meets a recipe halfway.
    const bool carbonate = oldCO2 > 0 && MayKeepCarbonation();
    ChangeForGood([&] {
        const bool carbonated = Resize(newSize, sizeText, scaleBoilVol, carbonate ? oldCO2 : 0);
        return !preserveIBU || KeepBitterness(oldIBU) || carbonated;
    });
}

// volumes: the carbonation to hold, 0 for none. True when it could be held.
bool RecipeDocument::Resize(double newSize, std::string_view sizeText, bool scaleBoilVol, double volumes) {
    const double factor = Divide(newSize, record_.txtTotalVol.Value());
    calculator_.ScaleVolumes(newSize, sizeText, scaleBoilVol);
    calculator_.ScaleGrainGrid(record_.gridGrain, factor);
    calculator_.ScaleGrainGrid(record_.gridExtract, factor);
    calculator_.ScaleHopGrid(record_.gridHops, factor);
    calculator_.ScaleTreatmentGrid(record_.gridTreatment, factor);
    bool carbonated = false;
    if (volumes > 0) {
        // What the sugars give to the new volume, so that their amounts are scaled from there.
        calculator_.RecalcPriming();
        carbonated = calculator_.ScaleCO2(volumes) == RecipeCalculator::CO2Outcome::Done;
    }
    calculator_.RecalcFermentables();
    calculator_.RecalcTreatment();
    calculator_.RecalcPriming();
    return carbonated;
}

// False when no bitterness is left to scale from: the recipe has changed then, but does not lose its history
// by that, as designed.
bool RecipeDocument::KeepBitterness(double ibu) {
    const double now = record_.txtIBU.Value();
    if (now == ibu) return true;
    if (now == 0) return false;
    calculator_.ScaleHopGrid(record_.gridHops, Divide(ibu, now));
    calculator_.RecalcHops();
    return true;
}

void RecipeDocument::ScaleOG(double newOG, bool preserveIBU) {
    if (!MayChangeForGood()) return;
    ChangeForGood([&] {
        const double og = record_.txtOG.Value();
        if (og == 1) return false;
        const double factor = Divide(newOG - 1, og - 1);
        const double oldIBU = record_.txtIBU.Value();
        calculator_.ScaleGrainGrid(record_.gridGrain, factor);
        calculator_.ScaleGrainGrid(record_.gridExtract, factor);
        calculator_.RecalcFermentables();
        return !preserveIBU || KeepBitterness(oldIBU);
    });
}

void RecipeDocument::ScaleIBU(double newIBU) {
    if (!MayChangeForGood()) return;
    ChangeForGood([&] {
        const double ibu = record_.txtIBU.Value();
        if (ibu == 0) return false;
        calculator_.ScaleHopGrid(record_.gridHops, Divide(newIBU, ibu));
        calculator_.RecalcHops();
        return true;
    });
}

void RecipeDocument::ScaleCO2(double newVolumes, bool quiet) {
    using Outcome = RecipeCalculator::CO2Outcome;
    if (!MayChangeForGood()) return;
    Outcome outcome = Outcome::Done;
    ChangeForGood([&] {
        outcome = calculator_.ScaleCO2(newVolumes);
        return outcome == Outcome::Done;
    });
    if (quiet) return;
    if (outcome == Outcome::TooLow)
        platform_.messages.ShowMessage("Error",
                                       "Desired carbonation impossible with the given temperature.\r\n"
                                       "Try again with a higher value.");
    else if (outcome == Outcome::NoFermentable)
        platform_.messages.ShowMessage("Error",
                                       "Desired carbonation impossible. Please specify Fermentable% value\r\n"
                                       "for at least one priming sugar.");
    else if (outcome == Outcome::Unreasonable)
        platform_.messages.ShowMessage("Error calculating carbonation",
                                       "Please enter a more reasonable pressure.");
}

}  // namespace tw
