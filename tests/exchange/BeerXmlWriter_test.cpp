// What stands in files that the program writes as BeerXML. Each written file is checked against the schema.
#include "exchange/BeerXmlWriter.h"

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pugixml.hpp>
#include <set>
#include <sstream>

#include "exchange/BeerXmlReader.h"
#include "exchange/XmlMend.h"
#include "exchange/XmlSchema.h"

namespace tw {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::Pair;
using testing::UnorderedElementsAre;
using Of = ForeignAmount::Of;
using Field = ExportedField;

using Texts = std::vector<std::pair<std::string, std::string>>;

struct Written {
    std::string text;
    Findings findings;

    // The findings as "severity code place: text".
    std::vector<std::string> Told() const {
        std::vector<std::string> told;
        for (const Finding& each : findings.All())
            told.push_back(std::string(WordOf(each.severity)) + " " + std::string(WordOf(each.code)) + " " +
                           each.place + ": " + each.text);
        return told;
    }
    pugi::xml_node Recipe() {
        document.load_string(text.c_str(), pugi::parse_default | pugi::parse_ws_pcdata_single);
        return document.document_element().child("RECIPE");
    }
    // The text of an element by its path from the recipe; "(none)" without one.
    std::string At(const char* path) {
        const pugi::xpath_node found = Recipe().select_node(path);
        return found ? found.node().text().get() : "(none)";
    }
    pugi::xml_document document;
};

std::unique_ptr<Written> Write(const ExportedRecipe& recipe) {
    auto written = std::make_unique<Written>();
    written->text = WriteBeerXml(std::span(&recipe, 1), written->findings);
    EXPECT_EQ(test::XmlSchemaErrors(written->text), "") << written->text;
    return written;
}

std::unique_ptr<Written> WriteFacts(ForeignRecipe facts) {
    ExportedRecipe recipe;
    recipe.facts = std::move(facts);
    return Write(recipe);
}

std::unique_ptr<Written> WriteHop(const ForeignHop& hop) {
    ForeignRecipe facts;
    facts.hops = {hop};
    return WriteFacts(std::move(facts));
}

ForeignRecipe ReadOne(const std::string& text) {
    ForeignFile file;
    ReadBeerXml(text, file);
    return file.recipes.empty() ? ForeignRecipe() : file.recipes.front();
}

std::vector<LineOrigin> Unchanged(std::size_t count) {
    std::vector<LineOrigin> origins;
    for (std::size_t i = 0; i < count; ++i) origins.push_back({i, true});
    return origins;
}

// A recipe of a file in which nothing has changed.
ExportedRecipe Original(const ForeignRecipe& facts) {
    return {facts,
            {},
            Unchanged(facts.fermentables.size()),
            Unchanged(facts.hops.size()),
            Unchanged(facts.yeasts.size()),
            Unchanged(facts.miscs.size()),
            Unchanged(facts.waters.size())};
}

ExportedRecipe Original(const std::string& inner) {
    return Original(ReadOne("<RECIPES><RECIPE>" + inner + "</RECIPE></RECIPES>"));
}

// The paths and texts of all elements with a text or an attribute of their own.
void Collect(pugi::xml_node element, const std::string& path, Texts& texts) {
    const std::string here = path + "/" + element.name();
    std::string text;
    for (const pugi::xml_node child : element.children())
        if (child.type() != pugi::node_element) text += child.value();
    if (text.find_first_not_of(" \t\r\n") != std::string::npos) texts.emplace_back(here, text);
    for (const pugi::xml_attribute attribute : element.attributes())
        texts.emplace_back(here + "/@" + attribute.name(), attribute.value());
    for (const pugi::xml_node child : element.children())
        if (child.type() == pugi::node_element) Collect(child, here, texts);
}

Texts TextsOf(const std::string& xml) {
    pugi::xml_document document;
    document.load_string(xml.c_str());
    Texts texts;
    Collect(document.document_element(), "", texts);
    return texts;
}

// A recipe that satisfies the schema, with a tag that the format does not have.
constexpr const char* kValid = R"(<RECIPE><NAME>Mild</NAME><VERSION>1</VERSION><TYPE>All Grain</TYPE>
<STYLE><NAME>Dark</NAME><CATEGORY>Mild</CATEGORY><VERSION>1</VERSION><CATEGORY_NUMBER>13</CATEGORY_NUMBER>
<STYLE_LETTER>A</STYLE_LETTER><STYLE_GUIDE>Own</STYLE_GUIDE><TYPE>Ale</TYPE><OG_MIN>1.030</OG_MIN>
<OG_MAX>1.038</OG_MAX><FG_MIN>1.008</FG_MIN><FG_MAX>1.013</FG_MAX><IBU_MIN>10</IBU_MIN><IBU_MAX>25</IBU_MAX>
<COLOR_MIN>14</COLOR_MIN><COLOR_MAX>25</COLOR_MAX></STYLE><BREWER>Ann</BREWER><BATCH_SIZE>20.0</BATCH_SIZE>
<BOIL_SIZE>24</BOIL_SIZE><BOIL_TIME>60</BOIL_TIME><EFFICIENCY>70</EFFICIENCY>
<HOPS><HOP><NAME>Fuggle</NAME><VERSION>1</VERSION><ALPHA>4.50</ALPHA><AMOUNT>0.030</AMOUNT><USE>Boil</USE>
<TIME>60</TIME><GROWER kind="farm">Smith  &amp; Son</GROWER><HSI>35</HSI><DISPLAY_AMOUNT>30.0 g</DISPLAY_AMOUNT>
<DISPLAY_TIME>60 min</DISPLAY_TIME></HOP>
<HOP><NAME>Goldings</NAME><VERSION>1</VERSION><ALPHA>5</ALPHA><AMOUNT>0.02</AMOUNT><USE>Aroma</USE><TIME>5</TIME>
</HOP></HOPS>
<FERMENTABLES><FERMENTABLE><NAME>Pale</NAME><VERSION>1</VERSION><TYPE>Grain</TYPE><AMOUNT>3.2</AMOUNT>
<YIELD>79</YIELD><COLOR>3</COLOR><POTENTIAL>1.0365</POTENTIAL></FERMENTABLE></FERMENTABLES>
<MISCS/><YEASTS/><WATERS/><MASH><NAME>Single</NAME><VERSION>1</VERSION><GRAIN_TEMP>20</GRAIN_TEMP><MASH_STEPS>
<MASH_STEP><NAME>Rest</NAME><VERSION>1</VERSION><TYPE>Infusion</TYPE><INFUSE_AMOUNT>10</INFUSE_AMOUNT>
<STEP_TEMP>67</STEP_TEMP><STEP_TIME>60</STEP_TIME></MASH_STEP></MASH_STEPS></MASH>
<CUSTOM>  <A>1</A> text <B/></CUSTOM><NOTES><![CDATA[a < b]]>
  second line</NOTES><EST_OG>1.036 SG</EST_OG></RECIPE>)";

