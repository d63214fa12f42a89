#include "document/EditRecorder.h"

#include <utility>

namespace tw {

void EditRecorder::Clear() {
    stack_.Clear();
    EndCompoundEdit();
    changed_();
}

void EditRecorder::PutBackRedo(std::vector<EditTracker> edits) {
    if (edits.empty()) return;
    stack_.PutBackRedo(std::move(edits));
    changed_();
}

EditTracker* EditRecorder::Store(EditTracker edit) {
    if (awaitedHead_) {
        EditTracker head;
        head.SetChangeType(*std::exchange(awaitedHead_, std::nullopt));
        BeginCompoundBehind(StoreStep(std::move(head)));
    }
    if (!compoundHead_) return StoreStep(std::move(edit));
    edit.SetTabNumber(-1);
    compoundTail_ = compoundTail_->AddNext(std::move(edit));
    return compoundTail_;
}

EditTracker* EditRecorder::StoreStep(EditTracker edit) {
    edit.SetTabNumber(tab_);
    EditTracker* const stored = stack_.AddToStack(std::move(edit));
    changed_();
    return stored;
}

EditTracker* EditRecorder::RecordEdit(const std::string& controlName, EditValue oldValue, EditValue newValue,
                                      const Edit& edit) {
    if (!trackEdits_ || oldValue.SameAs(newValue)) return nullptr;
    EditTracker record;
    record.SetControlID(controlName, -1);
    record.SetControlType(edit.controlType);
    record.SetChangeType(edit.changeType);
    record.SetSelection(edit.selection);
    record.SetLocation(edit.row, edit.col);
    record.SetValues(std::move(oldValue), std::move(newValue));
    return Store(std::move(record));
}

bool EditRecorder::BeginCompoundEdit(ChangeType type) {
    if (!trackEdits_ || InCompound()) return false;
    awaitedHead_ = type;
    return true;
}

bool EditRecorder::BeginCompoundBehind(EditTracker* head) {
    if (!head || InCompound()) return false;
    compoundHead_ = compoundTail_ = head;
    return true;
}

void EditRecorder::EndCompoundEdit() {
    awaitedHead_.reset();
    compoundHead_ = compoundTail_ = nullptr;
}

EditTracker* EditRecorder::RecordGridCell(const Grid& grid, int row, int col, EditValue oldValue,
                                          EditValue newValue) {
    const GridRange selection = grid.Selection();
    Edit edit{ControlType::Grid, ChangeType::Typing, {}, row, col};
    edit.selection = {selection.row1, selection.col1, selection.Rows(), selection.Cols()};
    return RecordEdit(grid.Name(), std::move(oldValue), std::move(newValue), edit);
}

}  // namespace tw
