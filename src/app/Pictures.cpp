#include "app/Pictures.h"

#include <QApplication>
#include <QBuffer>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QTabWidget>
#include <QTemporaryDir>

#include "app/PrintedMessages.h"
#include "catalogue/CatalogueEditor.h"
#include "catalogue/DatabaseSetupModel.h"
#include "doctor/CarriedDataModel.h"
#include "doctor/ExportFindingsModel.h"
#include "doctor/ImportDoctorModel.h"
#include "document/CannotUndo.h"
#include "document/DetailWindows.h"
#include "document/ScalingModel.h"
#include "document/ui/RecipeWindow.h"
#include "help/AssistantModel.h"
#include "help/HelpContentsModel.h"
#include "help/SystemTextFiles.h"
#include "help/qt/QtBrowser.h"
#include "platform/TargetFile.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/QtClipboard.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/QtText.h"
#include "reports/ChooseFontModel.h"
#include "reports/NoPrinterModel.h"
#include "reports/PrintFormatModel.h"
#include "reports/PrintPreviewModel.h"
#include "reports/PrintWizardModel.h"
#include "reports/PrintedRecipe.h"
#include "reports/qt/PaperPainter.h"
#include "shell/AboutModel.h"
#include "shell/BrewhouseModel.h"
#include "shell/ExportOtherModel.h"
#include "shell/ImportExportModel.h"
#include "shell/NameConflictModel.h"
#include "shell/OptionsModel.h"
#include "shell/RecoveryModel.h"
#include "shell/Shell.h"
#include "shell/StylesNotImportedModel.h"
#include "shell/ui/MainGeometry.h"
#include "shell/ui/MainWindow.h"
#include "store/Schema.h"
#include "tools/ColorScaleModel.h"
#include "tools/ConvertUnitsModel.h"
#include "tools/HopUtilisationModel.h"
#include "tools/HydrometerModel.h"
#include "tree/CataloguePickerModel.h"
#include "tree/ChooseFolderModel.h"
#include "tree/ExplorerModel.h"
#include "tree/ProgressModel.h"
#include "tree/RecipeChooser.h"
#include "tree/ui/RecipeChooserView.h"

