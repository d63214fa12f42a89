// One undoable edit: which control changed, what it held before and after, and where. An edit is not a copy
// of recipe data: undoing puts the old value back into the control, and the control's ordinary recalculation
// does the rest. Further edits may be chained to a head; they are undone and redone with it as one step.
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
    Sort,
    // A change of the whole recipe, if the settings let it be undone.
    Resize,
    Strength,
    Bitterness,
    Carbonation
};

// True for a change of the whole recipe.
constexpr bool IsScaling(ChangeType type) {
    return type >= ChangeType::Resize;
}

// Returns the name shown in the menus, such as "Delete Row".
std::string_view ChangeTypeName(ChangeType type);

// A value of a control: nothing, a text, a text with a number that differs from the one the text would give,
// a number, a boolean, or the order of a sort. Kept small, because a history holds many.
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
    // Return the value as that kind; an empty text, 0, false or an empty order if it is of another kind.
    std::string_view AsText() const;
    double AsNumber() const;
    // The number of OfTextAndNumber; nullptr for every other kind.
    const CellValue* OwnNumber() const;
    bool AsBoolean() const;
    std::vector<int> AsOrder() const;
    // True if kind and value are the same. An order counts as the same as any other if it moves nothing, that
    // is, if its elements ascend.
    bool SameAs(const EditValue& other) const;

  private:
    // The length followed by the bytes, in one block.
    using Text = std::unique_ptr<char[]>;
    using Order = std::unique_ptr<std::vector<int>>;
    struct TextAndNumber {
        std::string text;
        CellValue number;
    };
    std::variant<std::monostate, Text, double, bool, Order, std::unique_ptr<TextAndNumber>> value_;
};

// A selection before and after an edit. For a text box: starts and lengths in code points. For a grid, with
// just one selection, the members are in this order: first row, first column, row count, column count.
struct EditSelection {
    std::int32_t newStart = 0, oldStart = 0, newLength = 0, oldLength = 0;
};

// Where two texts differ, in code points: the part between their common beginning and their common end.
struct TextSpan {
    std::int32_t start = 0, oldLength = 0, newLength = 0;
};
TextSpan ChangedSpan(std::string_view oldText, std::string_view newText);

class EditTracker {
  public:
    EditTracker() = default;
    EditTracker(EditTracker&&) noexcept = default;
    EditTracker& operator=(EditTracker&& other) noexcept;
    // Destroys the chain without recursion, however long it is.
    ~EditTracker();

    // REQUIRES: name outlives the edit. index is the control's index in a control array, -1 outside one.
    void SetControlID(const std::string& name, int index);
    // Returns the name, followed by "(index)" in a control array; empty for a head made by BeginCompoundEdit.
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
    // The tab to show before the edit is undone or redone; -1 for none.
    int TabNumber() const { return tabNumber_; }
    void SetTabNumber(int tab) { tabNumber_ = static_cast<std::int8_t>(tab); }

    // Appends an edit to the chain and returns it. REQUIRES: this edit is the last of its chain.
    EditTracker* AddNext(EditTracker edit);
    EditTracker* GetNext() const { return next_.get(); }
    // Destroys the edits chained to this one.
    void Cleanup();

    // Moves the old value and the old selection of an earlier edit of the same box into this edit.
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
