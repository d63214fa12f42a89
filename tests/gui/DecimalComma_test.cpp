// The decimal comma of the desktop in typed quantities: a point in the box, in the record and in the figures.
#include "platform/qt/DecimalComma.h"

#include "GuiTest.h"
#include "catalogue/ui/EditorDialog.h"
#include "document/ui/ScalingDialog.h"
#include "platform/qt/ColorChooser.h"
#include "reports/ui/ChooseFontDialog.h"
#include "shell/ui/BrewhouseDialog.h"
#include "shell/ui/OptionsDialog.h"
#include "tools/ui/ConvertUnitsDialog.h"
#include "tools/ui/HydrometerDialog.h"

namespace tw::test {
namespace {

// Changes the locale of the desktop for the duration of a scope.
class Desktop {
  public:
    explicit Desktop(const QLocale& locale) { QLocale::setDefault(locale); }
    ~Desktop() { QLocale::setDefault(before_); }
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

  private:
    const QLocale before_;
};

class NoColors final : public ColorChooser {
  public:
    std::optional<QColor> Choose(const QColor&, const QString&, QWidget*) override { return std::nullopt; }
};

class DecimalComma : public GuiTest {
  protected:
    RecipeRecord& R() { return shell.Documents().Active()->Record(); }
    // Moves the focus to a box of the General tab and replaces its text by typing.
    QLineEdit& TypeInto(const char* name, const char* text) {
        auto& box = Find<QLineEdit>(name);
        box.setFocus();
        box.selectAll();
        Type(text);
        return box;
    }
    template <class Dialog>
    static void Show(Dialog& dialog) {
        dialog.show();
        QApplication::setActiveWindow(&dialog);
        QApplication::processEvents();
    }
    template <class Control>
    static Control& In(QWidget& top, const char* name) {
        auto* control = top.findChild<Control*>(QLatin1String(name));
        EXPECT_NE(control, nullptr) << name;
        return *control;
    }
    // Replaces the text of a dialog's box by typing, and returns the box.
    static QLineEdit& TypeInto(QWidget& dialog, const char* name, const char* text) {
        auto& box = In<QLineEdit>(dialog, name);
        box.setFocus();
        box.selectAll();
        Type(text);
        return box;
    }

