// Undo and redo of one recipe: recording what a change of a row or a box was, and applying it backward and
// forward.
#include <algorithm>
#include <vector>

#include "calc/FieldRules.h"
#include "document/RecipeDocument.h"
#include "values/Text.h"

namespace tw {
namespace {

// The number behind a cell, nothing when there is none.
EditValue NumberOf(const Cell& cell) {
    return cell.value.kind == CellValue::Kind::None ? EditValue() : EditValue::OfNumber(cell.value.number);
}

}  // namespace

void RecipeDocument::RefreshUndoCommands() {
    if (!IsActive()) return;
    const UndoStack& stack = recorder_.Stack();
    host_.Commands().EnableUndo(stack.CanUndo(), stack.UndoType());
    host_.Commands().EnableRedo(stack.CanRedo(), stack.RedoType());
}

// The selection before is what the new text has replaced; behind the edit the caret stands after it.
void RecipeDocument::RecordText(TextBox& box, std::string_view newText, ChangeType type) {
    const TextSpan span = ChangedSpan(box.Text(), newText);
    EditRecorder::Edit edit{ControlType::TextBox, type};
    edit.selection.oldStart = span.start;
    edit.selection.oldLength = span.oldLength;
    edit.selection.newStart = span.start + span.newLength;
    // Only a text that is committed, or goes back to it, has a number.
    const auto valueOf = [&](std::string_view text) {
        return text == box.Committed() ? ValueOf(box, text, box.Value()) : EditValue::OfText(text);
    };
    recorder_.RecordEdit(box.Name(), valueOf(box.Text()), valueOf(newText), edit);
}

// What a box holds with its text committed. A number that the text does not tell goes along: the gravity that
// a yeast gives, or that of a recipe stored elsewhere.
EditValue RecipeDocument::ValueOf(const TextBox& box, std::string_view text, double number) {
    return NumberTold(box, text, number) == number ? EditValue::OfText(text)
                                                   : EditValue::OfTextAndNumber(text, CellValue::Of(number));
}

// The number that a box's text tells; the other one for a text that tells none.
double RecipeDocument::NumberTold(const TextBox& box, std::string_view text, double otherwise) {
    if (RuleOf(box).takes == FieldTakes::FreeText) return otherwise;
    try {
        return ReadField(box, text).ValueOr(otherwise);
    } catch (const Error&) {
        return otherwise;
    }
}

// What a cell holds. A number that its text does not tell goes along: that of a recipe stored elsewhere, or
// of a time typed before its hops were dry.
EditValue RecipeDocument::ValueOf(const Grid& grid, int row, int col, const Cell& cell) {
    if (cell.check != CheckState::None) return EditValue::OfBoolean(cell.check == CheckState::Checked);
    const bool tells = NumberTold(grid, row, col, cell.text) == cell.value;
    return tells ? EditValue::OfText(cell.text) : EditValue::OfTextAndNumber(cell.text, cell.value);
}

// The number that a cell's text tells; nothing for a text that is not valid there.
CellValue RecipeDocument::NumberTold(const Grid& grid, int row, int col, std::string_view text) const {
    return ReadQuietly(grid, row, col, text).value_or(CellValue{});
}

// The cell in which the change began is the head; every other cell that changed with it hangs behind.
void RecipeDocument::RecordRowChange(Grid& grid, int row, int col, const std::vector<Cell>& before) {
    if (!recorder_.Tracking()) return;
    const auto old = [&](int c) -> const Cell& { return before[static_cast<std::size_t>(c)]; };
    const auto record = [&](int c) {
        return recorder_.RecordGridCell(grid, row, c, ValueOf(grid, row, c, old(c)),
                                        ValueOf(grid, row, c, grid.At(row, c)));
    };
    EditTracker* const head = record(col);
    const CompoundEdit compound(recorder_, head);
    for (int c = 0; c < grid.Cols(); ++c) {
        if (c == col) continue;
        if (!grid.ColumnAt(c).readOnly) record(c);
        // The salt's factors stand behind its ion cells, whose texts are computed.
        else if (grid.Id() == GridId::Treatment)
            recorder_.RecordGridCell(grid, row, c, NumberOf(old(c)), NumberOf(grid.At(row, c)));
    }
    if (!gravityChange_) return;
    const TextBox& fg = record_.txtFG;
    recorder_.RecordEdit(fg.Name(), ValueOf(fg, gravityChange_->oldText, gravityChange_->oldValue),
                         ValueOf(fg, fg.Text(), fg.Value()), {ControlType::TextBox, ChangeType::Typing});
    gravityChange_.reset();
}

// A stored recipe may have factors without the name of a salt, so that clearing the name does not bring them
// along.
void RecipeDocument::ClearFactors(int row) {
    Grid& treatment = record_.gridTreatment;
    for (int col = TreatmentCol::FirstIon; col < treatment.Cols(); ++col) {
        recorder_.RecordGridCell(treatment, row, col, NumberOf(treatment.At(row, col)), EditValue());
        treatment.SetValue(row, col, {});
    }
}

void RecipeDocument::AsOneStep(ChangeType type, const std::function<void()>& changes) {
    if (!recorder_.Tracking() || recorder_.InCompound()) return changes();
    const bool changedBefore = changed_;
    UndoStack& stack = recorder_.Stack();
    std::vector<EditTracker> redo = stack.TakeRedo();
    const std::size_t before = stack.StackPosition();
    try {
        const CompoundEdit compound(recorder_, type);
        changes();
    } catch (const Error&) {
        if (stack.StackPosition() > before) Quietly([&] { return ApplyStep(stack.StepBack(), true); });
        stack.DropRedo();
        recorder_.PutBackRedo(std::move(redo));
        RefreshUndoCommands();
        if (!changedBefore) ClearChanged();
        throw;
    }
    // Without an edit there is no step, and nothing is lost.
    if (stack.StackPosition() == before) recorder_.PutBackRedo(std::move(redo));
}

// What is being typed in a text box is the next step back itself: committing it first would only ask about an
// entry that the brewer is just taking back.
bool RecipeDocument::FlushBeforeStep() {
    return focusBox_ || FlushEdits();
}

bool RecipeDocument::Undo() {
    if (!FlushBeforeStep()) return false;
    return ApplyStep(recorder_.Stack().StepBack(), true);
}

bool RecipeDocument::Redo() {
    if (!FlushBeforeStep()) return false;
    return ApplyStep(recorder_.Stack().StepForward(), false);
}

bool RecipeDocument::ApplyStep(const EditTracker* head, bool undo) {
    if (!head) return false;
    std::vector<const EditTracker*> chain;
    for (const EditTracker* edit = head; edit; edit = edit->GetNext()) chain.push_back(edit);
    // A compound is undone in the exact reverse order of its making, the head last.
    if (undo) std::reverse(chain.begin(), chain.end());
    recorder_.SetTracking(false);
    const auto finish = [this] {
        recorder_.SetTracking(true);
        RefreshUndoCommands();
    };
    try {
        const RedrawHold hold(view_);
        WantTab(head->TabNumber());
        for (const EditTracker* edit : chain) ApplyEdit(*edit, undo);
    } catch (...) {
        finish();
        throw;
    }
    finish();
    return true;
}

void RecipeDocument::WantTab(int tab) {
    if (tab < 0 || tab == static_cast<int>(tab_)) return;
    SetTab(static_cast<Tab>(tab));
    if (view_) view_->TabWanted(tab_);
}

void RecipeDocument::ApplyEdit(const EditTracker& edit, bool undo) {
    const EditValue& value = undo ? edit.OldValue() : edit.NewValue();
    const std::string name = edit.GetControlID();
    if (view_ && edit.ControlType() != ControlType::None)
        view_->ControlWanted(edit.ControlType() == ControlType::OptionGroup ? std::string(value.AsText())
                                                                            : name);
    switch (edit.ControlType()) {
        case ControlType::TextBox:
            if (TextBox* const box = record_.FindTextBox(name)) ApplyToTextBox(*box, edit, undo);
            break;
        case ControlType::ComboBox:
            ApplyToStyle(static_cast<std::int64_t>(value.AsNumber()));
            break;
        case ControlType::OptionGroup:
            ChooseOption(value.AsText());
            break;
        case ControlType::Grid:
            if (Grid* const grid = record_.FindGrid(name)) ApplyToGrid(*grid, edit, undo);
            break;
        case ControlType::CheckBox:
        case ControlType::None:
            break;
    }
}

// The water that came with the style has records of its own.
void RecipeDocument::ApplyToStyle(std::int64_t id) {
    const std::int64_t before = styleId_;
    SetStyleID(id);
    if (styleId_ != before) MarkChanged();
}

void RecipeDocument::ApplyToTextBox(TextBox& box, const EditTracker& edit, bool undo) {
    const EditValue& value = undo ? edit.OldValue() : edit.NewValue();
    FocusOn(box);
    SetText(box, value.AsText());
    const bool committed = box.Text() == box.Committed();
    const CellValue* const own = value.OwnNumber();
    if (own || committed) {
        // There is nothing to commit, but another number may have stood behind the same text.
        const double number = own ? own->number : NumberTold(box, box.Text(), box.Value());
        const bool differs = !committed || number != box.Value();
        box.SetCommitted(box.Text());
        box.SetValue(number);
        if (differs) {
            MarkChanged();
            Quietly([&] { return static_cast<bool>(RunFieldChain(box)); });
        }
    } else if (!Quietly([&] { return CommitField(box, Asking::Quietly); })) {
        // A text that was refused when it was typed comes back as it was: shown, not committed.
        SetText(box, value.AsText());
    }
    const EditSelection& s = edit.GetSelection();
    box.Select(undo ? TextSelection{s.oldStart, s.oldLength} : TextSelection{s.newStart, s.newLength});
}

void RecipeDocument::ApplyToGrid(Grid& grid, const EditTracker& edit, bool undo) {
    const EditValue& value = undo ? edit.OldValue() : edit.NewValue();
    FocusOn(grid);
    switch (edit.ChangeType()) {
        case ChangeType::InsertRow:
            ApplyRowInsert(grid, edit, value.AsBoolean());
            break;
        case ChangeType::DeleteRow:
            ApplyRowDelete(grid, edit.Row(), value.AsBoolean());
            break;
        case ChangeType::Sort:
            OrderGrid(grid, value.AsOrder(), edit.Col());
            MarkChanged();
            break;
        default: {
            ApplyToCell(grid, edit.Row(), edit.Col(), value);
            const EditSelection& s = edit.GetSelection();
            SelectCells(grid,
                        {s.newStart, s.oldStart, s.newStart + s.newLength - 1, s.oldStart + s.oldLength - 1});
            break;
        }
    }
}

void RecipeDocument::ApplyToCell(Grid& grid, int row, int col, const EditValue& value) {
    if (!grid.HasCell(row, col)) return;
    const Cell before = grid.At(row, col);
    if (grid.IsCheckBox(row, col)) {
        grid.SetChecked(row, col, value.AsBoolean());
        if (grid.Id() == GridId::Hops && col == HopCol::DryHopped && !value.AsBoolean())
            ReadTimeAgain(grid, row);
    } else if (!value.IsText()) {
        grid.SetValue(row, col, value.IsNumber() ? CellValue::Of(value.AsNumber()) : CellValue{});
    } else {
        const CellValue* const number = value.OwnNumber();
        grid.SetValue(row, col, number ? *number : NumberTold(grid, row, col, value.AsText()));
        grid.SetText(row, col, value.AsText());
    }
    if (grid.At(row, col) != before) MarkChanged();
    // Without look-ups: what they filled in has records of its own.
    RecalculateGrid(grid, row);
}

void RecipeDocument::ApplyRowInsert(Grid& grid, const EditTracker& edit, bool insert) {
    const bool appended = edit.Col() != 0;
    if (insert) {
        const int row =
            appended ? grid.EndOfData() : std::clamp(edit.Row(), Grid::FixedRows(), grid.EndOfData());
        AddBlankRow(grid, row);
        grid.SetCurrent(row, grid.CurrentCol());
        MarkChanged();
        RefreshRowCommands();
        return;
    }
    const int last = grid.EndOfData() - 1;
    // In an empty grid the first row came without a current one.
    const int row =
        appended ? last : std::clamp(edit.Row(), Grid::FixedRows(), std::max(Grid::FixedRows(), last));
    if (grid.IsDataRow(row)) RemoveRow(grid, row);
}

void RecipeDocument::ApplyRowDelete(Grid& grid, int row, bool remove) {
    if (remove) {
        if (grid.IsDataRow(row)) RemoveRow(grid, row);
        return;
    }
    // An empty row without any default; the records behind fill it as it was.
    const int at = std::clamp(row, Grid::FixedRows(), grid.EndOfData());
    grid.InsertRow(at);
    grid.SetCurrent(at, grid.CurrentCol());
    MarkChanged();
    RefreshRowCommands();
}

}  // namespace tw
