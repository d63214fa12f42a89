#include "tree/ui/ProgressDialog.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt/Appearance.h"
#include "platform/qt/ElidedLabel.h"
#include "platform/qt/QtText.h"

namespace tw {
namespace {

// The least time between two updates: painting each object would take longer than the work on it.
constexpr int kMillisecondsBetween = 40;
constexpr int kWidthUnits = 56;

}  // namespace

ProgressDialog::ProgressDialog(ProgressModel& model, QWidget* parent)
    : QDialog(parent), model_(model), object_(new ElidedLabel(this)), progress_(new QProgressBar(this)) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(ToQt(model.Title()));
    setModal(true);
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    object_->setObjectName(QStringLiteral("lblObject"));
    column->addWidget(object_);
    progress_->setObjectName(QStringLiteral("ProgressBar1"));
    progress_->setAccessibleName(tr("Progress"));
    progress_->setTextVisible(false);
    column->addWidget(progress_);
    column->addStretch();
    auto* row = new QHBoxLayout;
    row->addStretch();
    auto* cancel = new QPushButton(tr("Cancel"), this);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(cancel, &QPushButton::clicked, this, &ProgressDialog::reject);
    row->addWidget(cancel);
    column->addLayout(row);
    setMinimumWidth(Unit(*this) * kWidthUnits);
    resize(sizeHint());
    model_.SetObserver([this] { ShowProgress(); });
}

ProgressDialog::~ProgressDialog() {
    ShowHourglass(false);
    model_.SetObserver({});
}

int ProgressDialog::exec() {
    model_.FirstShown();
    QDialog::accept();
    return result();
}

void ProgressDialog::ShowProgress() {
    ShowHourglass(model_.IsBusy());
    if (!isVisible() && model_.Total() <= ProgressModel::kWithoutWindow) return;
    if (isVisible() && sinceShown_.isValid() && sinceShown_.elapsed() < kMillisecondsBetween) return;
    if (!isVisible()) show();
    Fill();
    QApplication::processEvents();
    sinceShown_.start();
}

void ProgressDialog::Fill() {
    object_->SetFullText(ToQt(model_.Name()));
    progress_->setRange(0, model_.Total());
    progress_->setValue(model_.Done());
}

void ProgressDialog::showEvent(QShowEvent* event) {
    Fill();
    QDialog::showEvent(event);
}

void ProgressDialog::ShowHourglass(bool busy) {
    if (busy == hourglass_) return;
    hourglass_ = busy;
    busy ? QApplication::setOverrideCursor(Qt::WaitCursor) : QApplication::restoreOverrideCursor();
}

void ProgressDialog::reject() {
    model_.CloseBox();
    if (!model_.IsOpen()) QDialog::reject();
}

}  // namespace tw
