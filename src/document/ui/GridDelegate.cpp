#include "document/ui/GridDelegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>

#include "document/ui/DocumentBinding.h"
#include "document/ui/GapMark.h"
#include "document/ui/GridModel.h"
#include "document/ui/NamePopup.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/DecimalComma.h"
#include "platform/qt/GridHeader.h"
#include "platform/qt/ProgramStyle.h"
#include "platform/qt/QtText.h"

namespace tw {
namespace {

void PaintCheckBox(QPainter& painter, const QStyleOptionViewItem& option, Qt::CheckState state) {
    const int side = option.fontMetrics.ascent() + 2;
    const QRect box = QStyle::alignedRect(option.direction, Qt::AlignCenter, QSize(side, side), option.rect);
    PaintCheckIndicator(painter, box, option.palette, state == Qt::Checked);
}

// A line above each total.
void PaintSumLine(QPainter& painter, const QRect& cell, const QColor& ink) {
    painter.setPen(ink);
    painter.drawLine(cell.topLeft(), cell.topRight());
}

// Returns the width in pixels of the quiet text behind that of a cell, and of the gap before it; 0 without
// one.
int AsideWidth(const QFontMetrics& metrics, const QString& aside) {
    return aside.isEmpty() ? 0 : metrics.horizontalAdvance(aside) + metrics.averageCharWidth();
}

// Paints that text at the right end of a place, and returns its width.
int PaintAside(QPainter& painter, const QRect& place, const QStyleOptionViewItem& option,
               const QModelIndex& index) {
    const QString aside = index.data(GridModel::kAsideRole).toString();
    if (aside.isEmpty()) return 0;
    const QColor ink = painter.pen().color();
    painter.setPen(HintColor(option.palette));
    painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, aside);
    painter.setPen(ink);
    return AsideWidth(option.fontMetrics, aside);
}

// Paints the frame of the current cell: thick while the grid has the focus, thin otherwise.
void PaintCurrentFrame(QPainter& painter, const QStyleOptionViewItem& option, bool focused) {
    const int width = focused ? 2 : 1;
    QPen pen(focused ? option.palette.color(QPalette::Highlight) : HintColor(option.palette), width);
    pen.setJoinStyle(Qt::MiterJoin);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    const double half = width / 2.0;
    painter.drawRect(QRectF(option.rect).adjusted(half, half, -half, -half));
}

}  // namespace

GridDelegate::GridDelegate(QWidget& body, CellHost& cells, DocumentBinding& binding, QObject* parent)
    : QStyledItemDelegate(parent), body_(body), cells_(cells), binding_(binding) {}

void GridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& plain,
                         const QModelIndex& index) const {
    QStyleOptionViewItem option = plain;
    initStyleOption(&option, index);
    const bool current = cells_.IsCurrentCell(index);
    painter->save();
    const QVariant ground = index.data(Qt::BackgroundRole);
    painter->fillRect(option.rect,
                      ground.isValid() ? ground.value<QBrush>() : option.palette.brush(QPalette::Base));
    if (option.state.testFlag(QStyle::State_Selected) && !current) {
        QColor veil = option.palette.color(QPalette::Highlight);
        veil.setAlphaF(0.3F);
        painter->fillRect(option.rect, veil);
    }
    const QVariant check = index.data(Qt::CheckStateRole);
    const QVariant ownInk = index.data(Qt::ForegroundRole);
    const QColor ink =
        ownInk.isValid() ? ownInk.value<QBrush>().color() : option.palette.color(QPalette::Text);
    if (check.isValid()) {
        PaintCheckBox(*painter, option, static_cast<Qt::CheckState>(check.toInt()));
    } else {
        painter->setPen(ink);
        painter->setFont(option.font);
        const int padding = CellPadding(body_);
        QRect place = option.rect.adjusted(padding, 0, -padding, 0);
        if (!index.data(GridModel::kGapRole).toString().isEmpty())
            place.adjust(0, 0, -PaintGapMark(*painter, place, option.palette), 0);
        place.adjust(0, 0, -PaintAside(*painter, place, option, index), 0);
        const QString text = option.fontMetrics.elidedText(option.text, Qt::ElideRight, place.width());
        painter->drawText(place, static_cast<int>(option.displayAlignment) | Qt::TextSingleLine, text);
    }
    painter->setPen(HairlineColor(option.palette));
    painter->drawLine(option.rect.topRight(), option.rect.bottomRight());
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    if (static_cast<const GridModel&>(*index.model()).IsTotal(index))
        PaintSumLine(*painter, option.rect, ink);
    // The view of the data rows has the focus for the totals, too.
    if (current) PaintCurrentFrame(*painter, option, body_.hasFocus());
    painter->restore();
}

QSize GridDelegate::sizeHint(const QStyleOptionViewItem& plain, const QModelIndex& index) const {
    QStyleOptionViewItem option = plain;
    initStyleOption(&option, index);
    const bool marked = !index.data(GridModel::kGapRole).toString().isEmpty();
    return {option.fontMetrics.horizontalAdvance(option.text) + 2 * CellPadding(body_) + 2 +
                (marked ? GapMarkWidth(option.fontMetrics) : 0) +
                AsideWidth(option.fontMetrics, index.data(GridModel::kAsideRole).toString()),
            cells_.RowHeight()};
}

