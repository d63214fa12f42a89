// Scales a recipe's amounts to another size, strength, bitterness or carbonation.
#pragma once

#include <optional>
#include <string_view>

#include "record/RecipeCalculator.h"
#include "record/RecipeRecord.h"

namespace tw {

// Each amount is rounded to the precision shown in its cell. The caller must recalculate the figures that
// depend on the amounts, except that the total amount of a grid and the carbonation from sugars or keg
// pressure are updated here.
class RecipeScaler {
  public:
    // record and calculator must outlive the scaler.
    RecipeScaler(RecipeRecord& record, RecipeCalculator& calculator) : r_(record), calculator_(calculator) {}

    // Multiply the amounts in the rows of a grid by factor. REQUIRES for ScaleGrainGrid: gridGrain
    // or gridExtract.
    void ScaleGrainGrid(Grid& grid, double factor);
    void ScaleHops(double factor);
    void ScaleTreatment(double factor);

    // Returns the final volume in gallons that its box will show after the total volume has changed to
    // newGallons; nullopt if the recipe has no final volume.
    std::optional<double> FinalVolumeFor(double newGallons) const;
    // Changes the total volume to newGallons, shown as sizeText, and the final volume with it; if
    // scaleBoilVol is true, also changes the boil volume in proportion.
    void ScaleVolumes(double newGallons, std::string_view sizeText, bool scaleBoilVol);

    // Changes the keg pressure or the priming sugars so that the beer gets that many volumes of CO2. Any
    // result but Done means that nothing was changed.
    enum class CO2Outcome { Done, TooLow, NoFermentable, Unreasonable };
    CO2Outcome ScaleCO2(double volumes);

  private:
    CO2Outcome ScalePressure(double volumes);
    CO2Outcome ScaleSugars(double volumes);
    CO2Outcome FillFirstSugar(double volumes);
    void PutSugar(int row, double ounces);

    RecipeRecord& r_;
    RecipeCalculator& calculator_;
};

}  // namespace tw
