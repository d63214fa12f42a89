#include "help/ui/AssistantDialog.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "help/ui/AssistantLinkButton.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"
#include "platform/qt/SvgIcon.h"

namespace tw {
namespace {

QIcon PictureOf(const AssistantLink& link) {
    return SvgIcon(QStringLiteral(":/icons/%1.svg").arg(ToQt(link.image)), SvgInk::AsDrawn);
}

}  // namespace

AssistantDialog::AssistantDialog(AssistantModel& model, QWidget* parent) : QDialog(parent), model_(model) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(ToQt(AssistantModel::kTitle));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    auto* heading = new QLabel(tr("Where would you like to start?"), this);
    heading->setObjectName(QStringLiteral("lblHeading"));
    heading->setFont(FigureFont(font()));
    column->addWidget(heading);
    AddLinks(*column);
    AddButtons(*column);
    links_.front()->setFocus();
}

// The links are destroyed after this object and then lose the focus, which would signal Left.
AssistantDialog::~AssistantDialog() {
    for (AssistantLinkButton* link : links_) link->disconnect(this);
}

void AssistantDialog::AddLinks(QBoxLayout& column) {
    for (const AssistantLink& link : kAssistantLinks) {
        auto* button = new AssistantLinkButton(PictureOf(link), ToQt(link.caption), this);
        const std::string name = "lbl" + std::string(link.name);
        button->setObjectName(ToQt(name));
        connect(button, &AssistantLinkButton::clicked, this, [this, name] { Press(name); });
        connect(button, &AssistantLinkButton::Reached, this, [this, button] { Highlight(*button); });
        connect(button, &AssistantLinkButton::Left, this, &AssistantDialog::HighlightWhatIsLeft);
        links_.push_back(button);
        column.addWidget(button);
    }
    column.addSpacing(Unit(*this) * kGapUnits);
    column.addStretch(1);
}

void AssistantDialog::AddButtons(QBoxLayout& column) {
    auto* row = new QHBoxLayout;
    row->setSpacing(Unit(*this) * kMarginUnits);
    auto* show = new QCheckBox(tr("Show &this window when Tunwright starts"), this);
    show->setObjectName(QStringLiteral("chkShowAtStartup"));
    show->setChecked(model_.ShowAtStartup());
    connect(show, &QCheckBox::toggled, this, [this](bool on) { model_.SetShowAtStartup(on); });
    row->addWidget(show);
    row->addStretch(1);
    auto* close = new QPushButton(tr("OK"), this);
    close->setObjectName(QStringLiteral("cmdOK"));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, [this] { Press("cmdOK"); });
    row->addWidget(close);
    column.addLayout(row);
}

void AssistantDialog::Press(std::string_view button) {
    model_.Press(button);
    QDialog::accept();
}

void AssistantDialog::Highlight(const AssistantLinkButton& link) {
    for (AssistantLinkButton* other : links_) other->Highlight(other == &link);
}

void AssistantDialog::HighlightWhatIsLeft() {
    auto found = std::ranges::find_if(links_, [](const auto* link) { return link->IsPointedAt(); });
    if (found == links_.end())
        found = std::ranges::find_if(links_, [](const auto* link) { return link->hasFocus(); });
    if (found != links_.end()) return Highlight(**found);
    for (AssistantLinkButton* link : links_) link->Highlight(false);
}

void AssistantDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
