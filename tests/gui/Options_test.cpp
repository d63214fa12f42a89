// Tests of the options dialog as a brewer uses it, and of the options that take effect at once.
#include <QtTest/QSignalSpy>

#include "GuiTest.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/CellColors.h"
#include "platform/qt/ColorButton.h"
#include "shell/ui/Icons.h"
#include "shell/ui/OptionsDialog.h"
#include "shell/ui/UpDown.h"

namespace tw::test {
namespace {

class ChosenColors : public ColorChooser {
  public:
    std::optional<QColor> Choose(const QColor& current, const QString& title, QWidget*) override {
        asked.push_back(FromQt(title + QLatin1Char(' ') + current.name()));
        return answer;
    }
    std::optional<QColor> answer;
    Strings asked;
};

class OptionsWindow : public GuiTest {
  protected:
    void SetUp() override {
        GuiTest::SetUp();
        Open();
    }
    void Open() {
        dialog.reset();
        model = std::make_unique<OptionsModel>(shell.SettingsNow(), *shell.DB(), outside.messages);
        dialog = std::make_unique<OptionsDialog>(*model, colors, nullptr);
        dialog->show();
        QApplication::setActiveWindow(dialog.get());
        QApplication::processEvents();
    }
    template <class Control>
    Control& In(const char* name) {
        auto* control = dialog->findChild<Control*>(QLatin1String(name));
        EXPECT_NE(control, nullptr) << name;
        return *control;
    }
    QTabWidget& Tabs() { return *dialog->findChild<QTabWidget*>(); }
    std::string Field(const char* name) { return FromQt(In<QLineEdit>(name).text()); }
    static void Mnemonic(QWidget& widget, Qt::Key key) { QTest::keyClick(&widget, key, Qt::AltModifier); }
    // Presses an access key and waits for the click, which the button delays.
    void MnemonicOf(QAbstractButton& button, Qt::Key key) {
        QSignalSpy clicked(&button, &QAbstractButton::clicked);
        Mnemonic(*dialog, key);
        EXPECT_TRUE(!clicked.isEmpty() || clicked.wait());
    }
    static void Retype(const char* text) {
        Key(Qt::Key_A, Qt::ControlModifier);
        Type(text);
    }

