// Paints the cells of a grid and makes their editors: a line, a line with the cell's list, or the list alone.
#pragma once

#include <QStyledItemDelegate>

class QKeyEvent;

namespace tw {

class GridView;
struct CellList;

class GridDelegate final : public QStyledItemDelegate {
    Q_OBJECT
  public:
    // body edits; the rows of totals have a delegate of their own that only paints.
    GridDelegate(GridView& body, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

    static QString EditorText(const QWidget& editor);
    static void SelectEditorText(QWidget& editor);

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    bool HandleKey(QWidget& editor, const QKeyEvent& key);
    void Close(QWidget& editor, QAbstractItemDelegate::EndEditHint hint);
    QWidget* MakeListEditor(QWidget* parent, const CellList& list) const;

    GridView& body_;
};

}  // namespace tw
