// Checks that no widget is cut off, overlaps another or has no name, with light and dark colours. The build
// runs these tests twice, the second time on a display of twice the density with a larger font.
#include <fstream>
#include <functional>
#include <map>
#include <set>

#include "GuiTest.h"
#include "catalogue/DatabaseSetupModel.h"
#include "catalogue/ui/DatabaseSetupDialog.h"
#include "catalogue/ui/EditorDialog.h"
#include "doctor/ui/CarriedDataDialog.h"
#include "doctor/ui/ExportFindingsDialog.h"
#include "doctor/ui/ImportDoctorDialog.h"
#include "document/CannotUndo.h"
#include "document/ui/CannotUndoDialog.h"
#include "document/ui/DetailsDialog.h"
#include "document/ui/FancyLabel.h"
#include "document/ui/ScalingDialog.h"
#include "help/ui/AssistantDialog.h"
#include "help/ui/HelpContentsDialog.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/FileDialog.h"
#include "reports/NoPrinterModel.h"
#include "reports/ui/ChooseFontDialog.h"
#include "reports/ui/NoPrinterDialog.h"
#include "reports/ui/PrintFormatDialog.h"
#include "reports/ui/PrintPreviewDialog.h"
#include "reports/ui/PrintWizardDialog.h"
#include "shell/AboutModel.h"
#include "shell/AutoSave.h"
#include "shell/ImportExportModel.h"
#include "shell/NameConflictModel.h"
#include "shell/RecoveryModel.h"
#include "shell/ui/AboutDialog.h"
#include "shell/ui/AutoSaveDialog.h"
#include "shell/ui/BrewhouseDialog.h"
#include "shell/ui/ExportOtherDialog.h"
#include "shell/ui/ImportExportDialog.h"
#include "shell/ui/NameConflictDialog.h"
#include "shell/ui/OpenSaveDialog.h"
#include "shell/ui/OptionsDialog.h"
#include "shell/ui/RecoveryDialog.h"
#include "shell/ui/StylesNotImportedDialog.h"
#include "support/RecordingHelp.h"
#include "tools/ui/ColorScaleDialog.h"
#include "tools/ui/ConvertUnitsDialog.h"
#include "tools/ui/HopUtilisationDialog.h"
#include "tools/ui/HydrometerDialog.h"
#include "tree/ui/CataloguePickerDialog.h"
#include "tree/ui/ChooseFolderDialog.h"
#include "tree/ui/ExplorerWindow.h"
#include "tree/ui/ProgressDialog.h"
#include "tree/ui/RecipeChooserView.h"

namespace tw::test {
namespace {

class Layout : public GuiTest, public testing::WithParamInterface<bool> {
  protected:
    void SetUp() override {
        QApplication::setPalette(GetParam() ? DarkPalette() : LightPalette());
        GuiTest::SetUp();
        NewRecipe();
        window.ActiveWindow()->parentWidget()->showMaximized();
    }
    void TearDown() override { QApplication::setPalette(QPalette()); }

