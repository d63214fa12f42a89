// Styles and ingredients of foreign files that the catalogue does not have yet.
#include "doctor/CatalogueAdditions.h"

#include "DoctorTest.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Additions : public DoctorTest {
  protected:
    Additions() { tree.InitFromDatabase(*database); }

    static ForeignStyle Style(const std::string& name, double low, double high) {
        ForeignStyle style;
        style.name = name;
        style.type = "Ale";
        style.og = {low, high};
        return style;
    }
    std::vector<std::string> Rows(const std::string& sql) {
        std::vector<std::string> lines;
        for (Recordset rows = database->OpenRecordset(sql); !rows.AtEnd(); rows.MoveNext()) {
            std::string line;
            for (int i = 0; i < rows.FieldCount(); ++i)
                line += (i > 0 ? "|" : "") + (rows.Fields(i).IsNull() ? "NULL" : rows.Fields(i).Text());
            lines.push_back(line);
        }
        return lines;
    }
    std::vector<std::string> Told() const {
        std::vector<std::string> told;
        for (const Finding& finding : findings.All())
            told.push_back(std::string(WordOf(finding.severity)) + ": " + finding.text);
        return told;
    }

    ForeignFile file;
    Findings findings;
    CatalogueAdditions additions{catalogue, doctor.Figures()};
};

TEST_F(Additions, NewStylesGoIntoTheFolderImported) {
    file.styles = {Style("Grape Ale", 1.059, 1.075), Style("Pale Ale", 1.040, 1.050)};
    ForeignRecipe withStyle;
    withStyle.style = Style(" grape ALE ", 1.0, 1.1);
    ForeignRecipe withoutRanges;
    withoutRanges.style = ForeignStyle();
    withoutRanges.style->name = "Nameless Wonder";
    file.recipes.push_back(withStyle);
    file.recipes.push_back(withoutRanges);
    EXPECT_EQ(additions.AddStyles(file, findings), 1);
    EXPECT_THAT(
        Rows("SELECT S.NAME, S.OG_LO, S.OG_HI, F.NAME FROM STYLES S, FOLDERS F WHERE F.ID = S.FOLDER_ID"),
        ElementsAre("Grape Ale|1.059|1.075|Imported"));
    EXPECT_THAT(Told(), ElementsAre("note: The style 'Grape Ale' was added."));
    // The folder is used again.
    file.styles = {Style("Second Ale", 1.04, 1.05)};
    EXPECT_EQ(additions.AddStyles(file, findings), 1);
    EXPECT_THAT(Rows("SELECT NAME FROM FOLDERS"), ElementsAre("Imported"));
}

TEST_F(Additions, IngredientsOfTheLibraryGoThroughTheirEditors) {
    ForeignFermentable malt;
    malt.name = "Emmer Malt";
    malt.yield = 75;
    malt.lovibond = 4;
    malt.notes = "Old <b>wheat</b>.";
    ForeignHop hop;
    hop.name = "Garden Hop";
    hop.alpha = 6.5;
    ForeignYeast yeast;
    yeast.name = "Farm Yeast";
    yeast.attenuation = 80;
    yeast.minCelsius = 20;
    yeast.maxCelsius = 25;
    ForeignWater water;
    water.name = "Well";
    water.calcium = 60;
    file.fermentables = {malt};
    file.hops = {hop, hop};
    file.yeasts = {yeast};
    file.waters = {water};
    EXPECT_THAT(additions.NewIngredients(file),
                ElementsAre("Emmer Malt", "Garden Hop", "Farm Yeast", "Well"));
    EXPECT_EQ(additions.AddIngredients(file, findings), 4);
    // 75 % of 46.214 points are 34.6605.
    EXPECT_THAT(Rows("SELECT GRAIN, PPG_LO, PPG_HI, COLOR_LO, DESCR FROM GRAINS WHERE NAME = 'Emmer Malt'"),
                ElementsAre("TRUE|34.66|34.66|4|Old wheat."));
    EXPECT_THAT(Rows("SELECT AA_LO, AA_HI FROM HOPS WHERE NAME = 'Garden Hop'"), ElementsAre("6.5|6.5"));
    // 20 and 25 degrees Celsius are 68 and 77 degrees Fahrenheit.
    EXPECT_THAT(Rows("SELECT AA_LO, TEMP_LO, TEMP_HI FROM YEAST WHERE NAME = 'Farm Yeast'"),
                ElementsAre("80|68|77"));
    EXPECT_THAT(Rows("SELECT CA, MG FROM WATER_PROFILES WHERE NAME = 'Well'"), ElementsAre("60|0"));
}

TEST_F(Additions, WhatExistsUnderAnyNameIsNeverChanged) {
    ForeignHop hop;
    hop.name = "CASCADE";
    hop.alpha = 99;
    ForeignFermentable malt;
    malt.name = "Pale Malt (US)";
    malt.yield = 1;
    file.hops = {hop};
    file.fermentables = {malt};
    EXPECT_THAT(additions.NewIngredients(file), IsEmpty());
    EXPECT_EQ(additions.AddIngredients(file, findings), 0);
    EXPECT_THAT(Rows("SELECT AA_LO FROM HOPS WHERE NAME = 'Cascade'"), ElementsAre("5"));
}

TEST_F(Additions, WhatAnEditorRefusesIsTold) {
    ForeignHop hop;
    hop.name = "Super Hop";
    hop.alpha = 120;
    file.hops = {hop};
    EXPECT_EQ(additions.AddIngredients(file, findings), 0);
    EXPECT_THAT(Told(), ElementsAre(HasSubstr("refused: The hop variety 'Super Hop' was not added: ")));
    EXPECT_THAT(Rows("SELECT NAME FROM HOPS"), ElementsAre("Cascade"));
    EXPECT_TRUE(platform.messages.log.empty()) << "no box is shown";
}

}  // namespace
}  // namespace tw::test
