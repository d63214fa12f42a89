#include "shell/ui/frmCopyProgress.h"

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

// Painting each recipe would take longer than copying it.
constexpr int kMillisecondsBetween = 40;
constexpr int kWidthUnits = 56;

}  // namespace

frmCopyProgress::frmCopyProgress(CopyProgressModel& model, QWidget* parent)
    : QDialog(parent), model_(model), recipe_(new ElidedLabel(this)), progress_(new QProgressBar(this)) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(ToQt(model.Caption()));
    setModal(true);
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    recipe_->setObjectName(QStringLiteral("lblRecipe"));
    column->addWidget(recipe_);
    progress_->setObjectName(QStringLiteral("ProgressBar1"));
    progress_->setAccessibleName(tr("Progress"));
    progress_->setTextVisible(false);
    column->addWidget(progress_);
    column->addStretch();
    auto* row = new QHBoxLayout;
    row->addStretch();
    auto* cancel = new QPushButton(tr("Cancel"), this);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(cancel, &QPushButton::clicked, this, &frmCopyProgress::reject);
    row->addWidget(cancel);
    column->addLayout(row);
    setMinimumWidth(Unit(*this) * kWidthUnits);
    resize(sizeHint());
    model_.SetObserver([this] { ShowProgress(); });
}

frmCopyProgress::~frmCopyProgress() {
    ShowHourglass(false);
    model_.SetObserver({});
}

std::unique_ptr<QDialog> frmCopyProgress::Make(DialogModel& model, QWidget* parent) {
    return std::make_unique<frmCopyProgress>(dynamic_cast<CopyProgressModel&>(model), parent);
}

int frmCopyProgress::exec() {
    model_.FirstShown();
    QDialog::accept();
    return result();
}

void frmCopyProgress::ShowProgress() {
    ShowHourglass(model_.IsBusy());
    if (!isVisible() && model_.Total() <= kWithoutWindow) return;
    if (isVisible() && sinceShown_.isValid() && sinceShown_.elapsed() < kMillisecondsBetween) return;
    if (!isVisible()) show();
    Fill();
    QApplication::processEvents();
    sinceShown_.start();
}

void frmCopyProgress::Fill() {
    recipe_->SetFullText(ToQt(model_.RecipeName()));
    progress_->setRange(0, model_.Total());
    progress_->setValue(model_.Done());
}

void frmCopyProgress::showEvent(QShowEvent* event) {
    Fill();
    QDialog::showEvent(event);
}

void frmCopyProgress::ShowHourglass(bool busy) {
    if (busy == hourglass_) return;
    hourglass_ = busy;
    busy ? QApplication::setOverrideCursor(Qt::WaitCursor) : QApplication::restoreOverrideCursor();
}

void frmCopyProgress::reject() {
    model_.CloseBox();
    if (!model_.IsOpen()) QDialog::reject();
}

}  // namespace tw
