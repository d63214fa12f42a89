#include "document/UndoStack.h"

#include <iterator>
#include <utility>

namespace tw {

bool UndoStack::JoinsLast(const EditTracker& edit) const {
    if (position_ == 0 || position_ != records_.size()) return false;
    const EditTracker& last = records_.back();
    const auto isTyping = [](const EditTracker& e) {
        return e.ControlType() == ControlType::TextBox && e.ChangeType() == ChangeType::Typing;
    };
    return isTyping(last) && isTyping(edit) && last.GetControlID() == edit.GetControlID();
}

EditTracker* UndoStack::AddToStack(EditTracker edit) {
    if (JoinsLast(edit)) {
        EditTracker& last = records_.back();
        if (last.OldValue().AsText() == edit.NewValue().AsText()) {
            records_.pop_back();
            --position_;
            return nullptr;
        }
        edit.Absorb(last);
        last = std::move(edit);
        return &last;
    }
    DropRedo();
    records_.push_back(std::move(edit));
    position_ = records_.size();
    return &records_.back();
}

void UndoStack::DropRedo() {
    while (records_.size() > position_) records_.pop_back();
}

std::vector<EditTracker> UndoStack::TakeRedo() {
    const auto begin = records_.begin() + static_cast<std::ptrdiff_t>(position_);
    std::vector<EditTracker> edits(std::make_move_iterator(begin), std::make_move_iterator(records_.end()));
    DropRedo();
    return edits;
}

void UndoStack::PutBackRedo(std::vector<EditTracker> edits) {
    DropRedo();
    for (EditTracker& edit : edits) records_.push_back(std::move(edit));
}

void UndoStack::Clear() {
    records_.clear();
    position_ = 0;
}

}  // namespace tw
