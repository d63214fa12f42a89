// Makes random edits of a recipe and keeps the history that is expected after each of them.
#pragma once

#include <deque>
#include <random>
#include <string>
#include <vector>

#include "DocumentTest.h"
#include "PlainHistory.h"

namespace tw::test {

class RandomEditor : public DocumentTest {
  protected:
    using Texts = std::vector<std::string>;

    void StartWith(unsigned seed, bool fullRecipe);
    // Makes one valid or invalid edit, or changes the selection; then checks the history.
    void EditOnce();
    // Makes some undo and redo steps and checks the whole document at each point.
    void Walk();
    void UndoAll();
    void RedoAll();
    void SaveAndStartAgain();
    // Returns the last actions, the newest last.
    std::string Trace() const;

  private:
    int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }
    bool Chance(int percent) { return Below(100) < percent; }
    const std::string& Any(const Texts& texts) {
        return texts[static_cast<std::size_t>(Below(static_cast<int>(texts.size())))];
    }
    Grid& AnyGrid() {
        return *R().Grids()[static_cast<std::size_t>(Below(static_cast<int>(R().Grids().size())))];
    }
    const std::string& TextFor(const Grid& grid, int col);
    void Note(const std::string& what);
    int TabNow() const { return static_cast<int>(document->Focus().CurrentTab()); }

    // Returns true if the change ended with an arithmetic error.
    template <class Change>
    bool Faults(Change change) {
        try {
            change();
            return false;
        } catch (const Error&) {
            Note("   fault");
            return true;
        }
    }
    // Leaves the text box being edited, as entering another control does. Returns false if an
    // arithmetic error prevented it.
    bool Leave(const std::function<void()>& enter);
    bool Enter(Grid& grid) {
        return Leave([&] { document->Focus().FocusOn(grid); });
    }
    void Recorded(PlainHistory::Step step);
    // Records a step only if the command has changed something.
    void RecordedIfChanged(const DocumentState& before, PlainHistory::Step step);
    void Settle();
    void CheckHistory();
    void CheckPoint(const std::string& what);
    void CheckSelection(const PlainHistory::Step& step);
    void UndoOnce();
    void RedoOnce();
    template <class Edit>
    void Compound(const std::string& name, Edit edit);

    void TypeInBox();
    void TypeKeys(TextBox& box, const std::string& text);
    void Key(TextBox& box, const std::string& text);
    void Escape(TextBox& box);
    void CutOrPasteInBox();
    void EditCell();
    void CheckCell();
    void ChooseOptionOrStyle();
    void ChangeRows();
    void SortRows();
    void ClearOrCutCells();
    void PasteCells();
    void PickFromCatalogue();
    void PickDate();
    // Scales the recipe. REQUIRES: the host lets scaling be undone.
    void Scale();
    void MoveAbout();
    std::string Block(const Grid& grid, int col, int rows, int cols);

    std::mt19937 random_;
    PlainHistory history_;
    std::deque<std::string> trace_;
};

}  // namespace tw::test
