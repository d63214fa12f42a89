// What stands in files that the program writes as BeerXML, of recipes that come from no file.
#include <cmath>

#include "exchange/XmlWriting.h"

namespace tw::test {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using Of = ForeignAmount::Of;

TEST(BeerXmlWriter, ARecipeWithNothingButANameHasAllThatTheFormatRequires) {
    ForeignRecipe facts;
    facts.name = "Ale";
    const auto written = WriteFacts(facts);
    EXPECT_EQ(written->text.substr(0, written->text.find("<STYLE>")),
              R"(<?xml version="1.0" encoding="UTF-8"?>
<RECIPES>
  <RECIPE>
    <NAME>Ale</NAME>
    <VERSION>1</VERSION>
    <TYPE>All Grain</TYPE>
    <BREWER/>
    <BATCH_SIZE>0</BATCH_SIZE>
    <BOIL_SIZE>0</BOIL_SIZE>
    <BOIL_TIME>0</BOIL_TIME>
    <EFFICIENCY>0</EFFICIENCY>
    )");
    EXPECT_EQ(written->text.substr(written->text.find("    <FERMENTABLES/>")),
              R"(    <FERMENTABLES/>
    <HOPS/>
    <MISCS/>
    <YEASTS/>
    <WATERS/>
    <MASH>
      <NAME>Mash</NAME>
      <VERSION>1</VERSION>
      <GRAIN_TEMP>20</GRAIN_TEMP>
      <MASH_STEPS/>
    </MASH>
  </RECIPE>
</RECIPES>
)");
    EXPECT_THAT(written->Told(), Contains(HasSubstr("note missing : The format requires figures that are "
                                                    "unknown, which were written as 0 or as the usual word: "
                                                    "BATCH_SIZE, BOIL_SIZE, BOIL_TIME, EFFICIENCY, STYLE/")));
}

TEST(BeerXmlWriter, NoRecipesAreAnEmptyList) {
    Findings findings;
    EXPECT_EQ(WriteBeerXml({}, findings), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<RECIPES/>\n");
    EXPECT_TRUE(findings.IsEmpty());
}

TEST(BeerXmlWriter, AnExtractRecipeNeedsNoMashAndNoEfficiency) {
    ForeignRecipe facts;
    facts.type = ForeignRecipe::Type::Extract;
    const auto written = WriteFacts(facts);
    EXPECT_EQ(written->At("TYPE"), "Extract");
    EXPECT_FALSE(written->Recipe().child("MASH"));
    EXPECT_FALSE(written->Recipe().child("EFFICIENCY"));
}

TEST(BeerXmlWriter, FermentablesDecideAnUnknownType) {
    using Type = ForeignFermentable::Type;
    const auto typeFor = [](std::vector<std::optional<Type>> types) {
        ForeignRecipe facts;
        for (const auto& type : types) {
            facts.fermentables.emplace_back();
            facts.fermentables.back().type = type;
        }
        return WriteFacts(facts)->At("TYPE");
    };
    EXPECT_EQ(typeFor({Type::Grain}), "All Grain");
    EXPECT_EQ(typeFor({std::nullopt, Type::Sugar}), "All Grain");
    EXPECT_EQ(typeFor({Type::Extract, Type::Sugar}), "Extract");
    EXPECT_EQ(typeFor({Type::DryExtract, Type::Adjunct}), "Partial Mash");
}

ForeignRecipe WholeFacts() {
    ForeignRecipe facts;
    facts.name = "Small & Dark";
    facts.type = ForeignRecipe::Type::PartialMash;
    facts.brewer = "Ann";
    facts.assistant = "Bob";
    facts.date = "3 Jan 04";
    facts.batchSize = ForeignAmount{Of::Volume, 18.92705892, "5 gal"};
    facts.boilSize = ForeignAmount{Of::Volume, 24, ""};
    facts.equipmentBoilSize = ForeignAmount{Of::Volume, 26, ""};
    facts.boilMinutes = 60;
    facts.efficiency = 72.5;
    facts.hopUtilization = 90;
    facts.ibuMethod = ForeignIbuMethod::Rager;
    facts.stated = {1.0415, 1.01, 4.1, 22.5, 18.25};
    facts.style =
        ForeignStyle{"Mild",         "Dark",   "13",     "A",      "Own",    "Ale",      {1.03, 1.04},
                     {1.008, 1.013}, {10, 25}, {14, 25}, {1.5, 2}, {3, 3.8}, "Quaffable"};
    ForeignFermentable malt;
    malt.name = "Pale";
    malt.type = ForeignFermentable::Type::Grain;
    malt.amount = ForeignAmount{Of::Mass, 3.175146590, "7 lb"};
    malt.yield = 79;
    malt.potential = 1.0365;
    malt.lovibond = 3;
    malt.recommendMash = true;
    malt.afterBoil = true;
    malt.origin = "UK";
    malt.supplier = "Own";
    malt.notes = "Crushed";
    facts.fermentables = {malt};
    ForeignHop hop;
    hop.name = "Fuggle";
    hop.alpha = 4.5;
    hop.amount = ForeignAmount{Of::Mass, 0.0283495231, "1 oz"};
    hop.use = ForeignUse::Boil;
    hop.minutes = 60;
    hop.form = ForeignHop::Form::Plug;
    hop.origin = "UK";
    hop.notes = "Old";
    hop.beta = 2.5;
    facts.hops = {hop};
    ForeignYeast yeast;
    yeast.name = "House";
    yeast.laboratory = "Lab";
    yeast.productId = "L 1";
    yeast.type = "Lager";
    yeast.form = "Dry";
    yeast.amount = ForeignAmount{Of::Mass, 0.0115, "11.5 g"};
    yeast.attenuation = 72;
    yeast.minCelsius = 18;
    yeast.maxCelsius = 22;
    yeast.flocculation = "Very High";
    yeast.notes = "Twice";
    yeast.secondary = true;
    facts.yeasts = {yeast};
    ForeignMisc misc;
    misc.name = "Moss";
    misc.type = "Fining";
    misc.use = ForeignUse::Boil;
    misc.minutes = 15;
    misc.amount = ForeignAmount{Of::Volume, 0.005, "5 ml"};
    misc.useFor = "Clarity";
    misc.notes = "Irish";
    facts.miscs = {misc};
    facts.waters = {{"Well", 25, 100, 250, std::nullopt, 40, 30, 12, 8, 7.2, "Hard"}};
    facts.carbonation = 2.1;
    facts.forced = false;
    facts.carbonationCelsius = 20;
    facts.primingSugar = "Table sugar";
    facts.notes = "Boil\nwell";
    facts.tasteNotes = "Good";
    facts.tasteRating = 40;
    return facts;
}

TEST(BeerXmlWriter, EveryFactHasItsTag) {
    const auto written = WriteFacts(WholeFacts());
    EXPECT_THAT(written->Told(), IsEmpty());
    const std::pair<const char*, const char*> expected[] = {
        {"NAME", "Small & Dark"},
        {"TYPE", "Partial Mash"},
        {"BREWER", "Ann"},
        {"ASST_BREWER", "Bob"},
        {"DATE", "3 Jan 04"},
        {"BATCH_SIZE", "18.92705892"},
        {"DISPLAY_BATCH_SIZE", "5 gal"},
        {"BOIL_SIZE", "24"},
        {"DISPLAY_BOIL_SIZE", "(none)"},
        {"BOIL_TIME", "60"},
        {"EFFICIENCY", "72.5"},
        {"EST_OG", "1.0415 sg"},
        {"EST_FG", "1.01 sg"},
        {"EST_ABV", "4.1 %"},
        {"IBU", "22.5 IBU"},
        {"IBU_METHOD", "Rager"},
        {"EST_COLOR", "18.25 SRM"},
        {"CARBONATION", "2.1"},
        {"FORCED_CARBONATION", "FALSE"},
        {"CARBONATION_TEMP", "20"},
        {"PRIMING_SUGAR_NAME", "Table sugar"},
        {"NOTES", "Boil\nwell"},
        {"TASTE_NOTES", "Good"},
        {"TASTE_RATING", "40"},
        {"EQUIPMENT/BOIL_SIZE", "26"},
        {"EQUIPMENT/HOP_UTILIZATION", "90"},
        {"STYLE/NAME", "Mild"},
        {"STYLE/OG_MAX", "1.04"},
        {"STYLE/ABV_MAX", "3.8"},
        {"STYLE/NOTES", "Quaffable"},
        {"FERMENTABLES/FERMENTABLE/VERSION", "1"},
        {"FERMENTABLES/FERMENTABLE/AMOUNT", "3.17514659"},
        {"FERMENTABLES/FERMENTABLE/DISPLAY_AMOUNT", "7 lb"},
        {"FERMENTABLES/FERMENTABLE/POTENTIAL", "1.0365"},
        {"FERMENTABLES/FERMENTABLE/ADD_AFTER_BOIL", "TRUE"},
        {"FERMENTABLES/FERMENTABLE/RECOMMEND_MASH", "TRUE"},
        {"HOPS/HOP/AMOUNT", "0.0283495231"},
        {"HOPS/HOP/DISPLAY_TIME", "60 min"},
        {"HOPS/HOP/FORM", "Plug"},
        {"YEASTS/YEAST/TYPE", "Lager"},
        {"YEASTS/YEAST/AMOUNT_IS_WEIGHT", "TRUE"},
        {"YEASTS/YEAST/FLOCCULATION", "Very High"},
        {"YEASTS/YEAST/ADD_TO_SECONDARY", "TRUE"},
        {"MISCS/MISC/AMOUNT_IS_WEIGHT", "FALSE"},
        {"MISCS/MISC/USE_FOR", "Clarity"},
        {"WATERS/WATER/BICARBONATE", "250"},
        {"WATERS/WATER/PH", "7.2"}};
    for (const auto& [path, text] : expected) EXPECT_EQ(written->At(path), text) << path;
    // Nothing but what is known.
    EXPECT_FALSE(written->Recipe().child("OG"));
}

TEST(BeerXmlWriter, ReadingGivesTheSameFactsBack) {
    const ForeignRecipe facts = WholeFacts();
    const ForeignRecipe read = ReadOne(WriteFacts(facts)->text);
    EXPECT_EQ(read.batchSize->written, "5 gal");
    EXPECT_NEAR(read.batchSize->value, facts.batchSize->value, 1e-9);
    EXPECT_EQ(read.equipmentBoilSize->value, 26);
    EXPECT_EQ(read.hopUtilization, 90);
    EXPECT_EQ(read.stated.og, 1.0415);
    EXPECT_EQ(read.stated.srm, 18.25);
    EXPECT_EQ(read.ibuMethod, ForeignIbuMethod::Rager);
    EXPECT_EQ(read.style->volumes.low, 1.5);
    EXPECT_EQ(read.hops.at(0).form, ForeignHop::Form::Plug);
    EXPECT_EQ(read.yeasts.at(0).amount->of, Of::Mass);
    EXPECT_EQ(read.miscs.at(0).amount->of, Of::Volume);
    EXPECT_EQ(read.notes, "Boil\nwell");
    // Written again from what was read, the file is the same.
    ForeignRecipe again = read;
    again.fragment.clear();
    EXPECT_EQ(WriteFacts(again)->text, WriteFacts(facts)->text);
}

TEST(BeerXmlWriter, UsesOfHops) {
    using Use = ForeignUse;
    const std::tuple<Use, const char*, bool> cases[] = {
        {Use::Mash, "Mash", true},          {Use::FirstWort, "First Wort", true},
        {Use::Boil, "Boil", true},          {Use::Aroma, "Aroma", true},
        {Use::Whirlpool, "Aroma", false},   {Use::Primary, "Dry Hop", true},
        {Use::Secondary, "Dry Hop", false}, {Use::Package, "Dry Hop", false}};
    for (const auto& [use, word, isExact] : cases) {
        ForeignHop hop;
        hop.name = "Saaz";
        hop.use = use;
        const auto written = WriteHop(hop);
        EXPECT_EQ(written->At("HOPS/HOP/USE"), word);
        EXPECT_THAT(
            written->Told(),
            testing::Contains(HasSubstr("approximated hop-use Hops 1: Saaz: USE")).Times(isExact ? 0 : 1));
    }
    ForeignHop unknown;
    unknown.useWritten = "Sparkle";
    const auto written = WriteHop(unknown);
    EXPECT_EQ(written->At("HOPS/HOP/USE"), "Boil");
    EXPECT_THAT(written->Told(),
                Contains(HasSubstr("USE \"Sparkle\" is not a word of BeerXML and was written "
                                   "as \"Boil\".")));
}

TEST(BeerXmlWriter, UsesOfMiscellaneousIngredients) {
    using Use = ForeignUse;
    const std::pair<Use, const char*> cases[] = {{Use::Mash, "Mash"},           {Use::FirstWort, "Boil"},
                                                 {Use::Boil, "Boil"},           {Use::Aroma, "Boil"},
                                                 {Use::Whirlpool, "Boil"},      {Use::Primary, "Primary"},
                                                 {Use::Secondary, "Secondary"}, {Use::Package, "Bottling"}};
    for (const auto& [use, word] : cases) {
        ForeignRecipe facts;
        facts.miscs.emplace_back();
        facts.miscs[0].use = use;
        facts.miscs[0].type = "wood";
        const auto written = WriteFacts(facts);
        EXPECT_EQ(written->At("MISCS/MISC/USE"), word);
        EXPECT_EQ(written->At("MISCS/MISC/TYPE"), "Other");
        EXPECT_THAT(written->Told(), Contains(HasSubstr("approximated unknown-word Miscellaneous 1: TYPE")));
    }
}

TEST(BeerXmlWriter, FormsOfHops) {
    using Form = ForeignHop::Form;
    const std::tuple<Form, const char*, bool> cases[] = {
        {Form::Pellet, "Pellet", true}, {Form::Plug, "Plug", true},     {Form::Leaf, "Leaf", true},
        {Form::WetLeaf, "Leaf", false}, {Form::Extract, "Leaf", false}, {Form::Powder, "Pellet", false}};
    for (const auto& [form, word, isExact] : cases) {
        ForeignHop hop;
        hop.form = form;
        const auto written = WriteHop(hop);
        EXPECT_EQ(written->At("HOPS/HOP/FORM"), word);
        EXPECT_THAT(written->Told(),
                    testing::Contains(HasSubstr("approximated form Hops 1: FORM")).Times(isExact ? 0 : 1));
    }
}

TEST(BeerXmlWriter, TypesOfFermentables) {
    using Type = ForeignFermentable::Type;
    const std::tuple<Type, const char*, bool> cases[] = {{Type::Grain, "Grain", true},
                                                         {Type::Adjunct, "Adjunct", true},
                                                         {Type::Sugar, "Sugar", true},
                                                         {Type::Extract, "Extract", true},
                                                         {Type::DryExtract, "Dry Extract", true},
                                                         {Type::Fruit, "Sugar", false},
                                                         {Type::Juice, "Sugar", false},
                                                         {Type::Honey, "Sugar", false},
                                                         {Type::Other, "Adjunct", false}};
    for (const auto& [type, word, isExact] : cases) {
        ForeignRecipe facts;
        facts.fermentables.emplace_back();
        facts.fermentables[0].type = type;
        const auto written = WriteFacts(facts);
        EXPECT_EQ(written->At("FERMENTABLES/FERMENTABLE/TYPE"), word);
        EXPECT_THAT(written->Told(),
                    testing::Contains(HasSubstr("approximated unknown-word Fermentables 1: TYPE"))
                        .Times(isExact ? 0 : 1));
    }
}

TEST(BeerXmlWriter, AYieldFollowsFromThePotential) {
    ForeignRecipe facts;
    facts.fermentables.emplace_back();
    facts.fermentables[0].potential = 1.023107;  // half of the 46.214 points of sugar
    EXPECT_EQ(WriteFacts(facts)->At("FERMENTABLES/FERMENTABLE/YIELD"), "50");
}

TEST(BeerXmlWriter, AmountsOfAnotherKind) {
    ForeignHop hop;
    hop.amount = ForeignAmount{Of::Volume, 0.005, "5 ml"};
    auto written = WriteHop(hop);
    EXPECT_EQ(written->At("HOPS/HOP/AMOUNT"), "0.005");
    EXPECT_EQ(written->At("HOPS/HOP/DISPLAY_AMOUNT"), "5 ml");
    EXPECT_THAT(written->Told(), Contains(HasSubstr("approximated amount-unit Hops 1: A volume is")));
    hop.amount = ForeignAmount{Of::Pieces, 3, ""};
    written = WriteHop(hop);
    EXPECT_EQ(written->At("HOPS/HOP/AMOUNT"), "0");
    EXPECT_EQ(written->At("HOPS/HOP/DISPLAY_AMOUNT"), "3 each");

    ForeignRecipe facts;
    facts.yeasts.emplace_back();
    facts.yeasts[0].amount = ForeignAmount{Of::Pieces, 2, "2 pkg"};
    written = WriteFacts(facts);
    EXPECT_EQ(written->At("YEASTS/YEAST/AMOUNT"), "2");
    EXPECT_EQ(written->At("YEASTS/YEAST/AMOUNT_IS_WEIGHT"), "(none)");
    EXPECT_EQ(ReadOne(written->text).yeasts.at(0).amount->of, Of::Pieces);
}

TEST(BeerXmlWriter, WordsOfTheOtherFormat) {
    ForeignRecipe facts;
    facts.yeasts.resize(3);
    facts.yeasts[0].type = "ale";
    facts.yeasts[0].form = "dregs";
    facts.yeasts[0].flocculation = "medium high";
    facts.yeasts[1].type = "kveik";
    facts.yeasts[1].flocculation = "odd";
    facts.style.emplace();
    facts.style->type = "beer";
    const auto written = WriteFacts(facts);
    EXPECT_EQ(written->At("YEASTS/YEAST[1]/TYPE"), "Ale");
    EXPECT_EQ(written->At("YEASTS/YEAST[1]/FORM"), "Culture");
    EXPECT_EQ(written->At("YEASTS/YEAST[1]/FLOCCULATION"), "High");
    EXPECT_EQ(written->At("YEASTS/YEAST[2]/TYPE"), "Ale");
    EXPECT_EQ(written->At("YEASTS/YEAST[2]/FLOCCULATION"), "(none)");
    EXPECT_EQ(written->At("YEASTS/YEAST[3]/FORM"), "Liquid");
    EXPECT_EQ(written->At("YEASTS/YEAST[3]/AMOUNT"), "0");
    EXPECT_EQ(written->At("STYLE/TYPE"), "Ale");
    EXPECT_THAT(written->Told(), Contains(HasSubstr("TYPE \"kveik\" is not a word of BeerXML")));
    EXPECT_THAT(written->Told(), Not(Contains(HasSubstr("\"ale\""))));
}

TEST(BeerXmlWriter, FactsWithoutATagAreTold) {
    ForeignRecipe facts;
    facts.hops.resize(2);
    facts.hops[0].supplier = facts.hops[1].supplier = "Farm";
    EXPECT_THAT(
        WriteFacts(facts)->Told(),
        Contains("not carried carried : BeerXML has no place for what was left out: the producer of hops."));
}

TEST(BeerXmlWriter, TextsHaveNoCharacterThatXmlForbids) {
    ForeignRecipe facts;
    facts.name = "A\x01\xFF <&>\"'";
    facts.notes = "one\r\ntwo\rthree\xEF\xBF\xBE\xC3\xBC";
    const auto written = WriteFacts(facts);
    EXPECT_EQ(written->At("NAME"), "A\xEF\xBF\xBD <&>\"'");
    EXPECT_EQ(written->At("NOTES"), "one\ntwo\nthree\xC3\xBC");
}

TEST(BeerXmlWriter, FiguresWithoutAnExponent) {
    ForeignHop hop;
    hop.alpha = 1e-7;
    hop.beta = 1.0 / 3;
    hop.minutes = 1e9;
    hop.amount = ForeignAmount{Of::Mass, std::nan(""), ""};
    const auto written = WriteHop(hop);
    EXPECT_EQ(written->At("HOPS/HOP/ALPHA"), "0.0000001");
    EXPECT_EQ(written->At("HOPS/HOP/BETA"), "0.3333333333");
    EXPECT_EQ(written->At("HOPS/HOP/TIME"), "1000000000");
    EXPECT_EQ(written->At("HOPS/HOP/AMOUNT"), "0");
}

}  // namespace
}  // namespace tw::test