    // Visits each tab, then each dialog.
    void ForEachWindow(const std::function<void(QWidget&)>& visit) {
        for (int tab = 0; tab < kTabs; ++tab) {
            window.ActiveWindow()->ShowTab(static_cast<Tab>(tab));
            QApplication::processEvents();
            visit(window);
        }
        AboutModel about;
        DetailsModel strength = StrengthDetails(1.05, 1.01), hops = HopDetails(1.05, 30);
        DetailsModel volume = FinalVolDetails({5, 0, 5, 1.05, 1.01});
        OpenSaveModel openSave(OpenSaveModel::Style::Open, shell.Opened()->data.Access(), {});
        ExplorerModel recipes(shell.Opened()->data.Access(), {}), styles(shell.Opened()->data.Access(), {});
        styles.Show(ExplorerModel::Page::Styles);
        CannotUndoModel cannotUndo;
        AboutDialog aboutWindow(about, nullptr);
        CannotUndoDialog cannotUndoWindow(cannotUndo, nullptr);
        DetailsDialog strengthWindow(strength, nullptr), hopsWindow(hops, nullptr),
            volumeWindow(volume, nullptr);
        OpenSaveDialog openSaveWindow(openSave, outside.settings, nullptr);
        ExplorerWindow recipesWindow(recipes, outside.settings, nullptr),
            stylesWindow(styles, outside.settings, nullptr);
        for (QDialog* dialog :
             {static_cast<QDialog*>(&aboutWindow), static_cast<QDialog*>(&strengthWindow),
              static_cast<QDialog*>(&hopsWindow), static_cast<QDialog*>(&volumeWindow),
              static_cast<QDialog*>(&openSaveWindow), static_cast<QDialog*>(&cannotUndoWindow),
              static_cast<QDialog*>(&recipesWindow), static_cast<QDialog*>(&stylesWindow)}) {
            dialog->show();
            QApplication::processEvents();
            visit(*dialog);
        }
        ForEachHelpWindow(visit);
        ForEachTool(visit);
        ForEachChooser(visit);
        ForEachExchange(visit);
        ForEachDoctor(visit);
        ForEachKeeper(visit);
        ForEachEditor(visit);
        ForEachReport(visit);
        for (const Scaling what :
             {Scaling::Size, Scaling::Strength, Scaling::Bitterness, Scaling::Carbonation}) {
            ScalingModel scaling(what, "12.75 gal.", outside.messages);
            ScalingDialog scalingWindow(scaling, nullptr);
            scalingWindow.show();
            QApplication::processEvents();
            visit(scalingWindow);
        }
        BrewhouseModel brewhouse(shell.SettingsNow(), *shell.DB(), outside.messages,
                                 BrewhouseModel::Start::SuggestUS);
        BrewhouseDialog brewhouseWindow(brewhouse, nullptr);
        brewhouseWindow.show();
        QApplication::processEvents();
        visit(brewhouseWindow);
        OptionsModel options(shell.SettingsNow(), *shell.DB(), outside.messages);
        QtColorChooser colors;
        OptionsDialog optionsWindow(options, colors, nullptr);
        optionsWindow.show();
        auto* optionTabs = optionsWindow.findChild<QTabWidget*>();
        for (int tab = 0; tab < optionTabs->count(); ++tab) {
            optionTabs->setCurrentIndex(tab);
            QApplication::processEvents();
            visit(optionsWindow);
        }
    }

    void ForEachHelpWindow(const std::function<void(QWidget&)>& visit) {
        const TemporaryFolder folder;
        MakeHelpDatabase(folder.Path(),
                         "INSERT INTO HELP_CONTENTS VALUES (1, 'Salt & water', 'a.html', -1);");
        RecordingBrowser browser;
        MemoryFiles files;
        Help help(folder.Path().string(), outside.messages, browser, files);
        HelpContentsModel contents(help, outside.messages);
        AssistantModel assistant(true);
        HelpContentsDialog contentsWindow(contents, nullptr);
        AssistantDialog assistantWindow(assistant, nullptr);
        for (QDialog* dialog :
             {static_cast<QDialog*>(&contentsWindow), static_cast<QDialog*>(&assistantWindow)}) {
            dialog->show();
            QApplication::processEvents();
            visit(*dialog);
        }
    }

    // Visits the pickers and the choosers for recipes and folders.
    void ForEachChooser(const std::function<void(QWidget&)>& visit) {
        for (const CatalogueKind list :
             {CatalogueKind::Style, CatalogueKind::Grain, CatalogueKind::Hop, CatalogueKind::Yeast}) {
            CataloguePickerModel picker(list, *shell.DB(), shell.Opened()->data.tree, "");
            CataloguePickerDialog pickerWindow(picker, nullptr);
            pickerWindow.show();
            QApplication::processEvents();
            visit(pickerWindow);
        }
        ChooseFolderModel folders(shell.Opened()->data.tree, shell.Opened()->data.objects);
        ChooseFolderDialog folderWindow(folders, nullptr);
        RecipeChooser recipes;
        recipes.SetTree(&shell.Opened()->data.tree);
        recipes.SetAction("Export");
        recipes.Initialize();
        RecipeChooserView chooser(recipes, nullptr);
        for (QWidget* widget : {static_cast<QWidget*>(&folderWindow), static_cast<QWidget*>(&chooser)}) {
            widget->show();
            QApplication::processEvents();
            visit(*widget);
        }
    }

