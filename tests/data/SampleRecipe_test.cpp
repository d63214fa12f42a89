// Whether the sample recipe is whole with the catalogue of the program, and to its style.
#include "document/SampleRecipe.h"

#include <gtest/gtest.h>
#include <memory>

#include "document/FigureRules.h"
#include "document/StyleRange.h"
#include "store/CatalogueLoader.h"
#include "store/Schema.h"
#include "support/RecordingHost.h"
#include "support/RecordingPlatform.h"

namespace tw::test {
namespace {

class SampleRecipe : public testing::TestWithParam<TypingUnits> {
  protected:
    std::unique_ptr<Database> database_ = CreateMainDatabaseInMemory();
};

TEST_P(SampleRecipe, IsWholeAndToItsStyle) {
    ASSERT_TRUE(LoadCatalogue(CATALOGUE_FOLDER, *database_, std::nullopt).empty());
    RecordingPlatform platform;
    RecordingHost host(*database_, platform.clock);
    const ColorTable colors;
    RecipeDocument sample(host, platform.platform, *database_, colors, 1);
    FillSample(sample, GetParam());
    EXPECT_EQ(sample.BeerStyle(), "American Pale Ale");
    EXPECT_EQ(sample.Yeast().Name(), "Fermentis SafAle US-05");
    for (const FigureRule& rule : FigureRules()) {
        const auto range = RangeOfLabel((sample.Record().*rule.range).Text());
        const auto figure = FigureOf((sample.Record().*rule.box).Text());
        ASSERT_TRUE(range && figure) << rule.shortName;
        EXPECT_EQ(PlaceIn(*range, *figure), RangePlace::Within) << rule.shortName << " " << *figure;
        EXPECT_TRUE(sample.Missing().ReasonsOf(rule.field).empty()) << rule.shortName;
    }
    EXPECT_TRUE(platform.messages.log.empty());
}

INSTANTIATE_TEST_SUITE_P(Both, SampleRecipe, testing::Values(TypingUnits::US, TypingUnits::Metric));

}  // namespace
}  // namespace tw::test
