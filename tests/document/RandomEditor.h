// A brewer who does anything at random with a recipe, and keeps the books of what the history must be after
// each of the edits.
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
    // One edit, good or bad, or a change of what is selected. Checks the history after it.
    void EditOnce();
    // Some steps back and forth, checking the whole document at each point.
    void Walk();
    void UndoAll();
    void RedoAll();
    void SaveAndStartAgain();
    // What was done last, the newest last.
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

    // True when the change ended with a fault of its arithmetic.
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
    // Leaves the text box that is being edited, as entering another control does. False when a fault of its
    // chain kept it.
    bool Leave(const std::function<void()>& enter);
    bool Enter(Grid& grid) {
        return Leave([&] { document->Focus().FocusOn(grid); });
    }
    void Recorded(PlainHistory::Step step);
    // A command that changes nothing is no step.
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
    void MoveAbout();
    std::string Block(const Grid& grid, int col, int rows, int cols);

    std::mt19937 random_;
    PlainHistory history_;
    std::deque<std::string> trace_;
};

}  // namespace tw::test
