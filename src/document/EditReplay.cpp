#include "document/EditReplay.h"

#include <algorithm>
#include <string>
#include <vector>

namespace tw {
namespace {

// Turns recording off for the duration of a scope, then updates the undo and redo commands.
class TrackingPause {
  public:
    explicit TrackingPause(OpenRecipe& recipe) : recipe_(recipe) { recipe.recorder.SetTracking(false); }
    ~TrackingPause() {
        recipe_.recorder.SetTracking(true);
        recipe_.RefreshUndoCommands();
    }
    TrackingPause(const TrackingPause&) = delete;
    TrackingPause& operator=(const TrackingPause&) = delete;

  private:
    OpenRecipe& recipe_;
};

}  // namespace

// Typing in a text box is itself the next step back. Committing it first would just complain about an entry
// that the brewer is taking back.
bool EditReplay::FlushBeforeStep() {
    return parts_.focus.Box() || parts_.focus.FlushEdits();
}

bool EditReplay::Undo() {
    if (!FlushBeforeStep()) return false;
    parts_.lines.WithdrawRow();
    return Apply(recipe_.recorder.Stack().StepBack(), true);
}

bool EditReplay::Redo() {
    if (!FlushBeforeStep()) return false;
    parts_.lines.WithdrawRow();
    return Apply(recipe_.recorder.Stack().StepForward(), false);
}

void EditReplay::TakeBack(const EditTracker& step) {
    try {
        Apply(&step, true);
    } catch (const Error&) {
        // The step is being taken back because of an earlier fault, which its caller reports.
    }
}

bool EditReplay::Apply(const EditTracker* head, bool undo) {
    if (!head) return false;
    std::vector<const EditTracker*> chain;
    for (const EditTracker* edit = head; edit; edit = edit->GetNext()) chain.push_back(edit);
    // A compound is undone in exactly the reverse order in which it was recorded, the head last.
    if (undo) std::reverse(chain.begin(), chain.end());
    const TrackingPause pause(recipe_);
    const RedrawHold hold(recipe_.view);
    WantTab(head->TabNumber());
    if (IsScaling(head->ChangeType())) {
        parts_.scaling.PutBack(*head, undo);
        return true;
    }
    for (const EditTracker* edit : chain) ApplyEdit(*edit, undo);
    return true;
}

void EditReplay::WantTab(int tab) {
    if (tab < 0 || tab == static_cast<int>(parts_.focus.CurrentTab())) return;
    parts_.focus.SetTab(static_cast<Tab>(tab));
    if (recipe_.view) recipe_.view->TabWanted(static_cast<Tab>(tab));
}

void EditReplay::ApplyEdit(const EditTracker& edit, bool undo) {
    const EditValue& value = undo ? edit.OldValue() : edit.NewValue();
    const std::string name = edit.GetControlID();
    if (recipe_.view && edit.ControlType() != ControlType::None)
        recipe_.view->ControlWanted(
            edit.ControlType() == ControlType::OptionGroup ? std::string(value.AsText()) : name);
    switch (edit.ControlType()) {
        case ControlType::TextBox:
            if (TextBox* const box = recipe_.record.FindTextBox(name)) ApplyToTextBox(*box, edit, undo);
            break;
        case ControlType::ComboBox:
            parts_.style.PutBack(static_cast<std::int64_t>(value.AsNumber()));
            break;
        case ControlType::OptionGroup:
            parts_.options.Choose(value.AsText());
            break;
        case ControlType::Grid:
            if (Grid* const grid = recipe_.record.FindGrid(name)) ApplyToGrid(*grid, edit, undo);
            break;
        case ControlType::CheckBox:
        case ControlType::None:
            break;
    }
}

void EditReplay::ApplyToTextBox(TextBox& box, const EditTracker& edit, bool undo) {
    parts_.focus.FocusOn(box);
    parts_.fields.PutBack(box, undo ? edit.OldValue() : edit.NewValue());
    const EditSelection& s = edit.GetSelection();
    box.Select(undo ? TextSelection{s.oldStart, s.oldLength} : TextSelection{s.newStart, s.newLength});
}

void EditReplay::ApplyToGrid(Grid& grid, const EditTracker& edit, bool undo) {
    const EditValue& value = undo ? edit.OldValue() : edit.NewValue();
    parts_.focus.FocusOn(grid);
    switch (edit.ChangeType()) {
        case ChangeType::InsertRow:
            parts_.lines.PutBackInsert(grid, edit, value.AsBoolean());
            break;
        case ChangeType::DeleteRow:
            parts_.lines.PutBackDelete(grid, edit.Row(), value.AsBoolean());
            break;
        case ChangeType::Sort:
            parts_.lines.PutBackOrder(grid, value.AsOrder(), edit.Col());
            break;
        default: {
            parts_.cells.PutBack(grid, edit.Row(), edit.Col(), value);
            const EditSelection& s = edit.GetSelection();
            parts_.focus.SelectCells(
                grid, {s.newStart, s.oldStart, s.newStart + s.newLength - 1, s.oldStart + s.oldLength - 1});
            break;
        }
    }
}

}  // namespace tw