    Desktop desktop{QLocale(QLocale::German)};
};

std::string Pointed(const char* text) {
    return FromQt(WithDecimalPoint(ToQt(text)));
}

TEST_F(DecimalComma, IsFoundInTheNumbersOfAText) {
    for (const auto& [typed, pointed] :
         {std::pair("4,5", "4.5"), std::pair("4,5 kg", "4.5 kg"), std::pair("4,5kg", "4.5kg"),
          std::pair("2 lb 3,5 oz", "2 lb 3.5 oz"), std::pair(",5 oz", ".5 oz"), std::pair("-,5", "-.5"),
          std::pair("~1,050", "~1.050"), std::pair("5,5 days", "5.5 days")})
        EXPECT_EQ(Pointed(typed), pointed);
}

TEST_F(DecimalComma, OtherCommasStay) {
    for (const char* text : {"", ",", "5,", "5, then 7", "a week, at least", "3,5,7 days", "Fuggle4,5",
                             "1.000,5", "1,000.5", "1,000,5", "5 gal (about 4,5)", "4.5 kg"})
        EXPECT_EQ(Pointed(text), text);
}

TEST_F(DecimalComma, StaysOnADesktopWithAnotherDecimalMark) {
    // The decimal mark of Arabic, as used in Egypt, is neither a comma nor a point.
    for (const QLocale& locale : {QLocale::c(), QLocale(QLocale::English, QLocale::UnitedStates),
                                  QLocale(QLocale::Arabic, QLocale::Egypt)}) {
        const Desktop other(locale);
        EXPECT_EQ(Pointed("4,5 kg"), "4,5 kg");
    }
}

TEST_F(DecimalComma, BecomesAPointInABoxAsItIsTyped) {
    NewRecipe();
    TypeInto("txtTotalVol", "18,");
    EXPECT_EQ(Text("txtTotalVol"), "18.");
    Type("5 L");
    EXPECT_EQ(R().txtTotalVol.Text(), "18.5 L");
    Key(Qt::Key_Return);
    EXPECT_EQ(Text("txtTotalVol"), "18.5 L");
    EXPECT_NEAR(R().txtTotalVol.Value(), 18.5 / 3.785, 1e-9);
    EXPECT_EQ(outside.messages.log, Strings{});
    // The whole entry is one step, as with a point.
    EXPECT_TRUE(window.RunCommand(CommandId::EditUndo));
    EXPECT_EQ(R().txtTotalVol.Text(), "");
}

TEST_F(DecimalComma, LeavesTheCursorWhereItIsTyped) {
    NewRecipe();
    auto& box = TypeInto("txtTotalVol", "185 L");
    box.setCursorPosition(2);
    Type(",");
    EXPECT_EQ(Text("txtTotalVol"), "18.5 L");
    EXPECT_EQ(box.cursorPosition(), 3);
    EXPECT_EQ(R().txtTotalVol.Selection().start, 3);
    Type("2");
    EXPECT_EQ(R().txtTotalVol.Text(), "18.25 L");
    EXPECT_EQ(R().txtTotalVol.Selection().start, 4);
}

TEST_F(DecimalComma, StaysInAName) {
    NewRecipe();
    TypeInto("txtName", "Bock 6,5");
    Key(Qt::Key_Return);
    EXPECT_EQ(Text("txtName"), "Bock 6,5");
    auto& adjuncts = GridAt(Tab::Adjuncts, "gridAdjuncts", 1, AdjunctCol::Amount);
    Key(Qt::Key_Plus, Qt::ControlModifier);
    adjuncts.setCurrentIndex(adjuncts.Model().index(0, AdjunctCol::Amount));
    Type("1,5 tsp");
    Key(Qt::Key_Return);
    EXPECT_EQ(Shown(adjuncts, 1, AdjunctCol::Amount), "1,5 tsp");
}

TEST_F(DecimalComma, BecomesAPointInTheCellOfAQuantity) {
    NewRecipe();
    auto& view = GridAt(Tab::Grains, "gridGrain", 1, GrainCol::Amount);
    Type("4,5 kg");
    Key(Qt::Key_Return);
    EXPECT_EQ(Shown(view, 1, GrainCol::Amount), "4.5 kg");
    EXPECT_NEAR(R().gridGrain.Number(1, GrainCol::Amount), 4500 / 453.59, 1e-9);
    EXPECT_EQ(outside.messages.log, Strings{});
}

TEST_F(DecimalComma, BecomesAPointInARefusedCellToo) {
    NewRecipe();
    GridAt(Tab::Grains, "gridGrain", 1, GrainCol::Amount);
    Type("4,5 sacks");
    Key(Qt::Key_Return);
    EXPECT_EQ(outside.messages.log.size(), 1U);
    auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(FromQt(editor->selectedText()), "4.5 sacks");
}

TEST_F(DecimalComma, StaysInACellThatIsNotEdited) {
    NewRecipe();
    // As a recipe file from elsewhere may contain it.
    R().gridGrain.SetText(1, GrainCol::Amount, "4,5 kg");
    auto& view = GridAt(Tab::Grains, "gridGrain", 1, GrainCol::Amount);
    Key(Qt::Key_F2);
    Key(Qt::Key_Return);
    EXPECT_EQ(Shown(view, 1, GrainCol::Amount), "4,5 kg");
    EXPECT_FALSE(shell.Documents().Active()->Changed());
    EXPECT_EQ(outside.messages.log, Strings{});
}

TEST_F(DecimalComma, IsRefusedWhereTheDesktopWritesAPoint) {
    const Desktop other(QLocale::c());
    NewRecipe();
    TypeInto("txtTotalVol", "18,5 L");
    Key(Qt::Key_Return);
    EXPECT_EQ(outside.messages.TakeLog().size(), 1U);
    EXPECT_EQ(FromQt(Find<QLineEdit>("txtTotalVol").selectedText()), "18,5 L");
    Key(Qt::Key_Escape);
    auto& view = GridAt(Tab::Grains, "gridGrain", 1, GrainCol::Amount);
    Type("4,5 kg");
    Key(Qt::Key_Return);
    EXPECT_EQ(outside.messages.TakeLog().size(), 1U);
    Key(Qt::Key_Escape);
    EXPECT_EQ(Shown(view, 1, GrainCol::Amount), "");
}

TEST_F(DecimalComma, BecomesAPointInAScalingDialog) {
    NewRecipe();
    RecipeDocument& document = *shell.Documents().Active();
    document.Fields().SetText(R().txtTotalVol, "5 gal");
    document.Fields().CommitField(R().txtTotalVol);
    shell.CurrentSettings().askBeforeNonUndoableChange = false;
    outside.dialogs.scripts.emplace_back([](DialogModel& model) {
        ScalingDialog dialog(dynamic_cast<ScalingModel&>(model), nullptr);
        Show(dialog);
        EXPECT_EQ(FromQt(TypeInto(dialog, "txtNewSize", "7,5 gal").text()), "7.5 gal");
        Key(Qt::Key_Return);
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_TRUE(window.RunCommand(CommandId::ToolsResizeRecipe));
    EXPECT_EQ(outside.messages.log, Strings{});
    EXPECT_EQ(R().txtTotalVol.Value(), 7.5);
}

TEST_F(DecimalComma, BecomesAPointInTheNumbersOfACatalogueEditor) {
    const auto model = MakeEditor(CatalogueKind::Hop, shell.Opened()->catalogue.Context());
    EditorDialog editor(*model, nullptr);
    Show(editor);
    EXPECT_EQ(FromQt(TypeInto(editor, "Text1", "Zeus 4,5").text()), "Zeus 4,5");
    EXPECT_EQ(FromQt(TypeInto(editor, "gridInfo(0,0)", "14,5 %").text()), "14.5 %");
    Key(Qt::Key_Return);
    EXPECT_FALSE(editor.isVisible());
    const Recordset rows = shell.DB()->OpenRecordset("SELECT AA_LO FROM HOPS WHERE NAME = 'Zeus 4,5'");
    ASSERT_FALSE(rows.AtEnd());
    EXPECT_EQ(rows.Fields(0).Text(), "14.5");
}

// Each key converts, and a comma alone is not yet a number.
TEST_F(DecimalComma, BecomesAPointInTheConverter) {
    ConvertUnitsModel model(outside.messages);
    ConvertUnitsDialog dialog(model, nullptr);
    Show(dialog);
    EXPECT_EQ(FromQt(TypeInto(dialog, "Text1", "1,5").text()), "1.5");
    EXPECT_EQ(FromQt(In<QLineEdit>(dialog, "Text2").text()), "24");
    EXPECT_EQ(FromQt(TypeInto(dialog, "Text1", ",5").text()), ".5");
    EXPECT_EQ(FromQt(In<QLineEdit>(dialog, "Text2").text()), "8");
    EXPECT_EQ(outside.messages.log, Strings{});
    const Desktop other(QLocale::c());
    EXPECT_EQ(FromQt(TypeInto(dialog, "Text1", "1,5").text()), "1,5");
    // The number ends at the comma.
    EXPECT_EQ(FromQt(In<QLineEdit>(dialog, "Text2").text()), "16");
}

TEST_F(DecimalComma, BecomesAPointInTheHydrometerCorrection) {
    HydrometerModel model(outside.messages);
    HydrometerDialog dialog(model, nullptr);
    Show(dialog);
    TypeInto(dialog, "txtActRead", "1,050");
    TypeInto(dialog, "txtActTemp", "15,5 C");
    auto& calibration = In<QComboBox>(dialog, "cmbCalTemp");
    calibration.setFocus();
    calibration.lineEdit()->selectAll();
    Type("15,5 C");
    Key(Qt::Key_Return);
    EXPECT_EQ(FromQt(calibration.currentText()), "15.5 C");
    EXPECT_EQ(model.Text("cmbCalTemp"), "15.5 C");
    // A sample at the temperature of the calibration needs no correction.
    EXPECT_TRUE(FromQt(In<QLineEdit>(dialog, "txtCalRead").text()).starts_with("1.050 "));
    EXPECT_EQ(outside.messages.log, Strings{});
}

TEST_F(DecimalComma, BecomesAPointInTheOptionsAndTheBrewhouse) {
    OptionsModel options(shell.SettingsNow(), *shell.DB(), outside.messages);
    NoColors colors;
    OptionsDialog optionsDialog(options, colors, nullptr);
    Show(optionsDialog);
    EXPECT_EQ(FromQt(TypeInto(optionsDialog, "txtBoilVol", "6,5 gal").text()), "6.5 gal");
    EXPECT_EQ(options.Text("txtBoilVol"), "6.5 gal");
    BrewhouseModel brewhouse(shell.SettingsNow(), *shell.DB(), outside.messages,
                             BrewhouseModel::Start::SuggestUS);
    BrewhouseDialog brewhouseDialog(brewhouse, nullptr);
    Show(brewhouseDialog);
    EXPECT_EQ(FromQt(TypeInto(brewhouseDialog, "txtExtract", "72,5%").text()), "72.5%");
    EXPECT_EQ(brewhouse.Text("txtExtract"), "72.5%");
}

TEST_F(DecimalComma, BecomesAPointInTheSizeOfAFont) {
    ChooseFontModel model(ReportFont{}, 0xFFFFFF, false);
    NoColors colors;
    ChooseFontDialog dialog(model, colors, nullptr);
    Show(dialog);
    auto& size = In<QComboBox>(dialog, "cmbFontSize");
    size.setFocus();
    size.lineEdit()->selectAll();
    Type("10,5");
    EXPECT_EQ(FromQt(size.currentText()), "10.5");
    EXPECT_EQ(In<QLineEdit>(dialog, "txtSample").font().pointSizeF(), 10.5);
}

}  // namespace
}  // namespace tw::test
