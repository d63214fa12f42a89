#include "tools/ui/HopUtilisationDialog.h"

#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

#include "platform/qt/Appearance.h"
#include "platform/qt/CloseButton.h"
#include "platform/qt/QtText.h"
#include "tools/ui/CurveSample.h"
#include "tools/ui/UtilisationGraphView.h"
#include "values/NumberText.h"

namespace tw {
namespace {

constexpr int kPageSteps = 10;

QString GravityText(int position) {
    return ToQt(FormatNumber(1 + (kSliderEnd - position) / 1000.0, "0.000"));
}

}  // namespace

HopUtilisationDialog::HopUtilisationDialog(HopUtilisationModel& model, QWidget* parent)
    : QDialog(parent),
      model_(model),
      heading_(new QLabel(this)),
      graph_(new UtilisationGraphView(model, this)) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(tr("Hop Utilization Graphs"));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    heading_->setObjectName(QStringLiteral("lblGraph"));
    heading_->setFont(FigureFont(font()));
    column->addWidget(heading_);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(Unit(*this) * kMarginUnits);
    middle->addLayout(SliderColumn());
    middle->addWidget(graph_, 1);
    column->addLayout(middle, 1);
    column->addLayout(FigureRow());
    QPushButton* close = AddCloseButton(*this, *column, model, "cmdClose");
    close->setText(tr("Close"));
    close->setDefault(true);
    connect(graph_, &UtilisationGraphView::Moved, this, &HopUtilisationDialog::ShowFigures);
    ShowGravity();
    slider_->setFocus();
}

QLayout* HopUtilisationDialog::SliderColumn() {
    slider_ = new QSlider(Qt::Vertical, this);
    slider_->setObjectName(QStringLiteral("Slider1"));
    slider_->setAccessibleName(tr("Gravity"));
    slider_->setRange(0, kSliderEnd);
    // Position 0, the heaviest wort, is at the top, and the up key makes it heavier.
    slider_->setInvertedAppearance(true);
    slider_->setInvertedControls(true);
    slider_->setPageStep(kPageSteps);
    slider_->setTickPosition(QSlider::TicksRight);
    slider_->setTickInterval(kSliderEnd / 5);
    slider_->setValue(model_.Position());
    connect(slider_, &QSlider::valueChanged, this, [this](int position) {
        model_.MoveSlider(position);
        ShowGravity();
    });
    auto* label = new QLabel(tr("&Gravity"), this);
    label->setBuddy(slider_);
    auto* column = new QVBoxLayout;
    column->setSpacing(Unit(*this) * kGapUnits / 2);
    column->addWidget(label, 0, Qt::AlignHCenter);
    column->addWidget(new QLabel(GravityText(0), this), 0, Qt::AlignHCenter);
    column->addWidget(slider_, 1, Qt::AlignHCenter);
    column->addWidget(new QLabel(GravityText(kSliderEnd), this), 0, Qt::AlignHCenter);
    return column;
}

QLayout* HopUtilisationDialog::FigureRow() {
    auto* row = new QHBoxLayout;
    row->setSpacing(Unit(*this) * kGapUnits);
    time_ = new QLabel(tr("At 90 &minutes:"), this);
    time_->setBuddy(graph_);
    time_->setMinimumWidth(time_->sizeHint().width());
    row->addWidget(time_);
    for (int i = 0; i < kMethods; ++i) {
        const auto method = static_cast<IbuMethod>(i);
        row->addSpacing(Unit(*this) * kMarginUnits);
        row->addWidget(new CurveSample(method, this));
        row->addWidget(new QLabel(QLatin1String(MethodName(method)), this));
        auto* figure = new QLabel(QStringLiteral("00.0%"), this);
        figure->setObjectName(QStringLiteral("lblFigure(%1)").arg(i));
        figure->setFont(FigureFont(font()));
        figure->setMinimumWidth(figure->sizeHint().width());
        figures_[static_cast<std::size_t>(i)] = figure;
        row->addWidget(figure);
    }
    row->addStretch();
    return row;
}

void HopUtilisationDialog::ShowGravity() {
    heading_->setText(ToQt(model_.GraphText()));
    slider_->setAccessibleDescription(heading_->text());
    graph_->ShowModel();
    ShowFigures();
}

void HopUtilisationDialog::ShowFigures() {
    time_->setText(tr("At %1 &minutes:").arg(model_.Minutes()));
    const UtilisationFigures figures = model_.Figures();
    QStringList spoken{tr("At %1 minutes").arg(model_.Minutes())};
    for (int i = 0; i < kMethods; ++i) {
        const auto method = static_cast<IbuMethod>(i);
        const QString name = QLatin1String(MethodName(method));
        const QString text = ToQt(FormatNumber(FigureOf(figures, method), "0.0")) + QLatin1Char('%');
        QLabel* figure = figures_[static_cast<std::size_t>(i)];
        figure->setText(text);
        figure->setAccessibleName(name + QLatin1Char(' ') + text);
        spoken << figure->accessibleName();
    }
    graph_->setAccessibleDescription(spoken.join(QStringLiteral(", ")));
}

void HopUtilisationDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
