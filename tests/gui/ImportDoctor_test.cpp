// Tests of the window that imports from other programs with the keyboard, by a screen reader and by drops.
#include <QSignalSpy>
#include <QTemporaryDir>
#include <fstream>

#include "GuiTest.h"
#include "doctor/ui/DoctorFileTree.h"
#include "doctor/ui/FindingTree.h"
#include "doctor/ui/ImportDoctorDialog.h"

namespace tw::test {
namespace {

class ImportDoctorWindow : public GuiTest, private ImportDoctorHost {
  protected:
    QString File(const char* name, const std::vector<std::string>& recipes, const std::string& extra = {}) {
        QString path = folder.filePath(QLatin1String(name));
        std::ofstream file(FromQt(path));
        file << "<?xml version=\"1.0\"?><RECIPES>";
        for (const std::string& recipe : recipes)
            file << "<RECIPE><NAME>" << recipe
                 << "</NAME><VERSION>1</VERSION><TYPE>All Grain</TYPE><BATCH_SIZE>20</BATCH_SIZE>" << extra
                 << "<FERMENTABLES><FERMENTABLE><NAME>Pale Malt</NAME><VERSION>1</VERSION><AMOUNT>5</AMOUNT>"
                    "<TYPE>Grain</TYPE><YIELD>78</YIELD><COLOR>3</COLOR></FERMENTABLE></FERMENTABLES>"
                    "</RECIPE>";
        file << "</RECIPES>";
        return path;
    }
    void Add(const QString& path) { made->AddFiles({FromQt(path)}); }
    static void Show(QDialog& dialog) {
        dialog.show();
        QApplication::setActiveWindow(&dialog);
        QApplication::processEvents();
    }
    template <class Widget>
    static Widget& In(const QDialog& dialog, const char* name) {
        auto* const widget = dialog.findChild<Widget*>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return *widget;
    }
    Strings Stored() {
        Strings names;
        for (Recordset rows = shell.DB()->OpenRecordset("SELECT NAME FROM RECIPES ORDER BY NAME");
             !rows.AtEnd(); rows.MoveNext())
            names.push_back(rows.Fields(0).Text());
        return names;
    }

    void SetUp() override {
        GuiTest::SetUp();
        // Not movable, so it is created in its place.
        doctor.reset(new RecipeDoctor(shell.Opened()->doctor.Doctor()));
        made = std::make_unique<ImportDoctorModel>(*doctor, shell.Opened()->data.Access(), own,
                                                   static_cast<ImportDoctorHost&>(*this), ImportOptions{});
    }

    // ImportDoctorHost
    std::unique_ptr<CopyHost> Copying(ProgressModel&) override {
        class Any final : public CopyHost {
            bool Continue(const std::string&, int, int) override { return true; }
            ConflictAnswer ResolveConflict(const std::string&, const std::string&) override {
                return {ConflictResponse::Skip, {}};
            }
            bool ContinueAfter(const std::string&) override { return true; }
        };
        return std::make_unique<Any>();
    }
    void Imported(int, ImportUnits) override {}

