// Reads a recipe. RecipeRows.cpp writes it.
#include "store/RecipeColumns.h"
#include "store/RecipeRows.h"
#include "values/Text.h"

namespace tw {
namespace {

std::optional<std::int64_t> ReadWhole(const Field& field) {
    if (field.IsNull()) return std::nullopt;
    return field.Integer();
}

int ReadRow(const Recordset& rows) {
    // A damaged row number must not make the grid grow without limit.
    constexpr std::int64_t kMost = 1'000'000;
    const std::int64_t row = rows.Fields("ROW_ID").Integer();
    if (row < 0 || row > kMost)
        throw Error("Recordset", "A line of the recipe has no valid place: " + std::to_string(row) + ".",
                    kOverflowNumber);
    return static_cast<int>(row);
}

// Any field may be NULL; the value is then absent from the result.
void ReadInto(StoredValue& value, const RecipeColumn& column, const Recordset& rows) {
    const Field field = rows.Fields(column.name);
    if (field.IsNull()) return;
    switch (column.holds) {
        case RecipeColumn::Holds::Text:
        case RecipeColumn::Holds::BareText:
            value.text = field.Text();
            break;
        case RecipeColumn::Holds::Number:
            value.number = field.Number();
            break;
        case RecipeColumn::Holds::Whole:
            value.number = static_cast<double>(field.Integer());
            break;
        case RecipeColumn::Holds::Flag:
            value.number = field.Boolean() ? 1 : 0;
            break;
    }
}

void ReadOwnRow(const Recordset& rows, StoredRecipe& recipe) {
    recipe.id = rows.Fields("ID").Integer();
    recipe.createdWhen = ParseDateText(rows.Fields("CREATED_WHEN").Text());
    if (const auto modified = ParseDateText(rows.Fields("MODIFIED_WHEN").Text()))
        recipe.modifiedWhen = *modified;
    recipe.name = rows.Fields("NAME").Text();
    recipe.folderId = ReadWhole(rows.Fields("FOLDER_ID"));
    recipe.styleId = ReadWhole(rows.Fields("STYLE_ID"));
    for (const RecipeColumn& column : RecipeColumns()) {
        StoredValue option;
        switch (column.owner) {
            case RecipeColumn::Owner::Field:
                ReadInto(recipe[column.field], column, rows);
                break;
            case RecipeColumn::Owner::Cell:
                ReadInto(recipe[column.grid][column.line].cells[column.cell], column, rows);
                break;
            case RecipeColumn::Owner::Option:
                ReadInto(option, column, rows);
                if (!option.number) break;
                if (column.option == OptionId::IbuMethod)
                    recipe.ibuMethod = static_cast<std::int64_t>(*option.number);
                else
                    recipe.bottled = *option.number != 0;
                break;
        }
    }
}

// The highest row is read first, so that the grid grows only once.
void ReadLines(Database& database, const GridRule& grid, StoredRecipe& recipe) {
    if (grid.lines.name.empty()) return;
    std::string sql = "SELECT * FROM ";
    sql.append(grid.lines.name).append(" WHERE RECIPE_ID = ?");
    if (!grid.lines.flagColumn.empty())
        sql.append(grid.lines.flag ? " AND " : " AND NOT ").append(grid.lines.flagColumn);
    sql.append(" ORDER BY ROW_ID DESC");
    for (Recordset rows = database.OpenRecordset(sql, {recipe.id}); !rows.AtEnd(); rows.MoveNext()) {
        StoredLine line = EmptyLine(grid.id, ReadRow(rows));
        for (const RecipeColumn& column : LineColumns(grid.id))
            ReadInto(line.cells[column.cell], column, rows);
        recipe[grid.id].push_back(std::move(line));
    }
}

}  // namespace

std::optional<StoredRecipe> ReadRecipe(Database& database, std::string_view name) {
    // Written without spaces around "=", because recorded statements are compared character by character.
    Recordset rows = database.OpenRecordset("SELECT * FROM RECIPES WHERE NAME=?", {name});
    if (rows.AtEnd()) return std::nullopt;
    StoredRecipe recipe;
    ReadOwnRow(rows, recipe);
    rows.Close();
    for (const GridRule& grid : GridRules()) ReadLines(database, grid, recipe);
    return recipe;
}

std::optional<std::int64_t> RecipeId(Database& database, std::string_view name) {
    const Recordset rows = database.OpenRecordset("SELECT * FROM RECIPES WHERE NAME = ?", {Trim(name)});
    if (rows.AtEnd()) return std::nullopt;
    return rows.Fields("ID").Integer();
}

bool RecipeExists(Database& database, std::string_view name) {
    return RecipeId(database, name).has_value();
}

}  // namespace tw
