#include "reports/PrintedRecipe.h"

#include <gtest/gtest.h>

#include "platform/Error.h"
#include "reports/PaperLog.h"

namespace tw::test {
namespace {

class PrintedRecipeTest : public testing::Test {
  protected:
    PrintedRecipeTest() {
        recipe.txtName.SetText("Porter");
        recipe.cmbStyle.SetEntries({{"(None)", 0}, {"Brown Porter", 1}}, 1);
    }

    // Adds a data row to the end of the grid, with these texts from the first column on.
    static void AddRow(Grid& grid, const Strings& texts) {
        const int row = grid.EndOfData();
        grid.InsertRow(row);
        for (std::size_t col = 0; col < texts.size(); ++col)
            grid.SetText(row, static_cast<int>(col), texts[col]);
    }
    static int LastRow(const Grid& grid) { return grid.EndOfData() - 1; }

    PrintSteps Steps() const { return LayOutRecipe(recipe, kLetterPaper, FixedMeasure()); }
    // Returns the texts, with "---" for a rule and "###" for the swatch.
    Strings All() const {
        Strings texts;
        for (const PrintStep& step : Steps().steps) {
            if (step.kind == PrintStep::Kind::Text) texts.push_back(step.text);
            if (step.kind == PrintStep::Kind::Line) texts.emplace_back("---");
            if (step.kind == PrintStep::Kind::Box) texts.emplace_back("###");
        }
        return texts;
    }
    // Returns the texts after the rule that ends the general figures, without the footer.
    Strings Sections() const {
        Strings texts = All();
        texts.pop_back();
        const auto rule = std::find(std::find(texts.begin(), texts.end(), "---") + 1, texts.end(), "---");
        return {rule + 1, texts.end()};
    }

