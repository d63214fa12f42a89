#include "document/ui/ListField.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>

#include "platform/qt/QtText.h"

namespace tw {
namespace {

constexpr int kVisibleEntries = 20;
constexpr int kUsualCharacters = 12;

}  // namespace

ListField::ListField(DocumentBinding& binding, const ListBox& list, const QString& name, QWidget* parent,
                     std::function<void(RecipeDocument&, int)> select,
                     std::function<int(const RecipeDocument&, std::string_view)> entryOf)
    : QComboBox(parent),
      binding_(binding),
      list_(list),
      select_(std::move(select)),
      entryOf_(std::move(entryOf)) {
    setObjectName(ToQt(list.Name()));
    setAccessibleName(name);
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(kVisibleEntries);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(kUsualCharacters);
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    lineEdit()->setAccessibleName(name);
    completer()->setCompletionMode(QCompleter::PopupCompletion);
    completer()->setFilterMode(Qt::MatchContains);
    completer()->setCaseSensitivity(Qt::CaseInsensitive);
    completer()->setMaxVisibleItems(kVisibleEntries);
    completer()->popup()->installEventFilter(this);
    // Runs before the completer's own filter, which hides the loss of focus from the box.
    installEventFilter(this);
    ShowList();
    binding_.Watch(&list_, [this] { ShowList(); });
    connect(this, &QComboBox::activated, this, &ListField::Choose);
    connect(lineEdit(), &QLineEdit::editingFinished, this, &ListField::Settle);
}

void ListField::ShowList() {
    if (!binding_.Document()) return;
    const QSignalBlocker blocker(this);
    QStringList entries;
    entries.reserve(static_cast<qsizetype>(list_.Entries().size()));
    for (const ListBox::Entry& entry : list_.Entries()) entries.append(ToQt(entry.text));
    bool same = entries.size() == count();
    for (int i = 0; same && i < count(); ++i) same = itemText(i) == entries[i];
    if (!same) {
        clear();
        addItems(entries);
    }
    setCurrentIndex(list_.Selected());
    setEditText(ToQt(list_.Text()));
    lineEdit()->setCursorPosition(0);
}

void ListField::Choose(int index) {
    if (!binding_.Document() || index == list_.Selected()) return;
    binding_.Run([&](RecipeDocument& document) { select_(document, index); });
    ShowList();
}

// Returns the index of the entry that the typed text names or, if only one entry contains the text, of that
// one; -1 if there is none.
int ListField::TypedEntry() const {
    const QString typed = currentText().trimmed();
    if (typed.isEmpty()) return -1;
    const int named = entryOf_(*binding_.Document(), FromQt(typed));
    if (named >= 0) return named;
    const auto holds = [&](int i) { return itemText(i).contains(typed, Qt::CaseInsensitive); };
    int only = -1;
    for (int i = 0; i < count(); ++i) {
        if (!holds(i)) continue;
        if (only >= 0) return -1;
        only = i;
    }
    return only;
}

void ListField::Settle() {
    if (!binding_.Document()) return;
    // If it stayed open, the list of matches would still catch the keys.
    completer()->popup()->hide();
    const int typed = TypedEntry();
    if (typed >= 0) Choose(typed);
    ShowList();
    if (hasFocus()) lineEdit()->selectAll();
}

void ListField::focusInEvent(QFocusEvent* event) {
    QComboBox::focusInEvent(event);
    binding_.SetActiveField(this, [this] {
        Settle();
        return true;
    });
    if (event->reason() != Qt::PopupFocusReason) lineEdit()->selectAll();
}

void ListField::focusOutEvent(QFocusEvent* event) {
    QComboBox::focusOutEvent(event);
    if (IsLeft(*event)) Settle();
}

bool ListField::IsLeft(const QFocusEvent& event) const {
    return !GoesToOwnPopup(event) && !GoesToAnotherProgram(event);
}

// True if a list of the box or the menu of its text opens. Any other menu counts as leaving the box, because
// the focus may not come back from it.
bool ListField::GoesToOwnPopup(const QFocusEvent& event) const {
    const QWidget* const popup = QApplication::activePopupWidget();
    return event.reason() == Qt::PopupFocusReason && popup && IsOwnPopup(*popup);
}

bool ListField::IsOwnPopup(const QWidget& popup) const {
    return &popup == completer()->popup() || isAncestorOf(&popup);
}

// Watches for menus that open while the list of matches is open, because these do not take the focus
// from the box.
bool ListField::eventFilter(QObject* object, QEvent* event) {
    if (object == this) {
        const bool out = event->type() == QEvent::FocusOut;
        if (out && IsLeft(*static_cast<QFocusEvent*>(event))) completer()->popup()->hide();
    } else if (object == completer()->popup()) {
        if (event->type() == QEvent::Show) qApp->installEventFilter(this);
        if (event->type() == QEvent::Hide) qApp->removeEventFilter(this);
    } else if (event->type() == QEvent::Show && completer()->popup()->isVisible()) {
        const auto* opened = qobject_cast<QWidget*>(object);
        if (opened && opened->windowType() == Qt::Popup && !IsOwnPopup(*opened)) Settle();
    }
    return QComboBox::eventFilter(object, event);
}

bool ListField::GoesToAnotherProgram(const QFocusEvent& event) const {
    return event.reason() == Qt::ActiveWindowFocusReason && !isActiveWindow();
}

// The wheel changes the list only while it has the focus; otherwise it scrolls the page.
void ListField::wheelEvent(QWheelEvent* event) {
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

void ListField::keyPressEvent(QKeyEvent* event) {
    // While a name is being typed, Undo applies to its letters.
    const bool typing = lineEdit()->isUndoAvailable() && event->matches(QKeySequence::Undo);
    if (!typing && binding_.HandleListKey(*event)) return;
    if (event->key() == Qt::Key_Escape) {
        ShowList();
        lineEdit()->selectAll();
        return;
    }
    QComboBox::keyPressEvent(event);
}

}  // namespace tw
