#include "document/ui/NotesBox.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

#include "platform/qt/QtText.h"

namespace tw {
namespace {

// Returns the text with "\n" as the line end, the only one that the widget knows, instead of the
// record's "\r\n".
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
    // Off, because undo uses the history of the recipe.
    setUndoRedoEnabled(false);
    ShowText();
    binding_.Watch(&box_, [this] { ShowText(); });
    binding_.WatchSelection(box_, [this] { ShowSelection(); });
    connect(this, &QPlainTextEdit::selectionChanged, this, &NotesBox::TellSelection);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &NotesBox::TellSelection);
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (showing_) return;
        const QString text = toPlainText().replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
        binding_.Run([&](RecipeDocument& document) { document.Fields().SetText(box_, FromQt(text)); });
    });
}

void NotesBox::ShowText() {
    const QString wanted = Lines(box_.Text());
    if (toPlainText() == wanted) return;
    showing_ = true;
    setPlainText(wanted);
    showing_ = false;
}

int NotesBox::PlaceInRecord(int place) const {
    const QString before = toPlainText().left(place);
    return CodePointPlace(before, static_cast<int>(before.size())) +
           static_cast<int>(before.count(QLatin1Char('\n')));
}

int NotesBox::PlaceInWidget(int place) const {
    QString lines = toPlainText().replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
    lines.truncate(UnitPlace(lines, place));
    return static_cast<int>(lines.size() - lines.count(QLatin1Char('\r')));
}

void NotesBox::ShowSelection() {
    // The change comes from this widget.
    if (showing_) return;
    const TextSelection wanted = box_.Selection();
    QTextCursor cursor = textCursor();
    cursor.setPosition(PlaceInWidget(wanted.start));
    cursor.setPosition(PlaceInWidget(wanted.start + wanted.length), QTextCursor::KeepAnchor);
    showing_ = true;
    setTextCursor(cursor);
    showing_ = false;
}

void NotesBox::TellSelection() {
    if (showing_ || !binding_.Document()) return;
    const QTextCursor cursor = textCursor();
    const int start = PlaceInRecord(cursor.selectionStart());
    showing_ = true;
    box_.Select({start, PlaceInRecord(cursor.selectionEnd()) - start});
    showing_ = false;
}

bool NotesBox::Commit() {
    bool accepted = true;
    binding_.Run([&](RecipeDocument& document) { accepted = document.Fields().CommitField(box_); });
    return accepted;
}

void NotesBox::focusInEvent(QFocusEvent* event) {
    QPlainTextEdit::focusInEvent(event);
    binding_.SetActiveField(this, [this] { return Commit(); });
}

void NotesBox::focusOutEvent(QFocusEvent* event) {
    QPlainTextEdit::focusOutEvent(event);
    if (DocumentBinding::IsLeaving(*event, *this)) Commit();
}

void NotesBox::keyPressEvent(QKeyEvent* event) {
    if (binding_.HandleEditKey(*event)) return;
    if (event->key() == Qt::Key_Escape) {
        binding_.Run([this](RecipeDocument& document) { document.Fields().RestoreField(box_); });
        moveCursor(QTextCursor::End);
        return;
    }
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (event->key() == Qt::Key_Delete && plain && textCursor().hasSelection()) {
        binding_.Frame().RunCommand(CommandId::EditClear);
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

void NotesBox::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    binding_.Frame().ShowEditMenu(byKey ? viewport()->mapToGlobal(cursorRect().bottomLeft())
                                        : event->globalPos());
}

}  // namespace tw
