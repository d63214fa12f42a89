#include "document/ui/GeneralPage.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

#include "document/DetailWindows.h"
#include "document/ui/ColorSwatch.h"
#include "document/ui/FancyLabel.h"
#include "document/ui/FieldBox.h"
#include "document/ui/GapMark.h"
#include "document/ui/PageBuilder.h"
#include "document/ui/RangeBar.h"
#include "platform/qt/Appearance.h"

namespace tw {
namespace {

constexpr int kVolumeDigits = 10;
constexpr int kFigureDigits = 13;
// Wide enough for ">50 SRM (200 HCU)", of a dark beer.
constexpr int kColorDigits = 15;
constexpr int kGravityDigits = 7;

// The columns of the layout of the figures.
enum FigureColumn { Caption, Box, Mark, Extra, Range, Bar, FigureColumns };

QString Tr(const char* text) {
    return QCoreApplication::translate("GeneralPage", text);
}

// Adds a rule with a caption across the columns of a layout, with the space between groups above it.
void AddRule(PageBuilder& b, QGridLayout& grid, int columns, int number, const QString& caption) {
    const int row = grid.rowCount();
    if (number != 1 && row > 1) grid.setRowMinimumHeight(row, Unit(b.Page()));
    auto* rule = new FancyLabel(caption, &b.Page());
    rule->setObjectName(QStringLiteral("FancyLabel%1").arg(number));
    grid.addWidget(rule, row + 1, 0, 1, columns);
}

QGridLayout* MakeSizes(PageBuilder& b) {
    RecipeRecord& r = b.Record();
    auto* grid = new QGridLayout;
    grid->setSpacing(Unit(b.Page()) * kGapUnits);
    const auto add = [&](FieldBox* box) {
        const int row = grid->rowCount();
        grid->addWidget(b.LabelFor(box), row, 0);
        const bool wide = box->sizePolicy().horizontalPolicy() != QSizePolicy::Fixed;
        grid->addWidget(box, row, 1, 1, 2, wide ? Qt::Alignment() : Qt::AlignLeft);
    };
    AddRule(b, *grid, 3, 1, Tr("Basic"));
    const QString style = Tr("Beer &Style:");
    add(b.Field(r.txtName, 0));
    QComboBox* styles = b.StyleList(PlainCaption(style));
    const int row = grid->rowCount();
    grid->addWidget(b.LabelFor(style, styles), row, 0);
    grid->addWidget(styles, row, 1);
    auto* browse = new QPushButton(Tr("B&rowse..."), &b.Page());
    browse->setObjectName(QStringLiteral("cmdBrowseStyles"));
    browse->setAccessibleName(Tr("Browse styles"));
    browse->setToolTip(Tr("Choose the style from its folders"));
    browse->setAutoDefault(false);
    DocumentBinding& binding = b.Binding();
    QObject::connect(browse, &QPushButton::clicked, browse, [&binding] {
        if (binding.Flush()) binding.Run([](RecipeDocument& document) { document.Picks().BrowseStyles(); });
    });
    grid->addWidget(browse, row, 2);
    add(b.Field(r.txtNumBatches, kVolumeDigits));
    AddRule(b, *grid, 3, 2, Tr("Batch Size"));
    add(b.Field(r.txtBoilVol, kVolumeDigits));
    add(b.Field(r.txtTotalVol, kVolumeDigits));
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(grid->rowCount(), 1);
    return grid;
}

struct FigureRow {
    TextBox& box;
    const Label& range;
    int digits;
};

void AddFigure(PageBuilder& b, QGridLayout& grid, const FigureRow& figure, QWidget* extra) {
    const int row = grid.rowCount();
    const QString what = PlainCaption(PageBuilder::CaptionOf(figure.box));
    FieldBox* box = b.Figure(figure.box, figure.digits);
    grid.addWidget(b.LabelFor(box), row, Caption);
    grid.addWidget(box, row, Box, Qt::AlignLeft);
    grid.addWidget(b.Gaps(figure.box.Id(), what), row, Mark);
    if (extra) {
        grid.addWidget(extra, row, Extra, Qt::AlignLeft);
        QWidget::setTabOrder(box, extra);
    }
    QLabel* range = b.RecordLabel(figure.range, Tr("%1 of the style").arg(what));
    range->setMinimumWidth(range->fontMetrics().horizontalAdvance(QStringLiteral("0.000 - 0.000")));
    grid.addWidget(range, row, Range);
    grid.addWidget(b.Bar(figure.box, figure.range, what), row, Bar);
}

QPushButton* MoreInfo(PageBuilder& b, const Button& button, const QString& caption, const QString& about,
                      DetailsModel (*details)(const RecipeDocument&)) {
    DocumentBinding& binding = b.Binding();
    return b.CommandButton(button, caption, about, [&binding, details](RecipeDocument& document) {
        DetailsModel model = details(document);
        binding.Ports().dialogs.ShowModal(model);
    });
}

QGridLayout* MakeFigures(PageBuilder& b) {
    RecipeRecord& r = b.Record();
    auto* grid = new QGridLayout;
    grid->setSpacing(Unit(b.Page()) * kGapUnits);
    AddRule(b, *grid, FigureColumns, 3, Tr("Strength"));
    AddFigure(b, *grid, {r.txtOG, r.lblOGStyle, kGravityDigits},
              MoreInfo(b, r.cmdStrengthDetails, Tr("&More Info"), Tr("More about the strength"),
                       StrengthDetailsOf));
    AddFigure(b, *grid, {r.txtFG, r.lblFGStyle, kGravityDigits}, nullptr);
    AddFigure(b, *grid, {r.txtABV, r.lblABVStyle, kFigureDigits}, nullptr);
    AddRule(b, *grid, FigureColumns, 4, Tr("Appearance"));
    auto* swatch = new ColorSwatch(&b.Page());
    swatch->SetColor(r.Swatch());
    b.Binding().WatchSwatch([swatch](Rgb color) { swatch->SetColor(color); });
    AddFigure(b, *grid, {r.txtColor, r.lblColorStyle, kColorDigits}, swatch);
    AddRule(b, *grid, FigureColumns, 5, Tr("Bitterness"));
    AddFigure(b, *grid, {r.txtIBU, r.lblIBUStyle, kGravityDigits},
              MoreInfo(b, r.cmdIBUDetails, Tr("More &Info"), Tr("More about the bitterness"), HopDetailsOf));
    AddRule(b, *grid, FigureColumns, 6, Tr("Carbonation"));
    AddFigure(b, *grid, {r.txtCO2, r.lblCO2Style, kFigureDigits}, nullptr);
    grid->setColumnStretch(Bar, 1);
    grid->setRowStretch(grid->rowCount(), 1);
    return grid;
}

// Shows the sizes beside the figures, or above them in a window that is too narrow for both.
class FacePage final : public QWidget {
  public:
    FacePage(PageBuilder& b, QWidget* parent)
        : QWidget(parent), box_(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
        SetSpacing(*box_, *this, true);
        box_->setSpacing(Unit(*this) * kGroupUnits);
        sizes_ = MakeSizes(b);
        figures_ = MakeFigures(b);
        box_->addLayout(sizes_, 2);
        box_->addLayout(figures_, 3);
    }

    QSize minimumSizeHint() const override {
        const QMargins margins = box_->contentsMargins();
        const int widest = std::max(sizes_->minimumSize().width(), figures_->minimumSize().width());
        return {widest + margins.left() + margins.right(), QWidget::minimumSizeHint().height()};
    }

  protected:
    void resizeEvent(QResizeEvent* event) override {
        QWidget::resizeEvent(event);
        const QMargins margins = box_->contentsMargins();
        const int beside = sizes_->minimumSize().width() + figures_->minimumSize().width() + box_->spacing() +
                           margins.left() + margins.right();
        box_->setDirection(width() < beside ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    }

  private:
    QBoxLayout* box_;
    QGridLayout* sizes_ = nullptr;
    QGridLayout* figures_ = nullptr;
};

}  // namespace

void BuildGeneral(PageBuilder& b) {
    auto* column = new QVBoxLayout(&b.Page());
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(new FacePage(b, &b.Page()));
}

}  // namespace tw
