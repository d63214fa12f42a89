#include "platform/qt/FileDrop.h"

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

bool FileDrop::IsBlocked() const {
    const QWidget* const modal = QApplication::activeModalWidget();
    return modal && modal != &window_;
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
            // The drop only copies, so the files stay where they are, whatever the other program proposes.
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
    // A drag without files is accepted so that its end is reported, but with IgnoreAction, so that it cannot
    // be dropped.
    event.setDropAction(hasFiles && !IsBlocked() ? Qt::CopyAction : Qt::IgnoreAction);
    event.accept();
}

// Queued, because the other program waits until the drop has ended: no dialog may open during it.
void FileDrop::TakeLater(const QStringList& files) {
    if (files.isEmpty() || IsBlocked()) return;
    QMetaObject::invokeMethod(
        this, [this, files] { take_(files); }, Qt::QueuedConnection);
}

}  // namespace tw
