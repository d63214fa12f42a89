#include "PlainHistory.h"

namespace tw::test {

void PlainHistory::Start(DocumentState state) {
    steps_.clear();
    points_.assign(1, {std::move(state), false});
    position_ = 0;
}

void PlainHistory::Add(Step step) {
    steps_.resize(position_);
    points_.resize(position_ + 1);
    steps_.push_back(std::move(step));
    points_.emplace_back();
    ++position_;
}

bool PlainHistory::Type(const std::string& box, const std::string& oldText, const std::string& newText,
                        int tab) {
    const bool joins = position_ > 0 && position_ == steps_.size() && steps_.back().typedIn == box;
    if (!joins) {
        Add({"Typing", tab, box, oldText});
        return false;
    }
    if (steps_.back().oldText == newText) {
        steps_.pop_back();
        points_.pop_back();
        --position_;
        return true;
    }
    steps_.back().tab = tab;
    return false;
}

}  // namespace tw::test
