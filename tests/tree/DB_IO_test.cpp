#include "tree/DB_IO.h"

#include <gtest/gtest.h>

#include "store/RecipeRows.h"
#include "store/Schema.h"
#include "support/NoMessages.h"
#include "support/SilentStore.h"

namespace tw::test {
namespace {

class Recorder : public ObjectListener {
  public:
    void NotifyRecipeMoved(const std::string&, std::int64_t) override {}
    void NotifyRecipeNewStyle(const std::string&, std::int64_t) override {}
    void NotifyRecipeRenamed(const std::string&, const std::string&) override {}
    void NotifyStyleRenamed(std::int64_t, const std::string&) override {}
    void NotifyRecipeDeleted(const std::string& name) override { deleted.push_back(name); }
    void NotifyRecipeFolderDeleted(std::int64_t) override {}
    void NotifyStyleDeleted(std::int64_t) override {}
    std::vector<std::string> deleted;
};

// Returns a recipe in folder 3 with two lines in every table.
StoredRecipe TwoLines(const std::string& name) {
    StoredRecipe r;
    r.name = name;
    r.folderId = 3;
    r.createdWhen = DateTime{2024, 1, 31, 12, 0, 5};
    for (int i = 1; i >= 0; --i) {
        for (const GridId grid : {GridId::Grain, GridId::Extract, GridId::Hops, GridId::Treatment,
                                  GridId::Priming, GridId::Adjuncts, GridId::Log}) {
            StoredLine line = EmptyLine(grid, i);
            line.cells.front().text = "Line " + std::to_string(i);
            r[grid].push_back(std::move(line));
        }
    }
    return r;
}

class DbIo : public testing::Test {
  protected:
    std::string Count(const std::string& table) { return Select("SELECT COUNT(*) FROM " + table).front(); }
    // Returns the cells of each row, separated by blanks; NULL is "NULL".
    std::vector<std::string> Select(const std::string& sql) {
        std::vector<std::string> lines;
        for (Recordset rows = db->OpenRecordset(sql); !rows.AtEnd(); rows.MoveNext()) {
            std::string line;
            for (int i = 0; i < rows.FieldCount(); ++i)
                line += (i > 0 ? " " : "") + (rows.Fields(i).IsNull() ? "NULL" : rows.Fields(i).Text());
            lines.push_back(line);
        }
        return lines;
    }
    // Returns all rows of all tables that belong to a recipe.
    std::vector<std::string> RowsOf(const std::string& id) {
        std::vector<std::string> lines = Select("SELECT * FROM RECIPES WHERE ID = " + id);
        for (const std::string table : {"GRAINS", "HOPS", "SALTS", "SUGARS", "ADJUNCTS", "LOG"})
            for (std::string& line : Select("SELECT * FROM RECIPE_" + table + " WHERE RECIPE_ID = " + id))
                lines.push_back(std::move(line));
        return lines;
    }
    std::unique_ptr<Database> db = CreateMainDatabaseInMemory();
    StoreClock clock;
    Recorder listener;
    TWTree nothing;
    TreeObjects tree{nothing};
    NoMessages messages;
    DB_IO io{*db, tree, messages, clock, listener};
};

TEST_F(DbIo, LooksNamesAndIdsUp) {
    db->Execute("INSERT INTO HOPS (NAME) VALUES ('Cascade'), ('Baker''s')");
    EXPECT_EQ(io.IdByName("  baker's ", "HOPS"), 2);
    EXPECT_EQ(io.IdByName("Fuggle", "HOPS"), 0);
    EXPECT_EQ(io.NameById(1, "HOPS"), "Cascade");
    EXPECT_EQ(io.NameById(3, "HOPS"), "");
    try {
        io.IdByName("A", "NOWHERE");
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.Description(), "no such table: NOWHERE");
    }
}

TEST_F(DbIo, DeletesARecipeByTheDesignedStatements) {
    InsertRecipe(*db, TwoLines("Mild"));
    std::vector<std::string> changes;
    db->SetStatementHook([&](std::string_view sql) {
        if (!sql.starts_with("SELECT")) changes.emplace_back(sql);
    });
    io.DeleteRecipeById(1);
    EXPECT_EQ(changes, (std::vector<std::string>{"DELETE FROM RECIPES WHERE ID = 1",
                                                 "DELETE FROM RECIPE_GRAINS WHERE RECIPE_ID = 1",
                                                 "DELETE FROM RECIPE_HOPS WHERE RECIPE_ID = 1",
                                                 "DELETE FROM RECIPE_ADJUNCTS WHERE RECIPE_ID = 1",
                                                 "DELETE FROM RECIPE_LOG WHERE RECIPE_ID = 1"}));
    EXPECT_EQ(listener.deleted, (std::vector<std::string>{"Mild"}));
}

TEST_F(DbIo, LeavesSaltsAndSugarsOfADeletedRecipeBehind) {
    InsertRecipe(*db, TwoLines("Mild"));
    InsertRecipe(*db, TwoLines("Stout"));
    const std::vector<std::string> other = RowsOf("2");
    EXPECT_EQ(other.size(), 1U + 7 * 2);
    io.DeleteRecipeByName(" MILD ");
    for (const std::string table : {"RECIPE_HOPS", "RECIPE_ADJUNCTS", "RECIPE_LOG"})
        EXPECT_EQ(Count(table), "2");
    EXPECT_EQ(Count("RECIPE_GRAINS"), "4");
    // These rows remain, although nothing finds them any more.
    EXPECT_EQ(Count("RECIPE_SALTS WHERE RECIPE_ID = 1"), "2");
    EXPECT_EQ(Count("RECIPE_SUGARS WHERE RECIPE_ID = 1"), "2");
    EXPECT_EQ(RowsOf("2"), other);
}

TEST_F(DbIo, DeletesNothingForAnUnknownRecipe) {
    InsertRecipe(*db, TwoLines("Mild"));
    io.DeleteRecipeById(99);
    io.DeleteRecipeByName("Stout");
    io.DeleteRecipeByName("");
    EXPECT_EQ(Count("RECIPES"), "1");
    EXPECT_EQ(Count("RECIPE_LOG"), "2");
    EXPECT_TRUE(listener.deleted.empty());
}

TEST_F(DbIo, TouchesTheRecipeFolderAlone) {
    db->Execute(
        "INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE) VALUES (0, 'A', FALSE), (1, 'B', FALSE), (0, 'S', "
        "TRUE)");
    io.TouchRecipeFolder(2);
    io.TouchRecipeFolder(3);
    io.TouchRecipeFolder(0);
    EXPECT_EQ(Select("SELECT NAME, MODIFIED_WHEN FROM FOLDERS"),
              (std::vector<std::string>{"A NULL", "B 05/06/2024 07:08:09", "S NULL"}));
}

TEST_F(DbIo, TouchesTheFolderOfASavedRecipe) {
    db->Execute(
        "INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE) VALUES (0, 'A', FALSE), (0, 'B', FALSE), (0, 'C', "
        "FALSE)");
    InsertRecipe(*db, TwoLines("Mild"));  // in folder 3
    io.AddRecipeNodesByName(" mild ");
    io.AddRecipeNodesByName("unknown");
    EXPECT_EQ(Select("SELECT NAME FROM FOLDERS WHERE MODIFIED_WHEN IS NOT NULL"),
              std::vector<std::string>{"C"});
}

}  // namespace
}  // namespace tw::test
