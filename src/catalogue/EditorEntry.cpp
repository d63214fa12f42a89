#include "catalogue/EditorEntry.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "tree/ListFormats.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr std::string_view kNoType = "?";
constexpr std::string_view kFlocculations[] = {"Low", "Medium", "High", "Very High"};

void ReadColumn(EditorEntry& entry, const EditorForm& form, const FormColumn& column, const Recordset& row) {
    const Field field = row.Fields(column.column);
    switch (column.source) {
        case ColumnSource::Text2:
            entry.text2 = field.Text();
            break;
        case ColumnSource::Description:
            entry.description = field.Text();
            break;
        case ColumnSource::Combo2:
            entry.combo2.text = field.Text();
            break;
        case ColumnSource::TypeNumber: {
            // A number without a word in the list is shown as it is, so that saving does not change it.
            std::string& type = entry.combo1.text;
            type = field.IsNull() ? std::string() : std::string(Trim(ListTypeName(field)));
            if (type.empty() && !field.IsNull()) type = field.Text();
            if (field.IsNull() && form.catalogue == CatalogueKind::Style) type = kNoType;
            break;
        }
        default:
            break;
    }
}

void ReadCell(CellGrid& cells, int row, int col, const Field& number) {
    if (!number.IsNull()) cells.Load(row, col, number.Number());
}

// Returns the number of a type's word; NULL if there is none. A number that has no word stays that number.
SqlValue TypeNumber(std::string_view word) {
    for (std::size_t i = 0; i < TypeNames().size(); ++i)
        if (SameName(TypeNames()[i], word)) return i;
    const std::optional<double> number = ReadNumber(word);
    return number ? SqlValue(*number) : SqlValue(Null());
}

void AddCells(const CellGrid& cells, BlankCell blankCell, ColumnValues& values) {
    const SqlValue blank = blankCell == BlankCell::Zero ? SqlValue(0) : SqlValue(Null());
    const auto valueOf = [&](const std::optional<double>& number) {
        return number ? SqlValue(*number) : blank;
    };
    for (int i = 0; i < cells.Rows(); ++i) {
        const RangeRow& row = cells.Quantity(i);
        std::optional<double> low = cells.Value(i, 0), high = low;
        if (cells.Cols() > 1) {
            high = cells.Value(i, 1);
            if (blankCell == BlankCell::LeftOut) {
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

}  // namespace

bool EditorList::Choose(std::string_view entry) {
    if (freeText) {
        text = entry;
        return true;
    }
    const auto found =
        std::ranges::find_if(entries, [&](const std::string& known) { return SameName(known, entry); });
    // The text that came with the row may stay.
    if (found == entries.end()) return SameName(text, entry);
    text = *found;
    return true;
}

void ClearEntry(EditorEntry& entry, const EditorForm& form, Database& database) {
    entry = EditorEntry(form);
    EditorList& types = entry.combo1;
    const bool forStyles = form.catalogue == CatalogueKind::Style;
    if (forStyles) types.entries.emplace_back(kNoType);
    if (forStyles || form.catalogue == CatalogueKind::Yeast)
        for (const std::string_view type : TypeNames()) types.entries.emplace_back(type);
    if (forStyles) {
        entry.combo2.entries = {""};
        for (Recordset rows = database.OpenRecordset("SELECT NAME FROM WATER_PROFILES ORDER BY NAME");
             !rows.AtEnd(); rows.MoveNext())
            entry.combo2.entries.push_back(rows.Fields(0).Text());
    } else if (form.catalogue == CatalogueKind::Yeast) {
        entry.combo2.entries.assign(std::begin(kFlocculations), std::end(kFlocculations));
        entry.combo2.freeText = true;
    }
    // For styles the first type means that there is none.
    if (!types.entries.empty()) types.text = types.entries.front();
}

void ReadEntry(EditorEntry& entry, const EditorForm& form, const Recordset& row) {
    entry.name = row.Fields("NAME").Text();
    for (const FormColumn& column : form.columns) ReadColumn(entry, form, column, row);
    CellGrid& cells = entry.cells;
    for (int i = 0; i < cells.Rows(); ++i) {
        ReadCell(cells, i, 0, row.Fields(cells.Quantity(i).low));
        if (cells.Cols() > 1) ReadCell(cells, i, 1, row.Fields(cells.Quantity(i).high));
    }
}

ColumnValues ValuesOf(const EditorEntry& entry, const EditorForm& form, const std::string& name,
                      const std::function<SqlValue(ColumnSource)>& ownValue) {
    const auto valueOf = [&](ColumnSource source) -> SqlValue {
        switch (source) {
            case ColumnSource::Name:
                return name;
            case ColumnSource::Text2:
                return entry.text2;
            case ColumnSource::Description:
                return entry.description;
            case ColumnSource::TypeNumber:
                return TypeNumber(entry.combo1.text);
            case ColumnSource::Combo2:
                // A style without a water profile has NULL, but a flocculation is always text.
                if (form.blank == BlankCell::Null && IsBlank(entry.combo2.text)) return Null();
                return entry.combo2.text;
            default:
                return ownValue(source);
        }
    };
    ColumnValues values;
    for (const FormColumn& column : form.columns) {
        SqlValue value = valueOf(column.source);
        if (form.blank == BlankCell::LeftOut && value == SqlValue(Null())) continue;
        values.emplace_back(column.column, std::move(value));
    }
    AddCells(entry.cells, form.blank, values);
    return values;
}

void InsertRow(Database& database, std::string_view table, const ColumnValues& values) {
    std::string columns, places;
    SqlValues bound;
    for (const auto& [column, value] : values) {
        columns.append(columns.empty() ? "" : ", ").append(column);
        places.append(places.empty() ? "?" : ", ?");
        bound.push_back(value);
    }
    database.Execute("INSERT INTO " + std::string(table) + " (" + columns + ") VALUES (" + places + ")",
                     bound);
}

}  // namespace tw
