#include "document/ui/GridView.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "platform/qt/Appearance.h"
#include "platform/qt/GridHeader.h"
#include "platform/qt/QtText.h"
#include "record/CellRules.h"

namespace tw {
namespace {

constexpr double kLinesPerRow = 1.6;
constexpr int kExtraPerColumn = 7;

// Selects the part of the range that the view, of data rows or of totals, shows.
void SelectIn(QTableView& view, const GridRange& range) {
    const auto& model = static_cast<const GridModel&>(*view.model());
    const int first = std::max(range.row1, model.GridRow(0));
    const int last = std::min(range.row2, model.GridRow(model.rowCount() - 1));
    if (first > last) return view.clearSelection();
    const QItemSelection block(model.index(model.ModelRow(first), range.col1),
                               model.index(model.ModelRow(last), range.col2));
    view.selectionModel()->select(block, QItemSelectionModel::ClearAndSelect);
}

// Tells assistive programs that the cell is the current one.
void Announce(QTableView& view, const QModelIndex& cell) {
    if (!QAccessible::isActive() || !cell.isValid()) return;
    QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(&view);
    QAccessibleTableInterface* const table = face ? face->tableInterface() : nullptr;
    QAccessibleInterface* const spoken = table ? table->cellAt(cell.row(), cell.column()) : nullptr;
    if (!spoken) return;
    QAccessibleEvent event(spoken, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

}  // namespace

std::vector<int> FitColumns(std::vector<int> autoWidths, int clientWidth) {
    if (autoWidths.empty()) return autoWidths;
    const int count = static_cast<int>(autoWidths.size());
    const int sum = std::accumulate(autoWidths.begin(), autoWidths.end(), kExtraPerColumn * count);
    if (sum < clientWidth)
        for (int& width : autoWidths) width += (clientWidth - sum) / count;
    return autoWidths;
}

GridView::GridView(DocumentBinding& binding, Grid& grid, const QString& name, QWidget* parent)
    : QTableView(parent),
      binding_(binding),
      grid_(&grid),
      model_(new GridModel(binding, grid, GridModel::Part::Data, this)),
      cursor_(*this, *model_, binding, grid) {
    setObjectName(ToQt(grid.Name()));
    setAccessibleName(name);
    setFrameShape(QFrame::NoFrame);
    setSelectionMode(QAbstractItemView::ContiguousSelection);
    setEditTriggers(AnyKeyPressed | EditKeyPressed | DoubleClicked);
    setHorizontalScrollMode(ScrollPerPixel);
    setWordWrap(false);
    // The delegate draws the grid lines: those of Qt's styles differ, and some are invisible on a
    // dark background.
    setShowGrid(false);
    setCornerButtonEnabled(false);
    setModel(model_);
    setItemDelegate(new GridDelegate(*this, *this, binding, this));
    BuildHeader();
    Connect();
    binding.AddGrid(grid, *this);
    ShowCurrentCell();
}

void GridView::BuildHeader() {
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(RowHeight());
    setHorizontalHeader(new GridHeader(this));
    horizontalHeader()->setAccessibleName(tr("Columns of %1").arg(accessibleName()));
    horizontalHeader()->setSectionsClickable(grid_->RowsCanChange());
    // A click sorts; without this, Qt would also select the column.
    disconnect(horizontalHeader(), &QHeaderView::sectionPressed, this, nullptr);
    disconnect(horizontalHeader(), &QHeaderView::sectionEntered, this, nullptr);
    if (grid_->RowsCanChange())
        horizontalHeader()->setToolTip(
            tr("A click sorts the rows by this column, another one the other way round (Ctrl+Shift+S)"));
}

void GridView::Connect() {
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int col, int, int width) {
        if (totals_) totals_->setColumnWidth(col, width);
        if (fitting_) return;
        widthsChosen_ = true;
        emit ContentChanged();
    });
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &GridView::TellSelection);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &GridView::SortBy);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
        if (totals_) totals_->horizontalScrollBar()->setValue(value);
    });
}

