#include "reports/qt/PaperPainter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

#include "platform/qt/QtText.h"

namespace tw {
namespace {

// Thin, but visible on paper at any resolution.
constexpr double kPenPoints = 0.5;

// Families with the same letter widths, for systems that lack the two families of a printed recipe.
QStringList Families(const std::string& family) {
    QStringList families{ToQt(family)};
    if (family == "Arial")
        families << QStringLiteral("Liberation Sans") << QStringLiteral("Arimo")
                 << QStringLiteral("Nimbus Sans") << QStringLiteral("Helvetica");
    if (family == "Times New Roman")
        families << QStringLiteral("Liberation Serif") << QStringLiteral("Tinos")
                 << QStringLiteral("Nimbus Roman") << QStringLiteral("Times");
    return families;
}

}  // namespace

QFont PaperFont(const PrintFont& font, double dpi) {
    QFont face;
    face.setFamilies(Families(font.family));
    face.setStyleHint(font.family.find("Times") == std::string::npos ? QFont::SansSerif : QFont::Serif);
    face.setPixelSize(std::max(1, static_cast<int>(std::lround(dpi / kPointsPerInch * font.points))));
    face.setBold(font.bold);
    face.setItalic(font.italic);
    face.setHintingPreference(QFont::PreferNoHinting);
    return face;
}

QString PaperText(std::string_view text) {
    QString drawn = ToQt(text);
    for (QChar& c : drawn)
        if (c.category() == QChar::Other_Control) c = QLatin1Char(' ');
    return drawn;
}

PrintSize PaperTextSize(const QFont& font, std::string_view text, double dpi) {
    const QFontMetricsF metrics(font);
    return {text.empty() ? 0 : metrics.horizontalAdvance(PaperText(text)) / dpi, metrics.height() / dpi};
}

void DrawPaperText(QPainter& painter, std::string_view text, double x, double y, double dpi) {
    const double ascent = QFontMetricsF(painter.font()).ascent();
    painter.drawText(QPointF(x * dpi, y * dpi + ascent), PaperText(text));
}

void DrawPaperLine(QPainter& painter, double x1, double y1, double x2, double y2, double dpi) {
    painter.drawLine(QPointF(x1 * dpi, y1 * dpi), QPointF(x2 * dpi, y2 * dpi));
}

void DrawPaperBox(QPainter& painter, double x1, double y1, double x2, double y2, double dpi) {
    painter.drawRect(QRectF(QPointF(x1 * dpi, y1 * dpi), QPointF(x2 * dpi, y2 * dpi)));
}

void SetPaperColor(QPainter& painter, Rgb color, double dpi) {
    const QColor shown(color.red, color.green, color.blue);
    painter.setPen(QPen(shown, kPenPoints / kPointsPerInch * dpi));
    painter.setBrush(shown);
}

void PaintPage(QPainter& painter, const PrintSteps& steps, int page) {
    constexpr Rgb kBlack{0, 0, 0};
    SetPaperColor(painter, kBlack, kPaperDpi);
    int current = 0;
    for (const PrintStep& step : steps.steps) {
        if (step.kind == PrintStep::Kind::Page) ++current;
        if (current > page) return;
        if (current < page) continue;
        if (step.kind == PrintStep::Kind::Text) {
            painter.setFont(PaperFont(step.font, kPaperDpi));
            DrawPaperText(painter, step.text, step.x1, step.y1, kPaperDpi);
        } else if (step.kind == PrintStep::Kind::Line) {
            DrawPaperLine(painter, step.x1, step.y1, step.x2, step.y2, kPaperDpi);
        } else if (step.kind == PrintStep::Kind::Box) {
            SetPaperColor(painter, step.color, kPaperDpi);
            DrawPaperBox(painter, step.x1, step.y1, step.x2, step.y2, kPaperDpi);
            SetPaperColor(painter, kBlack, kPaperDpi);
        }
    }
}

PrintSize PaperMeasure::SizeOf(const PrintFont& font, std::string_view text) const {
    const auto [found, added] = fonts_.try_emplace({font.family, font.points, font.bold, font.italic});
    if (added) found->second = PaperFont(font, kPaperDpi);
    return PaperTextSize(found->second, text, kPaperDpi);
}

}  // namespace tw