    // Visits the windows that appear by themselves: of a recovery and of an autosave.
    void ForEachKeeper(const std::function<void(QWidget&)>& visit) {
        std::vector<LostRecipe> lost(1);
        lost[0].snapshot.fields = {{"txtName", std::string(1000, 'W'), std::string(1000, 'W')}};
        RecoveryModel recovery(shell.Unsaved(), outside.messages, std::move(lost));
        AutoSaveModel saves(shell.Documents(), [](RecipeDocument&) {});
        RecoveryDialog recoveryWindow(recovery, nullptr);
        AutoSaveDialog savesWindow(saves, nullptr);
        for (QDialog* dialog :
             {static_cast<QDialog*>(&recoveryWindow), static_cast<QDialog*>(&savesWindow)}) {
            dialog->show();
            QApplication::processEvents();
            visit(*dialog);
        }
    }

    // Visits the dialogs of import and export, with names that are longer than any window.
    void ForEachExchange(const std::function<void(QWidget&)>& visit) {
        const std::string name(1000, 'W');
        ImportExportModel in(shell.Opened()->data.tree, true), out(shell.Opened()->data.tree, false);
        ExportOtherModel other(shell.Opened()->data.tree);
        Findings notSaid;
        notSaid.Add({Severity::NotCarried, FindingCode::Carried, name, name, name});
        ExportFindingsModel findings(name, notSaid);
        NameConflictModel conflict(name, false, outside.messages);
        StylesNotImportedModel styles({{name, "Stout"}});
        ProgressModel progress("Importing Recipes", {});
        progress.Show(name, 1, 100);
        CarriedData(*shell.DB())
            .Keep(1, kCarriedBeerXml, name, {2026, 5, 4, 9, 30, 5},
                  "<RECIPE><NAME>" + name + "</NAME><NOTES>" + name + "</NOTES></RECIPE>");
        CarriedDataModel carried(*shell.DB(), 1, name, outside.messages, outside.clipboard),
            nothing(*shell.DB(), 2, name, outside.messages, outside.clipboard);
        ImportExportDialog inWindow(in, nullptr), outWindow(out, nullptr);
        ExportOtherDialog otherWindow(other, nullptr);
        ExportFindingsDialog findingsWindow(findings, nullptr);
        NameConflictDialog conflictWindow(conflict, nullptr);
        StylesNotImportedDialog stylesWindow(styles, nullptr);
        ProgressDialog progressWindow(progress, nullptr);
        CarriedDataDialog carriedWindow(carried, nullptr), nothingWindow(nothing, nullptr);
        for (QDialog* dialog : {static_cast<QDialog*>(&inWindow), static_cast<QDialog*>(&outWindow),
                                static_cast<QDialog*>(&otherWindow), static_cast<QDialog*>(&findingsWindow),
                                static_cast<QDialog*>(&conflictWindow), static_cast<QDialog*>(&stylesWindow),
                                static_cast<QDialog*>(&progressWindow), static_cast<QDialog*>(&carriedWindow),
                                static_cast<QDialog*>(&nothingWindow)}) {
            dialog->show();
            QApplication::processEvents();
            visit(*dialog);
        }
    }

