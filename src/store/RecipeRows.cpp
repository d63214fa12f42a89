// Writes a recipe. RecipeReader.cpp reads it.
#include "store/RecipeRows.h"

#include <algorithm>
#include <span>
#include <sqlite3.h>

#include "store/RecipeColumns.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

// Returns the value to store in a column. line is the line to write, for a grid with its own table. An option
// is a number.
StoredValue ValueOf(const RecipeColumn& column, const StoredRecipe& recipe, const StoredLine* line) {
    switch (column.owner) {
        case RecipeColumn::Owner::Field:
            return recipe[column.field];
        case RecipeColumn::Owner::Option:
            if (column.option == OptionId::IbuMethod)
                return {{}, static_cast<double>(recipe.ibuMethod.value_or(0))};
            return {{}, recipe.bottled.value_or(false) ? 1 : 0};
        case RecipeColumn::Owner::Cell:
            break;
    }
    return (line ? *line : recipe[column.grid][column.line]).cells[column.cell];
}

// Appends the text of a cell without quotes; NULL for a blank one.
void AppendBare(std::string& sql, std::string_view cell) {
    sql.append(cell.empty() ? "NULL" : cell);
    // Without quotes, text that is not a number would become part of the statement.
    if (!cell.empty() && !ReadNumber(cell))
        throw Error("Database", "'" + std::string(cell) + "' is no number.", SQLITE_MISMATCH);
}

// Appends a value. A text column is never written as NULL.
void Append(std::string& sql, RecipeColumn::Holds holds, const StoredValue& value) {
    const std::string_view text = value.text ? Trim(*value.text) : std::string_view();
    const double number = value.number.value_or(0);
    switch (holds) {
        case RecipeColumn::Holds::Text:
            return AppendSqlText(sql, text);
        case RecipeColumn::Holds::Number:
            return AppendNumberText(sql, Finite(number));
        case RecipeColumn::Holds::BareText:
            return AppendBare(sql, text);
        case RecipeColumn::Holds::Whole:
            sql.append(std::to_string(static_cast<std::int64_t>(number)));
            return;
        case RecipeColumn::Holds::Flag:
            sql.append(number != 0 ? "TRUE" : "FALSE");
            return;
    }
}

std::optional<std::int64_t> InsertRow(Database& database, const StoredRecipe& recipe) {
    const std::string name = SqlText(Trim(recipe.name));
    database.Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID, CREATED_WHEN, MODIFIED_WHEN) VALUES (" +
                     name + ", " + std::to_string(recipe.styleId.value_or(0)) + ", " +
                     std::to_string(recipe.folderId.value_or(0)) + ", '" +
                     DateText(recipe.createdWhen.value()) + "', '" + DateText(recipe.modifiedWhen) + "')");
    const Recordset rows = database.OpenRecordset("SELECT ID FROM RECIPES WHERE NAME = " + name);
    if (rows.AtEnd()) return std::nullopt;
    return rows.Fields(0).Integer();
}

// False if the statement changes no row.
bool UpdateColumns(Database& database, const StoredRecipe& recipe, std::span<const RecipeColumn> columns,
                   std::int64_t id) {
    std::string sql = "UPDATE RECIPES SET ";
    for (const RecipeColumn& column : columns) {
        sql.append(&column == columns.data() ? "" : ", ").append(column.name).append(" = ");
        Append(sql, column.holds, ValueOf(column, recipe, nullptr));
    }
    sql.append(" WHERE ID = ").append(std::to_string(id));
    database.Execute(sql);
    return database.RecordsAffected() > 0;
}

// Updates the row in three statements, which end with the gravities, the carbonation, and the waters.
bool UpdateRow(Database& database, const StoredRecipe& recipe, std::int64_t id) {
    std::span<const RecipeColumn> rest = RecipeColumns();
    for (const std::string_view last : {"FG_DATA", "CO2_VOLS"}) {
        const auto end = std::ranges::find(rest, last, &RecipeColumn::name);
        const auto count = std::min(rest.size(), static_cast<std::size_t>(end - rest.begin()) + 1);
        if (!UpdateColumns(database, recipe, rest.first(count), id)) return false;
        rest = rest.subspan(count);
    }
    return UpdateColumns(database, recipe, rest, id);
}

void InsertLines(Database& database, const StoredRecipe& recipe, const GridRule& grid, std::int64_t id) {
    if (grid.lines.name.empty() || recipe[grid.id].empty()) return;
    std::string start = "INSERT INTO ";
    start.append(grid.lines.name).append(" (");
    if (!grid.lines.flagColumn.empty()) start.append(grid.lines.flagColumn).append(", ");
    start.append("RECIPE_ID, ROW_ID");
    for (const RecipeColumn& column : LineColumns(grid.id)) start.append(", ").append(column.name);
    start.append(") VALUES (");
    if (!grid.lines.flagColumn.empty()) start.append(grid.lines.flag ? "TRUE, " : "FALSE, ");
    start.append(std::to_string(id)).append(", ");
    for (const StoredLine& line : recipe[grid.id]) {
        std::string sql = start + std::to_string(line.rowId);
        for (const RecipeColumn& column : LineColumns(grid.id)) {
            sql.append(", ");
            Append(sql, column.holds, ValueOf(column, recipe, &line));
        }
        database.Execute(sql.append(")"));
    }
}

}  // namespace

StoredRecipe::StoredRecipe() {
    for (const GridRule& grid : GridRules())
        for (std::size_t line = 0; line < grid.prefixes.size(); ++line)
            (*this)[grid.id].push_back(EmptyLine(grid.id, static_cast<int>(line)));
}

StoredLine EmptyLine(GridId grid, int rowId) {
    return {rowId, std::vector<StoredValue>(RuleOf(grid).columns.size())};
}

std::optional<std::int64_t> InsertRecipe(Database& database, const StoredRecipe& recipe,
                                         const RowWritten& rowWritten) {
    UnitOfWork unit(database);
    std::optional<std::int64_t> id = InsertRow(database, recipe);
    if (id && rowWritten) rowWritten(*id);
    if (id && !UpdateRow(database, recipe, *id)) id.reset();
    if (id)
        for (const GridRule& grid : GridRules()) InsertLines(database, recipe, grid, *id);
    unit.Commit();
    return id;
}

void DeleteRecipeRows(Database& database, std::int64_t id, RecipeEnd why) {
    RecipeEnds(database, id, why);
    database.Execute("DELETE FROM RECIPES WHERE ID = ?", {id});
    RecipeEnded(database, id, why);
    for (const char* const lines : {"RECIPE_GRAINS", "RECIPE_HOPS", "RECIPE_ADJUNCTS", "RECIPE_LOG"})
        database.Execute("DELETE FROM " + std::string(lines) + " WHERE RECIPE_ID = ?", {id});
}

}  // namespace tw
