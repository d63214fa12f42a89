// Tests of the main window: menus and toolbar, its position on the screen, its documents, closing it.
#include "GuiTest.h"
#include "platform/qt/QtDialogs.h"
#include "shell/AboutModel.h"
#include "shell/ui/AboutDialog.h"
#include "shell/ui/DocumentArea.h"
#include "shell/ui/Icons.h"
#include "shell/ui/MainGeometry.h"

namespace tw::test {
namespace {

// True if the picture has an opaque pixel. A drawing that Qt cannot read leaves it empty.
bool HasInk(const QImage& picture) {
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (qAlpha(picture.pixel(x, y)) == 255) return true;
    return false;
}

class MainWindow : public GuiTest {
  protected:
    QAction& Action(const char* name) {
        auto* action = window.findChild<QAction*>(QLatin1String(name));
        EXPECT_NE(action, nullptr) << name;
        return *action;
    }
};

TEST_F(MainWindow, ShowsEveryCommandOfTheBar) {
    for (const MenuItem& item : shell.Bar().Items()) {
        const QAction& action = Action(std::string(item.name).c_str());
        EXPECT_EQ(action.isSeparator(), item.IsSeparator()) << item.name;
        EXPECT_EQ(action.isVisible(), item.visible) << item.name;
        EXPECT_EQ(action.isEnabled() && action.isVisible(), item.enabled && item.visible) << item.name;
        EXPECT_EQ(action.shortcut(), QKeySequence(ToQt(item.shortcut))) << item.name;
        if (item.IsSeparator()) continue;
        EXPECT_EQ(FromQt(action.text()), ShownCaption(RowOf(item.id), item.caption));
    }
}

TEST_F(MainWindow, EveryVisibleCommandHasASentenceForTheStatusBar) {
    for (const MenuItem& item : shell.Bar().Items()) {
        if (item.IsSeparator() || !item.visible) continue;
        EXPECT_TRUE(Action(std::string(item.name).c_str()).statusTip().endsWith(QLatin1Char('.')))
            << item.name;
    }
}

TEST_F(MainWindow, EveryToolbarButtonHasAPictureAndItsKeyInTheTip) {
    for (const ToolButton& button : shell.Bar().Buttons()) {
        for (int style = 0; style < 3; ++style) {
            const QIcon icon = ToolIcon(button.image, style);
            ASSERT_FALSE(icon.isNull()) << style << " " << button.image;
            EXPECT_TRUE(HasInk(icon.pixmap(QSize(48, 48)).toImage())) << style << " " << button.image;
        }
    }
    EXPECT_EQ(Action("tbToolBar(New)").toolTip(), QStringLiteral("New (Ctrl+N)"));
    EXPECT_EQ(Action("tbToolBar(Insert)").toolTip(), QStringLiteral("Insert Row"));
}

// The button does not ask for the printer as Ctrl+P does, so it does not show that key.
TEST_F(MainWindow, ThePrintButtonSaysWhatItDoesAndNotTheKeyOfTheMenu) {
    EXPECT_EQ(Action("tbToolBar(Print)").toolTip(), QStringLiteral("Print"));
    EXPECT_EQ(FromQt(Action("tbToolBar(Print)").statusTip()),
              "Prints the recipe in front on the default printer, or asks first, as the options say.");
    EXPECT_EQ(FromQt(Action("mnuFilePrint").statusTip()),
              "Prints the recipe in front on a printer that you choose.");
}

TEST_F(MainWindow, FollowsTheStatesOfTheCommands) {
    EXPECT_FALSE(Action("mnuFileSave").isEnabled());
    NewRecipe();
    Type("A");
    EXPECT_TRUE(Action("mnuFileSave").isEnabled());
    EXPECT_TRUE(Action("tbToolBar(Save)").isEnabled());
    EXPECT_FALSE(Action("mnuEditInsert").isEnabled());
    window.ActiveWindow()->ShowTab(Tab::Grains);
    EXPECT_TRUE(Action("mnuEditInsert").isEnabled());
    EXPECT_FALSE(Action("mnuEditDelete").isEnabled());
}

TEST_F(MainWindow, AppendOnInsertIsCheckedByItsCommandAlone) {
    NewRecipe();
    const bool before = shell.SettingsNow().AppendRows();
    Action("mnuEditAppendFlag").trigger();
    EXPECT_EQ(shell.SettingsNow().AppendRows(), !before);
    EXPECT_EQ(Action("mnuEditAppendFlag").isChecked(), !before);
}

TEST_F(MainWindow, ListsTheOpenRecipesInTheWindowMenu) {
    NewRecipe();
    Type("Bock & Co");
    NewRecipe();
    auto* menu = window.findChild<QMenu*>(QStringLiteral("mnuWindow"));
    emit menu->aboutToShow();
    emit menu->aboutToShow();  // a second opening does not list them twice
    QStringList titles;
    for (const QAction* action : menu->actions())
        if (action->isCheckable()) titles << action->text();
    EXPECT_EQ(titles, (QStringList{QStringLiteral("&1 Bock && Co*"), QStringLiteral("&2 Untitled 2")}));
    menu->actions().at(menu->actions().size() - 2)->trigger();
    EXPECT_EQ(shell.Documents().Active()->BeerName(), "Bock & Co");
}

// Returns what the desktop shows as the title of the main window.
QString TitleShown(const QWidget& window) {
    return window.windowHandle()->title();
}

TEST_F(MainWindow, MarksARecipeThatHasChangesToSave) {
    NewRecipe();
    QWidget& frame = *window.ActiveWindow()->parentWidget();
    frame.showMaximized();
    EXPECT_FALSE(frame.isWindowModified());
    EXPECT_EQ(TitleShown(window), QStringLiteral("Tunwright - [Untitled 1]"));
    EXPECT_EQ(window.accessibleName(), QStringLiteral("Tunwright - Untitled 1"));
    Type("Bock");
    EXPECT_TRUE(frame.isWindowModified());
    EXPECT_EQ(TitleShown(window), QStringLiteral("Tunwright - [Bock*]"));
    EXPECT_EQ(window.accessibleName(), QStringLiteral("Tunwright - Bock, modified"));
    EXPECT_EQ(window.ActiveWindow()->accessibleName(), QStringLiteral("Bock, modified"));
    // The caption itself has no mark.
    EXPECT_EQ(shell.Documents().Active()->Caption(), "Bock");
    ASSERT_TRUE(shell.Documents().Active()->Storage().SaveUnder("Bock", 0, Asking::Quietly));
    EXPECT_FALSE(frame.isWindowModified());
    EXPECT_EQ(TitleShown(window), QStringLiteral("Tunwright - [Bock]"));
    EXPECT_EQ(window.accessibleName(), QStringLiteral("Tunwright - Bock"));
}

// In a window's title, Qt replaces these characters by the mark.
TEST_F(MainWindow, ShowsANameThatLooksLikeTheMark) {
    NewRecipe();
    window.ActiveWindow()->parentWidget()->showMaximized();
    Type("[*] Bock [*][*]");
    // A word joiner has no width.
    EXPECT_EQ(TitleShown(window).remove(QChar(0x2060)), QStringLiteral("Tunwright - [[*] Bock [*][*]*]"));
    EXPECT_EQ(window.ActiveWindow()->parentWidget()->windowTitle().count(QLatin1String("[*]")), 1);
    EXPECT_EQ(window.ActiveWindow()->accessibleName(), QStringLiteral("[*] Bock [*][*], modified"));
}

TEST_F(MainWindow, MarksTheRecipeThatIsInFront) {
    NewRecipe();
    Type("Bock");
    NewRecipe();
    window.ActiveWindow()->parentWidget()->showMaximized();
    EXPECT_EQ(window.accessibleName(), QStringLiteral("Tunwright - Untitled 2"));
    EXPECT_EQ(TitleShown(window), QStringLiteral("Tunwright - [Untitled 2]"));
    ASSERT_TRUE(window.RunCommand(CommandId::FileClose));
    EXPECT_EQ(window.accessibleName(), QStringLiteral("Tunwright - Bock, modified"));
    outside.messages.answers = {Answer::No};
    ASSERT_TRUE(window.RunCommand(CommandId::FileClose));
    EXPECT_EQ(window.accessibleName(), QStringLiteral("Tunwright"));
    EXPECT_EQ(TitleShown(window), QStringLiteral("Tunwright"));
}

TEST_F(MainWindow, TilesAcrossAndDown) {
    NewRecipe();
    NewRecipe();
    auto* area = window.findChild<DocumentArea*>();
    const QSize all = area->viewport()->size();
    ASSERT_TRUE(window.RunCommand(CommandId::WindowTileHorizontal));
    for (const QMdiSubWindow* child : area->subWindowList()) EXPECT_EQ(child->width(), all.width());
    ASSERT_TRUE(window.RunCommand(CommandId::WindowTileVertical));
    for (const QMdiSubWindow* child : area->subWindowList()) EXPECT_EQ(child->height(), all.height());
}

TEST_F(MainWindow, CascadesEveryFrameWithinSight) {
    for (int i = 0; i < 8; ++i) NewRecipe();
    auto* area = window.findChild<DocumentArea*>();
    ASSERT_TRUE(window.RunCommand(CommandId::WindowCascade));
    for (const QMdiSubWindow* child : area->subWindowList())
        EXPECT_TRUE(area->viewport()->rect().contains(child->geometry())) << FromQt(child->windowTitle());
}

// The room on a screen of 960 by 540 pixels.
TEST_F(MainWindow, ANewRecipeIsWhollyInSightOnASmallScreen) {
    window.resize(950, 500);
    QApplication::processEvents();
    ASSERT_EQ(window.size(), QSize(950, 500));
    auto* area = window.findChild<DocumentArea*>();
    for (int i = 0; i < 3; ++i) {
        NewRecipe();
        const QWidget& frame = *window.ActiveWindow()->parentWidget();
        EXPECT_FALSE(frame.isMaximized());
        EXPECT_TRUE(area->viewport()->rect().contains(frame.geometry()));
    }
    BuildAllTabs();
    QApplication::processEvents();
    EXPECT_TRUE(area->viewport()->rect().contains(window.ActiveWindow()->parentWidget()->geometry()));
}

TEST_F(MainWindow, DialogsComeUpInTheSizeTheyWereLeftIn) {
    QtDialogs dialogs(outside.settings);
    QSize left, found;
    dialogs.Register("frmAbout", [&](DialogModel& model, QWidget* parent) {
        std::unique_ptr<QDialog> dialog = std::make_unique<AboutDialog>(model, parent);
        QTimer::singleShot(0, dialog.get(), [&, dialog = dialog.get()] {
            found = dialog->size();
            dialog->resize(found + QSize(30, 15));
            left = dialog->size();
            dialog->reject();
        });
        return dialog;
    });
    for (int time = 0; time < 2; ++time) {
        const QSize before = left;
        AboutModel about;
        dialogs.ShowModal(about);
        EXPECT_FALSE(about.IsOpen());
        if (time > 0) {
            EXPECT_EQ(found, before);
        }
    }
}

TEST_F(MainWindow, RemembersWhetherRecipesAreMaximized) {
    NewRecipe();
    window.ActiveWindow()->parentWidget()->showMaximized();
    EXPECT_EQ(shell.CurrentSettings().childState, 2);
    // The minimised state is never stored.
    window.ActiveWindow()->parentWidget()->showMinimized();
    EXPECT_EQ(shell.CurrentSettings().childState, 2);
    window.ActiveWindow()->parentWidget()->showNormal();
    EXPECT_EQ(shell.CurrentSettings().childState, 0);
}

TEST_F(MainWindow, OpensRecipesMaximizedWhereThatIsRemembered) {
    shell.CurrentSettings().childState = 2;
    NewRecipe();
    Type("Bock");
    EXPECT_TRUE(window.ActiveWindow()->parentWidget()->isMaximized());
    NewRecipe();
    EXPECT_TRUE(window.ActiveWindow()->parentWidget()->isMaximized());
    auto* area = window.findChild<DocumentArea*>();
    for (QMdiSubWindow* frame : area->subWindowList()) {
        area->setActiveSubWindow(frame);
        EXPECT_TRUE(frame->isMaximized());
        EXPECT_EQ(shell.CurrentSettings().childState, 2);
        const RecipeDocument& front = *shell.Documents().Active();
        EXPECT_EQ(FromQt(TitleShown(window)),
                  "Tunwright - [" + front.Caption() + (front.Changed() ? "*]" : "]"));
    }
    // The recipe behind the closed one comes to the front as it was.
    ASSERT_TRUE(window.RunCommand(CommandId::FileClose));
    EXPECT_TRUE(window.ActiveWindow()->parentWidget()->isMaximized());
    EXPECT_EQ(TitleShown(window), QStringLiteral("Tunwright - [Bock*]"));
    EXPECT_EQ(shell.CurrentSettings().childState, 2);
    // So does a normal state.
    NewRecipe();
    window.ActiveWindow()->parentWidget()->showNormal();
    EXPECT_EQ(shell.CurrentSettings().childState, 0);
    area->activateNextSubWindow();
    EXPECT_EQ(shell.Documents().Active()->Caption(), "Bock");
    EXPECT_FALSE(window.ActiveWindow()->parentWidget()->isMaximized());
    EXPECT_EQ(FromQt(TitleShown(window)), "Tunwright");
    NewRecipe();
    EXPECT_FALSE(window.ActiveWindow()->parentWidget()->isMaximized());
}

TEST_F(MainWindow, StaysWhenARecipeRefusesToClose) {
    NewRecipe();
    Type("Draft");
    outside.messages.answers = {Answer::Cancel, Answer::No};
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(window.close());
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(shell.DB(), nullptr);
}

// 15 twips are a pixel at 96 dots per inch.
TEST_F(MainWindow, KeepsItsSizeInTwips) {
    window.setGeometry(30, 40, 900, 600);
    EXPECT_TRUE(window.close());
    EXPECT_EQ(outside.settings.Read(SettingsPort::Layer::User, "Settings", "MainWidth"), "13500");
    EXPECT_EQ(outside.settings.Read(SettingsPort::Layer::User, "Settings", "MainHeight"), "9000");
}

TEST(MainGeometry, ComesFromTwipsAndStaysOnTheScreen) {
    const QRect screen(0, 0, 1000, 800);
    Settings settings;
    settings.mainLeft = 1500, settings.mainTop = 750, settings.mainWidth = 7500, settings.mainHeight = 6000;
    EXPECT_EQ(GeometryOf(settings, 96, {100, 100}, screen), QRect(100, 50, 500, 400));
    // Never smaller than the minimum size, beyond an edge of the screen or larger than the screen.
    EXPECT_EQ(GeometryOf(settings, 96, {600, 100}, screen), QRect(100, 50, 600, 400));
    settings.mainLeft = 90000;
    EXPECT_EQ(GeometryOf(settings, 96, {100, 100}, screen), QRect(500, 50, 500, 400));
    settings.mainLeft = -90000, settings.mainWidth = 90000;
    EXPECT_EQ(GeometryOf(settings, 96, {100, 100}, screen), QRect(0, 50, 1000, 400));
}

TEST_F(MainWindow, ShowsAnErrorThatNoRoutineTraps) {
    NewRecipe();
    // The store fails at its next statement, which an event handler runs.
    shell.DB()->SetStatementHook([](std::string_view) { throw Error("Store", "the disk is gone", 3024); });
    window.ActiveWindow()->ShowTab(Tab::Grains);
    Type("x");
    shell.DB()->SetStatementHook(nullptr);
    ASSERT_FALSE(outside.messages.log.empty());
    EXPECT_EQ(outside.messages.log.front(), "[Error] the disk is gone (3024)");
    EXPECT_TRUE(window.isVisible());
}

}  // namespace
}  // namespace tw::test
