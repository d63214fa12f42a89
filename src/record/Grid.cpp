#include "record/Grid.h"

#include <algorithm>

#include "values/NumberText.h"

namespace tw {

std::string CellValue::Text() const {
    std::string text;
    if (kind == Kind::AlphaAcidUnits) text = "A";
    if (kind == Kind::BitternessUnits) text = "I";
    AppendNumberText(text, number);
    return text;
}

Grid::Grid(RecordLink& link, Layout layout) : link_(&link), layout_(std::move(layout)) {
    Row header;
    for (const Column& column : layout_.columns)
        header.cells.push_back({column.header, {}, CheckState::None, true});
    header.readOnly = true;
    rows_.push_back(std::move(header));
    for (int i = 0; i < layout_.totalsRows; ++i) {
        Row row;
        row.cells.resize(layout_.columns.size());
        row.readOnly = true;
        row.paint = CellPaint::Total;
        rows_.push_back(std::move(row));
    }
    SetCurrent(FixedRows(), 0);
}

Grid::Row Grid::MakeRow() const {
    Row row;
    row.cells.resize(layout_.columns.size());
    for (std::size_t i = 0; i < row.cells.size(); ++i)
        if (layout_.columns[i].checkBox) row.cells[i].check = CheckState::Unchecked;
    return row;
}

void Grid::Changed(int row, int col) const {
    if (link_->observer) link_->observer->CellChanged(*this, row, col);
}

CellPaint Grid::Paint(int row, int col) const {
    const CellPaint paint = RowAt(row).paint;
    if (paint != CellPaint::Plain || !IsDataRow(row)) return paint;
    const Column& column = ColumnAt(col);
    return column.readOnly && !column.label ? CellPaint::ReadOnly : CellPaint::Plain;
}

std::string Grid::Shown(int row, int col) const {
    const Cell& cell = At(row, col);
    const std::string_view pattern = ColumnAt(col).pattern;
    if (row < FixedRows() || pattern.empty() || cell.text.empty()) return cell.text;
    return FormatNumber(cell.value.number, pattern);
}

void Grid::SetText(int row, int col, std::string_view text) {
    Cell& cell = Slot(row, col);
    if (cell.text == text) return;
    cell.text = text;
    Changed(row, col);
}

void Grid::SetComputed(int row, int col, double number) {
    Cell& cell = Slot(row, col);
    if (!cell.text.empty() && cell.value.number == number) return;
    cell.value = CellValue::Of(number);
    cell.text.clear();
    AppendNumberText(cell.text, number);
    Changed(row, col);
}

void Grid::Clear(int row, int col) {
    Cell& cell = Slot(row, col);
    cell.value = {};
    cell.ownNumber = false;
    if (cell.text.empty()) return;
    cell.text.clear();
    Changed(row, col);
}

void Grid::SetChecked(int row, int col, bool checked) {
    Cell& cell = Slot(row, col);
    const CheckState state = checked ? CheckState::Checked : CheckState::Unchecked;
    if (cell.check == state) return;
    cell.check = state;
    Changed(row, col);
}

void Grid::SetBold(int row, int col, bool bold) {
    Cell& cell = Slot(row, col);
    if (cell.bold == bold) return;
    cell.bold = bold;
    Changed(row, col);
}

void Grid::RestoreCells(int row, const std::vector<Cell>& cells) {
    for (int col = 0; col < Cols(); ++col) {
        const Cell& wanted = cells[static_cast<std::size_t>(col)];
        Cell& cell = Slot(row, col);
        if (cell == wanted) continue;
        cell = wanted;
        Changed(row, col);
    }
}

void Grid::InsertRow(int row) {
    rows_.insert(rows_.begin() + row, MakeRow());
    if (link_->observer) link_->observer->RowInserted(*this, row);
    // This was the first row of an empty grid, so the current cell was in the header.
    if (currentRow_ < FixedRows()) SetCurrent(row, currentCol_);
}

void Grid::RemoveRow(int row) {
    rows_.erase(rows_.begin() + row);
    if (link_->observer) link_->observer->RowRemoved(*this, row);
    SetCurrent(currentRow_, currentCol_);
}

void Grid::SetCurrent(int row, int col) {
    Select({row, col, row, col});
}

void Grid::Select(GridRange range) {
    const auto clipRow = [&](int row) {
        return std::clamp(row, std::min(FixedRows(), Rows() - 1), Rows() - 1);
    };
    const auto clipCol = [&](int col) { return std::clamp(col, 0, Cols() - 1); };
    const GridRange wanted{
        clipRow(std::min(range.row1, range.row2)), clipCol(std::min(range.col1, range.col2)),
        clipRow(std::max(range.row1, range.row2)), clipCol(std::max(range.col1, range.col2))};
    if (wanted == selection_ && currentRow_ == wanted.row1 && currentCol_ == wanted.col1) return;
    selection_ = wanted;
    currentRow_ = wanted.row1;
    currentCol_ = wanted.col1;
    if (link_->observer) link_->observer->CurrentCellChanged(*this);
}

void Grid::OrderRows(const std::vector<int>& order) {
    std::vector<Row> rows;
    rows.reserve(order.size());
    for (const int place : order)
        rows.push_back(std::move(rows_[static_cast<std::size_t>(FixedRows() + place)]));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const int row = FixedRows() + static_cast<int>(i);
        rows_[static_cast<std::size_t>(row)] = std::move(rows[i]);
        for (int col = 0; col < Cols(); ++col) Changed(row, col);
    }
}

void Grid::NotifyFilled() const {
    if (link_->observer) link_->observer->GridFilled(*this);
}

}  // namespace tw
