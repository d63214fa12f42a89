#include "shell/ui/FileDrop.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace tw {

FileDrop::FileDrop(QWidget& window, Take take) : QObject(&window), window_(window), take_(std::move(take)) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

QStringList FileDrop::FilesOf(const QMimeData& data) {
    QStringList files;
    for (const QUrl& url : data.urls())
        if (url.isLocalFile()) files.append(url.toLocalFile());
    return files;
}

bool FileDrop::eventFilter(QObject* object, QEvent* event) {
    switch (event->type()) {
        case QEvent::DragEnter:
        case QEvent::DragMove:
            Follow(static_cast<QDragMoveEvent&>(*event));
            return true;
        case QEvent::DragLeave:
            window_.unsetCursor();
            return true;
        case QEvent::Drop: {
            auto& drop = static_cast<QDropEvent&>(*event);
            window_.unsetCursor();
            // The files stay where they are, whatever the other program offers.
            drop.setDropAction(Qt::CopyAction);
            drop.accept();
            TakeLater(FilesOf(*drop.mimeData()));
            return true;
        }
        default:
            return QObject::eventFilter(object, event);
    }
}

void FileDrop::Follow(QDragMoveEvent& event) {
    const bool hasFiles = !FilesOf(*event.mimeData()).isEmpty();
    window_.setCursor(hasFiles ? Qt::ArrowCursor : Qt::WaitCursor);
    // One without files is followed too, so that its end is heard of; it cannot be dropped.
    event.setDropAction(hasFiles && !QApplication::activeModalWidget() ? Qt::CopyAction : Qt::IgnoreAction);
    event.accept();
}

// The other program waits until the drop has ended, so that no dialog opens within it.
void FileDrop::TakeLater(const QStringList& files) {
    if (QApplication::activeModalWidget()) return;
    QMetaObject::invokeMethod(
        this,
        [this, files] {
            for (const QString& file : files) take_(file);
        },
        Qt::QueuedConnection);
}

}  // namespace tw
