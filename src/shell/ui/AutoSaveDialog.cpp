#include "shell/ui/AutoSaveDialog.h"

#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QProgressBar>
#include <QShowEvent>
#include <QVBoxLayout>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"

namespace tw {

// Only a tool tip leaves the focus alone on every desktop; any other window would close an open cell editor
// in the middle of an entry.
AutoSaveDialog::AutoSaveDialog(AutoSaveModel& model, QWidget* parent)
    : QDialog(parent, Qt::ToolTip),
      model_(model),
      recipe_(new QLabel(this)),
      progress_(new QProgressBar(this)) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(tr("Saving Recipes"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto* border = new QFrame(this);
    border->setFrameShape(QFrame::StyledPanel);
    auto* around = new QVBoxLayout(this);
    around->setContentsMargins(0, 0, 0, 0);
    around->addWidget(border);
    auto* column = new QVBoxLayout(border);
    SetSpacing(*column, *this, true);
    auto* saving = new QLabel(tr("Saving your open recipes."), this);
    saving->setObjectName(QStringLiteral("Label1"));
    recipe_->setObjectName(QStringLiteral("lblRecipe"));
    recipe_->setTextFormat(Qt::PlainText);
    recipe_->setAccessibleName(tr("Recipe"));
    progress_->setObjectName(QStringLiteral("ProgressBar1"));
    progress_->setAccessibleName(tr("Progress"));
    progress_->setTextVisible(false);
    auto* caption = new QLabel(tr("Recipe:"), this);
    caption->setObjectName(QStringLiteral("Label2"));
    auto* recipe = new QHBoxLayout;
    recipe->setSpacing(Unit(*this) * kGapUnits);
    recipe->addWidget(caption);
    recipe->addWidget(recipe_, 1);
    column->addWidget(saving);
    column->addLayout(recipe);
    column->addWidget(progress_);
    column->addStretch();
    setMinimumWidth(Unit(*this) * 40);
    model_.SetObserver([this] { ShowProgress(); });
}

AutoSaveDialog::~AutoSaveDialog() {
    model_.SetObserver({});
}

void AutoSaveDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous()) QMetaObject::invokeMethod(this, &AutoSaveDialog::Run, Qt::QueuedConnection);
}

void AutoSaveDialog::Run() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    model_.FirstShown();
    QApplication::restoreOverrideCursor();
    QDialog::accept();
}

// Keys and clicks are not processed during the run, so that nothing changes meanwhile.
void AutoSaveDialog::ShowProgress() {
    recipe_->setText(ToQt(model_.RecipeName()));
    progress_->setRange(0, model_.Total());
    progress_->setValue(model_.Done());
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void AutoSaveDialog::reject() {
    model_.CloseBox();
    if (!model_.IsOpen()) QDialog::reject();
}

}  // namespace tw