    // Visits the window of the import from other programs, empty and with a file.
    void ForEachDoctor(const std::function<void(QWidget&)>& visit) {
        class Nobody final : public ImportDoctorHost {
            std::unique_ptr<CopyHost> Copying(ProgressModel&) override { return nullptr; }
            void Imported(int, ImportUnits) override {}
        } nobody;
        const TemporaryFolder folder;
        const std::string name(200, 'W'), path = (folder.Path() / (name + ".xml")).string();
        std::ofstream(path) << "<RECIPES><RECIPE><NAME>" << std::string(1000, 'W')
                            << "</NAME><OG>1.052</OG><ODD>1</ODD></RECIPE></RECIPES>";
        RecipeDoctor doctor = shell.Opened()->doctor.Doctor();
        OwnFiles own;
        ImportDoctorModel empty(doctor, shell.Opened()->data.Access(), own, nobody, {}),
            filled(doctor, shell.Opened()->data.Access(), own, nobody, {});
        filled.AddFiles({path});
        NameConflictModel conflict("Mild", true, outside.messages);
        conflict.OfferAll();
        ImportDoctorDialog emptyWindow(empty, nullptr), filledWindow(filled, nullptr);
        NameConflictDialog conflictWindow(conflict, nullptr);
        for (QDialog* dialog : {static_cast<QDialog*>(&emptyWindow), static_cast<QDialog*>(&filledWindow),
                                static_cast<QDialog*>(&conflictWindow)}) {
            dialog->show();
            QApplication::processEvents();
            visit(*dialog);
        }
    }

    // Visits database setup and the editor of each catalogue, both for a new entry and for an existing one.
    void ForEachEditor(const std::function<void(QWidget&)>& visit) {
        const CatalogueContext context = shell.Opened()->catalogue.Context();
        for (const CatalogueKind catalogue : kSetupOrder) {
            DatabaseSetupModel setup(context);
            setup.Choose(catalogue);
            DatabaseSetupDialog setupWindow(setup, nullptr);
            ObjectNavigator navigator(setup.Items());
            const auto entry = MakeEditor(catalogue, context), shown = MakeEditor(catalogue, context);
            entry->SetNavigator(navigator);
            shown->SetReadOnly();
            EditorDialog entryWindow(*entry, nullptr), shownWindow(*shown, nullptr);
            for (QDialog* dialog : {static_cast<QDialog*>(&setupWindow), static_cast<QDialog*>(&entryWindow),
                                    static_cast<QDialog*>(&shownWindow)}) {
                dialog->show();
                QApplication::processEvents();
                visit(*dialog);
            }
        }
    }

    // Visits the preview, every page of the report wizard, and the options of reports.
    void ForEachReport(const std::function<void(QWidget&)>& visit) {
        const auto show = [&](QDialog& dialog) {
            dialog.show();
            QApplication::processEvents();
            visit(dialog);
        };
        QtColorChooser colors;
        PrintPreviewModel preview({[](PrintSize) {
                                       return PrintSteps{"Porter", kLetterPaper, std::vector<PrintStep>(12)};
                                   },
                                   [] {}, [](const PrintSteps&, Paper) {}},
                                  Paper::A4);
        preview.SetControl("txtPage", "11");
        PrintPreviewDialog previewWindow(preview, nullptr);
        show(previewWindow);
        NoPrinterModel noPrinter;
        NoPrinterDialog noPrinterWindow(noPrinter, nullptr);
        show(noPrinterWindow);
        PrintWizardModel wizard({*shell.DB(), shell.Opened()->data.tree, shell.Store(), outside.messages,
                                 outside.dialogs, nullptr, shell.Own()},
                                0);
        wizard.Chooser().Add("F:-1");
        for (int page = 0; page < PrintWizardModel::kPages; ++page) {
            PrintWizardDialog wizardWindow(wizard, nullptr);
            show(wizardWindow);
            wizard.Press("cmdNext");
        }
        for (const ReportType type : {ReportType::Text, ReportType::Html, ReportType::RichText}) {
            PrintFormatModel options(type, shell.Store(), outside.dialogs);
            PrintFormatDialog optionsWindow(options, colors, nullptr);
            show(optionsWindow);
        }
        ChooseFontModel font(ReportFont{}, kWhite, true);
        ChooseFontDialog fontWindow(font, colors, nullptr);
        show(fontWindow);
    }

