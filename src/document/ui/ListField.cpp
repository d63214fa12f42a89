#include "document/ui/ListField.h"

#include <QApplication>
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
                     std::function<NameList(const RecipeDocument&)> namesOf)
    : QComboBox(parent), binding_(binding), list_(list), select_(std::move(select)) {
    setObjectName(ToQt(list.Name()));
    setAccessibleName(name);
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(kVisibleEntries);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(kUsualCharacters);
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    lineEdit()->setAccessibleName(name);
    const auto names = [this, namesOf = std::move(namesOf)] {
        NameList found;
        binding_.Run([&](RecipeDocument& document) { found = namesOf(document); });
        return found;
    };
    names_ = new NamePopup(*lineEdit(), names);
    connect(names_, &NamePopup::Taken, this, &ListField::Settle);
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

void ListField::Settle() {
    if (!binding_.Document()) return;
    const QString text = currentText().trimmed();
    const bool isName = text.isEmpty() || text == ToQt(list_.Text());
    const int typed = isName ? -1 : names_->Meant();
    names_->Forget();
    if (typed >= 0)
        Choose(typed);
    else if (!isName)
        TellUnknown(text);
    ShowList();
    if (hasFocus()) lineEdit()->selectAll();
}

// A text that is no name goes away again, but not in silence.
void ListField::TellUnknown(const QString& text) {
    binding_.Frame().SayBriefly(
        FromQt(tr("There is no \"%1\" in the list; the recipe keeps \"%2\".").arg(text, ToQt(list_.Text()))));
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
    return isAncestorOf(&popup);
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

// Enter takes the highlighted name and stays in the box, Tab takes it and goes on, Escape keeps what was
// typed.
bool ListField::HandleNameKey(const QKeyEvent& key) {
    if (names_->isHidden()) return false;
    switch (key.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            names_->Take();
            Settle();
            return true;
        case Qt::Key_Escape:
            return names_->Close();
        default:
            return names_->MoveBy(key);
    }
}

bool ListField::focusNextPrevChild(bool next) {
    names_->Take();
    return QComboBox::focusNextPrevChild(next);
}

void ListField::keyPressEvent(QKeyEvent* event) {
    if (HandleNameKey(*event)) return;
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
