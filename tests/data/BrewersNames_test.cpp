// Whether the names that brewers type lead to the rows of the catalogue that they mean.
#include <gtest/gtest.h>
#include <memory>
#include <ostream>
#include <set>
#include <string>

#include "store/CatalogueLoader.h"
#include "store/CatalogueNames.h"
#include "store/Schema.h"

namespace tw {
namespace {

struct TypedName {
    CatalogueKind list;
    const char* typed;
    const char* meant;
};

void PrintTo(const TypedName& name, std::ostream* out) {
    *out << WordOf(name.list) << " \"" << name.typed << "\"";
}

constexpr TypedName kTypedNames[] = {
    {CatalogueKind::Grain, "maris otter", "Maris Otter Pale Malt"},
    {CatalogueKind::Grain, "optic", "Optic Pale Malt"},
    {CatalogueKind::Grain, "golden promise", "Golden Promise Pale Malt"},
    {CatalogueKind::Grain, "2 row", "Pale Malt, 2-Row (US)"},
    {CatalogueKind::Grain, "2-row", "Pale Malt, 2-Row (US)"},
    {CatalogueKind::Grain, "two row", "Pale Malt, 2-Row (US)"},
    {CatalogueKind::Grain, "6 row", "Pale Malt, 6-Row (US)"},
    {CatalogueKind::Grain, "pilsner malt", "Pilsner Malt (German)"},
    {CatalogueKind::Grain, "pils", "Pilsner Malt (German)"},
    {CatalogueKind::Grain, "belgian pils", "Pilsner Malt (Belgian)"},
    {CatalogueKind::Grain, "vienna", "Vienna Malt"},
    {CatalogueKind::Grain, "munich", "Munich Malt, Light"},
    {CatalogueKind::Grain, "dark munich", "Munich Malt, Dark"},
    {CatalogueKind::Grain, "wheat malt", "Wheat Malt (German)"},
    {CatalogueKind::Grain, "white wheat", "White Wheat Malt (US)"},
    {CatalogueKind::Grain, "rye", "Rye Malt"},
    {CatalogueKind::Grain, "c60", "Caramel/Crystal Malt 60L"},
    {CatalogueKind::Grain, "crystal 40", "Caramel/Crystal Malt 40L"},
    {CatalogueKind::Grain, "crystal malt 60", "Caramel/Crystal Malt 60L"},
    {CatalogueKind::Grain, "caramel 80", "Caramel/Crystal Malt 80L"},
    {CatalogueKind::Grain, "crystal 120L", "Caramel/Crystal Malt 120L"},
    {CatalogueKind::Grain, "carapils", "Carapils / Dextrin Malt"},
    {CatalogueKind::Grain, "cara pils", "Carapils / Dextrin Malt"},
    {CatalogueKind::Grain, "dextrin", "Carapils / Dextrin Malt"},
    {CatalogueKind::Grain, "caramunich 2", "CaraMunich II"},
    {CatalogueKind::Grain, "carafa special ii", "Carafa Special II"},
    {CatalogueKind::Grain, "special b", "Special B"},
    {CatalogueKind::Grain, "chocolate malt", "Chocolate Malt (US)"},
    {CatalogueKind::Grain, "pale chocolate", "Pale Chocolate Malt"},
    {CatalogueKind::Grain, "roast barley", "Roasted Barley (US)"},
    {CatalogueKind::Grain, "black patent", "Black Patent Malt"},
    {CatalogueKind::Grain, "flaked oats", "Flaked Oats"},
    {CatalogueKind::Grain, "rolled oats", "Flaked Oats"},
    {CatalogueKind::Grain, "flaked maize", "Flaked Corn (Maize)"},
    {CatalogueKind::Grain, "torrefied wheat", "Torrified Wheat"},
    {CatalogueKind::Grain, "biscuit", "Biscuit Malt"},
    {CatalogueKind::Grain, "victory", "Victory Malt"},
    {CatalogueKind::Grain, "melanoidin", "Melanoidin Malt"},
    {CatalogueKind::Grain, "acid malt", "Acidulated Malt"},
    {CatalogueKind::Grain, "rauchmalz", "Smoked Malt (Beechwood)"},
    {CatalogueKind::Grain, "rice hulls", "Rice Hulls"},
    {CatalogueKind::Extract, "light dme", "Dry Malt Extract, Light"},
    {CatalogueKind::Extract, "lme", "Liquid Malt Extract, Light"},
    {CatalogueKind::Extract, "amber lme", "Liquid Malt Extract, Amber"},
    {CatalogueKind::Extract, "cane sugar", "Table Sugar (Sucrose)"},
    {CatalogueKind::Extract, "dextrose", "Corn Sugar (Dextrose)"},
    {CatalogueKind::Extract, "lactose", "Lactose (Milk Sugar)"},
    {CatalogueKind::Extract, "d-180", "Candi Syrup, D-180"},
    {CatalogueKind::Hop, "ekg", "East Kent Goldings"},
    {CatalogueKind::Hop, "goldings", "East Kent Goldings"},
    {CatalogueKind::Hop, "fuggles", "Fuggle"},
    {CatalogueKind::Hop, "cascade", "Cascade"},
    {CatalogueKind::Hop, "us cascade", "Cascade"},
    {CatalogueKind::Hop, "citra", "Citra"},
    {CatalogueKind::Hop, "mosaic", "Mosaic"},
    {CatalogueKind::Hop, "simcoe", "Simcoe"},
    {CatalogueKind::Hop, "ctz", "Columbus (CTZ)"},
    {CatalogueKind::Hop, "columbus", "Columbus (CTZ)"},
    {CatalogueKind::Hop, "magnum", "Hallertauer Magnum"},
    {CatalogueKind::Hop, "hallertau mag", "Hallertauer Magnum"},
    {CatalogueKind::Hop, "hallertau", "Hallertauer Mittelfr\u00FCh"},
    {CatalogueKind::Hop, "mittelfruh", "Hallertauer Mittelfr\u00FCh"},
    {CatalogueKind::Hop, "hersbrucker", "Hersbrucker"},
    {CatalogueKind::Hop, "tettnang", "Tettnanger"},
    {CatalogueKind::Hop, "saaz", "Saaz"},
    {CatalogueKind::Hop, "northern brewer", "Northern Brewer"},
    {CatalogueKind::Hop, "mt hood", "Mount Hood"},
    {CatalogueKind::Hop, "nelson", "Nelson Sauvin"},
    {CatalogueKind::Hop, "styrian goldings", "Styrian Golding"},
    {CatalogueKind::Hop, "eldorado", "El Dorado"},
    {CatalogueKind::Hop, "sladek", "Sl\u00E1dek"},
    {CatalogueKind::Yeast, "us-05", "Fermentis SafAle US-05"},
    {CatalogueKind::Yeast, "us05", "Fermentis SafAle US-05"},
    {CatalogueKind::Yeast, "safale 05", "Fermentis SafAle US-05"},
    {CatalogueKind::Yeast, "s-04", "Fermentis SafAle S-04"},
    {CatalogueKind::Yeast, "w-34/70", "Fermentis SafLager W-34/70"},
    {CatalogueKind::Yeast, "34/70", "Fermentis SafLager W-34/70"},
    {CatalogueKind::Yeast, "k97", "Fermentis SafAle K-97"},
    {CatalogueKind::Yeast, "nottingham", "Lallemand LalBrew Nottingham"},
    {CatalogueKind::Yeast, "windsor", "Lallemand LalBrew Windsor"},
    {CatalogueKind::Yeast, "verdant", "Lallemand LalBrew Verdant IPA"},
    {CatalogueKind::Yeast, "bry 97", "Lallemand LalBrew BRY-97"},
    {CatalogueKind::Yeast, "belle saison", "Lallemand LalBrew Belle Saison"},
    {CatalogueKind::Yeast, "wlp001", "White Labs WLP001 California Ale"},
    {CatalogueKind::Yeast, "wlp 300", "White Labs WLP300 Hefeweizen"},
    {CatalogueKind::Yeast, "wyeast 1056", "Wyeast 1056 American Ale"},
    {CatalogueKind::Yeast, "1968", "Wyeast 1968 London ESB"},
    {CatalogueKind::Yeast, "wyeast 3711", "Wyeast 3711 French Saison"},
    {CatalogueKind::Style, "american ipa", "American IPA"},
    {CatalogueKind::Style, "neipa", "Hazy IPA"},
    {CatalogueKind::Style, "dubbel", "Belgian Dubbel"},
    {CatalogueKind::Style, "kolsch", "K\u00F6lsch"},
    {CatalogueKind::Style, "18b", "American Pale Ale"},
    {CatalogueKind::Style, "oatmeal", "Oatmeal Stout"},
    {CatalogueKind::Sugar, "corn sugar", "Corn Sugar (Dextrose)"},
    {CatalogueKind::Sugar, "table sugar", "Table Sugar (Sucrose)"},
    {CatalogueKind::Salt, "cacl2", "Calcium Chloride (dihydrate)"},
    {CatalogueKind::Salt, "epsom", "Epsom Salt"},
    {CatalogueKind::Water, "burton", "Burton-on-Trent"},
    {CatalogueKind::Water, "ro", "Reverse Osmosis"},
};

class BrewersNames : public testing::TestWithParam<TypedName> {
  protected:
    static void SetUpTestSuite() {
        database_ = CreateMainDatabaseInMemory();
        ASSERT_TRUE(LoadCatalogue(CATALOGUE_FOLDER, *database_, std::nullopt).empty());
    }
    static void TearDownTestSuite() { database_.reset(); }

    static inline std::unique_ptr<Database> database_;
};

TEST(BrewersNamesList, HasAHundredDifferentNames) {
    std::set<std::pair<CatalogueKind, std::string>> different;
    for (const TypedName& name : kTypedNames) different.insert({name.list, name.typed});
    EXPECT_EQ(different.size(), 100U);
}

// Typed into a cell, the name is either completed by the list or kept, and its row looked up.
TEST_P(BrewersNames, LeadToTheirRows) {
    const auto& [list, typed, meant] = GetParam();
    const CatalogueNames catalogue(*database_);
    const NameList names = catalogue.NamesOf(list);
    const auto found = names.Find(typed);
    ASSERT_FALSE(found.empty());
    EXPECT_EQ(names.Name(found.front().index), meant) << "the first of the list";
    const FoundName* const only = OnlyMeant(found);
    EXPECT_EQ(catalogue.RowOf(list, only ? names.Name(only->index) : typed), meant);
}

INSTANTIATE_TEST_SUITE_P(All, BrewersNames, testing::ValuesIn(kTypedNames));

}  // namespace
}  // namespace tw
