// What an editor shows and takes.
#include "catalogue/CatalogueEditor.h"

#include <algorithm>

#include "calc/BeerColor.h"
#include "catalogue/CellReader.h"
#include "platform/Error.h"
#include "tree/ListFormats.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr std::string_view kNoType = "?";
constexpr std::string_view kFlocculations[] = {"Low", "Medium", "High", "Very High"};

}  // namespace

CatalogueEditor::CatalogueEditor(CatalogueKind catalogue, const CatalogueContext& context)
    : form_(&FormOf(catalogue)), context_(context) {
    cells_.resize(form_->rows.size() * static_cast<std::size_t>(Cols()));
    SetUpLists();
}

std::string CatalogueEditor::CellName(int row, int col) {
    return "gridInfo(" + std::to_string(row) + "," + std::to_string(col) + ")";
}

void CatalogueEditor::SetUpLists() {
    list1_ = list2_ = {};
    const bool forStyles = form_->catalogue == CatalogueKind::Style;
    if (forStyles) list1_.entries.emplace_back(kNoType);
    if (forStyles || form_->catalogue == CatalogueKind::Yeast)
        for (const std::string_view type : TypeNames()) list1_.entries.emplace_back(type);
    if (forStyles) {
        list2_.entries = {""};
        for (Recordset rows = Store().OpenRecordset("SELECT NAME FROM WATER_PROFILES ORDER BY NAME");
             !rows.AtEnd(); rows.MoveNext())
            list2_.entries.push_back(rows.Fields(0).Text());
    } else if (form_->catalogue == CatalogueKind::Yeast) {
        list2_.entries.assign(std::begin(kFlocculations), std::end(kFlocculations));
        list2_.freeText = true;
    }
    // The first type, which of a style is none.
    if (!list1_.entries.empty()) list1_.text = list1_.entries.front();
}

void CatalogueEditor::Clear() {
    name_.clear();
    text2_.clear();
    description_.clear();
    loadedName_.clear();
    std::ranges::fill(cells_, CellState());
    SetUpLists();
    ClearOwn();
    applyEnabled_ = false;
}

void CatalogueEditor::SetName(std::string_view name) {
    Clear();
    if (IsBlank(name)) return;
    const Recordset row =
        Store().OpenRecordset("SELECT * FROM " + std::string(form_->table) + " WHERE NAME = ?", {Trim(name)});
    if (row.AtEnd())
        return context_.messages.ShowMessage("Error", "No data available for " + std::string(name));
    try {
        Read(row);
    } catch (const Error&) {
        // Storing what was read of a bad row would lose the rest.
        Clear();
        throw;
    }
}

void CatalogueEditor::Read(const Recordset& row) {
    name_ = loadedName_ = row.Fields("NAME").Text();
    for (const FormColumn& column : form_->columns) ReadColumn(column, row);
    for (int i = 0; i < Rows(); ++i) {
        SetCell(i, 0, row.Fields(form_->rows[static_cast<std::size_t>(i)].low));
        if (Cols() > 1) SetCell(i, 1, row.Fields(form_->rows[static_cast<std::size_t>(i)].high));
    }
    ReadOwn(row);
}

void CatalogueEditor::ReadColumn(const FormColumn& column, const Recordset& row) {
    const Field field = row.Fields(column.column);
    switch (column.source) {
        case ColumnSource::Text2:
            text2_ = field.Text();
            break;
        case ColumnSource::Description:
            description_ = field.Text();
            break;
        case ColumnSource::Combo2:
            list2_.text = field.Text();
            break;
        case ColumnSource::TypeNumber: {
            // What the list does not hold is shown all the same, so that saving does not change it.
            list1_.text = field.IsNull() ? std::string() : std::string(Trim(ListTypeName(field)));
            if (list1_.text.empty() && !field.IsNull()) list1_.text = field.Text();
            if (field.IsNull() && form_->catalogue == CatalogueKind::Style) list1_.text = kNoType;
            break;
        }
        default:
            break;
    }
}

void CatalogueEditor::SetCell(int row, int col, const Field& number) {
    if (number.IsNull()) return;
    CellState& cell = Cell(row, col);
    cell.value = Finite(number.Number());
    cell.text = cell.goodText = NumberText(*cell.value);
}

std::string CatalogueEditor::*CatalogueEditor::TextNamed(std::string_view control) const {
    if (control == "Text1") return &CatalogueEditor::name_;
    if (control == "Text2" && !form_->text2.empty()) return &CatalogueEditor::text2_;
    if (control == "txtDesc") return &CatalogueEditor::description_;
    return nullptr;
}

EditorList CatalogueEditor::*CatalogueEditor::ListNamed(std::string_view control) const {
    if (control == "Combo1" && !form_->combo1.empty()) return &CatalogueEditor::list1_;
    if (control == "Combo2" && !form_->combo2.empty()) return &CatalogueEditor::list2_;
    return nullptr;
}

const std::string& CatalogueEditor::Text(std::string_view control) const {
    const auto text = TextNamed(control);
    return text == nullptr ? description_ : this->*text;
}

const EditorList& CatalogueEditor::List(std::string_view control) const {
    const auto list = ListNamed(control);
    return list == nullptr ? list1_ : this->*list;
}

void CatalogueEditor::MarkChanged() {
    applyEnabled_ = true;
}

void CatalogueEditor::TypeCell(int row, int col, std::string_view text) {
    CellState& cell = Cell(row, col);
    if (readOnly_ || cell.text == text) return;
    cell.text = text;
    MarkChanged();
}

