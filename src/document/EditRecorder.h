// Records the edits of one document: adds what a control held before and after to the history, alone or as
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
    // changed is called after each change that this object makes to the history.
    explicit EditRecorder(std::function<void()> changed) : changed_(std::move(changed)) {}

    UndoStack& Stack() { return stack_; }
    const UndoStack& Stack() const { return stack_; }
    void Clear();
    // Puts back edits that could be redone earlier, in place of those that can be redone now. Does nothing if
    // edits is empty.
    void PutBackRedo(std::vector<EditTracker> edits);

    // False while a document is being filled and while an undo or redo runs; nothing is recorded then.
    bool Tracking() const { return trackEdits_; }
    void SetTracking(bool tracking) { trackEdits_ = tracking; }
    // Sets the tab to which the next edits belong.
    void SetTab(int tab) { tab_ = tab; }

    // Describes an edit without its values.
    struct Edit {
        ControlType controlType = ControlType::None;
        ChangeType changeType = ChangeType::Typing;
        EditSelection selection = {};
        int row = 0;
        int col = 0;
    };
    // Records an edit and returns the record. nullptr if there is none: tracking is off, both values are the
    // same, or the edit took back the typing recorded last. Within a compound the edit is chained to the
    // head. controlName must outlive the record.
    EditTracker* RecordEdit(const std::string& controlName, EditValue oldValue, EditValue newValue,
                            const Edit& edit);
    // Opens a compound with the name of type and returns true. Does nothing and returns false if one is open
    // or tracking is off. The head is recorded with the first edit, so that a compound without edits is not a
    // step and keeps what can be redone.
    bool BeginCompoundEdit(ChangeType type);
    // Opens a compound whose head is head, the record added last, and returns true. Does nothing and returns
    // false if a compound is open or head is nullptr.
    bool BeginCompoundBehind(EditTracker* head);
    // REQUIRES: the matching Begin returned true.
    void EndCompoundEdit();
    // Holds an edit back until the next one is recorded, whose step it then begins: what has been prepared
    // for an edit is a step only if the edit comes. REQUIRES: tracking is on. Parameters as those of
    // RecordEdit.
    void Await(const std::string& controlName, EditValue oldValue, EditValue newValue, const Edit& edit);
    bool Awaits() const { return awaited_.has_value(); }
    void ForgetAwaited() { awaited_.reset(); }
    // Records the edit held back, if any.
    void RecordAwaited();
    bool InCompound() const { return compoundHead_ || awaitedHead_; }

    EditTracker* RecordGridCell(const Grid& grid, int row, int col, EditValue oldValue, EditValue newValue);

  private:
    EditTracker MakeRecord(const std::string& controlName, EditValue oldValue, EditValue newValue,
                           const Edit& edit) const;
    EditTracker* Store(EditTracker edit);
    EditTracker* StoreAwaited();
    EditTracker* StoreBehindAwaited(EditTracker edit);
    EditTracker* StoreStep(EditTracker edit);

    std::function<void()> changed_;
    UndoStack stack_;
    std::optional<ChangeType> awaitedHead_;  // the type of an open compound that has no edit yet
    std::optional<EditTracker> awaited_;
    EditTracker* compoundHead_ = nullptr;
    EditTracker* compoundTail_ = nullptr;
    int tab_ = 0;
    bool trackEdits_ = true;
};

// Opens a compound for the duration of a scope.
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
