// Scales a recipe's amounts to another size, strength, bitterness or carbonation.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "record/RecipeCalculator.h"
#include "record/RecipeRecord.h"

namespace tw {

// Each amount is rounded to the precision shown in its cell, and its number is that of the text shown. The
// caller must recalculate the figures that depend on the amounts, except that the total amount of a grid and
// the carbonation from sugars or keg pressure are updated here.
class RecipeScaler {
  public:
    // record and calculator must outlive the scaler. If keepUnits is true, each amount keeps the unit in
    // which it was typed as far as that can be read (ScaledText); else it is shown in the unit of its column.
    RecipeScaler(RecipeRecord& record, RecipeCalculator& calculator, bool keepUnits)
        : r_(record), calculator_(calculator), keepUnits_(keepUnits) {}

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

    // An amount and the text that shows it.
    struct Amount {
        CellValue value;
        std::string text;
    };
    static Amount InUnitOfColumn(const Grid& grid, int col, CellValue wanted);
    Amount AmountFor(const Grid& grid, int row, int col, CellValue wanted, double factor) const;
    static void Put(Grid& grid, int row, int col, const Amount& amount);
    void ScaleAmount(Grid& grid, int row, int col, double factor);
    void ScaleColumn(Grid& grid, int col, double factor);
    double ExactFinalVolume(double newGallons) const;
    void PutRoundedVolume(TextBox& box, double gallons);

    RecipeRecord& r_;
    RecipeCalculator& calculator_;
    bool keepUnits_;
};

}  // namespace tw
