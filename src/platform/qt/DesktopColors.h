// Follows the desktop's choice of light or dark, also while the program runs. A desktop whose Qt theme brings
// its own colours is left alone.
#pragma once

#include <QDBusVariant>
#include <QObject>

namespace tw {

class DesktopColors final : public QObject {
    Q_OBJECT
  public:
    // Applies what the environment (GTK_THEME) says at once.
    DesktopColors();
    // Asks the desktop and listens to it from now on. Returns at once; the answer comes with the event loop.
    void Follow();

  private slots:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

  private:
    void Apply(bool dark);

    bool themed_;        // the desktop's theme brings a dark palette by itself
    bool dark_ = false;  // our dark palette is in force
};

}  // namespace tw
