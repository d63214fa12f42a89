// Plain objects for the controls of a recipe window: text boxes, lists, option groups, buttons, labels. They
// have the names of the controls and hold the only copy of their state; a window merely displays them. Each
// change is reported to the observer of the record, if there is one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "calc/Rgb.h"

namespace tw {

class Grid;
class TextBox;
class Label;
class Button;
class ListBox;
class OptionGroup;

// Notified of every change of a record's objects, synchronously and after the change.
class RecordObserver {
  public:
    virtual ~RecordObserver() = default;
    virtual void TextBoxChanged(const TextBox&) {}
    virtual void TextSelectionChanged(const TextBox&) {}
    virtual void LabelChanged(const Label&) {}
    virtual void ButtonChanged(const Button&) {}
    // The entries or the selection of the list have changed.
    virtual void ListChanged(const ListBox&) {}
    virtual void OptionChanged(const OptionGroup&) {}
    virtual void SwatchChanged(Rgb) {}
    // The text, check state or emphasis of one cell has changed.
    virtual void CellChanged(const Grid&, int /*row*/, int /*col*/) {}
    // A row was inserted and now has this index, or the row with this index was removed.
    virtual void RowInserted(const Grid&, int /*row*/) {}
    virtual void RowRemoved(const Grid&, int /*row*/) {}
    virtual void CurrentCellChanged(const Grid&) {}
    // The grid was filled anew; the window should fit the columns to its width (FitGridColumns).
    virtual void GridFilled(const Grid&) {}
};

// Shared by all objects of one record: the current observer, or nullptr.
struct RecordLink {
    RecordObserver* observer = nullptr;
};

// A selection in a text box, in code points. With length 0, start is the position of the caret.
struct TextSelection {
    int start = 0;
    int length = 0;
    bool operator==(const TextSelection&) const = default;
};

// Identifies a text box of a recipe; RuleOf in FieldRules.h describes it.
enum class FieldId : std::uint8_t {
    Name,
    NumBatches,
    BoilVol,
    TotalVol,
    OG,
    FG,
    ABV,
    Color,
    IBU,
    CO2,
    Extract,
    HopExtraction,
    BG,
    Temp,
    Dilutions,
    FinalVol,
    Notes
};
inline constexpr std::size_t kFields = 17;

// A text box: the text shown, the last committed text, and the number of the committed text in the unit of
// the box's rule (FieldRules.h).
class TextBox {
  public:
    TextBox(RecordLink& link, FieldId id, std::string name, bool computed)
        : link_(&link), name_(std::move(name)), id_(id), computed_(computed) {}

    FieldId Id() const { return id_; }
    const std::string& Name() const { return name_; }
    // True if the program calculates the text and the brewer cannot type into the box.
    bool Computed() const { return computed_; }
    const std::string& Text() const { return text_; }
    bool Empty() const { return text_.empty(); }
    void SetText(std::string_view text);

    // The text that the last commit accepted. A commit compares it to find out whether anything changed, and
    // restores it after an invalid entry.
    const std::string& Committed() const { return committed_; }
    void SetCommitted(std::string_view text) { committed_ = text; }

    // The number. It keeps its last value while the text is empty.
    double Value() const { return value_; }
    void SetValue(double value) { value_ = value; }
    // True if the number differs from the one that the committed text would give, for example the gravity set
    // by a yeast or stored with an imported recipe.
    bool HasOwnNumber() const { return ownNumber_; }
    void SetOwnNumber(bool ownNumber) { ownNumber_ = ownNumber; }

    // The selection, limited to the present text.
    TextSelection Selection() const;
    void Select(TextSelection selection);

  private:
    RecordLink* link_;
    std::string name_;
    std::string text_;
    std::string committed_;
    TextSelection selection_;
    double value_ = 0;
    FieldId id_;
    bool computed_;
    bool ownNumber_ = false;
};

class Label {
  public:
    Label(RecordLink& link, std::string name) : link_(&link), name_(std::move(name)) {}
    const std::string& Name() const { return name_; }
    const std::string& Text() const { return text_; }
    void SetText(std::string_view text);

  private:
    RecordLink* link_;
    std::string name_;
    std::string text_;
};

class Button {
  public:
    Button(RecordLink& link, std::string name, bool enabled)
        : link_(&link), name_(std::move(name)), enabled_(enabled) {}
    const std::string& Name() const { return name_; }
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);

  private:
    RecordLink* link_;
    std::string name_;
    bool enabled_;
};

// A drop-down list. Each entry has a number (itemData) as well as a text.
class ListBox {
  public:
    struct Entry {
        std::string text;
        std::int64_t itemData = 0;
    };

    ListBox(RecordLink& link, std::string name) : link_(&link), name_(std::move(name)) {}
    const std::string& Name() const { return name_; }
    const std::vector<Entry>& Entries() const { return entries_; }
    int Selected() const { return selected_; }
    // The text of the selected entry; empty if none is selected.
    const std::string& Text() const;
    // Replaces the entries and selects one, or none with -1. REQUIRES: -1 <= selected < number of entries.
    void SetEntries(std::vector<Entry> entries, int selected);
    void Select(int index);
    // Returns the index of the first entry with that item data, or -1.
    int IndexOf(std::int64_t itemData) const;

  private:
    RecordLink* link_;
    std::string name_;
    std::vector<Entry> entries_;
    int selected_ = -1;
};

// Identifies a group of option buttons.
enum class OptionId : std::uint8_t { IbuMethod, Packaging };

// A group of option buttons as one control; exactly one button is chosen.
class OptionGroup {
  public:
    OptionGroup(RecordLink& link, OptionId id, std::string name, std::vector<std::string> options)
        : link_(&link), name_(std::move(name)), options_(std::move(options)), id_(id) {}
    OptionId Id() const { return id_; }
    const std::string& Name() const { return name_; }
    const std::vector<std::string>& Options() const { return options_; }
    int Selected() const { return selected_; }
    // The name of the chosen option.
    const std::string& Value() const { return options_[static_cast<std::size_t>(selected_)]; }
    // Returns the index of the option of that name, or -1 if the group has none.
    int IndexOf(std::string_view option) const;
    // REQUIRES: 0 <= index < number of options.
    void Select(int index);

  private:
    RecordLink* link_;
    std::string name_;
    std::vector<std::string> options_;
    int selected_ = 0;
    OptionId id_;
};

}  // namespace tw
