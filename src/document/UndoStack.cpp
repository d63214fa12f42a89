#include "document/UndoStack.h"

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
        if (last.OldValue().SameAs(edit.NewValue())) {
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

void UndoStack::Clear() {
    records_.clear();
    position_ = 0;
}

}  // namespace tw
