#include "document/WaterTreatment.h"

#include <algorithm>

#include "document/TreatmentSummary.h"
#include "values/NumberText.h"
#include "water/Treatment.h"

namespace tw {
namespace {

// A salt of which the batch needs less gets no row.
constexpr double kLeastGrams = 0.001;
constexpr int kGramDecimals = 3;

struct SaltDose {
    std::string name;
    double grams;  // for the batch
};

// Returns the PPM to add of each ion; not negative, because salts can only add ions.
Ions NeededOf(const Grid& water) {
    Ions needed;
    for (int ion = 0; ion < kIons; ++ion)
        needed[static_cast<std::size_t>(ion)] =
            std::max(water.Number(WaterRow::Needed, WaterCol::FirstIon + ion), 0.0);
    return needed;
}

}  // namespace

void WaterTreatment::CalcTreatment() {
    if (!focus_.FlushEdits() || !recipe_.record.cmdCalcTreatment.Enabled()) return;
    // The variables of the linear programs are in the order of the table.
    const std::vector<SaltIons> salts = catalogue_.Salts();
    if (salts.empty()) {
        recipe_.Tell("Could not setup Linear Program",
                     "Not enough data to calculate water treatment.\r\nCheck Salts tab of Database Setup");
        return;
    }
    std::vector<Ions> added;
    added.reserve(salts.size());
    for (const SaltIons& salt : salts) added.push_back(salt.ppm);
    const auto doses = FindDoses(NeededOf(recipe_.record.gridWater), added, recipe_.host.LPMaxIter());
    if (!doses) {
        recipe_.Tell("Could not solve Linear Program", "Water Treatment Calculation failed");
        return;
    }
    std::vector<SaltDose> wanted;
    for (std::size_t salt = 0; salt < doses->size(); ++salt) {
        const double grams = Finite((*doses)[salt] * recipe_.record.txtTotalVol.Value());
        if (grams >= kLeastGrams) wanted.push_back({salts[salt].name, grams});
    }
    Grid& grid = recipe_.record.gridTreatment;
    const RedrawHold hold(recipe_.view);
    OneStep step(recipe_, ChangeType::Calculation);
    Clear();
    for (std::size_t i = 0; i < wanted.size(); ++i) lines_.InsertRowForGrid(grid);
    int row = Grid::FixedRows();
    for (const SaltDose& dose : wanted) {
        cells_.EditCell(grid, row, TreatmentCol::Name, dose.name, Asking::Quietly);
        cells_.EditCell(grid, row, TreatmentCol::Amount,
                        FormatQuantity(dose.grams, kGramDecimals).text + " grams", Asking::Quietly);
        ++row;
    }
    step.Keep();
    grid.NotifyFilled();
    focus_.RefreshRowCommands();
    recipe_.host.SayBriefly(TreatmentSummary(recipe_.record));
}

void WaterTreatment::Clear() {
    Grid& grid = recipe_.record.gridTreatment;
    while (grid.DataRows() > 0) {
        grid.SetCurrent(Grid::FixedRows(), grid.CurrentCol());
        lines_.DeleteRowForGrid(grid);
    }
}

}  // namespace tw
