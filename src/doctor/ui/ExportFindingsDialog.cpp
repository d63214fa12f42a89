#include "doctor/ui/ExportFindingsDialog.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "doctor/ui/FindingTree.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/ElidedLabel.h"
#include "platform/qt/QtText.h"

namespace tw {
namespace {

constexpr QSize kUsualUnits(100, 48);

}  // namespace

ExportFindingsDialog::ExportFindingsDialog(ExportFindingsModel& model, QWidget* parent)
    : QDialog(parent), model_(model) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(tr("What Was Exported"));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    auto* text = new ElidedLabel(this);
    text->setObjectName(QStringLiteral("lblFile"));
    text->SetFullText(ToQt(model.FileText()));
    column->addWidget(text);
    auto* findings = new FindingTree(this);
    findings->ShowFindings(model.Lines());
    column->addWidget(findings, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    QPushButton* ok = buttons->button(QDialogButtonBox::Ok);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        model_.Press("cmdOK");
        QDialog::accept();
    });
    column->addWidget(buttons);
    resize(kUsualUnits * Unit(*this));
    findings->setFocus();
}

void ExportFindingsDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
