#include "platform/qt/ColorChooser.h"

#include <QColorDialog>

namespace tw {

std::optional<QColor> QtColorChooser::Choose(const QColor& current, const QString& title, QWidget* parent) {
    const QColor chosen = QColorDialog::getColor(current, parent, title);
    if (!chosen.isValid()) return std::nullopt;
    return chosen;
}

}  // namespace tw
