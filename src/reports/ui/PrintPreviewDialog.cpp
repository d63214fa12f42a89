#include "reports/ui/PrintPreviewDialog.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"
#include "reports/ui/PreviewPage.h"

namespace tw {
namespace {

constexpr int kPageDigits = 4;

}  // namespace

PrintPreviewDialog::PrintPreviewDialog(PrintPreviewModel& model, QWidget* parent)
    : QDialog(parent), model_(model) {
    setObjectName(ToQt(model.FormName()));
    const QString recipe = ToQt(model.Steps().title);
    setWindowTitle(recipe.trimmed().isEmpty() ? tr("Print Preview") : tr("Print Preview - %1").arg(recipe));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    column->addLayout(ToolRow());
    area_ = new QScrollArea(this);
    area_->setObjectName(QStringLiteral("PreviewArea"));
    area_->setAccessibleName(tr("Pages"));
    area_->setAlignment(Qt::AlignCenter);
    area_->setBackgroundRole(QPalette::Mid);
    area_->setFocusPolicy(Qt::StrongFocus);
    page_ = new PreviewPage(model_, area_);
    area_->setWidget(page_);
    area_->installEventFilter(this);
    area_->setMinimumSize(QSize(40, 30) * Unit(*this));
    column->addWidget(area_, 1);
    column->addLayout(PageRow());
    AddKeys();
    resize(QSize(84, 96) * Unit(*this));
    area_->setFocus();
    ShowModel();
}

// Destroying the window removes the focus from the page box, which would then signal an entry.
PrintPreviewDialog::~PrintPreviewDialog() {
    pageNumber_->disconnect(this);
}

QBoxLayout* PrintPreviewDialog::ToolRow() {
    auto* row = new QHBoxLayout;
    row->setSpacing(Unit(*this) * kGapUnits);
    AddButton(*row, "cmdPrint", tr("&Print..."), tr("Prints the pages (Ctrl+P)"));
    AddButton(*row, "cmdPDF", tr("&Save as PDF..."), tr("Saves the pages as a PDF file (Ctrl+S)"));
    row->addStretch();
    QStringList papers, zooms;
    for (const std::string_view name : kPaperNames) papers << ToQt(name);
    for (const std::string& name : PrintPreviewModel::ZoomNames()) zooms << ToQt(name);
    paper_ = AddList(*row, "cmbPaper", tr("Pape&r:"), papers);
    row->addSpacing(Unit(*this));
    zoom_ = AddList(*row, "cmbZoom", tr("&Zoom:"), zooms);
    AddButton(*row, "cmdZoomOut", QStringLiteral("\u2212"), tr("Zooms out (Ctrl+-)"));
    AddButton(*row, "cmdZoomIn", QStringLiteral("+"), tr("Zooms in (Ctrl++)"));
    return row;
}

QBoxLayout* PrintPreviewDialog::PageRow() {
    auto* row = new QHBoxLayout;
    row->setSpacing(Unit(*this) * kGapUnits);
    AddButton(*row, "cmdFirst", tr("&First"), tr("Shows the first page (Home)"));
    AddButton(*row, "cmdPrevious", tr("Pre&vious"), tr("Shows the page before (Page Up)"));
    auto* label = new QLabel(tr("Pa&ge:"), this);
    pageNumber_ = new QLineEdit(this);
    pageNumber_->setObjectName(QStringLiteral("txtPage"));
    pageNumber_->setAccessibleName(tr("Page"));
    pageNumber_->setFixedWidth(DigitsWidth(*this, kPageDigits) + Unit(*this) * 2);
    connect(pageNumber_, &QLineEdit::editingFinished, this,
            [this] { Enter(QStringLiteral("txtPage"), pageNumber_->text()); });
    label->setBuddy(pageNumber_);
    pages_ = new QLabel(this);
    pages_->setObjectName(QStringLiteral("lblPages"));
    row->addWidget(label);
    row->addWidget(pageNumber_);
    row->addWidget(pages_);
    AddButton(*row, "cmdNext", tr("&Next"), tr("Shows the next page (Page Down)"));
    AddButton(*row, "cmdLast", tr("&Last"), tr("Shows the last page (End)"));
    row->addStretch();
    AddButton(*row, "cmdClose", tr("Close"), tr("Closes the preview (Escape)"));
    return row;
}

void PrintPreviewDialog::AddKeys() {
    for (const auto& [keys, button] : {std::pair(QKeySequence(Qt::CTRL | Qt::Key_P), "cmdPrint"),
                                       std::pair(QKeySequence(Qt::CTRL | Qt::Key_S), "cmdPDF"),
                                       std::pair(QKeySequence(Qt::CTRL | Qt::Key_Plus), "cmdZoomIn"),
                                       std::pair(QKeySequence(Qt::CTRL | Qt::Key_Equal), "cmdZoomIn"),
                                       std::pair(QKeySequence(Qt::CTRL | Qt::Key_Minus), "cmdZoomOut")})
        connect(new QShortcut(keys, this), &QShortcut::activated, this,
                [this, button = button] { Press(QLatin1String(button)); });
}

QPushButton* PrintPreviewDialog::AddButton(QBoxLayout& row, const char* name, const QString& caption,
                                           const QString& tip) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(tip);
    button->setAutoDefault(false);
    if (caption.size() == 1) {
        button->setAccessibleName(tip);
        button->setMaximumWidth(4 * Unit(*this));
    }
    connect(button, &QPushButton::clicked, this, [this, button] { Press(button->objectName()); });
    buttons_.insert(button->objectName(), button);
    row.addWidget(button);
    return button;
}

