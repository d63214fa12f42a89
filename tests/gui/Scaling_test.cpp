// Tests of the water treatment's button and the scaling dialogs as a brewer uses them.
#include <QtTest/QSignalSpy>

#include "GuiTest.h"
#include "document/ui/ScalingDialog.h"

namespace tw::test {
namespace {

class ScalingWindows : public GuiTest {
  protected:
    void SetUp() override {
        GuiTest::SetUp();
        NewRecipe();
        RecipeDocument& document = *shell.Documents().Active();
        RecipeRecord& r = document.Record();
        for (const auto& [box, text] : {std::pair(&r.txtTotalVol, "5 gal"), std::pair(&r.txtBoilVol, "6 gal"),
                                        std::pair(&r.txtExtract, "40%"), std::pair(&r.txtTemp, "68 F")}) {
            document.Fields().SetText(*box, text);
            document.Fields().CommitField(*box);
        }
        document.Cells().EditCell(r.gridGrain, 1, GrainCol::Amount, "10 lb");
        document.Cells().EditCell(r.gridGrain, 1, GrainCol::Ppg, "36");
        document.Cells().EditCell(r.gridHops, 1, HopCol::Amount, "20 IBU");
        document.Cells().EditCell(r.gridHops, 1, HopCol::Time, "60");
        document.Cells().EditCell(r.gridPriming, 1, PrimingCol::Fermentable, "100");
        shell.CurrentSettings().askBeforeNonUndoableChange = false;
    }
    RecipeRecord& R() { return shell.Documents().Active()->Record(); }
    // Shows the next dialog in its real window and calls work with it.
    void Work(std::function<void(ScalingDialog&)> work) {
        outside.dialogs.scripts.emplace_back([work = std::move(work)](DialogModel& model) {
            ScalingDialog dialog(dynamic_cast<ScalingModel&>(model), nullptr);
            dialog.show();
            QApplication::setActiveWindow(&dialog);
            QApplication::processEvents();
            work(dialog);
            QApplication::processEvents();
            EXPECT_EQ(dialog.isVisible(), model.IsOpen());
        });
    }
    template <class Control>
    static Control& In(ScalingDialog& dialog, const char* name) {
        auto* control = dialog.findChild<Control*>(QLatin1String(name));
        EXPECT_NE(control, nullptr) << name;
        return *control;
    }
    // Presses an access key and waits for the click, which the button delays.
    static void Mnemonic(QAbstractButton& button, Qt::Key key) {
        QSignalSpy clicked(&button, &QAbstractButton::clicked);
        QTest::keyClick(&button, key, Qt::AltModifier);
        EXPECT_TRUE(!clicked.isEmpty() || clicked.wait());
    }
};

TEST_F(ScalingWindows, ResizeIsWorkedByKeysAlone) {
    Work([](ScalingDialog& dialog) {
        EXPECT_EQ(In<QLabel>(dialog, "lblCurSize").text(), QStringLiteral("5 gal"));
        EXPECT_EQ(Focus(), "txtNewSize");
        Type("10 gal");
        auto& boil = In<QCheckBox>(dialog, "chkScaleBV");
        auto& bitterness = In<QCheckBox>(dialog, "chkPreserveIBU");
        auto& carbonation = In<QCheckBox>(dialog, "chkKeepCarbonation");
        EXPECT_TRUE(boil.isChecked() && bitterness.isChecked() && carbonation.isChecked());
        Mnemonic(boil, Qt::Key_B);
        Mnemonic(bitterness, Qt::Key_K);
        Mnemonic(carbonation, Qt::Key_R);
        EXPECT_FALSE(boil.isChecked() || bitterness.isChecked() || carbonation.isChecked());
        Mnemonic(boil, Qt::Key_B);
        Mnemonic(bitterness, Qt::Key_K);
        QTest::keyClick(&dialog, Qt::Key_N, Qt::AltModifier);
        EXPECT_EQ(Focus(), "txtNewSize");
        Key(Qt::Key_Return);
    });
    EXPECT_TRUE(window.RunCommand(CommandId::ToolsResizeRecipe));
    EXPECT_EQ(outside.dialogs.shown, Strings{"frmResizeRecipe"});
    EXPECT_EQ(Text("txtTotalVol"), "10 gal");
    EXPECT_EQ(Text("txtBoilVol"), "12 gal.");
    EXPECT_EQ(R().gridGrain.Text(1, GrainCol::Amount), "20 lbs.");
    // The hops of 40 IBUs are scaled to 20 IBUs.
    EXPECT_EQ(R().gridHops.Text(1, HopCol::Amount), "20 IBUs");
}

TEST_F(ScalingWindows, RememberTheirBoxesWhenAccepted) {
    const auto untick = [](ScalingDialog& dialog) {
        In<QCheckBox>(dialog, "chkPreserveIBU").setChecked(false);
        if (auto* carbonation = dialog.findChild<QCheckBox*>(QStringLiteral("chkKeepCarbonation")))
            carbonation->setChecked(false);
    };
    Work([&](ScalingDialog& dialog) {
        untick(dialog);
        Key(Qt::Key_Escape);
    });
    EXPECT_TRUE(window.RunCommand(CommandId::ToolsResizeRecipe));
    EXPECT_TRUE(shell.CurrentSettings().keepBitterness);
    Work([&](ScalingDialog& dialog) {
        EXPECT_TRUE(In<QCheckBox>(dialog, "chkPreserveIBU").isChecked());
        untick(dialog);
        Type("10 gal");
        Key(Qt::Key_Return);
    });
    EXPECT_TRUE(window.RunCommand(CommandId::ToolsResizeRecipe));
    const Settings& settings = shell.CurrentSettings();
    EXPECT_TRUE(settings.scaleBoilVol);
    EXPECT_FALSE(settings.keepBitterness);
    EXPECT_FALSE(settings.keepCarbonation);
    Work([](ScalingDialog& dialog) {
        EXPECT_FALSE(In<QCheckBox>(dialog, "chkPreserveIBU").isChecked());
        Key(Qt::Key_Escape);
    });
    EXPECT_TRUE(window.RunCommand(CommandId::ToolsChangeStrength));
}

TEST_F(ScalingWindows, OfferNoCarbonationThatARecipeLacks) {
    RecipeDocument& document = *shell.Documents().Active();
    document.Fields().SetText(R().txtTemp, "");
    document.Fields().CommitField(R().txtTemp);
    Work([](ScalingDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QCheckBox*>(QStringLiteral("chkKeepCarbonation")), nullptr);
        Key(Qt::Key_Escape);
    });
    EXPECT_TRUE(window.RunCommand(CommandId::ToolsResizeRecipe));
}

// The carbonation is chosen in the window itself, so that just the warning comes before a resize.
TEST_F(ScalingWindows, AResizeHasOneQuestion) {
    shell.CurrentSettings().askBeforeNonUndoableChange = true;
    Work([](ScalingDialog&) {
        Type("10 gal");
        Key(Qt::Key_Return);
    });
    outside.dialogs.scripts.emplace_back([](DialogModel& model) { model.Press("cmdYes"); });
    EXPECT_TRUE(window.RunCommand(CommandId::ToolsResizeRecipe));
    EXPECT_EQ(outside.dialogs.shown, (Strings{"frmResizeRecipe", "frmCannotUndo"}));
    EXPECT_EQ(outside.messages.TakeLog(), Strings{});
    EXPECT_EQ(Text("txtTotalVol"), "10 gal");
}

TEST_F(ScalingWindows, AreUndoneInOneStepIfTheSettingsSaySo) {
    shell.CurrentSettings().askBeforeNonUndoableChange = true;
    shell.CurrentSettings().undoScaling = true;
    shell.CurrentSettings().keepTypedUnits = true;
    Work([](ScalingDialog&) {
        Type("10 gal");
        Key(Qt::Key_Return);
    });
    EXPECT_TRUE(window.RunCommand(CommandId::ToolsResizeRecipe));
    EXPECT_EQ(outside.dialogs.shown, Strings{"frmResizeRecipe"});
    const auto grain = [&] { return R().gridGrain.Text(1, GrainCol::Amount); };
    EXPECT_EQ(grain(), "20 lb");
    EXPECT_EQ(Text("txtBoilVol"), "12 gal");
    EXPECT_EQ(shell.Bar().Item(CommandId::EditUndo).caption, "&Undo Resize Recipe");
    EXPECT_TRUE(window.RunCommand(CommandId::EditUndo));
    EXPECT_EQ(grain(), "10 lb");
    EXPECT_EQ(Text("txtTotalVol"), "5 gal");
    EXPECT_EQ(Text("txtBoilVol"), "6 gal");
    EXPECT_TRUE(window.RunCommand(CommandId::EditRedo));
    EXPECT_EQ(grain(), "20 lb");
}

TEST_F(ScalingWindows, TheToolbarOpensAllOfThem) {
    for (const char* key : {"Volume", "Strength", "Bitterness", "Carbonation"})
        EXPECT_TRUE(shell.PressButton(shell.Bar().FindButton(key)->id));
    EXPECT_EQ(outside.dialogs.shown,
              (Strings{"frmResizeRecipe", "frmChangeOG", "frmChangeIBU", "frmChangeCO2"}));
}

TEST_F(ScalingWindows, OpenWithWhatIsBeingTyped) {
    auto& box = Find<QLineEdit>("txtTotalVol");
    box.setFocus();
    box.selectAll();
    Type("8 gal");
    Work([](ScalingDialog& dialog) {
        EXPECT_EQ(In<QLabel>(dialog, "lblCurSize").text(), QStringLiteral("8 gal"));
        Key(Qt::Key_Escape);
    });
    EXPECT_TRUE(window.RunCommand(CommandId::ToolsResizeRecipe));
    EXPECT_EQ(outside.dialogs.shown, Strings{"frmResizeRecipe"});
}

TEST_F(ScalingWindows, DoNotOpenOverARefusedEntry) {
    auto& box = Find<QLineEdit>("txtTotalVol");
    box.setFocus();
    box.selectAll();
    Type("much");
    window.RunCommand(CommandId::ToolsChangeStrength);
    EXPECT_EQ(outside.messages.TakeLog(), Strings{"[Invalid Entry] Please enter a valid volume"});
    EXPECT_EQ(outside.dialogs.shown, Strings{});
}

TEST_F(ScalingWindows, EscapeAndCancelChangeNothing) {
    Work([](ScalingDialog&) {
        Type("1.060");
        Key(Qt::Key_Escape);
    });
    Work([](ScalingDialog& dialog) {
        Type("sweet");
        QTest::mouseClick(&In<QPushButton>(dialog, "CancelButton"), Qt::LeftButton);
    });
    EXPECT_TRUE(window.RunCommand(CommandId::ToolsChangeStrength));
    EXPECT_TRUE(window.RunCommand(CommandId::ToolsChangeStrength));
    EXPECT_EQ(outside.messages.TakeLog(), Strings{});
    EXPECT_EQ(Text("txtOG"), "1.029");
}

TEST_F(ScalingWindows, ABadEntryGetsTheFocusBackWithTheLastGoodTextSelected) {
    Work([&](ScalingDialog& dialog) {
        auto& box = In<QLineEdit>(dialog, "txtNewOG");
        Type("1.040");
        Key(Qt::Key_Tab);
        EXPECT_EQ(Focus(), "chkPreserveIBU");
        QTest::keyClick(&dialog, Qt::Key_N, Qt::AltModifier);
        box.selectAll();
        Type("0.9");
        Key(Qt::Key_Tab);
        QApplication::processEvents();
        EXPECT_EQ(outside.messages.TakeLog(),
                  Strings{"[Invalid Entry] Gravity cannot be less than 1.0 (0 deg. Plato)"});
        EXPECT_EQ(Focus(), "txtNewOG");
        EXPECT_EQ(box.selectedText(), QStringLiteral("1.040"));
        Type("sweet");
        Key(Qt::Key_Return);
        EXPECT_EQ(outside.messages.TakeLog(), Strings{"[Invalid Entry] Please enter a valid gravity"});
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(box.selectedText(), QStringLiteral("1.040"));
        Key(Qt::Key_Return);
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_TRUE(window.RunCommand(CommandId::ToolsChangeStrength));
    // 10 lb * 40 / 28.8
    EXPECT_EQ(R().gridGrain.Text(1, GrainCol::Amount), "13.89 lbs.");
}

TEST_F(ScalingWindows, AnEmptyBoxJustGetsTheFocus) {
    Work([](ScalingDialog& dialog) {
        Key(Qt::Key_Tab);
        EXPECT_EQ(Focus(), "OKButton");
        Key(Qt::Key_Space);
        EXPECT_EQ(Focus(), "txtNewIBU");
        EXPECT_TRUE(dialog.isVisible());
    });
    EXPECT_TRUE(window.RunCommand(CommandId::ToolsChangeBitterness));
    EXPECT_EQ(outside.messages.TakeLog(), Strings{});
    EXPECT_EQ(R().gridHops.Text(1, HopCol::Amount), "20 IBU");
}

TEST_F(ScalingWindows, TheGridsShowWhatWasScaled) {
    window.ActiveWindow()->ShowTab(Tab::Carbonation);
    Work([](ScalingDialog&) {
        Type("2.5 vols");
        Key(Qt::Key_Return);
    });
    EXPECT_TRUE(window.RunCommand(CommandId::ToolsChangeCO2));
    auto& priming = Find<GridView>("gridPriming");
    // (2.5 - 0.8615) / 0.27027 * 0.133 * 5 = 4.03
    EXPECT_EQ(Shown(priming, 1, PrimingCol::Amount), "4.03 oz.");
    EXPECT_EQ(Text("txtCO2"), "2.50 volumes");
}

TEST_F(ScalingWindows, AQuestionStandsBeforeIt) {
    shell.CurrentSettings().askBeforeNonUndoableChange = true;
    Work([](ScalingDialog&) {
        Type("40");
        Key(Qt::Key_Return);
    });
    outside.dialogs.scripts.emplace_back([](DialogModel& model) { model.Press("cmdNo"); });
    EXPECT_TRUE(window.RunCommand(CommandId::ToolsChangeBitterness));
    EXPECT_EQ(outside.dialogs.shown, (Strings{"frmChangeIBU", "frmCannotUndo"}));
    EXPECT_EQ(R().gridHops.Text(1, HopCol::Amount), "20 IBU");
}

TEST_F(ScalingWindows, TheTreatmentIsAButtonAndOneUndo) {
    shell.DB()->Execute("INSERT INTO SALTS (NAME, CA, SO4) VALUES ('Gypsum', 60, 150)");
    GridView& water = GridAt(Tab::Water, "gridWater", WaterRow::Target, WaterCol::FirstIon);
    Type("60");
    Key(Qt::Key_Return);
    water.setCurrentIndex(water.Model().index(WaterRow::Target - 1, WaterCol::FirstIon + 5));
    // The entry that is still being typed counts as well.
    Type("150");
    auto& button = Find<QPushButton>("cmdCalcTreatment");
    EXPECT_TRUE(button.isEnabled());
    QTest::mouseClick(&button, Qt::LeftButton);
    auto& treatment = Find<GridView>("gridTreatment");
    ASSERT_EQ(treatment.Model().rowCount(), 1);
    EXPECT_EQ(Shown(treatment, 1, TreatmentCol::Name), "Gypsum");
    EXPECT_EQ(Shown(treatment, 1, TreatmentCol::Amount), "5 grams");
    EXPECT_EQ(Shown(treatment, 1, TreatmentCol::FirstIon), "60");
    EXPECT_TRUE(window.RunCommand(CommandId::EditUndo));
    EXPECT_EQ(treatment.Model().rowCount(), 0);
    EXPECT_TRUE(window.RunCommand(CommandId::EditRedo));
    EXPECT_EQ(Shown(treatment, 1, TreatmentCol::Amount), "5 grams");
}

TEST_F(ScalingWindows, TheTreatmentSaysWhatItReaches) {
    shell.DB()->Execute("INSERT INTO SALTS (NAME, CA, SO4) VALUES ('Gypsum', 60, 150)");
    GridAt(Tab::Water, "gridWater", WaterRow::Target, WaterCol::FirstIon);
    RecipeDocument& document = *shell.Documents().Active();
    document.Cells().EditCell(R().gridWater, WaterRow::Target, WaterCol::FirstIon, "41");
    document.Cells().EditCell(R().gridWater, WaterRow::Target, WaterCol::FirstIon + 5, "111");
    QTest::mouseClick(&Find<QPushButton>("cmdCalcTreatment"), Qt::LeftButton);
    // 41 / 60 * 5 = 3.417 g, which bring 0.6833 * 150 = 102.5 ppm of sulfate, 7.6 % less than 111.
    EXPECT_EQ(window.statusBar()->currentMessage(),
              QStringLiteral("Salts for 5 gal. All other ions within 3 %, sulfate 8 % short"));
    auto& treatment = Find<GridView>("gridTreatment");
    const QModelIndex amount = treatment.Model().index(0, TreatmentCol::Amount);
    EXPECT_EQ(Shown(treatment, 1, TreatmentCol::Amount), "3.4 grams");
    EXPECT_EQ(amount.data(Qt::EditRole).toString(), QStringLiteral("3.417 grams"));
    EXPECT_EQ(amount.data(Qt::ToolTipRole).toString(), QStringLiteral("3.417 grams"));
    EXPECT_EQ(R().gridTreatment.Text(1, TreatmentCol::Amount), "3.417 grams");
    // 3.417 * 150 / 5 = 102.51
    EXPECT_EQ(Shown(treatment, 1, TreatmentCol::FirstIon + 5), "103");
    EXPECT_EQ(R().gridTreatment.Text(1, TreatmentCol::FirstIon + 5), "102.51");
}

TEST_F(ScalingWindows, TheTreatmentIsOffWithoutAVolume) {
    window.ActiveWindow()->ShowTab(Tab::Water);
    RecipeDocument& document = *shell.Documents().Active();
    document.Fields().SetText(R().txtTotalVol, "");
    document.Fields().CommitField(R().txtTotalVol);
    EXPECT_FALSE(Find<QPushButton>("cmdCalcTreatment").isEnabled());
}

TEST_F(ScalingWindows, AFaultOfTheTreatmentIsShown) {
    shell.DB()->Execute("INSERT INTO SALTS (NAME, CA) VALUES ('Weak', 1e-300)");
    RecipeDocument& document = *shell.Documents().Active();
    document.Cells().EditCell(R().gridWater, WaterRow::Target, WaterCol::FirstIon, "1");
    document.Fields().SetText(R().txtTotalVol, "1" + std::string(20, '0'));
    document.Fields().CommitField(R().txtTotalVol);
    window.ActiveWindow()->ShowTab(Tab::Water);
    Find<QPushButton>("cmdCalcTreatment").click();
    EXPECT_EQ(outside.messages.TakeLog(), Strings{"[Error] Overflow (6)"});
    EXPECT_EQ(R().gridTreatment.DataRows(), 0);
}

}  // namespace
}  // namespace tw::test
