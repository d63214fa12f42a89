// Writing a recipe. RecipeReader.cpp reads it.
#include "store/RecipeRows.h"

#include <sqlite3.h>

#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

// A statement of the design, put together piece by piece: fixed words, then a value.
class Statement {
  public:
    Statement& operator<<(std::string_view words) {
        sql_.append(words);
        return *this;
    }
    // The trimmed text, between quotes. A text column is never written NULL.
    Statement& Text(std::string_view words, const StoredText& text) {
        sql_.append(words);
        AppendSqlText(sql_, text ? Trim(*text) : std::string_view());
        return *this;
    }
    Statement& Number(std::string_view words, const std::optional<double>& number) {
        sql_.append(words);
        AppendNumberText(sql_, Finite(number.value_or(0)));
        return *this;
    }
    Statement& Whole(std::string_view words, std::int64_t number) {
        sql_.append(words).append(std::to_string(number));
        return *this;
    }
    Statement& Bool(std::string_view words, const std::optional<bool>& value) {
        sql_.append(words).append(value.value_or(false) ? "TRUE" : "FALSE");
        return *this;
    }
    Statement& Date(std::string_view words, const DateTime& when) {
        sql_.append(words).append("'").append(DateText(when)).append("'");
        return *this;
    }
    // A cell's text, bare; NULL for a blank one.
    Statement& Bare(std::string_view words, const StoredText& text) {
        const std::string_view cell = text ? Trim(*text) : std::string_view();
        sql_.append(words).append(cell.empty() ? "NULL" : cell);
        double number = 0;
        // Between the words of the statement any other text would be read as a part of it.
        if (!cell.empty() && !ReadNumber(cell, number))
            throw Error("Database", "'" + std::string(cell) + "' is no number.", SQLITE_MISMATCH);
        return *this;
    }
    // "words 'text', column = number", or the pair as two values when column is empty.
    Statement& Pair(std::string_view words, const StoredQuantity& quantity, std::string_view between = ", ") {
        return Text(words, quantity.text).Number(between, quantity.data);
    }
    const std::string& Sql() const { return sql_; }

  private:
    std::string sql_;
};

// Runs an UPDATE; false when it touches no row.
bool Update(Database& database, const Statement& statement) {
    database.Execute(statement.Sql());
    return database.RecordsAffected() > 0;
}

std::optional<std::int64_t> InsertRow(Database& database, const StoredRecipe& recipe) {
    Statement insert;
    insert.Text("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID, CREATED_WHEN, MODIFIED_WHEN) VALUES (",
                recipe.name)
            .Whole(", ", recipe.styleId.value_or(0))
            .Whole(", ", recipe.folderId.value_or(0))
            .Date(", ", recipe.createdWhen.value())
            .Date(", ", recipe.modifiedWhen)
        << ")";
    database.Execute(insert.Sql());
    Statement select;
    select.Text("SELECT ID FROM RECIPES WHERE NAME = ", recipe.name);
    const Recordset rows = database.OpenRecordset(select.Sql());
    if (rows.AtEnd()) return std::nullopt;
    return rows.Fields(0).Integer();
}

bool UpdateFigures(Database& database, const StoredRecipe& recipe, std::int64_t id) {
    Statement update;
    update.Pair("UPDATE RECIPES SET BV = ", recipe.bv, ", BV_DATA = ")
        .Pair(", TV = ", recipe.tv, ", TV_DATA = ")
        .Pair(", DILUTIONS = ", recipe.dilutions, ", DILUTIONS_DATA = ")
        .Pair(", FV = ", recipe.fv, ", FV_DATA = ")
        .Pair(", BG = ", recipe.bg, ", BG_DATA = ")
        .Pair(", OG = ", recipe.og, ", OG_DATA = ")
        .Pair(", FG = ", recipe.fg, ", FG_DATA = ")
        .Whole(" WHERE ID = ", id);
    return Update(database, update);
}

bool UpdateTexts(Database& database, const StoredRecipe& recipe, std::int64_t id) {
    Statement update;
    update.Text("UPDATE RECIPES SET ABV = ", recipe.abv)
        .Text(", COLOR = ", recipe.color)
        .Text(", IBU = ", recipe.ibu)
        .Text(", NOTES = ", recipe.notes)
        .Text(", NUMBATCHES = ", recipe.numBatches)
        .Pair(", GRAIN_EXTRACT = ", recipe.grainExtract, ", GRAIN_EXTRACT_DATA = ")
        .Whole(", IBU_METHOD = ", recipe.ibuMethod.value_or(0))
        .Pair(", HOP_EXTRACT = ", recipe.hopExtract, ", HOP_EXTRACT_DATA = ")
        .Bool(", BOTTLED = ", recipe.bottled)
        .Pair(", KEG_PSI = ", recipe.kegPsi, ", KEG_PSI_DATA = ")
        .Bare(", KEG_VOLS = ", recipe.kegVols)
        .Pair(", TEMPERATURE = ", recipe.temperature, ", TEMPERATURE_DATA = ")
        .Text(", CO2_VOLS = ", recipe.co2Vols)
        .Whole(" WHERE ID = ", id);
    return Update(database, update);
}

