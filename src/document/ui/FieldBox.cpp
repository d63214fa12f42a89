#include "document/ui/FieldBox.h"

#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QStyleOptionFrame>

#include "platform/ScopeGuard.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/DecimalComma.h"
#include "platform/qt/QtText.h"
#include "record/FieldRules.h"

namespace tw {

FieldBox::FieldBox(DocumentBinding& binding, TextBox& box, const QString& name, int digits, QWidget* parent)
    : QLineEdit(parent),
      binding_(binding),
      box_(box),
      computed_(box.Computed()),
      quantity_(RuleOf(box).takes != FieldTakes::FreeText),
      digits_(digits) {
    setObjectName(ToQt(box.Name()));
    setAccessibleName(name);
    if (digits_ > 0) setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    if (computed_) {
        setReadOnly(true);
        // A computed figure can be clicked, to copy it, but Tab skips it.
        setFocusPolicy(Qt::ClickFocus);
        setFrame(false);
        LookComputed();
    }
    ShowText();
    binding_.Watch(&box_, [this] { ShowText(); });
    binding_.WatchSelection(box_, [this] { ShowSelection(); });
    connect(this, &QLineEdit::selectionChanged, this, &FieldBox::TellSelection);
    connect(this, &QLineEdit::cursorPositionChanged, this, &FieldBox::TellSelection);
    connect(this, &QLineEdit::textEdited, this, &FieldBox::TakeText);
}

QSize FieldBox::sizeHint() const {
    QSize size = QLineEdit::sizeHint();
    if (digits_ > 0) size.setWidth(DigitsWidth(*this, digits_) + Unit(*this) * 2 + 4);
    return size;
}

QSize FieldBox::minimumSizeHint() const {
    QSize size = QLineEdit::minimumSizeHint();
    size.setWidth(digits_ > 0 ? sizeHint().width() : DigitsWidth(*this, 12));
    return size;
}

void FieldBox::ShowText() {
    const QString wanted = ToQt(box_.Text());
    if (text() == wanted) return;
    setText(wanted);
    setCursorPosition(hasFocus() ? static_cast<int>(wanted.size()) : 0);
}

void FieldBox::ShowSelection() {
    // The change comes from this widget.
    if (showing_) return;
    const TextSelection wanted = box_.Selection();
    const int start = UnitPlace(text(), wanted.start);
    const int length = UnitPlace(text(), wanted.start + wanted.length) - start;
    showing_ = true;
    if (length > 0)
        setSelection(start, length);
    else
        setCursorPosition(start);
    showing_ = false;
}

void FieldBox::TellSelection() {
    if (showing_ || !binding_.Document()) return;
    const int unit = hasSelectedText() ? selectionStart() : cursorPosition();
    const int start = CodePointPlace(text(), unit);
    showing_ = true;
    box_.Select({start, CodePointPlace(text(), unit + selectionLength()) - start});
    showing_ = false;
}

// Gives a computed figure the background of the window, so that it does not look like a box for an entry.
void FieldBox::LookComputed() {
    QPalette colors = palette();
    const QColor ground = parentWidget() ? parentWidget()->palette().color(QPalette::Window) : QColor();
    if (!ground.isValid() || colors.color(QPalette::Base) == ground) return;
    colors.setColor(QPalette::Base, ground);
    setPalette(colors);
}

void FieldBox::changeEvent(QEvent* event) {
    QLineEdit::changeEvent(event);
    if (computed_ && event->type() == QEvent::PaletteChange) LookComputed();
}

void FieldBox::TakeText(const QString& edited) {
    QString typed = edited;
    if (quantity_) {
        // As with any key, the document learns of the new text before it learns of the cursor.
        const ScopedValue showing(showing_, true);
        typed = TypedQuantity(*this);
    }
    binding_.Run([&](RecipeDocument& document) { document.Fields().SetText(box_, FromQt(typed)); });
    TellSelection();
}

bool FieldBox::Commit() {
    bool accepted = true;
    binding_.Run([&](RecipeDocument& document) { accepted = document.Fields().CommitField(box_); });
    if (!accepted) selectAll();
    return accepted;
}

void FieldBox::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (!computed_) binding_.SetActiveField(this, [this] { return Commit(); });
}

void FieldBox::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (!DocumentBinding::IsLeaving(*event, *this) || computed_ || binding_.IsRefusing() ||
        !binding_.Document())
        return;
    if (Commit()) return;
    binding_.Refuse(this, [this] {
        setFocus();
        selectAll();
    });
}

void FieldBox::keyPressEvent(QKeyEvent* event) {
    if (binding_.HandleEditKey(*event)) return;
    switch (event->key()) {
        case Qt::Key_Delete:
            // Deletes selected text by the command, as one step of the history, even if the menu has not used
            // the key.
            if ((event->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier || !hasSelectedText() ||
                isReadOnly())
                break;
            binding_.Frame().RunCommand(CommandId::EditClear);
            return;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (Commit()) selectAll();
            return;
        case Qt::Key_Escape:
            binding_.Run([this](RecipeDocument& document) { document.Fields().RestoreField(box_); });
            selectAll();
            return;
        default:
            break;
    }
    QLineEdit::keyPressEvent(event);
}

void FieldBox::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    binding_.Frame().ShowEditMenu(byKey ? mapToGlobal(rect().bottomLeft()) : event->globalPos());
}

}  // namespace tw
