// Autosave and the recovery of unsaved work in the real windows: their timers, their windows, and entries
// that are being typed meanwhile.
#include <QSignalSpy>

#include "GuiTest.h"
#include "platform/qt/QtDialogs.h"
#include "shell/RecoveryModel.h"
#include "shell/ui/AutoSaveDialog.h"
#include "shell/ui/RecoveryDialog.h"

namespace tw::test {
namespace {

class AutoSaveWindow : public GuiTest {
  protected:
    QTimer& Timer(const char* name) {
        auto* timer = window.findChild<QTimer*>(QLatin1String(name));
        EXPECT_NE(timer, nullptr) << name;
        return *timer;
    }
    // Opens a stored recipe, which becomes active.
    RecipeDocument& Stored(const char* name) {
        NewRecipe();
        RecipeDocument& document = *shell.Documents().Active();
        EXPECT_TRUE(shell.Opened()->saver.SaveUnder(document, name, 0, Asking::Quietly));
        return document;
    }
    std::string StoredNotes() {
        return shell.DB()->OpenRecordset("SELECT NOTES FROM RECIPES").Fields(0).Text();
    }
    // Shows the real window of autosave instead of the recorded one.
    void RunAutoSave() {
        AutoSaveModel model = shell.Opened()->autoSaver.Progress();
        AutoSaveDialog progress(model, &window);
        progress.exec();
        EXPECT_FALSE(model.IsOpen());
    }
};

TEST_F(AutoSaveWindow, TheTimerFollowsTheSwitch) {
    QTimer& timer = Timer("tmrAutoSave");
    EXPECT_EQ(timer.interval(), 60000);
    EXPECT_FALSE(timer.isActive());
    shell.SettingsNow().SetDoAutoSave(true);
    EXPECT_TRUE(timer.isActive());
    shell.SettingsNow().Store("Settings", "DoAutoSave", "0");
    EXPECT_FALSE(timer.isActive());
}

TEST_F(AutoSaveWindow, TheTimerTicksBehindAnotherWindow) {
    RecipeDocument& document = Stored("Stout");
    document.Fields().SetText(document.Record().txtNotes, "kept");
    shell.CurrentSettings().doAutoSaveEvery = 1;
    shell.SettingsNow().SetDoAutoSave(true);
    Timer("tmrAutoSave").start(0);
    QDialog other(&window);
    QObject::connect(&Timer("tmrAutoSave"), &QTimer::timeout, &other, &QDialog::accept);
    other.exec();
    EXPECT_EQ(StoredNotes(), "kept");
    EXPECT_FALSE(document.Changed());
}

TEST_F(AutoSaveWindow, TheWindowSavesAndGoesByItself) {
    RecipeDocument& document = Stored("Stout");
    document.Fields().SetText(document.Record().txtNotes, "kept");
    RunAutoSave();
    EXPECT_EQ(StoredNotes(), "kept");
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_TRUE(outside.messages.log.empty());
}

TEST_F(AutoSaveWindow, ShowsTheRecipeAndHowFarItIs) {
    Stored("Stout");
    Stored("Porter");
    AutoSaveModel model = shell.Opened()->autoSaver.Progress();
    AutoSaveDialog progress(model, &window);
    EXPECT_EQ(progress.findChild<QLabel*>(QStringLiteral("lblRecipe"))->text(), QString());
    progress.exec();
    auto* bar = progress.findChild<QProgressBar*>(QStringLiteral("ProgressBar1"));
    EXPECT_EQ(bar->minimum(), 0);
    EXPECT_EQ(bar->maximum(), 2);
    EXPECT_EQ(bar->value(), 2);
    EXPECT_EQ(progress.findChild<QLabel*>(QStringLiteral("lblRecipe"))->text(), QStringLiteral("Porter"));
}

TEST_F(AutoSaveWindow, SaysWhatItIsSaving) {
    AutoSaveModel model = shell.Opened()->autoSaver.Progress();
    const AutoSaveDialog progress(model, &window);
    for (const auto& [name, text] :
         {std::pair("Label1", "Saving your open recipes."), std::pair("Label2", "Recipe:")}) {
        const auto* label = progress.findChild<QLabel*>(QLatin1String(name));
        ASSERT_NE(label, nullptr) << name;
        EXPECT_EQ(FromQt(label->text()), text);
    }
}

TEST_F(AutoSaveWindow, AnOpenCellEditorGoesOnBeingTypedInto) {
    Stored("Stout");
    GridView& grid = GridAt(Tab::Grains, "gridGrain", 1, 1);
    Type("12");
    QPointer<QWidget> editor = QApplication::focusWidget();
    ASSERT_NE(editor.data(), static_cast<QWidget*>(&grid));
    RunAutoSave();
    ASSERT_EQ(QApplication::focusWidget(), editor.data());
    Type(".5");
    Key(Qt::Key_Return);
    EXPECT_EQ(shell.Documents().Active()->Record().gridGrain.Text(1, 1), "12.5");
    EXPECT_TRUE(shell.Documents().Active()->Changed());
    EXPECT_TRUE(outside.messages.log.empty());
}

TEST_F(AutoSaveWindow, ABadEntryInABoxBringsNoMessage) {
    Stored("Stout");
    auto& box = Find<QLineEdit>("txtTotalVol");
    box.setFocus();
    Type("fiv");
    RunAutoSave();
    EXPECT_TRUE(outside.messages.log.empty());
    EXPECT_EQ(box.text(), QStringLiteral("fiv"));
    EXPECT_EQ(QApplication::focusWidget(), &box);
}

TEST_F(AutoSaveWindow, EditsAreKeptSomeSecondsLater) {
    QTemporaryDir folder;
    const QString database = folder.filePath(QStringLiteral("beer.mdb"));
    shell.DB()->ExecuteNative("VACUUM INTO " + SqlText(FromQt(database)));
    Shell second({outside.platform});
    second.Environment().recoveryFolder = FromQt(folder.filePath(QStringLiteral("unsaved")));
    MainWindow other(second, outside.platform);
    ASSERT_TRUE(other.StartUp(FromQt(database)));
    EXPECT_TRUE(outside.dialogs.shown.empty());
    auto* timer = other.findChild<QTimer*>(QStringLiteral("tmrKeepUnsaved"));
    RecipeDocument& document = second.Opened()->recipes.Create("");
    EXPECT_FALSE(timer->isActive());
    document.Fields().SetText(document.Record().txtNotes, "typed");
    EXPECT_TRUE(timer->isActive());
    EXPECT_LE(timer->interval(), 5000);
    QSignalSpy ticks(timer, &QTimer::timeout);
    timer->start(0);
    ASSERT_TRUE(ticks.wait());
    Recovery files(FromQt(folder.filePath(QStringLiteral("unsaved"))), FromQt(database), {});
    ASSERT_EQ(files.Find().lost.size(), 1u);
    EXPECT_FALSE(timer->isActive());
}

TEST_F(AutoSaveWindow, TheStatusBarSaysWhileWorkIsNotKept) {
    QTemporaryDir folder;
    const QString database = folder.filePath(QStringLiteral("beer.mdb"));
    const QString unsaved = folder.filePath(QStringLiteral("unsaved"));
    shell.DB()->ExecuteNative("VACUUM INTO " + SqlText(FromQt(database)));
    QFile inTheWay(unsaved);
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    Shell second({outside.platform});
    second.Environment().recoveryFolder = FromQt(unsaved);
    MainWindow other(second, outside.platform);
    other.resize(900, 600);
    other.show();
    ASSERT_TRUE(other.StartUp(FromQt(database)));
    auto* notice = other.findChild<QLabel*>(QStringLiteral("lblNotice"));
    auto* timer = other.findChild<QTimer*>(QStringLiteral("tmrKeepUnsaved"));
    ASSERT_NE(notice, nullptr);
    RecipeDocument& document = second.Opened()->recipes.Create("");
    document.Fields().SetText(document.Record().txtNotes, "typed");
    EXPECT_EQ(notice->text(), QString());
    const auto tick = [&] {
        timer->stop();
        QMetaObject::invokeMethod(timer, "timeout", Qt::DirectConnection);
    };
    tick();
    EXPECT_TRUE(timer->isActive());
    EXPECT_TRUE(notice->isVisible());
    const QString text = QStringLiteral("Unsaved work is not being kept: save your recipes.");
    EXPECT_EQ(notice->text(), text);
    EXPECT_EQ(notice->accessibleName(), text);
    // The description of a command replaces the notice for a moment.
    other.statusBar()->showMessage(QStringLiteral("Opens a recipe"));
    EXPECT_FALSE(notice->isVisible());
    other.statusBar()->clearMessage();
    EXPECT_TRUE(notice->isVisible());
    ASSERT_TRUE(inTheWay.remove());
    tick();
    EXPECT_FALSE(timer->isActive());
    EXPECT_EQ(notice->text(), QString());
    EXPECT_EQ(other.statusBar()->currentMessage(), QStringLiteral("Unsaved work is being kept again."));
    outside.messages.answers = {Answer::No};
}

TEST_F(AutoSaveWindow, TheRecoveryWindowRestoresWhatIsChosen) {
    QTemporaryDir folder;
    const QString database = folder.filePath(QStringLiteral("beer.mdb"));
    const std::string root = FromQt(folder.filePath(QStringLiteral("unsaved")));
    shell.DB()->ExecuteNative("VACUUM INTO " + SqlText(FromQt(database)));
    {
        Shell lost({outside.platform});
        lost.Environment().recoveryFolder = root;
        ASSERT_TRUE(lost.PerformSplashScreenInit(FromQt(database)));
        for (const char* name : {"Stout", "Porter"}) {
            RecipeDocument& document = lost.Opened()->recipes.Create("");
            document.Fields().SetText(document.Record().txtName, name);
        }
        lost.Unsaved().Keep();
    }
    Shell next({outside.platform});
    next.Environment().recoveryFolder = root;
    MainWindow other(next, outside.platform);
    outside.dialogs.scripts.emplace_back([&](DialogModel& model) {
        RecoveryDialog dialog(dynamic_cast<RecoveryModel&>(model), &other);
        dialog.show();
        auto* list = dialog.findChild<QListWidget*>(QStringLiteral("lstRecipes"));
        ASSERT_EQ(list->count(), 2);
        EXPECT_TRUE(list->item(1)->text().startsWith(QStringLiteral("Porter, ")));
        list->setCurrentRow(1);
        QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("cmdRestore")), Qt::LeftButton);
        ASSERT_EQ(list->count(), 1);
        EXPECT_TRUE(dialog.isVisible());
        QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("cmdRestoreAll")), Qt::LeftButton);
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_FALSE(model.IsOpen());
    });
    ASSERT_TRUE(other.StartUp(FromQt(database)));
    ASSERT_EQ(next.Documents().All().size(), 2u);
    EXPECT_EQ(next.Documents().All()[0]->Caption(), "Porter");
    EXPECT_EQ(FromQt(other.ActiveWindow()->findChild<QLineEdit*>(QStringLiteral("txtName"))->text()),
              "Stout");
    EXPECT_TRUE(next.Documents().All()[0]->Changed());
}

}  // namespace
}  // namespace tw::test