    ChosenColors colors;
    std::unique_ptr<OptionsModel> model;
    std::unique_ptr<OptionsDialog> dialog;
};

TEST_F(OptionsWindow, IsWorkedByKeysAlone) {
    EXPECT_EQ(Focus(), "cmbHopForm");
    Key(Qt::Key_Down);
    Mnemonic(*dialog, Qt::Key_T);
    EXPECT_EQ(Focus(), "txtTotalVol");
    Type("5 gal");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "cmbWaterProfile");
    Key(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(Tabs().currentIndex(), 1);
    MnemonicOf(In<QCheckBox>("chkAutoSave"), Qt::Key_A);
    EXPECT_TRUE(In<QCheckBox>("chkAutoSave").isChecked());
    Mnemonic(*dialog, Qt::Key_V);
    EXPECT_EQ(Focus(), "txtSaveInc");
    Retype("12");
    MnemonicOf(In<QPushButton>("cmdOK"), Qt::Key_O);
    EXPECT_FALSE(dialog->isVisible());
    const Settings& s = shell.CurrentSettings();
    EXPECT_EQ(s.hopForm, 1);
    EXPECT_EQ(s.totalVol, "5 gal");
    EXPECT_TRUE(s.doAutoSave);
    EXPECT_EQ(s.doAutoSaveEvery, 12);
    EXPECT_EQ(outside.messages.log, Strings{});
}

TEST_F(OptionsWindow, EnterInAFieldChecksItAndKeepsTheDialog) {
    In<QLineEdit>("txtBoilVol").setFocus();
    Type("much");
    Key(Qt::Key_Return);
    EXPECT_EQ(outside.messages.TakeLog(), Strings{"[Invalid Entry] Please enter a valid volume"});
    EXPECT_EQ(Field("txtBoilVol"), "");
    EXPECT_EQ(Focus(), "txtBoilVol");
    Type("6 gal");
    Key(Qt::Key_Return);
    EXPECT_EQ(outside.messages.log, Strings{});
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(OptionsWindow, ARefusedFieldTakesTheFocusBackAndItsTab) {
    In<QLineEdit>("txtExtract").setFocus();
    Retype("much");
    Key(Qt::Key_Tab);
    QApplication::processEvents();
    EXPECT_EQ(outside.messages.TakeLog(), Strings{"[Invalid Entry] Please enter a valid percentage"});
    EXPECT_EQ(Focus(), "txtExtract");
    EXPECT_EQ(In<QLineEdit>("txtExtract").selectedText(), QStringLiteral("40%"));
    Retype("much");
    Tabs().setCurrentIndex(2);
    QApplication::processEvents();
    EXPECT_EQ(outside.messages.TakeLog().size(), 1U);
    EXPECT_EQ(Tabs().currentIndex(), 0);
    EXPECT_EQ(Focus(), "txtExtract");
}

TEST_F(OptionsWindow, OkOverABadEntryStaysOpenWithNothingApplied) {
    In<QComboBox>("cmbHopForm").setFocus();
    Key(Qt::Key_Down);
    In<QLineEdit>("txtBoilVol").setFocus();
    Type("much");
    QTest::mouseClick(&In<QPushButton>("cmdOK"), Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_EQ(outside.messages.log, Strings{"[Invalid Entry] Please enter a valid volume"});
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(Focus(), "txtBoilVol");
    EXPECT_EQ(shell.CurrentSettings().hopForm, 0);
    QTest::mouseClick(&In<QPushButton>("cmdOK"), Qt::LeftButton);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(shell.CurrentSettings().hopForm, 1);
}

TEST_F(OptionsWindow, EscapeAndCancelLeaveWithoutACheck) {
    for (const bool byKey : {true, false}) {
        Open();
        In<QLineEdit>("txtBoilVol").setFocus();
        Type("much");
        if (byKey)
            Key(Qt::Key_Escape);
        else
            QTest::mouseClick(&In<QPushButton>("cmdCancel"), Qt::LeftButton);
        QApplication::processEvents();
        EXPECT_FALSE(dialog->isVisible());
        EXPECT_FALSE(model->IsOpen());
        EXPECT_EQ(shell.CurrentSettings().boilVol, "");
        EXPECT_EQ(outside.messages.log, Strings{});
    }
}

TEST_F(OptionsWindow, ArrowsStepTheMinutesAndBeepAtTheLimit) {
    Tabs().setCurrentIndex(1);
    QWidget& arrows = In<UpDown>("UpDown1");
    EXPECT_FALSE(arrows.isEnabled());
    EXPECT_FALSE(In<QLineEdit>("txtSaveInc").isEnabled());
    In<QCheckBox>("chkAutoSave").click();
    EXPECT_TRUE(arrows.isEnabled());
    In<QLineEdit>("txtSaveInc").setFocus();
    Retype("sixty");
    EXPECT_FALSE(arrows.isEnabled());
    Retype("59");
    EXPECT_TRUE(arrows.isEnabled());
    auto* up = arrows.findChildren<QToolButton*>().front();
    QTest::mouseClick(up, Qt::LeftButton);
    EXPECT_EQ(Field("txtSaveInc"), "60");
    EXPECT_EQ(outside.messages.log, Strings{});
    QTest::mouseClick(up, Qt::LeftButton);
    EXPECT_EQ(Field("txtSaveInc"), "60");
    EXPECT_EQ(outside.messages.TakeLog(), Strings{"beep"});
    Key(Qt::Key_Down);
    EXPECT_EQ(Field("txtSaveInc"), "59");
}

TEST_F(OptionsWindow, AColorShowsAtOnceAndActsWithOk) {
    Tabs().setCurrentIndex(2);
    auto& picture = In<ColorButton>("picSumBackground");
    colors.answer = QColor(1, 2, 3);
    picture.click();
    // No colour is chosen yet, so the button shows the colour of the grids.
    const QColor tint = TotalColors({}, dialog->palette()).ground;
    EXPECT_EQ(colors.asked, Strings{"Total Background " + FromQt(tint.name())});
    EXPECT_EQ(picture.Shown(), QColor(1, 2, 3));
    EXPECT_EQ(In<QLabel>("lblSum").palette().color(QPalette::Window), QColor(1, 2, 3));
    EXPECT_EQ(shell.CurrentSettings().gridTotalBg, std::nullopt);
    // Cancelling changes nothing.
    colors.answer.reset();
    picture.click();
    EXPECT_EQ(picture.Shown(), QColor(1, 2, 3));
    colors.answer = QColor(Qt::black);
    In<ColorButton>("picSumForeground").click();
    QTest::mouseClick(&In<QPushButton>("cmdOK"), Qt::LeftButton);
    // 3 * 65536 + 2 * 256 + 1
    EXPECT_EQ(shell.CurrentSettings().gridTotalBg, 197121);
    EXPECT_EQ(shell.CurrentSettings().gridTotalFg, 1);
}

TEST_F(OptionsWindow, OpenGridsTakeTheColorsAtOnce) {
    dialog->close();
    NewRecipe();
    window.ActiveWindow()->ShowTab(Tab::Water);
    auto& view = Find<GridView>("gridWater");
    const auto ground = [&] {
        return view.Model()
            .index(WaterRow::Needed - 1, WaterCol::FirstIon)
            .data(Qt::BackgroundRole)
            .value<QBrush>();
    };
    EXPECT_EQ(ground().color(), CalculatedColors({}, view.palette()).ground);
    QSignalSpy changed(&view.Model(), &QAbstractItemModel::dataChanged);
    Open();
    Tabs().setCurrentIndex(2);
    colors.answer = QColor(10, 20, 30);
    In<ColorButton>("picCalcBackground").click();
    QTest::mouseClick(&In<QPushButton>("cmdOK"), Qt::LeftButton);
    EXPECT_FALSE(changed.isEmpty());
    EXPECT_EQ(ground().color(), QColor(10, 20, 30));
}

TEST_F(OptionsWindow, TheMenuKeyOffersResetInTheMiddleOfTheGroup) {
    const auto menuKey = [&] {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1), dialog->mapToGlobal(QPoint(1, 1)));
        QApplication::sendEvent(dialog.get(), &event);
    };
    auto* reset = dialog->findChild<QAction*>(QStringLiteral("mnuResetColors"));
    ASSERT_NE(reset, nullptr);
    EXPECT_EQ(reset->text(), QStringLiteral("&Reset"));
    auto* menu = dialog->findChild<QMenu*>();
    menuKey();
    EXPECT_FALSE(menu->isVisible());
    Tabs().setCurrentIndex(2);
    colors.answer = QColor(10, 20, 30);
    In<ColorButton>("picCalcBackground").click();
    menuKey();
    ASSERT_TRUE(menu->isVisible());
    const QWidget& group = In<QWidget>("GridColors");
    EXPECT_EQ(menu->pos(), group.mapToGlobal(group.rect().center()));
    QTest::keyClick(menu, Qt::Key_R);
    EXPECT_EQ(In<ColorButton>("picCalcBackground").Shown(), CalculatedColors({}, dialog->palette()).ground);
}

TEST_F(OptionsWindow, TheSamplesFollowThePalette) {
    Tabs().setCurrentIndex(2);
    for (const QPalette& palette : {DarkPalette(), LightPalette()}) {
        dialog->setPalette(palette);
        EXPECT_EQ(In<QLabel>("lblCalc").palette().color(QPalette::Window),
                  CalculatedColors({}, palette).ground);
        EXPECT_EQ(In<ColorButton>("picSumForeground").Shown(), TotalColors({}, palette).ink);
    }
}

TEST_F(OptionsWindow, TheMouseOffersResetOnTheGroupAlone) {
    Tabs().setCurrentIndex(2);
    auto* menu = dialog->findChild<QMenu*>();
    const auto rightClick = [&](const char* name) {
        auto& at = In<QWidget>(name);
        QContextMenuEvent event(QContextMenuEvent::Mouse, at.rect().center(),
                                at.mapToGlobal(at.rect().center()));
        QApplication::sendEvent(&at, &event);
    };
    rightClick("optIcons(0)");
    EXPECT_FALSE(menu->isVisible());
    rightClick("lblSum");
    EXPECT_TRUE(menu->isVisible());
}

TEST_F(OptionsWindow, LooksOfTheToolbarChangeLive) {
    auto* action = window.findChild<QAction*>(QStringLiteral("tbToolBar(New)"));
    auto* button = window.findChild<QToolButton*>(QStringLiteral("tbToolBar(New)"));
    const QSize size(32, 32);
    const auto shown = [&] { return action->icon().pixmap(size).toImage(); };
    EXPECT_EQ(shown(), ToolIcon("New", 0).pixmap(size).toImage());
    EXPECT_FALSE(button->autoRaise());
    for (int style = 1; style <= 2; ++style) {
        Open();
        Tabs().setCurrentIndex(2);
        In<QRadioButton>(style == 1 ? "optIcons(1)" : "optIcons(2)").click();
        In<QRadioButton>("optButtons(1)").click();
        QTest::mouseClick(&In<QPushButton>("cmdOK"), Qt::LeftButton);
        EXPECT_EQ(shown(), ToolIcon("New", style).pixmap(size).toImage()) << style;
        EXPECT_NE(shown(), ToolIcon("New", 0).pixmap(size).toImage());
        EXPECT_TRUE(button->autoRaise());
    }
}

// The painter belongs to the caller and must not stay half transparent.
TEST(Icons, AGreyedTwinLeavesThePainterAsItWas) {
    QImage picture(24, 24, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setOpacity(0.5);
    ToolIcon("Save", 1).paint(&painter, picture.rect(), Qt::AlignCenter, QIcon::Disabled);
    EXPECT_DOUBLE_EQ(painter.opacity(), 0.5);
}

}  // namespace
}  // namespace tw::test
