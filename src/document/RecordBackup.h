// A copy of what a recipe record holds, for going back when a change of many controls fails halfway.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "record/RecipeRecord.h"

namespace tw {

class RecordBackup {
  public:
    // Copies text boxes, cells, buttons and the colour, but not lists, labels and options.
    explicit RecordBackup(const RecipeRecord& record);
    // REQUIRES: no row has been inserted into or removed from a grid since.
    void Restore(RecipeRecord& record) const;
    // True if the text of a box or a cell has changed since. REQUIRES: as Restore.
    bool TextsChanged(const RecipeRecord& record) const;

    struct Box {
        std::string text;
        std::string committed;
        double value;
        bool ownNumber;
    };
    using BoxVisit = std::function<void(const TextBox& now, const Box& before)>;
    using CellVisit = std::function<void(const Grid& grid, int row, int col, const Cell& before)>;
    // Visit, in the order of the record, what the brewer enters: each text box that is not computed, and each
    // cell of the data rows that is not read-only. REQUIRES: as Restore.
    void VisitBoxes(const RecipeRecord& record, const BoxVisit& visit) const;
    void VisitCells(const RecipeRecord& record, const CellVisit& visit) const;

  private:
    std::vector<Box> boxes_;
    std::vector<std::vector<Cell>> rows_;  // of all grids, one after the other
    std::vector<bool> buttons_;
    Rgb swatch_;
};

}  // namespace tw
