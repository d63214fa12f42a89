#include "tree/ui/ListFilterBox.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QShortcut>

#include "platform/qt/QtText.h"

namespace tw {

ListFilterBox::ListFilterBox(ListTable& list, ListPane& pane, QWidget* parent, SetFilter setFilter)
    : QLineEdit(parent), list_(list), pane_(pane) {
    setObjectName(QStringLiteral("txtFilter"));
    setPlaceholderText(tr("Filter"));
    setClearButtonEnabled(true);
    setAccessibleName(tr("Filter of the list"));
    const QKeySequence key(QKeySequence::Find);
    setToolTip(
        tr("Shows only the rows that contain these words (%1)").arg(key.toString(QKeySequence::NativeText)));
    auto* find = new QShortcut(key, parent);
    connect(find, &QShortcut::activated, this, [this] {
        setFocus(Qt::ShortcutFocusReason);
        selectAll();
    });
    if (!setFilter) setFilter = [&list](const std::string& text) { list.SetFilter(text); };
    connect(this, &QLineEdit::textChanged, this,
            [setFilter](const QString& text) { setFilter(FromQt(text)); });
    // The list may clear its filter by itself, to show a row that it hides.
    connect(&pane_, &ListPane::RowsChanged, this, [this] {
        if (FromQt(text().trimmed()) != list_.Filter()) setText(ToQt(list_.Filter()));
    });
}

void ListFilterBox::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            QCoreApplication::sendEvent(&pane_, event);
            return;
        default:
            break;
    }
    if (event->key() == Qt::Key_Escape && !text().isEmpty()) {
        clear();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

bool ListFilterBox::event(QEvent* event) {
    // Escape clears the box before it closes the dialog.
    if (event->type() == QEvent::ShortcutOverride && !text().isEmpty() &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
        event->accept();
    return QLineEdit::event(event);
}

}  // namespace tw
