#include "document/ui/NotesBox.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

#include "platform/qt/QtText.h"

namespace tw {
namespace {

// The record ends a line with "\r\n" where the text came with it; the widget knows "\n" alone.
QString Lines(std::string_view text) {
    return ToQt(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

}  // namespace

NotesBox::NotesBox(DocumentBinding& binding, TextBox& box, const QString& name, QWidget* parent)
    : QPlainTextEdit(parent), binding_(binding), box_(box) {
    setObjectName(ToQt(box.Name()));
    setAccessibleName(name);
    setTabChangesFocus(true);
    setPlaceholderText(tr("Type what else is worth keeping: the day, the brewers, the taste."));
    ShowText();
    binding_.Watch(&box_, [this] { ShowText(); });
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (showing_) return;
        const QString text = toPlainText().replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
        binding_.Run([&](RecipeDocument& document) { document.SetText(box_, FromQt(text)); });
    });
}

void NotesBox::ShowText() {
    const QString wanted = Lines(box_.Text());
    if (toPlainText() == wanted) return;
    showing_ = true;
    setPlainText(wanted);
    showing_ = false;
}

bool NotesBox::Commit() {
    bool accepted = true;
    binding_.Run([&](RecipeDocument& document) { accepted = document.CommitField(box_); });
    return accepted;
}

void NotesBox::focusInEvent(QFocusEvent* event) {
    QPlainTextEdit::focusInEvent(event);
    binding_.SetActiveField(this, [this] { return Commit(); });
}

void NotesBox::focusOutEvent(QFocusEvent* event) {
    QPlainTextEdit::focusOutEvent(event);
    Commit();
}

void NotesBox::keyPressEvent(QKeyEvent* event) {
    if (binding_.HandleKey(*event, false)) return;
    QPlainTextEdit::keyPressEvent(event);
}

void NotesBox::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    binding_.Frame().ShowEditMenu(byKey ? viewport()->mapToGlobal(cursorRect().bottomLeft())
                                        : event->globalPos());
}

}  // namespace tw
