// The unit converter (frmConvertUnits): one box for each unit of a kind of quantity; a number in any box
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

// cmbType takes the name of a kind; labelType; Text1 and so on, as far as they are shown, take any text, from
// which they convert; cmdClose.
class ConvertUnitsModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmConvertUnits";

    // The most boxes that a kind needs.
    static constexpr int kBoxes = 9;

    // Opens on the first kind with empty boxes. messages must outlive the dialog.
    explicit ConvertUnitsModel(MessagePort& messages);

    QuantityKind Kind() const { return kind_; }
    // Another kind shows its own boxes, all empty. The same one again changes nothing.
    void SetKind(QuantityKind kind);

    // The boxes shown are those of UnitsOf(Kind()), counted from 0: box 0 is Text1.
    int BoxCount() const { return static_cast<int>(UnitsOf(kind_).size()); }
    const std::string& Text(int box) const { return texts_[static_cast<std::size_t>(box)]; }
    // The unit's name on one line.
    std::string Label(int box) const { return UnitName(UnitsOf(kind_)[static_cast<std::size_t>(box)]); }

    // Fills the other boxes from this one: on every change of its text, and as it is left. A blank text
    // empties them. A text that is no number has its box and leaves them as they were; false then. A failure
    // of the arithmetic leaves them too, without a word. A unit behind the number is not read. The box itself
    // is never written. Nothing happens while the operation is running.
    bool ConvertFromBox(int box);
    // Changes a box's text and converts from it; the result is that of ConvertFromBox.
    bool Enter(int box, std::string_view text);
    // The same for a key: a text that can only be the beginning of a number ("-", "1/") waits for the next
    // key, or for the box to be left.
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

// The kind of that name, in any case; nothing for another name.
std::optional<QuantityKind> FindKind(std::string_view name);

}  // namespace tw
