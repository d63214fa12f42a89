// How an editor writes its row.
#include "catalogue/CatalogueEditor.h"
#include "platform/Error.h"
#include "tree/ListFormats.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

// The number of a type's word; Null for none. A number that has no word is its own.
SqlValue TypeNumber(std::string_view word) {
    for (std::size_t i = 0; i < TypeNames().size(); ++i)
        if (SameName(TypeNames()[i], word)) return i;
    double number = 0;
    return ReadNumber(word, number) ? SqlValue(number) : SqlValue(Null());
}

}  // namespace

bool CatalogueEditor::CheckName(const std::string& name) {
    if (name.empty()) {
        context_.messages.ShowMessage("Invalid Name", std::string(form_->kind) + " name cannot be blank.");
        return false;
    }
    if (SameName(name, loadedName_)) return true;
    if (Store()
            .OpenRecordset("SELECT * FROM " + std::string(form_->table) + " WHERE NAME = ?", {name})
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

SqlValue CatalogueEditor::ValueOf(ColumnSource source, const std::string& name) const {
    switch (source) {
        case ColumnSource::Name:
            return name;
        case ColumnSource::Text2:
            return text2_;
        case ColumnSource::Description:
            return description_;
        case ColumnSource::TypeNumber:
            return TypeNumber(list1_.text);
        case ColumnSource::Combo2:
            // A style without a water has none; a flocculation is a text.
            if (form_->blank == BlankCell::Null && IsBlank(list2_.text)) return Null();
            return list2_.text;
        default:
            return OwnValue(source);
    }
}

void CatalogueEditor::AddRanges(ColumnValues& values) const {
    const SqlValue blank = form_->blank == BlankCell::Zero ? SqlValue(0) : SqlValue(Null());
    const auto valueOf = [&](const std::optional<double>& number) {
        return number ? SqlValue(*number) : blank;
    };
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
            values.emplace_back(row.low, valueOf(low));
            values.emplace_back(row.high, valueOf(high));
        } else {
            values.emplace_back(row.low, valueOf(low));
        }
    }
}

CatalogueEditor::ColumnValues CatalogueEditor::Values(const std::string& name) const {
    ColumnValues values;
    for (const FormColumn& column : form_->columns) {
        SqlValue value = ValueOf(column.source, name);
        if (form_->blank == BlankCell::LeftOut && value == SqlValue(Null())) continue;
        values.emplace_back(column.column, std::move(value));
    }
    AddRanges(values);
    return values;
}

void CatalogueEditor::Insert(const ColumnValues& values) {
    std::string columns, places;
    SqlValues bound;
    for (const auto& [column, value] : values) {
        columns.append(columns.empty() ? "" : ", ").append(column);
        places.append(places.empty() ? "?" : ", ?");
        bound.push_back(value);
    }
    Store().Execute("INSERT INTO " + std::string(form_->table) + " (" + columns + ") VALUES (" + places + ")",
                    bound);
}

bool CatalogueEditor::Write(const std::string& name) {
    UnitOfWork unit(Store());
    try {
        BeforeWrite();
        if (!loadedName_.empty())
            Store().Execute("DELETE FROM " + std::string(form_->table) + " WHERE NAME = ?", {loadedName_});
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
