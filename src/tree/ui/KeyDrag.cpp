#include "tree/ui/KeyDrag.h"

#include <QAbstractItemView>
#include <QDrag>
#include <QIcon>
#include <QStyle>
#include <utility>

#include "platform/qt/QtText.h"

namespace tw {
namespace {

const QString kMime = QStringLiteral("application/x-tunwright-keys");

}  // namespace

QStringList KeyMimeTypes() {
    return {kMime};
}

QMimeData* MimeOfKeys(const KeyDrag::Keys& keys) {
    QStringList lines;
    for (const std::string& key : keys) lines.append(ToQt(key));
    auto* data = new QMimeData;
    data->setData(kMime, lines.join(QLatin1Char('\n')).toUtf8());
    return data;
}

KeyDrag::Keys KeysOf(const QMimeData* data) {
    KeyDrag::Keys keys;
    if (!data || !data->hasFormat(kMime)) return keys;
    for (const QString& line : QString::fromUtf8(data->data(kMime)).split(QLatin1Char('\n')))
        keys.push_back(FromQt(line));
    return keys;
}

void AcceptKeys(QAbstractItemView& view) {
    view.setDragEnabled(true);
    view.setAcceptDrops(true);
    view.setDropIndicatorShown(true);
    view.setDefaultDropAction(Qt::MoveAction);
    view.setDragDropOverwriteMode(true);
}

void StartKeyDrag(QAbstractItemView& view, const KeyDrag::Keys& keys) {
    if (keys.empty()) return;
    auto* drag = new QDrag(&view);
    drag->setMimeData(MimeOfKeys(keys));
    const auto icon = view.currentIndex().siblingAtColumn(0).data(Qt::DecorationRole).value<QIcon>();
    const int small = view.style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &view);
    const QSize size = view.iconSize().isValid() ? view.iconSize() : QSize(small, small);
    if (!icon.isNull()) drag->setPixmap(icon.pixmap(size));
    drag->exec(Qt::MoveAction);
}

void DropLater(QObject& context, const KeyDrag& drag, const QMimeData* data, std::string target) {
    QMetaObject::invokeMethod(
        &context, [drop = drag.drop, keys = KeysOf(data), target = std::move(target)] { drop(keys, target); },
        Qt::QueuedConnection);
}

}  // namespace tw
