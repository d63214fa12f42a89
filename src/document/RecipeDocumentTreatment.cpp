// Which salts, and how many grams of each, turn the source water into the target water.
#include <algorithm>

#include "document/RecipeDocument.h"
#include "values/NumberText.h"
#include "water/Treatment.h"

namespace tw {
namespace {

// A salt of the batch below this gets no row.
constexpr double kLeastGrams = 0.001;
constexpr int kGramDecimals = 3;

static_assert(std::tuple_size_v<IonNumbers> == kIons);

struct SaltDose {
    std::string name;
    double grams;  // for the batch
};

struct SaltTable {
    std::vector<std::string> names;
    std::vector<IonNumbers> salts;
};

// In the table's own order, which is that of the variables.
SaltTable ReadSalts(Database& database) {
    SaltTable table;
    for (Recordset rows = database.OpenRecordset("SELECT NAME, CA, CO3, CL, MG, NA, SO4 FROM SALTS");
         !rows.AtEnd(); rows.MoveNext()) {
        table.names.push_back(rows.Fields(0).Text());
        IonNumbers& salt = table.salts.emplace_back();
        for (int ion = 0; ion < kIons; ++ion)
            salt[static_cast<std::size_t>(ion)] = rows.Fields(ion + 1).Number();
    }
    return table;
}

// Salts can only add.
IonNumbers NeededOf(const Grid& water) {
    IonNumbers needed;
    for (int ion = 0; ion < kIons; ++ion)
        needed[static_cast<std::size_t>(ion)] =
            std::max(water.Number(WaterRow::Needed, WaterCol::FirstIon + ion), 0.0);
    return needed;
}

}  // namespace

void RecipeDocument::CalcTreatment() {
    if (!FlushEdits() || !record_.cmdCalcTreatment.Enabled()) return;
    const SaltTable table = ReadSalts(database_);
    if (table.names.empty()) {
        platform_.messages.ShowMessage(
            "Could not setup Linear Program",
            "Not enough data to calculate water treatment.\r\nCheck Salts tab of Database Setup");
        return;
    }
    const auto doses = FindDoses(NeededOf(record_.gridWater), table.salts, host_.LPMaxIter());
    if (!doses) {
        platform_.messages.ShowMessage("Could not solve Linear Program",
                                       "Water Treatment Calculation failed");
        return;
    }
    std::vector<SaltDose> wanted;
    for (std::size_t salt = 0; salt < doses->size(); ++salt) {
        const double grams = Finite((*doses)[salt] * record_.txtTotalVol.Value());
        if (grams >= kLeastGrams) wanted.push_back({table.names[salt], grams});
    }
    const RedrawHold hold(view_);
    AsOneStep(ChangeType::Calculation, [&] {
        ClearTreatment();
        Grid& grid = record_.gridTreatment;
        for (std::size_t i = 0; i < wanted.size(); ++i) InsertRowForGrid(grid);
        int row = Grid::FixedRows();
        for (SaltDose& dose : wanted) {
            EditCell(grid, row, TreatmentCol::Name, dose.name, Asking::Quietly);
            EditCell(grid, row, TreatmentCol::Amount, FormatQuantity(dose.grams, kGramDecimals) + " grams",
                     Asking::Quietly);
            ++row;
        }
    });
    record_.gridTreatment.NotifyFilled();
    RefreshRowCommands();
}

void RecipeDocument::ClearTreatment() {
    Grid& grid = record_.gridTreatment;
    while (grid.DataRows() > 0) {
        grid.SetCurrent(Grid::FixedRows(), grid.CurrentCol());
        DeleteRowForGrid(grid);
    }
}

}  // namespace tw
