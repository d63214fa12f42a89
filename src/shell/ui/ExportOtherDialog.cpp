#include "shell/ui/ExportOtherDialog.h"

#include <QComboBox>
#include <QLabel>

#include "platform/qt/QtText.h"

namespace tw {

ExportOtherDialog::ExportOtherDialog(ExportOtherModel& model, QWidget* parent)
    : RecipePickDialog(model, parent) {
    auto* label = new QLabel(tr("&Format:"), this);
    auto* format = new QComboBox(this);
    format->setObjectName(QStringLiteral("cmbFormat"));
    format->setAccessibleName(tr("Format"));
    for (const std::string& name : ExportOtherModel::Formats()) format->addItem(ToQt(name));
    format->setCurrentIndex(model.FormatIndex());
    connect(format, &QComboBox::currentIndexChanged, this, [&model](int index) { model.SetFormat(index); });
    label->setBuddy(format);
    AddLastRow({label, format});
}

}  // namespace tw
