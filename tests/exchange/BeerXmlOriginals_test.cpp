// What becomes of the original of a recipe that is written as BeerXML again.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "exchange/XmlMend.h"
#include "exchange/XmlWriting.h"

namespace tw::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using Of = ForeignAmount::Of;
using Field = ExportedField;

using Texts = std::vector<std::pair<std::string, std::string>>;

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

TEST(BeerXmlOriginals, AnUnchangedOriginalComesBackToTheLetter) {
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

TEST(BeerXmlOriginals, TagsOfTheFormatLoseTheirAttributes) {
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

TEST(BeerXmlOriginals, OfAFieldTwiceTheFirstWithATextIsWritten) {
    const auto written = Write(Original("<NOTES/><NOTES>Kept.</NOTES><DATE>May</DATE><DATE>June</DATE>"));
    EXPECT_EQ(written->At("NOTES"), "Kept.");
    EXPECT_EQ(written->At("DATE"), "May");
    EXPECT_EQ(std::ranges::distance(written->Recipe().children("NOTES")), 1);
}

TEST(BeerXmlOriginals, AChangedAmountChangesNothingElse) {
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

TEST(BeerXmlOriginals, AChangedUseAndTime) {
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

TEST(BeerXmlOriginals, AnUnchangedLineKeepsItsElementWhateverTheFactsSay) {
    ExportedRecipe recipe = ValidRecipe();
    recipe.facts.hops[0].alpha = 9;
    EXPECT_EQ(Write(recipe)->At("HOPS/HOP/ALPHA"), "4.50");
}

TEST(BeerXmlOriginals, DeletedNewAndReorderedLines) {
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

TEST(BeerXmlOriginals, ChangedFieldsOfTheRecipe) {
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

TEST(BeerXmlOriginals, AMeasuredGravityChangesWithTheCalculatedOne) {
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

TEST(BeerXmlOriginals, AChangedStyleReplacesTheOldOne) {
    ExportedRecipe recipe = ValidRecipe();
    recipe.changed = {Field::Style};
    recipe.facts.style->name = "Porter";
    recipe.facts.style->og = {1.04, 1.06};
    const auto written = Write(recipe);
    EXPECT_EQ(written->At("STYLE/NAME"), "Porter");
    EXPECT_EQ(written->At("STYLE/OG_MIN"), "1.04");
    EXPECT_EQ(written->At("STYLE[2]"), "(none)");
}

TEST(BeerXmlOriginals, MissingRequiredFieldsComeFromTheFactsOrSayNothing) {
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

TEST(BeerXmlOriginals, WordsAndFiguresOfAnOriginalAreWrittenAsTheFormatWants) {
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

TEST(BeerXmlOriginals, LinesInOddPlacesGoToTheirSets) {
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

TEST(BeerXmlOriginals, ARecipeWithinARecipeIsOneOfItsOwn) {
    ForeignFile file;
    ReadBeerXml("<RECIPES><RECIPE><NAME>Outer</NAME><RECIPE><NAME>Inner</NAME></RECIPE></RECIPE></RECIPES>",
                file);
    ASSERT_EQ(file.recipes.size(), 2U);
    const ExportedRecipe recipes[] = {Original(file.recipes[0]), Original(file.recipes[1])};
    Findings findings;
    const std::string text = WriteBeerXml(recipes, findings);
    EXPECT_EQ(XmlSchemaErrors(text), "");
    ForeignFile again;
    ReadBeerXml(text, again);
    ASSERT_EQ(again.recipes.size(), 2U);
    EXPECT_EQ(again.recipes[1].name, "Inner");
}

TEST(BeerXmlOriginals, FieldsThatStandTwice) {
    const auto written = Write(Original("<NAME>First</NAME><NAME>Second</NAME>"));
    EXPECT_EQ(written->At("NAME"), "First");
    EXPECT_EQ(written->At("NAME[2]"), "(none)");
    EXPECT_THAT(written->Told(), Contains(HasSubstr("repaired duplicate")));
}

TEST(BeerXmlOriginals, AnOriginalThatCannotBeReadIsTold) {
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

TEST(BeerXmlOriginals, CharacterReferencesThatXmlForbids) {
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

TEST(BeerXmlOriginals, RealFilesComeBackToTheLetter) {
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

}  // namespace
}  // namespace tw::test
