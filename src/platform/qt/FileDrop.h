// Receives files that are dropped on a window.
#pragma once

#include <QObject>
#include <QStringList>
#include <functional>

class QDragMoveEvent;
class QMimeData;
class QWidget;

namespace tw {

// While a drag without files is over the window, the pointer is an hourglass. Whatever is in front of the
// window, such as a dialog of its own, blocks drops.
class FileDrop final : public QObject {
    Q_OBJECT
  public:
    using Take = std::function<void(const QStringList& files)>;
    // Calls take with the dropped files, in order, after the drop has ended. REQUIRES: window outlives this
    // object.
    FileDrop(QWidget& window, Take take);

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    static QStringList FilesOf(const QMimeData& data);
    // True if a modal window is in front of the window.
    bool IsBlocked() const;
    void Follow(QDragMoveEvent& event);
    void TakeLater(const QStringList& files);

    QWidget& window_;
    Take take_;
};

}  // namespace tw
