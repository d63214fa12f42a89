#include <gmock/gmock.h>

#include "DocumentTest.h"
#include "support/NamesIn.h"
#include "support/OtherNames.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CellsTest : public DocumentTest {
  protected:
    CellsTest() {
        host.defaults = {"70", "1", "", "6", "5", 0, 0, 0, true};
        New();
    }
};

TEST_F(CellsTest, TellWhatIsWrongToTheLetter) {
    RecipeRecord& r = R();
    document->Lines().InsertRowForGrid(r.gridTreatment);
    host.log.clear();
    struct Case {
        Grid& grid;
        int col;
        const char* text;
        const char* message;
    };
    const Case cases[] = {
        {r.gridGrain, 1, "heavy", "Please enter a valid weight"},
        {r.gridGrain, 1, "-1 lb", "Please enter a positive weight"},
        {r.gridExtract, 1, "5 gal", "Please enter a valid weight"},
        {r.gridGrain, 2, "x", "Please enter a valid PPG value"},
        {r.gridGrain, 2, "36 ppg", "Please enter a valid PPG value"},
        {r.gridGrain, 2, " 36", "Please enter a valid PPG value"},
        {r.gridGrain, 2, "+36", "Please enter a valid PPG value"},
        {r.gridGrain, 2, "3.6e1", "Please enter a valid PPG value"},
        {r.gridGrain, 2, "-1", "Please enter a positive PPG value"},
        {r.gridExtract, 4, "1,000", "Please enter a valid Color value"},
        {r.gridExtract, 4, "-0.5", "Please enter a positive Color value"},
        {r.gridHops, 1, "101", "Please enter a percentage (0 to 100)"},
        {r.gridHops, 1, "1/2", "Please enter a valid percentage"},
        {r.gridHops, 4, "-1 oz", "Please enter a positive weight"},
        {r.gridHops, 4, "-1", "Please enter a positive weight"},
        {r.gridHops, 4, "-1 AAU", "Please enter a positive AAU value"},
        {r.gridHops, 4, "-1 IBU", "Please enter a positive IBU value"},
        {r.gridHops, 4, "handful", "Please enter a valid hopping unit (weight, AAUs, or IBUs)"},
        {r.gridHops, 6, "7 days", "Please enter a valid length of time"},
        {r.gridHops, 6, "-5", "Please enter a positive time"},
        {r.gridPriming, 1, "x", "Please enter a valid percentage"},
        {r.gridPriming, 2, "cup", "Please enter a valid weight"},
        {r.gridPriming, 2, "-4", "Please enter a positive weight"},
        {r.gridPressure, 0, "hard", "Please enter a valid pressure"},
        {r.gridPressure, 0, "-1", "Please enter a positive pressure"},
        {r.gridTreatment, 1, "pinch", "Please enter a valid weight"},
        {r.gridTreatment, 1, "-1", "Please enter a positive weight"},
        {r.gridWater, 2, "soft", "Please enter a valid PPM/Gal value"},
        {r.gridWater, 7, "-1", "Please enter a positive PPM/Gal value"},
    };
    SaveAs("A");
    const Log before = Shown();
    for (const Case& c : cases) {
        EXPECT_FALSE(Put(c.grid, 1, c.col, c.text)) << c.text;
        EXPECT_THAT(Boxes(), ElementsAre("[Invalid Entry] " + std::string(c.message))) << c.text;
        EXPECT_FALSE(document->Cells().EditCell(c.grid, 1, c.col, c.text, Asking::Quietly)) << c.text;
        EXPECT_THAT(Boxes(), IsEmpty());
        EXPECT_EQ(Shown(), before) << c.text;
    }
    EXPECT_FALSE(document->Changed());
}

TEST_F(CellsTest, APressureThatTheTemperatureCannotHoldIsRefused) {
    Set(R().txtTemp, "0");
    EXPECT_TRUE(Put(R().gridPressure, 1, 0, "49"));
    EXPECT_FALSE(Put(R().gridPressure, 1, 0, "50"));
    EXPECT_THAT(Boxes(),
                ElementsAre("[Error calculating carbonation] Please enter a more reasonable pressure."));
    EXPECT_EQ(R().gridPressure.Text(1, 0), "49");
}

