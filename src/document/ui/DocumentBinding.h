// Ties the widgets of one document window to the objects of its record. Widgets register what they show;
// changes of the record come back to them. When the document goes before its window, the widgets fall silent.
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
    // The document and the platform must live until Detach.
    DocumentBinding(RecipeDocument& document, Platform& platform, DocumentFrame& frame);
    ~DocumentBinding() override;
    DocumentBinding(const DocumentBinding&) = delete;
    DocumentBinding& operator=(const DocumentBinding&) = delete;

    // nullptr after Detach.
    RecipeDocument* Document() const { return document_; }
    Platform& Ports() const { return platform_; }
    DocumentFrame& Frame() const { return frame_; }
    // Lets go of the document.
    void Detach();

    // show runs at every change of that object of the record (a TextBox, Label, Button, ListBox or
    // OptionGroup).
    void Watch(const void* object, std::function<void()> show);
    // show runs when the selection of a text box is another.
    void WatchSelection(const TextBox& box, std::function<void()> show);
    void WatchSwatch(std::function<void(Rgb)> show) { showSwatch_ = std::move(show); }
    void AddGrid(const Grid& grid, GridWidget& view) { grids_[&grid] = &view; }
    // nullptr for a grid without a widget.
    GridWidget* ViewOf(const Grid& grid) const;
    // Every grid that has a widget.
    void ForEachGrid(const std::function<void(GridWidget&)>& visit) const;

    // The keys of rows, which work in an open cell editor too. True when the key has been used up.
    bool HandleKey(const QKeyEvent& key);
    // Those, and the keys of the Edit menu: its commands are the recipe's, never the widget's own.
    bool HandleEditKey(const QKeyEvent& key);

    // Those but for the clipboard's, in a list whose text is no field of the recipe.
    bool HandleListKey(const QKeyEvent& key);

    // While held, grids note their changes and show them together afterwards. Calls nest.
    void HoldRedraw(bool hold);
    bool IsHeld() const { return holds_ > 0; }

    // Runs an operation on the document; an error that rises is shown. False then, and after Detach.
    bool Run(const std::function<void(RecipeDocument&)>& operation);

    // Whether the focus goes for good: neither a menu or list opens over the control nor another program
    // comes in front. Another recipe's window in front is leaving.
    static bool IsLeaving(const QFocusEvent& event, const QWidget& control);
    // The text box that may hold an uncommitted text; commit gives false for a bad entry. The one before is
    // left, however the focus came from it.
    void SetActiveField(QWidget* field, std::function<bool()> commit);
    // The focus is in that control of the document. A text box that lost it to a menu, which kept it open,
    // and does not get it back is left now.
    void FocusIsIn(const QWidget& control);
    // A bad entry has been refused: its box takes the focus back as soon as the present event is over.
    void Refuse(QWidget* field, std::function<void()> takeBack);
    bool IsRefusing() const { return !refused_.isNull(); }

    // Commits the open cell editor and the active text box. False when an entry was refused.
    bool Flush();

    void TextBoxChanged(const TextBox& box) override { Fire(&box); }
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
    void LeaveActiveField();

    RecipeDocument* document_;
    Platform& platform_;
    DocumentFrame& frame_;
    std::unordered_map<const void*, std::vector<std::function<void()>>> watchers_;
    std::unordered_map<const TextBox*, std::function<void()>> selectionWatchers_;
    std::unordered_map<const Grid*, GridWidget*> grids_;
    int holds_ = 0;
    std::function<void(Rgb)> showSwatch_;
    QPointer<QWidget> activeField_;
    std::function<bool()> commitActiveField_;
    QPointer<QWidget> refused_;
};

}  // namespace tw
