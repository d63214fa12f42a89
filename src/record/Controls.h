// The plain objects behind the controls of a recipe window: text boxes, lists, option groups, buttons,
// labels. They carry the names of the controls and are kept once; a window shows them and holds nothing of
// its own. A change goes to the record's observer, if there is one.
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

// Told of every change of a record's objects, after it has happened. Events are synchronous.
class RecordObserver {
  public:
    virtual ~RecordObserver() = default;
    virtual void TextBoxChanged(const TextBox&) {}
    virtual void TextSelectionChanged(const TextBox&) {}
    virtual void LabelChanged(const Label&) {}
    virtual void ButtonChanged(const Button&) {}
    // The entries or the selection of a list.
    virtual void ListChanged(const ListBox&) {}
    virtual void OptionChanged(const OptionGroup&) {}
    virtual void SwatchChanged(Rgb) {}
    // Text, check state or emphasis of one cell.
    virtual void CellChanged(const Grid&, int /*row*/, int /*col*/) {}
    // The row now numbered row has come, or the row that had this number has gone.
    virtual void RowInserted(const Grid&, int /*row*/) {}
    virtual void RowRemoved(const Grid&, int /*row*/) {}
    virtual void CurrentCellChanged(const Grid&) {}
    // The grid was filled; its columns should use its width (FitGridColumns).
    virtual void GridFilled(const Grid&) {}
};

// What the objects of one record share: the observer of the moment, or none.
struct RecordLink {
    RecordObserver* observer = nullptr;
};

// Selected characters of a text box, counted in code points; without a length the place of the caret.
struct TextSelection {
    int start = 0;
    int length = 0;
    bool operator==(const TextSelection&) const = default;
};

// Which text box of a recipe it is; RuleOf in FieldRules.h tells the rest.
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

// A text box: the text shown, the last committed text, and the number behind the committed text in the
// canonical unit.
class TextBox {
  public:
    TextBox(RecordLink& link, FieldId id, std::string name, bool computed)
        : link_(&link), name_(std::move(name)), id_(id), computed_(computed) {}

    FieldId Id() const { return id_; }
    const std::string& Name() const { return name_; }
    // A figure of the program that the brewer cannot type into.
    bool Computed() const { return computed_; }
    const std::string& Text() const { return text_; }
    bool Empty() const { return text_.empty(); }
    void SetText(std::string_view text);

    // The text that the last commit accepted: how a commit sees that nothing changed, and what a bad entry
    // goes back to.
    const std::string& Committed() const { return committed_; }
    void SetCommitted(std::string_view text) { committed_ = text; }

    // The record's number. It keeps its last value while the text is empty.
    double Value() const { return value_; }
    void SetValue(double value) { value_ = value; }
    // True if the number is not the one that the committed text tells: the gravity that a yeast gives, or
    // that of a recipe stored elsewhere.
    bool HasOwnNumber() const { return ownNumber_; }
    void SetOwnNumber(bool ownNumber) { ownNumber_ = ownNumber; }

    // The selection, clipped to the text.
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

// A drop-down list whose entries carry a number each.
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
    // The text of the selected entry, empty without one.
    const std::string& Text() const;
    // Replaces the entries and selects one. REQUIRES: -1 <= selected < number of entries.
    void SetEntries(std::vector<Entry> entries, int selected);
    void Select(int index);
    // The first entry with that item data, -1 when there is none.
    int IndexOf(std::int64_t itemData) const;

  private:
    RecordLink* link_;
    std::string name_;
    std::vector<Entry> entries_;
    int selected_ = -1;
};

// Which group of option buttons it is.
enum class OptionId : std::uint8_t { IbuMethod, Packaging };

// A group of option buttons as one control; exactly one is set.
class OptionGroup {
  public:
    OptionGroup(RecordLink& link, OptionId id, std::string name, std::vector<std::string> options)
        : link_(&link), name_(std::move(name)), options_(std::move(options)), id_(id) {}
    OptionId Id() const { return id_; }
    const std::string& Name() const { return name_; }
    const std::vector<std::string>& Options() const { return options_; }
    int Selected() const { return selected_; }
    // The name of the option that is set.
    const std::string& Value() const { return options_[static_cast<std::size_t>(selected_)]; }
    // Position of the option of that name, -1 when it is not of this group.
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
