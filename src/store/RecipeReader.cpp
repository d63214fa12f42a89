// Reading a recipe. RecipeRows.cpp writes it.
#include "store/RecipeRows.h"
#include "values/Text.h"

namespace tw {
namespace {

// Every field may be NULL; it is absent in what is read then.
StoredText ReadText(const Field& field) {
    if (field.IsNull()) return std::nullopt;
    return field.Text();
}

std::optional<double> ReadNumber(const Field& field) {
    if (field.IsNull()) return std::nullopt;
    return field.Number();
}

std::optional<std::int64_t> ReadWhole(const Field& field) {
    if (field.IsNull()) return std::nullopt;
    return field.Integer();
}

std::optional<bool> ReadBool(const Field& field) {
    if (field.IsNull()) return std::nullopt;
    return field.Boolean();
}

int ReadRow(const Recordset& rows) {
    constexpr std::int64_t kMost =
        1'000'000;  // a damaged place in the grid must not make it grow without end
    const std::int64_t row = rows.Fields("ROW_ID").Integer();
    if (row < 0 || row > kMost)
        throw Error("Recordset", "A line of the recipe has no valid place: " + std::to_string(row) + ".",
                    kOverflowNumber);
    return static_cast<int>(row);
}

StoredQuantity ReadPair(const Recordset& rows, std::string_view text, std::string_view data) {
    return {ReadText(rows.Fields(text)), ReadNumber(rows.Fields(data))};
}

void ReadFigures(const Recordset& rows, StoredRecipe& recipe) {
    recipe.createdWhen = ParseDateText(rows.Fields("CREATED_WHEN").Text());
    if (const auto modified = ParseDateText(rows.Fields("MODIFIED_WHEN").Text()))
        recipe.modifiedWhen = *modified;
    recipe.name = rows.Fields("NAME").Text();
    recipe.folderId = ReadWhole(rows.Fields("FOLDER_ID"));
    recipe.styleId = ReadWhole(rows.Fields("STYLE_ID"));
    recipe.bv = ReadPair(rows, "BV", "BV_DATA");
    recipe.tv = ReadPair(rows, "TV", "TV_DATA");
    recipe.dilutions = ReadPair(rows, "DILUTIONS", "DILUTIONS_DATA");
    recipe.fv = ReadPair(rows, "FV", "FV_DATA");
    recipe.bg = ReadPair(rows, "BG", "BG_DATA");
    recipe.og = ReadPair(rows, "OG", "OG_DATA");
    recipe.fg = ReadPair(rows, "FG", "FG_DATA");
    recipe.abv = ReadText(rows.Fields("ABV"));
    recipe.color = ReadText(rows.Fields("COLOR"));
    recipe.ibu = ReadText(rows.Fields("IBU"));
    recipe.co2Vols = ReadText(rows.Fields("CO2_VOLS"));
    recipe.notes = ReadText(rows.Fields("NOTES"));
    recipe.numBatches = ReadText(rows.Fields("NUMBATCHES"));
    recipe.grainExtract = ReadPair(rows, "GRAIN_EXTRACT", "GRAIN_EXTRACT_DATA");
    recipe.ibuMethod = ReadWhole(rows.Fields("IBU_METHOD"));
    recipe.hopExtract = ReadPair(rows, "HOP_EXTRACT", "HOP_EXTRACT_DATA");
    recipe.bottled = ReadBool(rows.Fields("BOTTLED"));
    recipe.temperature = ReadPair(rows, "TEMPERATURE", "TEMPERATURE_DATA");
}

void ReadWaterAndPressure(const Recordset& rows, StoredRecipe& recipe) {
    constexpr std::array<std::string_view, 6> kSource{"SRC_CA", "SRC_CO3", "SRC_CL",
                                                      "SRC_MG", "SRC_NA",  "SRC_SO4"};
    constexpr std::array<std::string_view, 6> kTarget{"TRG_CA", "TRG_CO3", "TRG_CL",
                                                      "TRG_MG", "TRG_NA",  "TRG_SO4"};
    recipe.source.profile = ReadText(rows.Fields("SRC_PROFILE_NAME"));
    recipe.target.profile = ReadText(rows.Fields("TRG_PROFILE_NAME"));
    for (std::size_t ion = 0; ion < kSource.size(); ++ion) {
        recipe.source.ions[ion] = ReadText(rows.Fields(kSource[ion]));
        recipe.target.ions[ion] = ReadText(rows.Fields(kTarget[ion]));
    }
    recipe.kegPsi = ReadPair(rows, "KEG_PSI", "KEG_PSI_DATA");
    recipe.kegVols = ReadText(rows.Fields("KEG_VOLS"));
}

// The statement that reads the lines of a table; the highest row comes first, so that a grid grows at once.
Recordset OpenLines(Database& database, std::string_view table, std::string_view id,
                    std::string_view condition = "") {
    std::string sql = "SELECT * FROM ";
    sql.append(table)
        .append(" WHERE RECIPE_ID = ")
        .append(id)
        .append(condition)
        .append(" ORDER BY ROW_ID DESC");
    return database.OpenRecordset(sql);
}

std::vector<StoredGrain> ReadGrains(Database& database, std::string_view id, std::string_view condition) {
    std::vector<StoredGrain> lines;
    for (Recordset rows = OpenLines(database, "RECIPE_GRAINS", id, condition); !rows.AtEnd(); rows.MoveNext())
        lines.push_back({ReadRow(rows), ReadText(rows.Fields("NAME")),
                         ReadPair(rows, "AMOUNT", "AMOUNT_DATA"), ReadPair(rows, "PPG", "PPG_DATA"),
                         ReadPair(rows, "COLOR", "COLOR_DATA")});
    return lines;
}

std::vector<StoredHop> ReadHops(Database& database, std::string_view id) {
    std::vector<StoredHop> lines;
    for (Recordset rows = OpenLines(database, "RECIPE_HOPS", id); !rows.AtEnd(); rows.MoveNext())
        lines.push_back({ReadRow(rows), ReadText(rows.Fields("NAME")), ReadWhole(rows.Fields("HOP_FORM")),
                         ReadBool(rows.Fields("HOP_SOCK")), ReadBool(rows.Fields("DRY")),
                         ReadPair(rows, "AMOUNT", "AMOUNT_DATA"), ReadPair(rows, "AA", "AA_DATA"),
                         ReadPair(rows, "DURATION", "DURATION_DATA")});
    return lines;
}

std::vector<StoredSalt> ReadSalts(Database& database, std::string_view id) {
    std::vector<StoredSalt> lines;
    for (Recordset rows = OpenLines(database, "RECIPE_SALTS", id); !rows.AtEnd(); rows.MoveNext())
        lines.push_back(
            {ReadRow(rows),
             ReadText(rows.Fields("NAME")),
             ReadPair(rows, "AMOUNT", "AMOUNT_DATA"),
             {ReadNumber(rows.Fields("CA")), ReadNumber(rows.Fields("CO3")), ReadNumber(rows.Fields("CL")),
              ReadNumber(rows.Fields("MG")), ReadNumber(rows.Fields("NA")), ReadNumber(rows.Fields("SO4"))}});
    return lines;
}

std::vector<StoredSugar> ReadSugars(Database& database, std::string_view id) {
    std::vector<StoredSugar> lines;
    for (Recordset rows = OpenLines(database, "RECIPE_SUGARS", id); !rows.AtEnd(); rows.MoveNext())
        lines.push_back({ReadRow(rows), ReadText(rows.Fields("NAME")),
                         ReadPair(rows, "FERMENT", "FERMENT_DATA"), ReadPair(rows, "AMOUNT", "AMOUNT_DATA")});
    return lines;
}

std::vector<StoredAdjunct> ReadAdjuncts(Database& database, std::string_view id) {
    std::vector<StoredAdjunct> lines;
    for (Recordset rows = OpenLines(database, "RECIPE_ADJUNCTS", id); !rows.AtEnd(); rows.MoveNext())
        lines.push_back({ReadRow(rows), ReadText(rows.Fields("NAME")), ReadText(rows.Fields("AMOUNT")),
                         ReadText(rows.Fields("DURATION")), ReadText(rows.Fields("WHEN"))});
    return lines;
}

std::vector<StoredLogLine> ReadLog(Database& database, std::string_view id) {
    std::vector<StoredLogLine> lines;
    for (Recordset rows = OpenLines(database, "RECIPE_LOG", id); !rows.AtEnd(); rows.MoveNext())
        lines.push_back({ReadRow(rows), ReadText(rows.Fields("LOGDATE")), ReadText(rows.Fields("ACTION")),
                         ReadText(rows.Fields("NOTES"))});
    return lines;
}

}  // namespace

std::optional<StoredRecipe> ReadRecipe(Database& database, std::string_view name) {
    // No blanks around "=": so the statement stands in the design.
    Recordset rows = database.OpenRecordset("SELECT * FROM RECIPES WHERE NAME=" + SqlText(name));
    if (rows.AtEnd()) return std::nullopt;
    StoredRecipe recipe;
    ReadFigures(rows, recipe);
    ReadWaterAndPressure(rows, recipe);
    recipe.id = rows.Fields("ID").Integer();
    rows.Close();
    const std::string id = std::to_string(recipe.id);
    recipe.grains = ReadGrains(database, id, " AND GRAIN");
    recipe.extracts = ReadGrains(database, id, " AND NOT GRAIN");
    recipe.hops = ReadHops(database, id);
    recipe.salts = ReadSalts(database, id);
    recipe.sugars = ReadSugars(database, id);
    recipe.adjuncts = ReadAdjuncts(database, id);
    recipe.log = ReadLog(database, id);
    return recipe;
}

bool RecipeExists(Database& database, std::string_view name) {
    return !database.OpenRecordset("SELECT * FROM RECIPES WHERE NAME = " + SqlText(Trim(name))).AtEnd();
}

}  // namespace tw