    RecipeRecord recipe;
};

TEST_F(PrintedRecipeTest, AnEmptyRecipeIsItsTitlesAndGeneralFigures) {
    EXPECT_EQ(
        All(),
        (Strings{"Porter", "Brown Porter", "---", "General", "Final Volume: ", "OG: ", "IBUs: ", "FG: ", "CO",
                 "2", " Amount: ", "Alcohol Content: ", "Color: ", " ", "###", "---", "Porter - Page 1"}));
    EXPECT_EQ(Steps().title, "Porter");
}

TEST_F(PrintedRecipeTest, WithoutAStyleItSaysSo) {
    recipe.cmbStyle.Select(0);
    EXPECT_EQ(All().at(1), "(None)");
}

TEST_F(PrintedRecipeTest, TheGeneralFigures) {
    recipe.txtTotalVol.SetText("5 gal");
    recipe.txtOG.SetText("1.050");
    recipe.txtIBU.SetText("30");
    recipe.txtFG.SetText("1.012");
    recipe.txtCO2.SetText("");
    recipe.txtABV.SetText("5.0% abv");
    recipe.txtColor.SetText("30 SRM (80 HCU)");
    recipe.SetSwatch({80, 40, 20});
    const Strings all = All();
    EXPECT_EQ(Strings(all.begin() + 4, all.begin() + 20),
              (Strings{"Final Volume: ", "5 gal", "OG: ", "1.050", "IBUs: ", "30", "FG: ", "1.012", "CO", "2",
                       " Amount: ", "Alcohol Content: ", "5.0% abv", "Color: ", "30 SRM (80 HCU) ", "###"}));
    for (const PrintStep& step : Steps().steps)
        if (step.kind == PrintStep::Kind::Box) {
            EXPECT_EQ(step.color, (Rgb{80, 40, 20}));
        }
    recipe.txtFinalVol.SetText("5.5 gal");
    EXPECT_EQ(All().at(5), "5.5 gal");
}

TEST_F(PrintedRecipeTest, WaterWithASourceAlone) {
    recipe.gridWater.SetText(WaterRow::Source, WaterCol::Profile, "Dublin");
    EXPECT_EQ(Sections(), (Strings{"Water Treatment", "Source Water: ", "Dublin", "---"}));
}

TEST_F(PrintedRecipeTest, WaterWithSaltsAlone) {
    recipe.gridWater.SetText(WaterRow::Source, WaterCol::Profile, "  ");
    AddRow(recipe.gridTreatment, {"Gypsum", "3 g"});
    AddRow(recipe.gridTreatment, {"Chalk", "1 g"});
    EXPECT_EQ(Sections(), (Strings{"Water Treatment", "  Amounts are in grams by default", "Gypsum - 3 g",
                                   "Chalk - 1 g", "---"}));
}

TEST_F(PrintedRecipeTest, RowsWithoutTextAndTotalsAreLeftOut) {
    AddRow(recipe.gridGrain, {});
    AddRow(recipe.gridTreatment, {});
    AddRow(recipe.gridAdjuncts, {});
    AddRow(recipe.gridLog, {});
    recipe.gridGrain.SetText(recipe.gridGrain.TotalsRow(), GrainCol::Amount, "0 lbs.");
    EXPECT_EQ(Sections(), Strings{});
}

TEST_F(PrintedRecipeTest, TheWaterForTheMashStandsBetweenGrainsAndExtracts) {
    recipe.txtBoilVol.SetText("6 gal");
    AddRow(recipe.gridGrain, {"Pale Malt", "9 lb"});
    AddRow(recipe.gridExtract, {"Light DME", "1 lb"});
    EXPECT_EQ(Sections(),
              (Strings{"Grains and Extracts", "  Amounts are in pounds by default", "Pale Malt - 9 lb",
                       "  Sparge grains with or top off with enough water for a boil volume of 6 gal",
                       "Light DME - 1 lb", "---"}));
}

TEST_F(PrintedRecipeTest, ExtractsAloneAreDissolvedInWater) {
    recipe.txtBoilVol.SetText("6 gal");
    AddRow(recipe.gridExtract, {"Light DME", "6 lb"});
    EXPECT_EQ(Sections(),
              (Strings{"Grains and Extracts", "  Amounts are in pounds by default",
                       "  Add enough water for a boil volume of 6 gal", "Light DME - 6 lb", "---"}));
    recipe.txtBoilVol.SetText("");
    EXPECT_EQ(Sections().at(2), "Light DME - 6 lb");
}

TEST_F(PrintedRecipeTest, ThreeGrainsStandInTwoColumns) {
    for (const char* name : {"a", "b", "c"}) AddRow(recipe.gridGrain, {name, "1"});
    const Strings sections = Sections();
    EXPECT_EQ(Strings(sections.begin() + 2, sections.end()), (Strings{"a - 1", "c - 1", "b - 1", "---"}));
}

TEST_F(PrintedRecipeTest, HopLines) {
    Grid& hops = recipe.gridHops;
    AddRow(hops, {"Cascade", "5.5%", "Pellet", "", "1 oz", "", "60 min"});
    hops.SetChecked(LastRow(hops), HopCol::Sock, true);
    AddRow(hops, {"Fuggle", "", "Leaf", "", "2 oz"});
    hops.SetChecked(LastRow(hops), HopCol::DryHopped, true);
    EXPECT_EQ(Sections(), (Strings{"Hops", "  Amounts are in ounces by default",
                                   "Cascade (5.5% AA%) Pellet Hops - 1 oz - Boil For 60 min (use hop socks)",
                                   "Fuggle Leaf Hops - 2 oz - Dry Hop", "---"}));
}

TEST_F(PrintedRecipeTest, AHopRowWithItsFormAloneIsBlank) {
    AddRow(recipe.gridHops, {"", "", "Pellet"});
    recipe.gridHops.SetChecked(LastRow(recipe.gridHops), HopCol::Sock, true);
    EXPECT_EQ(Sections(), Strings{});
}

TEST_F(PrintedRecipeTest, AdjunctLines) {
    AddRow(recipe.gridAdjuncts, {"Irish Moss", "1 tsp", "Boil", "15 min"});
    AddRow(recipe.gridAdjuncts, {"Honey", "1 lb", "Boil", ""});
    AddRow(recipe.gridAdjuncts, {"Oak", "2 oz", "", "3 weeks"});
    AddRow(recipe.gridAdjuncts, {"Lactose", "8 oz"});
    EXPECT_EQ(Sections(),
              (Strings{"Other Adjuncts", "Irish Moss - 1 tsp (Boil - For 15 min)", "Honey - 1 lb (Boil)",
                       "Oak - 2 oz (For 3 weeks)", "Lactose - 8 oz", "---"}));
}

TEST_F(PrintedRecipeTest, BottlesWithSugar) {
    recipe.txtCO2.SetText("2.40 volumes");
    recipe.txtTemp.SetText("68 F");
    AddRow(recipe.gridPriming, {"Corn Sugar", "91%", "4 oz"});
    EXPECT_EQ(Sections(), (Strings{"Carbon Dioxide", "Bottle beer at a temperature of 68 F",
                                   " and prime with the following", "  Amounts are in ounces by default",
                                   "Corn Sugar - 4 oz", "---"}));
}

TEST_F(PrintedRecipeTest, BottlesWithoutSugar) {
    recipe.txtCO2.SetText("0.85 volumes");
    recipe.txtTemp.SetText("68 F");
    EXPECT_EQ(Sections(), (Strings{"Carbon Dioxide", "Bottle beer at a temperature of 68 F", "---"}));
}

TEST_F(PrintedRecipeTest, Kegs) {
    recipe.txtCO2.SetText("2.40 volumes");
    recipe.txtTemp.SetText("40 F");
    recipe.grpPkgMethod.Select(1);
    recipe.gridPressure.SetText(1, PressureCol::Pressure, "11 psi");
    EXPECT_EQ(Sections(),
              (Strings{"Carbon Dioxide", "  Pressure is in PSI by default",
                       "Keg beer - store at a temperature of 40 F and a pressure of 11 psi", "---"}));
}

TEST_F(PrintedRecipeTest, NotesAndLog) {
    recipe.txtTotalVol.SetText("5 gal");
    AddRow(recipe.gridLog, {"5/2/2026", "Mashed", "at 152 F"});
    AddRow(recipe.gridLog, {"", "Pitched Yeast", ""});
    recipe.txtNotes.SetText("Good.");
    EXPECT_EQ(Sections(), (Strings{"Notes", "  After boil, top off to a total volume of 5 gal",
                                   "5/2/2026 - Mashed - at 152 F", "Pitched Yeast", "Good."}));
    const std::vector<PrintStep> steps = Steps().steps;
    // There is a blank line between the log and the notes: two lines of 0.175 inches.
    EXPECT_NEAR((steps.end() - 2)->y1 - (steps.end() - 3)->y1, 0.35, 1e-9);
}

TEST_F(PrintedRecipeTest, BlankNotesWithoutALogAreNoSection) {
    recipe.txtNotes.SetText("   ");
    EXPECT_EQ(Sections(), Strings{});
}

TEST_F(PrintedRecipeTest, AnErrorKillsTheJobAndRises) {
    Strings log;
    EXPECT_THROW(PrintRecipe(recipe, std::make_unique<PaperLog>(log, "Rectangle")), Error);
    EXPECT_EQ(Strings(log.end() - 3, log.end()), (Strings{"AbortDoc", "DeleteDC", "gone"}));
}

TEST_F(PrintedRecipeTest, AGoodJobIsFinishedAndTheDeviceGivenBack) {
    Strings log;
    PrintRecipe(recipe, std::make_unique<PaperLog>(log));
    EXPECT_EQ(log.front(), "StartDoc Porter");
    EXPECT_EQ(Strings(log.end() - 4, log.end()), (Strings{"EndPage", "EndDoc", "DeleteDC", "gone"}));
}

}  // namespace
}  // namespace tw::test
