// Follows the desktop's choice of light or dark colours, even while the program runs. A desktop whose Qt
// theme is already dark is left alone.
#pragma once

#include <QDBusVariant>
#include <QObject>

namespace tw {

class DesktopColors final : public QObject {
    Q_OBJECT
  public:
    // Applies the choice in the environment variable GTK_THEME at once.
    DesktopColors();
    // Asks the desktop for its choice and listens for changes from now on. Returns at once; the answer
    // arrives through the event loop.
    void Follow();

  private slots:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

  private:
    void Apply(bool dark);

    bool themed_;        // the desktop's own theme is dark
    bool dark_ = false;  // our dark palette is applied
};

}  // namespace tw
