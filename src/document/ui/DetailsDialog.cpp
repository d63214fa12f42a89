#include "document/ui/DetailsDialog.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

#include "platform/qt/Appearance.h"
#include "platform/qt/CloseButton.h"
#include "platform/qt/QtText.h"

namespace tw {
namespace {

constexpr int kBalanceEnd = 1000;

struct LabelText {
    const char* name;
    const char* caption;
};

constexpr LabelText kCaptions[] = {{"lblOE", "Original extract:"},
                                   {"lblAE", "Apparent extract:"},
                                   {"lblRE", "Real extract:"},
                                   {"lblAA", "Apparent attenuation:"},
                                   {"lblRA", "Real attenuation:"},
                                   {"lblAW", "Alcohol by weight:"},
                                   {"lblAV", "Alcohol by volume:"},
                                   {"lblCC", "Calories:"},
                                   {"lblFP", "Freezing point:"},
                                   {"lblTotalVol", "Total volume:"},
                                   {"lblXferLosses", "Transfer losses:"},
                                   {"lblDilution", "Dilution:"},
                                   {"lblFinalVolume", "Final volume:"},
                                   {"lblNumberBottles", "Bottles of 12 fl.oz.:"},
                                   {"lblOG", "Original gravity:"},
                                   {"lblFG", "Finished gravity:"},
                                   {"lblDG", "Diluted gravity:"},
                                   {"lblAlcohol", "Alcohol content:"},
                                   {"lblCalories", "Calories:"},
                                   {"lblBU", "Bitterness units:"},
                                   {"lblGU", "Gravity units:"},
                                   {"lblRatio", "Bitterness to gravity:"}};

QString CaptionOf(const std::string& name) {
    for (const LabelText& text : kCaptions)
        if (name == text.name) return DetailsDialog::tr(text.caption);
    return ToQt(name);
}

QString TitleOf(const std::string& form) {
    if (form == DetailsModel::kStrengthForm) return DetailsDialog::tr("Strength Details");
    if (form == DetailsModel::kFinalVolForm) return DetailsDialog::tr("Final Volume Details");
    return DetailsDialog::tr("Bitterness Details");
}

}  // namespace

DetailsDialog::DetailsDialog(DetailsModel& model, QWidget* parent) : QDialog(parent), model_(model) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(TitleOf(model.FormName()));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    AddFigures(*column);
    if (model.FormName() == DetailsModel::kHopForm) AddBalance(*column);
    column->addSpacing(Unit(*this));
    column->addStretch();
    QPushButton* close = AddCloseButton(*this, *column, model, "cmdClose");
    close->setDefault(true);
    close->setFocus();
}

void DetailsDialog::AddFigures(QVBoxLayout& column) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(Unit(*this) * kMarginUnits);
    grid->setVerticalSpacing(Unit(*this) * kGapUnits);
    for (const DialogControl& control : model_.Controls()) {
        // The slider shows its position itself, without a label.
        if (!control.name.starts_with("lbl")) continue;
        const int row = grid->rowCount();
        const QString caption = CaptionOf(control.name);
        auto* name = new QLabel(caption, this);
        name->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        auto* figure = new QLabel(ToQt(control.text), this);
        figure->setObjectName(ToQt(control.name));
        figure->setAccessibleName(caption + QLatin1Char(' ') + ToQt(control.text));
        figure->setTextFormat(Qt::PlainText);
        figure->setTextInteractionFlags(Qt::TextSelectableByMouse);
        figure->setFont(FigureFont(font()));
        grid->addWidget(name, row, 0);
        grid->addWidget(figure, row, 1);
    }
    grid->setColumnStretch(1, 1);
    column.addLayout(grid);
}

void DetailsDialog::AddBalance(QVBoxLayout& column) {
    auto* slider = new QSlider(Qt::Horizontal, this);
    slider->setObjectName(QStringLiteral("sliderBalance"));
    slider->setAccessibleName(tr("Balance of malt and hops"));
    slider->setRange(0, kBalanceEnd);
    slider->setValue(model_.SliderBalance());
    slider->setTickPosition(QSlider::TicksBelow);
    slider->setTickInterval(kBalanceEnd / 4);
    slider->setMinimumWidth(Unit(*this) * 40);
    // Display only: neither the mouse nor the keys move it.
    slider->setAttribute(Qt::WA_TransparentForMouseEvents);
    slider->setFocusPolicy(Qt::NoFocus);
    auto* ends = new QHBoxLayout;
    ends->addWidget(new QLabel(tr("Malty"), this));
    ends->addStretch();
    ends->addWidget(new QLabel(tr("Balanced"), this));
    ends->addStretch();
    ends->addWidget(new QLabel(tr("Bitter"), this));
    column.addSpacing(Unit(*this));
    column.addWidget(slider);
    column.addLayout(ends);
}

void DetailsDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
