#include "tree/ui/frmProgress.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"

namespace tw {

frmProgress::frmProgress(ProgressModel& model, QWidget* parent)
    : QDialog(parent), model_(model), object_(new QLabel(this)), progress_(new QProgressBar(this)) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(ToQt(model.Title()));
    setModal(true);
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    object_->setObjectName(QStringLiteral("lblObject"));
    object_->setTextFormat(Qt::PlainText);
    object_->setAccessibleName(tr("Object"));
    progress_->setObjectName(QStringLiteral("ProgressBar1"));
    progress_->setAccessibleName(tr("Progress"));
    progress_->setTextVisible(false);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    connect(buttons, &QDialogButtonBox::rejected, this, &frmProgress::reject);
    column->addWidget(object_);
    column->addWidget(progress_);
    column->addStretch();
    column->addWidget(buttons);
    setMinimumWidth(Unit(*this) * 40);
    model_.SetObserver([this] { ShowProgress(); });
    progress_->setRange(0, static_cast<int>(model_.Total()));
    object_->setText(ToQt(model_.Name()));
}

frmProgress::~frmProgress() {
    model_.SetObserver({});
}

std::unique_ptr<QDialog> frmProgress::Make(DialogModel& model, QWidget* parent) {
    return std::make_unique<frmProgress>(dynamic_cast<ProgressModel&>(model), parent);
}

void frmProgress::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous()) QMetaObject::invokeMethod(this, &frmProgress::Run, Qt::QueuedConnection);
}

void frmProgress::Run() {
    model_.FirstShown();
    QDialog::accept();
}

void frmProgress::ShowProgress() {
    // A long name must not push the window about.
    object_->setText(
        object_->fontMetrics().elidedText(ToQt(model_.Name()), Qt::ElideMiddle, progress_->width()));
    progress_->setValue(static_cast<int>(model_.Done()));
    QApplication::processEvents();
}

// The window goes when the step that is being done has ended.
void frmProgress::reject() {
    model_.CloseBox();
    if (!model_.IsOpen()) QDialog::reject();
}

}  // namespace tw