ExportedRecipe ValidRecipe() {
    return Original(ReadOne("<RECIPES>" + std::string(kValid) + "</RECIPES>"));
}

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

TEST(BeerXmlWriter, TagsOfTheFormatLoseTheirAttributes) {
    const auto written =
        Write(Original("<NAME lang=\"en\">Mild</NAME><MASH id=\"3\"><NAME>Single</NAME></MASH>"
                       "<HOPS count=\"1\"><HOP id=\"4\"><NAME>Fuggle</NAME></HOP></HOPS><OWN id=\"5\"/>"));
    EXPECT_EQ(written->text.find("lang"), std::string::npos);
    EXPECT_EQ(written->text.find("count"), std::string::npos);
    EXPECT_STREQ(written->Recipe().child("OWN").attribute("id").value(), "5");
    EXPECT_FALSE(written->Recipe().child("MASH").attribute("id"));
    EXPECT_FALSE(written->Recipe().child("HOPS").child("HOP").attribute("id"));
    EXPECT_THAT(written->Told(),
                Contains(HasSubstr("left out: attribute lang, attribute id, attribute count")));
}

TEST(BeerXmlWriter, AnUnchangedOriginalComesBackToTheLetter) {
    const auto written = Write(ValidRecipe());
    EXPECT_THAT(written->Told(), IsEmpty());
    EXPECT_EQ(TextsOf(written->text), TextsOf("<RECIPES>" + std::string(kValid) + "</RECIPES>"));
    EXPECT_THAT(written->text, HasSubstr("<CUSTOM>  <A>1</A> text <B/></CUSTOM>"));
    EXPECT_THAT(written->text, HasSubstr("<NOTES><![CDATA[a < b]]>\n  second line</NOTES>"));
}

