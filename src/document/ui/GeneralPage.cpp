#include "document/ui/GeneralPage.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

#include "document/DetailWindows.h"
#include "document/FigureRules.h"
#include "document/ui/ColorSwatch.h"
#include "document/ui/FancyLabel.h"
#include "document/ui/FieldBox.h"
#include "document/ui/GapMark.h"
#include "document/ui/PageBuilder.h"
#include "document/ui/RangeBar.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/ElidedLabel.h"
#include "platform/qt/QtText.h"

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

void AddFigure(PageBuilder& b, QGridLayout& grid, FieldId id, int digits, QWidget* extra) {
    const FigureRule& figure = RuleOfFigure(id);
    const Label& range = b.Record().*figure.range;
    TextBox& shown = b.Record().*figure.box;
    const int row = grid.rowCount();
    const QString what = PlainCaption(PageBuilder::CaptionOf(shown));
    FieldBox* box = b.Figure(shown, digits);
    grid.addWidget(b.LabelFor(box), row, Caption);
    grid.addWidget(box, row, Box, Qt::AlignLeft);
    grid.addWidget(b.Gaps(id, what), row, Mark);
    if (extra) {
        grid.addWidget(extra, row, Extra, Qt::AlignLeft);
        QWidget::setTabOrder(box, extra);
    }
    QLabel* rangeLabel = b.RecordLabel(range, Tr("%1 of the style").arg(what));
    rangeLabel->setMinimumWidth(rangeLabel->fontMetrics().horizontalAdvance(QStringLiteral("0.000 - 0.000")));
    grid.addWidget(rangeLabel, row, Range);
    grid.addWidget(b.Bar(shown, range, what), row, Bar);
}

QPushButton* MoreInfo(PageBuilder& b, const Button& button, const QString& caption, const QString& about,
                      DetailsModel (*details)(const RecipeDocument&)) {
    DocumentBinding& binding = b.Binding();
    return b.CommandButton(button, caption, about, [&binding, details](RecipeDocument& document) {
        DetailsModel model = details(document);
        binding.Ports().dialogs.ShowModal(model);
    });
}

QPushButton* YeastButton(PageBuilder& b) {
    DocumentBinding& binding = b.Binding();
    auto* button = new QPushButton(Tr("&Yeast..."), &b.Page());
    button->setObjectName(QStringLiteral("cmdYeast"));
    button->setAccessibleName(Tr("Choose the yeast"));
    button->setToolTip(Tr("Choose the yeast that is pitched; it gives the finished gravity"));
    button->setAutoDefault(false);
    QObject::connect(button, &QPushButton::clicked, button, [&binding] {
        if (binding.Flush()) binding.Run([](RecipeDocument& document) { document.Picks().BrowseYeast(); });
    });
    return button;
}

// Adds a line with a quiet text below a figure, which is worked out anew after every change of the recipe.
void AddNote(PageBuilder& b, QGridLayout& grid, const QString& caption, const QString& name,
             QString (*textOf)(const RecipeDocument&)) {
    const int row = grid.rowCount();
    auto* label = new ElidedLabel(&b.Page());
    label->setObjectName(name);
    grid.addWidget(b.LabelFor(caption, nullptr), row, Caption);
    grid.addWidget(label, row, Box, 1, FigureColumns - Box);
    DocumentBinding& binding = b.Binding();
    const auto show = [label, caption, textOf, &binding] {
        const QString text = textOf(*binding.Document());
        const QString spoken = caption + QLatin1Char(' ') + text;
        if (label->accessibleName() == spoken) return;
        label->SetFullText(text);
        label->setAccessibleName(spoken);
    };
    binding.WatchAll(show);
    show();
}

QGridLayout* MakeFigures(PageBuilder& b) {
    RecipeRecord& r = b.Record();
    auto* grid = new QGridLayout;
    grid->setSpacing(Unit(b.Page()) * kGapUnits);
    AddRule(b, *grid, FigureColumns, 3, Tr("Strength"));
    AddFigure(b, *grid, FieldId::OG, kGravityDigits,
              MoreInfo(b, r.cmdStrengthDetails, Tr("&More Info"), Tr("More about the strength"),
                       StrengthDetailsOf));
    AddFigure(b, *grid, FieldId::FG, kGravityDigits, YeastButton(b));
    AddNote(b, *grid, Tr("Yeast:"), QStringLiteral("lblYeast"), [](const RecipeDocument& document) {
        const std::string name = document.Yeast().Name();
        return name.empty() ? Tr("No yeast yet") : ToQt(name);
    });
    AddFigure(b, *grid, FieldId::ABV, kFigureDigits, nullptr);
    AddRule(b, *grid, FigureColumns, 4, Tr("Appearance"));
    auto* swatch = new ColorSwatch(&b.Page());
    swatch->SetColor(r.Swatch());
    b.Binding().WatchSwatch([swatch](Rgb color) { swatch->SetColor(color); });
    AddFigure(b, *grid, FieldId::Color, kColorDigits, swatch);
    AddRule(b, *grid, FigureColumns, 5, Tr("Bitterness"));
    AddFigure(b, *grid, FieldId::IBU, kGravityDigits,
              MoreInfo(b, r.cmdIBUDetails, Tr("More &Info"), Tr("More about the bitterness"), HopDetailsOf));
    AddNote(b, *grid, Tr("BU:GU:"), QStringLiteral("lblBalance"), [](const RecipeDocument& document) {
        const std::string balance = BalanceText(document.Record());
        return balance.empty() ? QStringLiteral("\u2013") : ToQt(balance);
    });
    AddRule(b, *grid, FigureColumns, 6, Tr("Carbonation"));
    AddFigure(b, *grid, FieldId::CO2, kFigureDigits, nullptr);
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
