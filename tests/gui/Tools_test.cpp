// Tests of the tools as a brewer uses them: keys, focus, message boxes, and pictures that are updated.
#include "GuiTest.h"
#include "platform/qt/Appearance.h"
#include "tools/ui/ColorScaleDialog.h"
#include "tools/ui/ColorScaleView.h"
#include "tools/ui/ConvertUnitsDialog.h"
#include "tools/ui/HopUtilisationDialog.h"
#include "tools/ui/HydrometerDialog.h"
#include "tools/ui/UtilisationGraphView.h"

namespace tw::test {
namespace {

const std::string kNoNumber = "[Error] Invalid numeric value!";

// Shows the window of one tool.
template <class Model, class Window>
class ToolTest : public testing::Test {
  protected:
    template <class... Arguments>
    void Open(Arguments&&... arguments) {
        model = std::make_unique<Model>(std::forward<Arguments>(arguments)...);
        dialog = std::make_unique<Window>(*model, nullptr);
        dialog->show();
        QApplication::setActiveWindow(dialog.get());
        QApplication::processEvents();
    }
    template <class Control>
    Control& In(const char* name) {
        auto* control = dialog->template findChild<Control*>(QLatin1String(name));
        EXPECT_NE(control, nullptr) << name;
        return *control;
    }
    std::string Text(const char* name) { return FromQt(In<QLineEdit>(name).text()); }
    std::string LabelText(const char* name) { return FromQt(In<QLabel>(name).text()); }
    static std::string Focus() {
        QWidget* focus = QApplication::focusWidget();
        return focus ? FromQt(focus->objectName()) : std::string();
    }
    static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        QApplication::processEvents();
    }
    static void Type(const char* text) {
        for (; *text; ++text) QTest::keyClick(QApplication::focusWidget(), *text);
    }
    static void Retype(const char* text) {
        Key(Qt::Key_A, Qt::ControlModifier);
        Type(text);
    }
    void Mnemonic(Qt::Key key) {
        QTest::keyClick(dialog.get(), key, Qt::AltModifier);
        QApplication::processEvents();
    }
    QImage Grab(const char* name) { return In<QWidget>(name).grab().toImage(); }

    MessageRecorder messages;
    std::unique_ptr<Model> model;
    std::unique_ptr<Window> dialog;
};

class ConverterWindow : public ToolTest<ConvertUnitsModel, ConvertUnitsDialog> {
  protected:
    void SetUp() override { Open(messages); }
    int ShownBoxes() const {
        int shown = 0;
        for (const auto* box : dialog->findChildren<QLineEdit*>()) shown += box->isVisible() ? 1 : 0;
        return shown;
    }
};

TEST_F(ConverterWindow, FillsTheOtherBoxesWithEveryKey) {
    EXPECT_EQ(Focus(), "Text1");
    Type("2");
    EXPECT_EQ(Text("Text2"), "32");
    Type(" 1/2");
    EXPECT_EQ(Text("Text1"), "2 1/2");
    EXPECT_EQ(Text("Text2"), "40");
    Key(Qt::Key_A, Qt::ControlModifier);
    Key(Qt::Key_Delete);
    EXPECT_EQ(Text("Text2"), "");
    EXPECT_EQ(messages.log, Strings{});
}

TEST_F(ConverterWindow, IsWorkedByKeysAlone) {
    Mnemonic(Qt::Key_T);
    EXPECT_EQ(Focus(), "cmbType");
    Key(Qt::Key_V);
    EXPECT_EQ(model->Kind(), QuantityKind::Volume);
    EXPECT_EQ(ShownBoxes(), 9);
    Mnemonic(Qt::Key_L);
    EXPECT_EQ(Focus(), "Text8");
    Type("3.785");
    EXPECT_EQ(Text("Text1"), "1");
    EXPECT_EQ(Text("Text7"), "768");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "Text9");
    EXPECT_EQ(In<QLineEdit>("Text9").selectedText(), QStringLiteral("3785"));
    Key(Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_FALSE(model->IsOpen());
}

TEST_F(ConverterWindow, EveryKindShowsItsOwnEmptyBoxesInAWindowOfOneSize) {
    const QSize size = dialog->size();
    Type("1");
    const int counts[kQuantityKinds] = {4, 9, 2, 3, 4};
    for (int kind = kQuantityKinds - 1; kind >= 0; --kind) {
        In<QComboBox>("cmbType").setCurrentIndex(kind);
        QApplication::processEvents();
        EXPECT_EQ(ShownBoxes(), counts[kind]);
        EXPECT_EQ(Text("Text1"), "");
        EXPECT_EQ(dialog->size(), size);
    }
}

TEST_F(ConverterWindow, ATextThatIsNoNumberHasItsBoxWithTheKeyAndAsItIsLeft) {
    Type("1");
    Retype("a");
    EXPECT_EQ(messages.TakeLog(), Strings{kNoNumber});
    EXPECT_EQ(Text("Text2"), "16");
    Key(Qt::Key_Tab);
    EXPECT_EQ(messages.TakeLog(), Strings{kNoNumber});
    EXPECT_EQ(Text("Text1"), "a");
    EXPECT_EQ(Text("Text2"), "16");
}

TEST_F(ConverterWindow, ABeginningOfANumberHasItsBoxOnlyAsItIsLeft) {
    for (const char* beginning : {".", "~", "~-", "-."}) {
        Retype("5");
        Retype(beginning);
        EXPECT_EQ(messages.log, Strings{}) << beginning;
        // Still the result for the previous figure, 5 pounds.
        EXPECT_EQ(FromQt(In<QLineEdit>("Text2").text()), "80") << beginning;
    }
    Retype("-");
    EXPECT_EQ(messages.log, Strings{});
    Key(Qt::Key_Return);
    EXPECT_EQ(messages.TakeLog(), Strings{kNoNumber});
    EXPECT_EQ(In<QLineEdit>("Text1").selectedText(), QStringLiteral("-"));
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(ConverterWindow, ClosingIsNoLeaving) {
    Type("x");
    messages.log.clear();
    Key(Qt::Key_Escape);
    EXPECT_EQ(messages.log, Strings{});
}

class HydrometerWindow : public ToolTest<HydrometerModel, HydrometerDialog> {
  protected:
    void SetUp() override { Open(messages); }
};

TEST_F(HydrometerWindow, CorrectsAsTheEntriesAreLeft) {
    EXPECT_EQ(Focus(), "txtActRead");
    Type("1.050");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "txtActTemp");
    Type("80");
    EXPECT_EQ(Text("txtCalRead"), "");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "cmbCalTemp");
    EXPECT_EQ(Text("txtCalRead"), "1.052 (12.953° Plato)");
    EXPECT_EQ(messages.log, Strings{});
}

