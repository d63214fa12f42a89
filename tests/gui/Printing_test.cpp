// Tests of the print preview, the report windows and PDF files, with real windows.
#include <QFileDialog>
#include <QFileInfo>
#include <QPrintDialog>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "gui/GuiTest.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/ColorButton.h"
#include "platform/qt/QtSaveFile.h"
#include "reports/NoPrinterModel.h"
#include "reports/PrintedRecipe.h"
#include "reports/qt/PaperPainter.h"
#include "reports/qt/QtPrinterDevice.h"
#include "reports/qt/QtPrinters.h"
#include "reports/ui/ChooseFontDialog.h"
#include "reports/ui/NoPrinterDialog.h"
#include "reports/ui/PreviewPage.h"
#include "reports/ui/PrintFormatDialog.h"
#include "reports/ui/PrintPreviewDialog.h"
#include "reports/ui/PrintWizardDialog.h"
#include "support/LongRecipe.h"
#include "support/RecordingPrinter.h"

namespace tw::test {
namespace {

// Answers every choice with the same colour.
class OneColor final : public ColorChooser {
  public:
    std::optional<QColor> Choose(const QColor&, const QString&, QWidget*) override { return color; }
    std::optional<QColor> color = QColor(1, 2, 3);
};

void Click(QWidget& window, const char* button) {
    auto* found = window.findChild<QAbstractButton*>(QLatin1String(button));
    ASSERT_NE(found, nullptr) << button;
    // A check box accepts clicks only on its box and caption, which may be narrower than the widget.
    QTest::mouseClick(found, Qt::LeftButton, {}, QPoint(8, found->height() / 2));
}

bool IsOn(QWidget& window, const char* button) {
    return window.findChild<QAbstractButton*>(QLatin1String(button))->isEnabled();
}

// Fills a recipe with hop additions.
void FillHops(RecipeRecord& recipe, int rows) {
    recipe.txtName.SetText("Sixty Hops");
    for (int i = 0; i < rows; ++i) {
        const int row = recipe.gridHops.EndOfData();
        recipe.gridHops.InsertRow(row);
        recipe.gridHops.SetText(row, HopCol::Variety, "Hop " + std::to_string(i));
        recipe.gridHops.SetText(row, HopCol::Amount, "1 oz");
    }
}

struct HopRecipe {
    explicit HopRecipe(int rows) { FillHops(record, rows); }
    RecipeRecord record;
};

// The preview.

class PreviewTest : public testing::Test {
  protected:
    PreviewTest() {
        window.show();
        QApplication::setActiveWindow(&window);
    }
    QString PageShown() { return window.findChild<QLineEdit*>(QStringLiteral("txtPage"))->text(); }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    PaperMeasure measure;
    HopRecipe recipe{120};
    int prints = 0;
    std::vector<Paper> pdfs;
    PrintPreviewModel model{
        {[this](PrintSize area) { return LayOutRecipe(recipe.record, area, measure); }, [this] { ++prints; },
         [this](const PrintSteps&, Paper paper) { pdfs.push_back(paper); }},
        Paper::A4};
    PrintPreviewDialog window{model, nullptr};
};

TEST_F(PreviewTest, TheKeysTurnThePages) {
    ASSERT_GE(model.Pages(), 3);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("PreviewArea"));
    Key(Qt::Key_PageDown);
    EXPECT_EQ(PageShown(), QStringLiteral("2"));
    Key(Qt::Key_End);
    EXPECT_EQ(PageShown(), QString::number(model.Pages()));
    Key(Qt::Key_PageDown);
    EXPECT_EQ(PageShown(), QString::number(model.Pages()));
    Key(Qt::Key_PageUp);
    EXPECT_EQ(PageShown(), QString::number(model.Pages() - 1));
    Key(Qt::Key_Home);
    EXPECT_EQ(PageShown(), QStringLiteral("1"));
}

TEST_F(PreviewTest, APageHigherThanTheWindowScrollsBeforeItTurns) {
    model.SetControl("cmbZoom", "300%");
    Click(window, "cmdZoomIn");
    Key(Qt::Key_Minus, Qt::ControlModifier);
    QApplication::processEvents();
    EXPECT_EQ(model.Zoom(), 200);
    Key(Qt::Key_PageDown);
    EXPECT_EQ(PageShown(), QStringLiteral("1"));
    for (int i = 0; i < 20; ++i) Key(Qt::Key_PageDown);
    EXPECT_NE(PageShown(), QStringLiteral("1"));
}

TEST_F(PreviewTest, ButtonsAtTheEndsAreOff) {
    EXPECT_FALSE(IsOn(window, "cmdFirst"));
    EXPECT_FALSE(IsOn(window, "cmdPrevious"));
    Click(window, "cmdLast");
    EXPECT_FALSE(IsOn(window, "cmdNext"));
    EXPECT_TRUE(IsOn(window, "cmdFirst"));
    // After a button has been disabled under the mouse, keys go to the pages.
    EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("PreviewArea"));
}

