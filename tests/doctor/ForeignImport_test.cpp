// Storing foreign recipes: names that exist, what they carry, and whole files or nothing.
#include "doctor/ForeignImport.h"

#include <deque>

#include "DoctorTest.h"
#include "store/CarriedData.h"

namespace tw::test {
namespace {

class Answers final : public CopyHost {
  public:
    bool Continue(const std::string& name, int, int) override {
        seen.push_back(name);
        return static_cast<int>(seen.size()) <= stopAfter;
    }
    ConflictAnswer ResolveConflict(const std::string& name, const std::string& freeName) override {
        conflicts.push_back(name + " or " + freeName);
        const ConflictAnswer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    bool ContinueAfter(const std::string&) override { return false; }

    std::deque<ConflictAnswer> answers;
    std::vector<std::string> seen, conflicts;
    int stopAfter = 1000;
};

class ForeignImporting : public DoctorTest {
  protected:
    ForeignImporting() {
        file.format = ExchangeFormat::BeerJson;
        for (const char* const name : {"Mild", "Bitter"}) {
            ForeignRecipe each;
            each.name = name;
            each.batchSize = ForeignAmount{ForeignAmount::Of::Volume, 20, {}};
            each.fragment = std::string("{\"name\":\"") + name + "\"}";
            file.recipes.push_back(std::move(each));
        }
    }
    int Import(std::vector<std::size_t> which = {0, 1}) {
        Findings findings;
        return ForeignImport(doctor, catalogue, host)
            .Run(file, "club.json", {std::move(which), 7, {}}, findings);
    }
    std::vector<std::string> Stored() {
        std::vector<std::string> names;
        for (Recordset rows =
                 database->OpenRecordset("SELECT NAME, FOLDER_ID, TV FROM RECIPES ORDER BY NAME");
             !rows.AtEnd(); rows.MoveNext())
            names.push_back(rows.Fields(0).Text() + "|" + rows.Fields(1).Text() + "|" +
                            rows.Fields(2).Text());
        return names;
    }
    std::vector<CarriedFragment> CarriedBy(const std::string& name) {
        return CarriedData(*database).Of(*RecipeId(*database, name));
    }

    Answers host;
    ForeignFile file;
};

TEST_F(ForeignImporting, StoresEachRecipeWithWhatItCarries) {
    EXPECT_EQ(Import(), 2);
    EXPECT_THAT(Stored(), testing::ElementsAre("Bitter|7|20 L", "Mild|7|20 L"));
    const auto carried = CarriedBy("Mild");
    ASSERT_EQ(carried.size(), 1U);
    EXPECT_EQ(carried[0].format, "beerjson");
    EXPECT_EQ(carried[0].source, "club.json");
    EXPECT_EQ(carried[0].content, "{\"name\":\"Mild\"}");
}

TEST_F(ForeignImporting, ANameThatExistsIsAskedAbout) {
    ASSERT_EQ(Import(), 2);
    file.recipes[0].batchSize->value = 10;
    file.recipes[1].batchSize->value = 10;
    host.answers = {{ConflictResponse::Overwrite, {}},
                    {ConflictResponse::Rename, " Mild "},
                    {ConflictResponse::Rename, "Best"}};
    EXPECT_EQ(Import(), 2);
    EXPECT_THAT(host.conflicts,
                testing::ElementsAre("Mild or Mild (2)", "Bitter or Bitter (2)", "Mild or Mild (2)"));
    EXPECT_THAT(Stored(), testing::ElementsAre("Best|7|10 L", "Bitter|7|20 L", "Mild|7|10 L"));
    EXPECT_EQ(CarriedBy("Mild").size(), 1U) << "that of the overwritten recipe is gone";
    host.answers = {{ConflictResponse::Skip, {}}, {ConflictResponse::Skip, {}}};
    EXPECT_EQ(Import(), 0);
    EXPECT_EQ(Stored().size(), 3U);
}

TEST_F(ForeignImporting, RecipesOfOneNameInOneFileAreAskedAbout) {
    file.recipes[1].name = "MILD";
    host.answers = {{ConflictResponse::Rename, "Mild (2)"}};
    EXPECT_EQ(Import(), 2);
    EXPECT_THAT(host.conflicts, testing::ElementsAre("MILD or MILD (2)"));
}

TEST_F(ForeignImporting, WhatIsStoppedLeavesNothing) {
    host.stopAfter = 1;
    EXPECT_EQ(Import(), 0);
    EXPECT_TRUE(Stored().empty());
    host = {};
    ASSERT_EQ(Import({0}), 1);
    const auto before = Stored();
    host.answers = {{ConflictResponse::Overwrite, {}}, {ConflictResponse::Abort, {}}};
    ForeignRecipe again = file.recipes[0];
    again.batchSize->value = 30;
    file.recipes = {again, again};
    EXPECT_EQ(Import(), 0);
    EXPECT_EQ(Stored(), before);
    EXPECT_EQ(CarriedBy("Mild").size(), 1U);
}

TEST_F(ForeignImporting, AnErrorAtAnyStatementLeavesTheDatabaseAsItWas) {
    ASSERT_EQ(Import({0}), 1);
    const std::string before = database->Image();
    int statements = 0;
    for (int failing = 1;; ++failing) {
        statements = 0;
        database->SetStatementHook([&](std::string_view) {
            if (++statements == failing) throw Error("Database", "The disk failed.", 10);
        });
        host.answers.assign(2, {ConflictResponse::Overwrite, {}});
        bool failed = false;
        try {
            Import();
        } catch (const Error&) {
            failed = true;
        }
        database->SetStatementHook({});
        if (!failed) break;
        ASSERT_EQ(Stored().size(), 1U) << failing;
        ASSERT_EQ(CarriedBy("Mild").size(), 1U) << failing;
    }
    // Two recipes with their lines take more than twenty statements.
    EXPECT_GT(statements, 20);
    EXPECT_EQ(Stored().size(), 2U);
    EXPECT_NE(database->Image(), before);
}

}  // namespace
}  // namespace tw::test