QWidget* GridDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                    const QModelIndex& index) const {
    const CellList list = cells_.ListOf(index);
    QWidget* editor = nullptr;
    if (list.names.IsEmpty()) {
        auto* line = new QLineEdit(parent);
        line->setTextMargins(CellPadding(body_) / 2, 0, CellPadding(body_) / 2, 0);
        line->setAlignment(Qt::Alignment(index.data(Qt::TextAlignmentRole).toInt()));
        editor = line;
    } else {
        editor = MakeListEditor(parent, list);
    }
    editor->setAutoFillBackground(true);
    editor->setAccessibleName(index.data(Qt::AccessibleTextRole).toString());
    cells_.SetEditor(editor, index);
    return editor;
}

QWidget* GridDelegate::MakeListEditor(QWidget* parent, const CellList& list) const {
    auto* combo = new QComboBox(parent);
    combo->setMaxVisibleItems(16);
    QStringList entries;
    entries.reserve(static_cast<qsizetype>(list.names.Count()));
    for (std::size_t i = 0; i < list.names.Count(); ++i) entries.append(ToQt(list.names.Name(i)));
    combo->addItems(entries);
    if (!list.freeText) return combo;
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setCompleter(nullptr);
    // The list is as wide as its widest entry, even in a narrow column.
    combo->view()->setMinimumWidth(combo->view()->sizeHintForColumn(0) +
                                   2 * combo->style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    auto* popup = new NamePopup(*combo->lineEdit(), [names = list.names] { return names; });
    connect(popup, &NamePopup::Taken, this, &GridDelegate::StayInCell);
    return combo;
}

void GridDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    const QString text = index.data(Qt::EditRole).toString();
    if (auto* line = qobject_cast<QLineEdit*>(editor)) {
        line->setText(text);
    } else if (auto* combo = qobject_cast<QComboBox*>(editor)) {
        combo->setCurrentIndex(combo->findText(text, Qt::MatchFixedString));
        if (combo->isEditable()) combo->setEditText(text);
    }
    SelectEditorText(*editor);
}

void GridDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                        const QModelIndex&) const {
    editor->setGeometry(option.rect);
}

QString GridDelegate::EditorText(const QWidget& editor) {
    if (const auto* line = qobject_cast<const QLineEdit*>(&editor)) return line->text();
    const auto* combo = qobject_cast<const QComboBox*>(&editor);
    return combo ? combo->currentText() : QString();
}

void GridDelegate::ShowDecimalPoint(QWidget& editor) {
    // A text that came with the recipe stays until it is edited.
    auto* line = qobject_cast<QLineEdit*>(&editor);
    if (line && line->isModified()) line->setText(WithDecimalPoint(line->text()));
}

void GridDelegate::SelectEditorText(QWidget& editor) {
    auto* line = qobject_cast<QLineEdit*>(&editor);
    if (auto* combo = qobject_cast<QComboBox*>(&editor)) line = combo->lineEdit();
    if (line) line->selectAll();
}

void GridDelegate::Close(QWidget& editor, EndEditHint hint) {
    if (hint != RevertModelCache) emit commitData(&editor);
    emit closeEditor(&editor, hint);
}

void GridDelegate::StayInCell(QWidget* editor) {
    Close(*editor, NoHint);
}

// Handles the keys of the open list of names. Enter takes the highlighted name and stays in the cell, Tab
// takes it and goes on, Escape keeps what was typed.
bool GridDelegate::HandleListKey(QWidget& editor, const QKeyEvent& key) {
    auto* const popup = editor.findChild<NamePopup*>();
    if (!popup || popup->isHidden()) return false;
    if (popup->MoveBy(key)) return true;
    switch (key.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (key.modifiers().testFlag(Qt::ControlModifier)) return false;
            popup->Take();
            StayInCell(&editor);
            return true;
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            popup->Take();
            return false;
        case Qt::Key_Escape:
            popup->Close();
            return true;
        default:
            return false;
    }
}

bool GridDelegate::HandleKey(QWidget& editor, const QKeyEvent& key) {
    if (HandleListKey(editor, key)) return true;
    switch (key.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (key.modifiers().testFlag(Qt::ControlModifier))
                cells_.BrowseSoon();
            else
                Close(editor, SubmitModelCache);
            return true;
        case Qt::Key_Tab:
            Close(editor, EditNextItem);
            return true;
        case Qt::Key_Backtab:
            Close(editor, EditPreviousItem);
            return true;
        case Qt::Key_Escape:
            Close(editor, RevertModelCache);
            return true;
        default:
            return binding_.HandleKey(key);
    }
}

bool GridDelegate::eventFilter(QObject* object, QEvent* event) {
    auto* editor = qobject_cast<QWidget*>(object);
    if (!editor) return false;
    switch (event->type()) {
        case QEvent::KeyPress:
            return HandleKey(*editor, *static_cast<QKeyEvent*>(event));
        case QEvent::ShortcutOverride:
            if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape) return false;
            event->accept();
            return true;
        case QEvent::FocusOut: {
            const QWidget* now = QApplication::focusWidget();
            const bool stays = now == editor || (now && editor->isAncestorOf(now));
            if (!stays && DocumentBinding::IsLeaving(*static_cast<QFocusEvent*>(event), *editor))
                Close(*editor, NoHint);
            return false;
        }
        default:
            return false;
    }
}

}  // namespace tw