bool UpdateWater(Database& database, const StoredRecipe& recipe, std::int64_t id) {
    Statement update;
    update.Text("UPDATE RECIPES SET SRC_PROFILE_NAME = ", recipe.source.profile)
        .Bare(", SRC_CA = ", recipe.source.ions[0])
        .Bare(", SRC_CO3 = ", recipe.source.ions[1])
        .Bare(", SRC_CL = ", recipe.source.ions[2])
        .Bare(", SRC_MG = ", recipe.source.ions[3])
        .Bare(", SRC_NA = ", recipe.source.ions[4])
        .Bare(", SRC_SO4 = ", recipe.source.ions[5])
        .Text(", TRG_PROFILE_NAME = ", recipe.target.profile)
        .Bare(", TRG_CA = ", recipe.target.ions[0])
        .Bare(", TRG_CO3 = ", recipe.target.ions[1])
        .Bare(", TRG_CL = ", recipe.target.ions[2])
        .Bare(", TRG_MG = ", recipe.target.ions[3])
        .Bare(", TRG_NA = ", recipe.target.ions[4])
        .Bare(", TRG_SO4 = ", recipe.target.ions[5])
        .Whole(" WHERE ID = ", id);
    return Update(database, update);
}

// Each line's statement begins with the words up to the recipe's id and its row.
Statement Begin(std::string_view words, std::int64_t id, int rowId) {
    Statement statement;
    statement.Whole(words, id).Whole(", ", rowId);
    return statement;
}

void Finish(Database& database, Statement& statement) {
    statement << ")";
    database.Execute(statement.Sql());
}

void InsertGrains(Database& database, const std::vector<StoredGrain>& lines, std::int64_t id, bool grain) {
    for (const StoredGrain& line : lines) {
        Statement insert;
        insert
            .Bool(
                "INSERT INTO RECIPE_GRAINS (GRAIN, RECIPE_ID, ROW_ID, NAME, AMOUNT, AMOUNT_DATA, PPG, "
                "PPG_DATA, "
                "COLOR, COLOR_DATA) VALUES (",
                grain)
            .Whole(", ", id)
            .Whole(", ", line.rowId)
            .Text(", ", line.name)
            .Pair(", ", line.amount)
            .Pair(", ", line.ppg)
            .Pair(", ", line.color);
        Finish(database, insert);
    }
}

void InsertHops(Database& database, const std::vector<StoredHop>& lines, std::int64_t id) {
    for (const StoredHop& line : lines) {
        Statement insert = Begin(
            "INSERT INTO RECIPE_HOPS (RECIPE_ID, ROW_ID, NAME, HOP_FORM, HOP_SOCK, AMOUNT, AMOUNT_DATA, AA, "
            "AA_DATA, "
            "DURATION, DURATION_DATA, DRY) VALUES (",
            id, line.rowId);
        insert.Text(", ", line.name)
            .Whole(", ", line.form.value_or(0))
            .Bool(", ", line.sock)
            .Pair(", ", line.amount)
            .Pair(", ", line.aa)
            .Pair(", ", line.duration)
            .Bool(", ", line.dry);
        Finish(database, insert);
    }
}

void InsertSalts(Database& database, const std::vector<StoredSalt>& lines, std::int64_t id) {
    for (const StoredSalt& line : lines) {
        Statement insert = Begin(
            "INSERT INTO RECIPE_SALTS (RECIPE_ID, ROW_ID, NAME, AMOUNT, AMOUNT_DATA, CA, CO3, CL, MG, NA, "
            "SO4) VALUES "
            "(",
            id, line.rowId);
        insert.Text(", ", line.name).Pair(", ", line.amount);
        for (const std::optional<double>& ion : line.ions) insert.Number(", ", ion);
        Finish(database, insert);
    }
}

void InsertSugars(Database& database, const std::vector<StoredSugar>& lines, std::int64_t id) {
    for (const StoredSugar& line : lines) {
        Statement insert = Begin(
            "INSERT INTO RECIPE_SUGARS (RECIPE_ID, ROW_ID, NAME, FERMENT, FERMENT_DATA, AMOUNT, AMOUNT_DATA) "
            "VALUES (",
            id, line.rowId);
        insert.Text(", ", line.name).Pair(", ", line.ferment).Pair(", ", line.amount);
        Finish(database, insert);
    }
}

void InsertAdjuncts(Database& database, const std::vector<StoredAdjunct>& lines, std::int64_t id) {
    for (const StoredAdjunct& line : lines) {
        Statement insert =
            Begin("INSERT INTO RECIPE_ADJUNCTS (RECIPE_ID, ROW_ID, NAME, AMOUNT, DURATION, WHEN) VALUES (",
                  id, line.rowId);
        insert.Text(", ", line.name).Text(", ", line.amount).Text(", ", line.duration).Text(", ", line.when);
        Finish(database, insert);
    }
}

void InsertLog(Database& database, const std::vector<StoredLogLine>& lines, std::int64_t id) {
    for (const StoredLogLine& line : lines) {
        Statement insert = Begin(
            "INSERT INTO RECIPE_LOG (RECIPE_ID, ROW_ID, LOGDATE, ACTION, NOTES) VALUES (", id, line.rowId);
        insert.Text(", ", line.date).Text(", ", line.action).Text(", ", line.notes);
        Finish(database, insert);
    }
}

}  // namespace

bool InsertRecipe(Database& database, const StoredRecipe& recipe) {
    UnitOfWork unit(database);
    const std::optional<std::int64_t> id = InsertRow(database, recipe);
    const bool found = id && UpdateFigures(database, recipe, *id) && UpdateTexts(database, recipe, *id) &&
                       UpdateWater(database, recipe, *id);
    if (found) {
        InsertGrains(database, recipe.grains, *id, true);
        InsertGrains(database, recipe.extracts, *id, false);
        InsertHops(database, recipe.hops, *id);
        InsertSalts(database, recipe.salts, *id);
        InsertSugars(database, recipe.sugars, *id);
        InsertAdjuncts(database, recipe.adjuncts, *id);
        InsertLog(database, recipe.log, *id);
    }
    unit.Commit();
    return found;
}

}  // namespace tw