// Returns the paths at which two files differ, each with both texts.
std::vector<std::string> Differences(const std::string& a, const std::string& b) {
    const Texts before = TextsOf(a);
    const Texts after = TextsOf(b);
    std::vector<std::string> differences;
    for (const auto& each : before)
        if (std::ranges::find(after, each) == after.end())
            differences.push_back("-" + each.first + " " + each.second);
    for (const auto& each : after)
        if (std::ranges::find(before, each) == before.end())
            differences.push_back("+" + each.first + " " + each.second);
    return differences;
}

TEST(BeerXmlWriter, AChangedAmountChangesNothingElse) {
    ExportedRecipe recipe = ValidRecipe();
    const std::string before = Write(recipe)->text;
    recipe.hops[0].unchanged = false;
    recipe.facts.hops[0].amount = ForeignAmount{Of::Mass, 0.045, "45 g"};
    EXPECT_THAT(Differences(before, Write(recipe)->text),
                UnorderedElementsAre("-/RECIPES/RECIPE/HOPS/HOP/AMOUNT 0.030",
                                     "+/RECIPES/RECIPE/HOPS/HOP/AMOUNT 0.045",
                                     "-/RECIPES/RECIPE/HOPS/HOP/DISPLAY_AMOUNT 30.0 g",
                                     "+/RECIPES/RECIPE/HOPS/HOP/DISPLAY_AMOUNT 45 g"));
    // Without a text of its own, the old one would be wrong.
    recipe.facts.hops[0].amount->written.clear();
    EXPECT_EQ(Write(recipe)->At("HOPS/HOP/DISPLAY_AMOUNT"), "(none)");
    // An amount that differs by less than its text could say is the same.
    recipe.facts.hops[0].amount = ForeignAmount{Of::Mass, 0.030003, "30 g"};
    EXPECT_EQ(Write(recipe)->At("HOPS/HOP/AMOUNT"), "0.030");
}

TEST(BeerXmlWriter, AChangedUseAndTime) {
    ExportedRecipe recipe = ValidRecipe();
    const std::string before = Write(recipe)->text;
    recipe.hops[0].unchanged = false;
    recipe.facts.hops[0].use = ForeignUse::Primary;
    recipe.facts.hops[0].minutes = 7 * 24 * 60;
    EXPECT_THAT(
        Differences(before, Write(recipe)->text),
        UnorderedElementsAre("-/RECIPES/RECIPE/HOPS/HOP/USE Boil", "+/RECIPES/RECIPE/HOPS/HOP/USE Dry Hop",
                             "-/RECIPES/RECIPE/HOPS/HOP/TIME 60", "+/RECIPES/RECIPE/HOPS/HOP/TIME 10080",
                             "-/RECIPES/RECIPE/HOPS/HOP/DISPLAY_TIME 60 min",
                             "+/RECIPES/RECIPE/HOPS/HOP/DISPLAY_TIME 7 days"));
}

TEST(BeerXmlWriter, AnUnchangedLineKeepsItsElementWhateverTheFactsSay) {
    ExportedRecipe recipe = ValidRecipe();
    recipe.facts.hops[0].alpha = 9;
    EXPECT_EQ(Write(recipe)->At("HOPS/HOP/ALPHA"), "4.50");
}

