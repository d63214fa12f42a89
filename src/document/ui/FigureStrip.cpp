#include "document/ui/FigureStrip.h"

#include <QAbstractButton>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QShortcut>
#include <cmath>

#include "document/ui/ColorSwatch.h"
#include "document/ui/GapMark.h"
#include "document/ui/PageBuilder.h"
#include "document/ui/RangeBar.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"

namespace tw {
namespace {

constexpr double kBarUnits = 1.7;
constexpr double kSwatchUnits = 1.4;
constexpr double kHoverOpacity = 0.14;

QString KeyText(char key) {
    return QKeySequence(Qt::ALT | static_cast<Qt::Key>(key)).toString(QKeySequence::NativeText);
}

// One figure: its name and its value, above the bar of the style's range.
class StripFigure final : public QAbstractButton {
  public:
    StripFigure(PageBuilder& b, const FigureRule& rule, QWidget* parent)
        : QAbstractButton(parent),
          rule_(rule),
          record_(b.Record()),
          caption_(PlainCaption(PageBuilder::CaptionOf(record_.*rule.box))) {
        setObjectName(QStringLiteral("strip%1").arg(QLatin1String(rule.shortName)));
        // The tab order leads through the tabs; the keys of the figures work from everywhere.
        setFocusPolicy(Qt::NoFocus);
        setCursor(Qt::PointingHandCursor);
        setAttribute(Qt::WA_Hover);
        AddParts(b);
        b.Binding().Watch(&(record_.*rule.box), [this] { Show(); });
        b.Binding().Watch(&(record_.*rule.range), [this] { Show(); });
        Show();
    }

    QSize sizeHint() const override { return layout()->sizeHint(); }
    QSize minimumSizeHint() const override { return layout()->minimumSize(); }

  protected:
    void paintEvent(QPaintEvent*) override {
        if (!underMouse()) return;
        QPainter painter(this);
        QColor ground = Accent(palette());
        ground.setAlphaF(kHoverOpacity);
        painter.fillRect(rect(), ground);
    }

    void changeEvent(QEvent* event) override {
        QAbstractButton::changeEvent(event);
        if (event->type() == QEvent::PaletteChange) LookQuiet();
    }

  private:
    void AddParts(PageBuilder& b) {
        auto* grid = new QGridLayout(this);
        const int unit = Unit(*this);
        grid->setContentsMargins(unit, unit / 2, unit, unit / 2);
        grid->setHorizontalSpacing(unit);
        grid->setVerticalSpacing(0);
        name_ = new QLabel(QCoreApplication::translate("FigureStrip", rule_.shortName), this);
        value_ = new QLabel(this);
        value_->setTextFormat(Qt::PlainText);
        QFont face = BoldFont(font());
        face.setKerning(false);
        value_->setFont(face);
        grid->addWidget(name_, 0, 0);
        grid->addWidget(value_, 0, 1);
        int col = 2;
        if (rule_.field == FieldId::Color) grid->addWidget(MakeSwatch(b), 0, col++, Qt::AlignVCenter);
        grid->addWidget(b.Gaps(rule_.field, caption_), 0, col++);
        grid->setColumnStretch(col, 1);
        // With room for the mark, so that all six values stand on one line.
        grid->setRowMinimumHeight(0, GapMarkWidth(fontMetrics()));
        bar_ = b.Bar(record_.*rule_.box, record_.*rule_.range, caption_);
        bar_->setFixedHeight(static_cast<int>(std::lround(unit * kBarUnits)));
        grid->addWidget(bar_, 1, 0, 1, col + 1);
        LookQuiet();
    }

    QWidget* MakeSwatch(PageBuilder& b) {
        auto* swatch = new ColorSwatch(this);
        const int side = static_cast<int>(std::lround(Unit(*this) * kSwatchUnits));
        swatch->setFixedSize(side * 2, side);
        swatch->setObjectName(QStringLiteral("stripSwatch"));
        swatch->SetColor(record_.Swatch());
        b.Binding().WatchSwatch([swatch](Rgb color) { swatch->SetColor(color); });
        return swatch;
    }

    void LookQuiet() {
        QPalette quiet = palette();
        quiet.setColor(QPalette::WindowText, HintColor(palette()));
        name_->setPalette(quiet);
    }

    void Show() {
        const QString text = ToQt(ShortText(rule_, record_));
        value_->setText(text.isEmpty() ? QStringLiteral("\u2013") : text);
        const QString full = ToQt((record_.*rule_.box).Text());
        const QString verdict = bar_->Verdict();
        setAccessibleName(
            FigureStrip::tr("%1: %2").arg(caption_, full.isEmpty() ? FigureStrip::tr("unknown") : full));
        setAccessibleDescription(verdict);
        QString tip = accessibleName();
        if (!verdict.isEmpty()) tip += QStringLiteral(", ") + verdict;
        setToolTip(tip + QStringLiteral(" (%1)").arg(KeyText(rule_.key)));
    }

    const FigureRule& rule_;
    RecipeRecord& record_;
    QString caption_;
    QLabel* name_ = nullptr;
    QLabel* value_ = nullptr;
    RangeBar* bar_ = nullptr;
};

}  // namespace

FigureStrip::FigureStrip(PageBuilder& builder, QWidget& keys) : QWidget(&builder.Page()) {
    setObjectName(QStringLiteral("strip"));
    setAccessibleName(tr("Figures of the recipe"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 1, 0, 0);
    row->setSpacing(0);
    for (const FigureRule& rule : FigureRules()) {
        auto* figure = new StripFigure(builder, rule, this);
        connect(figure, &QAbstractButton::clicked, this, [this, &rule] { emit Wanted(rule.field); });
        row->addWidget(figure, 1);
        AddKey(rule, keys);
    }
}

void FigureStrip::AddKey(const FigureRule& rule, QWidget& keys) {
    auto* shortcut = new QShortcut(Qt::ALT | static_cast<Qt::Key>(rule.key), &keys);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, [this, &rule] { emit Wanted(rule.field); });
    keys_.push_back({rule.key, shortcut});
}

void FigureStrip::YieldKey(char key) {
    for (const Key& each : keys_) each.shortcut->setEnabled(each.letter != key);
}

void FigureStrip::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu(this);
    menu.addAction(tr("&Hide the figures"), this, &FigureStrip::HidingWanted);
    menu.exec(event->globalPos());
}

void FigureStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(HairlineColor(palette()));
    painter.drawLine(0, 0, width(), 0);
}

}  // namespace tw
