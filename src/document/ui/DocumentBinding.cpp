#include "document/ui/DocumentBinding.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QKeySequence>
#include <QWidget>
#include <optional>
#include <utility>

#include "document/ui/GridWidget.h"
#include "platform/ErrorBox.h"

namespace tw {
namespace {

// Returns the command of the Edit menu for a key, if it has one. Delete without modifiers has none here: it
// clears cells in grids and deletes characters in texts.
std::optional<CommandId> EditCommandOf(const QKeyEvent& key) {
    const auto modifiers = key.modifiers() & ~Qt::KeypadModifier;
    if (key.key() == Qt::Key_Insert && modifiers == Qt::ControlModifier) return CommandId::EditCopy;
    if (key.key() == Qt::Key_Insert && modifiers == Qt::ShiftModifier) return CommandId::EditPaste;
    if (key.key() == Qt::Key_Delete && modifiers == Qt::ShiftModifier) return CommandId::EditCut;
    if (key.matches(QKeySequence::Redo) || (key.key() == Qt::Key_Y && modifiers == Qt::ControlModifier))
        return CommandId::EditRedo;
    if (key.matches(QKeySequence::Undo)) return CommandId::EditUndo;
    if (key.matches(QKeySequence::Cut)) return CommandId::EditCut;
    if (key.matches(QKeySequence::Copy)) return CommandId::EditCopy;
    if (key.matches(QKeySequence::Paste)) return CommandId::EditPaste;
    if (key.matches(QKeySequence::SelectAll)) return CommandId::EditSelectAll;
    return std::nullopt;
}

}  // namespace

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
    allWatchers_.clear();
    swatchWatchers_.clear();
    selectionWatchers_.clear();
    commitActiveField_ = nullptr;
    for (const auto& [grid, view] : grids_) view->Detach();
    grids_.clear();
}

void DocumentBinding::Watch(const void* object, std::function<void()> show) {
    watchers_[object].push_back(std::move(show));
}

void DocumentBinding::WatchSelection(const TextBox& box, std::function<void()> show) {
    selectionWatchers_[&box] = std::move(show);
}

void DocumentBinding::TextSelectionChanged(const TextBox& box) {
    const auto found = selectionWatchers_.find(&box);
    if (found != selectionWatchers_.end()) found->second();
}

GridWidget* DocumentBinding::ViewOf(const Grid& grid) const {
    const auto found = grids_.find(&grid);
    return found == grids_.end() ? nullptr : found->second;
}

void DocumentBinding::ForEachGrid(const std::function<void(GridWidget&)>& visit) const {
    for (const auto& [grid, view] : grids_) visit(*view);
}

bool DocumentBinding::HandleKey(const QKeyEvent& key) {
    if (!key.modifiers().testFlag(Qt::ControlModifier)) return false;
    switch (key.key()) {
        case Qt::Key_Plus:
        case Qt::Key_Equal:  // the plus key on keyboards where plus needs Shift
            return frame_.RunCommand(CommandId::EditInsert);
        case Qt::Key_Minus:
            return frame_.RunCommand(CommandId::EditDelete);
        default:
            return false;
    }
}

bool DocumentBinding::HandleEditKey(const QKeyEvent& key) {
    if (HandleKey(key)) return true;
    const std::optional<CommandId> command = EditCommandOf(key);
    if (!command) return false;
    // The key counts as handled even if the command is disabled: the widget must not run its own.
    frame_.RunCommand(*command);
    return true;
}

bool DocumentBinding::HandleListKey(const QKeyEvent& key) {
    const std::optional<CommandId> command = EditCommandOf(key);
    return command == CommandId::EditUndo || command == CommandId::EditRedo ? HandleEditKey(key)
                                                                            : HandleKey(key);
}

void DocumentBinding::HoldRedraw(bool hold) {
    holds_ += hold ? 1 : -1;
    if (holds_ > 0) return;
    for (const auto& [grid, view] : grids_) view->ShowHeldChanges();
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
    if (activeField_ != field) LeaveActiveField();
    activeField_ = field;
    commitActiveField_ = std::move(commit);
}

void DocumentBinding::FocusIsIn(const QWidget& control) {
    if (!activeField_ || activeField_ == &control || activeField_->isAncestorOf(&control)) return;
    LeaveActiveField();
}

void DocumentBinding::LeaveActiveField() {
    if (!document_ || !activeField_ || !commitActiveField_ || IsRefusing()) return;
    const QPointer<QWidget> left = activeField_;
    const std::function<bool()> commit = std::exchange(commitActiveField_, {});
    activeField_.clear();
    if (commit()) return;
    Refuse(left, [left] {
        if (left) left->setFocus();
    });
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
    for (const auto& show : swatchWatchers_) show(color);
}

void DocumentBinding::FireAll() const {
    for (const auto& show : allWatchers_) show();
}

void DocumentBinding::TextBoxChanged(const TextBox& box) {
    Fire(&box);
    FireAll();
}

void DocumentBinding::CellChanged(const Grid& grid, int row, int col) {
    if (GridWidget* view = ViewOf(grid)) view->ShowCell(row, col);
    FireAll();
}

void DocumentBinding::RowInserted(const Grid& grid, int row) {
    if (GridWidget* view = ViewOf(grid)) view->ShowRowInserted(row);
    FireAll();
}

void DocumentBinding::RowRemoved(const Grid& grid, int row) {
    if (GridWidget* view = ViewOf(grid)) view->ShowRowRemoved(row);
    FireAll();
}

void DocumentBinding::CurrentCellChanged(const Grid& grid) {
    if (GridWidget* view = ViewOf(grid)) view->ShowCurrentCell();
}

void DocumentBinding::GridFilled(const Grid& grid) {
    if (GridWidget* view = ViewOf(grid)) view->FitGridColumns();
    FireAll();
}

}  // namespace tw
