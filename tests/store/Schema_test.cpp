#include "store/Schema.h"

#include <gtest/gtest.h>
#include <map>

#include "StoreSupport.h"

namespace tw::test {
namespace {

// Every table with its columns: * is a counter key, otherwise l is long, d double, b bool, w
// date, t text and m memo.
const std::map<std::string, std::string> kExpected = {
    {"FOLDERS", "ID* PARENT_ID:l NAME:t STYLE:b CREATED_WHEN:w MODIFIED_WHEN:w"},
    {"RECIPES",
     "ID* NAME:t STYLE_ID:l FOLDER_ID:l CREATED_WHEN:w MODIFIED_WHEN:w BV:t BV_DATA:d TV:t TV_DATA:d "
     "DILUTIONS:t "
     "DILUTIONS_DATA:d FV:t FV_DATA:d BG:t BG_DATA:d OG:t OG_DATA:d FG:t FG_DATA:d ABV:t COLOR:t IBU:t "
     "NOTES:m "
     "NUMBATCHES:t GRAIN_EXTRACT:t GRAIN_EXTRACT_DATA:d IBU_METHOD:l HOP_EXTRACT:t HOP_EXTRACT_DATA:d "
     "BOTTLED:b "
     "KEG_PSI:t KEG_PSI_DATA:d KEG_VOLS:d TEMPERATURE:t TEMPERATURE_DATA:d CO2_VOLS:t SRC_PROFILE_NAME:t "
     "SRC_CA:d "
     "SRC_CO3:d SRC_CL:d SRC_MG:d SRC_NA:d SRC_SO4:d TRG_PROFILE_NAME:t TRG_CA:d TRG_CO3:d TRG_CL:d TRG_MG:d "
     "TRG_NA:d "
     "TRG_SO4:d"},
    {"RECIPE_GRAINS",
     "GRAIN:b RECIPE_ID:l ROW_ID:l NAME:t AMOUNT:t AMOUNT_DATA:d PPG:t PPG_DATA:d COLOR:t COLOR_DATA:d"},
    {"RECIPE_HOPS",
     "RECIPE_ID:l ROW_ID:l NAME:t HOP_FORM:l HOP_SOCK:b AMOUNT:t AMOUNT_DATA:d AA:t AA_DATA:d DURATION:t "
     "DURATION_DATA:d DRY:b"},
    {"RECIPE_SALTS", "RECIPE_ID:l ROW_ID:l NAME:t AMOUNT:t AMOUNT_DATA:d CA:d CO3:d CL:d MG:d NA:d SO4:d"},
    {"RECIPE_SUGARS", "RECIPE_ID:l ROW_ID:l NAME:t FERMENT:t FERMENT_DATA:d AMOUNT:t AMOUNT_DATA:d"},
    {"RECIPE_ADJUNCTS", "RECIPE_ID:l ROW_ID:l NAME:t AMOUNT:t DURATION:t WHEN:t"},
    {"RECIPE_LOG", "RECIPE_ID:l ROW_ID:l LOGDATE:t ACTION:t NOTES:t"},
    {"STYLES",
     "ID* NAME:t FOLDER_ID:l CREATED_WHEN:w MODIFIED_WHEN:w DESCR:m TYPE:l WATER_PROFILE:t OG_LO:d OG_HI:d "
     "FG_LO:d "
     "FG_HI:d ABV_LO:d ABV_HI:d COLOR_LO:d COLOR_HI:d IBU_LO:d IBU_HI:d CO2_LO:d CO2_HI:d"},
    {"GRAINS", "ID* GRAIN:b NAME:t GRAIN_TYPE:l DESCR:m PPG_LO:d PPG_HI:d COLOR_LO:d COLOR_HI:d"},
    {"GRAIN_TYPES", "ID* NAME:t GRAIN:b"},
    {"HOPS", "ID* NAME:t USAGE:t DESCR:m AA_LO:d AA_HI:d"},
    {"YEAST", "ID* NAME:t DESCR:t FLOC:t FULL_DESCR:m TYPE:l AA_LO:d AA_HI:d TEMP_LO:d TEMP_HI:d"},
    {"WATER_PROFILES", "ID* NAME:t DESCR:m CA:d CO3:d CL:d MG:d NA:d SO4:d"},
    {"SALTS", "ID* NAME:t DESCR:m CA:d CO3:d CL:d MG:d NA:d SO4:d"},
    {"SUGARS", "ID* NAME:t DESCR:m FERMENT_LO:d FERMENT_HI:d"},
};

const char* Letter(FieldType type) {
    switch (type) {
        case FieldType::Boolean:
            return ":b";
        case FieldType::Long:
            return ":l";
        case FieldType::Double:
            return ":d";
        case FieldType::Date:
            return ":w";
        case FieldType::Text:
            return ":t";
        case FieldType::Memo:
            return ":m";
        default:
            return "?";
    }
}

TEST(Schema, ListsEveryTableColumnByColumn) {
    std::map<std::string, std::string> found;
    for (const TableSchema& table : MainSchema()) {
        std::string& columns = found[std::string(table.name)];
        for (const ColumnDef& column : table.columns) {
            if (!columns.empty()) columns += " ";
            columns.append(column.name).append(column.counter ? "*" : Letter(column.type));
        }
    }
    EXPECT_EQ(found, kExpected);
}

TEST(Schema, IsWhatADatabaseHolds) {
    const auto db = CreateMainDatabaseInMemory();
    for (const auto& [table, expected] : kExpected) {
        Recordset rows = db->OpenRecordset("SELECT * FROM " + table);
        std::string columns;
        for (int i = 0; i < rows.FieldCount(); ++i) {
            if (i > 0) columns += " ";
            const bool counter = rows.FieldName(i) == "ID";
            columns.append(rows.FieldName(i)).append(counter ? "*" : Letter(rows.TypeOf(i)));
        }
        EXPECT_EQ(columns, expected) << table;
    }
}

TEST(Schema, StartsEmpty) {
    const auto db = CreateMainDatabaseInMemory();
    for (const auto& [table, expected] : kExpected)
        EXPECT_EQ(Cell(*db, "SELECT COUNT(*) FROM " + table), "0") << table;
}

TEST(Schema, SetsNoConstraintOnNames) {
    const auto db = CreateMainDatabaseInMemory();
    for (const TableSchema& table : MainSchema()) {
        if (table.name == "RECIPE_LOG") continue;  // the one table without a name
        const std::string insert = "INSERT INTO " + std::string(table.name) + " (NAME) VALUES ('x')";
        db->Execute(insert);
        db->Execute(insert);
    }
    EXPECT_EQ(Cell(*db, "SELECT COUNT(*) FROM RECIPES"), "2");
}

TEST(Schema, PassesItsOwnCheck) {
    const auto db = CreateMainDatabaseInMemory();
    EXPECT_NO_THROW(CheckSchema(*db));
}

TEST(Schema, NamesTheTableOrColumnThatIsMissing) {
    const auto db = CreateMainDatabaseInMemory();
    db->ExecuteNative("ALTER TABLE HOPS DROP COLUMN AA_LO");
    EXPECT_EQ(ErrorOf([&] { CheckSchema(*db); }).Description(),
              "':memory:' is no Tunwright database: it has no column HOPS.AA_LO.");
    db->ExecuteNative("DROP TABLE GRAIN_TYPES");
    EXPECT_EQ(ErrorOf([&] { CheckSchema(*db); }).Description(),
              "':memory:' is no Tunwright database: it has no table GRAIN_TYPES.");
}

}  // namespace
}  // namespace tw::test
