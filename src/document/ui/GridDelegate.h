// Paints the cells of a grid and makes their editors: a line, a line with the cell's list, or the list alone.
#pragma once

#include <QStyledItemDelegate>

class QKeyEvent;

namespace tw {

class DocumentBinding;
struct CellList;

// The view of a grid's data rows, as the delegates that paint and edit the grid's cells see it.
class CellHost {
  public:
    virtual ~CellHost() = default;
    // True if the cell, of the data rows or of the totals, is the current one of the record.
    virtual bool IsCurrentCell(const QModelIndex& cell) const = 0;
    // In pixels.
    virtual int RowHeight() const = 0;
    // Returns the cell's list for an editor about to open.
    virtual CellList ListOf(const QModelIndex& cell) const = 0;
    // The one open editor and its cell.
    virtual void SetEditor(QWidget* editor, const QModelIndex& cell) = 0;
    // Lets the brewer choose the current cell's name from its catalogue, if it has one, as soon as the
    // present event has been processed.
    virtual void BrowseSoon() = 0;
};

class GridDelegate final : public QStyledItemDelegate {
    Q_OBJECT
  public:
    // body shows the data rows of the grid and has the focus for the totals too, whose view has a delegate of
    // its own that only paints. All must outlive the delegate's last event.
    GridDelegate(QWidget& body, CellHost& cells, DocumentBinding& binding, QObject* parent);

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

    QWidget& body_;
    CellHost& cells_;
    DocumentBinding& binding_;
};

}  // namespace tw
