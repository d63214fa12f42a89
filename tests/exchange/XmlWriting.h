// Recipes written as BeerXML, each of them checked against the schema.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <pugixml.hpp>
#include <string>
#include <utility>
#include <vector>

#include "exchange/BeerXmlReader.h"
#include "exchange/BeerXmlWriter.h"
#include "exchange/Originals.h"
#include "exchange/XmlSchema.h"

namespace tw::test {

struct Written {
    std::string text;
    Findings findings;

    std::vector<std::string> Told() const { return test::Told(findings); }
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

inline std::unique_ptr<Written> Write(const ExportedRecipe& recipe) {
    auto written = std::make_unique<Written>();
    written->text = WriteBeerXml(std::span(&recipe, 1), written->findings);
    EXPECT_EQ(XmlSchemaErrors(written->text), "") << written->text;
    return written;
}

inline std::unique_ptr<Written> WriteFacts(ForeignRecipe facts) {
    ExportedRecipe recipe;
    recipe.facts = std::move(facts);
    return Write(recipe);
}

inline std::unique_ptr<Written> WriteHop(const ForeignHop& hop) {
    ForeignRecipe facts;
    facts.hops = {hop};
    return WriteFacts(std::move(facts));
}

inline ForeignRecipe ReadOne(const std::string& text) {
    ForeignFile file;
    ReadBeerXml(text, file);
    return file.recipes.empty() ? ForeignRecipe() : file.recipes.front();
}

inline ExportedRecipe Original(const std::string& inner) {
    return Original(ReadOne("<RECIPES><RECIPE>" + inner + "</RECIPE></RECIPES>"));
}

// A recipe that satisfies the schema, with a tag that the format does not have.
inline constexpr const char* kValid =
    R"(<RECIPE><NAME>Mild</NAME><VERSION>1</VERSION><TYPE>All Grain</TYPE>
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

inline ExportedRecipe ValidRecipe() {
    return Original(ReadOne("<RECIPES>" + std::string(kValid) + "</RECIPES>"));
}

}  // namespace tw::test
