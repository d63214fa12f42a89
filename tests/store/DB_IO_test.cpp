#include "store/DB_IO.h"

#include <gtest/gtest.h>

#include "StoreSupport.h"
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

class DbIo : public testing::Test {
  protected:
    std::string Count(const std::string& table) { return Cell(*db, "SELECT COUNT(*) FROM " + table); }
    std::unique_ptr<Database> db = Database::CreateInMemory();
    StoreClock clock;
    Recorder listener;
    ObjectTree tree;  // shows nothing
    NoMessages messages;
    DB_IO io{*db, tree, messages, clock, listener};
};

TEST_F(DbIo, LooksNamesAndIdsUp) {
    db->Execute("INSERT INTO HOPS (NAME) VALUES ('Cascade'), ('Baker''s')");
    EXPECT_EQ(io.IdByName("  baker's ", "HOPS"), 2);
    EXPECT_EQ(io.IdByName("Fuggle", "HOPS"), 0);
    EXPECT_EQ(io.NameById(1, "HOPS"), "Cascade");
    EXPECT_EQ(io.NameById(3, "HOPS"), "");
    EXPECT_EQ(ErrorOf([&] { io.IdByName("A", "NOWHERE"); }).Description(), "no such table: NOWHERE");
}

TEST_F(DbIo, DeletesARecipeByTheDesignedStatements) {
    InsertRecipe(*db, FullRecipe("Mild"));
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
    InsertRecipe(*db, FullRecipe("Mild"));
    InsertRecipe(*db, FullRecipe("Stout"));
    io.DeleteRecipeByName(" MILD ");
    for (const std::string table : {"RECIPE_HOPS", "RECIPE_ADJUNCTS", "RECIPE_LOG"})
        EXPECT_EQ(Count(table), "2");
    EXPECT_EQ(Count("RECIPE_GRAINS"), "4");
    // Intended: nothing finds these rows again.
    EXPECT_EQ(Count("RECIPE_SALTS WHERE RECIPE_ID = 1"), "2");
    EXPECT_EQ(Count("RECIPE_SUGARS WHERE RECIPE_ID = 1"), "2");
    EXPECT_EQ(Describe(*ReadRecipe(*db, "Stout")), Describe(FullRecipe("Stout")));
}

TEST_F(DbIo, DeletesNothingForAnUnknownRecipe) {
    InsertRecipe(*db, FullRecipe("Mild"));
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
    EXPECT_EQ(Select(*db, "SELECT NAME, MODIFIED_WHEN FROM FOLDERS"),
              (Rows{{"A", "NULL"}, {"B", "05/06/2024 07:08:09"}, {"S", "NULL"}}));
}

TEST_F(DbIo, TouchesTheFolderOfASavedRecipe) {
    db->Execute(
        "INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE) VALUES (0, 'A', FALSE), (0, 'B', FALSE), (0, 'C', "
        "FALSE)");
    InsertRecipe(*db, FullRecipe("Mild"));  // in folder 3
    io.AddRecipeNodesByName(" mild ");
    io.AddRecipeNodesByName("unknown");
    EXPECT_EQ(Select(*db, "SELECT NAME FROM FOLDERS WHERE MODIFIED_WHEN IS NOT NULL"), (Rows{{"C"}}));
}

}  // namespace
}  // namespace tw::test
