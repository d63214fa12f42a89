#include <filesystem>
#include <gtest/gtest.h>

#include "reports/ChooseFontModel.h"
#include "reports/PrintFormatModel.h"
#include "reports/PrintPreviewModel.h"
#include "reports/PrintWizardModel.h"
#include "store/Schema.h"
#include "support/RecordingPlatform.h"
#include "support/RecordingPrinter.h"

namespace tw::test {
namespace {

using Strings = std::vector<std::string>;

std::string TextOf(const DialogModel& dialog, std::string_view name) {
    for (const DialogControl& control : dialog.Controls())
        if (control.name == name) return control.text;
    return "(no " + std::string(name) + ")";
}

Strings NamesOf(const DialogModel& dialog) {
    Strings names;
    for (const DialogControl& control : dialog.Controls()) names.push_back(control.name);
    return names;
}

// The wizard.

class PrintWizardTest : public testing::Test {
  protected:
    PrintWizardTest() {
        database->Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES ('Porter', 0, 0)");
        database->Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES ('Bock', 0, 0)");
        tree.InitFromDatabase();
    }
    PrintWizardModel Make(int reportType = 0) {
        return {{*database, tree, store, outside.messages, outside.dialogs, &files, own}, reportType};
    }
    // Adds a recipe to the list.
    static void Add(PrintWizardModel& wizard, const char* key) {
        EXPECT_TRUE(wizard.SetControl("treeRecipes", key));
        EXPECT_TRUE(wizard.Press("cmdAdd"));
    }
    // Goes to the last page, with a recipe chosen.
    static void GoToOutput(PrintWizardModel& wizard) {
        wizard.Press("cmdNext");
        Add(wizard, "R:1:3");
        wizard.Press("cmdNext");
        EXPECT_EQ(wizard.CurrentPage(), PrintWizardModel::Output);
    }

