#include "document/ui/DocumentBinding.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QWidget>

#include "document/ui/GridView.h"
#include "platform/qt/ErrorBox.h"

namespace tw {

DocumentBinding::DocumentBinding(RecipeDocument& document, Platform& platform, DocumentFrame& frame)
    : document_(&document), platform_(platform), frame_(frame) {
    document.Record().SetObserver(this);
}

DocumentBinding::~DocumentBinding() {
    Detach();
}

void DocumentBinding::Detach() {
    if (!document_) return;
    document_->Record().SetObserver(nullptr);
    document_ = nullptr;
    watchers_.clear();
    commitActiveField_ = nullptr;
    for (const auto& [grid, view] : grids_) view->Detach();
    grids_.clear();
}

void DocumentBinding::Watch(const void* object, std::function<void()> show) {
    watchers_[object].push_back(std::move(show));
}

GridView* DocumentBinding::ViewOf(const Grid& grid) const {
    const auto found = grids_.find(&grid);
    return found == grids_.end() ? nullptr : found->second;
}

void DocumentBinding::ForEachGrid(const std::function<void(GridView&)>& visit) const {
    for (const auto& [grid, view] : grids_) visit(*view);
}

bool DocumentBinding::HandleKey(const QKeyEvent& key, bool inGrid) {
    const bool control = key.modifiers().testFlag(Qt::ControlModifier);
    const bool shift = key.modifiers().testFlag(Qt::ShiftModifier);
    const bool plain = !control && !shift && !key.modifiers().testFlag(Qt::AltModifier);
    switch (key.key()) {
        case Qt::Key_PageDown:
        case Qt::Key_PageUp:
            if (!control || !stepTab_) return false;
            stepTab_(key.key() == Qt::Key_PageDown ? 1 : -1);
            return true;
        case Qt::Key_Insert:
            if (control) return frame_.RunCommand("mnuEditCopy");
            return shift && frame_.RunCommand("mnuEditPaste");
        case Qt::Key_Plus:
        case Qt::Key_Equal:  // the plus key where plus needs Shift
            return control && frame_.RunCommand("mnuEditInsert");
        case Qt::Key_Minus:
            return control && frame_.RunCommand("mnuEditDelete");
        case Qt::Key_Delete:
            if (shift) return frame_.RunCommand("mnuEditCut");
            return plain && inGrid && frame_.RunCommand("mnuEditClear");
        default:
            return false;
    }
}

bool DocumentBinding::Run(const std::function<void(RecipeDocument&)>& operation) {
    return document_ && RunShowingErrors(platform_.messages, [&] { operation(*document_); });
}

bool DocumentBinding::IsLeaving(const QFocusEvent& event, const QWidget& control) {
    switch (event.reason()) {
        case Qt::PopupFocusReason:
        case Qt::MenuBarFocusReason:
            return false;
        case Qt::ActiveWindowFocusReason:
            return control.isActiveWindow();
        default:
            return true;
    }
}

void DocumentBinding::SetActiveField(QWidget* field, std::function<bool()> commit) {
    activeField_ = field;
    commitActiveField_ = std::move(commit);
}

void DocumentBinding::Refuse(QWidget* field, std::function<void()> takeBack) {
    refused_ = field;
    const auto finish = [this, takeBack = std::move(takeBack)] {
        refused_.clear();
        if (document_) takeBack();
    };
    QMetaObject::invokeMethod(field, finish, Qt::QueuedConnection);
}

bool DocumentBinding::Flush() {
    if (!document_) return true;
    if (IsRefusing()) return false;
    for (const auto& [grid, view] : grids_)
        if (!view->CommitEditor()) return false;
    return !activeField_ || !commitActiveField_ || commitActiveField_();
}

void DocumentBinding::Fire(const void* object) {
    const auto found = watchers_.find(object);
    if (found == watchers_.end()) return;
    for (const auto& show : found->second) show();
}

void DocumentBinding::SwatchChanged(Rgb color) {
    if (showSwatch_) showSwatch_(color);
}

void DocumentBinding::CellChanged(const Grid& grid, int row, int col) {
    if (GridView* view = ViewOf(grid)) view->ShowCell(row, col);
}

void DocumentBinding::RowInserted(const Grid& grid, int row) {
    if (GridView* view = ViewOf(grid)) view->ShowRowInserted(row);
}

void DocumentBinding::RowRemoved(const Grid& grid, int row) {
    if (GridView* view = ViewOf(grid)) view->ShowRowRemoved(row);
}

void DocumentBinding::CurrentCellChanged(const Grid& grid) {
    if (GridView* view = ViewOf(grid)) view->ShowCurrentCell();
}

void DocumentBinding::GridFilled(const Grid& grid) {
    if (GridView* view = ViewOf(grid)) view->FitGridColumns();
}

}  // namespace tw
