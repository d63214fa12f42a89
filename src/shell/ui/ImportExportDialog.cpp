#include "shell/ui/ImportExportDialog.h"

#include <QCheckBox>

namespace tw {

ImportExportDialog::ImportExportDialog(ImportExportModel& model, QWidget* parent)
    : RecipePickDialog(model, parent) {
    if (model.IsImport()) {
        AddLastRow({});
        return;
    }
    auto* append = new QCheckBox(tr("Add to the &file if it exists"), this);
    append->setObjectName(QStringLiteral("chkAppend"));
    append->setToolTip(tr("Keeps the recipes that are in the file; otherwise it is replaced"));
    append->setChecked(model.Append());
    connect(append, &QCheckBox::toggled, this, [&model](bool on) { model.SetAppend(on); });
    AddLastRow({append});
}

}  // namespace tw
