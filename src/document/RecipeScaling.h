// The changes that no undo takes back: another size, strength, bitterness or carbonation of the whole recipe.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "document/OpenRecipe.h"
#include "record/RecipeScaler.h"

namespace tw {

// Each change asks first, and does nothing when the brewer does not want it. Behind one that went through the
// history is empty. They raise for an arithmetic fault; all is as before then.
class RecipeScaling {
  public:
    explicit RecipeScaling(OpenRecipe& recipe) : recipe_(recipe), scaler_(recipe.record, recipe.calculator) {}

    // Changes the total volume to that many gallons, shown as sizeText; the amounts follow. Whether the
    // carbonation is held is asked too. A size that RefusalOfSize refuses shows its box. The boil volume
    // follows only if asked to, and the hops keep the bitterness only if asked to. Does nothing while the
    // total volume is 0.
    void ScaleRecipe(double gallons, std::string_view sizeText, bool scaleBoilVol, bool preserveIBU);
    // Why the recipe cannot be resized to that many gallons, as the text of a box: no final volume would be
    // left. Empty when it can.
    std::string RefusalOfSize(double gallons) const;
    // Changes the original gravity (a specific gravity) by other amounts of grain and extract. Does nothing
    // while the gravity is 1.
    void ScaleOG(double newOG, bool preserveIBU);
    // Changes the bitterness, in IBUs, by other amounts of hops. Does nothing while the bitterness is 0.
    void ScaleIBU(double newIBU);
    // Changes the carbonation, in volumes of CO2, by the keg's pressure or the amounts of the sugars. One
    // that cannot be reached shows a box, if aloud, and changes nothing.
    void ScaleCO2(double newVolumes, Asking asking);

    // Whether there is a carbonation to change.
    bool CanScaleCO2() const { return recipe_.calculator.CanEnableCO2(); }

  private:
    bool MayChangeForGood();
    bool MayKeepCarbonation();
    void ChangeForGood(const std::function<bool()>& change);
    bool Resize(double gallons, std::string_view sizeText, bool scaleBoilVol, double volumes);
    bool KeepBitterness(double ibu);

    OpenRecipe& recipe_;
    RecipeScaler scaler_;
};

}  // namespace tw
