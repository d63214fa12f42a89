// The changes of a whole recipe: a new size, strength, bitterness or carbonation.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "document/OpenRecipe.h"
#include "document/RecordBackup.h"
#include "record/RecipeScaler.h"

namespace tw {

// Each change asks the brewer first, and does nothing if the answer is No; a completed change empties the
// history. If the settings let scaling be undone, nothing is asked instead, and a change is one step of the
// history. All raise Error for an arithmetic fault, with nothing changed.
class RecipeScaling {
  public:
    explicit RecipeScaling(OpenRecipe& recipe) : recipe_(recipe) {}

    // Changes the total volume to that many gallons, shown as sizeText, and the amounts in proportion.
    // Keeps the carbonation if keepCarbonation is true; nullopt asks for it. The boil volume changes only if
    // scaleBoilVol is true, and the hops keep the bitterness only if preserveIBU is. If RefusalOfSize refuses
    // the size, just shows its message. Does nothing while the total volume is 0.
    void ScaleRecipe(double gallons, std::string_view sizeText, bool scaleBoilVol, bool preserveIBU,
                     std::optional<bool> keepCarbonation = std::nullopt);
    // Returns the message if the recipe cannot be resized to that many gallons, because no final volume would
    // be left; empty if it can.
    std::string RefusalOfSize(double gallons) const;
    // Changes the original gravity to newOG (specific gravity) by changing the amounts of grain and extract.
    // The hops keep the bitterness only if preserveIBU is true. Does nothing while the gravity is 1.
    void ScaleOG(double newOG, bool preserveIBU);
    // Changes the bitterness to newIBU (IBUs) by changing the amounts of hops. Does nothing while the
    // bitterness is 0.
    void ScaleIBU(double newIBU);
    // Changes the carbonation to newVolumes (volumes of CO2) by changing the keg's pressure or the amounts of
    // sugars. If that is impossible, changes nothing and, if asking is Aloud, shows a message.
    void ScaleCO2(double newVolumes, Asking asking);

    // True if there is a carbonation to change.
    bool CanScaleCO2() const { return recipe_.calculator.CanEnableCO2(); }
    // True if the recipe has a carbonation that a resize can keep.
    bool HasCarbonation() const { return recipe_.calculator.CO2Volumes() > 0; }

    // For an undo or redo of such a change: puts back what it has changed, and recalculates all figures.
    void PutBack(const EditTracker& step, bool undo);

  private:
    // Returns a scaler that writes amounts as the settings want them now.
    RecipeScaler Scaler() const {
        return {recipe_.record, recipe_.calculator, recipe_.host.Scaling().keepTypedUnits};
    }
    bool CanUndo() const { return recipe_.host.Scaling().undoable; }
    bool MayChange();
    bool MayKeepCarbonation();
    void Change(ChangeType type, const std::function<bool()>& change);
    bool Record(ChangeType type, const RecordBackup& before);
    void RecalculateAll();
    bool Resize(double gallons, std::string_view sizeText, bool scaleBoilVol, double volumes);
    bool KeepBitterness(double ibu);

    OpenRecipe& recipe_;
};

}  // namespace tw