TEST(BeerXmlWriter, DeletedNewAndReorderedLines) {
    ExportedRecipe recipe = ValidRecipe();
    recipe.facts.hops.erase(recipe.facts.hops.begin());
    recipe.hops.erase(recipe.hops.begin());
    auto written = Write(recipe);
    EXPECT_EQ(written->At("HOPS/HOP[1]/NAME"), "Goldings");
    EXPECT_EQ(written->At("HOPS/HOP[2]/NAME"), "(none)");

    ForeignHop added;
    added.name = "Saaz";
    recipe.facts.hops.insert(recipe.facts.hops.begin(), added);
    recipe.hops.insert(recipe.hops.begin(), LineOrigin());
    written = Write(recipe);
    EXPECT_EQ(written->At("HOPS/HOP[1]/NAME"), "Saaz");
    EXPECT_EQ(written->At("HOPS/HOP[2]/NAME"), "Goldings");

    // An element that two lines name belongs to the first.
    recipe = ValidRecipe();
    recipe.hops[0].element = recipe.hops[1].element = 1;
    written = Write(recipe);
    EXPECT_EQ(written->At("HOPS/HOP[1]/NAME"), "Goldings");
    EXPECT_EQ(written->At("HOPS/HOP[2]/NAME"), "Goldings");
    EXPECT_EQ(written->At("HOPS/HOP[3]/NAME"), "(none)");
}

TEST(BeerXmlWriter, ChangedFieldsOfTheRecipe) {
    ExportedRecipe recipe = ValidRecipe();
    const std::string before = Write(recipe)->text;
    recipe.changed = {Field::Name, Field::BatchSize, Field::OriginalGravity, Field::Notes,
                      Field::HopUtilization};
    recipe.facts.name = "Old Mild";
    recipe.facts.batchSize = ForeignAmount{Of::Volume, 40, "40 l"};
    recipe.facts.stated.og = 1.04;
    recipe.facts.notes.clear();
    recipe.facts.hopUtilization = 80;
    recipe.facts.brewer = "has not changed";
    EXPECT_THAT(Differences(before, Write(recipe)->text),
                UnorderedElementsAre(
                    "-/RECIPES/RECIPE/NAME Mild", "+/RECIPES/RECIPE/NAME Old Mild",
                    "-/RECIPES/RECIPE/BATCH_SIZE 20.0", "+/RECIPES/RECIPE/BATCH_SIZE 40",
                    "+/RECIPES/RECIPE/DISPLAY_BATCH_SIZE 40 l", "-/RECIPES/RECIPE/EST_OG 1.036 SG",
                    "+/RECIPES/RECIPE/EST_OG 1.04 sg", "-/RECIPES/RECIPE/NOTES a < b\n  second line",
                    "+/RECIPES/RECIPE/EQUIPMENT/NAME Equipment", "+/RECIPES/RECIPE/EQUIPMENT/VERSION 1",
                    "+/RECIPES/RECIPE/EQUIPMENT/BOIL_SIZE 24", "+/RECIPES/RECIPE/EQUIPMENT/BATCH_SIZE 40",
                    "+/RECIPES/RECIPE/EQUIPMENT/DISPLAY_BATCH_SIZE 40 l",
                    "+/RECIPES/RECIPE/EQUIPMENT/HOP_UTILIZATION 80"));
}

TEST(BeerXmlWriter, AMeasuredGravityChangesWithTheCalculatedOne) {
    ExportedRecipe recipe =
        Original("<OG>1.05</OG><DISPLAY_OG>1.050 SG</DISPLAY_OG><FG>1.01</FG><ABV>5 %</ABV>");
    recipe.changed = {Field::OriginalGravity, Field::Alcohol};
    recipe.facts.stated = {1.06, 1.012, 6.1, {}, {}};
    const auto written = Write(recipe);
    EXPECT_EQ(written->At("EST_OG"), "1.06 sg");
    EXPECT_EQ(written->At("OG"), "1.06");
    EXPECT_EQ(written->At("DISPLAY_OG"), "(none)");
    EXPECT_EQ(written->At("FG"), "1.01");
    EXPECT_EQ(written->At("ABV"), "6.1 %");
}

