// One undoable edit: which control changed, what it held before and after, and where. It stores no recipe
// data as such: undoing puts the old value back into the control, and the control's ordinary recalculation
// does the rest. Further edits may hang on a head; they are undone and redone with it as one step.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "record/Grid.h"

namespace tw {

enum class ControlType : std::int8_t { None, TextBox, ComboBox, Grid, CheckBox, OptionGroup };

enum class ChangeType : std::int8_t {
    Typing,
    Selection,
    Cut,
    Delete,
    Paste,
    Abort,
    InsertRow,
    DeleteRow,
    Calculation,
    Sort
};

// The name that the menus show, such as "Delete Row".
std::string_view ChangeTypeName(ChangeType type);

// A value of a control: nothing, a text, a text whose cell has another number behind it than the text reads
// as, a number, a boolean, or the order of a sort. Small, since a history holds many.
class EditValue {
  public:
    EditValue() = default;
    static EditValue OfText(std::string_view text);
    static EditValue OfTextAndNumber(std::string_view text, CellValue number);
    static EditValue OfNumber(double number);
    static EditValue OfBoolean(bool boolean);
    static EditValue OfOrder(std::vector<int> order);

    bool IsText() const { return std::holds_alternative<Text>(value_) || OwnNumber(); }
    bool IsNumber() const { return std::holds_alternative<double>(value_); }
    // The value as that kind; an empty text, 0, false or no order for another kind.
    std::string_view AsText() const;
    double AsNumber() const;
    // The number of OfTextAndNumber, nullptr where the text tells it.
    const CellValue* OwnNumber() const;
    bool AsBoolean() const;
    std::vector<int> AsOrder() const;
    // An order equals another one when it moves nothing: its elements ascend.
    bool SameAs(const EditValue& other) const;

  private:
    // Length, then the bytes, in one block.
    using Text = std::unique_ptr<char[]>;
    using Order = std::unique_ptr<std::vector<int>>;
    struct TextAndNumber {
        std::string text;
        CellValue number;
    };
    std::variant<std::monostate, Text, double, bool, Order, std::unique_ptr<TextAndNumber>> value_;
};

// A selection before and after an edit. In a text box starts and lengths; in a grid first row, first column,
// row count and column count in this order.
struct EditSelection {
    std::int32_t newStart = 0, oldStart = 0, newLength = 0, oldLength = 0;
};

// Where two texts differ, in code points: between their common beginning and their common end.
struct TextSpan {
    std::int32_t start = 0, oldLength = 0, newLength = 0;
};
TextSpan ChangedSpan(std::string_view oldText, std::string_view newText);

class EditTracker {
  public:
    EditTracker() = default;
    EditTracker(EditTracker&&) noexcept = default;
    EditTracker& operator=(EditTracker&& other) noexcept;
    // Releases the chain without recursion, however long it is.
    ~EditTracker();

    // The control's name must stay where it is as long as the edit lives; index is -1 outside a control
    // array.
    void SetControlID(const std::string& name, int index);
    // The name, with "(index)" behind it in a control array; empty for the head of a compound.
    std::string GetControlID() const;
    tw::ControlType ControlType() const { return controlType_; }
    void SetControlType(tw::ControlType type) { controlType_ = type; }
    tw::ChangeType ChangeType() const { return changeType_; }
    void SetChangeType(tw::ChangeType type) { changeType_ = type; }
    std::string_view ChangeTypeName() const { return tw::ChangeTypeName(changeType_); }
    void SetLocation(int row, int col);
    int Row() const { return row_; }
    int Col() const { return col_; }
    void SetSelection(const EditSelection& selection) { selection_ = selection; }
    const EditSelection& GetSelection() const { return selection_; }
    const EditValue& OldValue() const { return oldValue_; }
    const EditValue& NewValue() const { return newValue_; }
    void SetValues(EditValue oldValue, EditValue newValue);
    // The tab to show before applying, -1 for none.
    int TabNumber() const { return tabNumber_; }
    void SetTabNumber(int tab) { tabNumber_ = static_cast<std::int8_t>(tab); }

    // Hangs an edit behind this one, which must be the last of its chain; gives the edit.
    EditTracker* AddNext(EditTracker edit);
    EditTracker* GetNext() const { return next_.get(); }
    // Releases what hangs behind.
    void Cleanup();

    // Takes over the old value and the old selection of an earlier edit of the same box.
    void Absorb(EditTracker& earlier);

  private:
    const std::string* controlName_ = nullptr;
    EditValue oldValue_;
    EditValue newValue_;
    std::unique_ptr<EditTracker> next_;
    EditSelection selection_;
    std::int32_t row_ = 0;
    std::int16_t col_ = 0;
    std::int16_t controlIndex_ = -1;
    tw::ControlType controlType_ = tw::ControlType::None;
    tw::ChangeType changeType_ = tw::ChangeType::Typing;
    std::int8_t tabNumber_ = -1;
};

}  // namespace tw
