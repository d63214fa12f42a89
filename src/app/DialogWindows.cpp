#include "app/DialogWindows.h"

#include "catalogue/EditorForm.h"
#include "catalogue/ui/DatabaseSetupDialog.h"
#include "catalogue/ui/EditorDialog.h"
#include "doctor/ui/CarriedDataDialog.h"
#include "doctor/ui/ExportFindingsDialog.h"
#include "doctor/ui/ImportDoctorDialog.h"
#include "document/CannotUndo.h"
#include "document/ui/CannotUndoDialog.h"
#include "document/ui/DetailsDialog.h"
#include "document/ui/ScalingDialog.h"
#include "help/ui/AssistantDialog.h"
#include "help/ui/HelpContentsDialog.h"
#include "platform/qt/FileDialog.h"
#include "platform/qt/QtDialogs.h"
#include "reports/NoPrinterModel.h"
#include "reports/ui/ChooseFontDialog.h"
#include "reports/ui/NoPrinterDialog.h"
#include "reports/ui/PrintFormatDialog.h"
#include "reports/ui/PrintPreviewDialog.h"
#include "reports/ui/PrintWizardDialog.h"
#include "shell/AboutModel.h"
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
#include "tools/ui/ColorScaleDialog.h"
#include "tools/ui/ConvertUnitsDialog.h"
#include "tools/ui/HopUtilisationDialog.h"
#include "tools/ui/HydrometerDialog.h"
#include "tree/ui/CataloguePickerDialog.h"
#include "tree/ui/ChooseFolderDialog.h"
#include "tree/ui/ExplorerWindow.h"
#include "tree/ui/ProgressDialog.h"

namespace tw {

void RegisterDialogWindows(QtDialogs& dialogs, ColorChooser& colors, SettingsPort& settings) {
    // Recipes.
    for (const char* form :
         {DetailsModel::kStrengthForm, DetailsModel::kFinalVolForm, DetailsModel::kHopForm})
        dialogs.RegisterForm<DetailsModel, DetailsDialog>(form);
    for (const char* form : ScalingModel::kFormNames) dialogs.RegisterForm<ScalingModel, ScalingDialog>(form);
    dialogs.Register<CannotUndoModel, CannotUndoDialog>();
    dialogs.Register<CataloguePickerModel, CataloguePickerDialog>();
    dialogs.Register<ExplorerModel, ExplorerWindow>(settings);
    dialogs.Register<ChooseFolderModel, ChooseFolderDialog>();
    dialogs.Register<ProgressModel, ProgressDialog>();
    // The catalogue.
    for (const EditorForm& form : EditorForms())
        dialogs.RegisterForm<CatalogueEditor, EditorDialog>(std::string(form.formName));
    dialogs.Register<DatabaseSetupModel, DatabaseSetupDialog>();
    // Printing and reports.
    dialogs.Register<NoPrinterModel, NoPrinterDialog>();
    dialogs.Register<PrintPreviewModel, PrintPreviewDialog>();
    dialogs.Register<PrintWizardModel, PrintWizardDialog>();
    dialogs.Register<PrintFormatModel, PrintFormatDialog>(colors);
    dialogs.Register<ChooseFontModel, ChooseFontDialog>(colors);
    // Help and tools.
    dialogs.Register<HelpContentsModel, HelpContentsDialog>();
    dialogs.Register<AssistantModel, AssistantDialog>();
    dialogs.Register<ConvertUnitsModel, ConvertUnitsDialog>();
    dialogs.Register<HydrometerModel, HydrometerDialog>();
    dialogs.Register<HopUtilisationModel, HopUtilisationDialog>();
    dialogs.Register<ColorScaleModel, ColorScaleDialog>();
    // The program.
    dialogs.Register<AboutModel, AboutDialog>();
    dialogs.Register<BrewhouseModel, BrewhouseDialog>();
    dialogs.Register<OptionsModel, OptionsDialog>(colors);
    dialogs.Register<OpenSaveModel, OpenSaveDialog>(settings);
    dialogs.Register<AutoSaveModel, AutoSaveDialog>();
    dialogs.Register<RecoveryModel, RecoveryDialog>();
    // Import and export.
    dialogs.Register<FileDialogModel, FileDialog>();
    dialogs.Register<ImportExportModel, ImportExportDialog>();
    dialogs.Register<ExportOtherModel, ExportOtherDialog>();
    dialogs.Register<ExportFindingsModel, ExportFindingsDialog>();
    dialogs.Register<NameConflictModel, NameConflictDialog>();
    dialogs.Register<StylesNotImportedModel, StylesNotImportedDialog>();
    dialogs.Register<CarriedDataModel, CarriedDataDialog>();
    dialogs.Register<ImportDoctorModel, ImportDoctorDialog>();
}

}  // namespace tw
