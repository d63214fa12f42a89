// How an editor writes its row.
#include "catalogue/CatalogueEditor.h"
#include "platform/Error.h"
#include "tree/ListFormats.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr std::string_view kNull = "NULL";

// The number of a type's word; NULL for none. A number that has no word is its own.
std::string TypeNumber(std::string_view word) {
    for (std::size_t i = 0; i < TypeNames().size(); ++i)
        if (SameName(TypeNames()[i], word)) return std::to_string(i);
    double number = 0;
    return ReadNumber(word, number) ? NumberText(number) : std::string(kNull);
}

std::string Literal(const std::optional<double>& number, std::string_view blank) {
    return number ? NumberText(*number) : std::string(blank);
}

}  // namespace

bool CatalogueEditor::CheckName(const std::string& name) {
    if (name.empty()) {
        context_.messages.ShowMessage("Invalid Name", std::string(form_->kind) + " name cannot be blank.");
        return false;
    }
    if (SameName(name, loadedName_)) return true;
    if (Store()
            .OpenRecordset("SELECT * FROM " + std::string(form_->table) + " WHERE NAME = " + SqlText(name))
            .AtEnd())
        return true;
    context_.messages.ShowMessage(
        "Duplicate Name", "A " + std::string(form_->duplicate) + " named '" + name + "' already exists.");
    return false;
}

bool CatalogueEditor::Save() {
    for (int row = 0; row < Rows(); ++row)
        for (int col = 0; col < Cols(); ++col) {
            refusedControl_ = CellName(row, col);
            if (!LeaveCell(row, col)) return false;
        }
    refusedControl_ = "Text1";
    const std::string name(Trim(name_));
    try {
        if (!CheckName(name) || !Write(name)) return false;
    } catch (const Error& error) {
        ShowError(error.Description());
        return false;
    }
    refusedControl_.clear();
    name_ = loadedName_ = selection_ = name;
    applyEnabled_ = false;
    if (onSaved_) onSaved_(selection_);
    return true;
}

std::string CatalogueEditor::ValueOf(ColumnSource source, const std::string& name) const {
    switch (source) {
        case ColumnSource::Name:
            return SqlText(name);
        case ColumnSource::Text2:
            return SqlText(text2_);
        case ColumnSource::Description:
            return SqlText(description_);
        case ColumnSource::TypeNumber:
            return TypeNumber(list1_.text);
        case ColumnSource::Combo2:
            // A style without a water has none; a flocculation is a text.
            if (form_->blank == BlankCell::Null && IsBlank(list2_.text)) return std::string(kNull);
            return SqlText(list2_.text);
        default:
            return OwnValue(source);
    }
}

void CatalogueEditor::AddRanges(ColumnValues& values) const {
    const std::string_view blank = form_->blank == BlankCell::Zero ? "0" : kNull;
    for (int i = 0; i < Rows(); ++i) {
        const RangeRow& row = form_->rows[static_cast<std::size_t>(i)];
        std::optional<double> low = CellValue(i, 0), high = low;
        if (Cols() > 1) {
            high = CellValue(i, 1);
            if (form_->blank == BlankCell::LeftOut) {
                if (!low && !high) continue;
                if (!low) low = high;
                if (!high) high = low;
            }
            values.emplace_back(row.low, Literal(low, blank));
            values.emplace_back(row.high, Literal(high, blank));
        } else {
            values.emplace_back(row.low, Literal(low, blank));
        }
    }
}

CatalogueEditor::ColumnValues CatalogueEditor::Values(const std::string& name) const {
    ColumnValues values;
    for (const FormColumn& column : form_->columns) {
        std::string value = ValueOf(column.source, name);
        if (form_->blank == BlankCell::LeftOut && value == kNull) continue;
        values.emplace_back(column.column, std::move(value));
    }
    AddRanges(values);
    return values;
}

void CatalogueEditor::Insert(const ColumnValues& values) {
    std::string columns, literals;
    for (const auto& [column, literal] : values) {
        const char* const comma = columns.empty() ? "" : ", ";
        columns.append(comma).append(column);
        literals.append(comma).append(literal);
    }
    Store().Execute("INSERT INTO " + std::string(form_->table) + " (" + columns + ") VALUES (" + literals +
                    ")");
}

bool CatalogueEditor::Write(const std::string& name) {
    UnitOfWork unit(Store());
    try {
        BeforeWrite();
        if (!loadedName_.empty())
            Store().Execute("DELETE FROM " + std::string(form_->table) +
                            " WHERE NAME = " + SqlText(loadedName_));
        Insert(Values(name));
        AfterWrite();
    } catch (const Error&) {
        // The old row must not go when the new one cannot be written.
        unit.Abandon();
        throw;
    }
    unit.Commit();
    return true;
}

}  // namespace tw
