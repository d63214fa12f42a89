// A second, independent model of the history, written from its rules alone: the name of each step, the tab on
// which it was made, when typing is merged into the previous step or removes it, and the state of the
// document at each point.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "DocumentState.h"

namespace tw::test {

class PlainHistory {
  public:
    struct Step {
        std::string name;
        int tab = 0;
        std::string typedIn = {};  // the box of a typing step; empty for any other step
        std::string oldText = {};  // the text of that box before the first key
        std::string grid = {};     // the grid whose selection the step restores; empty for none
        GridRange selection = {};
    };
    struct Point {
        DocumentState state;
        // True if a box has an uncommitted entry. Returning to the point commits the entry if it is valid, so
        // the figures differ from those at the time.
        bool open = false;
    };

    // Starts an empty history at that state.
    void Start(DocumentState state);

    // Records a step and discards the steps that could be redone.
    void Add(Step step);
    // Called after a key was released in a box. Returns true if the box has the text again that it had before
    // its typing began, so that the typing step is removed.
    bool Type(const std::string& box, const std::string& oldText, const std::string& newText, int tab);
    // Sets the state of the document at the current point.
    void SetPoint(Point point) { points_[position_] = std::move(point); }
    const Point& Now() const { return points_[position_]; }

    bool CanUndo() const { return position_ > 0; }
    bool CanRedo() const { return position_ < steps_.size(); }
    // Move the position and return the step between.
    const Step& Undo() { return steps_[--position_]; }
    const Step& Redo() { return steps_[position_++]; }

    std::string UndoType() const { return CanUndo() ? steps_[position_ - 1].name : std::string(); }
    std::string RedoType() const { return CanRedo() ? steps_[position_].name : std::string(); }
    std::size_t Top() const { return steps_.size(); }
    std::size_t Position() const { return position_; }

  private:
    std::vector<Step> steps_;
    std::vector<Point> points_;  // one more than steps
    std::size_t position_ = 0;
};

}  // namespace tw::test
