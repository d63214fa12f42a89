// The dialog for choosing a colour.
#pragma once

#include <QColor>
#include <optional>

class QString;
class QWidget;

namespace tw {

class ColorChooser {
  public:
    virtual ~ColorChooser() = default;
    // Shows the dialog with current selected. Returns the colour chosen, or nullopt if the dialog
    // was cancelled.
    virtual std::optional<QColor> Choose(const QColor& current, const QString& title, QWidget* parent) = 0;
};

// The colour dialog of the desktop.
class QtColorChooser final : public ColorChooser {
  public:
    std::optional<QColor> Choose(const QColor& current, const QString& title, QWidget* parent) override;
};

}  // namespace tw