TEST_F(HydrometerWindow, EnterCorrectsAndKeepsTheWindow) {
    Type("1.050");
    Mnemonic(Qt::Key_S);
    Type("80");
    Key(Qt::Key_Return);
    EXPECT_EQ(Text("txtCalRead"), "1.052 (12.953° Plato)");
    EXPECT_EQ(In<QLineEdit>("txtActTemp").selectedText(), QStringLiteral("80"));
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(HydrometerWindow, TheListCorrectsWithItsChoice) {
    Type("1.050");
    Mnemonic(Qt::Key_S);
    Type("68");
    Mnemonic(Qt::Key_C);
    EXPECT_EQ(Focus(), "cmbCalTemp");
    EXPECT_NE(Text("txtCalRead"), "1.050 (12.374° Plato)");
    Key(Qt::Key_Down);
    EXPECT_EQ(model->Text("cmbCalTemp"), "20.0 C (68.0 F)");
    EXPECT_EQ(Text("txtCalRead"), "1.050 (12.374° Plato)");
}

TEST_F(HydrometerWindow, TheListTakesAnyTextAsItIsTyped) {
    Type("1.050");
    Mnemonic(Qt::Key_S);
    Type("68");
    Mnemonic(Qt::Key_C);
    Retype("6");
    EXPECT_EQ(model->Text("cmbCalTemp"), "6") << "an entry of the list is not put behind it";
    Type("8");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Text("txtCalRead"), "1.050 (12.374° Plato)");
}

TEST_F(HydrometerWindow, ARefusedEntryTakesTheFocusBack) {
    Mnemonic(Qt::Key_S);
    Type("400");
    Key(Qt::Key_Tab);
    EXPECT_EQ(messages.TakeLog(), Strings{"[Invalid Entry] Please enter a reasonable temperature"});
    EXPECT_EQ(Focus(), "txtActTemp");
    EXPECT_EQ(In<QLineEdit>("txtActTemp").selectedText(), QStringLiteral("400"));
    Type("80");
    Key(Qt::Key_Tab);
    EXPECT_EQ(messages.log, Strings{});
}

TEST_F(HydrometerWindow, ARefusedCalibrationTakesTheFocusBackAfterTabAndEnter) {
    Type("1.050");
    Mnemonic(Qt::Key_S);
    Type("68");
    Mnemonic(Qt::Key_C);
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Return}) {
        Retype("warm");
        Key(key);
        EXPECT_EQ(messages.TakeLog(), Strings{"[Invalid Entry] Please enter a valid temperature"});
        EXPECT_EQ(Focus(), "cmbCalTemp");
        EXPECT_EQ(In<QComboBox>("cmbCalTemp").lineEdit()->selectedText(), QStringLiteral("warm"));
    }
}

