// The history of one document, without any limit of depth: the edits that can be undone, and behind them
// those that have been undone and can be redone.
#pragma once

#include <cstddef>
#include <deque>
#include <string_view>
#include <vector>

#include "document/EditTracker.h"

namespace tw {

class UndoStack {
  public:
    // Stores an edit behind the present position; what could be redone is gone. Typing in one box forms one
    // edit: it joins the last one, and both go when the box holds again what it began with. Gives the stored
    // edit, nullptr when none was stored. The pointer stays valid until the edit leaves the stack.
    EditTracker* AddToStack(EditTracker edit);

    bool CanUndo() const { return position_ > 0; }
    bool CanRedo() const { return position_ < records_.size(); }
    // The names of the next edits, empty when there is none.
    std::string_view UndoType() const {
        return CanUndo() ? records_[position_ - 1].ChangeTypeName() : std::string_view();
    }
    std::string_view RedoType() const {
        return CanRedo() ? records_[position_].ChangeTypeName() : std::string_view();
    }

    // Moves the position and gives the edit that is to be undone or redone; nullptr when there is none.
    const EditTracker* StepBack() { return CanUndo() ? &records_[--position_] : nullptr; }
    const EditTracker* StepForward() { return CanRedo() ? &records_[position_++] : nullptr; }

    void Clear();
    // Forgets what could be redone.
    void DropRedo();
    // Takes out what could be redone, the next one first, and the same put back behind the present position.
    std::vector<EditTracker> TakeRedo();
    void PutBackRedo(std::vector<EditTracker> edits);
    // Edits held, and how many of them can be undone.
    std::size_t StackTop() const { return records_.size(); }
    std::size_t StackPosition() const { return position_; }

  private:
    bool JoinsLast(const EditTracker& edit) const;

    std::deque<EditTracker> records_;
    std::size_t position_ = 0;
};

}  // namespace tw
