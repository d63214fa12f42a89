// Connects the widgets of one document window with the objects of its record. Widgets register callbacks for
// the objects that they show, which are called when the record changes. Detach, which must be called if the
// document is destroyed before its window, removes the callbacks.
#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <unordered_map>
#include <vector>

#include "document/RecipeDocument.h"
#include "document/ui/DocumentFrame.h"

class QFocusEvent;
class QKeyEvent;
class QWidget;

namespace tw {

class GridWidget;

class DocumentBinding final : public RecordObserver {
  public:
    // document and platform must exist until Detach, frame must outlive the binding.
    DocumentBinding(RecipeDocument& document, Platform& platform, DocumentFrame& frame);
    ~DocumentBinding() override;
    DocumentBinding(const DocumentBinding&) = delete;
    DocumentBinding& operator=(const DocumentBinding&) = delete;

    // nullptr after Detach.
    RecipeDocument* Document() const { return document_; }
    Platform& Ports() const { return platform_; }
    DocumentFrame& Frame() const { return frame_; }
    // Stops using the document and its record.
    void Detach();

    // Calls show at every change of that object of the record: a TextBox, Label, Button, ListBox
    // or OptionGroup.
    void Watch(const void* object, std::function<void()> show);
    // Calls show at every change of a text box or of a grid's rows or cells.
    void WatchAll(std::function<void()> show) { allWatchers_.push_back(std::move(show)); }
    // Calls show when the selection in a text box has changed. At most one callback per text box.
    void WatchSelection(const TextBox& box, std::function<void()> show);
    void WatchSwatch(std::function<void(Rgb)> show) { swatchWatchers_.push_back(std::move(show)); }
    void AddGrid(const Grid& grid, GridWidget& view) { grids_[&grid] = &view; }
    // Returns nullptr for a grid without a widget.
    GridWidget* ViewOf(const Grid& grid) const;
    // Visits the widgets of all grids.
    void ForEachGrid(const std::function<void(GridWidget&)>& visit) const;

    // Handles the keys that insert and delete rows, which work even in an open cell editor. Returns true if
    // the key has been handled.
    bool HandleKey(const QKeyEvent& key);
    // Handles the keys of HandleKey, and those of the Edit menu: they run the commands of the recipe, never
    // those of the widget itself.
    bool HandleEditKey(const QKeyEvent& key);

    // Handles the keys of rows and of undo and redo, but not those of the clipboard: for a list whose text is
    // not a field of the recipe.
    bool HandleListKey(const QKeyEvent& key);

    // While redraw is held, grids do not show changes; they show them together afterwards. Calls nest.
    void HoldRedraw(bool hold);
    bool IsHeld() const { return holds_ > 0; }

    // Runs an operation on the document. Shows an error that it raises and then returns false. After Detach,
    // returns false and runs nothing.
    bool Run(const std::function<void(RecipeDocument&)>& operation);

    // True if the control loses the focus for good: not because a menu or list opens over it, nor because
    // another program is activated. Activating the window of another recipe does count as leaving.
    static bool IsLeaving(const QFocusEvent& event, const QWidget& control);
    // Sets the text box that may contain uncommitted text; commit returns false for a bad entry. Commits the
    // previous text box first, however it lost the focus.
    void SetActiveField(QWidget* field, std::function<bool()> commit);
    // Called when a control of the document gets the focus. Commits a text box that had lost the focus to a
    // menu, and so was not yet committed, if it is not the one that gets it.
    void FocusIsIn(const QWidget& control);
    // Called when the entry in field was refused: calls takeBack, which returns the focus to it, after the
    // current event. Until then IsRefusing is true.
    void Refuse(QWidget* field, std::function<void()> takeBack);
    bool IsRefusing() const { return !refused_.isNull(); }

    // Commits the open cell editor and the active text box. Returns false if an entry was refused.
    bool Flush();

    void TextBoxChanged(const TextBox& box) override;
    void TextSelectionChanged(const TextBox& box) override;
    void LabelChanged(const Label& label) override { Fire(&label); }
    void ButtonChanged(const Button& button) override { Fire(&button); }
    void ListChanged(const ListBox& list) override { Fire(&list); }
    void OptionChanged(const OptionGroup& group) override { Fire(&group); }
    void SwatchChanged(Rgb color) override;
    void CellChanged(const Grid& grid, int row, int col) override;
    void RowInserted(const Grid& grid, int row) override;
    void RowRemoved(const Grid& grid, int row) override;
    void CurrentCellChanged(const Grid& grid) override;
    void GridFilled(const Grid& grid) override;

  private:
    void Fire(const void* object);
    void FireAll() const;
    void LeaveActiveField();

    RecipeDocument* document_;
    Platform& platform_;
    DocumentFrame& frame_;
    std::unordered_map<const void*, std::vector<std::function<void()>>> watchers_;
    std::vector<std::function<void()>> allWatchers_;
    std::unordered_map<const TextBox*, std::function<void()>> selectionWatchers_;
    std::unordered_map<const Grid*, GridWidget*> grids_;
    int holds_ = 0;
    std::vector<std::function<void(Rgb)>> swatchWatchers_;
    QPointer<QWidget> activeField_;
    std::function<bool()> commitActiveField_;
    QPointer<QWidget> refused_;
};

}  // namespace tw
