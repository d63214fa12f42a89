// The common base of the views of a list, as columns or as icons. It keeps rows and selection in step with
// the list, finds rows by typing their beginning, and shows a hint if there are no rows.
#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <utility>

#include "platform/ScopeGuard.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"
#include "tree/ListTable.h"
#include "tree/ui/InPlaceEditor.h"
#include "tree/ui/ListPaneModel.h"

namespace tw {

template <class View>
class RowView : public View, protected ListTableObserver {
  public:
    // name: the name of the list for screen readers. REQUIRES: list outlives the view and has no
    // other observer.
    RowView(ListTable& list, const QString& name, QWidget* parent)
        : View(parent), list_(list), model_(new ListPaneModel(list, this)) {
        this->setAccessibleName(name);
        this->setEditTriggers(View::NoEditTriggers);
        this->setTextElideMode(Qt::ElideRight);
        list_.SetObserver(this);
    }
    ~RowView() override { list_.SetObserver(nullptr); }

    ListPaneModel& Model() const { return *model_; }
    // Sets the text shown in a list without rows.
    void SetHint(const QString& hint) {
        hint_ = hint;
        this->viewport()->update();
    }
    // Sets whether several rows can be selected.
    void SetMulti(bool multi) {
        multi_ = multi;
        this->setSelectionMode(multi ? View::ExtendedSelection : View::SingleSelection);
    }
    // Opens the editor of a row's name, if the name may be edited.
    void EditRow(int row) {
        const QModelIndex index = model_->index(row, 0);
        if (!index.isValid() || !model_->flags(index).testFlag(Qt::ItemIsEditable)) return;
        this->setFocus();
        this->edit(index);
    }

    // Letters typed in quick succession form one beginning.
    void keyboardSearch(const QString& search) override {
        const bool goesOn =
            sinceTyped_.isValid() && sinceTyped_.elapsed() <= QApplication::keyboardInputInterval();
        sinceTyped_.start();
        typed_ = goesOn ? typed_ + search : search;
        // Typing one letter again moves to the next row; a longer beginning may still match the present one.
        const bool repeated = typed_.count(search) == typed_.size() && search.size() == 1;
        const QString wanted = repeated ? search : typed_;
        const int row = list_.FindTyped(FromQt(wanted), list_.Selected() + (wanted.size() == 1 ? 1 : 0));
        if (row != ListTable::kNoRow) list_.Select(row);
    }

  protected:
    // A row that can be selected was double-clicked, or Enter was pressed on it.
    virtual void TellActivated() = 0;
    // The selection has changed.
    virtual void TellChosen() = 0;
    // The rows have changed; the selection is updated after this call.
    virtual void ShowRows() {}

    void ListChanged() override {
        {
            const ScopedValue following(following_, true);
            model_->Reset();
        }
        ShowRows();
        ShowSelection();
    }
    void ListRowChanged(int row) override { model_->TellRow(row); }
    void ListSelectionChanged() override {
        if (!choosing_) ShowSelection();
        TellChosen();
    }

    void ShowSelection() {
        const ScopedValue following(following_, true);
        const QModelIndex row = model_->index(list_.Selected(), 0);
        QItemSelection rows;
        for (const int chosen : list_.Chosen())
            rows.select(model_->index(chosen, 0), model_->index(chosen, model_->columnCount() - 1));
        if (row.isValid())
            this->selectionModel()->setCurrentIndex(row, QItemSelectionModel::NoUpdate);
        else
            this->selectionModel()->clearCurrentIndex();
        this->selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
        if (row.isValid()) {
            // The first row below a heading is scrolled into view together with the heading.
            if (row.row() > 0 && list_.Row(row.row() - 1).isGroup)
                this->scrollTo(model_->index(row.row() - 1, 0));
            this->scrollTo(row);
        }
    }

    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override {
        View::currentChanged(current, previous);
        if (following_ || !current.isValid()) return;
        const ScopedValue choosing(choosing_, multi_);
        if (!multi_)
            list_.Select(current.row());
        else if (list_.IsChosen(current.row()))
            list_.Choose(list_.Chosen(), current.row());
    }

    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override {
        View::selectionChanged(selected, deselected);
        if (following_ || !multi_) return;
        std::vector<int> rows;
        for (const QModelIndex& index : this->selectionModel()->selectedIndexes())
            if (index.column() == 0) rows.push_back(index.row());
        const ScopedValue choosing(choosing_, true);
        list_.Choose(std::move(rows), this->currentIndex().row());
    }

    void keyPressEvent(QKeyEvent* event) override {
        const int key = event->key();
        const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
        // Enter that ends the editing of a name neither opens the row nor presses the window's
        // default button.
        if (enter && this->state() == View::EditingState) return event->accept();
        if (enter && list_.Selected() != ListTable::kNoRow) return TellActivated();
        View::keyPressEvent(event);
    }

    void mouseDoubleClickEvent(QMouseEvent* event) override {
        const QModelIndex row = this->indexAt(event->pos());
        View::mouseDoubleClickEvent(event);
        if (event->button() == Qt::LeftButton && row.isValid() && row.row() == list_.Selected())
            TellActivated();
    }

    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override {
        const bool typedIn = IsTypedIn(*editor);
        View::closeEditor(editor, hint);
        if (typedIn) this->setFocus();
    }

    void startDrag(Qt::DropActions) override {
        KeyDrag::Keys keys;
        for (const int row : list_.Chosen()) keys.push_back(list_.Row(row).key);
        StartKeyDrag(*this, keys);
    }

    void paintEvent(QPaintEvent* event) override {
        View::paintEvent(event);
        const QString hint =
            list_.Filter().empty() ? hint_ : QObject::tr("No row contains \"%1\".").arg(ToQt(list_.Filter()));
        if (list_.Count() > 0 || hint.isEmpty()) return;
        QPainter painter(this->viewport());
        painter.setPen(HintColor(this->palette()));
        const int margin = Unit(*this);
        painter.drawText(this->viewport()->rect().adjusted(margin, margin, -margin, -margin),
                         Qt::TextWordWrap, hint);
    }

    ListTable& list_;
    ListPaneModel* model_;

  private:
    QString hint_;
    QString typed_;
    QElapsedTimer sinceTyped_;
    bool multi_ = false;
    bool following_ = false;  // true while the list, not the brewer, changes the selection
    bool choosing_ = false;   // true while the list adopts what was selected in the view
};

}  // namespace tw