void GridView::SetTotals(QTableView& totals, GridModel& model) {
    totals_ = &totals;
    totalsModel_ = &model;
    cursor_.SetHasTotals(true);
}

int GridView::RowHeight() const {
    return static_cast<int>(std::lround(kLinesPerRow * fontMetrics().lineSpacing()));
}

int GridView::ContentHeight() const {
    return horizontalHeader()->sizeHint().height() + model_->rowCount() * RowHeight();
}

int GridView::ContentWidth() const {
    return horizontalHeader()->length();
}

void GridView::ShowCell(int row, int col) {
    // The rows may no longer be in the order that the mark shows.
    if (!sorting_ && horizontalHeader()->sortIndicatorSection() == col) ShowSortMark(-1);
    if (binding_.IsHeld()) {
        stale_ = true;
        return;
    }
    model_->CellChanged(row);
    if (totals_) totalsModel_->CellChanged(row);
    if (!widthsChosen_ && WantsMoreRoom(row, col)) FitGridColumns();
    emit ContentChanged();
}

void GridView::ShowHeldChanges() {
    if (!std::exchange(stale_, false)) return;
    ShowColors();
    if (!widthsChosen_) FitGridColumns();
    ShowCurrentCell();
    emit ContentChanged();
}

bool GridView::WantsMoreRoom(int row, int col) const {
    if (!grid_ || !isVisible()) return false;
    const int modelRow = model_->ModelRow(row);
    const auto wants = [&](int each) {
        return modelRow >= 0 && sizeHintForIndex(model_->index(modelRow, each)).width() > columnWidth(each);
    };
    // The weight behind the amount of a hop appears with the last figure that it needs.
    return wants(col) || (grid_->Id() == GridId::Hops && wants(HopCol::Amount));
}

void GridView::ShowRowInserted(int row) {
    ShowSortMark(-1);
    FollowRows([&] { model_->RowInserted(row); });
}

void GridView::ShowRowRemoved(int row) {
    FollowRows([&] { model_->RowRemoved(row); });
}

// Changes the model's rows, during which Qt moves its own current cell, and then shows the record's again.
void GridView::FollowRows(const std::function<void()>& change) {
    following_ = true;
    change();
    following_ = false;
    // If the last row was deleted, the row above it becomes current, not the totals.
    if (grid_ && !grid_->IsDataRow(grid_->CurrentRow())) TellSelection();
    ShowCurrentCell();
    emit ContentChanged();
}

void GridView::ShowCurrentCell() {
    if (!grid_ || following_ || binding_.IsHeld()) {
        stale_ = stale_ || binding_.IsHeld();
        return;
    }
    const GridRange range = grid_->Selection();
    following_ = true;
    const int row = model_->ModelRow(grid_->CurrentRow());
    // Qt's current cell is the moving corner of the block; it is left unchanged while the block is the same.
    if (row < 0 || SelectedRange() != range || !selectionModel()->hasSelection()) {
        SelectIn(*this, range);
        if (row >= 0)
            selectionModel()->setCurrentIndex(model_->index(row, grid_->CurrentCol()),
                                              QItemSelectionModel::NoUpdate);
    }
    if (totals_) SelectIn(*totals_, range);
    following_ = false;
    if (cursor_.InTotals() && hasFocus())
        Announce(*totals_,
                 totalsModel_->index(totalsModel_->ModelRow(grid_->CurrentRow()), grid_->CurrentCol()));
    ShowFocus();
}

std::optional<GridRange> GridView::SelectedRange() const {
    const QModelIndex current = currentIndex();
    if (!grid_ || !current.isValid()) return std::nullopt;
    for (const QItemSelectionRange& block : selectionModel()->selection())
        if (block.contains(current))
            return GridRange{model_->GridRow(block.top()), block.left(), model_->GridRow(block.bottom()),
                             block.right()};
    const int row = model_->GridRow(current.row());
    return GridRange{row, current.column(), row, current.column()};
}

