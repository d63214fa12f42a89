#include "document/EditRecorder.h"

#include <utility>

namespace tw {

void EditRecorder::Clear() {
    stack_.Clear();
    ForgetAwaited();
    EndCompoundEdit();
    changed_();
}

void EditRecorder::PutBackRedo(std::vector<EditTracker> edits) {
    if (edits.empty()) return;
    stack_.PutBackRedo(std::move(edits));
    changed_();
}

EditTracker* EditRecorder::Store(EditTracker edit) {
    if (awaited_) return StoreBehindAwaited(std::move(edit));
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

EditTracker* EditRecorder::StoreAwaited() {
    EditTracker awaited = std::move(*awaited_);
    awaited_.reset();
    return Store(std::move(awaited));
}

void EditRecorder::RecordAwaited() {
    if (awaited_) StoreAwaited();
}

EditTracker* EditRecorder::StoreBehindAwaited(EditTracker edit) {
    EditTracker* const first = StoreAwaited();
    const CompoundEdit step(*this, first);
    return Store(std::move(edit));
}

void EditRecorder::Await(const std::string& controlName, EditValue oldValue, EditValue newValue,
                         const Edit& edit) {
    awaited_ = MakeRecord(controlName, std::move(oldValue), std::move(newValue), edit);
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
    return Store(MakeRecord(controlName, std::move(oldValue), std::move(newValue), edit));
}

EditTracker EditRecorder::MakeRecord(const std::string& controlName, EditValue oldValue, EditValue newValue,
                                     const Edit& edit) const {
    EditTracker record;
    record.SetControlID(controlName, -1);
    record.SetControlType(edit.controlType);
    record.SetChangeType(edit.changeType);
    record.SetSelection(edit.selection);
    record.SetLocation(edit.row, edit.col);
    record.SetValues(std::move(oldValue), std::move(newValue));
    return record;
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