    QTemporaryDir folder;
    OwnFiles own;
    std::unique_ptr<RecipeDoctor> doctor;
    std::unique_ptr<ImportDoctorModel> made;
};

TEST_F(ImportDoctorWindow, ShowsFilesRecipesAndFigures) {
    Add(File("club.xml", {"Pale", "Mild"}, "<OG>1,052</OG>"));
    ImportDoctorDialog dialog(*made, nullptr);
    Show(dialog);
    EXPECT_EQ(FromQt(dialog.windowTitle()), "Import from Other Programs");
    auto& tree = In<QTreeWidget>(dialog, "treeRecipes");
    ASSERT_EQ(tree.topLevelItemCount(), 1);
    QTreeWidgetItem& file = *tree.topLevelItem(0);
    EXPECT_EQ(FromQt(file.text(0)), "club.xml");
    EXPECT_EQ(file.checkState(0), Qt::Checked);
    EXPECT_TRUE(file.isExpanded());
    ASSERT_EQ(file.childCount(), 2);
    EXPECT_EQ(FromQt(file.child(1)->text(0)), "Mild");
    EXPECT_FALSE(file.child(0)->text(1).isEmpty()) << "the comma was repaired";
    EXPECT_FALSE(file.child(0)->icon(1).isNull());
    EXPECT_TRUE(file.child(0)->text(2).startsWith(QStringLiteral("1.052 / 1.0")))
        << FromQt(file.child(0)->text(2));
    // The two commas are one finding of the file.
    auto& findings = In<QTreeWidget>(dialog, "treeFindings");
    bool folded = false;
    for (int i = 0; i < findings.topLevelItemCount(); ++i) {
        const QTreeWidgetItem& item = *findings.topLevelItem(i);
        EXPECT_EQ(item.childCount() > 0, item.text(2).startsWith(QStringLiteral("2 times"))) << i;
        folded |= item.childCount() == 2;
    }
    EXPECT_TRUE(folded);
}

TEST_F(ImportDoctorWindow, IsUsedByKeyboardAlone) {
    Add(File("club.xml", {"Pale", "Mild"}));
    ImportDoctorDialog dialog(*made, nullptr);
    Show(dialog);
    EXPECT_EQ(Focus(), "treeRecipes");
    Key(Qt::Key_Down);
    EXPECT_EQ(made->Text("treeRecipes"), "Pale");
    Key(Qt::Key_Space);
    EXPECT_EQ(made->Text("chkImport"), "no");
    EXPECT_EQ(In<QTreeWidget>(dialog, "treeRecipes").topLevelItem(0)->checkState(0), Qt::PartiallyChecked);
    // Disabled remedies are left out of the way of the tab key.
    Strings way;
    for (int i = 0; i < 9; ++i) {
        Key(Qt::Key_Tab);
        way.push_back(Focus());
    }
    EXPECT_EQ(way, (Strings{"treeFindings", "chkCatalogue", "cmbUnits", "cmdFolder", "cmdAddFiles",
                            "cmdReport", "cmdImport", "cmdCancel", "treeRecipes"}));
    Key(Qt::Key_Return);
    EXPECT_EQ(Stored(), Strings{"Mild"});
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(ImportDoctorWindow, EscapeImportsNothing) {
    Add(File("club.xml", {"Pale"}));
    ImportDoctorDialog dialog(*made, nullptr);
    Show(dialog);
    Key(Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_FALSE(made->IsOpen());
    EXPECT_EQ(Stored(), Strings{});
}

TEST_F(ImportDoctorWindow, ARemedyShowsTheNewFigures) {
    Add(File("club.xml", {"Pale"}, "<OG>1.070</OG>"));
    ImportDoctorDialog dialog(*made, nullptr);
    Show(dialog);
    auto& gravity = In<QCheckBox>(dialog, "chkGravity");
    auto& grams = In<QCheckBox>(dialog, "chkGrams");
    EXPECT_TRUE(gravity.isEnabled());
    EXPECT_FALSE(gravity.isChecked());
    EXPECT_FALSE(grams.isEnabled());
    gravity.setFocus();
    Key(Qt::Key_Space);
    EXPECT_TRUE(gravity.isChecked());
    EXPECT_EQ(FromQt(In<QTreeWidget>(dialog, "treeRecipes").topLevelItem(0)->child(0)->text(2)),
              "1.070 / 1.070");
    EXPECT_EQ(Focus(), "chkGravity");
}

TEST_F(ImportDoctorWindow, WhatIsLeftOutKeepsItOpenWithItsAccount) {
    Add(File("club.xml", {"Pale", "Pale"}));
    ImportDoctorDialog dialog(*made, nullptr);
    Show(dialog);
    EXPECT_EQ(FromQt(In<QPushButton>(dialog, "cmdCancel").text()), "Cancel");
    Key(Qt::Key_Return);
    EXPECT_EQ(Stored(), Strings{"Pale"});
    EXPECT_TRUE(dialog.isVisible());
    auto& tree = In<QTreeWidget>(dialog, "treeRecipes");
    ASSERT_EQ(tree.topLevelItemCount(), 2);
    EXPECT_EQ(tree.currentItem(), tree.topLevelItem(0));
    EXPECT_EQ(FromQt(tree.currentItem()->text(0)), "The import");
    EXPECT_EQ(In<QTreeWidget>(dialog, "treeFindings").topLevelItemCount(), 2);
    EXPECT_EQ(FromQt(In<QPushButton>(dialog, "cmdCancel").text()), "Close");
}

TEST_F(ImportDoctorWindow, DroppedFilesAreAdded) {
    ImportDoctorDialog dialog(*made, nullptr);
    dialog.setModal(true);
    Show(dialog);
    EXPECT_FALSE(In<QPushButton>(dialog, "cmdImport").isEnabled());
    EXPECT_FALSE(In<QPushButton>(dialog, "cmdReport").isEnabled());
    QMimeData mime;
    mime.setUrls(
        {QUrl::fromLocalFile(File("a.xml", {"Pale"})), QUrl::fromLocalFile(File("b.xml", {"Mild"}))});
    QDragEnterEvent enter({50, 50}, Qt::CopyAction, &mime, Qt::LeftButton, {});
    QApplication::sendEvent(&dialog, &enter);
    EXPECT_EQ(enter.dropAction(), Qt::CopyAction);
    QDropEvent drop({50, 50}, Qt::CopyAction, &mime, Qt::LeftButton, {});
    QApplication::sendEvent(&dialog, &drop);
    QApplication::processEvents();
    EXPECT_EQ(In<QTreeWidget>(dialog, "treeRecipes").topLevelItemCount(), 2);
    EXPECT_TRUE(In<QPushButton>(dialog, "cmdImport").isEnabled());
}

TEST_F(ImportDoctorWindow, IsReadByAScreenReader) {
    Add(File("club.xml", {"Pale"}));
    ImportDoctorDialog dialog(*made, nullptr);
    Show(dialog);
    const auto name = [&](const char* widget) {
        return FromQt(
            QAccessible::queryAccessibleInterface(&In<QWidget>(dialog, widget))->text(QAccessible::Name));
    };
    EXPECT_EQ(name("treeRecipes"), "Files and recipes");
    EXPECT_EQ(name("treeFindings"), "Findings");
    EXPECT_EQ(name("lblFolder"), "Folder: My Recipe Folders");
    // The severity is a word, not only a shape.
    const QTreeWidgetItem& recipe = *In<QTreeWidget>(dialog, "treeRecipes").topLevelItem(0)->child(0);
    EXPECT_FALSE(recipe.text(1).isEmpty());
}

}  // namespace
}  // namespace tw::test
