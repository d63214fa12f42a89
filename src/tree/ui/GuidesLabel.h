// The line below a list of styles that names the guides of their codes.
#pragma once

#include <QEvent>
#include <QLabel>
#include <string>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"

namespace tw {

class GuidesLabel final : public QLabel {
  public:
    explicit GuidesLabel(QWidget* parent) : QLabel(parent) {
        setObjectName(QStringLiteral("lblGuides"));
        setWordWrap(true);
        FollowPalette();
    }
    // Hidden without guides.
    void Show(const std::string& guides) {
        setText(tr("Codes: %1").arg(ToQt(guides)));
        setVisible(!guides.empty());
    }

  protected:
    void changeEvent(QEvent* event) override {
        QLabel::changeEvent(event);
        if (event->type() == QEvent::ApplicationPaletteChange) FollowPalette();
    }

  private:
    void FollowPalette() {
        QPalette palette = parentWidget()->palette();
        palette.setColor(QPalette::WindowText, HintColor(palette));
        setPalette(palette);
    }
};

}  // namespace tw
