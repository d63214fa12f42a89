#include "platform/qt/QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "platform/qt/QtText.h"

namespace tw {

bool QtClipboard::HasText() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasText();
}

std::string QtClipboard::Text() {
    return FromQt(QGuiApplication::clipboard()->text());
}

void QtClipboard::SetText(std::string_view text) {
    QGuiApplication::clipboard()->setText(ToQt(text));
}

}  // namespace tw