namespace tw {
namespace {

constexpr const char* kTabFiles[kTabs] = {"general",     "grains",   "extracts", "hops", "water",
                                          "carbonation", "adjuncts", "log",      "notes"};

bool IsOwn(const OwnFiles& own, const QString& file) {
    try {
        own.Check(FromQt(file));
        return false;
    } catch (const OwnFileError&) {
        return true;
    }
}

// False if the file cannot be written. REQUIRES: it is not one of the program's own files.
bool SaveWidget(QWidget& widget, const QString& file) {
    // Lets layouts and pending events settle first.
    for (int i = 0; i < 3; ++i) QApplication::processEvents();
    QBuffer picture;
    picture.open(QIODevice::WriteOnly);
    if (!widget.grab().save(&picture, "PNG")) return false;
    const QByteArray& bytes = picture.buffer();
    try {
        TargetFile(FromQt(file), {}).Replace({bytes.constData(), static_cast<std::size_t>(bytes.size())});
        return true;
    } catch (const Error&) {
        return false;
    }
}

bool SaveDialog(QtDialogs& dialogs, DialogModel& model, QWidget& parent, const QString& file) {
    const std::unique_ptr<QDialog> dialog = dialogs.Make(model, &parent);
    dialog->show();
    return SaveWidget(*dialog, file);
}

// The four dialogs that scale a recipe.
bool SaveScalings(QtDialogs& dialogs, const RecipeDocument& document, QWidget& parent,
                  const QString& prefix) {
    PrintedMessages messages;
    bool ok = true;
    for (const Scaling what : {Scaling::Size, Scaling::Strength, Scaling::Bitterness, Scaling::Carbonation}) {
        ScalingModel model(what, CurrentFigure(document, what).value_or(""), messages);
        model.SetRemembered({}, document.Scaling().HasCarbonation());
        const QString file = prefix + QString::fromStdString(model.FormName()) + QStringLiteral(".png");
        ok &= SaveDialog(dialogs, model, parent, file);
    }
    return ok;
}

// All tabs of the options.
bool SaveOptions(QtDialogs& dialogs, Shell& shell, QWidget& parent, const QString& prefix) {
    PrintedMessages messages;
    OptionsModel model(shell.SettingsNow(), *shell.DB(), messages);
    const std::unique_ptr<QDialog> dialog = dialogs.Make(model, &parent);
    dialog->show();
    auto& tabs = *dialog->findChild<QTabWidget*>();
    bool ok = true;
    for (int tab = 0; tab < tabs.count(); ++tab) {
        tabs.setCurrentIndex(tab);
        ok &= SaveWidget(*dialog, QStringLiteral("%1options-%2.png").arg(prefix).arg(tab));
    }
    return ok;
}

bool SaveTools(QtDialogs& dialogs, QWidget& parent, const QString& prefix) {
    PrintedMessages messages;
    ConvertUnitsModel converter(messages);
    converter.SetKind(QuantityKind::Volume);
    converter.Enter(0, "5");
    bool ok = SaveDialog(dialogs, converter, parent, prefix + QStringLiteral("units.png"));
    HydrometerModel hydrometer(messages);
    hydrometer.TypeInto("txtActRead", "1.050");
    hydrometer.TypeInto("txtActTemp", "80 F");
    hydrometer.UpdateCorrection();
    ok &= SaveDialog(dialogs, hydrometer, parent, prefix + QStringLiteral("hydrometer.png"));
    HopUtilisationModel explorer("1.050");
    ok &= SaveDialog(dialogs, explorer, parent, prefix + QStringLiteral("hop-utilization.png"));
    for (int scale = 0; scale < kColorScales; ++scale) {
        ColorScaleModel scales;
        scales.Choose(static_cast<ColorScale>(scale));
        scales.MovePointer(ColorScaleModel::kPointerEnd / 3);
        ok &= SaveDialog(dialogs, scales, parent, QStringLiteral("%1colors-%2.png").arg(prefix).arg(scale));
    }
    return ok;
}

// The dialogs for choosing catalogue rows, folders and recipes.
bool SaveChoosers(QtDialogs& dialogs, Shell& shell, QWidget& parent, const QString& prefix) {
    bool ok = true;
    for (const CatalogueKind list :
         {CatalogueKind::Style, CatalogueKind::Grain, CatalogueKind::Yeast, CatalogueKind::Water}) {
        CataloguePickerModel picker(list, *shell.DB(), shell.Opened()->data.tree, "");
        ok &= SaveDialog(dialogs, picker, parent,
                         QStringLiteral("%1pick-%2.png").arg(prefix).arg(static_cast<int>(list)));
    }
    ChooseFolderModel folders(shell.Opened()->data.tree, shell.Opened()->data.objects);
    folders.SetStyleFolders(true);
    ok &= SaveDialog(dialogs, folders, parent, prefix + QStringLiteral("choose-folder.png"));
    RecipeChooser recipes;
    recipes.SetTree(&shell.Opened()->data.tree);
    recipes.SetAction("Export");
    recipes.Initialize();
    recipes.Add(kAllRecipesKey);
    RecipeChooserView chooser(recipes, nullptr);
    chooser.setContentsMargins(Unit(chooser), Unit(chooser), Unit(chooser), Unit(chooser));
    chooser.resize(chooser.sizeHint().expandedTo({Unit(chooser) * 100, Unit(chooser) * 50}));
    chooser.show();
    return ok && SaveWidget(chooser, prefix + QStringLiteral("choose-recipes.png"));
}

bool SaveHelp(QtDialogs& dialogs, Shell& shell, QWidget& parent, const QString& prefix) {
    PrintedMessages messages;
    QtBrowser browser;
    const OwnFiles none;  // a picture opens no page and writes no file
    SystemTextFiles files(none);
    Help help(QCoreApplication::applicationDirPath().toStdString(), messages, browser, files);
    HelpContentsModel contents(help, messages);
    bool ok = SaveDialog(dialogs, contents, parent, prefix + QStringLiteral("help-contents.png"));
    AssistantModel assistant(true);
    ok &= SaveDialog(dialogs, assistant, parent, prefix + QStringLiteral("assistant.png"));
    BrewhouseModel brewhouse(shell.SettingsNow(), *shell.DB(), messages, BrewhouseModel::Start::SuggestUS);
    ok &= SaveDialog(dialogs, brewhouse, parent, prefix + QStringLiteral("brewhouse.png"));
    return ok;
}

// The dialogs of import and export.
bool SaveExchange(QtDialogs& dialogs, Shell& shell, QWidget& parent, const QString& prefix) {
    PrintedMessages messages;
    ImportExportModel recipes(shell.Opened()->data.tree, false);
    recipes.Recipes().Add(kAllRecipesKey);
    ExportOtherModel other(shell.Opened()->data.tree);
    Findings notSaid;
    notSaid.Add({Severity::Approximated, FindingCode::HopUse, "Dry Stout", "Hops 2: Cascade",
                 "The hops in socks are written as loose ones."});
    notSaid.Add({Severity::NotCarried, FindingCode::Carried, "Dry Stout", "Log 1: Tasted",
                 "The format has no place for this entry of the log."});
    ExportFindingsModel findings("stouts.xml", notSaid);
    NameConflictModel conflict("Dry Stout", true, messages);
    StylesNotImportedModel styles({{"Dry Stout", "Irish Stout"}, {"Copper Lantern Bitter", "Best Bitter"}});
    ProgressModel progress("Importing Recipes", {});
    progress.Show("Copper Lantern Bitter", 40, 100);
    bool ok = true;
    for (DialogModel* model : {static_cast<DialogModel*>(&recipes), static_cast<DialogModel*>(&other),
                               static_cast<DialogModel*>(&findings), static_cast<DialogModel*>(&conflict),
                               static_cast<DialogModel*>(&styles), static_cast<DialogModel*>(&progress)}) {
        const QString file = prefix + QString::fromStdString(model->FormName()) + QStringLiteral(".png");
        ok &= SaveDialog(dialogs, *model, parent, file);
    }
    return ok;
}

// What a recipe carries that came from another program. The database of the picture has no such recipe.
bool SaveCarried(QtDialogs& dialogs, QWidget& parent, const QString& prefix) {
    const std::unique_ptr<Database> database = CreateMainDatabaseInMemory();
    CarriedData(*database).Keep(
        1, kCarriedBeerXml, "harvest.xml", {2026, 5, 2, 19, 40, 0},
        "<RECIPE><NAME>Harvest Ale</NAME><VERSION>1</VERSION><TYPE>All Grain</TYPE><BREWER>Ann</BREWER>"
        "<MASH><NAME>Two rests</NAME><GRAIN_TEMP>18</GRAIN_TEMP><MASH_STEPS>"
        "<MASH_STEP><NAME>Beta</NAME><STEP_TEMP>63</STEP_TEMP><STEP_TIME>40</STEP_TIME></MASH_STEP>"
        "<MASH_STEP><NAME>Alpha</NAME><STEP_TEMP>72</STEP_TEMP><STEP_TIME>20</STEP_TIME></MASH_STEP>"
        "</MASH_STEPS></MASH><EQUIPMENT><NAME>Kettle of 30 l</NAME><TUN_VOLUME>30</TUN_VOLUME></EQUIPMENT>"
        "<PRIMARY_AGE>7</PRIMARY_AGE><PRIMARY_TEMP>18.5</PRIMARY_TEMP></RECIPE>");
    PrintedMessages messages;
    QtClipboard clipboard;
    CarriedDataModel carried(*database, 1, "Harvest Ale", messages, clipboard);
    carried.SetControl("treeFields", "MASH_STEP: Alpha");
    return SaveDialog(dialogs, carried, parent, prefix + QStringLiteral("carried-data.png"));
}

// A file of another program with a sound recipe and a doubtful one.
constexpr std::string_view kForeignFile =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<RECIPES>\n"
    "<RECIPE><NAME>Harvest Ale</NAME><VERSION>1</VERSION><TYPE>All Grain</TYPE><BREWER>Ann</BREWER>"
    "<BATCH_SIZE>20</BATCH_SIZE><BOIL_SIZE>24</BOIL_SIZE><EFFICIENCY>75</EFFICIENCY><OG>1.050</OG>"
    "<FG>1.012</FG><IBU>34</IBU><HOPS><HOP><NAME>Cascade</NAME><VERSION>1</VERSION><ALPHA>5,5</ALPHA>"
    "<AMOUNT>0.04</AMOUNT><USE>Boil</USE><TIME>60</TIME></HOP><HOP><NAME>Cascade</NAME><VERSION>1</VERSION>"
    "<ALPHA>5,5</ALPHA><AMOUNT>0.03</AMOUNT><USE>Aroma</USE><TIME>10</TIME></HOP></HOPS><FERMENTABLES>"
    "<FERMENTABLE><NAME>Pale Malt</NAME><VERSION>1</VERSION><TYPE>Grain</TYPE><AMOUNT>4.4</AMOUNT>"
    "<YIELD>78</YIELD><COLOR>3</COLOR></FERMENTABLE></FERMENTABLES></RECIPE>\n"
    "<RECIPE><NAME>Cellar Porter</NAME><VERSION>1</VERSION><TYPE>All Grain</TYPE><BATCH_SIZE>20</BATCH_SIZE>"
    "<BOIL_SIZE>24</BOIL_SIZE><EFFICIENCY>75</EFFICIENCY><OG>1.066</OG><FERMENTABLES><FERMENTABLE>"
    "<NAME>Pale Malt</NAME><VERSION>1</VERSION><TYPE>Grain</TYPE><AMOUNT>4.8</AMOUNT><YIELD>78</YIELD>"
    "<COLOR>6</COLOR></FERMENTABLE></FERMENTABLES></RECIPE>\n</RECIPES>\n";

// The import from another program. Nothing is imported.
bool SaveDoctor(QtDialogs& dialogs, Shell& shell, QWidget& parent, const QString& prefix) {
    class Nobody final : public ImportDoctorHost {
        std::unique_ptr<CopyHost> Copying(ProgressModel&) override { return nullptr; }
        void Imported(int, ImportUnits) override {}
    } nobody;
    const QTemporaryDir folder;
    const std::string path = FromQt(folder.filePath(QStringLiteral("harvest.xml")));
    TargetFile(path, {}).Replace(kForeignFile);
    RecipeDoctor doctor = shell.Opened()->doctor.Doctor();
    OwnFiles own;
    ImportDoctorModel model(doctor, shell.Opened()->data.Access(), own, nobody, {});
    bool ok = SaveDialog(dialogs, model, parent, prefix + QStringLiteral("import-doctor-empty.png"));
    model.AddFiles({path});
    ok &= SaveDialog(dialogs, model, parent, prefix + QStringLiteral("import-doctor.png"));
    NameConflictModel conflict("Harvest Ale", true, shell.Environment().platform.messages);
    conflict.OfferAll();
    return SaveDialog(dialogs, conflict, parent, prefix + QStringLiteral("name-conflict-all.png")) && ok;
}

// Database setup on every catalogue, with the editor of a row, editable and read-only.
bool SaveCatalogue(QtDialogs& dialogs, Shell& shell, QWidget& parent, const QString& prefix) {
    const CatalogueContext context = shell.Opened()->catalogue.Context();
    bool ok = true;
    for (int i = 0; i < kCatalogueKinds; ++i) {
        const auto catalogue = kSetupOrder[static_cast<std::size_t>(i)];
        DatabaseSetupModel setup(context);
        setup.Choose(catalogue);
        ok &= SaveDialog(dialogs, setup, parent, QStringLiteral("%1setup-%2.png").arg(prefix).arg(i));
        ObjectNavigator navigator(setup.Items());
        const auto editor = MakeEditor(catalogue, context);
        if (catalogue != CatalogueKind::Style) editor->SetNavigator(navigator);
        Recordset names =
            shell.DB()->OpenRecordset("SELECT NAME FROM " + std::string(editor->Form().table) +
                                      (catalogue == CatalogueKind::Extract ? " WHERE NOT GRAIN" : ""));
        editor->SetName(names.AtEnd() ? "" : names.Fields(0).Text());
        names.Close();
        ok &= SaveDialog(dialogs, *editor, parent, QStringLiteral("%1edit-%2.png").arg(prefix).arg(i));
        editor->SetReadOnly();
        ok &= SaveDialog(dialogs, *editor, parent, QStringLiteral("%1view-%2.png").arg(prefix).arg(i));
    }
    return ok;
}

// The print preview, the report wizard page by page, and its options.
bool SaveReports(QtDialogs& dialogs, Shell& shell, QWidget& parent, const QString& prefix) {
    bool ok = true;
    if (const RecipeDocument* document = shell.Documents().Active()) {
        const PaperMeasure measure;
        PrintPreviewModel preview(
            {[&](PrintSize area) { return LayOutRecipe(document->Record(), area, measure); }, [] {},
             [](const PrintSteps&, Paper) {}},
            Paper::A4);
        ok &= SaveDialog(dialogs, preview, parent, prefix + QStringLiteral("print-preview.png"));
    }
    NoPrinterModel noPrinter;
    ok &= SaveDialog(dialogs, noPrinter, parent, prefix + QStringLiteral("no-printer.png"));
    PrintedMessages messages;
    PrintWizardModel wizard(
        {*shell.DB(), shell.Opened()->data.tree, shell.Store(), messages, dialogs, nullptr, shell.Own()}, 0);
    wizard.Chooser().Add(kAllRecipesKey);
    for (int page = 0; page < PrintWizardModel::kPages; ++page) {
        ok &= SaveDialog(dialogs, wizard, parent, QStringLiteral("%1report-%2.png").arg(prefix).arg(page));
        wizard.Press("cmdNext");
    }
    for (const ReportType type : {ReportType::Text, ReportType::Html, ReportType::RichText}) {
        PrintFormatModel options(type, shell.Store(), dialogs);
        ok &= SaveDialog(dialogs, options, parent,
                         QStringLiteral("%1report-options-%2.png").arg(prefix).arg(static_cast<int>(type)));
    }
    ChooseFontModel font(ReportOptions().title, kWhite, true);
    return ok && SaveDialog(dialogs, font, parent, prefix + QStringLiteral("choose-font.png"));
}

// The explorer in all its views, a search in it, and the open and save dialogs.
bool SaveBrowsing(QtDialogs& dialogs, Shell& shell, QWidget& parent, const QString& prefix) {
    bool ok = true;
    for (int view = 0; view <= static_cast<int>(ListViewType::Details); ++view) {
        ExplorerModel explorer(shell.Opened()->data.Access(), {});
        explorer.SetLook({static_cast<ListViewType>(view), 0, false});
        explorer.SetControl("lvNames", explorer.List(explorer.Shown()).Rows().Count() > 0
                                           ? explorer.List(explorer.Shown()).Rows().Row(0).key
                                           : "");
        ok &=
            SaveDialog(dialogs, explorer, parent, QStringLiteral("%1explorer-%2.png").arg(prefix).arg(view));
    }
    ExplorerModel styles(shell.Opened()->data.Access(), {}), search(shell.Opened()->data.Access(), {});
    styles.Show(ExplorerModel::Page::Styles);
    styles.SetLook({ListViewType::Details, 0, false});
    ok &= SaveDialog(dialogs, styles, parent, prefix + QStringLiteral("explorer-styles.png"));
    search.SetLook({ListViewType::Details, 0, false});
    const std::unique_ptr<QDialog> searching = dialogs.Make(search, &parent);
    searching->show();
    if (auto* find = searching->findChild<QLineEdit*>(QStringLiteral("txtFind")))
        find->setText(QStringLiteral("ale"));
    ok &= SaveWidget(*searching, prefix + QStringLiteral("explorer-find.png"));
    OpenSaveModel open(OpenSaveModel::Style::Open, shell.Opened()->data.Access(), {});
    ok &= SaveDialog(dialogs, open, parent, prefix + QStringLiteral("open.png"));
    OpenSaveModel save(OpenSaveModel::Style::Save, shell.Opened()->data.Access(),
                       {std::string(kRecipeFoldersKey), {ListViewType::Details, 0, false}});
    save.SetRecipe("Harvest Ale", 0);
    return SaveDialog(dialogs, save, parent, prefix + QStringLiteral("save-as.png")) && ok;
}

// The recovery dialog with two recipes of a run that ended unexpectedly.
bool SaveRecovery(QtDialogs& dialogs, Shell& shell, QWidget& parent, const QString& prefix) {
    std::vector<LostRecipe> lost(2);
    lost[0].keptWhen = {2026, 5, 2, 19, 40, 0};
    lost[0].snapshot.fields = {{"txtName", "First Pale Ale", "First Pale Ale"}};
    lost[1].keptWhen = {2026, 5, 2, 19, 55, 0};
    PrintedMessages messages;
    RecoveryModel recovery(shell.Unsaved(), messages, std::move(lost));
    return SaveDialog(dialogs, recovery, parent, prefix + QStringLiteral("recovery.png"));
}

bool SaveDialogs(MainWindow& window, Shell& shell, QtDialogs& dialogs, const QString& prefix) {
    AboutModel about;
    bool ok = SaveDialog(dialogs, about, window, prefix + QStringLiteral("about.png"));
    CannotUndoModel cannotUndo;
    ok &= SaveDialog(dialogs, cannotUndo, window, prefix + QStringLiteral("cannot-undo.png"));
    ok &= SaveOptions(dialogs, shell, window, prefix);
    ok &= SaveTools(dialogs, window, prefix);
    ok &= SaveHelp(dialogs, shell, window, prefix);
    ok &= SaveChoosers(dialogs, shell, window, prefix);
    ok &= SaveExchange(dialogs, shell, window, prefix);
    ok &= SaveCarried(dialogs, window, prefix);
    ok &= SaveDoctor(dialogs, shell, window, prefix);
    ok &= SaveCatalogue(dialogs, shell, window, prefix);
    ok &= SaveReports(dialogs, shell, window, prefix);
    ok &= SaveBrowsing(dialogs, shell, window, prefix);
    ok &= SaveRecovery(dialogs, shell, window, prefix);
    if (RecipeDocument* document = shell.Documents().Active()) {
        DetailsModel strength = StrengthDetailsOf(*document), volume = FinalVolDetailsOf(*document),
                     hops = HopDetailsOf(*document);
        ok &= SaveDialog(dialogs, strength, window, prefix + QStringLiteral("strength.png"));
        ok &= SaveDialog(dialogs, volume, window, prefix + QStringLiteral("volume.png"));
        ok &= SaveDialog(dialogs, hops, window, prefix + QStringLiteral("bitterness.png"));
        ok &= SaveScalings(dialogs, *document, window, prefix);
    }
    return ok;
}

}  // namespace

// The size is set explicitly, so that a picture does not depend on the screen or on stored sizes.
void TakeSize(MainWindow& window, const QSize& size) {
    window.setWindowState(Qt::WindowNoState);
    window.resize(size.isEmpty() ? FirstSize(window) : size);
    QApplication::processEvents();
    if (RecipeWindow* document = window.ActiveWindow()) document->parentWidget()->showMaximized();
}

bool TakePicture(MainWindow& window, Shell& shell, const QString& file) {
    return !IsOwn(shell.Own(), file) && SaveWidget(window, file);
}

bool TakeAllPictures(MainWindow& window, Shell& shell, QtDialogs& dialogs, const QString& folder) {
    bool ok = QDir().mkpath(folder);
    // Protects the recipes even if the folder contains links to the program's own files.
    for (const QFileInfo& there : QDir(folder).entryInfoList({QStringLiteral("*.png")}, QDir::Files))
        if (IsOwn(shell.Own(), there.filePath())) return false;
    if (IsOwn(shell.Own(), folder)) return false;
    for (const bool dark : {false, true}) {
        QApplication::setPalette(dark ? DarkPalette() : LightPalette());
        const QString prefix = folder + (dark ? QStringLiteral("/dark-") : QStringLiteral("/light-"));
        RecipeWindow* document = window.ActiveWindow();
        if (!document) ok &= SaveWidget(window, prefix + QStringLiteral("empty.png"));
        for (int tab = 0; document && tab < kTabs; ++tab) {
            document->ShowTab(static_cast<Tab>(tab));
            ok &= SaveWidget(window, prefix + QLatin1String(kTabFiles[tab]) + QStringLiteral(".png"));
        }
        ok &= SaveDialogs(window, shell, dialogs, prefix);
    }
    return ok;
}

}  // namespace tw