TEST(BeerXmlWriter, AChangedStyleReplacesTheOldOne) {
    ExportedRecipe recipe = ValidRecipe();
    recipe.changed = {Field::Style};
    recipe.facts.style->name = "Porter";
    recipe.facts.style->og = {1.04, 1.06};
    const auto written = Write(recipe);
    EXPECT_EQ(written->At("STYLE/NAME"), "Porter");
    EXPECT_EQ(written->At("STYLE/OG_MIN"), "1.04");
    EXPECT_EQ(written->At("STYLE[2]"), "(none)");
}

TEST(BeerXmlWriter, MissingRequiredFieldsComeFromTheFactsOrSayNothing) {
    ExportedRecipe recipe = Original(
        "<NAME>Ale</NAME><HOPS><HOP><NAME>Saaz</NAME><AMOUNT>0.02</AMOUNT></HOP></HOPS>"
        "<MASH><MASH_STEPS><MASH_STEP><TYPE>Infusion</TYPE></MASH_STEP></MASH_STEPS></MASH>");
    recipe.facts.hops[0].alpha = 3.5;
    recipe.facts.efficiency = 68;
    const auto written = Write(recipe);
    EXPECT_EQ(written->At("HOPS/HOP/ALPHA"), "3.5");
    EXPECT_EQ(written->At("HOPS/HOP/USE"), "Boil");
    EXPECT_EQ(written->At("EFFICIENCY"), "68");
    EXPECT_EQ(written->At("MASH/MASH_STEPS/MASH_STEP/INFUSE_AMOUNT"), "0");
    EXPECT_EQ(written->At("MASH/MASH_STEPS/MASH_STEP/NAME"), "");
    EXPECT_THAT(written->Told(), Contains(HasSubstr("HOP/USE, HOP/TIME")));
}

TEST(BeerXmlWriter, WordsAndFiguresOfAnOriginalAreWrittenAsTheFormatWants) {
    ExportedRecipe recipe = Original(
        "<Type>all grain</Type><EFFICIENCY>72 %</EFFICIENCY><PRIMARY_AGE>7 days</PRIMARY_AGE><AGE>-</AGE>"
        "<FORCED_CARBONATION>true</FORCED_CARBONATION><CARBONATION>1e0</CARBONATION>"
        "<hops><hop><NAME>Saaz</NAME><ALPHA>NaN</ALPHA><AMOUNT>0,02</AMOUNT><USE>Whirlpool</USE><TIME/>"
        "<FORM>cones</FORM><BETA>-3</BETA><TYPE>odd</TYPE><NOTES> </NOTES></hop></hops>");
    const auto written = Write(recipe);
    EXPECT_EQ(written->At("TYPE"), "All Grain");
    EXPECT_EQ(written->At("EFFICIENCY"), "72");
    EXPECT_EQ(written->At("PRIMARY_AGE"), "7");
    EXPECT_EQ(written->At("AGE"), "(none)");
    EXPECT_EQ(written->At("FORCED_CARBONATION"), "TRUE");
    EXPECT_EQ(written->At("CARBONATION"), "1");
    EXPECT_EQ(written->At("HOPS/HOP/ALPHA"), "0");
    EXPECT_EQ(written->At("HOPS/HOP/AMOUNT"), "0.02");
    EXPECT_EQ(written->At("HOPS/HOP/USE"), "Aroma");
    EXPECT_EQ(written->At("HOPS/HOP/TIME"), "0");
    EXPECT_EQ(written->At("HOPS/HOP/FORM"), "Leaf");
    for (const char* dropped : {"BETA", "TYPE", "NOTES"})
        EXPECT_EQ(written->At((std::string("HOPS/HOP/") + dropped).c_str()), "(none)");
    EXPECT_THAT(written->Told(),
                Contains("note no-number : Fields without a usable value, which the format does not "
                         "allow, were left out: AGE, HOP/NOTES, HOP/TYPE, HOP/BETA."));
    EXPECT_THAT(written->Told(),
                Contains("approximated hop-use Hops 1: Saaz: USE \"Whirlpool\" is not a word of "
                         "BeerXML and was written as \"Aroma\"."));
}

