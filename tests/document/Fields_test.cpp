#include <gmock/gmock.h>

#include "DocumentTest.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FieldsTest : public DocumentTest {};

TEST_F(FieldsTest, ANewDocumentTakesTheDefaultsAndIsNotChanged) {
    host.defaults = {"40%", "1.0", "Soft", "6 gal", "5 gal", 1, 1, 2, true};
    New();
    EXPECT_EQ(R().txtExtract.Text(), "40%");
    EXPECT_EQ(R().txtExtract.Value(), 40);
    EXPECT_EQ(R().txtHopExtraction.Text(), "1.0");
    EXPECT_EQ(R().gridWater.Text(WaterRow::Source, WaterCol::Profile), "Soft");
    EXPECT_EQ(R().gridWater.Text(WaterRow::Source, 4), "5.5");
    EXPECT_EQ(R().gridWater.Text(WaterRow::Needed, 4), "-5.5");
    EXPECT_EQ(R().txtBoilVol.Text(), "6 gal");
    EXPECT_EQ(R().txtTotalVol.Value(), 5);
    EXPECT_EQ(R().grpIBUMethod.Value(), "optRager");
    EXPECT_EQ(R().grpPkgMethod.Value(), "optKeg");
    EXPECT_EQ(R().gridHops.Text(1, HopCol::Form), "Leaf");
    EXPECT_TRUE(R().gridHops.Checked(1, HopCol::Sock));
    EXPECT_FALSE(document->Changed());
    EXPECT_EQ(document->FolderID(), -1);
    EXPECT_EQ(document->StyleID(), 0);
    EXPECT_TRUE(R().cmdCalcTreatment.Enabled());
    for (const Grid* grid : {&R().gridGrain, &R().gridExtract, &R().gridHops, &R().gridPriming})
        EXPECT_EQ(grid->DataRows(), 1) << grid->Name();
    for (const Grid* grid : {&R().gridTreatment, &R().gridAdjuncts, &R().gridLog})
        EXPECT_EQ(grid->DataRows(), 0) << grid->Name();
}

TEST_F(FieldsTest, EmptyDefaultsLeaveTheFieldsEmpty) {
    New();
    for (const TextBox* box : R().TextBoxes()) EXPECT_EQ(box->Text(), "") << box->Name();
    EXPECT_EQ(R().txtHopExtraction.Value(), 1);
}

