#include "platform/qt/ElidedLabel.h"

namespace tw {
namespace {

// The limit, in UTF-16 units, of what the line, its tool tip and its accessible name show of a text.
constexpr int kMostCharacters = 500;

}  // namespace

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void ElidedLabel::SetFullText(const QString& text) {
    full_ = text;
    setAccessibleName(text.left(kMostCharacters));
    ShowText();
}

void ElidedLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    ShowText();
}

void ElidedLabel::ShowText() {
    const QString line = full_.left(kMostCharacters).simplified();
    const QString shown = fontMetrics().elidedText(line, Qt::ElideRight, width());
    setText(shown);
    setToolTip(shown == line ? QString() : line.toHtmlEscaped());
}

}  // namespace tw
