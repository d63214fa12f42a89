#include "document/PitchedYeast.h"

#include "document/RowFiller.h"

namespace tw {

std::string PitchedYeast::Name() const {
    const Grid& log = recipe_.record.gridLog;
    const std::optional<int> row = PitchingRow(log);
    return row ? std::string(PitchedYeastName(log.Text(*row, LogCol::Notes))) : std::string();
}

void PitchedYeast::Choose(std::string_view yeast) {
    Grid& log = recipe_.record.gridLog;
    OneStep step(recipe_, ChangeType::Selection);
    std::optional<int> row = PitchingRow(log);
    if (!row) {
        lines_.AppendRow(log);
        row = log.EndOfData() - 1;
        cells_.EditCell(log, *row, LogCol::Action, kPitchedYeast, Asking::Quietly);
    }
    // An unchanged text would not be looked up, and the recipe may have had no original gravity before.
    if (log.Text(*row, LogCol::Notes) == yeast)
        cells_.EditCell(log, *row, LogCol::Notes, "", Asking::Quietly);
    cells_.EditCell(log, *row, LogCol::Notes, yeast, Asking::Quietly);
    step.Keep();
}

}  // namespace tw