TEST_F(FieldsTest, ADefaultThatCannotBeReadLeavesItsFieldEmpty) {
    host.defaults = {"much", "1/0", "", "1/0", "-5", 7, -1, 99, false};
    New();
    for (const TextBox* box : R().TextBoxes()) EXPECT_EQ(box->Text(), "") << box->Name();
    EXPECT_EQ(R().gridHops.Text(1, HopCol::Form), "Leaf");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(FieldsTest, AnUnchangedTextIsNoCommit) {
    New();
    Set(R().txtTotalVol, "5");
    EXPECT_TRUE(document->Storage().SaveUnder("A", 0, Asking::Quietly));
    host.log.clear();
    EXPECT_TRUE(Set(R().txtTotalVol, "5"));
    EXPECT_THAT(host.log, IsEmpty());
    EXPECT_FALSE(document->Changed());
}

TEST_F(FieldsTest, TellsWhatIsWrongToTheLetter) {
    New();
    RecipeRecord& r = R();
    struct Case {
        TextBox& box;
        const char* text;
        const char* message;
    };
    const Case cases[] = {
        {r.txtBoilVol, "five", "Please enter a valid volume"},
        {r.txtTotalVol, "0", "Please enter a positive volume"},
        {r.txtDilutions, "-1 gal", "Please enter a positive volume"},
        {r.txtFinalVol, "5 lb", "Please enter a valid volume"},
        {r.txtExtract, "1/2", "Please enter a valid percentage"},
        {r.txtExtract, "100.1", "Please enter a percentage (0 to 100)"},
        {r.txtFG, "thin", "Please enter a valid gravity"},
        {r.txtFG, "0", "Please enter a positive gravity"},
        {r.txtTemp, "cold", "Please enter a valid temperature"},
        {r.txtTemp, "101 C", "Please enter a reasonable temperature"},
        {r.txtHopExtraction, "x", "Please enter a valid decimal number"},
        {r.txtHopExtraction, "1 .", "Please enter a valid decimal number"},
        {r.txtHopExtraction, "-1", "Please enter a positive decimal number"},
    };
    for (const Case& c : cases) {
        EXPECT_FALSE(Set(c.box, c.text)) << c.text;
        EXPECT_THAT(Boxes(), ElementsAre("[Invalid Entry] " + std::string(c.message)));
        // The text stays so that the brewer can correct it; nothing else has changed.
        EXPECT_EQ(c.box.Text(), c.text);
        EXPECT_EQ(c.box.Committed(), "");
        document->Fields().RestoreField(c.box);
        EXPECT_EQ(c.box.Text(), "");
        EXPECT_FALSE(Set(c.box, c.text, Asking::Quietly));
        EXPECT_THAT(Boxes(), IsEmpty());
        document->Fields().RestoreField(c.box);
    }
    EXPECT_FALSE(document->Changed());
    EXPECT_EQ(r.txtHopExtraction.Value(), 1);
}

TEST_F(FieldsTest, ATotalVolumeRunsItsChainInOrder) {
    New();
    Set(R().txtExtract, "50");
    Set(R().txtBoilVol, "10");
    Put(R().gridGrain, 1, GrainCol::Amount, "10");
    Put(R().gridGrain, 1, GrainCol::Ppg, "36");
    Put(R().gridGrain, 1, GrainCol::Color, "2");
    Put(R().gridHops, 1, HopCol::Amount, "20 IBU");
    Put(R().gridPriming, 1, PrimingCol::Fermentable, "100");
    Put(R().gridPriming, 1, PrimingCol::Amount, "4");
    Set(R().txtFG, "1.010");
    ChangeRecorder recorder(host.log);
    R().SetObserver(&recorder);
    host.log.clear();
    ASSERT_TRUE(Set(R().txtTotalVol, "5"));
    const Log& log = host.log;
    const auto at = [&](std::string_view event) {
        const auto found =
            std::find_if(log.begin(), log.end(), [&](const std::string& e) { return e.starts_with(event); });
        EXPECT_NE(found, log.end()) << event;
        return found - log.begin();
    };
    // 10 * 36 * 0.5 / 5 = 36 points, 10 * 2 / 5 = 4 HCU, BG 1 + 0.036 * 5 / 10
    const Log order{"gridGrain 1,3=36",
                    "gridGrain 2,3=36",
                    "gridGrain 1,5=4",
                    "gridGrain 2,5=4",
                    "txtOG=1.036",
                    "EnableChangeStrength on",
                    "txtBG=1.018",
                    "txtABV=",
                    "gridHops 1,7=20",
                    "gridHops 2,7=20",
                    "txtIBU=20",
                    "EnableChangeBitterness on",
                    "txtColor=4 SRM (4 HCU)",
                    "swatch",
                    "gridWater 5,2=0",
                    "gridPriming 1,3=",
                    "EnableChangeCarbonation off",
                    "EnableResizeRecipe on",
                    "cmdCalcTreatment on",
                    "EnableSave on"};
    for (std::size_t i = 0; i + 1 < order.size(); ++i)
        EXPECT_LT(at(order[i]), at(order[i + 1])) << order[i + 1];
    R().SetObserver(nullptr);
}

TEST_F(FieldsTest, ATotalVolumeLeavesPrimingAloneWhileThereIsAFinalOne) {
    New();
    Set(R().txtFinalVol, "10");
    Put(R().gridPriming, 1, PrimingCol::Fermentable, "100");
    Put(R().gridPriming, 1, PrimingCol::Amount, "4");
    const std::string volumes = R().gridPriming.Text(1, PrimingCol::Volumes);
    ASSERT_NE(volumes, "");
    Set(R().txtTotalVol, "5");
    EXPECT_EQ(R().gridPriming.Text(1, PrimingCol::Volumes), volumes);
    Set(R().txtFinalVol, "");
    // 4 * 0.27027 / (5 * 0.133)
    EXPECT_NEAR(R().gridPriming.Number(1, PrimingCol::Volumes), 1.6256842, 1e-7);
}

TEST_F(FieldsTest, AnEmptyMultiplierCountsAsOne) {
    New();
    Set(R().txtHopExtraction, "2");
    EXPECT_EQ(R().txtHopExtraction.Value(), 2);
    EXPECT_TRUE(Set(R().txtHopExtraction, ""));
    EXPECT_EQ(R().txtHopExtraction.Value(), 1);
    EXPECT_EQ(R().txtHopExtraction.Text(), "");
}

TEST_F(FieldsTest, DilutionsChangeNothingButTheDocument) {
    New();
    ChangeRecorder recorder(host.log);
    R().SetObserver(&recorder);
    ASSERT_TRUE(Set(R().txtDilutions, "1"));
    EXPECT_THAT(host.log, ElementsAre("EnableUndo on", "EnableRedo off", "txtDilutions=1", "EnableSave on",
                                      "DocumentRenamed Untitled 3"));
    EXPECT_TRUE(document->Changed());
    R().SetObserver(nullptr);
}

TEST_F(FieldsTest, TypingAloneCommitsNothingInAValidatedBox) {
    New();
    document->Fields().SetText(R().txtTotalVol, "5");
    EXPECT_FALSE(document->Changed());
    EXPECT_EQ(R().txtTotalVol.Value(), 0);
    document->Fields().RestoreField(R().txtTotalVol);
    EXPECT_EQ(R().txtTotalVol.Text(), "");
}

TEST_F(FieldsTest, FreeTextCountsAtOnce) {
    for (TextBox RecipeRecord::*box :
         {&RecipeRecord::txtName, &RecipeRecord::txtNotes, &RecipeRecord::txtNumBatches}) {
        New();
        document->Fields().SetText(R().*box, "x");
        EXPECT_TRUE(document->Changed());
        EXPECT_TRUE(host.IsOn("EnableSave"));
    }
}

TEST_F(FieldsTest, TheNameIsTheCaption) {
    New();
    EXPECT_EQ(document->Caption(), "Untitled 3");
    document->Fields().SetText(R().txtName, "  Old Ale ");
    EXPECT_EQ(document->Caption(), "Old Ale");
    EXPECT_THAT(host.log, testing::Contains("DocumentRenamed Old Ale"));
    document->Fields().SetText(R().txtName, "  ");
    EXPECT_EQ(document->Caption(), "Untitled 3");
    RecipeDocument plain(host, platform.platform, *database, colors, 0);
    EXPECT_EQ(plain.Caption(), "Untitled");
}

TEST_F(FieldsTest, ComputedBoxesTakeNoText) {
    New();
    for (TextBox* box : {&R().txtOG, &R().txtBG, &R().txtABV, &R().txtColor, &R().txtIBU, &R().txtCO2}) {
        document->Fields().SetText(*box, "9");
        EXPECT_TRUE(document->Fields().CommitField(*box));
        EXPECT_EQ(box->Text(), "");
    }
    EXPECT_FALSE(document->Changed());
}

TEST_F(FieldsTest, AnInactiveDocumentSteersNoCommandButSaveAll) {
    New();
    host.active = nullptr;
    Set(R().txtTotalVol, "5");
    EXPECT_THAT(host.log, ElementsAre("CheckEnableSaveAll", "DocumentRenamed Untitled 3"));
}

TEST_F(FieldsTest, ATemperatureThatTheKegCannotHaveIsRefused) {
    New();
    Set(R().txtTemp, "38");
    Put(R().gridPressure, 1, 0, "50 psi");
    const Log before = Shown();
    EXPECT_FALSE(Set(R().txtTemp, "0"));
    EXPECT_THAT(Boxes(),
                ElementsAre("[Error calculating carbonation] Please enter a more reasonable temperature."));
    EXPECT_EQ(R().txtTemp.Value(), 38);
    EXPECT_EQ(R().txtTemp.Committed(), "38");
    EXPECT_EQ(R().txtTemp.Text(), "0");
    document->Fields().RestoreField(R().txtTemp);
    EXPECT_EQ(Shown(), before);
    EXPECT_FALSE(Set(R().txtTemp, "0", Asking::Quietly));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(FieldsTest, AnArithmeticFaultRaisesAndLeavesEverythingAsItWas) {
    host.defaults = {"70", "1", "Soft", "6", "5", 0, 0, 0, true};
    New();
    Put(R().gridGrain, 1, GrainCol::Name, "Pale Malt");
    Put(R().gridGrain, 1, GrainCol::Amount, "9");
    Put(R().gridHops, 1, HopCol::Variety, "Saaz");
    Put(R().gridHops, 1, HopCol::Amount, "1");
    Put(R().gridHops, 1, HopCol::Time, "60");
    Put(R().gridPriming, 1, PrimingCol::Sugar, "Honey");
    Put(R().gridPriming, 1, PrimingCol::Amount, "4");
    Set(R().txtTemp, "68");
    Set(R().txtFG, "1.010");
    document->Lines().InsertRowForGrid(R().gridTreatment);
    Put(R().gridTreatment, 1, 0, "Gypsum");
    Put(R().gridTreatment, 1, 1, "5");
    SaveAs("Sound");
    const Log before = Shown();
    const auto raises = [&](TextBox& box, const std::string& text, int number) {
        try {
            Set(box, text);
            ADD_FAILURE() << box.Name() << " took " << text;
        } catch (const Error& error) {
            EXPECT_EQ(error.Number(), number) << box.Name();
        }
        EXPECT_EQ(Shown(), before) << box.Name();
        EXPECT_FALSE(document->Changed()) << box.Name();
    };
    for (TextBox* box :
         {&R().txtBoilVol, &R().txtTotalVol, &R().txtDilutions, &R().txtFinalVol, &R().txtFG, &R().txtTemp})
        raises(*box, "1/0", kDivisionByZeroNumber);
    const std::string tiny = "0." + std::string(318, '0') + "1";
    for (TextBox* box : {&R().txtBoilVol, &R().txtTotalVol, &R().txtFinalVol})
        raises(*box, tiny, kOverflowNumber);
    // Smaller than the smallest double: the text is read as zero, which a volume refuses with a message.
    EXPECT_FALSE(Set(R().txtTotalVol, "0." + std::string(330, '0') + "1"));
    document->Fields().RestoreField(R().txtTotalVol);
    raises(R().txtFG, std::string(150, '9'), kOverflowNumber);
    raises(R().txtHopExtraction, std::string(308, '9'), kOverflowNumber);
    raises(R().txtTotalVol, std::string(400, '9'), kOverflowNumber);
}

TEST_F(FieldsTest, OptionButtonsRecomputeAndCount) {
    host.defaults = {"70", "1", "", "6", "5", 0, 0, 0, false};
    New();
    Put(R().gridGrain, 1, GrainCol::Name, "Pale Malt");
    Put(R().gridGrain, 1, GrainCol::Amount, "9");
    Put(R().gridHops, 1, HopCol::Amount, "20 AAU");
    Put(R().gridHops, 1, HopCol::Time, "89.5");
    SaveAs("A");
    ASSERT_NE(R().txtIBU.Text(), "0");
    EXPECT_TRUE(document->Options().Choose("optTinseth"));
    EXPECT_FALSE(document->Changed());
    EXPECT_TRUE(document->Options().Choose("optRager"));
    EXPECT_EQ(R().txtIBU.Text(), "0");  // the gap in the table
    EXPECT_TRUE(document->Changed());
    EXPECT_TRUE(document->Options().Choose("optGaretz"));
    EXPECT_NE(R().txtIBU.Text(), "0");
    EXPECT_FALSE(document->Options().Choose("optNoonan"));
}

TEST_F(FieldsTest, PackagingChoosesTheGridOfTheCarbonation) {
    New();
    Set(R().txtTotalVol, "5");
    Set(R().txtTemp, "38");
    Put(R().gridPriming, 1, PrimingCol::Sugar, "Corn Sugar");
    Put(R().gridPriming, 1, PrimingCol::Amount, "4");
    // 1.5188982 + 1.6256842
    EXPECT_EQ(R().txtCO2.Text(), "3.14 volumes");
    EXPECT_TRUE(document->Options().Choose("optKeg"));
    EXPECT_EQ(R().txtCO2.Text(), "");
    EXPECT_TRUE(host.IsOn("EnableChangeCarbonation"));
    Put(R().gridPressure, 1, 0, "11.24617283 psi");
    EXPECT_EQ(R().txtCO2.Text(), "2.50 volumes");
    EXPECT_TRUE(document->Options().Choose("optBottle"));
    EXPECT_EQ(R().txtCO2.Text(), "3.14 volumes");
}

TEST_F(FieldsTest, ActivationSetsTheCommandsInOrder) {
    New();
    document->Focus().Activate();
    EXPECT_THAT(host.log,
                ElementsAre("EnableSave off", "EnableResizeRecipe off", "EnableChangeStrength off",
                            "EnableChangeBitterness off", "EnableChangeCarbonation off", "EnableUndo off",
                            "EnableRedo off", testing::StartsWith("EnableCopy "),
                            testing::StartsWith("EnableCutPaste "), "EnableInsert off", "EnableDelete off"));
}

TEST_F(FieldsTest, BlanksAloneAreTheEmptyTextInAQuantity) {
    New();
    Set(R().txtTotalVol, "5 gal");
    // 1 lb * 40 / 5 gal = 8 points
    Put(R().gridExtract, 1, GrainCol::Amount, "1");
    Put(R().gridExtract, 1, GrainCol::Ppg, "40");
    ASSERT_EQ(R().txtOG.Text(), "1.008");
    EXPECT_TRUE(Set(R().txtTotalVol, "   "));
    EXPECT_EQ(R().txtTotalVol.Text() + R().txtTotalVol.Committed(), "");
    EXPECT_EQ(R().txtOG.Text(), "");
    EXPECT_FALSE(host.IsOn("EnableResizeRecipe"));
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().txtTotalVol.Text(), "5 gal");
    EXPECT_TRUE(Set(R().txtHopExtraction, " "));
    EXPECT_EQ(R().txtHopExtraction.Text(), "");
    EXPECT_EQ(R().txtHopExtraction.Value(), 1);
}

TEST_F(FieldsTest, BlanksInAnEmptyFieldAreNoEdit) {
    New();
    SaveAs("A");
    EXPECT_TRUE(Set(R().txtBoilVol, "  "));
    EXPECT_EQ(R().txtBoilVol.Text(), "");
    EXPECT_FALSE(document->Changed());
    EXPECT_FALSE(document->History().CanUndo());
    // Free text keeps its blanks.
    EXPECT_TRUE(Set(R().txtNumBatches, "  "));
    EXPECT_EQ(R().txtNumBatches.Text(), "  ");
}

}  // namespace
}  // namespace tw::test
