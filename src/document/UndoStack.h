// The history of one document, of unlimited depth: the edits that can be undone, followed by those that have
// been undone and can be redone.
#pragma once

#include <cstddef>
#include <deque>
#include <string_view>
#include <vector>

#include "document/EditTracker.h"

namespace tw {

class UndoStack {
  public:
    // Stores an edit at the present position; the edits that could be redone are lost. Typing in one box
    // forms one edit: it joins the last one, and both are removed when the box contains again what it
    // contained before them. Returns the stored edit; nullptr if none was stored. The pointer stays valid
    // until the edit is removed.
    EditTracker* AddToStack(EditTracker edit);

    bool CanUndo() const { return position_ > 0; }
    bool CanRedo() const { return position_ < records_.size(); }
    // The name of the edit that would be undone or redone next; empty if there is none.
    std::string_view UndoType() const {
        return CanUndo() ? records_[position_ - 1].ChangeTypeName() : std::string_view();
    }
    std::string_view RedoType() const {
        return CanRedo() ? records_[position_].ChangeTypeName() : std::string_view();
    }

    // Move the position and return the edit that must be undone or redone; nullptr if there is none.
    const EditTracker* StepBack() { return CanUndo() ? &records_[--position_] : nullptr; }
    const EditTracker* StepForward() { return CanRedo() ? &records_[position_++] : nullptr; }

    void Clear();
    // Removes the edits that could be redone.
    void DropRedo();
    // Remove and return the edits that could be redone, the next one first; put such edits back after the
    // present position.
    std::vector<EditTracker> TakeRedo();
    void PutBackRedo(std::vector<EditTracker> edits);
    // The number of edits held, and how many of them can be undone.
    std::size_t StackTop() const { return records_.size(); }
    std::size_t StackPosition() const { return position_; }

  private:
    bool JoinsLast(const EditTracker& edit) const;

    std::deque<EditTracker> records_;
    std::size_t position_ = 0;
};

}  // namespace tw
