// A history told a second time, from its rules alone and without the program's records: what each step is
// called, on which tab it was made, when typing joins the step before or takes it away, and what the document
// was at each point.
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
        std::string typedIn = {};  // the box of a typing step, empty for any other
        std::string oldText = {};  // what that box held before the first key
        std::string grid = {};     // the grid whose selection the step brings back, empty for none
        GridRange selection = {};
    };
    struct Point {
        DocumentState state;
        // An entry that has not been committed stands in its box. Coming back commits it if it can be read,
        // so that the figures are others than they were.
        bool open = false;
    };

    // An empty history at that state.
    void Start(DocumentState state);

    // A step has been recorded; what could be redone is gone.
    void Add(Step step);
    // A key was released in a box. True when the box holds again what it did before its typing began, so that
    // the typing step is gone.
    bool Type(const std::string& box, const std::string& oldText, const std::string& newText, int tab);
    // What the document is at the present point.
    void SetPoint(Point point) { points_[position_] = std::move(point); }
    const Point& Now() const { return points_[position_]; }

    bool CanUndo() const { return position_ > 0; }
    bool CanRedo() const { return position_ < steps_.size(); }
    // Move the position and give the step that was crossed.
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