TEST_F(CellsTest, TheSameTextIsNoEdit) {
    Put(R().gridGrain, 1, 1, "8");
    SaveAs("A");
    host.log.clear();
    EXPECT_TRUE(Put(R().gridGrain, 1, 1, "8"));
    EXPECT_THAT(host.log, IsEmpty());
    EXPECT_FALSE(document->Changed());
}

TEST_F(CellsTest, ReadOnlyCellsRefuse) {
    RecipeRecord& r = R();
    struct Case {
        Grid& grid;
        int row, col;
    };
    for (const Case& c :
         {Case{r.gridGrain, 1, 3}, Case{r.gridGrain, 1, 5}, Case{r.gridGrain, 2, 0}, Case{r.gridGrain, 0, 0},
          Case{r.gridHops, 1, 7}, Case{r.gridHops, 1, 3}, Case{r.gridHops, 2, 1}, Case{r.gridPriming, 1, 3},
          Case{r.gridPriming, 2, 1}, Case{r.gridPriming, 3, 1}, Case{r.gridPressure, 1, 1},
          Case{r.gridWater, 1, 0}, Case{r.gridWater, 3, 1}, Case{r.gridWater, 4, 2}, Case{r.gridWater, 5, 2},
          Case{r.gridGrain, 7, 0}, Case{r.gridGrain, 1, -1}, Case{r.gridGrain, 1, 6},
          Case{r.gridTreatment, 1, 0}}) {
        EXPECT_FALSE(Put(c.grid, c.row, c.col, "9")) << c.grid.Name() << c.row << "," << c.col;
        if (c.grid.HasCell(c.row, c.col)) {
            EXPECT_NE(c.grid.Text(c.row, c.col), "9");
        }
    }
    EXPECT_FALSE(document->Cells().SetChecked(r.gridHops, 2, HopCol::Sock, true));
    EXPECT_FALSE(document->Cells().SetChecked(r.gridGrain, 1, 1, true));
    EXPECT_FALSE(document->Changed());
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(CellsTest, AnAmountRunsItsChainInOrder) {
    Set(R().txtExtract, "50");
    Put(R().gridGrain, 1, GrainCol::Ppg, "36");
    Put(R().gridGrain, 1, GrainCol::Color, "2");
    SaveAs("A");
    ChangeRecorder recorder(host.log);
    R().SetObserver(&recorder);
    host.log.clear();
    // 10 * 36 * 0.5 / 5 = 36 points; 10 * 2 / 5 = 4; BG 1 + 0.036 * 5 / 6 = 1.03
    ASSERT_TRUE(Put(R().gridGrain, 1, GrainCol::Amount, "10"));
    EXPECT_THAT(
        host.log,
        ElementsAre("gridGrain 1,1=10", "gridGrain 1,3=36", "gridGrain 2,3=36", "gridGrain 1,5=4",
                    "gridGrain 2,5=4", "gridGrain 2,1=10 lbs.", "txtOG=1.036", "EnableChangeStrength on",
                    "txtBG=1.030", "EnableChangeBitterness off", "txtColor=4 SRM (4 HCU)", "swatch",
                    "EnableUndo on", "EnableRedo off", "EnableSave on", "DocumentRenamed A"));
    R().SetObserver(nullptr);
}

TEST_F(CellsTest, AGrainsNameFillsItsFigures) {
    Put(R().gridGrain, 1, GrainCol::Amount, "10");
    ASSERT_TRUE(Put(R().gridGrain, 1, GrainCol::Name, "Pale Malt"));
    EXPECT_EQ(R().gridGrain.Text(1, GrainCol::Ppg), "36.5");
    EXPECT_EQ(R().gridGrain.Text(1, GrainCol::Color), "2");
    // 10 * 36.5 * 0.7 / 5 = 51.1
    EXPECT_EQ(R().txtOG.Text(), "1.051");
    ASSERT_TRUE(Put(R().gridExtract, 1, GrainCol::Name, "Pale Malt"));
    EXPECT_EQ(R().gridExtract.Text(1, GrainCol::Ppg), "43");
    ASSERT_TRUE(Put(R().gridGrain, 1, GrainCol::Name, "O'Brien's"));
    EXPECT_EQ(R().gridGrain.Text(1, GrainCol::Color), "60");
    // Names are compared without regard to case. NULL empties the figure and those that depend on it.
    ASSERT_TRUE(Put(R().gridGrain, 1, GrainCol::Name, "half known"));
    EXPECT_EQ(R().gridGrain.Text(1, GrainCol::Ppg), "");
    EXPECT_EQ(R().gridGrain.Text(1, GrainCol::Color), "15");
    EXPECT_EQ(R().gridGrain.Text(1, GrainCol::Points), "");
    EXPECT_EQ(R().txtOG.Text(), "");
}

TEST_F(CellsTest, AnUnknownNameStaysAndChangesNothingElse) {
    Put(R().gridGrain, 1, GrainCol::Name, "Pale Malt");
    SaveAs("A");
    host.log.clear();
    ASSERT_TRUE(Put(R().gridGrain, 1, GrainCol::Name, "Syrup"));  // an extract
    // Nothing is recalculated, so no command of a figure is updated.
    EXPECT_THAT(host.log,
                ElementsAre("EnableUndo on", "EnableRedo off", "EnableSave on", "DocumentRenamed A"));
    EXPECT_EQ(R().gridGrain.Text(1, GrainCol::Name), "Syrup");
    EXPECT_EQ(R().gridGrain.Text(1, GrainCol::Ppg), "36.5");
    Put(R().gridHops, 1, HopCol::Variety, "Zeus");
    ASSERT_TRUE(Put(R().gridHops, 1, HopCol::Variety, "x'; DROP TABLE HOPS; --"));
    EXPECT_EQ(R().gridHops.Text(1, HopCol::AlphaAcid), "15");
    EXPECT_EQ(Count("HOPS"), 3);
    ASSERT_TRUE(Put(R().gridWater, 1, WaterCol::Profile, "Soft"));
    ASSERT_TRUE(Put(R().gridWater, 1, WaterCol::Profile, "Tap"));
    EXPECT_EQ(R().gridWater.Text(1, 2), "7");
}

TEST_F(CellsTest, AnotherNameBringsTheFiguresOfItsRowAndStaysAsTyped) {
    AddOtherNames(*database);
    AddAlias(*database, CatalogueKind::Hop, "Žatec", "Saaz");
    ASSERT_TRUE(Put(R().gridHops, 1, HopCol::Variety, "žatec"));
    EXPECT_EQ(R().gridHops.Text(1, HopCol::Variety), "žatec");
    EXPECT_EQ(R().gridHops.Text(1, HopCol::AlphaAcid), "3.5");
    // The brewer's own row of that name takes precedence.
    database->Execute("INSERT INTO HOPS (NAME, AA_LO, AA_HI) VALUES ('Žatec', 8, 8)");
    ASSERT_TRUE(Put(R().gridHops, 1, HopCol::Variety, "Žatec"));
    EXPECT_EQ(R().gridHops.Text(1, HopCol::AlphaAcid), "8");
}

TEST_F(CellsTest, EveryGridKnowsOtherNames) {
    AddOtherNames(*database);
    for (const char* insert :
         {"GRAINS (NAME, GRAIN, PPG_LO, PPG_HI, COLOR_LO, COLOR_HI) VALUES ('Malt', TRUE, 30, 30, 3, 3)",
          "GRAINS (NAME, GRAIN, PPG_LO, PPG_HI, COLOR_LO, COLOR_HI) VALUES ('Syrup B', FALSE, 36, 36, 5, 5)",
          "SUGARS (NAME, FERMENT_LO, FERMENT_HI) VALUES ('Honeydew', 70, 70)",
          "WATER_PROFILES (NAME, CA, CO3, CL, MG, NA, SO4) VALUES ('Spring', 11, 0, 0, 0, 0, 0)",
          "SALTS (NAME, CA, CO3, CL, MG, NA, SO4) VALUES ('Lime', 143, 0, 0, 0, 0, 0)",
          "YEAST (NAME, AA_LO, AA_HI) VALUES ('Acme A1', 80, 80)"})
        database->Execute(std::string("INSERT INTO ") + insert);
    AddAlias(*database, CatalogueKind::Grain, "Other Malt", "Malt");
    AddAlias(*database, CatalogueKind::Extract, "Other Syrup", "Syrup B");
    AddAlias(*database, CatalogueKind::Sugar, "Other Sugar", "Honeydew");
    AddAlias(*database, CatalogueKind::Water, "Other Water", "Spring");
    AddAlias(*database, CatalogueKind::Salt, "Other Salt", "Lime");
    AddFacts(*database, CatalogueKind::Yeast, "Acme A1", "A1", "Acme");
    ASSERT_TRUE(Put(R().gridGrain, 1, GrainCol::Name, "other malt"));
    EXPECT_EQ(R().gridGrain.Text(1, GrainCol::Ppg), "30");
    ASSERT_TRUE(Put(R().gridExtract, 1, GrainCol::Name, "other syrup"));
    EXPECT_EQ(R().gridExtract.Text(1, GrainCol::Ppg), "36");
    // Another name of a grain is not a name of an extract.
    ASSERT_TRUE(Put(R().gridExtract, 1, GrainCol::Name, "other malt"));
    EXPECT_EQ(R().gridExtract.Text(1, GrainCol::Ppg), "36");
    ASSERT_TRUE(Put(R().gridPriming, 1, PrimingCol::Sugar, "other sugar"));
    EXPECT_EQ(R().gridPriming.Text(1, PrimingCol::Fermentable), "70");
    ASSERT_TRUE(Put(R().gridWater, WaterRow::Target, WaterCol::Profile, "other water"));
    EXPECT_EQ(R().gridWater.Text(WaterRow::Target, WaterCol::FirstIon), "11");
    document->Lines().InsertRowForGrid(R().gridTreatment);
    ASSERT_TRUE(Put(R().gridTreatment, 1, TreatmentCol::Name, "other salt"));
    EXPECT_EQ(R().gridTreatment.Number(1, TreatmentCol::FirstIon), 143);
    Put(R().gridGrain, 1, GrainCol::Amount, "10 lb");
    R().txtOG.SetValue(1.050);
    document->Lines().InsertRowForGrid(R().gridLog);
    ASSERT_TRUE(Put(R().gridLog, 1, LogCol::Action, "Pitched Yeast"));
    ASSERT_TRUE(Put(R().gridLog, 1, LogCol::Notes, "a1 - a clean one"));
    EXPECT_EQ(R().txtFG.Text(), "1.010");
}

TEST_F(CellsTest, CatalogueNullsAreZeroInWatersAndSalts) {
    Put(R().gridWater, 2, WaterCol::Profile, "Burton");
    EXPECT_EQ(R().gridWater.Text(2, 6), "0");
    EXPECT_EQ(R().gridWater.Text(4, 2), "275");
    document->Lines().InsertRowForGrid(R().gridTreatment);
    Put(R().gridTreatment, 1, 1, "5");
    EXPECT_EQ(R().gridTreatment.Text(1, 2), "0");
    Put(R().gridTreatment, 1, 0, "Gypsum");
    // 5 * 61.5 / 5, 5 * 147.4 / 5
    EXPECT_EQ(R().gridTreatment.Text(1, 2), "61.5");
    EXPECT_EQ(R().gridTreatment.Text(1, 5), "0");
    EXPECT_EQ(R().gridWater.Text(5, 7), "147.4");
    Put(R().gridTreatment, 1, 0, "Stone");
    EXPECT_EQ(R().gridTreatment.Text(1, 2), "0");
}

TEST_F(CellsTest, ASugarsNameFillsItsFermentability) {
    Put(R().gridPriming, 1, PrimingCol::Amount, "4");
    Put(R().gridPriming, 1, PrimingCol::Sugar, "Honey");
    EXPECT_EQ(R().gridPriming.Text(1, PrimingCol::Fermentable), "94");
    EXPECT_NE(R().gridPriming.Text(1, PrimingCol::Volumes), "");
    Put(R().gridPriming, 1, PrimingCol::Sugar, "Riddle");
    EXPECT_EQ(R().gridPriming.Text(1, PrimingCol::Fermentable), "");
    EXPECT_EQ(R().gridPriming.Text(1, PrimingCol::Volumes), "");
}

TEST_F(CellsTest, AHopAmountKeepsItsKind) {
    Grid& hops = R().gridHops;
    const auto value = [&](std::string_view text) {
        EXPECT_TRUE(Put(hops, 1, HopCol::Amount, text));
        return hops.At(1, HopCol::Amount).value.Text();
    };
    EXPECT_EQ(value("1 1/2"), "1.5");
    EXPECT_EQ(value("567 g"), "20");  // 567 / 28.35
    EXPECT_EQ(value("4.5 AAUs"), "A4.5");
    EXPECT_EQ(value("20 IBU"), "I20");
    EXPECT_EQ(hops.Text(2, HopCol::Amount), "");
    EXPECT_EQ(value("2"), "2");
    EXPECT_EQ(hops.Text(2, HopCol::Amount), "2 oz.");
    EXPECT_EQ(value(""), "0");
    EXPECT_EQ(hops.Text(2, HopCol::Amount), "");
}

TEST_F(CellsTest, HopFormsAreAClosedList) {
    Grid& hops = R().gridHops;
    EXPECT_TRUE(Put(hops, 1, HopCol::Form, " leaf"));
    EXPECT_EQ(hops.Text(1, HopCol::Form), "Leaf");
    EXPECT_EQ(hops.Number(1, HopCol::Form), 2);
    EXPECT_FALSE(Put(hops, 1, HopCol::Form, "Cone"));
    EXPECT_EQ(hops.Text(1, HopCol::Form), "Leaf");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(CellsTest, ADryHoppedTimeIsFreeTextOfNoValue) {
    Grid& hops = R().gridHops;
    Put(R().gridGrain, 1, GrainCol::Name, "Pale Malt");
    Put(R().gridGrain, 1, GrainCol::Amount, "10");
    Put(hops, 1, HopCol::Amount, "10 AAU");
    ASSERT_TRUE(document->Cells().SetChecked(hops, 1, HopCol::DryHopped, true));
    ASSERT_TRUE(Put(hops, 1, HopCol::Time, "7 days"));
    EXPECT_EQ(hops.Number(1, HopCol::Time), 0);
    EXPECT_EQ(hops.Text(1, HopCol::Ibu), "");
    ASSERT_TRUE(Put(hops, 1, HopCol::Time, "60"));
    EXPECT_EQ(hops.Number(1, HopCol::Time), 0);
    ASSERT_TRUE(document->Cells().SetChecked(hops, 1, HopCol::DryHopped, false));
    EXPECT_EQ(hops.Number(1, HopCol::Time), 60);
    EXPECT_NE(R().txtIBU.Text(), "0");
}

TEST_F(CellsTest, PitchedYeastSetsTheFinalGravity) {
    document->Lines().InsertRowForGrid(R().gridLog);
    Set(R().txtFG, "1.020");
    Put(R().gridLog, 1, LogCol::Action, " pitched YEAST ");
    Put(R().gridLog, 1, LogCol::Notes, "Ale - two packs");
    EXPECT_EQ(R().txtFG.Text(), "1.020");  // no original gravity yet
    Put(R().gridGrain, 1, GrainCol::Name, "Pale Malt");
    Put(R().gridGrain, 1, GrainCol::Amount, "50/7 lb");
    R().txtOG.SetValue(1.050);
    Put(R().gridLog, 1, LogCol::Notes, "Ale - three packs - cold");
    // 75% of 12.3743425 degrees Plato leave 3.0935856: 1.0120905
    EXPECT_EQ(R().txtFG.Text(), "1.012");
    EXPECT_EQ(R().txtFG.Committed(), "1.012");
    EXPECT_NEAR(R().txtFG.Value(), 1.0120905, 1e-7);
    Put(R().gridLog, 1, LogCol::Notes, " Cook's ");
    EXPECT_EQ(R().txtFG.Text(), "1.015");  // 3.7123: 1.01454
    for (const char* notes : {"Stray - no attenuation known", "Nobody", "Ale-packed"}) {
        Put(R().gridLog, 1, LogCol::Notes, notes);
        EXPECT_EQ(R().txtFG.Text(), "1.015") << notes;
    }
    Put(R().gridLog, 1, LogCol::Action, "Racked");
    Put(R().gridLog, 1, LogCol::Notes, "Ale - late");
    EXPECT_EQ(R().txtFG.Text(), "1.015");
}

TEST_F(CellsTest, OffersYeastsOnlyInRowsThatPitchOne) {
    document->Lines().InsertRowForGrid(R().gridLog);
    Put(R().gridLog, 1, LogCol::Action, "Racked");
    EXPECT_TRUE(document->Cells().ListOf(R().gridLog, 1, LogCol::Notes).names.IsEmpty());
    Put(R().gridLog, 1, LogCol::Action, "Pitched Yeast");
    EXPECT_FALSE(document->Cells().ListOf(R().gridLog, 1, LogCol::Notes).names.IsEmpty());
}

TEST_F(CellsTest, OffersTheListsOfTheCatalogue) {
    RecipeRecord& r = R();
    const auto list = [&](const Grid& grid, int col) {
        return NamesIn(document->Cells().ListOf(grid, 1, col).names);
    };
    EXPECT_THAT(list(r.gridGrain, 0), ElementsAre("Half Known", "O'Brien's", "Pale Malt"));
    EXPECT_THAT(list(r.gridExtract, 0), ElementsAre("Pale Malt", "Syrup"));
    EXPECT_THAT(list(r.gridHops, 0), ElementsAre("Saaz", "Wild", "Zeus"));
    EXPECT_THAT(list(r.gridHops, 2), ElementsAre("Pellet", "Plug", "Leaf"));
    EXPECT_FALSE(document->Cells().ListOf(r.gridHops, 1, 2).freeText);
    EXPECT_TRUE(document->Cells().ListOf(r.gridHops, 1, 0).freeText);
    EXPECT_THAT(list(r.gridPriming, 0), ElementsAre("Corn Sugar", "Honey", "Riddle"));
    EXPECT_THAT(list(r.gridWater, 1), ElementsAre("Burton", "Soft"));
    EXPECT_THAT(list(r.gridGrain, 1), IsEmpty());
    EXPECT_TRUE(document->Cells().ListOf(r.gridGrain, 2, 0).names.IsEmpty());  // the totals row
    for (Grid* grid : {&r.gridTreatment, &r.gridAdjuncts, &r.gridLog})
        document->Lines().InsertRowForGrid(*grid);
    EXPECT_THAT(list(r.gridTreatment, 0), ElementsAre("Chalk", "Gypsum"));
    EXPECT_THAT(
        list(r.gridAdjuncts, 2),
        ElementsAre("During Boil", "After Boil while Wort cools", "After cooled Wort placed in Fermentor",
                    "After pitching Yeast to Primary", "After racking to Secondary", "Before Bottling"));
    EXPECT_THAT(list(r.gridLog, 1), ElementsAre("Steeped Specialty Grains", "Added Extracts or Sugars",
                                                "Added Hops", "Removed Wort from Heat", "Pitched Yeast",
                                                "Racked", "Dry-Hopped", "Bottled", "Tasted"));
    Put(r.gridAdjuncts, 1, 0, "Irish Moss");
    SaveAs("A");
    EXPECT_THAT(list(r.gridAdjuncts, 0), ElementsAre("Irish Moss"));
}

TEST_F(CellsTest, ADayGoesIntoTheCurrentRowOfTheLog) {
    document->Cells().PickLogDate({2024, 3, 9});
    EXPECT_EQ(R().gridLog.DataRows(), 0);
    document->Lines().InsertRowForGrid(R().gridLog);
    document->Cells().PickLogDate({2024, 3, 9});
    EXPECT_EQ(R().gridLog.Text(1, 0), "3/9/2024");
}

TEST_F(CellsTest, AnArithmeticFaultRaisesAndLeavesTheRow) {
    RecipeRecord& r = R();
    Set(r.txtTemp, "68");
    Put(r.gridGrain, 1, GrainCol::Name, "Pale Malt");
    Put(r.gridGrain, 1, GrainCol::Amount, "9");
    Put(r.gridExtract, 1, GrainCol::Name, "Syrup");
    Put(r.gridExtract, 1, GrainCol::Amount, "2");
    Put(r.gridHops, 1, HopCol::Variety, "Saaz");
    Put(r.gridHops, 1, HopCol::Amount, "1");
    Put(r.gridHops, 1, HopCol::Time, "60");
    Put(r.gridPriming, 1, PrimingCol::Sugar, "Honey");
    Put(r.gridPriming, 1, PrimingCol::Amount, "4");
    Put(r.gridPressure, 1, 0, "11");
    document->Lines().InsertRowForGrid(r.gridTreatment);
    Put(r.gridTreatment, 1, 0, "Gypsum");
    Put(r.gridTreatment, 1, 1, "5");
    SaveAs("Sound");
    const Log before = Shown();
    const auto raises = [&](Grid& grid, int col, const std::string& text) {
        EXPECT_THROW(Put(grid, 1, col, text), Error) << grid.Name() << col;
        EXPECT_EQ(Shown(), before) << grid.Name() << col;
        EXPECT_FALSE(document->Changed());
    };
    raises(r.gridGrain, GrainCol::Amount, "1/0");
    raises(r.gridExtract, GrainCol::Amount, "1 1/0 lb");
    raises(r.gridHops, HopCol::Amount, "1/0 oz");
    raises(r.gridHops, HopCol::Time, "1/0");
    raises(r.gridPriming, PrimingCol::Amount, "1/0");
    raises(r.gridTreatment, TreatmentCol::Amount, "1/0");
    const std::string huge(308, '9');
    raises(r.gridGrain, GrainCol::Amount, huge);
    raises(r.gridGrain, GrainCol::Ppg, huge);
    raises(r.gridGrain, GrainCol::Color, huge);
    raises(r.gridExtract, GrainCol::Amount, huge);
    raises(r.gridHops, HopCol::Amount, huge + " AAU");
    raises(r.gridTreatment, TreatmentCol::Amount, huge);
    raises(r.gridPressure, 0, std::string(400, '9'));
    raises(r.gridWater, 2, std::string(400, '9'));
}

TEST_F(CellsTest, AnAbsurdAttenuationRaisesAndLeavesTheGravity) {
    database->Execute("INSERT INTO YEAST (NAME, AA_LO, AA_HI) VALUES ('Monster', 1" + std::string(100, '0') +
                      ", 1" + std::string(100, '0') + ")");
    Put(R().gridGrain, 1, GrainCol::Name, "Pale Malt");
    Put(R().gridGrain, 1, GrainCol::Amount, "9");
    Set(R().txtFG, "1.010");
    document->Lines().InsertRowForGrid(R().gridLog);
    Put(R().gridLog, 1, LogCol::Action, "Pitched Yeast");
    const Log before = Shown();
    EXPECT_THROW(Put(R().gridLog, 1, LogCol::Notes, "Monster"), Error);
    EXPECT_EQ(Shown(), before);
    EXPECT_EQ(R().txtFG.Value(), 1.010);
}

TEST_F(CellsTest, AStoreErrorInALookUpRisesAndLeavesTheRow) {
    Put(R().gridGrain, 1, GrainCol::Amount, "9");
    const Log before = Shown();
    database->SetStatementHook([](std::string_view) { throw Error("Database", "disk I/O error", 10); });
    EXPECT_THROW(Put(R().gridGrain, 1, GrainCol::Name, "Pale Malt"), Error);
    database->SetStatementHook({});
    EXPECT_EQ(Shown(), before);
}

TEST_F(CellsTest, BlanksAloneAreTheEmptyTextWhereAQuantityBelongs) {
    RecipeRecord& r = R();
    Set(r.txtTemp, "68");
    document->Lines().InsertRowForGrid(r.gridTreatment);
    document->Lines().InsertRowForGrid(r.gridLog);
    document->Lines().InsertRowForGrid(r.gridAdjuncts);
    struct Case {
        Grid& grid;
        int col;
        const char* text;
    };
    const Case quantities[] = {
        {r.gridGrain, 1, "9"},      {r.gridGrain, 2, "36"},    {r.gridGrain, 4, "3"},
        {r.gridExtract, 1, "2 lb"}, {r.gridHops, 1, "5%"},     {r.gridHops, 2, "Leaf"},
        {r.gridHops, 4, "1 oz"},    {r.gridHops, 6, "60"},     {r.gridPriming, 1, "100"},
        {r.gridPriming, 2, "4"},    {r.gridPressure, 0, "11"}, {r.gridTreatment, 1, "5"},
        {r.gridWater, 2, "50"}};
    for (const auto& [grid, col, text] : quantities) {
        ASSERT_TRUE(Put(grid, 1, col, text)) << grid.Name() << col;
        EXPECT_TRUE(Put(grid, 1, col, "   ")) << grid.Name() << col;
        EXPECT_EQ(grid.Text(1, col), "") << grid.Name() << col;
        EXPECT_EQ(grid.Number(1, col), 0) << grid.Name() << col;
    }
    EXPECT_EQ(r.txtOG.Text(), "");
    const Case texts[] = {{r.gridGrain, 0, "  "},     {r.gridHops, 0, "  "},  {r.gridPriming, 0, "  "},
                          {r.gridTreatment, 0, "  "}, {r.gridWater, 1, "  "}, {r.gridAdjuncts, 1, "  "},
                          {r.gridAdjuncts, 3, "  "},  {r.gridLog, 2, "  "}};
    for (const auto& [grid, col, text] : texts) {
        EXPECT_TRUE(Put(grid, 1, col, text)) << grid.Name() << col;
        EXPECT_EQ(grid.Text(1, col), "  ") << grid.Name() << col;
    }
}

// The time of dry hops is free text; blanks count as empty here as well.
TEST_F(CellsTest, BlanksAreNoTimeOfDryHopsEither) {
    Grid& hops = R().gridHops;
    document->Cells().SetChecked(hops, 1, HopCol::DryHopped, true);
    Put(hops, 1, HopCol::Time, "7 days");
    EXPECT_TRUE(Put(hops, 1, HopCol::Time, "  "));
    EXPECT_EQ(hops.Text(1, HopCol::Time), "");
}

TEST_F(CellsTest, BlanksInAnEmptyCellAreNoEdit) {
    SaveAs("A");
    EXPECT_TRUE(Put(R().gridGrain, 1, GrainCol::Amount, "  "));
    EXPECT_FALSE(document->Changed());
    EXPECT_FALSE(document->History().CanUndo());
}

// 70% of 9 * 36.5 / 5 is 46 points; with an attenuation of 75%, the 1.046 in degrees Plato
// end at 2.85, or 1.011.
TEST_F(CellsTest, TheYeastsNameIsTrimmedBehindTheCut) {
    Put(R().gridGrain, 1, GrainCol::Name, "Pale Malt");
    Put(R().gridGrain, 1, GrainCol::Amount, "9");
    document->Lines().InsertRowForGrid(R().gridLog);
    Put(R().gridLog, 1, LogCol::Action, "Pitched Yeast");
    for (const char* notes : {"  Ale  -  top", "Ale", " Ale - "}) {
        Set(R().txtFG, "");
        Put(R().gridLog, 1, LogCol::Notes, notes);
        EXPECT_EQ(R().txtFG.Text(), "1.011") << notes;
    }
}

}  // namespace
}  // namespace tw::test
