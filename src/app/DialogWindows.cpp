#include "app/DialogWindows.h"

#include "catalogue/ui/EditorDialog.h"
#include "catalogue/ui/frmDBSetup.h"
#include "document/ui/CannotUndoDialog.h"
#include "document/ui/DetailsDialog.h"
#include "document/ui/ScalingDialog.h"
#include "help/ui/frmAssistant.h"
#include "help/ui/frmHelpContents.h"
#include "platform/qt/FileDialog.h"
#include "platform/qt/QtDialogs.h"
#include "reports/ui/NoPrinterDialog.h"
#include "reports/ui/frmChooseFont.h"
#include "reports/ui/frmPrintFmtOptions.h"
#include "reports/ui/frmPrintPreview.h"
#include "reports/ui/frmPrintWizard.h"
#include "shell/ui/AboutDialog.h"
#include "shell/ui/OpenSaveDialog.h"
#include "shell/ui/RecoveryDialog.h"
#include "shell/ui/frmAutoSave.h"
#include "shell/ui/frmImportExport.h"
#include "shell/ui/frmNameConflict.h"
#include "shell/ui/frmOptions.h"
#include "shell/ui/frmStylesNotImported.h"
#include "tools/ui/frmColor.h"
#include "tools/ui/frmConvertUnits.h"
#include "tools/ui/frmHopUtil.h"
#include "tools/ui/frmHydrometer.h"
#include "tree/ui/frmChooseFolder.h"
#include "tree/ui/frmExplorer.h"
#include "tree/ui/frmLvShow.h"
#include "tree/ui/frmProgress.h"

namespace tw {

void RegisterDialogWindows(QtDialogs& dialogs, ColorChooser& colors) {
    // Recipes.
    for (const char* form : {"frmStrengthDetails", "frmFinalVolDetails", "frmHopDetails"})
        dialogs.Register<DetailsModel, DetailsDialog>(form);
    for (const char* form : {"frmResizeRecipe", "frmChangeOG", "frmChangeIBU", "frmChangeCO2"})
        dialogs.Register<ScalingModel, ScalingDialog>(form);
    dialogs.Register<DialogModel, CannotUndoDialog>("frmCannotUndo");
    dialogs.Register<LvShowModel, frmLvShow>("frmLvShow");
    dialogs.Register<ExplorerModel, frmExplorer>("frmExplorer");
    dialogs.Register<ChooseFolderModel, frmChooseFolder>("frmChooseFolder");
    dialogs.Register<ProgressModel, frmProgress>("frmProgress");
    // The catalogue.
    for (const char* form : {"frmStyle", "frmGrain", "frmHop", "frmYeast", "frmPrimingSugar", "frmWater"})
        dialogs.Register<CatalogueEditor, EditorDialog>(form);
    dialogs.Register<DBSetupModel, frmDBSetup>("frmDBSetup");
    // Paper.
    dialogs.Register<DialogModel, NoPrinterDialog>("frmNoPrinter");
    dialogs.Register<PrintPreviewModel, frmPrintPreview>("frmPrintPreview");
    dialogs.Register<PrintWizardModel, frmPrintWizard>("frmPrintWizard");
    dialogs.Register<PrintFmtOptionsModel, frmPrintFmtOptions>("frmPrintFmtOptions", colors);
    dialogs.Register<ChooseFontModel, frmChooseFont>("frmChooseFont", colors);
    // Help and tools.
    dialogs.Register<HelpContentsModel, frmHelpContents>("frmHelpContents");
    dialogs.Register<AssistantModel, frmAssistant>("frmAssistant");
    dialogs.Register<ConvertUnitsModel, frmConvertUnits>("frmConvertUnits");
    dialogs.Register<HydrometerModel, frmHydrometer>("frmHydrometer");
    dialogs.Register<HopUtilModel, frmHopUtil>("frmHopUtil");
    dialogs.Register<ColorScaleModel, frmColor>("frmColor");
    // The program.
    dialogs.Register<DialogModel, AboutDialog>("frmAbout");
    dialogs.Register<OptionsModel, frmOptions>("frmOptions", colors);
    dialogs.Register<OpenSaveModel, OpenSaveDialog>("frmOpenSave");
    dialogs.Register<AutoSaveModel, frmAutoSave>("frmAutoSave");
    dialogs.Register<RecoveryModel, RecoveryDialog>("frmRecovery");
    // Import and export.
    dialogs.Register<FileDialogModel, FileDialog>("CommonDialog");
    dialogs.Register<ImportExportModel, frmImportExport>("frmImportExport");
    dialogs.Register<NameConflictModel, frmNameConflict>("frmNameConflict");
    dialogs.Register<StylesNotImportedModel, frmStylesNotImported>("frmStylesNotImported");
}

}  // namespace tw