    RecordingPlatform outside;
    RecordingSaveFile files;
    OwnFiles own;
    SettingsStore store{outside.settings};
    std::unique_ptr<Database> database = CreateMainDatabaseInMemory();
    TWTree tree{database.get()};
};

TEST_F(PrintWizardTest, LeadsThroughThreePages) {
    PrintWizardModel wizard = Make();
    EXPECT_EQ(wizard.CurrentPage(), PrintWizardModel::Units);
    EXPECT_FALSE(wizard.IsEnabled("cmdBack"));
    EXPECT_TRUE(wizard.IsEnabled("cmdNext"));
    EXPECT_EQ(wizard.NextCaption(), "Next >");
    wizard.Press("cmdBack");
    EXPECT_EQ(wizard.CurrentPage(), PrintWizardModel::Units);
    wizard.Press("cmdNext");
    EXPECT_EQ(wizard.CurrentPage(), PrintWizardModel::Recipes);
    EXPECT_FALSE(wizard.IsEnabled("cmdNext"));
    wizard.Press("cmdNext");
    EXPECT_EQ(wizard.CurrentPage(), PrintWizardModel::Recipes);
    Add(wizard, "R:1:3");
    EXPECT_TRUE(wizard.IsEnabled("cmdNext"));
    wizard.Press("cmdNext");
    EXPECT_EQ(wizard.NextCaption(), "Finish");
    EXPECT_FALSE(wizard.IsEnabled("cmdNext"));
    wizard.SetControl("txtFileName", "x");
    EXPECT_TRUE(wizard.IsEnabled("cmdNext"));
    wizard.Press("cmdBack");
    EXPECT_EQ(wizard.CurrentPage(), PrintWizardModel::Recipes);
    EXPECT_EQ(wizard.NextCaption(), "Next >");
    EXPECT_EQ(PrintWizardModel::PageTitle(0), "Choose Units");
    EXPECT_EQ(PrintWizardModel::PageTitle(1), "Choose Recipes");
    EXPECT_EQ(PrintWizardModel::PageTitle(2), "Choose Output");
}

TEST_F(PrintWizardTest, StartsOnTheTypeOfTheSettings) {
    EXPECT_EQ(Make(2).Type(), ReportType::RichText);
    EXPECT_EQ(TextOf(Make(2), "cmbFileType"), "RichText");
    EXPECT_EQ(TextOf(Make(2), "txtFileName"), "");
    EXPECT_EQ(Make(7).Type(), ReportType::Text);
    EXPECT_EQ(Make(-1).Type(), ReportType::Text);
}

TEST_F(PrintWizardTest, TheListIsCalledRecipesToPrint) {
    PrintWizardModel wizard = Make();
    EXPECT_EQ(wizard.Chooser().ListCaption(), "Recipes to Print:");
}

TEST_F(PrintWizardTest, AnotherTypeSwapsTheExtension) {
    PrintWizardModel wizard = Make();
    const auto swapped = [&](const char* name, const char* type) {
        wizard.SetControl("cmbFileType", "Text");
        wizard.SetControl("txtFileName", name);
        EXPECT_TRUE(wizard.SetControl("cmbFileType", type));
        return wizard.FileName();
    };
    EXPECT_EQ(swapped("beer.txt", "HTML"), "beer.HTM");
    EXPECT_EQ(swapped("beer.2.txt", "RichText"), "beer.2.RTF");
    EXPECT_EQ(swapped("beer", "HTML"), "beer.HTM");
    EXPECT_EQ(swapped("beer.", "HTML"), "beer.HTM");
    EXPECT_EQ(swapped("", "HTML"), ".HTM");
    EXPECT_EQ(swapped("/home/me.too/beer", "HTML"), "/home/me.too/beer.HTM");
    EXPECT_EQ(swapped("beer.doc", "Text"), "beer.doc");
    EXPECT_FALSE(wizard.SetControl("cmbFileType", "Word"));
}

TEST_F(PrintWizardTest, BrowsesByTheTypesFilter) {
    PrintWizardModel wizard = Make(1);
    wizard.SetControl("txtFileName", "beer.htm");
    wizard.Press("cmdBrowse");
    EXPECT_EQ(wizard.FileName(), "beer.htm");
    files.answer = "/tmp/ale.HTM";
    wizard.Press("cmdBrowse");
    EXPECT_EQ(wizard.FileName(), "/tmp/ale.HTM");
    ASSERT_EQ(files.requests.size(), 2u);
    EXPECT_EQ(files.requests[0].title, "Select Report File");
    EXPECT_EQ(files.requests[0].extension, "HTM");
    EXPECT_EQ(files.requests[0].filter, "HTML Files (*.HTM,*.HTML)|*.HTM;*.HTML|All Files (*.*)|*.*||");
    EXPECT_EQ(files.requests[0].name, "beer.htm");
    wizard.SetControl("cmbFileType", "Text");
    wizard.Press("cmdBrowse");
    EXPECT_EQ(files.requests[2].filter, "Text Files (*.TXT)|*.TXT|All Files (*.*)|*.*||");
    wizard.SetControl("cmbFileType", "RichText");
    wizard.Press("cmdBrowse");
    EXPECT_EQ(files.requests[3].filter, "RichText Files (*.RTF)|*.RTF|All Files (*.*)|*.*||");
    EXPECT_EQ(files.requests[3].extension, "RTF");
}

TEST_F(PrintWizardTest, ConfiguresTheTypeThatIsChosen) {
    PrintWizardModel wizard = Make(2);
    outside.dialogs.scripts.emplace_back([](DialogModel& dialog) {
        EXPECT_EQ(dynamic_cast<PrintFormatModel&>(dialog).Mode(), ReportType::RichText);
    });
    wizard.Press("cmdConfigure");
    EXPECT_EQ(outside.dialogs.shown, (Strings{"frmPrintFmtOptions"}));
}

TEST_F(PrintWizardTest, FinishMakesTheReportInTheOrderOfTheListAndEnds) {
    const std::filesystem::path path = std::filesystem::path(testing::TempDir()) / "tunwright_wizard.TXT";
    PrintWizardModel wizard = Make();
    wizard.SetControl("optVolLiters", "yes");
    wizard.Press("cmdNext");
    Add(wizard, "R:2:3");
    Add(wizard, "R:1:3");
    EXPECT_EQ(TextOf(wizard, "lstRecipes"), "Bock, Porter");
    EXPECT_TRUE(wizard.SetControl("lstRecipes", "porter"));
    wizard.Press("cmdUp");
    EXPECT_EQ(TextOf(wizard, "lstRecipes"), "Porter, Bock");
    wizard.Press("cmdNext");
    wizard.SetControl("txtFileName", path.string());
    wizard.Press("cmdNext");
    EXPECT_FALSE(wizard.IsOpen());
    EXPECT_TRUE(outside.messages.log.empty());
    EXPECT_GT(std::filesystem::file_size(path), 500u);
    std::filesystem::remove(path);
}

TEST_F(PrintWizardTest, AReportThatFailsIsToldAndTheWizardStays) {
    PrintWizardModel wizard = Make();
    GoToOutput(wizard);
    wizard.SetControl("txtFileName", "/dev/full");
    wizard.Press("cmdNext");
    EXPECT_TRUE(wizard.IsOpen());
    EXPECT_EQ(wizard.CurrentPage(), PrintWizardModel::Output);
    EXPECT_EQ(outside.messages.log, (Strings{"[Error] Could not create report file \"/dev/full\""}));
}

TEST_F(PrintWizardTest, CancelAndTheCloseBoxEndIt) {
    PrintWizardModel wizard = Make();
    EXPECT_TRUE(wizard.Press("cmdCancel"));
    EXPECT_FALSE(wizard.IsOpen());
    PrintWizardModel other = Make();
    other.CloseBox();
    EXPECT_FALSE(other.IsOpen());
    EXPECT_FALSE(other.Press("cmdNope"));
    EXPECT_FALSE(other.SetControl("optStones", "yes"));
    EXPECT_FALSE(other.SetControl("optVolLiters", "no"));
    EXPECT_FALSE(other.SetControl("lstRecipes", "Nobody"));
}

// The format options.

TEST(PrintFmtOptions, EachTypeHasItsTitleAndControls) {
    RecordingPlatform outside;
    const SettingsStore store(outside.settings);
    const auto make = [&](ReportType type) { return PrintFormatModel(type, store, outside.dialogs); };
    EXPECT_EQ(make(ReportType::Text).Title(), "Text File Options");
    EXPECT_EQ(NamesOf(make(ReportType::Text)), (Strings{"txtCols", "chkOne", "chkTwo"}));
    EXPECT_EQ(make(ReportType::Html).Title(), "HTML File Options");
    EXPECT_EQ(NamesOf(make(ReportType::Html)),
              (Strings{"pbBGColor", "pbTitles", "pbLabels", "pbText", "chkOne"}));
    EXPECT_EQ(make(ReportType::RichText).Title(), "Rich-Text File Options");
    EXPECT_EQ(NamesOf(make(ReportType::RichText)), (Strings{"pbTitles", "pbLabels", "pbText", "chkOne"}));
    EXPECT_EQ(TextOf(make(ReportType::Html), "pbTitles"), "MS Sans Serif, 12");
}

TEST(PrintFmtOptions, OkStoresAndCancelDoesNot) {
    RecordingPlatform outside;
    const SettingsStore store(outside.settings);
    PrintFormatModel cancelled(ReportType::Text, store, outside.dialogs);
    EXPECT_TRUE(cancelled.SetControl("txtCols", "40"));
    EXPECT_TRUE(cancelled.Press("cmdCancel"));
    EXPECT_FALSE(cancelled.IsOpen());
    EXPECT_TRUE(outside.settings.written.empty());
    PrintFormatModel options(ReportType::Text, store, outside.dialogs);
    EXPECT_EQ(TextOf(options, "txtCols"), "75");
    EXPECT_TRUE(options.SetControl("txtCols", "wide"));
    EXPECT_TRUE(options.SetControl("chkOne", "no"));
    EXPECT_TRUE(options.SetControl("chkTwo", "yes"));
    EXPECT_TRUE(options.Press("cmdOK"));
    EXPECT_EQ(outside.settings.written, (Strings{"NumColumns=wide", "PageBreak=0", "Append=1"}));
}

TEST(PrintFmtOptions, TheOneSwitchIsTheRuleOfHtmlAndThePageBreakOfTheOthers) {
    RecordingPlatform outside;
    const SettingsStore store(outside.settings);
    PrintFormatModel html(ReportType::Html, store, outside.dialogs);
    EXPECT_TRUE(html.SetControl("chkOne", "no"));
    EXPECT_FALSE(html.Options().horizontalRulers);
    EXPECT_TRUE(html.Options().pageBreak);
    EXPECT_TRUE(html.SetControl("pbBGColor", "255"));
    EXPECT_EQ(html.Options().bgColor, 255);
    EXPECT_FALSE(html.SetControl("pbBGColor", "16777216"));
    PrintFormatModel rich(ReportType::RichText, store, outside.dialogs);
    EXPECT_TRUE(rich.SetControl("chkOne", "no"));
    EXPECT_FALSE(rich.Options().pageBreak);
    EXPECT_FALSE(rich.SetControl("chkTwo", "yes"));
    EXPECT_FALSE(rich.SetControl("txtCols", "3"));
    EXPECT_FALSE(rich.SetControl("pbBGColor", "3"));
    EXPECT_FALSE(rich.SetControl("chkOne", "perhaps"));
    EXPECT_FALSE(rich.Press("cmdHelp"));
}

TEST(PrintFmtOptions, AFontIsTakenUnlessItsDialogWasCancelled) {
    RecordingPlatform outside;
    const SettingsStore store(outside.settings);
    PrintFormatModel options(ReportType::RichText, store, outside.dialogs);
    outside.dialogs.scripts.emplace_back([](DialogModel& dialog) {
        EXPECT_TRUE(dialog.SetControl("cmbFontName", "Arial"));
        EXPECT_TRUE(dialog.Press("cmdCancel"));
    });
    EXPECT_TRUE(options.Press("cmdTitles"));
    EXPECT_EQ(options.Options().title.face, "MS Sans Serif");
    outside.dialogs.scripts.emplace_back([](DialogModel& dialog) {
        EXPECT_TRUE(dialog.SetControl("cmbFontName", "Arial"));
        EXPECT_TRUE(dialog.SetControl("picFontBColor", "65535"));
        EXPECT_TRUE(dialog.Press("cmdOK"));
    });
    EXPECT_TRUE(options.Press("cmdLabels"));
    EXPECT_EQ(options.Options().label.face, "Arial");
    EXPECT_EQ(options.Options().label.backColor, 65535);
    EXPECT_EQ(options.Options().text.face, "MS Sans Serif");
    PrintFormatModel text(ReportType::Text, store, outside.dialogs);
    EXPECT_FALSE(text.Press("cmdTitles"));
}

// The font dialog.

TEST(ChooseFont, TakesEveryPartOfAFont) {
    ChooseFontModel dialog(ReportFont{}, kWhite, true);
    EXPECT_TRUE(dialog.Cancelled());
    for (const auto& [name, text] : {std::pair("cmbFontName", "Courier"),
                                     {"cmbFontSize", "10.5"},
                                     {"chkBold", "yes"},
                                     {"chkItalic", "yes"},
                                     {"chkUnderline", "yes"},
                                     {"chkStrikethru", "yes"},
                                     {"picFontColor", "128"},
                                     {"picFontBColor", "0"},
                                     {"txtSample", "Bock"}}) {
        EXPECT_TRUE(dialog.SetControl(name, text)) << name;
        EXPECT_EQ(TextOf(dialog, name), text);
    }
    EXPECT_TRUE(dialog.Press("cmdOK"));
    EXPECT_FALSE(dialog.Cancelled());
    EXPECT_EQ(dialog.FontFace(), (ReportFont{.face = "Courier",
                                             .points = 10.5,
                                             .bold = true,
                                             .italic = true,
                                             .underline = true,
                                             .strikethru = true,
                                             .color = 128,
                                             .backColor = 0}));
}

TEST(ChooseFont, TheColorBehindTheTextIsOfferedWhereItIsAsked) {
    ChooseFontModel dialog(ReportFont{}, kWhite, false);
    EXPECT_FALSE(dialog.SetControl("picFontBColor", "0"));
    EXPECT_EQ(TextOf(dialog, "picFontBColor"), "(no picFontBColor)");
}

TEST(ChooseFont, OkWaitsForANameAndASize) {
    ChooseFontModel dialog(ReportFont{}, kWhite, false);
    for (const char* size : {"", "big", "0", "-3"}) {
        dialog.SetControl("cmbFontSize", size);
        EXPECT_FALSE(dialog.CanAccept()) << size;
        EXPECT_TRUE(dialog.Press("cmdOK"));
        EXPECT_TRUE(dialog.IsOpen());
        EXPECT_EQ(dialog.FontFace().points, 10);
    }
    dialog.SetControl("cmbFontSize", "8");
    EXPECT_TRUE(dialog.CanAccept());
    dialog.SetControl("cmbFontName", " ");
    EXPECT_FALSE(dialog.CanAccept());
    EXPECT_FALSE(dialog.SetControl("chkBold", "perhaps"));
    EXPECT_FALSE(dialog.SetControl("picFontColor", "red"));
    EXPECT_FALSE(dialog.SetControl("cmbScript", "x"));
}

// The preview.

PrintSteps SomePages(int pages) {
    PrintSteps steps{"Porter", kLetterPaper, {}};
    steps.steps.resize(static_cast<std::size_t>(pages));
    return steps;
}

TEST(PrintPreview, TurnsItsPages) {
    PrintPreviewModel preview({[](PrintSize) { return SomePages(3); }, [] {}, [](auto&, auto) {}}, Paper::A4);
    EXPECT_FALSE(preview.IsEnabled("cmdPrevious"));
    EXPECT_EQ(TextOf(preview, "lblPages"), "of 3");
    preview.Press("cmdPrevious");
    EXPECT_EQ(preview.Page(), 1);
    preview.Press("cmdNext");
    EXPECT_EQ(TextOf(preview, "txtPage"), "2");
    preview.Press("cmdLast");
    EXPECT_FALSE(preview.IsEnabled("cmdNext"));
    preview.Press("cmdNext");
    EXPECT_EQ(preview.Page(), 3);
    preview.Press("cmdFirst");
    EXPECT_EQ(preview.Page(), 1);
    EXPECT_TRUE(preview.SetControl("txtPage", "3"));
    for (const char* page : {"0", "4", "x"}) EXPECT_FALSE(preview.SetControl("txtPage", page));
    EXPECT_EQ(preview.Page(), 3);
}

TEST(PrintPreview, AnotherPaperIsLaidOutAnew) {
    std::vector<PrintSize> areas;
    PrintPreviewModel preview({[&](PrintSize area) {
                                   areas.push_back(area);
                                   return SomePages(area.width > 7.9 ? 1 : 2);
                               },
                               [] {}, [](auto&, auto) {}},
                              Paper::A4);
    preview.Press("cmdLast");
    EXPECT_EQ(preview.Page(), 2);
    EXPECT_TRUE(preview.SetControl("cmbPaper", "letter"));
    EXPECT_EQ(preview.Page(), 1);
    EXPECT_NEAR(areas.at(0).width, 210 / 25.4 - 0.5, 1e-9);
    EXPECT_NEAR(areas.at(0).height, 297 / 25.4 - 0.5, 1e-9);
    EXPECT_EQ(areas.at(1), (PrintSize{8, 10.5}));
    EXPECT_FALSE(preview.SetControl("cmbPaper", "Papyrus"));
}

TEST(PrintPreview, ZoomsInSteps) {
    PrintPreviewModel preview({[](PrintSize) { return SomePages(1); }, [] {}, [](auto&, auto) {}}, Paper::A4);
    EXPECT_EQ(preview.Zoom(), 0);
    EXPECT_EQ(TextOf(preview, "cmbZoom"), "Whole Page");
    EXPECT_FALSE(preview.IsEnabled("cmdZoomOut"));
    preview.Press("cmdZoomOut");
    preview.Press("cmdZoomIn");
    EXPECT_EQ(preview.Zoom(), 50);
    EXPECT_TRUE(preview.SetControl("cmbZoom", "300%"));
    EXPECT_FALSE(preview.IsEnabled("cmdZoomIn"));
    preview.Press("cmdZoomIn");
    EXPECT_EQ(preview.Zoom(), 300);
    EXPECT_FALSE(preview.SetControl("cmbZoom", "1%"));
    EXPECT_FALSE(preview.SetControl("lblPages", "x"));
    EXPECT_FALSE(preview.Press("cmdHelp"));
    EXPECT_TRUE(preview.Press("cmdClose"));
    EXPECT_FALSE(preview.IsOpen());
}

}  // namespace
}  // namespace tw::test
