// The unit converter (frmConvertUnits): one box for each unit of a kind of quantity. A number in any box
// fills all the others.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "platform/FormModel.h"
#include "platform/Ports.h"
#include "tools/UnitConverter.h"

namespace tw {

// Controls: cmbType accepts the name of a kind; labelType; those of Text1 to Text9 that are shown accept any
// text and convert it; cmdClose.
class ConvertUnitsModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmConvertUnits";

    // The number of boxes of the kind with the most units.
    static constexpr int kBoxes = 9;

    // Begins with the first kind and empty boxes. messages must outlive the dialog.
    explicit ConvertUnitsModel(MessagePort& messages);

    QuantityKind Kind() const { return kind_; }
    // Shows the boxes of a kind, all empty. Does nothing if it is the current kind.
    void SetKind(QuantityKind kind);

    // The boxes shown are those of UnitsOf(Kind()), with indexes from 0: box 0 is Text1.
    int BoxCount() const { return static_cast<int>(UnitsOf(kind_).size()); }
    const std::string& Text(int box) const { return texts_[static_cast<std::size_t>(box)]; }
    // Returns the name of the box's unit on one line.
    std::string Label(int box) const { return UnitName(UnitsOf(kind_)[static_cast<std::size_t>(box)]); }

    // Fills the other boxes from this one. Runs on every change of its text, and when it loses the focus. A
    // blank text empties the others. A text that is not a number is reported in a message box, leaves the
    // others unchanged and returns false. An arithmetic error leaves them unchanged without a message. A text
    // behind the number is ignored, even a unit. The box itself is never changed. A call from within this
    // function does nothing and returns true.
    bool ConvertFromBox(int box);
    // Changes the text of a box and converts it; returns what ConvertFromBox returns.
    bool Enter(int box, std::string_view text);
    // Changes the text of a box by a key and converts it, unless it can only be the beginning of a number
    // ("-", "1/"): then the next key converts it, or the loss of the focus.
    void TypeInto(int box, std::string_view text);

  private:
    bool ChooseKind(std::string_view name);
    void EmptyOthers(int box);
    void FillOthers(int box, double value);

    MessagePort& messages_;
    QuantityKind kind_ = QuantityKind::Weight;
    std::array<std::string, kBoxes> texts_;
    bool converting_ = false;
};

// Returns the kind of that name, case-insensitive; nothing for any other name.
std::optional<QuantityKind> FindKind(std::string_view name);

}  // namespace tw