TEST(BeerXmlWriter, LinesInOddPlacesGoToTheirSets) {
    ExportedRecipe recipe = Original(
        "<NAME>Ale</NAME><HOP><NAME>A</NAME></HOP><MISCS><HOP><NAME>B</NAME></HOP></MISCS>"
        "<HOPS><HOP><NAME>C</NAME></HOP></HOPS><HOPS><HOP><NAME>D</NAME></HOP><X>1</X></HOPS>"
        "<WRAP><STYLE><NAME>Mild</NAME></STYLE></WRAP>");
    ASSERT_EQ(recipe.facts.hops.size(), 4U);
    recipe.facts.hops[3].alpha = 7;
    recipe.hops[3].unchanged = false;
    const auto written = Write(recipe);
    EXPECT_EQ(written->At("HOPS[2]"), "(none)");
    EXPECT_EQ(written->At("HOPS/X"), "1");
    EXPECT_EQ(written->At("STYLE/NAME"), "Mild");
    std::vector<std::string> names;
    for (const ForeignHop& hop : ReadOne(written->text).hops) names.push_back(hop.name);
    EXPECT_THAT(names, ElementsAre("A", "B", "C", "D"));
    EXPECT_EQ(written->At("HOPS/HOP[NAME='D']/ALPHA"), "7");
}

TEST(BeerXmlWriter, ARecipeWithinARecipeIsOneOfItsOwn) {
    ForeignFile file;
    ReadBeerXml("<RECIPES><RECIPE><NAME>Outer</NAME><RECIPE><NAME>Inner</NAME></RECIPE></RECIPE></RECIPES>",
                file);
    ASSERT_EQ(file.recipes.size(), 2U);
    const ExportedRecipe recipes[] = {Original(file.recipes[0]), Original(file.recipes[1])};
    Findings findings;
    const std::string text = WriteBeerXml(recipes, findings);
    EXPECT_EQ(test::XmlSchemaErrors(text), "");
    ForeignFile again;
    ReadBeerXml(text, again);
    ASSERT_EQ(again.recipes.size(), 2U);
    EXPECT_EQ(again.recipes[1].name, "Inner");
}

TEST(BeerXmlWriter, FieldsThatStandTwice) {
    const auto written = Write(Original("<NAME>First</NAME><NAME>Second</NAME>"));
    EXPECT_EQ(written->At("NAME"), "First");
    EXPECT_EQ(written->At("NAME[2]"), "(none)");
    EXPECT_THAT(written->Told(), Contains(HasSubstr("repaired duplicate")));
}

TEST(BeerXmlWriter, AnOriginalThatCannotBeReadIsTold) {
    for (const char* fragment : {"<RECIPE><NAME>", "<HOP><NAME>A</NAME></HOP>", "{}", "\x01"}) {
        ExportedRecipe recipe;
        recipe.facts.name = "Ale";
        recipe.facts.fragment = fragment;
        recipe.facts.hops.resize(1);
        recipe.hops = {{0, true}};
        const auto written = Write(recipe);
        EXPECT_EQ(written->At("NAME"), "Ale") << fragment;
        EXPECT_THAT(written->Told(), Contains(HasSubstr("not carried carried : The original of the recipe")));
    }
}

TEST(BeerXmlWriter, CharacterReferencesThatXmlForbids) {
    ExportedRecipe recipe;
    recipe.facts.fragment = "<RECIPE a=\"&#1;b\"><NAME>A&#2;B</NAME><X>&#3;</X></RECIPE>";
    EXPECT_EQ(Write(recipe)->At("NAME"), "AB");
}

