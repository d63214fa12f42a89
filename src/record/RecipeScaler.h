// A recipe's amounts for another size, strength, bitterness or carbonation.
#pragma once

#include <optional>
#include <string_view>

#include "record/RecipeCalculator.h"
#include "record/RecipeRecord.h"

namespace tw {

// Each amount is rounded to what its cell shows. The figures that follow from the amounts are the caller's to
// work out, but for a grid's total of amounts and, of the sugars and the keg, the carbonation.
class RecipeScaler {
  public:
    // Holds references: both must outlive the scaler.
    RecipeScaler(RecipeRecord& record, RecipeCalculator& calculator) : r_(record), calculator_(calculator) {}

    // Multiply the amounts in a grid's rows. REQUIRES: gridGrain or gridExtract.
    void ScaleGrainGrid(Grid& grid, double factor);
    void ScaleHops(double factor);
    void ScaleTreatment(double factor);

    // The final volume in gallons that another total volume leaves, as its box would show it; nothing while
    // there is none.
    std::optional<double> FinalVolumeFor(double newGallons) const;
    // The volumes for another total volume in gallons, shown as sizeText. The boil volume follows if asked
    // to.
    void ScaleVolumes(double newGallons, std::string_view sizeText, bool scaleBoilVol);

    // Changes pressure or sugars so that the beer gets that many volumes of CO2; all but Done change nothing.
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