QComboBox* PrintPreviewDialog::AddList(QBoxLayout& row, const char* name, const QString& caption,
                                       const QStringList& entries) {
    auto* list = new QComboBox(this);
    list->setObjectName(QLatin1String(name));
    list->setAccessibleName(QString(caption).remove(QLatin1Char('&')).remove(QLatin1Char(':')));
    list->addItems(entries);
    auto* label = new QLabel(caption, this);
    label->setBuddy(list);
    row.addWidget(label);
    row.addWidget(list);
    connect(list, &QComboBox::textActivated, this,
            [this, list](const QString& text) { Enter(list->objectName(), text); });
    return list;
}

void PrintPreviewDialog::Press(const QString& button) {
    model_.Press(FromQt(button));
    if (!model_.IsOpen()) {
        QDialog::accept();
        return;
    }
    ShowModel();
    // A button that has just been disabled loses the focus, so give it to the pages.
    if (buttons_.contains(button) && !buttons_[button]->isEnabled()) area_->setFocus();
}

void PrintPreviewDialog::Enter(const QString& control, const QString& text) {
    model_.SetControl(FromQt(control), FromQt(text));
    ShowModel();
}

void PrintPreviewDialog::ShowModel() {
    for (const DialogControl& control : model_.Controls()) {
        const QString text = ToQt(control.text);
        if (control.name == "cmbPaper") paper_->setCurrentText(text);
        if (control.name == "cmbZoom") zoom_->setCurrentText(text);
        if (control.name == "txtPage") pageNumber_->setText(text);
        if (control.name == "lblPages") pages_->setText(text);
    }
    for (auto button = buttons_.cbegin(); button != buttons_.cend(); ++button)
        button.value()->setEnabled(model_.IsEnabled(FromQt(button.key())));
    page_->Fit(area_->maximumViewportSize());
}

void PrintPreviewDialog::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    page_->Fit(area_->maximumViewportSize());
}

void PrintPreviewDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    page_->Fit(area_->maximumViewportSize());
}

// A page that is taller than the window is scrolled before it is turned.
bool PrintPreviewDialog::TurnByKey(int key) {
    QScrollBar& bar = *area_->verticalScrollBar();
    const int page = model_.Page();
    if (key == Qt::Key_Home) {
        Press(QStringLiteral("cmdFirst"));
        bar.setValue(bar.minimum());
    } else if (key == Qt::Key_End) {
        Press(QStringLiteral("cmdLast"));
    } else if (key == Qt::Key_PageDown && bar.value() < bar.maximum()) {
        bar.triggerAction(QAbstractSlider::SliderPageStepAdd);
    } else if (key == Qt::Key_PageUp && bar.value() > bar.minimum()) {
        bar.triggerAction(QAbstractSlider::SliderPageStepSub);
    } else if (key == Qt::Key_PageDown) {
        Press(QStringLiteral("cmdNext"));
        if (model_.Page() != page) bar.setValue(bar.minimum());
    } else if (key == Qt::Key_PageUp) {
        Press(QStringLiteral("cmdPrevious"));
        if (model_.Page() != page) bar.setValue(bar.maximum());
    } else {
        return false;
    }
    return true;
}

bool PrintPreviewDialog::eventFilter(QObject* object, QEvent* event) {
    if (object == area_ && event->type() == QEvent::KeyPress &&
        TurnByKey(static_cast<QKeyEvent*>(event)->key()))
        return true;
    return QDialog::eventFilter(object, event);
}

void PrintPreviewDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
