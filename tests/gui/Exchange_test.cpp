// Tests of import and export in the real windows: the dialogs with the keyboard, the progress, files
// dropped on the main window.
#include <QMimeData>
#include <QSignalSpy>
#include <fstream>

#include "GuiTest.h"
#include "app/DialogWindows.h"
#include "app/ProgramOptions.h"
#include "platform/qt/ColorChooser.h"
#include "platform/qt/FileDialog.h"
#include "platform/qt/QtDialogs.h"
#include "shell/ui/ImportExportDialog.h"
#include "shell/ui/NameConflictDialog.h"
#include "shell/ui/StylesNotImportedDialog.h"
#include "tree/ui/TreePane.h"

namespace tw::test {
namespace {

class Exchange : public GuiTest {
  protected:
    void SetUp() override {
        GuiTest::SetUp();
        for (const char* name : {"Ale", "Mild"}) {
            shell.DB()->Execute(std::string("INSERT INTO RECIPES (NAME, FOLDER_ID, STYLE_ID) VALUES ('") +
                                name + "', 0, 0)");
            shell.Opened()->data.objects.AddRecipeNodesByName(name);
        }
    }
    static void Show(QDialog& dialog) {
        dialog.show();
        QApplication::setActiveWindow(&dialog);
        QApplication::processEvents();
    }
    static QPushButton& Button(const QDialog& dialog, const char* name) {
        auto* button = dialog.findChild<QPushButton*>(QLatin1String(name));
        EXPECT_NE(button, nullptr) << name;
        return *button;
    }
    // Presses an access key and waits for the click, which the button delays.
    static void Mnemonic(QAbstractButton& button, Qt::Key key) {
        QSignalSpy clicked(&button, &QAbstractButton::clicked);
        QTest::keyClick(&button, key, Qt::AltModifier);
        EXPECT_TRUE(!clicked.isEmpty() || clicked.wait());
    }
};

TEST_F(Exchange, RecipesArePickedAndTakenOnWithTheKeyboardAlone) {
    ImportExportModel model(shell.Opened()->data.tree, false);
    ImportExportDialog dialog(model, nullptr);
    Show(dialog);
    EXPECT_EQ(FromQt(dialog.windowTitle()), "Export Recipes");
    EXPECT_EQ(Focus(), "treeRecipes");
    EXPECT_FALSE(Button(dialog, "cmdNext").isEnabled());
    Mnemonic(Button(dialog, "cmdAdd"), Qt::Key_A);
    EXPECT_EQ(model.Recipes().Selection(), (Strings{"Ale", "Mild"}));
    EXPECT_TRUE(Button(dialog, "cmdNext").isEnabled());
    auto& append = *dialog.findChild<QCheckBox*>(QStringLiteral("chkAppend"));
    EXPECT_TRUE(append.isChecked());
    Mnemonic(append, Qt::Key_F);
    EXPECT_FALSE(model.Append());
    Mnemonic(Button(dialog, "cmdNext"), Qt::Key_N);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_FALSE(model.Cancelled());
}

TEST_F(Exchange, NextGoesDarkWhenTheLastRecipeIsTakenOut) {
    ImportExportModel model(shell.Opened()->data.tree, true);
    ImportExportDialog dialog(model, nullptr);
    Show(dialog);
    EXPECT_EQ(FromQt(dialog.windowTitle()), "Import Recipes");
    EXPECT_EQ(dialog.findChild<QCheckBox*>(QStringLiteral("chkAppend")), nullptr);
    model.Recipes().Add("R:1:0");
    EXPECT_TRUE(Button(dialog, "cmdNext").isEnabled());
    model.Recipes().Press("cmdDel");
    EXPECT_FALSE(Button(dialog, "cmdNext").isEnabled());
    Key(Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_FALSE(model.IsOpen());
    EXPECT_TRUE(model.Cancelled());
}

TEST_F(Exchange, ANewNameIsTypedOverTheOldOneAndTakenWithEnter) {
    NameConflictModel model("Mild", true, outside.messages);
    NameConflictDialog dialog(model, nullptr);
    Show(dialog);
    EXPECT_EQ(Focus(), "txtNewName");
    // The old name is refused as the new name and stays selected, so that typing replaces it.
    Key(Qt::Key_Return);
    EXPECT_EQ(outside.messages.TakeLog(),
              Strings{"[Same Name] To rename you must enter a different recipe name"});
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(Focus(), "txtNewName");
    Key(Qt::Key_Delete);
    Key(Qt::Key_Return);
    EXPECT_EQ(outside.messages.TakeLog(), Strings{"[No Name] To rename you must enter a recipe name"});
    Type("Mild 2");
    Key(Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(model.Result().newName, "Mild 2");
    EXPECT_EQ(model.Result().response, ConflictResponse::Rename);
}

TEST_F(Exchange, AFreeNameIsProposedAndTakenWithEnterOrTypedOver) {
    for (const bool typed : {false, true}) {
        NameConflictModel model("Mild", true, outside.messages);
        model.SetProposal("Mild (2)");
        NameConflictDialog dialog(model, nullptr);
        Show(dialog);
        const auto& box = *dialog.findChild<QLineEdit*>(QStringLiteral("txtNewName"));
        EXPECT_EQ(FromQt(box.selectedText()), "Mild (2)");
        if (typed) Type("Dark");
        Key(Qt::Key_Return);
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(model.Result().newName, typed ? "Dark" : "Mild (2)");
    }
    EXPECT_EQ(outside.messages.log, Strings{});
}

TEST_F(Exchange, EachAnswerToATakenNameHasItsKey) {
    const auto answerTo = [&](const char* button, Qt::Key key) {
        NameConflictModel model("Mild", false, outside.messages);
        NameConflictDialog dialog(model, nullptr);
        Show(dialog);
        if (key == Qt::Key_Escape)
            Key(key);
        else
            Mnemonic(Button(dialog, button), key);
        EXPECT_FALSE(dialog.isVisible());
        return model.Result().response;
    };
    EXPECT_EQ(answerTo("cmdOverwrite", Qt::Key_O), ConflictResponse::Overwrite);
    EXPECT_EQ(answerTo("cmdSkip", Qt::Key_S), ConflictResponse::Skip);
    EXPECT_EQ(answerTo("cmdAbort", Qt::Key_A), ConflictResponse::Abort);
    EXPECT_EQ(answerTo("", Qt::Key_Escape), ConflictResponse::Abort);
}

TEST_F(Exchange, TheLabelsOfATakenNameSayWhichWayItGoes) {
    NameConflictModel model(std::string(10000, 'x'), false, outside.messages);
    NameConflictDialog dialog(model, nullptr);
    Show(dialog);
    const auto text = [&](const char* name) {
        return FromQt(dialog.findChild<QLabel*>(QLatin1String(name))->text());
    };
    EXPECT_EQ(text("lblRename"), "Export the recipe with a different name");
    EXPECT_EQ(text("lblSkip"), "Do not export this recipe");
    EXPECT_EQ(text("lblAbort"), "Abort the export process");
    EXPECT_LT(dialog.width(), QApplication::primaryScreen()->availableSize().width());
    EXPECT_EQ(dialog.findChild<QLineEdit*>()->text().size(), 10000);
}

TEST_F(Exchange, UnknownStylesAreListedAndEnterClosesTheList) {
    StylesNotImportedModel model({{"Mild", "English Mild"}, {"Ale", "Old"}});
    StylesNotImportedDialog dialog(model, nullptr);
    Show(dialog);
    auto& grid = *dialog.findChild<QTreeWidget*>(QStringLiteral("grdEffected"));
    EXPECT_EQ(FromQt(grid.headerItem()->text(0)), "Effected Recipe");
    EXPECT_EQ(FromQt(grid.headerItem()->text(1)), "Unrecognized Style");
    ASSERT_EQ(grid.topLevelItemCount(), 2);
    EXPECT_EQ(FromQt(grid.topLevelItem(1)->text(0)), "Ale");
    EXPECT_EQ(FromQt(grid.topLevelItem(1)->text(1)), "Old");
    Key(Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_FALSE(model.IsOpen());
}

TEST_F(Exchange, EveryDialogHasAWindowOfItsOwn) {
    QtDialogs dialogs(outside.settings);
    QtColorChooser colors;
    RegisterDialogWindows(dialogs, colors, outside.settings);
    ImportExportModel recipes(shell.Opened()->data.tree, true);
    NameConflictModel conflict("Mild", true, outside.messages);
    StylesNotImportedModel styles({});
    FileDialogModel file({}, outside.messages);
    EXPECT_NE(dynamic_cast<ImportExportDialog*>(dialogs.Make(recipes, nullptr).get()), nullptr);
    EXPECT_NE(dynamic_cast<NameConflictDialog*>(dialogs.Make(conflict, nullptr).get()), nullptr);
    EXPECT_NE(dynamic_cast<StylesNotImportedDialog*>(dialogs.Make(styles, nullptr).get()), nullptr);
    EXPECT_NE(dynamic_cast<FileDialog*>(dialogs.Make(file, nullptr).get()), nullptr);
}

class ExchangeFiles : public Exchange {
  protected:
    QString File(const char* name) {
        QString path = folder.filePath(QLatin1String(name));
        std::ofstream(FromQt(path)) << "a text";
        return path;
    }
    std::string NotRecognized(const QString& path) {
        return "[Error] File not recognized.\r\n\"" + FromQt(path) + "\" is not valid Tunwright Recipe file";
    }
    QTemporaryDir folder;
};

TEST_F(ExchangeFiles, TheFileDialogAsksForWhatItIsTold) {
    FileDialogModel save(
        {FileDialogModel::Kind::Save, "Export Recipes", "TWR", "Tunwright Recipes (*.TWR)", "*.TWR", false},
        outside.messages);
    FileDialog saves(save, nullptr);
    EXPECT_EQ(FromQt(saves.windowTitle()), "Export Recipes");
    EXPECT_EQ(saves.acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(saves.nameFilters(), QStringList{QStringLiteral("Tunwright Recipes (*.TWR)")});
    EXPECT_EQ(FromQt(saves.defaultSuffix()), "TWR");
    EXPECT_TRUE(saves.testOption(QFileDialog::DontConfirmOverwrite));
    FileDialogModel open(
        {FileDialogModel::Kind::Open, "Import Recipes", "TWR", "Tunwright Recipes (*.TWR)", "*.TWR", true},
        outside.messages);
    FileDialog opens(open, nullptr);
    EXPECT_EQ(opens.acceptMode(), QFileDialog::AcceptOpen);
    EXPECT_EQ(opens.fileMode(), QFileDialog::ExistingFile);
    EXPECT_FALSE(opens.testOption(QFileDialog::DontConfirmOverwrite));
}

TEST_F(ExchangeFiles, ANameTypedIntoTheFileDialogIsTakenWithItsExtension) {
    FileDialogModel model(
        {FileDialogModel::Kind::Save, "Export Recipes", "TWR", "Tunwright Recipes (*.TWR)", "*.TWR", true},
        outside.messages);
    FileDialog dialog(model, nullptr);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setDirectory(folder.path());
    Show(dialog);
    Type("Ales");
    Key(Qt::Key_Return);
    EXPECT_FALSE(model.Cancelled());
    EXPECT_EQ(model.FileName(), FromQt(folder.filePath(QStringLiteral("Ales.TWR"))));
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(ExchangeFiles, EscapeInTheFileDialogTakesNone) {
    FileDialogModel model({}, outside.messages);
    FileDialog dialog(model, nullptr);
    Show(dialog);
    Key(Qt::Key_Escape);
    EXPECT_TRUE(model.Cancelled());
    EXPECT_FALSE(dialog.isVisible());
}

// Sends the events of a drag with data to the main window.
class Drag {
  public:
    Drag(MainWindow& target, const QMimeData& mime) : window_(target), mime_(mime) {
        QDragEnterEvent enter({50, 50}, Qt::CopyAction | Qt::MoveAction, &mime_, Qt::LeftButton, {});
        enter.setAccepted(false);
        QApplication::sendEvent(&window_, &enter);
        followed = enter.isAccepted();
        canDrop = enter.dropAction() == Qt::CopyAction;
    }
    void Leave() {
        QDragLeaveEvent leave;
        QApplication::sendEvent(&window_, &leave);
    }
    void Drop() {
        QDropEvent drop({50, 50}, Qt::CopyAction | Qt::MoveAction, &mime_, Qt::LeftButton, {});
        QApplication::sendEvent(&window_, &drop);
        EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
        QApplication::processEvents();
    }

    bool followed = false;
    bool canDrop = false;

  private:
    MainWindow& window_;
    const QMimeData& mime_;
};

TEST_F(ExchangeFiles, EachFileOfADropIsImportedInItsOrder) {
    const QString second = File("b.TWR"), first = File("a \"x\".TWR");
    QMimeData mime;
    mime.setUrls({QUrl::fromLocalFile(second), QUrl(QStringLiteral("http://example.org/c.TWR")),
                  QUrl::fromLocalFile(folder.filePath(QStringLiteral("missing.TWR"))),
                  QUrl::fromLocalFile(first)});
    Drag drag(window, mime);
    EXPECT_TRUE(drag.followed);
    EXPECT_TRUE(drag.canDrop);
    EXPECT_EQ(window.cursor().shape(), Qt::ArrowCursor);
    drag.Drop();
    EXPECT_EQ(outside.messages.log, (Strings{NotRecognized(second), NotRecognized(first)}));
}

TEST_F(ExchangeFiles, ADragWithoutFilesShowsTheHourglassAndDropsNothing) {
    QMimeData mime;
    mime.setText(QStringLiteral("a text"));
    Drag drag(window, mime);
    EXPECT_TRUE(drag.followed);
    EXPECT_FALSE(drag.canDrop);
    EXPECT_EQ(window.cursor().shape(), Qt::WaitCursor);
    drag.Leave();
    EXPECT_EQ(window.cursor().shape(), Qt::ArrowCursor);
}

TEST(CommandLine, WhatIsNoOptionIsOnePathOfARecipeFile) {
    const auto fileOf = [](const QStringList& words) {
        return FromQt(ReadOptions(QStringList{QStringLiteral("tunwright")} + words).file);
    };
    EXPECT_EQ(fileOf({}), "");
    EXPECT_EQ(fileOf({QStringLiteral("/tmp/Old Ale.TWR")}), "/tmp/Old Ale.TWR");
    EXPECT_EQ(fileOf({QStringLiteral("--tab"), QStringLiteral("2"), QStringLiteral(" Old"),
                      QStringLiteral("Ale.TWR ")}),
              "Old Ale.TWR");
}

TEST_F(ExchangeFiles, ADropBehindADialogIsRefused) {
    QDialog other(&window);
    other.setModal(true);
    Show(other);
    QMimeData mime;
    mime.setUrls({QUrl::fromLocalFile(File("a.TWR"))});
    Drag drag(window, mime);
    EXPECT_FALSE(drag.canDrop);
    drag.Drop();
    EXPECT_EQ(outside.messages.log, Strings{});
}

}  // namespace
}  // namespace tw::test
