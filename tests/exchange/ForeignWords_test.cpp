#include "exchange/ForeignWords.h"

#include <gtest/gtest.h>

#include "exchange/BeerXmlTags.h"

namespace tw {
namespace {

TEST(ForeignWords, AWordIsListedFoldedOrNone) {
    const auto uses = FieldOf(XmlRecord::Hop, "USE")->words;
    EXPECT_EQ(FitOf("Dry Hop", uses), WordFit::Listed);
    EXPECT_EQ(FitOf("dry hop", uses), WordFit::Folded);
    EXPECT_EQ(FitOf("Dry-Hop", uses), WordFit::Folded);
    EXPECT_EQ(FitOf("Whirlpool", uses), WordFit::None);
    EXPECT_EQ(FitOf("", uses), WordFit::None);
}

TEST(ForeignWords, UsesOfRealFilesAreUnderstood) {
    EXPECT_EQ(UseOfWord("Boil")->value, ForeignUse::Boil);
    EXPECT_EQ(UseOfWord("Kettle")->value, ForeignUse::Boil);
    EXPECT_EQ(UseOfWord("first wort")->value, ForeignUse::FirstWort);
    EXPECT_EQ(UseOfWord("hop-stand")->value, ForeignUse::Whirlpool);
    EXPECT_EQ(UseOfWord("Dry-Hop")->value, ForeignUse::Primary);
    EXPECT_EQ(UseOfWord("Primary")->value, ForeignUse::Primary);
    EXPECT_EQ(UseOfWord("Secondary")->value, ForeignUse::Secondary);
    EXPECT_EQ(UseOfWord("Keg")->value, ForeignUse::Package);
    EXPECT_FALSE(UseOfWord("Garnish"));
    EXPECT_FALSE(UseOfWord(""));
    EXPECT_FALSE(UseOfWord("BOIL|KETTLE"));
}

TEST(ForeignWords, TypesAndFormsOfRealFilesAreUnderstood) {
    using Type = ForeignFermentable::Type;
    EXPECT_EQ(FermentableTypeOfWord("Liquid Extract")->value, Type::Extract);
    EXPECT_EQ(FermentableTypeOfWord("Base Malt")->value, Type::Grain);
    EXPECT_EQ(FermentableTypeOfWord("Malt")->value, Type::Grain);
    EXPECT_EQ(FermentableTypeOfWord("dry extract")->value, Type::DryExtract);
    EXPECT_FALSE(FermentableTypeOfWord("Beer"));
    EXPECT_EQ(HopFormOfWord("leaf/whole")->value, ForeignHop::Form::Leaf);
    EXPECT_EQ(HopFormOfWord("leaf (wet)")->value, ForeignHop::Form::WetLeaf);
    EXPECT_EQ(HopFormOfWord("Pellets")->value, ForeignHop::Form::Pellet);
    EXPECT_EQ(RecipeTypeOfWord("all-grain")->value, ForeignRecipe::Type::AllGrain);
    EXPECT_EQ(IbuMethodOfWord("tinseth")->value, ForeignIbuMethod::Tinseth);
    EXPECT_FALSE(IbuMethodOfWord("Other"));
}

TEST(ForeignWords, BooleansAreUnderstood) {
    for (const char* word : {"TRUE", "true", "1", "yes", "Y"})
        EXPECT_TRUE(BooleanOfWord(word)->value) << word;
    for (const char* word : {"FALSE", "0", "no"}) EXPECT_FALSE(BooleanOfWord(word)->value) << word;
    EXPECT_FALSE(BooleanOfWord("maybe"));
}

// Every word of the format's own lists has its meaning.
TEST(ForeignWords, AllWordsOfTheListsAreKnown) {
    for (const auto word : FieldOf(XmlRecord::Hop, "USE")->words) EXPECT_TRUE(UseOfWord(word)) << word;
    for (const auto word : FieldOf(XmlRecord::Misc, "USE")->words) EXPECT_TRUE(UseOfWord(word)) << word;
    for (const auto word : FieldOf(XmlRecord::Hop, "FORM")->words) EXPECT_TRUE(HopFormOfWord(word)) << word;
    for (const auto word : FieldOf(XmlRecord::Recipe, "TYPE")->words)
        EXPECT_TRUE(RecipeTypeOfWord(word)) << word;
    for (const auto word : FieldOf(XmlRecord::Fermentable, "TYPE")->words)
        EXPECT_TRUE(FermentableTypeOfWord(word)) << word;
    for (const auto word : FieldOf(XmlRecord::Recipe, "IBU_METHOD")->words)
        EXPECT_TRUE(IbuMethodOfWord(word)) << word;
}

}  // namespace
}  // namespace tw
