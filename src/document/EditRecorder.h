// Records the edits of one document: what a control held before and after goes to the history, alone or as
// part of a compound that is undone in one step.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "document/EditTracker.h"
#include "document/UndoStack.h"
#include "record/Grid.h"

namespace tw {

class EditRecorder {
  public:
    // changed is called after the history has changed.
    explicit EditRecorder(std::function<void()> changed) : changed_(std::move(changed)) {}

    UndoStack& Stack() { return stack_; }
    const UndoStack& Stack() const { return stack_; }
    void Clear();
    // Puts back what could be redone, if anything; what can be redone now is forgotten then.
    void PutBackRedo(std::vector<EditTracker> edits);

    // Off while a document is filled and while an undo or redo runs: nothing is recorded then.
    bool Tracking() const { return trackEdits_; }
    void SetTracking(bool tracking) { trackEdits_ = tracking; }
    // The tab that the next edits belong to.
    void SetTab(int tab) { tab_ = tab; }

    // What an edit is, apart from its values.
    struct Edit {
        ControlType controlType = ControlType::None;
        ChangeType changeType = ChangeType::Typing;
        EditSelection selection = {};
        int row = 0;
        int col = 0;
    };
    // The new record, or nullptr when nothing was recorded: tracking is off, or both values are the same.
    // controlName must stay where it is. Inside a compound the edit hangs behind its head.
    EditTracker* RecordEdit(const std::string& controlName, EditValue oldValue, EditValue newValue,
                            const Edit& edit);
    // Opens a compound whose name is that of the type, unless one is open; true when this call opened it. Its
    // head comes with its first edit, so that a compound without edits is no step and leaves what can be
    // redone.
    bool BeginCompoundEdit(ChangeType type);
    // A record that has just been made becomes the head of a compound, unless one is open; true when it did.
    bool BeginCompoundBehind(EditTracker* head);
    // REQUIRES: the matching Begin gave true.
    void EndCompoundEdit();
    bool InCompound() const { return compoundHead_ || awaitedHead_; }

    EditTracker* RecordGridCell(const Grid& grid, int row, int col, EditValue oldValue, EditValue newValue);

  private:
    EditTracker* Store(EditTracker edit);
    EditTracker* StoreStep(EditTracker edit);

    std::function<void()> changed_;
    UndoStack stack_;
    std::optional<ChangeType> awaitedHead_;  // of an open compound without an edit yet
    EditTracker* compoundHead_ = nullptr;
    EditTracker* compoundTail_ = nullptr;
    int tab_ = 0;
    bool trackEdits_ = true;
};

// A compound for the time of a scope.
class CompoundEdit {
  public:
    CompoundEdit(EditRecorder& recorder, ChangeType type)
        : recorder_(recorder), opened_(recorder.BeginCompoundEdit(type)) {}
    CompoundEdit(EditRecorder& recorder, EditTracker* head)
        : recorder_(recorder), opened_(recorder.BeginCompoundBehind(head)) {}
    ~CompoundEdit() {
        if (opened_) recorder_.EndCompoundEdit();
    }
    CompoundEdit(const CompoundEdit&) = delete;
    CompoundEdit& operator=(const CompoundEdit&) = delete;

  private:
    EditRecorder& recorder_;
    bool opened_;
};

}  // namespace tw
