#include "document/CatalogueLookup.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

#include "store/Schema.h"
#include "support/NamesIn.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Lookup : public testing::Test {
  protected:
    Lookup() {
        for (const char* const row :
             {"INTO GRAINS (GRAIN, NAME, PPG_LO, PPG_HI, COLOR_LO, COLOR_HI) VALUES (TRUE, 'Pale Malt', 35, "
              "37, 2, 3)",
              "INTO GRAINS (GRAIN, NAME, PPG_LO, PPG_HI) VALUES (FALSE, 'Syrup', 36, 38)",
              "INTO HOPS (NAME, AA_LO, AA_HI) VALUES ('Saaz', 3, 4)", "INTO HOPS (NAME) VALUES ('Wild')",
              "INTO SUGARS (NAME, FERMENT_LO, FERMENT_HI) VALUES ('Honey', 90, 100)",
              "INTO YEAST (NAME, AA_LO, AA_HI) VALUES ('Ale', 72, 78)",
              "INTO WATER_PROFILES (NAME, CA, CO3, CL, MG, NA, SO4) VALUES ('Burton', 268, 200, 36, 62, 30, "
              "638)",
              "INTO SALTS (NAME, CA, SO4) VALUES ('Gypsum', 61.5, 147.4)",
              "INTO STYLES (ID, NAME, OG_LO, OG_HI, IBU_LO, WATER_PROFILE) VALUES (7, 'Mild', 1.03, 1.038, "
              "10, 'Burton')",
              "INTO STYLES (ID, NAME) VALUES (0, 'Nobody')"})
            db->Execute(std::string("INSERT ") + row);
    }
    std::unique_ptr<Database> db = CreateMainDatabaseInMemory();
    CatalogueLookup lookup{*db};
};

TEST_F(Lookup, GivesTheMiddleOfTheRanges) {
    const auto malt = lookup.Fermentable(CatalogueKind::Grain, "pale malt");
    ASSERT_TRUE(malt);
    EXPECT_EQ(malt->ppg, 36);
    EXPECT_EQ(malt->lovibond, 2.5);
    EXPECT_EQ(lookup.Hop("Saaz")->alphaAcid, 3.5);
    EXPECT_EQ(lookup.Sugar("Honey")->fermentable, 95);
    EXPECT_EQ(lookup.Yeast("Ale")->attenuation, 75);
}

TEST_F(Lookup, LeavesOutWhatTheCatalogueLeavesOpen) {
    EXPECT_EQ(lookup.Fermentable(CatalogueKind::Extract, "Syrup")->lovibond, std::nullopt);
    EXPECT_EQ(lookup.Hop("Wild")->alphaAcid, std::nullopt);
}

TEST_F(Lookup, TellsGrainsFromExtracts) {
    EXPECT_FALSE(lookup.Fermentable(CatalogueKind::Extract, "Pale Malt"));
    EXPECT_FALSE(lookup.Fermentable(CatalogueKind::Grain, "Syrup"));
    EXPECT_THAT(NamesIn(lookup.Names(CellNames::Grains)), ElementsAre("Pale Malt"));
    EXPECT_THAT(NamesIn(lookup.Names(CellNames::Extracts)), ElementsAre("Syrup"));
}

TEST_F(Lookup, KnowsNothingOfOtherNames) {
    EXPECT_FALSE(lookup.Hop("Saaz Special"));
    EXPECT_FALSE(lookup.Sugar("O'Brien's"));
    EXPECT_FALSE(lookup.Yeast(""));
    EXPECT_FALSE(lookup.Water("Nowhere"));
    EXPECT_FALSE(lookup.Salt("Nothing"));
    EXPECT_THAT(NamesIn(lookup.Names(CellNames::None)), IsEmpty());
    EXPECT_THAT(NamesIn(lookup.Names(CellNames::HopForms)), IsEmpty());
}

TEST_F(Lookup, GivesTheIonsInTheirOrder) {
    EXPECT_THAT(*lookup.Water("Burton"), ElementsAre(268, 200, 36, 62, 30, 638));
    EXPECT_THAT(*lookup.Salt("Gypsum"), ElementsAre(61.5, 0, 0, 0, 0, 147.4));
    ASSERT_EQ(lookup.Salts().size(), 1U);
    EXPECT_EQ(lookup.Salts().front().name, "Gypsum");
}

TEST_F(Lookup, GivesAStyleWithItsOpenEnds) {
    const auto style = lookup.Style(7);
    ASSERT_TRUE(style);
    EXPECT_EQ(style->og.low, 1.03);
    EXPECT_EQ(style->og.high, 1.038);
    EXPECT_EQ(style->ibu.low, 10);
    EXPECT_EQ(style->ibu.high, std::nullopt);
    EXPECT_EQ(style->fg.low, std::nullopt);
    EXPECT_EQ(style->waterProfile, "Burton");
    EXPECT_FALSE(lookup.Style(8));
}

// Id 0 means no style, even if a row has it.
TEST_F(Lookup, ZeroIsNoStyle) {
    EXPECT_FALSE(lookup.Style(0));
}

}  // namespace
}  // namespace tw::test
