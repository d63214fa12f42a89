// The line below a list of styles that names the guides to which their codes refer.
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
    // Shows the names of the guides; hides the line if guides is empty.
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