// The reading is checked only once there is a temperature; an error then moves the focus back to it.
TEST_F(HydrometerWindow, ABadReadingTakesTheFocusBackWithTheTemperature) {
    Type("heavy");
    Key(Qt::Key_Tab);
    EXPECT_EQ(messages.log, Strings{});
    Type("80");
    Key(Qt::Key_Tab);
    EXPECT_EQ(messages.TakeLog(), Strings{"[Invalid Entry] Please enter a valid gravity"});
    EXPECT_EQ(Focus(), "txtActRead");
    EXPECT_EQ(messages.log, Strings{});
}

TEST_F(HydrometerWindow, ClosesWithoutACheck) {
    for (const bool byKey : {true, false}) {
        Open(messages);
        Mnemonic(Qt::Key_S);
        Type("400");
        if (byKey)
            Key(Qt::Key_Escape);
        else
            QTest::mouseClick(&In<QPushButton>("cmdEscape"), Qt::LeftButton);
        EXPECT_FALSE(dialog->isVisible());
        EXPECT_FALSE(model->IsOpen());
        EXPECT_EQ(messages.log, Strings{});
    }
}

TEST_F(HydrometerWindow, TheResultCanBeCopiedButNotTyped) {
    Mnemonic(Qt::Key_G);
    EXPECT_EQ(Focus(), "txtCalRead");
    Type("1");
    EXPECT_EQ(Text("txtCalRead"), "");
}

class HopUtilWindow : public ToolTest<HopUtilisationModel, HopUtilisationDialog> {
  protected:
    void SetUp() override { Open(std::string("1.050")); }
};

TEST_F(HopUtilWindow, TheArrowsChangeTheGravityAndTheGraphFollows) {
    EXPECT_EQ(Focus(), "Slider1");
    EXPECT_EQ(LabelText("lblGraph"), "Hop Utilization for SG = 1.050");
    const QImage before = Grab("picGraph");
    Key(Qt::Key_Up);
    EXPECT_EQ(LabelText("lblGraph"), "Hop Utilization for SG = 1.051") << "up is heavier";
    Key(Qt::Key_PageUp);
    EXPECT_EQ(LabelText("lblGraph"), "Hop Utilization for SG = 1.061");
    EXPECT_NE(Grab("picGraph"), before);
    Key(Qt::Key_PageDown);
    Key(Qt::Key_Down);
    EXPECT_EQ(LabelText("lblGraph"), "Hop Utilization for SG = 1.050");
}

TEST_F(HopUtilWindow, TheFocusShowsOnSliderAndGraph) {
    for (const char* name : {"Slider1", "picGraph"}) {
        In<QWidget>(name).setFocus();
        const QImage focused = Grab(name);
        In<QPushButton>("cmdClose").setFocus();
        EXPECT_NE(Grab(name), focused) << name;
    }
}

TEST_F(HopUtilWindow, FiguresFollowTheBoilTime) {
    // 23.07, 22.13 and 20 percent after an hour.
    EXPECT_EQ(LabelText("lblFigure(0)"), "23.1%");
    EXPECT_EQ(LabelText("lblFigure(1)"), "22.1%");
    EXPECT_EQ(LabelText("lblFigure(2)"), "20.0%");
    Mnemonic(Qt::Key_M);
    EXPECT_EQ(Focus(), "picGraph");
    Key(Qt::Key_End);
    EXPECT_EQ(LabelText("lblFigure(1)"), "27.0%");
    EXPECT_EQ(LabelText("lblFigure(2)"), "23.0%");
    Key(Qt::Key_PageUp);
    Key(Qt::Key_Right);
    Key(Qt::Key_Left);
    EXPECT_EQ(model->Minutes(), 75);
    Key(Qt::Key_Home);
    EXPECT_EQ(LabelText("lblFigure(0)"), "0.0%");
    auto& graph = In<UtilisationGraphView>("picGraph");
    EXPECT_EQ(graph.accessibleDescription(),
              QStringLiteral("At 0 minutes, Tinseth 0.0%, Rager 0.0%, Garetz 0.0%"));
    const GraphArea area = graph.Area();
    QTest::mouseClick(&graph, Qt::LeftButton, {}, QPoint(area.TimeToX(30), area.top + 5));
    // According to Garetz, the utilisation is 11 percent after half an hour.
    EXPECT_EQ(LabelText("lblFigure(2)"), "11.0%");
}