    // Visits the tools, and the unit converter with each of its kinds.
    void ForEachTool(const std::function<void(QWidget&)>& visit) {
        HydrometerModel hydrometer(outside.messages);
        HopUtilisationModel explorer(std::nullopt);
        ColorScaleModel scales;
        ConvertUnitsModel converter(outside.messages);
        HydrometerDialog hydrometerWindow(hydrometer, nullptr);
        HopUtilisationDialog explorerWindow(explorer, nullptr);
        ColorScaleDialog scalesWindow(scales, nullptr);
        ConvertUnitsDialog converterWindow(converter, nullptr);
        for (QDialog* dialog :
             {static_cast<QDialog*>(&hydrometerWindow), static_cast<QDialog*>(&explorerWindow),
              static_cast<QDialog*>(&scalesWindow), static_cast<QDialog*>(&converterWindow)}) {
            dialog->show();
            QApplication::processEvents();
            visit(*dialog);
        }
        auto& types = *converterWindow.findChild<QComboBox*>();
        for (int kind = 0; kind < types.count(); ++kind) {
            types.setCurrentIndex(kind);
            QApplication::processEvents();
            visit(converterWindow);
        }
    }
};

std::string NameOf(const QWidget& widget, const QString& text) {
    return FromQt(widget.objectName() + QStringLiteral(" \"") + text + QLatin1Char('"'));
}

int WidthOf(const QWidget& widget, const QString& text) {
    return widget.fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

TEST_P(Layout, NoTextIsWiderThanItsWidget) {
    ForEachWindow([](QWidget& top) {
        for (const auto* label : top.findChildren<QLabel*>()) {
            if (!label->isVisible() || label->wordWrap() || !label->pixmap().isNull()) continue;
            EXPECT_LE(WidthOf(*label, label->text()), label->width()) << NameOf(*label, label->text());
        }
        for (const auto* button : top.findChildren<QAbstractButton*>()) {
            if (!button->isVisible() || qobject_cast<const QToolButton*>(button)) continue;
            EXPECT_LE(WidthOf(*button, button->text()), button->width()) << NameOf(*button, button->text());
        }
        for (const auto* label : top.findChildren<FancyLabel*>()) {
            if (!label->isVisible()) continue;
            EXPECT_LE(label->sizeHint().width(), label->width()) << FromQt(label->Caption());
        }
    });
}

// The room on a screen of 960 by 540 pixels, less a frame of the usual size around the window.
constexpr QSize kSmallRoom(950, 500);

TEST_P(Layout, EveryWindowCanBeMadeToFitASmallScreen) {
    if (qEnvironmentVariable("TUNWRIGHT_TEST_FONT_SCALE").toDouble() > 1.25)
        GTEST_SKIP() << "for the fonts of usual desktops";
    const auto check = [](QWidget& top) {
        const QSize least = top.minimumSizeHint().expandedTo(top.minimumSize());
        EXPECT_LE(least.width(), kSmallRoom.width()) << NameOf(top, top.windowTitle());
        EXPECT_LE(least.height(), kSmallRoom.height()) << NameOf(top, top.windowTitle());
    };
    ForEachWindow(check);
    // Qt's own windows.
    FileDialogModel files({}, outside.messages);
    FileDialog filesWindow(files, nullptr);
    QColorDialog colors;
    for (QDialog* dialog : {static_cast<QDialog*>(&filesWindow), static_cast<QDialog*>(&colors)}) {
        dialog->show();
        check(*dialog);
    }
}

TEST_P(Layout, NoHeadingOfAGridIsCut) {
    ForEachWindow([](QWidget& top) {
        for (const auto* view : top.findChildren<GridView*>()) {
            if (!view->isVisible()) continue;
            for (int col = 0; col < view->model()->columnCount(); ++col) {
                const QString text = view->model()->headerData(col, Qt::Horizontal).toString();
                EXPECT_LE(WidthOf(*view->horizontalHeader(), text), view->columnWidth(col)) << FromQt(text);
            }
        }
    });
}

TEST_P(Layout, NoControlsOverlap) {
    ForEachWindow([](QWidget& top) {
        for (const auto* label : top.findChildren<QLabel*>()) {
            if (!label->isVisible() || !label->buddy()) continue;
            const auto siblings =
                label->parentWidget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
            for (const auto* other : siblings) {
                if (other == label || !other->isVisible() || other->isWindow()) continue;
                EXPECT_FALSE(label->geometry().intersects(other->geometry()))
                    << NameOf(*label, label->text()) << " and " << NameOf(*other, {});
            }
        }
    });
}

TEST_P(Layout, EveryControlHasAnAccessibleName) {
    ForEachWindow([](QWidget& top) {
        for (QWidget* widget : top.findChildren<QWidget*>()) {
            const bool isControl =
                qobject_cast<QLineEdit*>(widget) || qobject_cast<QAbstractButton*>(widget) ||
                qobject_cast<QComboBox*>(widget) || qobject_cast<QTableView*>(widget) ||
                qobject_cast<QPlainTextEdit*>(widget) || qobject_cast<QTabWidget*>(widget) ||
                qobject_cast<QListView*>(widget) || qobject_cast<QSlider*>(widget) ||
                QLatin1String(widget->metaObject()->className()).startsWith(QLatin1String("tw::"));
            // The parts of a calendar, a list or a frame that Qt creates have names of their own.
            const QString name = widget->objectName();
            if (!isControl || name.startsWith(QLatin1String("qt_")) || !widget->isVisible()) continue;
            QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
            ASSERT_NE(spoken, nullptr);
            EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty())
                << NameOf(*widget, QLatin1String(widget->metaObject()->className()));
        }
    });
}

TEST_P(Layout, MnemonicsDoNotClashWithinATab) {
    const auto mnemonicOf = [](const QString& text) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        return key.isEmpty() ? std::string() : FromQt(key.toString());
    };
    ForEachWindow([&](QWidget& top) {
        std::map<std::string, std::string> taken;
        const auto take = [&](const QString& text) {
            const std::string key = mnemonicOf(text);
            if (key.empty()) return;
            const auto [place, isNew] = taken.emplace(key, FromQt(text));
            EXPECT_TRUE(isNew) << place->second << " and " << FromQt(text);
        };
        if (auto* main = qobject_cast<QMainWindow*>(&top))
            for (const QAction* menu : main->menuBar()->actions()) take(menu->text());
        for (const auto* label : top.findChildren<QLabel*>())
            if (label->isVisible() && label->buddy()) take(label->text());
        for (const auto* button : top.findChildren<QAbstractButton*>())
            if (button->isVisible() && !qobject_cast<const QToolButton*>(button)) take(button->text());
    });
}

std::string PaletteName(const testing::TestParamInfo<bool>& info) {
    return info.param ? "Dark" : "Light";
}
INSTANTIATE_TEST_SUITE_P(LayoutOn, Layout, testing::Bool(), PaletteName);

class Controls : public GuiTest {};

TEST_F(Controls, AllOfTheRecipeAreThereUnderTheirNames) {
    NewRecipe();
    BuildAllTabs();
    const RecipeRecord& record = shell.Documents().Active()->Record();
    std::set<std::string> missing;
    const auto look = [&](const std::string& name) {
        if (!window.ActiveWindow()->findChild<QWidget*>(ToQt(name))) missing.insert(name);
    };
    for (const TextBox* box : record.TextBoxes()) look(box->Name());
    for (const Grid* grid : record.Grids()) look(grid->Name());
    for (const Label* label : record.Labels()) look(label->Name());
    for (const Button* button : record.Buttons()) look(button->Name());
    for (const OptionGroup* group : {&record.grpIBUMethod, &record.grpPkgMethod})
        for (const std::string& option : group->Options()) look(option);
    for (const char* name : {"SSTab1", "cmbStyle", "cmdBrowseStyles", "MonthView1", "VScroll1",
                             "ContainerBox(0)", "ContainerBox(8)", "FancyLabel1", "FancyLabel8"})
        look(name);
    EXPECT_EQ(missing, std::set<std::string>{});
}

}  // namespace
}  // namespace tw::test
