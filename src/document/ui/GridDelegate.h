// Paints the cells of a grid and creates their editors: a line edit, or a combo box (editable or not) for a
// cell with a list.
#pragma once

#include <QStyledItemDelegate>

class QKeyEvent;

namespace tw {

class DocumentBinding;
struct CellList;

// The interface of the view of a grid's data rows for the delegates that paint and edit the grid's cells.
class CellHost {
  public:
    virtual ~CellHost() = default;
    // True if the cell, a total included, is the grid's current cell in the record.
    virtual bool IsCurrentCell(const QModelIndex& cell) const = 0;
    // Returns the row height in pixels.
    virtual int RowHeight() const = 0;
    // Returns the cell's list for an editor about to open.
    virtual CellList ListOf(const QModelIndex& cell) const = 0;
    // Called with each new editor and its cell; at most one editor is open.
    virtual void SetEditor(QWidget* editor, const QModelIndex& cell) = 0;
    // After the current event, opens the catalogue in which the brewer can choose the current cell's name, if
    // the cell has a catalogue.
    virtual void BrowseSoon() = 0;
};

class GridDelegate final : public QStyledItemDelegate {
    Q_OBJECT
  public:
    // body shows the data rows of the grid and has the focus even while a total is the current cell. The view
    // of the totals has its own delegate, which only paints. All must outlive the delegate's last event.
    GridDelegate(QWidget& body, CellHost& cells, DocumentBinding& binding, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& plain, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& plain, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

    static QString EditorText(const QWidget& editor);
    // Shows the decimal commas that the brewer has typed into the editor of a quantity as points.
    static void ShowDecimalPoint(QWidget& editor);
    static void SelectEditorText(QWidget& editor);

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    // Commits the editor, and the cell stays current.
    void StayInCell(QWidget* editor);
    bool HandleKey(QWidget& editor, const QKeyEvent& key);
    bool HandleListKey(QWidget& editor, const QKeyEvent& key);
    void Close(QWidget& editor, QAbstractItemDelegate::EndEditHint hint);
    QWidget* MakeListEditor(QWidget* parent, const CellList& list) const;

    QWidget& body_;
    CellHost& cells_;
    DocumentBinding& binding_;
};

}  // namespace tw
