// Tests of F1 in all windows, the contents of the help and the assistant, with keys and the mouse.
#include <QDesktopServices>
#include <QSignalSpy>
#include <fstream>

#include "GuiTest.h"
#include "help/qt/QtBrowser.h"
#include "help/ui/AssistantDialog.h"
#include "help/ui/AssistantLinkButton.h"
#include "help/ui/HelpContentsDialog.h"
#include "platform/qt/HelpKey.h"
#include "platform/qt/QtDialogs.h"
#include "shell/AboutModel.h"
#include "shell/OptionsModel.h"
#include "shell/ui/AboutDialog.h"
#include "shell/ui/OptionsDialog.h"
#include "support/RecordingHelp.h"
#include "tools/ConvertUnitsModel.h"

namespace tw::test {
namespace {

// Shows a window, makes it active and sends keys to its focused widget.
class HelpWindows : public testing::Test {
  protected:
    static void BringUp(QWidget& window) {
        window.show();
        QApplication::setActiveWindow(&window);
        QApplication::processEvents();
    }
    static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        QApplication::processEvents();
    }

    // Presses an access key and waits for the click, which the button delays.
    static void Mnemonic(QAbstractButton& button, Qt::Key key) {
        QSignalSpy clicked(&button, &QAbstractButton::clicked);
        QTest::keyClick(&button, key, Qt::AltModifier);
        EXPECT_TRUE(!clicked.isEmpty() || clicked.wait());
    }

    MessageRecorder messages;
};

class HelpContentsWindow : public HelpWindows {
  protected:
    void SetUp() override {
        MakeHelpDatabase(folder.Path(),
                         "INSERT INTO HELP_CONTENTS VALUES (1, 'Recipes', 'recipes.html', -1),"
                         " (2, 'Malts & Grains', 'malts.html', 1), (3, 'Hops', 'hops.html', 2),"
                         " (4, 'Tools', 'tools.html', -1);");
        files.files[folder.Path().string() + "/index_template.dat"] = "$START_PAGE";
        model = std::make_unique<HelpContentsModel>(help, messages);
        window = std::make_unique<HelpContentsDialog>(*model, nullptr);
        BringUp(*window);
    }
    QTreeWidget& Tree() { return *window->findChild<QTreeWidget*>(QStringLiteral("TreeView1")); }
    QString Selected() { return window->findChild<QLabel*>(QStringLiteral("lblSel"))->text(); }
    std::string TakePage() {
        const bool opened = !std::exchange(browser.opened, {}).empty();
        return opened ? files.files[folder.Path().string() + "/OnlineHelp/temp_index.html"] : std::string();
    }