TEST_F(PreviewTest, ANumberThatIsNoPageGoesBack) {
    auto& box = *window.findChild<QLineEdit*>(QStringLiteral("txtPage"));
    box.setFocus();
    box.setText(QStringLiteral("2"));
    Key(Qt::Key_Return);
    EXPECT_EQ(model.Page(), 2);
    box.setText(QStringLiteral("99"));
    Key(Qt::Key_Return);
    EXPECT_EQ(box.text(), QStringLiteral("2"));
}

TEST_F(PreviewTest, PrintsAndSavesByButtonAndKey) {
    Click(window, "cmdPrint");
    Key(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(prints, 2);
    auto& paper = *window.findChild<QComboBox*>(QStringLiteral("cmbPaper"));
    QTest::keyClick(&paper, Qt::Key_Up);
    EXPECT_EQ(model.CurrentPaper(), Paper::Letter);
    Key(Qt::Key_S, Qt::ControlModifier);
    Click(window, "cmdPDF");
    EXPECT_EQ(pdfs, (std::vector<Paper>{Paper::Letter, Paper::Letter}));
}

TEST_F(PreviewTest, IsTitledByTheRecipeAsFarAsThatHasAName) {
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Print Preview - Sixty Hops"));
    recipe.record.txtName.SetText(" ");
    PrintPreviewModel unnamed{
        {[this](PrintSize area) { return LayOutRecipe(recipe.record, area, measure); }, {}, {}}, Paper::A4};
    EXPECT_EQ(PrintPreviewDialog(unnamed, nullptr).windowTitle(), QStringLiteral("Print Preview"));
}

TEST_F(PreviewTest, EscapeCloses) {
    Key(Qt::Key_Escape);
    EXPECT_FALSE(model.IsOpen());
    EXPECT_FALSE(window.isVisible());
}

TEST_F(PreviewTest, PaperIsWhiteAndTextBlackOnADarkDesktopToo) {
    const QPalette before = QApplication::palette();
    QApplication::setPalette(DarkPalette());
    const QImage page = window.findChild<PreviewPage*>()->grab().toImage();
    QApplication::setPalette(before);
    int white = 0, dark = 0;
    for (int y = page.height() / 20; y < page.height() * 19 / 20; ++y)
        for (int x = page.width() / 20; x < page.width() * 19 / 20; ++x) {
            const QColor pixel = page.pixelColor(x, y);
            white += pixel == QColor(Qt::white);
            dark += pixel.lightness() < 100;
        }
    EXPECT_GT(white, page.width() * page.height() / 2);
    EXPECT_GT(dark, 100);
}

// Paper.

class PaperTest : public testing::Test {
  protected:
    QString File(const char* name) const { return folder.filePath(QLatin1String(name)); }
    TargetFile Target(const char* name) const { return {FromQt(File(name)), own}; }
    QTemporaryDir folder;
    OwnFiles own;
    RecipeRecord recipe;
};

TEST_F(PaperTest, APdfFileHasThePagesOfItsSteps) {
    FillHops(recipe, 60);
    QtPrinters printers(own);
    const PrintSteps steps = LayOutRecipe(recipe, PrintableArea(Paper::Letter), printers.Measure());
    EXPECT_EQ(steps.Pages(), 2);
    PlaySteps(steps, printers.MakePdf(Target("a.pdf"), Paper::Letter));
    QFile file(File("a.pdf"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    EXPECT_TRUE(content.startsWith("%PDF-"));
    EXPECT_TRUE(content.contains("/Count 2"));
    EXPECT_TRUE(content.contains("/MediaBox [0 0 612"));
}

TEST_F(PaperTest, TheDeviceMeasuresAsThePreviewDoes) {
    QtPrinterDevice device(Target("a.pdf"), PdfPage(Paper::A4));
    ASSERT_TRUE(device.StartDoc("Porter"));
    ASSERT_TRUE(device.StartPage());
    const PrintSize page = device.PageSize(), expected = PrintableArea(Paper::A4);
    EXPECT_NEAR(page.width, expected.width, 0.01);
    EXPECT_NEAR(page.height, expected.height, 0.01);
    const PaperMeasure measure;
    for (const PrintFont& font : {PrintFont{"Arial", 10, true, false}, PrintFont{"Times New Roman", 18}}) {
        PrintSize size;
        device.MakeFont(font);
        ASSERT_TRUE(device.TextSize("Oatmeal Stout", size));
        EXPECT_EQ(size, measure.SizeOf(font, "Oatmeal Stout"));
        EXPECT_GT(size.width, 0.5);
        ASSERT_TRUE(device.TextSize("", size));
        EXPECT_EQ(size.width, 0);
        EXPECT_GT(size.height, 0.1);
    }
}

TEST_F(PaperTest, AFailedOrKilledPdfLeavesTheOlderFile) {
    QFile old(File("a.pdf"));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    {
        QtPrinterDevice device(Target("a.pdf"), PdfPage(Paper::A4));
        ASSERT_TRUE(device.StartDoc("Porter"));
        ASSERT_TRUE(device.StartPage());
        ASSERT_TRUE(device.TextOut("x", 1, 1));
        ASSERT_TRUE(device.AbortDoc());
    }
    EXPECT_EQ(QFileInfo(File("a.pdf")).size(), 3);
    QtPrinterDevice nowhere(Target("missing/a.pdf"), PdfPage(Paper::A4));
    ASSERT_TRUE(nowhere.StartDoc("Porter"));
    ASSERT_TRUE(nowhere.StartPage());
    EXPECT_THROW(nowhere.EndDoc(), Error);
}

TEST_F(PaperTest, NothingLeavesItsColumnOrTheSheetInRealType) {
    const PaperMeasure measure;
    for (unsigned seed = 1; seed <= 3; ++seed) {
        LongTexts texts(seed);
        RecipeRecord wide;
        FillWithLongTexts(wide, texts);
        for (const Paper paper : {Paper::Letter, Paper::A4}) {
            const PrintSteps steps = LayOutRecipe(wide, PrintableArea(paper), measure);
            EXPECT_GT(steps.Pages(), 1);
            EXPECT_EQ(OutOfBounds(steps, measure), Strings{}) << "seed " << seed;
        }
    }
}

TEST_F(PaperTest, ControlCharactersLeaveABlank) {
    EXPECT_EQ(PaperText("a\tb\x01"), QStringLiteral("a b "));
}

TEST_F(PaperTest, ThePrinterDialogHasAWayToThePreview) {
    QDialog dialog;
    EXPECT_FALSE(AddPreviewButton(dialog));
    auto* row = new QDialogButtonBox(QDialogButtonBox::Ok, &dialog);
    ASSERT_TRUE(AddPreviewButton(dialog));
    EXPECT_EQ(row->buttons().size(), 2);
    QPrinter printer;
    QPrintDialog ofTheDesktop(&printer);
    EXPECT_TRUE(AddPreviewButton(ofTheDesktop));
    QTimer::singleShot(0, &dialog, [&] { Click(dialog, "cmdPreview"); });
    EXPECT_EQ(dialog.exec(), kPreviewResult);
}

TEST_F(PaperTest, TheBoxWithoutAPrinterGoesByTheKeyboard) {
    using Choice = NoPrinterModel::Choice;
    const auto chosenBy = [](const std::vector<Qt::Key>& keys) {
        NoPrinterModel model;
        NoPrinterDialog box(model, nullptr);
        box.show();
        QApplication::setActiveWindow(&box);
        for (const Qt::Key key : keys) QTest::keyClick(QApplication::focusWidget(), key);
        EXPECT_FALSE(model.IsOpen());
        EXPECT_FALSE(box.isVisible());
        return model.Chosen();
    };
    EXPECT_EQ(chosenBy({Qt::Key_Return}), Choice::Preview);
    EXPECT_EQ(chosenBy({Qt::Key_Tab, Qt::Key_Space}), Choice::Pdf);
    EXPECT_EQ(chosenBy({Qt::Key_Escape}), Choice::Cancel);
}

TEST_F(PaperTest, TheSaveDialogStartsInItsFolderOrInTheDocuments) {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString fallback = QDir(documents).exists() ? documents : QDir::homePath();
    EXPECT_EQ(StartFolder(FromQt(folder.path())), folder.path());
    EXPECT_EQ(StartFolder(""), fallback);
    EXPECT_EQ(StartFolder(FromQt(File("gone"))), fallback);
    QString shown;
    QTimer::singleShot(0, qApp, [&] {
        auto& dialog = dynamic_cast<QFileDialog&>(*QApplication::activeModalWidget());
        shown = dialog.directory().absolutePath();
        dialog.reject();
    });
    EXPECT_FALSE(QtSaveFile().AskSaveFile({"Save as PDF", "pdf", "", "Porter.pdf", FromQt(folder.path())}));
    EXPECT_EQ(shown, folder.path());
}

TEST(SaveFile, FiltersMatchWhateverTheCase) {
    EXPECT_EQ(QtFilter("HTML Files (*.HTM,*.HTML)|*.HTM;*.HTML|All Files (*.*)|*.*||"),
              QStringLiteral("HTML Files (*.HTM *.htm *.HTML *.html);;All Files (*)"));
    EXPECT_EQ(QtFilter(""), QString());
}

// The main window.

TEST_F(GuiTest, ControlShiftPShowsThePagesOfTheRecipeInFront) {
    RecordingPrinter printer;
    shell.Environment().printer = &printer;
    QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(outside.dialogs.shown.empty());
    NewRecipe();
    QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(outside.dialogs.shown, (Strings{"frmPrintPreview"}));
    EXPECT_TRUE(window.RunCommand(CommandId::FilePrint));
    EXPECT_EQ(printer.log.front(), "new");
}

// The report windows.

TEST_F(GuiTest, TheReportWizardGoesByTheKeyboard) {
    shell.DB()->Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES ('Porter', 0, 0)");
    TWTree tree(shell.DB());
    tree.InitFromDatabase();
    RecordingSaveFile files;
    PrintWizardModel model(
        {*shell.DB(), tree, shell.Store(), outside.messages, outside.dialogs, &files, shell.Own()}, 1);
    PrintWizardDialog wizard(model, nullptr);
    wizard.show();
    QApplication::setActiveWindow(&wizard);
    EXPECT_EQ(Focus(), "optVolAsIs");
    Key(Qt::Key_Right);
    EXPECT_TRUE(model.ChosenUnits().IsChosen("optVolGallons"));
    EXPECT_FALSE(IsOn(wizard, "cmdBack"));
    Key(Qt::Key_Return);
    EXPECT_EQ(model.CurrentPage(), PrintWizardModel::Recipes);
    EXPECT_EQ(Focus(), "treeRecipes");
    EXPECT_FALSE(IsOn(wizard, "cmdNext"));
    model.Chooser().Add("R:1:3");
    EXPECT_TRUE(IsOn(wizard, "cmdNext"));
    Click(wizard, "cmdNext");
    EXPECT_EQ(Focus(), "txtFileName");
    EXPECT_EQ(FromQt(wizard.findChild<QPushButton*>(QStringLiteral("cmdNext"))->text()), "Finish");
    EXPECT_FALSE(IsOn(wizard, "cmdNext"));
    Type("/dev/full");
    Key(Qt::Key_Return);
    EXPECT_EQ(outside.messages.log, (Strings{"[Error] Could not create report file \"/dev/full\""}));
    EXPECT_EQ(Focus(), "txtFileName");
    const QTemporaryDir folder;
    const std::string file = FromQt(folder.filePath(QStringLiteral("Porter.htm")));
    files.answer = file;
    Click(wizard, "cmdBrowse");
    EXPECT_EQ(FromQt(wizard.findChild<QLineEdit*>(QStringLiteral("txtFileName"))->text()), file);
    Click(wizard, "cmdNext");
    EXPECT_TRUE(QFile::exists(ToQt(file)));
    EXPECT_FALSE(model.IsOpen());
    EXPECT_FALSE(wizard.isVisible());
}

TEST_F(GuiTest, TheFormatOptionsShowWhatTheyAreAbout) {
    OneColor color;
    PrintFormatModel model(ReportType::Html, shell.Store(), outside.dialogs);
    PrintFormatDialog options(model, color, nullptr);
    options.show();
    EXPECT_EQ(FromQt(options.windowTitle()), "HTML File Options");
    Click(options, "cmdBGColor");
    EXPECT_EQ(model.Options().bgColor, 1 + (2 << 8) + (3 << 16));
    EXPECT_EQ(options.findChild<ColorButton*>(QStringLiteral("pbBGColor"))->Shown(), QColor(1, 2, 3));
    outside.dialogs.scripts.emplace_back([](DialogModel& dialog) {
        dialog.SetControl("cmbFontSize", "20");
        dialog.Press("cmdOK");
    });
    Click(options, "cmdTitles");
    EXPECT_EQ(FromQt(options.findChild<QLabel*>(QStringLiteral("pbTitles"))->text()), "MS Sans Serif, 20");
    Click(options, "chkOne");
    Click(options, "cmdOK");
    EXPECT_EQ(shell.Store().GetSetting("HTMLOptions", "HorzRuler", ""), "0");
    EXPECT_EQ(shell.Store().GetSetting("HTMLOptions", "TitleSize", ""), "20");
}

TEST_F(GuiTest, TheFontDialogShowsItsSample) {
    OneColor color;
    ChooseFontModel model(ReportFont{}, 0xFFFFFF, true);
    ChooseFontDialog dialog(model, color, nullptr);
    dialog.show();
    Click(dialog, "chkBold");
    Click(dialog, "picFontBColor");
    auto& sample = *dialog.findChild<QLineEdit*>(QStringLiteral("txtSample"));
    EXPECT_TRUE(sample.font().bold());
    EXPECT_EQ(sample.palette().color(QPalette::Base), QColor(1, 2, 3));
    auto& size = *dialog.findChild<QComboBox*>(QStringLiteral("cmbFontSize"));
    size.setEditText(QStringLiteral("none"));
    EXPECT_FALSE(IsOn(dialog, "cmdOK"));
    size.setEditText(QStringLiteral("14"));
    EXPECT_EQ(sample.font().pointSizeF(), 14);
    color.color.reset();
    Click(dialog, "picFontColor");
    EXPECT_EQ(model.FontFace().color, 0);
    Click(dialog, "cmdOK");
    EXPECT_FALSE(model.Cancelled());
}

}  // namespace
}  // namespace tw::test
