// Keeps the derived figures of one recipe record consistent: the row calculations, the column totals, the
// figures, and the fixed chains that run when a field or a cell is committed. There is no dependency
// mechanism: each chain is an ordered list of operations. A missing input shows as an empty figure, never as
// a failure; only carbonation can refuse, and only arithmetic (a zero denominator) raises.
#pragma once

#include <optional>

#include "calc/BeerColor.h"
#include "record/RecipeRecord.h"
#include "values/Reading.h"

namespace tw {

// The title of the box for a temperature or pressure that leaves no carbonation.
inline constexpr std::string_view kCarbonationFailed = "Error calculating carbonation";

// The commands of the main window that a recipe steers.
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
    // Holds references: record, commands and colors must outlive the calculator.
    RecipeCalculator(RecipeRecord& record, RecipeCommands& commands, const ColorTable& colors)
        : r_(record), commands_(commands), colors_(colors) {}

    // The chains of the committed text boxes. Each expects the box's value and committed text to be the new
    // ones.
    void BoilVolCommitted();
    void TotalVolCommitted();
    void FinalVolCommitted();
    void ExtractCommitted();
    void HopExtractionCommitted();
    void FGCommitted();
    // Refused when no non-negative carbonation exists at the temperature; nothing else was done then.
    Commit TempCommitted();

    // The chains of the committed cells. The cell's text and value are the new ones.
    // col may be kWholeRow.
    void FermentableCommitted(Grid& grid, int row, int col);
    void HopCommitted(int row);
    void PrimingCommitted(int row);
    void PressureCommitted();
    // A row of gridTreatment got another amount or salt.
    void TreatmentCommitted(int row);

    // The chains of the option groups.
    void IbuMethodChosen() { RecalcHops(); }
    void PackagingChosen();

    // Row calculations; unless skipTotal, the column's total follows at once.
    void CalcPoints(Grid& grid, int row, bool useGrainExtraction, bool skipTotal);
    void CalcHCU(Grid& grid, int row, bool skipTotal);
    void CalcHopIBU(Grid& grid, int row, bool skipTotal);
    void CalcPrimingVolumes(int row, bool skipTotal);
    void UpdateTreatmentRow(int row, bool skipTotals);

    // Column totals: the sum over the data rows whose cell has text, or an empty text when none has.
    void TotalPoints(Grid& grid);
    void TotalHCU(Grid& grid);
    void TotalIBU(Grid& grid);
    // Residual CO2 counts too; without it the total is empty. ShowCO2 follows.
    void TotalPrimingVolumes();
    void UpdateTreatmentTotals();
    // The amount cell of the totals row of gridGrain, gridExtract and gridHops.
    void ShowGridTotal(Grid& grid);

    // Whole-grid loops.
    void RecalcPoints(Grid& grid, bool useGrainExtraction);
    void RecalcHCU(Grid& grid);
    void RecalcHops();
    void RecalcPriming();
    void RecalcTreatment();

    // Figures.
    void CalcOG();
    void CalcBG();
    void CalcABV();
    void CalcColor();
    void CalcOGAndColor();
    void ShowIBU();
    void ShowCO2();
    // Row "Treatment Needed" of gridWater (target less source), and the emphasis of the row of totals.
    void UpdateTreatmentNeeded();
    // True if that keg pressure (psi) has non-negative volumes of CO2 at the recipe's temperature.
    bool HasKegVolumes(double psi) const;
    // The keg's volumes from its pressure. False when the pressure has none at the temperature: the cell
    // stays then.
    bool CalcKegVolumes();
    // The keg's volumes and the residual CO2 of bottling. False, and nothing else was done, as
    // CalcKegVolumes.
    bool CalcCarbonation();

    // Whether the change-carbonation command makes sense.
    bool CanEnableCO2() const;

    // Points, colour, gravity and all that follows from them, after the fermentables have other amounts.
    void RecalcFermentables();
    // Volumes of CO2 as they stand, 0 while they are unknown.
    double CO2Volumes() const;

    // Sets the four scaling commands by the record's present figures.
    void RefreshCommands();

  private:
    void RefreshCarbonationCommand() { commands_.EnableChangeCarbonation(CanEnableCO2()); }
    void TotalColumn(Grid& grid, int col);
    void ShowHopTotal();
    void MarkTreatmentTotal(int col);

    RecipeRecord& r_;
    RecipeCommands& commands_;
    const ColorTable& colors_;
};

}  // namespace tw
