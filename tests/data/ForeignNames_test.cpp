// Whether the names of other programs lead to the entries of the catalogue that are meant, and only to those.
#include <gtest/gtest.h>
#include <memory>
#include <ostream>
#include <string>

#include "doctor/NameMatcher.h"
#include "store/CatalogueLoader.h"
#include "store/Schema.h"

namespace tw {
namespace {

struct ForeignName {
    CatalogueKind kind;
    NameSought sought;
    const char* meant;  // nullptr for no entry
    MatchedBy by = MatchedBy::Name;
};

void PrintTo(const ForeignName& name, std::ostream* out) {
    *out << WordOf(name.kind) << " \"" << name.sought.name << "\" " << name.sought.origin << " "
         << name.sought.supplier << " " << name.sought.code;
}

constexpr ForeignName kForeignNames[] = {
    {CatalogueKind::Hop, {"cascade"}, "Cascade"},
    {CatalogueKind::Hop, {" Cascade "}, "Cascade"},
    {CatalogueKind::Hop, {"Hallertauer Mittelfruh"}, "Hallertauer Mittelfrüh", MatchedBy::Folded},
    {CatalogueKind::Hop, {"Saphire"}, "Saphir", MatchedBy::Alias},
    {CatalogueKind::Hop, {"Fuggles"}, "Fuggle", MatchedBy::Alias},
    {CatalogueKind::Salt, {"Gypsum (CaSO4)"}, "Gypsum", MatchedBy::Alias},
    {CatalogueKind::Salt, {"Epsom Salt (MgSO4)"}, "Epsom Salt", MatchedBy::Alias},
    {CatalogueKind::Hop, {"Tomahawk"}, "Columbus (CTZ)", MatchedBy::Alias},
    {CatalogueKind::Hop, {"Goldings, East Kent"}, "East Kent Goldings", MatchedBy::Alias},
    {CatalogueKind::Hop, {"Golding, Kent East"}, "East Kent Goldings", MatchedBy::Words},
    {CatalogueKind::Hop, {"Mittelfrueh Hallertau"}, "Hallertauer Mittelfrüh", MatchedBy::Words},
    {CatalogueKind::Hop, {"Cascade (US)", "US"}, "Cascade", MatchedBy::Alias},
    {CatalogueKind::Hop, {"Cascade Hops New Zealand"}, nullptr},
    {CatalogueKind::Hop, {"Willamete"}, "Willamette", MatchedBy::Near},
    {CatalogueKind::Hop, {"Simco"}, "Simcoe", MatchedBy::Near},
    {CatalogueKind::Hop, {"Oak Chips"}, nullptr},
    {CatalogueKind::Hop, {""}, nullptr},
    {CatalogueKind::Hop, {"..."}, nullptr},
    {CatalogueKind::Grain, {"Caramel/Crystal Malt - 40L"}, "Caramel/Crystal Malt 40L", MatchedBy::Folded},
    {CatalogueKind::Grain, {"Caramel/Crystal Malt - 35L"}, nullptr},
    {CatalogueKind::Grain, {"Munich Malt - 10L", "US"}, "Munich Malt 10L (US)", MatchedBy::Alias},
    {CatalogueKind::Grain, {"Pilsner (2 Row) Ger"}, "Pilsner Malt (German)", MatchedBy::Alias},
    {CatalogueKind::Grain, {"Weyermann Vienna"}, "Vienna Malt", MatchedBy::Core},
    {CatalogueKind::Grain, {"Vienna Malt", "", "Briess"}, "Vienna Malt"},
    {CatalogueKind::Grain, {"Pilsener Malt", "Belgium"}, "Pilsner Malt (Belgian)", MatchedBy::Core},
    {CatalogueKind::Grain, {"Chocolate Malt", "United Kingdom"}, "Chocolate Malt (UK)", MatchedBy::Core},
    {CatalogueKind::Grain, {"Carapils"}, "Carapils / Dextrin Malt", MatchedBy::Alias},
    {CatalogueKind::Grain, {"Extra Pale"}, "Extra Pale Malt (UK)", MatchedBy::Alias},
    {CatalogueKind::Grain, {"Victory Mallt"}, "Victory Malt", MatchedBy::Near},
    {CatalogueKind::Grain, {"Mystery Malt"}, nullptr},
    {CatalogueKind::Yeast,
     {"California Ale", "", "White Labs", "WLP001"},
     "White Labs WLP001 California Ale",
     MatchedBy::Code},
    {CatalogueKind::Yeast, {"WLP 001"}, "White Labs WLP001 California Ale", MatchedBy::Alias},
    {CatalogueKind::Yeast,
     {"Any Name", "", "Wyeast Labs", "1056"},
     "Wyeast 1056 American Ale",
     MatchedBy::Code},
    {CatalogueKind::Yeast,
     {"Safale American", "", "DCL/Fermentis", "US-05"},
     "Fermentis SafAle US-05",
     MatchedBy::Code},
    {CatalogueKind::Yeast, {"US-05", "", "Safale", "WLP001"}, "Fermentis SafAle US-05", MatchedBy::Alias},
    {CatalogueKind::Style, {"American IPA"}, "American IPA"},
    {CatalogueKind::Style,
     {"Nothing Of The Kind", "", "Beer 2021", "1A"},
     "American Light Lager",
     MatchedBy::Code},
    {CatalogueKind::Style, {"Nothing Of The Kind", "", "BJCP 2008", "1A"}, nullptr},
    {CatalogueKind::Water, {"Burton On Trent"}, "Burton-on-Trent", MatchedBy::Folded},
    {CatalogueKind::Salt, {"Gypsum (Calcium Sulfate)"}, "Gypsum", MatchedBy::Core},
    {CatalogueKind::Sugar, {"Corn Sugar"}, "Corn Sugar (Dextrose)", MatchedBy::Alias},
};

class ForeignNames : public testing::TestWithParam<ForeignName> {
  protected:
    static void SetUpTestSuite() {
        database_ = CreateMainDatabaseInMemory();
        ASSERT_TRUE(LoadCatalogue(CATALOGUE_FOLDER, *database_, std::nullopt).empty());
        matcher_ = std::make_unique<NameMatcher>(*database_);
    }
    static void TearDownTestSuite() {
        matcher_.reset();
        database_.reset();
    }
    static inline std::unique_ptr<Database> database_;
    static inline std::unique_ptr<NameMatcher> matcher_;
};

TEST_P(ForeignNames, LeadToTheEntryMeant) {
    const ForeignName& name = GetParam();
    const auto found = matcher_->Find(name.kind, name.sought);
    if (!name.meant) {
        EXPECT_FALSE(found) << found->name << " by " << static_cast<int>(found->by);
    } else {
        ASSERT_TRUE(found);
        EXPECT_EQ(found->name, name.meant);
        EXPECT_EQ(found->by, name.by) << static_cast<int>(found->by);
    }
}

INSTANTIATE_TEST_SUITE_P(Table, ForeignNames, testing::ValuesIn(kForeignNames));

}  // namespace
}  // namespace tw
