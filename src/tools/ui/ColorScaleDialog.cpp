#include "tools/ui/ColorScaleDialog.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "document/ui/ColorSwatch.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/CloseButton.h"
#include "platform/qt/QtText.h"
#include "tools/ui/ColorScaleView.h"

namespace tw {

ColorScaleDialog::ColorScaleDialog(ColorScaleModel& model, QWidget* parent)
    : QDialog(parent), model_(model), view_(new ColorScaleView(model, this)) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(tr("Color Scales"));
    auto* column = new QVBoxLayout(this);
    SetSpacing(*column, *this, true);
    AddScales(*column);
    column->addWidget(view_, 1);
    AddReading(*column);
    QPushButton* close = AddCloseButton(*this, *column, model, "cmdClose");
    close->setText(tr("Close"));
    close->setDefault(true);
    connect(view_, &ColorScaleView::Moved, this, &ColorScaleDialog::ShowReading);
    // Shows the first focus even before a key is pressed: here it has no text cursor.
    setAttribute(Qt::WA_KeyboardFocusChange);
    ShowReading();
}

void ColorScaleDialog::AddScales(QBoxLayout& column) {
    auto* row = new QHBoxLayout;
    row->setSpacing(Unit(*this) * kMarginUnits);
    for (int i = 0; i < kColorScales; ++i) {
        const auto scale = static_cast<ColorScale>(i);
        auto* option = new QRadioButton(QLatin1Char('&') + ToQt(ScaleName(scale)), this);
        option->setObjectName(QStringLiteral("optScale(%1)").arg(i));
        option->setChecked(scale == model_.Scale());
        if (option->isChecked()) option->setFocus();
        connect(option, &QRadioButton::toggled, this, [this, scale](bool on) {
            if (!on) return;
            model_.Choose(scale);
            view_->update();
            ShowReading();
        });
        row->addWidget(option);
    }
    row->addStretch();
    column.addLayout(row);
}

void ColorScaleDialog::AddReading(QBoxLayout& column) {
    auto* row = new QHBoxLayout;
    row->setSpacing(Unit(*this) * kGapUnits);
    auto* label = new QLabel(tr("At the &pointer:"), this);
    label->setBuddy(view_);
    row->addWidget(label);
    swatch_ = new ColorSwatch(this);
    row->addWidget(swatch_);
    reading_ = new QLabel(this);
    reading_->setObjectName(QStringLiteral("lblReading"));
    reading_->setFont(FigureFont(font()));
    row->addWidget(reading_, 1);
    column.addLayout(row);
}

void ColorScaleDialog::ShowReading() {
    const double hcu = model_.PointerHcu();
    const QColor color = view_->ColorAt(hcu);
    swatch_->SetColor({static_cast<std::uint8_t>(color.red()), static_cast<std::uint8_t>(color.green()),
                       static_cast<std::uint8_t>(color.blue())});
    reading_->setText(ToQt(ColorReading(hcu)));
    view_->setAccessibleDescription(reading_->text());
}

void ColorScaleDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
