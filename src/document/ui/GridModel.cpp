#include "document/ui/GridModel.h"

#include <QBrush>
#include <QFont>
#include <QWidget>
#include <algorithm>

#include "document/BriefCell.h"
#include "document/GridAsides.h"
#include "platform/Error.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"
#include "record/CellRules.h"

namespace tw {
namespace {

// True for the ion cells of "Treatment Needed" and "Treatment Totals".
bool IsItalic(const Grid& grid, int row, int col) {
    return grid.Id() == GridId::Water && row >= WaterRow::Needed && col >= WaterCol::FirstIon;
}

QVariant SharesHeader(int role) {
    switch (role) {
        case Qt::DisplayRole:
            return QStringLiteral("%");
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(Qt::AlignVCenter | Qt::AlignRight);
        case Qt::ToolTipRole:
        case Qt::AccessibleTextRole:
            return GridModel::tr("Share of the weight of all malts, grains, extracts and sugars");
        default:
            return {};
    }
}

// Returns the colour as the value of a role; an invalid variant for an invalid colour.
QVariant BrushOf(const QColor& color) {
    return color.isValid() ? QVariant(QBrush(color)) : QVariant();
}

}  // namespace

GridModel::GridModel(DocumentBinding& binding, Grid& grid, Part part, QWidget* view)
    : QAbstractTableModel(view),
      binding_(binding),
      view_(*view),
      grid_(&grid),
      part_(part),
      rows_(CountRows()) {}

int GridModel::FirstRow() const {
    return part_ == Part::Data || !grid_ ? Grid::FixedRows() : grid_->EndOfData();
}

int GridModel::CountRows() const {
    return part_ == Part::Data ? grid_->DataRows() : grid_->Rows() - grid_->EndOfData();
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() || !grid_ ? 0 : rows_;
}

int GridModel::columnCount(const QModelIndex& parent) const {
    if (parent.isValid() || !grid_) return 0;
    return grid_->Cols() + (ShowsShares(*grid_) ? 1 : 0);
}

bool GridModel::IsShares(int col) const {
    return grid_ && col == grid_->Cols();
}

int GridModel::ModelRow(int gridRow) const {
    const int row = gridRow - FirstRow();
    return row >= 0 && row < rows_ ? row : -1;
}

bool GridModel::IsCheckBox(const QModelIndex& index) const {
    return grid_ && index.isValid() && !IsShares(index.column()) &&
           grid_->IsCheckBox(GridRow(index.row()), index.column());
}

bool GridModel::CanEdit(const QModelIndex& index) const {
    const RecipeDocument* document = binding_.Document();
    return grid_ && document && index.isValid() && part_ == Part::Data &&
           document->Cells().CanEdit(*grid_, GridRow(index.row()), index.column());
}

Qt::Alignment GridModel::AlignmentOf(const Grid& grid, int col) {
    if (grid.ColumnAt(col).checkBox) return Qt::AlignCenter;
    return Qt::AlignVCenter | (RuleOf(grid, col).HoldsWords() ? Qt::AlignLeft : Qt::AlignRight);
}

bool GridModel::HasCatalogue(const QModelIndex& index) const {
    const RecipeDocument* document = binding_.Document();
    return grid_ && document && index.isValid() && part_ == Part::Data &&
           document->Picks().ListOf(*grid_, GridRow(index.row()), index.column());
}

bool GridModel::IsTotal(const QModelIndex& index) const {
    if (!grid_ || !index.isValid()) return false;
    const int col = std::min(index.column(), grid_->Cols() - 1);
    return grid_->Paint(GridRow(index.row()), col) == CellPaint::Total;
}

CellColors GridModel::ColorsOf(int row, int col) const {
    switch (grid_->Paint(row, col)) {
        case CellPaint::ReadOnly:
            return CalculatedColors(binding_.Frame().Colors().readOnly, view_.palette());
        case CellPaint::Total:
            return TotalColors(binding_.Frame().Colors().total, view_.palette());
        case CellPaint::Plain:
            break;
    }
    return {};
}

// Totals are bold. In the data rows, bold means that an ion is close enough to its target.
QVariant GridModel::FontOf(int row, int col) const {
    const bool isTotal = part_ == Part::Totals && grid_->Paint(row, col) == CellPaint::Total;
    const bool bold = isTotal || grid_->At(row, col).bold, italic = IsItalic(*grid_, row, col);
    if (!bold && !italic) return {};
    QFont font;
    font.setBold(bold);
    font.setItalic(italic);
    return font;
}

// Returns the accessible text of a cell: its row, its column and its value.
QString GridModel::Spoken(int row, int col) const {
    QString value = ToQt(BriefCell(*grid_, row, col));
    if (grid_->IsCheckBox(row, col)) value = grid_->Checked(row, col) ? tr("yes") : tr("no");
    if (value.isEmpty()) value = tr("empty");
    if (const QString aside = AsideOf(row, col); !aside.isEmpty()) value += QLatin1Char(' ') + aside;
    return tr("Row %1, %2: %3").arg(row).arg(ToQt(grid_->ColumnAt(col).header), value);
}

QString GridModel::GapOf(const QModelIndex& index) const {
    if (!HasCatalogue(index)) return {};
    try {
        return ToQt(binding_.Document()->Missing().ReasonOf(*grid_, GridRow(index.row())));
    } catch (const Error&) {
        // A cell is painted even if the catalogue cannot be read.
        return {};
    }
}

// Returns the text of a cell that is painted rounded; nothing for any other cell.
QVariant GridModel::ExactText(int row, int col) const {
    const std::string exact = grid_->Shown(row, col);
    return exact == BriefCell(*grid_, row, col) ? QVariant() : ToQt(exact);
}

QVariant GridModel::TipOf(const QModelIndex& index) const {
    if (!HasCatalogue(index)) return ExactText(GridRow(index.row()), index.column());
    const QString gap = GapOf(index);
    const QString tip = tr("A double click or Ctrl+Enter opens the catalogue to choose from");
    return gap.isEmpty() ? tip : gap + QLatin1Char('\n') + tip;
}

QVariant GridModel::ShareOf(int row, int role) const {
    const RecipeDocument* document = binding_.Document();
    const bool isTotal = part_ == Part::Totals;
    const QString share = document ? ToQt(ShareText(document->Record(), *grid_, row)) : QString();
    switch (role) {
        case Qt::DisplayRole:
            return share;
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(Qt::AlignVCenter | Qt::AlignRight);
        case Qt::BackgroundRole:
            return isTotal ? BrushOf(ColorsOf(row, grid_->Cols() - 1).ground) : QVariant();
        case Qt::ForegroundRole:
            return BrushOf(HintColor(view_.palette()));
        case Qt::AccessibleTextRole:
            return tr("Row %1, share of the weight: %2").arg(row).arg(share.isEmpty() ? tr("none") : share);
        default:
            return {};
    }
}

QString GridModel::AsideOf(int row, int col) const {
    const RecipeDocument* document = binding_.Document();
    return document ? ToQt(HopWeightText(document->Calculator(), *grid_, row, col)) : QString();
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (!grid_ || !index.isValid()) return {};
    const int row = GridRow(index.row()), col = index.column();
    if (IsShares(col)) return ShareOf(row, role);
    if (!grid_->HasCell(row, col)) return {};
    switch (role) {
        case Qt::DisplayRole:
            return ToQt(BriefCell(*grid_, row, col));
        case Qt::EditRole:
            return ToQt(grid_->Text(row, col));
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(AlignmentOf(*grid_, col));
        case Qt::BackgroundRole:
            return BrushOf(ColorsOf(row, col).ground);
        case Qt::ForegroundRole:
            return BrushOf(ColorsOf(row, col).ink);
        case Qt::FontRole:
            return FontOf(row, col);
        case Qt::CheckStateRole:
            if (!grid_->IsCheckBox(row, col)) return {};
            return grid_->Checked(row, col) ? Qt::Checked : Qt::Unchecked;
        case Qt::AccessibleTextRole:
            return Spoken(row, col);
        case Qt::AccessibleDescriptionRole:
        case kGapRole:
            return GapOf(index);
        case kAsideRole:
            return AsideOf(row, col);
        case Qt::ToolTipRole:
            return TipOf(index);
        default:
            return {};
    }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (!grid_ || orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
    if (IsShares(section)) return SharesHeader(role);
    if (role == Qt::DisplayRole) return ToQt(grid_->ColumnAt(section).header);
    if (role == Qt::TextAlignmentRole) return QVariant::fromValue(AlignmentOf(*grid_, section));
    return {};
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    // The cursor keys and the mouse pass it over.
    if (IsShares(index.column())) return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (CanEdit(index)) flags |= IsCheckBox(index) ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable;
    return flags;
}

void GridModel::CellChanged(int gridRow) {
    const int row = ModelRow(gridRow);
    if (row < 0) return;
    // What other cells of the row show beside their texts may depend on this one.
    emit dataChanged(index(row, 0), index(row, grid_->Cols() - 1));
    SharesChanged();
}

void GridModel::RowInserted(int gridRow) {
    const int row = gridRow - FirstRow();
    if (rows_ == CountRows() || row < 0 || row > rows_) return;
    beginInsertRows({}, row, row);
    ++rows_;
    endInsertRows();
}

void GridModel::RowRemoved(int gridRow) {
    const int row = ModelRow(gridRow);
    if (rows_ == CountRows() || row < 0) return;
    beginRemoveRows({}, row, row);
    --rows_;
    endRemoveRows();
    SharesChanged();
}

void GridModel::SharesChanged() {
    if (grid_ && ShowsShares(*grid_) && rows_ > 0)
        emit dataChanged(index(0, grid_->Cols()), index(rows_ - 1, grid_->Cols()));
}

void GridModel::AllChanged() {
    if (grid_ && rows_ > 0) emit dataChanged(index(0, 0), index(rows_ - 1, columnCount() - 1));
}

void GridModel::Detach() {
    beginResetModel();
    grid_ = nullptr;
    rows_ = 0;
    endResetModel();
}

}  // namespace tw