void GridView::ShowColors() {
    model_->AllChanged();
    if (totals_) totalsModel_->AllChanged();
}

void GridView::Detach() {
    if (!grid_) return;
    grid_ = nullptr;
    cursor_.Detach();
    refused_ = false;
    model_->Detach();
    if (totals_) totalsModel_->Detach();
}

void GridView::FitGridColumns() {
    if (!grid_ || !isVisible()) return;
    ensurePolished();
    std::vector<int> widths;
    for (int col = 0; col < model_->columnCount(); ++col) {
        int width = std::max(sizeHintForColumn(col), horizontalHeader()->sectionSizeHint(col));
        for (int row = 0; totals_ && row < totalsModel_->rowCount(); ++row)
            width = std::max(width, totals_->sizeHintForIndex(totalsModel_->index(row, col)).width());
        widths.push_back(width);
    }
    widths = FitColumns(std::move(widths), viewport()->width());
    fitting_ = true;
    for (int col = 0; col < static_cast<int>(widths.size()); ++col)
        setColumnWidth(col, widths[static_cast<std::size_t>(col)]);
    fitting_ = false;
    widthsChosen_ = false;
    emit ContentChanged();
}

bool GridView::IsBlankGrid() const {
    if (!grid_) return false;
    for (int row = Grid::FixedRows(); row < grid_->EndOfData(); ++row)
        if (!IsBlankRow(*grid_, row)) return false;
    return true;
}

void GridView::SetEditor(QWidget* editor, const QModelIndex& cell) {
    editor_ = editor;
    editedCell_ = cell;
    refused_ = false;
}

CellList GridView::ListOf(const QModelIndex& cell) const {
    CellList list;
    if (!grid_) return list;
    const int row = model_->GridRow(cell.row());
    binding_.Run(
        [&](RecipeDocument& document) { list = document.Cells().ListOf(*grid_, row, cell.column()); });
    return list;
}

bool GridView::CommitEditor() {
    if (!editor_) return true;
    commitData(editor_);
    if (refused_) {
        KeepEditor();
        return false;
    }
    closeEditor(editor_, QAbstractItemDelegate::NoHint);
    return true;
}

bool GridView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    // In a selected block, typing edits the cell with the frame.
    const bool byKey = trigger == AnyKeyPressed || trigger == EditKeyPressed;
    if (byKey && grid_ && !IsCurrentCell(index)) {
        const int row = model_->ModelRow(grid_->CurrentRow());
        if (row < 0 || index == model_->index(row, grid_->CurrentCol())) return false;
        setCurrentIndex(model_->index(row, grid_->CurrentCol()));
        return edit(currentIndex(), trigger, event);
    }
    if (hasDates_ && trigger == DoubleClicked && index.column() == LogCol::Date) {
        emit CalendarRequested(model_->GridRow(index.row()));
        return false;
    }
    if (trigger == DoubleClicked && model_->HasCatalogue(index)) {
        BrowseSoon();
        return false;
    }
    return QTableView::edit(index, trigger, event);
}

void GridView::commitData(QWidget* editor) {
    if (!grid_ || !editor || editor != editor_ || refused_ || committing_ || !editedCell_.isValid()) return;
    const int row = model_->GridRow(editedCell_.row()), col = editedCell_.column();
    if (!RuleOf(*grid_, col).HoldsWords()) GridDelegate::ShowDecimalPoint(*editor);
    const std::string text = FromQt(GridDelegate::EditorText(*editor));
    bool accepted = true;
    committing_ = true;
    // After an arithmetic error the cell is unchanged and the editor closes.
    binding_.Run(
        [&](RecipeDocument& document) { accepted = document.Cells().EditCell(*grid_, row, col, text); });
    committing_ = false;
    refused_ = !accepted;
}