// The number of a text that is not blank; nothing when it was refused, which a box has said.
std::optional<double> CatalogueEditor::ReadAloud(const RangeRow& row, std::string_view text) {
    try {
        const Reading<double> value = ReadCell(row, text);
        if (value) return *value;
        ShowRefusal(context_.messages, value.Why());
    } catch (const Error& error) {
        context_.messages.ShowMessage("Error", error.WithNumber());
    }
    return std::nullopt;
}

bool CatalogueEditor::LeaveCell(int row, int col) {
    CellState& cell = Cell(row, col);
    // A figure that is only looked at keeps all its digits.
    if (cell.text == cell.goodText) return true;
    const bool blank = IsBlank(cell.text);
    const std::optional<double> value =
        blank ? std::nullopt : ReadAloud(form_->rows[static_cast<std::size_t>(row)], cell.text);
    if (!blank && !value) {
        cell.text = cell.goodText;
        return false;
    }
    cell.value = value;
    cell.goodText = cell.text;
    return true;
}

std::string CatalogueEditor::RangeHint() const {
    for (int row = 0; Cols() > 1 && row < Rows(); ++row) {
        const std::optional<double> low = CellValue(row, 0), high = CellValue(row, 1);
        if (low && high && *low > *high)
            return std::string(form_->rows[static_cast<std::size_t>(row)].caption) +
                   ": the low value is above the high one.";
    }
    return {};
}

std::optional<double> CatalogueEditor::ColorHcu() const {
    for (int row = 0; row < Rows(); ++row) {
        const RangeRow::Color color = form_->rows[static_cast<std::size_t>(row)].color;
        if (color == RangeRow::Color::None) continue;
        const std::optional<double> low = CellValue(row, 0), high = CellValue(row, 1);
        if (!low && !high) return std::nullopt;
        const double middle = std::max(0.0, (low ? *low : *high) / 2 + (high ? *high : *low) / 2);
        // A malt shows as the wort of a pound in a gallon, whose colour units are its degrees Lovibond.
        return color == RangeRow::Color::Srm ? SRMToHCU(middle) : middle;
    }
    return std::nullopt;
}

std::vector<DialogControl> CatalogueEditor::Controls() const {
    std::vector<DialogControl> controls;
    for (const char* text : {"Text1", "Text2", "txtDesc"})
        if (const auto found = TextNamed(text)) controls.push_back({text, this->*found});
    for (const char* list : {"Combo1", "Combo2"})
        if (const auto found = ListNamed(list)) controls.push_back({list, (this->*found).text});
    if (const std::optional<std::string> folder = FolderText()) controls.push_back({"FolderID", *folder});
    for (int row = 0; row < Rows(); ++row)
        for (int col = 0; col < Cols(); ++col) controls.push_back({CellName(row, col), CellText(row, col)});
    return controls;
}

std::optional<std::pair<int, int>> CatalogueEditor::CellNamed(std::string_view name) const {
    for (int row = 0; row < Rows(); ++row)
        for (int col = 0; col < Cols(); ++col)
            if (CellName(row, col) == name) return std::pair(row, col);
    return std::nullopt;
}

bool CatalogueEditor::EnterList(std::string_view name, std::string_view text) {
    const auto found = ListNamed(name);
    if (found == nullptr) return false;
    EditorList& list = this->*found;
    if (list.freeText) {
        list.text = text;
        return true;
    }
    const auto entry =
        std::ranges::find_if(list.entries, [&](const std::string& e) { return SameName(e, text); });
    // What the row came with may stay.
    if (entry == list.entries.end()) return SameName(list.text, text);
    list.text = *entry;
    return true;
}

bool CatalogueEditor::SetControl(std::string_view name, std::string_view text) {
    if (readOnly_) return false;
    if (const auto cell = CellNamed(name)) {
        TypeCell(cell->first, cell->second, text);
        LeaveCell(cell->first, cell->second);
        return true;
    }
    if (const auto box = TextNamed(name))
        this->*box = text;
    else if (name == "FolderID" ? !EnterFolder(text) : !EnterList(name, text))
        return false;
    MarkChanged();
    return true;
}

void CatalogueEditor::GoTo(const std::string& name) {
    if (!name.empty()) SetName(name);
}

void CatalogueEditor::Step(std::string_view button) {
    if (navigator_ == nullptr) return;
    if (button == "cmdFirst") return GoTo(navigator_->GetFirst());
    if (button == "cmdPrevious") return GoTo(navigator_->GetPrevious());
    if (button == "cmdNext") return GoTo(navigator_->GetNext());
    GoTo(navigator_->GetLast());
}

bool CatalogueEditor::Press(std::string_view button) {
    if (button == "cmdOK") {
        // A form that only shows closes by either button.
        if (readOnly_) {
            CloseBox();
        } else if (Save()) {
            cancelled_ = false;
            open_ = false;
        }
    } else if (button == "cmdApply") {
        if (ApplyEnabled() && Save()) Applied();
    } else if (button == "cmdCancel") {
        CloseBox();
    } else if (button == "cmdFirst" || button == "cmdPrevious" || button == "cmdNext" ||
               button == "cmdLast") {
        Step(button);
    } else {
        return false;
    }
    return true;
}

void CatalogueEditor::CloseBox() {
    cancelled_ = true;
    open_ = false;
}

}  // namespace tw
