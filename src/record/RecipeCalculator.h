// Keeps the derived figures of one recipe record consistent: the row calculations, the column totals, the
// figures, and the chain of operations that runs after the commit of each field or cell. Dependencies are not
// tracked: each chain is a fixed, ordered list. A missing input leaves a figure empty and is not an error;
// only carbonation can refuse a value, and only arithmetic (a zero denominator, an overflow) raises Error.
#pragma once

#include <optional>

#include "calc/BeerColor.h"
#include "record/RecipeRecord.h"
#include "values/Reading.h"

namespace tw {

// The title of the message about a temperature or pressure at which no carbonation is possible.
inline constexpr std::string_view kCarbonationFailed = "Error calculating carbonation";

// The commands of the main window that a recipe enables and disables.
class RecipeCommands {
  public:
    virtual ~RecipeCommands() = default;
    virtual void EnableResizeRecipe(bool enabled) = 0;
    virtual void EnableChangeStrength(bool enabled) = 0;
    virtual void EnableChangeBitterness(bool enabled) = 0;
    virtual void EnableChangeCarbonation(bool enabled) = 0;
};

class RecipeCalculator {
  public:
    // record, commands and colors must outlive the calculator.
    RecipeCalculator(RecipeRecord& record, RecipeCommands& commands, const ColorTable& colors)
        : r_(record), commands_(commands), colors_(colors) {}

    // Each runs the chain that follows the commit of a text box. REQUIRES: the box already has its new value
    // and committed text.
    void BoilVolCommitted();
    void TotalVolCommitted();
    void FinalVolCommitted();
    void ExtractCommitted();
    void HopExtractionCommitted();
    void FGCommitted();
    // Refused, with nothing changed, if no non-negative carbonation is possible at the temperature.
    Commit TempCommitted();

    // Each runs the chain that follows the commit of a cell. REQUIRES: the cell already has its new text and
    // value. col may be kWholeRow.
    void FermentableCommitted(Grid& grid, int row, int col);
    void HopCommitted(int row);
    void PrimingCommitted(int row);
    void PressureCommitted();
    // Runs the chain that follows a change of the amount or the salt in a row of gridTreatment.
    void TreatmentCommitted(int row);

    // Each runs the chain that follows the choice of an option.
    void IbuMethodChosen() { RecalcHops(); }
    void PackagingChosen();

    // Row calculations. Each updates the total of its column as well, unless skipTotal.
    void CalcPoints(Grid& grid, int row, bool useGrainExtraction, bool skipTotal);
    void CalcHCU(Grid& grid, int row, bool skipTotal);
    void CalcHopIBU(Grid& grid, int row, bool skipTotal);
    void CalcPrimingVolumes(int row, bool skipTotal);
    // Returns the weight in ounces of the hops in a row of gridHops, whether they were entered by weight, as
    // AAUs or as IBUs; nullopt if it is unknown, or the hops give no bitterness from which to calculate it.
    std::optional<double> HopOunces(int row) const;
    void UpdateTreatmentRow(int row, bool skipTotals);

    // Column totals: the sum over all data rows whose cell is not empty; empty if there is no such row.
    void TotalPoints(Grid& grid);
    void TotalHCU(Grid& grid);
    void TotalIBU(Grid& grid);
    // Includes the residual CO2 and is empty without it. Calls ShowCO2 at the end.
    void TotalPrimingVolumes();
    void UpdateTreatmentTotals();
    // Updates the total amount in the totals row of gridGrain or gridExtract (pounds) or gridHops (ounces
    // or AAUs).
    void ShowGridTotal(Grid& grid);

    // Recalculate all rows of a grid and its totals.
    void RecalcPoints(Grid& grid, bool useGrainExtraction);
    void RecalcHCU(Grid& grid);
    void RecalcHops();
    void RecalcPriming();
    void RecalcTreatment();

    // Recalculate and show single figures.
    void CalcOG();
    void CalcBG();
    void CalcABV();
    void CalcColor();
    void CalcOGAndColor();
    void ShowIBU();
    void ShowCO2();
    // Updates the row "Treatment Needed" of gridWater (target minus source) and the emphasis of the row
    // of totals.
    void UpdateTreatmentNeeded();
    // True if that keg pressure (psi) gives a non-negative volume of CO2 at the recipe's temperature.
    bool HasKegVolumes(double psi) const;
    // Calculates the keg's volumes of CO2 from its pressure. False if none are possible at the temperature;
    // the cell is then unchanged.
    bool CalcKegVolumes();
    // Calculates the keg's volumes and the residual CO2 for bottling. False, with nothing changed, if
    // CalcKegVolumes is false.
    bool CalcCarbonation();

    // True if the command that changes the carbonation can do its work.
    bool CanEnableCO2() const;

    // Recalculates points, colour, gravity and all that depends on them, after amounts of fermentables
    // have changed.
    void RecalcFermentables();
    // Returns the present volumes of CO2, or 0 if they are unknown.
    double CO2Volumes() const;

    // Enables or disables the four scaling commands according to the present figures.
    void RefreshCommands();

  private:
    void RefreshCarbonationCommand() { commands_.EnableChangeCarbonation(CanEnableCO2()); }
    void TotalColumn(Grid& grid, int col);
    double HopRowBitterness(int row, double alphaAcidOunces) const;
    void ShowHopTotal();
    void MarkTreatmentTotal(int col);

    RecipeRecord& r_;
    RecipeCommands& commands_;
    const ColorTable& colors_;
};

}  // namespace tw
