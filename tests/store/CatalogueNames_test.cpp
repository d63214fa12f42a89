// Tests of the codes and other names of catalogue rows.
#include "store/CatalogueNames.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <string>

#include "SmallCatalogue.h"

namespace tw {
namespace {

using testing::IsEmpty;
using testing::Optional;
using testing::UnorderedElementsAre;

class CatalogueNamesTest : public SmallCatalogue {
  protected:
    void SetUp() override {
        SmallCatalogue::SetUp();
        ASSERT_THAT(Load(), IsEmpty());
    }
    std::optional<std::string> RowOf(CatalogueKind kind, std::string_view typed) {
        return CatalogueNames(*database_).RowOf(kind, typed);
    }
};

TEST_F(CatalogueNamesTest, ARowIsFoundByItsName) {
    EXPECT_THAT(RowOf(CatalogueKind::Hop, "WILD hop"), Optional(std::string("Wild Hop")));
    EXPECT_THAT(RowOf(CatalogueKind::Yeast, "kölsch YEAST"), Optional(std::string("Kölsch Yeast")));
    EXPECT_EQ(RowOf(CatalogueKind::Hop, "Saaz"), std::nullopt);
    EXPECT_EQ(RowOf(CatalogueKind::Hop, " "), std::nullopt);
    // Blanks are part of a name, but not of another name.
    EXPECT_EQ(RowOf(CatalogueKind::Hop, " Wild Hop"), std::nullopt);
}

TEST_F(CatalogueNamesTest, ARowIsFoundByItsOtherNameWithoutRegardToCase) {
    EXPECT_THAT(RowOf(CatalogueKind::Hop, "bg"), Optional(std::string("Brewer's Gold")));
    EXPECT_THAT(RowOf(CatalogueKind::Style, " pilsner "), Optional(std::string("Pils")));
}

TEST_F(CatalogueNamesTest, ANameCountsForItsKindAlone) {
    EXPECT_THAT(RowOf(CatalogueKind::Sugar, "Sugar"), Optional(std::string("Cane")));
    EXPECT_THAT(RowOf(CatalogueKind::Extract, "Sugar"), Optional(std::string("Honey")));
    EXPECT_EQ(RowOf(CatalogueKind::Grain, "Sugar"), std::nullopt);
    EXPECT_EQ(RowOf(CatalogueKind::Grain, "Honey"), std::nullopt);
    EXPECT_EQ(RowOf(CatalogueKind::Yeast, "BG"), std::nullopt);
}

TEST_F(CatalogueNamesTest, ARowIsFoundByACodeThatIsItsAlone) {
    EXPECT_THAT(RowOf(CatalogueKind::Style, "29a"), Optional(std::string("Fruit Beer")));
    EXPECT_THAT(RowOf(CatalogueKind::Yeast, "d-1"), Optional(std::string("Kölsch Yeast")));
    EXPECT_EQ(RowOf(CatalogueKind::Style, "5D"), std::nullopt);
    // An empty code does not find the rows without a code.
    EXPECT_EQ(RowOf(CatalogueKind::Hop, ""), std::nullopt);
}

TEST_F(CatalogueNamesTest, TheBrewersOwnRowOfThatNameWins) {
    database_->Execute("INSERT INTO HOPS (NAME, AA_LO, AA_HI) VALUES ('Bg', 1, 2)");
    EXPECT_THAT(RowOf(CatalogueKind::Hop, "BG"), Optional(std::string("Bg")));
}

TEST_F(CatalogueNamesTest, AnotherNameOfARenamedOrDeletedRowLeadsNowhere) {
    database_->Execute("UPDATE HOPS SET NAME = 'My Hop' WHERE NAME = 'Brewer''s Gold'");
    EXPECT_EQ(RowOf(CatalogueKind::Hop, "BG"), std::nullopt);
    database_->Execute("DELETE FROM STYLES WHERE NAME = 'Pils'");
    EXPECT_EQ(RowOf(CatalogueKind::Style, "Pilsner"), std::nullopt);
    // Now only the other style has the code.
    EXPECT_THAT(RowOf(CatalogueKind::Style, "5D"), Optional(std::string("Helles")));
}

TEST_F(CatalogueNamesTest, ADatabaseWithoutOtherNamesKnowsTheRowsThemselves) {
    database_->ExecuteNative("DROP TABLE CATALOGUE_FACTS; DROP TABLE CATALOGUE_ALIASES;");
    EXPECT_THAT(RowOf(CatalogueKind::Hop, "wild hop"), Optional(std::string("Wild Hop")));
    EXPECT_EQ(RowOf(CatalogueKind::Hop, "BG"), std::nullopt);
    EXPECT_THAT(CatalogueNames(*database_).FactsOf(CatalogueKind::Style), IsEmpty());
}

TEST_F(CatalogueNamesTest, TellsAllFactsOfATableAtOnce) {
    const auto yeasts = CatalogueNames(*database_).FactsOf(CatalogueKind::Yeast);
    const CatalogueFacts& koelsch = yeasts.at("KÖLSCH YEAST");
    EXPECT_EQ(koelsch.code, "D-1");
    EXPECT_EQ(koelsch.source, "Dom Labs");
    EXPECT_EQ(koelsch.form, "Dry");
    EXPECT_THAT(koelsch.aliases, IsEmpty());
    const auto extracts = CatalogueNames(*database_).FactsOf(CatalogueKind::Extract);
    EXPECT_THAT(extracts.at("HONEY").aliases, UnorderedElementsAre("Miel", "Sugar"));
}

TEST_F(CatalogueNamesTest, ALookUpReadsAFewRowsHoweverManyNamesThereAre) {
    int statements = 0;
    database_->SetStatementHook([&](std::string_view) { ++statements; });
    RowOf(CatalogueKind::Hop, "BG");
    // Four queries: the row, the tables, the other name, the row that it stands for.
    EXPECT_EQ(statements, 4);
}

}  // namespace
}  // namespace tw