void GridView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    if (committing_) return;
    if (editor == editor_ && refused_ && hint != QAbstractItemDelegate::RevertModelCache) {
        KeepEditor();
        return;
    }
    refused_ = false;
    editor_ = nullptr;
    QTableView::closeEditor(editor, QAbstractItemDelegate::NoHint);
    if (hint == QAbstractItemDelegate::EditNextItem || hint == QAbstractItemDelegate::EditPreviousItem)
        focusNextPrevChild(hint == QAbstractItemDelegate::EditNextItem);
    else if (hint == QAbstractItemDelegate::SubmitModelCache)
        StepDown();
}

// The editor of a refused entry stays open, with its text selected.
void GridView::KeepEditor() {
    const auto takeBack = [this] {
        refused_ = false;
        if (!editor_) return;
        if (editedCell_.isValid() && currentIndex() != editedCell_) setCurrentIndex(editedCell_);
        editor_->setFocus();
        GridDelegate::SelectEditorText(*editor_);
    };
    if (editor_->hasFocus())
        takeBack();
    else if (!binding_.IsRefusing())
        binding_.Refuse(editor_, takeBack);
}

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (!following_) TellSelection();
    WithdrawSoon();
}

void GridView::TellSelection() {
    const std::optional<GridRange> range = SelectedRange();
    if (following_ || !range || *range == grid_->Selection()) return;
    binding_.Run([&](RecipeDocument& document) { document.Focus().SelectCells(*grid_, *range); });
}

bool GridView::IsCurrentCell(const QModelIndex& cell) const {
    const auto* model = qobject_cast<const GridModel*>(cell.model());
    return grid_ && model && model->GridRow(cell.row()) == grid_->CurrentRow() &&
           cell.column() == grid_->CurrentCol();
}

void GridView::Toggle(const QModelIndex& cell) {
    if (!model_->IsCheckBox(cell) || !model_->CanEdit(cell)) return;
    const int row = model_->GridRow(cell.row()), col = cell.column();
    binding_.Run([&](RecipeDocument& document) {
        document.Cells().SetChecked(*grid_, row, col, !grid_->Checked(row, col));
    });
}

void GridView::BrowseSoon() {
    QMetaObject::invokeMethod(this, &GridView::BrowseCatalogue, Qt::QueuedConnection);
}

void GridView::BrowseCatalogue() {
    if (!grid_ || !binding_.Flush()) return;
    binding_.Run([this](RecipeDocument& document) { document.Picks().BrowseCell(*grid_); });
}

void GridView::SortBy(int col) {
    if (!grid_ || !grid_->RowsCanChange() || col < 0) return;
    // The shares have the order of the amounts.
    if (model_->IsShares(col)) col = GrainCol::Amount;
    sorting_ = true;
    binding_.Run([&](RecipeDocument& document) { document.Lines().ClickHeader(*grid_, col); });
    sorting_ = false;
    // The document has only one sort column for all its grids.
    binding_.ForEachGrid([&](GridWidget& view) { view.ShowSortMark(&view == this ? col : -1); });
}

void GridView::ShowSortMark(int col) {
    const RecipeDocument* document = binding_.Document();
    const bool descending = document && document->Lines().SortDescending();
    horizontalHeader()->setSortIndicator(col, descending ? Qt::DescendingOrder : Qt::AscendingOrder);
    horizontalHeader()->setSortIndicatorShown(col >= 0);
}

void GridView::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    const bool byTab = event->reason() == Qt::TabFocusReason;
    // A brewer who comes by Tab wants to type, which is impossible in the totals.
    if (byTab && cursor_.InTotals()) TellSelection();
    ShowCurrentCell();
    if (!currentIndex().isValid() && model_->rowCount() > 0 && !cursor_.InTotals())
        setCurrentIndex(model_->index(0, 0));
    if (byTab && !model_->CanEdit(currentIndex())) cursor_.Step(1);
    ShowFocus();
}

void GridView::focusOutEvent(QFocusEvent* event) {
    QTableView::focusOutEvent(event);
    ShowFocus();
    WithdrawSoon();
}

