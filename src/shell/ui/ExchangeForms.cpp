#include "shell/ui/ExchangeForms.h"

#include "platform/qt/FileDialog.h"
#include "platform/qt/QtDialogs.h"
#include "shell/ui/frmImportExport.h"
#include "shell/ui/frmNameConflict.h"
#include "shell/ui/frmStylesNotImported.h"

namespace tw {

void RegisterExchangeForms(QtDialogs& dialogs) {
    dialogs.Register("CommonDialog", &FileDialog::Make);
    dialogs.Register("frmImportExport", &frmImportExport::Make);
    dialogs.Register("frmNameConflict", &frmNameConflict::Make);
    dialogs.Register("frmStylesNotImported", &frmStylesNotImported::Make);
}

}  // namespace tw
