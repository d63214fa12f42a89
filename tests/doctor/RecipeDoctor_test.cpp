// What a recipe of another program becomes, and what the brewer is told about it.
#include "doctor/RecipeDoctor.h"

#include "DoctorTest.h"
#include "doctor/CalculatedFigures.h"
#include "record/RecipeRecord.h"

namespace tw::test {
namespace {

using Of = ForeignAmount::Of;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// A pale ale of 20 litres, whole in every respect.
class PaleAle : public DoctorTest {
  protected:
    PaleAle() {
        recipe.name = "Spring Pale";
        recipe.batchSize = ForeignAmount{Of::Volume, 20, "20 L"};
        recipe.boilSize = ForeignAmount{Of::Volume, 24, "24 L"};
        recipe.boilMinutes = 60;
        recipe.efficiency = 72;
        recipe.hopUtilization = 100;
        recipe.style = ForeignStyle{"Pale Ale", {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}};
        recipe.fermentables.push_back(Malt());
        recipe.hops.push_back(Hop(ForeignUse::Boil, 60));
    }

    static ForeignFermentable Malt() {
        ForeignFermentable malt;
        malt.name = "Some Malt";
        malt.type = ForeignFermentable::Type::Grain;
        malt.amount = ForeignAmount{Of::Mass, 4.5, "4.5 kg"};
        malt.yield = 80;
        malt.lovibond = 2.5;
        return malt;
    }
    static ForeignHop Hop(ForeignUse use, double minutes) {
        ForeignHop hop;
        hop.name = "Some Hop";
        hop.alpha = 7.5;
        hop.amount = ForeignAmount{Of::Mass, 0.03, "30 g"};
        hop.use = use;
        hop.minutes = minutes;
        hop.form = ForeignHop::Form::Leaf;
        return hop;
    }
};

TEST_F(PaleAle, IsTypedWithTheTextsOfTheFile) {
    RecipeRecord& r = Examine();
    EXPECT_EQ(r.txtName.Text(), "Spring Pale");
    EXPECT_EQ(r.txtTotalVol.Text(), "20 L");
    EXPECT_EQ(r.txtBoilVol.Text(), "24 L");
    EXPECT_EQ(r.txtExtract.Text(), "72%");
    EXPECT_EQ(r.txtHopExtraction.Text(), "1");
    EXPECT_EQ(r.cmbStyle.Text(), "Pale Ale");
    // 80 % of 46.214 points are 36.9712.
    EXPECT_EQ(r.gridGrain.Text(1, GrainCol::Name), "Some Malt");
    EXPECT_EQ(r.gridGrain.Text(1, GrainCol::Amount), "4.5 kg");
    EXPECT_EQ(r.gridGrain.Text(1, GrainCol::Ppg), "36.97");
    EXPECT_EQ(r.gridGrain.Text(1, GrainCol::Color), "2.5");
    EXPECT_EQ(r.gridHops.Text(1, HopCol::Variety), "Some Hop");
    EXPECT_EQ(r.gridHops.Text(1, HopCol::AlphaAcid), "7.5");
    EXPECT_EQ(r.gridHops.Text(1, HopCol::Form), "Leaf");
    EXPECT_EQ(r.gridHops.Text(1, HopCol::Amount), "30 g");
    EXPECT_EQ(r.gridHops.Text(1, HopCol::Time), "60 min");
    EXPECT_FALSE(r.gridHops.Checked(1, HopCol::Sock));
    EXPECT_FALSE(r.gridHops.Checked(1, HopCol::DryHopped));
    // 4.5 kg are 9.9208 lb and 20 l are 5.2840 gal: 9.9208 * 36.97 * 0.72 / 5.2840 = 49.98 points.
    EXPECT_EQ(r.txtOG.Text(), "1.050");
    EXPECT_FALSE(examined.document->Changed());
    EXPECT_THAT(Told(), IsEmpty());
}

TEST_F(PaleAle, FiguresThatTheFileDoesNotKnowComeFromTheCatalogue) {
    recipe.fermentables[0].name = "Pale Malt, Weyermann";
    recipe.fermentables[0].yield.reset();
    recipe.fermentables[0].lovibond.reset();
    recipe.hops[0].name = "Cascade";
    recipe.hops[0].alpha = 0;
    RecipeRecord& r = Examine();
    // The middles of 36 to 38 points, of 3 degrees Lovibond, of 5 to 6 percent; the name stays.
    EXPECT_EQ(r.gridGrain.Text(1, GrainCol::Name), "Pale Malt, Weyermann");
    EXPECT_EQ(r.gridGrain.Text(1, GrainCol::Ppg), "37");
    EXPECT_EQ(r.gridGrain.Text(1, GrainCol::Color), "3");
    EXPECT_EQ(r.gridHops.Text(1, HopCol::AlphaAcid), "5.5");
    EXPECT_THAT(
        Told(),
        ElementsAre("approximated catalogue-figure Fermentables 1: Pale Malt, Weyermann: The file does "
                    "not know the yield; 37 is that of Pale Malt in the catalogue.",
                    "approximated catalogue-figure Fermentables 1: Pale Malt, Weyermann: The file does "
                    "not know the color; 3 is that of Pale Malt in the catalogue.",
                    "approximated catalogue-figure Hops 1: Cascade: The file does not know the alpha "
                    "acid; 5.5% is that of Cascade in the catalogue."));
}

TEST_F(PaleAle, FiguresThatTheFileStatesWinOverTheCatalogue) {
    recipe.fermentables[0].name = "Pale Malt";
    recipe.hops[0].name = "Cascade";
    RecipeRecord& r = Examine();
    EXPECT_EQ(r.gridGrain.Text(1, GrainCol::Ppg), "36.97");
    EXPECT_EQ(r.gridHops.Text(1, HopCol::AlphaAcid), "7.5");
}

TEST_F(PaleAle, WithoutTheCatalogueUnknownFiguresStayEmpty) {
    recipe.fermentables[0].name = "Pale Malt";
    recipe.fermentables[0].yield.reset();
    recipe.yeasts.push_back({});
    recipe.yeasts[0].name = "House Ale";
    ImportOptions options;
    options.catalogueFigures = false;
    RecipeRecord& r = Examine(options);
    EXPECT_EQ(r.gridGrain.Text(1, GrainCol::Ppg), "");
    EXPECT_EQ(r.txtFG.Text(), "");
    EXPECT_TRUE(Has(FindingCode::NoFigure));
}

TEST_F(PaleAle, AYieldOfHundredLosesAgainstAnotherPotential) {
    recipe.fermentables[0].yield = 100;
    recipe.fermentables[0].potential = 1.037;
    EXPECT_EQ(Examine().gridGrain.Text(1, GrainCol::Ppg), "37");
    EXPECT_TRUE(Has(FindingCode::YieldPotential));
    recipe.fermentables[0].yield = 70;
    // 70 % are 32.35 points, more than two apart from 37.
    EXPECT_EQ(Examine().gridGrain.Text(1, GrainCol::Ppg), "32.35");
    EXPECT_TRUE(Has(FindingCode::YieldPotential));
    recipe.fermentables[0].yield = 79;
    // 79 % are 36.51.
    EXPECT_EQ(Examine().gridGrain.Text(1, GrainCol::Ppg), "36.51");
    EXPECT_FALSE(Has(FindingCode::YieldPotential));
    recipe.fermentables[0].yield.reset();
    EXPECT_EQ(Examine().gridGrain.Text(1, GrainCol::Ppg), "37");
}

TEST_F(PaleAle, SugarsAndExtractsAndUnmashedAdjunctsAreExtracts) {
    using Type = ForeignFermentable::Type;
    for (const auto& [type, mashed] :
         std::vector<std::pair<std::optional<Type>, bool>>{{Type::Grain, true},
                                                           {Type::Adjunct, true},
                                                           {std::nullopt, true},
                                                           {Type::Other, true},
                                                           {Type::Sugar, false},
                                                           {Type::Extract, false},
                                                           {Type::DryExtract, false},
                                                           {Type::Honey, false},
                                                           {Type::Juice, false},
                                                           {Type::Fruit, false}}) {
        recipe.fermentables[0].type = type;
        RecipeRecord& r = Examine();
        EXPECT_EQ(r.gridGrain.Text(1, GrainCol::Name), mashed ? "Some Malt" : "") << static_cast<int>(*type);
        EXPECT_EQ(r.gridExtract.Text(1, GrainCol::Name), mashed ? "" : "Some Malt");
    }
    recipe.fermentables[0].type = Type::Adjunct;
    recipe.fermentables[0].recommendMash = false;
    EXPECT_EQ(Examine().gridExtract.Text(1, GrainCol::Name), "Some Malt");
}

TEST_F(PaleAle, LateExtractIsTold) {
    recipe.fermentables[0].type = ForeignFermentable::Type::Extract;
    recipe.fermentables[0].afterBoil = true;
    Examine();
    EXPECT_TRUE(Has(FindingCode::LateExtract));
}

TEST_F(PaleAle, HopsThatDoNotBoilHaveNoMinutes) {
    recipe.hops.push_back(Hop(ForeignUse::FirstWort, 20));
    recipe.hops.push_back(Hop(ForeignUse::Aroma, 5));
    recipe.hops.push_back(Hop(ForeignUse::Whirlpool, 20));
    recipe.hops.push_back(Hop(ForeignUse::Mash, 60));
    recipe.hops.push_back(Hop(ForeignUse::Primary, 10080));
    recipe.hops.push_back(Hop(ForeignUse::Secondary, 4320));
    RecipeRecord& r = Examine();
    // First wort hops are boiled with the wort, for the 60 minutes of the boil.
    const char* const times[] = {"60 min", "60 min", "0 min", "0 min", "0 min", "7 days", "3 days"};
    for (int row = 1; row <= 7; ++row) {
        EXPECT_EQ(r.gridHops.Text(row, HopCol::Time), times[row - 1]) << row;
        EXPECT_EQ(r.gridHops.Checked(row, HopCol::DryHopped), row > 5) << row;
    }
    EXPECT_THAT(
        Told(),
        Contains("approximated hop-time Hops 4: Some Hop: The 20 min that it stays have no cell here; "
                 "they are kept beside the recipe."));
    EXPECT_THAT(Told(),
                Contains("approximated hop-use Hops 4: Some Hop: It is added in the whirlpool for 20 min; "
                         "here it counts as 0 min of the boil."));
}

TEST_F(PaleAle, AromaHopsAreBoiledInARecipeThatBoilsNone) {
    recipe.hops = {Hop(ForeignUse::Aroma, 60), Hop(ForeignUse::Aroma, 5), Hop(ForeignUse::Primary, 1440)};
    RecipeRecord& r = Examine();
    EXPECT_EQ(r.gridHops.Text(1, HopCol::Time), "60 min");
    EXPECT_EQ(r.gridHops.Text(2, HopCol::Time), "5 min");
    EXPECT_THAT(Told(), Contains(HasSubstr("repaired hop-use Hops 1")));
    // Shorter stands are what they say.
    recipe.hops = {Hop(ForeignUse::Aroma, 29)};
    EXPECT_EQ(Examine().gridHops.Text(1, HopCol::Time), "0 min");
}

TEST_F(PaleAle, OtherFormsAreReadAsTheNearest) {
    using Form = ForeignHop::Form;
    for (const auto& [form, text] :
         std::vector<std::pair<std::optional<Form>, std::string>>{{std::nullopt, "Pellet"},
                                                                  {Form::Powder, "Pellet"},
                                                                  {Form::Plug, "Plug"},
                                                                  {Form::WetLeaf, "Leaf"},
                                                                  {Form::Extract, "Leaf"}}) {
        recipe.hops[0].form = form;
        EXPECT_EQ(Examine().gridHops.Text(1, HopCol::Form), text);
        EXPECT_EQ(Has(FindingCode::Form), form && form != Form::Plug);
    }
}

TEST_F(PaleAle, AHopThatIsNoneBecomesAnAdjunct) {
    recipe.hops.push_back(Hop(ForeignUse::Secondary, 2880));
    recipe.hops[1].name = "Cold Brew Coffee";
    recipe.hops[1].alpha.reset();
    RecipeRecord& r = Examine();
    EXPECT_EQ(Row(r.gridAdjuncts, 1), "Cold Brew Coffee|30 g|After racking to Secondary|2 days");
    EXPECT_TRUE(Has(FindingCode::IngredientKind));
    // With alpha acid it is a hop, whatever its name.
    recipe.hops[1].alpha = 3;
    EXPECT_EQ(Examine().gridHops.Text(2, HopCol::Variety), "Cold Brew Coffee");
}

TEST_F(PaleAle, BoiledHopsHaveMinutesAndDaysMeanDryHops) {
    recipe.hops = {Hop(ForeignUse::Boil, 4320), Hop(ForeignUse::Boil, 4320)};
    recipe.hops[1].use.reset();
    RecipeRecord& r = Examine();
    EXPECT_EQ(r.gridHops.Text(1, HopCol::Time), "4320 min");
    EXPECT_FALSE(r.gridHops.Checked(1, HopCol::DryHopped));
    EXPECT_EQ(r.gridHops.Text(2, HopCol::Time), "3 days");
    EXPECT_TRUE(r.gridHops.Checked(2, HopCol::DryHopped));
    EXPECT_THAT(Told(), Contains(HasSubstr("approximated hop-use Hops 2: Some Hop")));
    recipe.hops[1].minutes = 60;
    EXPECT_FALSE(Examine().gridHops.Checked(2, HopCol::DryHopped));
    EXPECT_THAT(Told(),
                Contains("approximated hop-use Hops 2: Some Hop: When it is added is not known; it was "
                         "read as boiled."));
}

TEST_F(PaleAle, YeastsStandInTheLogAndGiveTheFinishedGravity) {
    ForeignYeast yeast;
    yeast.name = "House Ale";
    yeast.laboratory = "Lab";
    yeast.productId = "L1";
    yeast.form = "Liquid";
    yeast.amount = ForeignAmount{Of::Volume, 0.05, "50 ml"};
    recipe.yeasts.push_back(yeast);
    RecipeRecord& r = Examine();
    EXPECT_EQ(Row(r.gridLog, 1), "|Pitched Yeast|House Ale - Lab, L1, 50 ml, Liquid");
    // 1.04998 are 12.369 degrees Plato; 75 % attenuation leave 3.092, which are 1.0121.
    EXPECT_EQ(r.txtFG.Text(), "1.012");
    // The attenuation of the file goes before that of the catalogue: 2.474 degrees are 1.00965.
    recipe.yeasts[0].attenuation = 80;
    EXPECT_EQ(Examine().txtFG.Text(), "1.0096");
    // What is stated goes before both.
    recipe.stated.fg = 1.011;
    EXPECT_EQ(Examine().txtFG.Text(), "1.011");
    // Even if the yeast leads to the same text, the number is the one that the file states.
    recipe.yeasts[0].attenuation.reset();
    recipe.stated.fg = 1.012;
    EXPECT_EQ(Examine().txtFG.Value(), 1.012);
}

TEST_F(PaleAle, AYeastThatTheCatalogueDoesNotKnowKeepsItsName) {
    recipe.yeasts.push_back({});
    recipe.yeasts[0].name = "Grandma - Best";
    EXPECT_EQ(Row(Examine().gridLog, 1), "|Pitched Yeast|Grandma, Best");
}

TEST_F(PaleAle, SaltsByWeightTreatTheWaterAndTheRestAreAdjuncts) {
    ForeignMisc gypsum;
    gypsum.name = "Gypsum (Calcium Sulfate)";
    gypsum.type = "Water Agent";
    gypsum.use = ForeignUse::Mash;
    gypsum.amount = ForeignAmount{Of::Mass, 0.004, "4.00 g"};
    ForeignMisc acid = gypsum;
    acid.name = "Lactic Acid";
    acid.amount = ForeignAmount{Of::Volume, 0.005, "5 ml"};
    ForeignMisc moss;
    moss.name = "Irish Moss";
    moss.type = "Fining";
    moss.use = ForeignUse::Boil;
    moss.minutes = 10;
    moss.amount = ForeignAmount{Of::Mass, 0.005, {}};
    recipe.miscs = {gypsum, acid, moss};
    RecipeRecord& r = Examine();
    EXPECT_EQ(r.gridTreatment.Text(1, TreatmentCol::Name), "Gypsum");
    EXPECT_EQ(r.gridTreatment.Text(1, TreatmentCol::Amount), "4.00 g");
    EXPECT_EQ(Row(r.gridAdjuncts, 1), "Lactic Acid|5 ml|Mash|");
    EXPECT_EQ(Row(r.gridAdjuncts, 2), "Irish Moss|5 g|During Boil|10 min");
}

TEST_F(PaleAle, SeveralWatersAreMixedByAmount) {
    ForeignWater soft, hard;
    soft.name = "Soft";
    soft.litres = 15;
    soft.calcium = 10, soft.bicarbonate = 20, soft.chloride = 4, soft.magnesium = 2, soft.sodium = 8,
    soft.sulfate = 12;
    hard = soft;
    hard.name = "Hard";
    hard.litres = 5;
    hard.calcium = 110;
    recipe.waters = {soft, hard};
    RecipeRecord& r = Examine();
    EXPECT_EQ(r.gridWater.Text(1, WaterCol::Profile), "Soft + Hard");
    // (15 * 10 + 5 * 110) / 20 = 35.
    EXPECT_EQ(r.gridWater.Text(1, WaterCol::FirstIon), "35");
    EXPECT_EQ(r.gridWater.Text(1, WaterCol::FirstIon + 1), "20");
    EXPECT_TRUE(Has(FindingCode::WaterMix));
    // An amount of 0 adds nothing, not even ions that are unknown.
    recipe.waters[0].litres = 0;
    recipe.waters[0].calcium.reset();
    EXPECT_EQ(Examine().gridWater.Text(1, WaterCol::FirstIon), "110");
    // Without amounts they count alike.
    recipe.waters[0].calcium = 10;
    recipe.waters[1].litres = 0;
    EXPECT_EQ(Examine().gridWater.Text(1, WaterCol::FirstIon), "60");
    recipe.waters[0].litres.reset();
    EXPECT_EQ(Examine().gridWater.Text(1, WaterCol::FirstIon), "60");
}

TEST_F(PaleAle, CarbonationInBottlesTakesTheSugarThatGivesIt) {
    recipe.carbonation = 2.5;
    recipe.carbonationCelsius = 20;
    RecipeRecord& r = Examine();
    EXPECT_TRUE(r.Bottled());
    EXPECT_EQ(r.txtTemp.Text(), "20 C");
    // At 68 F, 0.8614 volumes are left; 1.6386 volumes in 5.2834 gal take
    // 1.6386 * 5.2834 * 0.133 / 0.27027 / 0.9 = 4.7337 oz, which are 134.2 g.
    EXPECT_EQ(r.gridPriming.Text(1, PrimingCol::Sugar), "Corn Sugar (Dextrose)");
    EXPECT_EQ(r.gridPriming.Text(1, PrimingCol::Amount), "134.2 g");
    EXPECT_EQ(r.txtCO2.Text(), "2.50 volumes");
}

TEST_F(PaleAle, CarbonationInAKegTakesThePressureThatGivesIt) {
    recipe.carbonation = 2.5;
    recipe.forced = true;
    recipe.carbonationCelsius = 38.0 / 1.8 - 32.0 / 1.8;
    RecipeRecord& r = Examine();
    EXPECT_FALSE(r.Bottled());
    // -16.6999 - 0.0101059 * 38 + 0.00116512 * 1444 + 0.173354 * 95 + 4.24267 * 2.5 - 0.0684226 * 6.25 =
    // 11.246 psi.
    EXPECT_EQ(r.gridPressure.Text(1, PressureCol::Pressure), "11.246 psi");
    EXPECT_EQ(r.txtCO2.Text(), "2.50 volumes");
}

TEST_F(PaleAle, AnUnknownStyleIsTold) {
    recipe.style->name = "Galactic Ale";
    EXPECT_EQ(Examine().cmbStyle.Text(), "(None)");
    EXPECT_THAT(Told(), ElementsAre("not carried style-unknown Style: The catalogue does not know the style "
                                    "'Galactic Ale'; the recipe has no style."));
}

TEST_F(PaleAle, AStyleWithoutANameIsFoundByGuideAndNumber) {
    GiveStyleCode("Pale Ale", "18B", "Beer 2021");
    recipe.style = ForeignStyle();
    recipe.style->name = " ";
    recipe.style->guide = "BJCP 2021";
    recipe.style->categoryNumber = "18";
    recipe.style->letter = "B";
    EXPECT_EQ(Examine().cmbStyle.Text(), "Pale Ale");
    EXPECT_THAT(Told(), ElementsAre("note catalogue-figure Style: The style 'BJCP 2021 18B' was read as Pale "
                                    "Ale."));
    // The numbers of another edition mean other styles.
    recipe.style->guide = "BJCP 2015";
    EXPECT_EQ(Examine().cmbStyle.Text(), "(None)");
    EXPECT_THAT(Told(), ElementsAre("not carried style-unknown Style: The catalogue does not know the style "
                                    "'BJCP 2015 18B'; the recipe has no style."));
    // A guide alone says nothing.
    recipe.style->categoryNumber.clear();
    recipe.style->letter.clear();
    EXPECT_EQ(Examine().cmbStyle.Text(), "(None)");
    EXPECT_THAT(Told(), IsEmpty());
}

TEST_F(PaleAle, SizesThatTheFileDoesNotStateAreTaken) {
    recipe.batchSize.reset();
    recipe.boilSize.reset();
    recipe.equipmentBoilSize = ForeignAmount{Of::Volume, 25, {}};
    RecipeRecord& r = Examine();
    EXPECT_EQ(r.txtTotalVol.Text(), "5 gal");
    EXPECT_EQ(r.txtBoilVol.Text(), "25 L");
    // An equipment without volumes says as little as none.
    recipe.equipmentBoilSize.reset();
    EXPECT_EQ(Examine().txtBoilVol.Text(), "6 gal");
    EXPECT_THAT(Told(), ElementsAre("note missing Recipe: The file does not state: batch size, boil size. "
                                    "What a new recipe has was kept."));
    recipe.batchSize = ForeignAmount{Of::Volume, 20, "20 L"};
    EXPECT_EQ(Examine().txtBoilVol.Text(), "20 L");
}

TEST_F(PaleAle, WhatTheFileDoesNotStateStaysAsInANewRecipe) {
    recipe.efficiency.reset();
    recipe.hopUtilization.reset();
    recipe.boilSize.reset();
    recipe.equipmentBoilSize = ForeignAmount{Of::Volume, 25, {}};
    RecipeRecord& r = Examine();
    EXPECT_EQ(r.txtExtract.Text(), "75%");
    EXPECT_EQ(r.txtBoilVol.Text(), "25 L");
    EXPECT_THAT(Told(),
                ElementsAre("approximated missing Boil size: The file does not know the size of the boil; "
                            "that of the equipment was taken.",
                            "note missing Recipe: The file does not state: efficiency, hop utilization. "
                            "What a new recipe has was kept."));
}

TEST_F(PaleAle, NotesBecomePlainText) {
    recipe.notes = "<p>First&nbsp;line</p><p>Second <b>line</b></p>";
    EXPECT_EQ(Examine().txtNotes.Text(), "First line\r\nSecond line");
    recipe.notes = "One\nTwo < three\r\n";
    EXPECT_EQ(Examine().txtNotes.Text(), "One\r\nTwo < three");
}

TEST_F(PaleAle, ATextThatIsRefusedIsLeftOut) {
    recipe.efficiency = 120;
    RecipeRecord& r = Examine();
    EXPECT_EQ(r.txtExtract.Text(), "75%");
    EXPECT_THAT(Told(),
                ElementsAre("not carried no-number txtExtract: '120%' cannot be entered here; it was left "
                            "out."));
}

TEST_F(PaleAle, GramsWrittenAsKilogramsAreOfferedToBeReadSo) {
    // 30 kg of hops in 20 litres.
    recipe.hops[0].amount = ForeignAmount{Of::Mass, 30, "30 kg"};
    Examine();
    EXPECT_TRUE(examined.offered.grams);
    EXPECT_TRUE(Has(FindingCode::ThousandSlip));
    EXPECT_EQ(examined.document->Record().gridHops.Text(1, HopCol::Amount), "30 kg");
    ImportOptions options;
    options.grams = true;
    EXPECT_EQ(Examine(options).gridHops.Text(1, HopCol::Amount), "30 g");
    EXPECT_TRUE(examined.offered.grams);
    // Where nothing is wrong, the remedy changes nothing.
    recipe.hops[0].amount = ForeignAmount{Of::Mass, 0.03, "30 g"};
    EXPECT_EQ(Examine(options).gridHops.Text(1, HopCol::Amount), "30 g");
}

TEST_F(PaleAle, TheExtractionCanMeetTheStatedGravity) {
    recipe.stated.og = 1.06;
    Examine();
    EXPECT_TRUE(examined.offered.gravity);
    EXPECT_THAT(
        Told(),
        ElementsAre("suspicious og-differs Original gravity: The original gravity is 1.0600 in the file and "
                    "1.0500 here."));
    ImportOptions options;
    options.gravity = true;
    RecipeRecord& r = Examine(options);
    // 72 % give 49.975 points, so 60 points take 86.44 %.
    EXPECT_EQ(r.txtExtract.Text(), "86.44%");
    EXPECT_EQ(r.txtOG.Text(), "1.060");
}

TEST_F(PaleAle, AGravityThatNoExtractionGivesIsNotOffered) {
    // 72 % give 49.975 points, so that 100 % give 69.41 and 70 points take 100.85 %.
    recipe.stated.og = 1.07;
    Examine();
    EXPECT_FALSE(examined.offered.gravity);
    EXPECT_THAT(
        Told(),
        ElementsAre("suspicious og-differs Original gravity: The original gravity is 1.0700 in the file and "
                    "1.0500 here; no extraction gives the stated one."));
    ImportOptions options;
    options.gravity = true;
    EXPECT_EQ(Examine(options).txtExtract.Text(), "72%");
    recipe.stated.og = 1.069;
    Examine();
    EXPECT_TRUE(examined.offered.gravity);
    // All of the gravity of an extract beer comes without mashing.
    recipe.fermentables[0].type = ForeignFermentable::Type::Extract;
    Examine();
    EXPECT_FALSE(examined.offered.gravity);
}

TEST_F(PaleAle, ABitternessThatNoConstantGivesIsNotOffered) {
    recipe.hops[0].amount.reset();
    recipe.stated.ibu = 30;
    Examine();
    EXPECT_FALSE(examined.offered.bitterness);
}

TEST_F(PaleAle, AnEfficiencyOrAHopUtilizationOfNothingIsSuspicious) {
    recipe.efficiency = 0;
    recipe.hopUtilization = 0;
    RecipeRecord& r = Examine();
    EXPECT_EQ(r.txtExtract.Text(), "0%");
    EXPECT_THAT(Told(),
                ElementsAre("suspicious implausible Recipe: The efficiency is 0%, which gives no gravity.",
                            "suspicious implausible Recipe: The hop utilization is 0%, which gives no "
                            "bitterness."));
    // Neither says anything about a recipe without mashed grain and hops.
    recipe.efficiency = 0;
    recipe.hopUtilization = 0;
    recipe.fermentables[0].type = ForeignFermentable::Type::Extract;
    recipe.hops.clear();
    Examine();
    EXPECT_FALSE(Has(FindingCode::Implausible));
}

TEST_F(PaleAle, AnAlphaAcidBelowOnePercentIsSuspicious) {
    recipe.hops[0].alpha = 0.055;
    EXPECT_EQ(Examine().gridHops.Text(1, HopCol::AlphaAcid), "0.055");
    EXPECT_THAT(Told(), ElementsAre("suspicious implausible Hops 1: Some Hop: The alpha acid is 0.055%: "
                                    "probably 5.5% was written as a fraction. It was taken as it stands."));
    recipe.hops[0].alpha = 1;
    Examine();
    EXPECT_FALSE(Has(FindingCode::Implausible));
}

TEST_F(PaleAle, TheHopConstantCanMeetTheStatedBitterness) {
    Examine();
    const double ibu = *CalculatedFigures(examined.document->Record()).ibu;
    recipe.stated.ibu = ibu * 1.5;
    ImportOptions options;
    options.bitterness = true;
    RecipeRecord& r = Examine(options);
    EXPECT_EQ(r.txtHopExtraction.Text(), "1.5");
    EXPECT_NEAR(r.txtIBU.Value(), ibu * 1.5, 0.01);
}

TEST_F(PaleAle, ColorsInEbcAreRecognized) {
    Examine();
    const double srm = *CalculatedFigures(examined.document->Record()).srm;
    recipe.stated.srm = srm;
    // The colour of the malt in EBC: (2.5 L * 1.3546 - 0.76) * 1.97 = 5.174.
    recipe.fermentables[0].lovibond = 5.174;
    Examine();
    EXPECT_TRUE(Has(FindingCode::ColourDiffers));
    recipe.fermentables[0].lovibond = 60;
    recipe.stated.srm = *CalculatedFigures(Examine()).srm;
    // (60 * 1.3546 - 0.76) * 1.97 = 158.6; the calculated colour is then 2.64 to the power of 0.6859 = 1.95
    // times as dark.
    recipe.fermentables[0].lovibond = 158.6;
    Examine();
    EXPECT_TRUE(examined.offered.ebc);
    ImportOptions options;
    options.ebc = true;
    EXPECT_EQ(Examine(options).gridGrain.Text(1, GrainCol::Color), "60");
    EXPECT_FALSE(Has(FindingCode::ColourDiffers));
}

}  // namespace
}  // namespace tw::test