bool GridView::Grow() {
    bool grown = false;
    if (grid_ && !cursor_.InTotals())
        binding_.Run([&](RecipeDocument& document) { grown = document.Lines().OfferRow(*grid_); });
    return grown;
}

void GridView::StepDown() {
    if (!cursor_.IsAtEnd() || !Grow()) cursor_.StepDown();
}

// Later, because rows must not go while Qt changes the current cell or the focus.
void GridView::WithdrawSoon() {
    const RecipeDocument* const document = binding_.Document();
    if (!document || document->Lines().Offered() != grid_ || !grid_) return;
    const auto withdraw = [this] {
        const RecipeDocument* const recipe = binding_.Document();
        if (!recipe || !grid_ || recipe->Lines().Offered() != grid_) return;
        const QWidget* const focus = QApplication::focusWidget();
        // A dialog or a menu may be about to fill the row.
        const bool stays = !focus || focus->window() != window() || focus == this || isAncestorOf(focus) ||
                           QApplication::activePopupWidget();
        if (!stays || grid_->CurrentRow() != grid_->EndOfData() - 1)
            binding_.Run([](RecipeDocument& open) { open.Lines().WithdrawRow(); });
    };
    QMetaObject::invokeMethod(this, withdraw, Qt::QueuedConnection);
}

// Repaints the current cell, whose frame is thicker while the grid has the focus.
void GridView::ShowFocus() {
    viewport()->update();
    if (totals_) totals_->viewport()->update();
}

void GridView::mousePressEvent(QMouseEvent* event) {
    // The cell of a refused entry stays current until its editor has the focus again.
    if (binding_.IsRefusing()) return;
    const QModelIndex cell = indexAt(event->pos());
    // The right button moves the current cell, unless the click is inside the selection.
    if (event->button() == Qt::RightButton && cell.isValid() && selectionModel()->isSelected(cell)) return;
    QTableView::mousePressEvent(event);
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
    const QModelIndex cell = indexAt(event->pos());
    const bool clicked = event->button() == Qt::LeftButton && cell.isValid() && cell == currentIndex() &&
                         !binding_.IsRefusing();
    QTableView::mouseReleaseEvent(event);
    if (clicked) Toggle(cell);
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
    QPoint place = event->globalPos();
    if (event->reason() == QContextMenuEvent::Keyboard) place = PlaceOfCurrentCell();
    binding_.Frame().ShowEditMenu(place, MakeAddAction());
}

// Returns the menu item that adds the current row's name to the catalogue; nullptr if it cannot be added.
QAction* GridView::MakeAddAction() {
    bool canAdd = false;
    if (grid_) binding_.Run([&](RecipeDocument& recipe) { canAdd = recipe.Picks().CanAdd(*grid_); });
    if (!canAdd) return nullptr;
    auto* add = new QAction(tr("Add to the catalo&gue..."), this);
    add->setObjectName(QStringLiteral("AddToCatalogue"));
    connect(add, &QAction::triggered, this, [this] {
        if (!grid_ || !binding_.Flush()) return;
        binding_.Run([this](RecipeDocument& recipe) { recipe.Picks().AddCurrent(*grid_); });
    });
    return add;
}

QPoint GridView::PlaceOfCurrentCell() const {
    if (!cursor_.InTotals()) return viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft());
    const QModelIndex cell =
        totalsModel_->index(totalsModel_->ModelRow(grid_->CurrentRow()), grid_->CurrentCol());
    return totals_->viewport()->mapToGlobal(totals_->visualRect(cell).bottomLeft());
}

void GridView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    if (!widthsChosen_ && event->size().width() != event->oldSize().width()) FitGridColumns();
}

void GridView::showEvent(QShowEvent* event) {
    QTableView::showEvent(event);
    if (!widthsChosen_) FitGridColumns();
}

void GridView::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() != QEvent::FontChange) return;
    verticalHeader()->setDefaultSectionSize(RowHeight());
    horizontalHeader()->setFont(BoldFont(font()));
    emit ContentChanged();
}

}  // namespace tw