// True for a text that the schema does not allow at that path: it may come back as another one, or not at
// all.
bool IsInvalid(const pugi::xml_document& schema, const std::string& path, const std::string& text) {
    const std::size_t last = path.rfind('/');
    const std::size_t parent = path.rfind('/', last - 1);
    const std::string typePath = "/xs:schema/xs:complexType[@name='" +
                                 path.substr(parent + 1, last - parent - 1) + "']/*/xs:element[@name='" +
                                 path.substr(last + 1) + "']";
    const std::string type = schema.select_node(typePath.c_str()).node().attribute("type").value();
    // A record, in which stands a stray text.
    if (schema.select_node(("/xs:schema/xs:complexType[@name='" + type + "']").c_str())) return true;
    if (type == "xs:decimal" || type == "percent")
        return text.find_first_not_of("0123456789.") != std::string::npos;
    const pugi::xpath_node_set words =
        schema.select_nodes(("/xs:schema/xs:simpleType[@name='" + type + "']//xs:enumeration").c_str());
    return !words.empty() && std::ranges::none_of(words, [&](const pugi::xpath_node& word) {
        return word.node().attribute("value").value() == text;
    });
}

TEST(BeerXmlWriter, RealFilesComeBackToTheLetter) {
    const char* const folder = std::getenv("TW_EXCHANGE_FILES");
    if (folder == nullptr) GTEST_SKIP() << "TW_EXCHANGE_FILES names no folder with samples";
    pugi::xml_document schema;
    ASSERT_TRUE(schema.load_file(EXCHANGE_TESTS "/beerxml.xsd"));
    for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::path(folder) / "samples")) {
        if (entry.path().extension() != ".xml") continue;
        std::ostringstream content;
        content << std::ifstream(entry.path(), std::ios::binary).rdbuf();
        ForeignFile file;
        ReadBeerXml(MendXml(content.str(), file.findings), file);
        for (const ForeignRecipe& facts : file.recipes) {
            const auto written = Write(Original(facts));
            const Texts after = TextsOf(written->text);
            std::multiset<std::pair<std::string, std::string>> left(after.begin(), after.end());
            for (const auto& each : TextsOf("<RECIPES>" + facts.fragment + "</RECIPES>")) {
                const auto found = left.find(each);
                if (found != left.end())
                    left.erase(found);
                else
                    EXPECT_TRUE(IsInvalid(schema, each.first, each.second))
                        << entry.path().filename() << " " << facts.name << " " << each.first << ": "
                        << each.second;
            }
        }
    }
}

TEST(XmlSchema, TellsWhatIsWrong) {
    const auto errorsOf = [](std::string from, const std::string& to) {
        std::string text = "<RECIPES>" + std::string(kValid) + "</RECIPES>";
        text.replace(text.find(from), from.size(), to);
        return test::XmlSchemaErrors(text);
    };
    EXPECT_EQ(errorsOf("<MISCS/>", "<MISCS/><UNKNOWN a='1'/>"), "");
    EXPECT_THAT(errorsOf("<MISCS/>", ""), HasSubstr("MISCS"));
    EXPECT_THAT(errorsOf("<USE>Boil</USE>", "<USE>boil</USE>"), HasSubstr("boil"));
    EXPECT_THAT(errorsOf("<ALPHA>4.50<", "<ALPHA>4.50 %<"), HasSubstr("ALPHA"));
    EXPECT_THAT(errorsOf("<ALPHA>4.50<", "<ALPHA>1e1<"), HasSubstr("ALPHA"));
    EXPECT_THAT(errorsOf("<ALPHA>4.50<", "<ALPHA>-1<"), HasSubstr("ALPHA"));
    EXPECT_THAT(errorsOf("<HSI>35</HSI>", "<HSI/>"), HasSubstr("HSI"));
    EXPECT_THAT(errorsOf("<EFFICIENCY>70</EFFICIENCY>", ""), HasSubstr("EFFICIENCY"));
    EXPECT_THAT(errorsOf("<INFUSE_AMOUNT>10</INFUSE_AMOUNT>", ""), HasSubstr("INFUSE_AMOUNT"));
    EXPECT_THAT(errorsOf("<BREWER>Ann</BREWER>", "<BREWER>Ann</BREWER><BREWER>Bob</BREWER>"),
                HasSubstr("BREWER"));
    EXPECT_THAT(errorsOf("</RECIPE>", ""), HasSubstr("well-formed"));
}

}  // namespace
}  // namespace tw