    TemporaryFolder folder;
    RecordingBrowser browser;
    MemoryFiles files;
    Help help{folder.Path().string(), messages, browser, files};
    std::unique_ptr<HelpContentsModel> model;
    std::unique_ptr<HelpContentsDialog> window;
};

TEST_F(HelpContentsWindow, OpensOnTheFirstTopicWithItsBranchOpen) {
    QTreeWidgetItem* first = Tree().topLevelItem(0);
    EXPECT_TRUE(first->isExpanded());
    EXPECT_FALSE(first->child(0)->isExpanded());
    EXPECT_EQ(Tree().currentItem(), first);
    EXPECT_EQ(Selected(), QStringLiteral("Recipes"));
    EXPECT_EQ(QApplication::focusWidget(), &Tree());
}

TEST_F(HelpContentsWindow, IsWorkedByKeys) {
    Key(Qt::Key_Down);
    EXPECT_EQ(Selected(), QStringLiteral("Malts && Grains"));
    Key(Qt::Key_Return);
    EXPECT_EQ(TakePage(), "malts.html");
    Key(Qt::Key_Right);
    Key(Qt::Key_Down);
    Key(Qt::Key_Enter);
    EXPECT_EQ(TakePage(), "hops.html");
    EXPECT_TRUE(window->isVisible()) << "the contents stay for the next page";
    Key(Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(model->IsOpen());
}

TEST_F(HelpContentsWindow, ADoubleClickShowsThePage) {
    QTreeWidgetItem* tools = Tree().topLevelItem(1);
    const QPoint place = Tree().visualItemRect(tools).center();
    QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(TakePage(), "") << "one click chooses";
    EXPECT_EQ(Selected(), QStringLiteral("Tools"));
    QTest::mouseDClick(Tree().viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(TakePage(), "tools.html");
}

TEST_F(HelpContentsWindow, TheTreeFillsALargerWindow) {
    const QSize before = Tree().size();
    window->resize(window->size() + QSize(200, 100));
    QApplication::processEvents();
    EXPECT_EQ(Tree().size(), before + QSize(200, 100));
}

class AssistantWindow : public HelpWindows {
  protected:
    void SetUp() override {
        BringUp(window);
        // The real pointer may be over a link; the window is to ignore it.
        for (AssistantLinkButton* link : Links()) SendLeave(*link);
    }
    QList<AssistantLinkButton*> Links() { return window.findChildren<AssistantLinkButton*>(); }
    AssistantLinkButton& Link(const char* name) {
        return *window.findChild<AssistantLinkButton*>(QLatin1String(name));
    }
    static void SendEnter(QWidget& widget) {
        const QPointF middle = widget.rect().center();
        QEnterEvent event(middle, middle, middle);
        QApplication::sendEvent(&widget, &event);
    }
    static void SendLeave(QWidget& widget) {
        QEvent event(QEvent::Leave);
        QApplication::sendEvent(&widget, &event);
    }
    // Returns the names of the links that are highlighted.
    Strings Highlighted() {
        Strings names;
        for (const AssistantLinkButton* link : Links())
            if (link->IsHighlighted()) names.push_back(FromQt(link->objectName()));
        return names;
    }

    AssistantModel model{true};
    AssistantDialog window{model, nullptr};
};

TEST_F(AssistantWindow, IsNamedAndOffersItsLinks) {
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Tunwright Assistant"));
    EXPECT_EQ(Links().size(), 7);
    for (const AssistantLinkButton* link : Links()) {
        EXPECT_FALSE(link->icon().isNull());
        EXPECT_EQ(link->cursor().shape(), Qt::PointingHandCursor);
    }
}

TEST_F(AssistantWindow, OneLinkAtATimeIsHighlighted) {
    EXPECT_EQ(Highlighted(), Strings{"lblNew"}) << "the one with the focus";
    SendEnter(Link("lblExplore"));
    EXPECT_EQ(Highlighted(), Strings{"lblExplore"});
    SendLeave(Link("lblExplore"));
    EXPECT_EQ(Highlighted(), Strings{"lblNew"});
    Key(Qt::Key_Tab);
    EXPECT_EQ(Highlighted(), Strings{"lblSample"});
    window.findChild<QCheckBox*>()->setFocus();
    EXPECT_EQ(Highlighted(), Strings{});
}

TEST_F(AssistantWindow, AClickFollowsALink) {
    QTest::mouseClick(&Link("lblDatabase"), Qt::LeftButton);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(RowOf(model.Chosen().value()).name, "mnuToolsDataSetup");
}

TEST_F(AssistantWindow, EnterAndSpaceFollowTheLinkWithTheFocus) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        AssistantModel other(true);
        AssistantDialog dialog(other, nullptr);
        BringUp(dialog);
        Key(Qt::Key_Tab);
        Key(key);
        EXPECT_FALSE(dialog.isVisible()) << key;
        EXPECT_EQ(RowOf(other.Chosen().value()).name, "mnuHelpSample") << key;
    }
}

TEST_F(AssistantWindow, AnAccessKeyFollowsItsLink) {
    Mnemonic(Link("lblDatabase"), Qt::Key_D);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(RowOf(model.Chosen().value()).name, "mnuToolsDataSetup");
}

TEST_F(AssistantWindow, TheCheckBoxIsKeptHoweverTheWindowGoes) {
    Mnemonic(*window.findChild<QCheckBox*>(), Qt::Key_T);
    Key(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(model.ShowAtStartup());
    EXPECT_EQ(model.Chosen(), std::nullopt);
}

TEST_F(AssistantWindow, OkClosesIt) {
    QTest::mouseClick(window.findChild<QPushButton*>(QStringLiteral("cmdOK")), Qt::LeftButton);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(model.Chosen(), std::nullopt);
}

class HelpKey : public GuiTest {
  protected:
    void SetUp() override {
        GuiTest::SetUp();
        MakeHelpDatabase(folder.Path(),
                         "INSERT INTO CONTEXT_HELP VALUES ('frmDocument', 'Tab1', 'general.html'),"
                         " ('frmDocument', 'Tab2', 'malts.html');");
        files.files[folder.Path().string() + "/index_template.dat"] = "$START_PAGE";
        shell.Environment().help = &help;
    }
    void TearDown() override { shell.Environment().help = nullptr; }
    std::string TakePage() {
        if (browser.opened.empty()) return {};
        const std::string file = std::exchange(browser.opened, {}).back();
        return file.ends_with("/index.html") ? "home" : files.files[file];
    }
    // Returns what F1 asks for while action runs in the window of a model.
    template <class Action>
    Strings Asked(DialogModel& model, const Action& action) {
        Strings asked;
        QtDialogs dialogs(outside.settings);
        dialogs.Register<AboutModel, AboutDialog>();
        dialogs.Register<OptionsModel, OptionsDialog>(colors);
        dialogs.SetHelp(
            [&](const std::string& form, int tab) { asked.push_back(form + " " + std::to_string(tab)); });
        QTimer::singleShot(0, &window, [&] {
            QWidget* dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            QApplication::setActiveWindow(dialog);
            action(*dialog);
            dialog->close();
        });
        dialogs.ShowModal(model);
        return asked;
    }

    TemporaryFolder folder;
    RecordingBrowser browser;
    MemoryFiles files;
    Help help{folder.Path().string(), outside.messages, browser, files};
    QtColorChooser colors;
};

TEST_F(HelpKey, AsksForTheTabInFrontAlsoWhileACellIsEdited) {
    QTest::keyClick(&window, Qt::Key_F1);
    EXPECT_EQ(TakePage(), "home");
    NewRecipe();
    Key(Qt::Key_F1);
    EXPECT_EQ(TakePage(), "general.html");
    GridAt(Tab::Grains, "gridGrain", 1, 0);
    Type("Pa");
    Key(Qt::Key_F1);
    EXPECT_EQ(TakePage(), "malts.html");
    Key(Qt::Key_F1, Qt::ShiftModifier);
    Key(Qt::Key_F1, Qt::ControlModifier);
    EXPECT_EQ(TakePage(), "") << "only F1 alone";
}

TEST_F(HelpKey, AMinimisedRecipeGetsTheHomePage) {
    NewRecipe().parentWidget()->showMinimized();
    EXPECT_TRUE(window.RunCommand(CommandId::HelpAuto));
    EXPECT_EQ(TakePage(), "home");
}

TEST_F(HelpKey, AsksForTheFormInADialog) {
    AboutModel about;
    EXPECT_EQ(Asked(about, [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_F1); }),
              Strings{"frmAbout 0"});
}

TEST_F(HelpKey, AsksForTheTabInADialogWithTabs) {
    OptionsModel options(shell.SettingsNow(), *shell.DB(), outside.messages);
    const Strings asked = Asked(options, [](QWidget& dialog) {
        QTest::keyClick(&dialog, Qt::Key_F1);
        dialog.findChild<QTabWidget*>()->setCurrentIndex(2);
        QTest::keyClick(&dialog, Qt::Key_F1);
    });
    EXPECT_EQ(asked, (Strings{"frmOptions 1", "frmOptions 3"}));
}

TEST_F(HelpKey, WorksInAWindowWithoutADrawingOfItsOwnAndLeavesTheEntry) {
    ConvertUnitsModel converter(outside.messages);
    EXPECT_EQ(
        Asked(converter, [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_F1, Qt::ShiftModifier); }),
        Strings{});
    ConvertUnitsModel again(outside.messages);
    EXPECT_EQ(Asked(again,
                    [](QWidget& dialog) {
                        auto* box = dialog.findChild<QLineEdit*>();
                        box->setFocus();
                        QTest::keyClick(box, Qt::Key_F1);
                    }),
              Strings{"frmConvertUnits 0"});
    EXPECT_EQ(outside.messages.log, Strings{});
}

TEST_F(HelpKey, TheMainWindowShowsTheAssistantByItsKey) {
    QTest::keyClick(&window, Qt::Key_F3);
    EXPECT_EQ(outside.dialogs.shown, Strings{"frmAssistant"});
}

// The desktop's browser is not started: Qt hands the address to a receiver in its place.
TEST(QtBrowserTest, OpensPagesThatExist) {
    const TemporaryFolder folder;
    const std::string page = (folder.Path() / "a #1 page.html").string();
    std::ofstream(page) << "<p>Hops</p>";
    QTextBrowser receiver;
    QDesktopServices::setUrlHandler(QStringLiteral("file"), &receiver, "setSource");
    QtBrowser browser;
    EXPECT_EQ(browser.Open(folder.Path().string() + "/none.html"), kFileNotFoundCode);
    EXPECT_EQ(browser.Open(folder.Path().string()), kFileNotFoundCode);
    EXPECT_EQ(receiver.source(), QUrl());
    EXPECT_EQ(browser.Open(page), kOpenedCode);
    EXPECT_EQ(receiver.source().toLocalFile(), ToQt(page));
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
}

}  // namespace
}  // namespace tw::test
