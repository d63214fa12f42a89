// The widget that shows a tree of folders, styles and recipes.
#pragma once

#include <QAbstractItemModel>
#include <QTreeView>
#include <functional>

#include "tree/TreeItems.h"
#include "tree/ui/KeyDrag.h"

namespace tw {

class TreePaneModel final : public QAbstractItemModel, private TreeItemsObserver {
    Q_OBJECT
  public:
    TreePaneModel(TreeItems& items, QObject* parent);
    ~TreePaneModel() override;

    // Convert between an entry, identified by its number in TreeItems, and its index; TreeItems::kNone is the
    // invalid index.
    static int ItemOf(const QModelIndex& index);
    QModelIndex IndexOf(int item) const;
    // Lets entries be renamed in place; without this call none can be. canRename returns whether an entry may
    // be renamed, rename whether the new name was accepted.
    void SetRename(std::function<bool(int item)> canRename, std::function<bool(const QString& name)> rename);

    // Lets entries be dragged by their keys, and other objects be dropped on them.
    void SetDrag(KeyDrag drag) { drag_ = std::move(drag); }
    bool HasDrag() const { return static_cast<bool>(drag_); }

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QStringList mimeTypes() const override;
    Qt::DropActions supportedDropActions() const override;
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

  signals:
    void Filled();
    void ExpandedChanged(int item);
    void SelectedChanged();

  private:
    void TreeReset(bool done) override;
    void TreeItemChanged(int item) override;
    void TreeItemExpanded(int item) override { emit ExpandedChanged(item); }
    void TreeSelectionChanged() override { emit SelectedChanged(); }

    TreeItems& items_;
    bool filling_ = false;
    std::function<bool(int)> canRename_;
    std::function<bool(const QString&)> rename_;
    KeyDrag drag_;
};

class TreePane final : public QTreeView {
    Q_OBJECT
  public:
    // Shows the entries. name: the name of the tree for screen readers. REQUIRES: items outlives the widget.
    TreePane(TreeItems& items, const QString& name, QWidget* parent);

    TreePaneModel& Model() const { return *model_; }
    // Sets what is called when the brewer selects an entry; it returns false to keep the selection as it was.
    // Without it, the entry is selected.
    void SetChoose(std::function<bool(const std::string& key)> choose) { choose_ = std::move(choose); }
    // Opens the editor of the selected entry's text.
    void EditSelected();

  signals:
    // An entry was double-clicked, or Enter was pressed on it.
    void ItemActivated();
    // The selected entry has changed.
    void ChosenChanged();

  protected:
    void showEvent(QShowEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void keyPressEvent(QKeyEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

  private:
    void ShowAll();
    void ShowSelection();
    void ShowExpanded(int item);

    TreeItems& items_;
    TreePaneModel* model_;
    std::function<bool(const std::string&)> choose_;
    bool following_ = false;  // true while the model, not the brewer, changes the entries
    bool shown_ = false;      // has been visible
};

}  // namespace tw