// The colour of each curve is found along the curve; for the two dashed curves, so is the
// background between the dashes.
TEST_F(HopUtilWindow, CurvesAreToldApartByLineToo) {
    for (const bool dark : {false, true}) {
        QApplication::setPalette(dark ? DarkPalette() : LightPalette());
        QApplication::processEvents();
        const QImage picture = Grab("picGraph");
        const GraphArea area = In<UtilisationGraphView>("picGraph").Area();
        const QColor ground = In<QWidget>("picGraph").palette().color(QPalette::Base);
        for (int method = 0; method < kMethods; ++method) {
            const Curve curve = model->Curves()[static_cast<std::size_t>(method)];
            int gaps = 0;
            // Between the marks of 45 and 60 minutes, away from the vertical line.
            for (int x = area.TimeToX(47); x < area.TimeToX(58); ++x) {
                bool inked = false;
                const double minutes = 90.0 * (x - area.left) / area.width;
                const auto at = static_cast<std::size_t>(minutes / 3);
                const double part = minutes / 3 - static_cast<double>(at);
                const int y = area.UtilisationToY(curve[at].percent +
                                                  (curve[at + 1].percent - curve[at].percent) * part);
                for (int near = -1; near <= 1; ++near)
                    inked |= ContrastRatio(picture.pixelColor(x, y + near), ground) > 2;
                gaps += inked ? 0 : 1;
            }
            EXPECT_EQ(gaps == 0, method == 0) << MethodName(static_cast<IbuMethod>(method));
        }
    }
    QApplication::setPalette(QPalette());
}

TEST_F(HopUtilWindow, EnterAndEscapeClose) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        Open(std::nullopt);
        Key(key);
        EXPECT_FALSE(dialog->isVisible());
        EXPECT_FALSE(model->IsOpen());
    }
}

class ColorWindow : public ToolTest<ColorScaleModel, ColorScaleDialog> {
  protected:
    void SetUp() override { Open(); }
    QColor Painted(double fraction) {
        const QImage picture = Grab("Image1");
        const QRect place = In<ColorScaleView>("Image1").Picture();
        return picture.pixelColor(place.center().x(),
                                  place.top() + static_cast<int>(fraction * place.height()));
    }
};

int Distance(const QColor& a, const QColor& b) {
    return std::max(
        {std::abs(a.red() - b.red()), std::abs(a.green() - b.green()), std::abs(a.blue() - b.blue())});
}

// A pixel of the steepest scale is up to 3 HCU away from its mark.
TEST_F(ColorWindow, EveryMarkStandsBesideItsColor) {
    auto& view = In<ColorScaleView>("Image1");
    for (int i = 0; i < kColorScales; ++i) {
        const auto scale = static_cast<ColorScale>(i);
        In<QRadioButton>(qPrintable(QStringLiteral("optScale(%1)").arg(i))).click();
        for (const double fraction : {0.25, 0.5, 0.75})
            EXPECT_LE(Distance(Painted(fraction), view.ColorAt(ScaleHcu(scale, fraction))), 24)
                << i << " at " << fraction;
    }
}

TEST_F(ColorWindow, IsWorkedByKeysAlone) {
    EXPECT_EQ(Focus(), "optScale(0)");
    EXPECT_EQ(LabelText("lblReading"), "0 SRM (0 HCU)");
    Key(Qt::Key_Right);
    EXPECT_EQ(model->Scale(), ColorScale::Hcu);
    Mnemonic(Qt::Key_P);
    EXPECT_EQ(Focus(), "Image1");
    Key(Qt::Key_End);
    EXPECT_EQ(LabelText("lblReading"), ">50 SRM (300 HCU)");
    Key(Qt::Key_Home);
    Key(Qt::Key_PageDown);
    Key(Qt::Key_Down);
    Key(Qt::Key_Up);
    // 30 HCU: 1.4922 * 30^0.6859 = 15.4
    EXPECT_EQ(LabelText("lblReading"), "15 SRM (30 HCU)");
    EXPECT_EQ(In<QWidget>("Image1").accessibleDescription(), QStringLiteral("15 SRM (30 HCU)"));
    Key(Qt::Key_PageUp);
    EXPECT_EQ(LabelText("lblReading"), "0 SRM (0 HCU)");
    Key(Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_FALSE(model->IsOpen());
}

TEST_F(ColorWindow, TheMouseReadsThePictureAndStaysOnIt) {
    auto& view = In<ColorScaleView>("Image1");
    const QRect place = view.Picture();
    QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(place.center().x(), place.bottom() + 1));
    EXPECT_EQ(LabelText("lblReading"), "50 SRM (167 HCU)");
    QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(place.center().x(), 0));
    EXPECT_EQ(LabelText("lblReading"), "0 SRM (0 HCU)");
}

class ToolMenu : public GuiTest {};

TEST_F(ToolMenu, OpensEveryTool) {
    for (const CommandId command : {CommandId::ToolsUnits, CommandId::ToolsHydrometer,
                                    CommandId::ToolsColorScale, CommandId::ToolsHopUtil})
        EXPECT_TRUE(window.RunCommand(command)) << RowOf(command).name;
    EXPECT_EQ(outside.dialogs.shown, (Strings{"frmConvertUnits", "frmHydrometer", "frmColor", "frmHopUtil"}));
}

}  // namespace
}  // namespace tw::test
