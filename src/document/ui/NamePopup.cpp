#include "document/ui/NamePopup.h"

#include <QAbstractListModel>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>
#include <utility>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"

namespace tw {
namespace {

constexpr int kVisibleRows = 14;
constexpr int kAliasRole = Qt::UserRole;

}  // namespace

// The names found, best first.
class NamePopup::Matches final : public QAbstractListModel {
  public:
    using QAbstractListModel::QAbstractListModel;

    void Set(const NameList& names, std::vector<FoundName> found) {
        beginResetModel();
        names_ = &names;
        found_ = std::move(found);
        endResetModel();
    }
    const std::vector<FoundName>& Found() const { return found_; }

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(found_.size());
    }
    QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid()) return {};
        const FoundName& found = found_[static_cast<std::size_t>(index.row())];
        const QString name = ToQt(names_->Name(found.index));
        if (role == Qt::DisplayRole) return name;
        if (!found.IsAlias()) return {};
        if (role == kAliasRole) return ToQt(found.text);
        if (role == Qt::AccessibleTextRole) return tr("%1, also %2").arg(name, ToQt(found.text));
        return {};
    }

  private:
    const NameList* names_ = nullptr;
    std::vector<FoundName> found_;
};

// Paints the alias that fits at the right, since it explains why the name is in the list.
class NamePopup::Painter final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyledItemDelegate::paint(painter, option, index);
        const QString alias = index.data(kAliasRole).toString();
        if (alias.isEmpty()) return;
        const bool selected = option.state.testFlag(QStyle::State_Selected);
        painter->setPen(selected ? option.palette.color(QPalette::HighlightedText)
                                 : HintColor(option.palette));
        const int gap = Gap(option);
        painter->drawText(option.rect.adjusted(gap, 0, -gap, 0), Qt::AlignRight | Qt::AlignVCenter, alias);
    }
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QSize size = QStyledItemDelegate::sizeHint(option, index);
        const QString alias = index.data(kAliasRole).toString();
        if (!alias.isEmpty()) size.rwidth() += option.fontMetrics.horizontalAdvance(alias) + 3 * Gap(option);
        return size;
    }

  private:
    static int Gap(const QStyleOptionViewItem& option) { return option.fontMetrics.averageCharWidth(); }
};

NamePopup::NamePopup(QLineEdit& edit, std::function<NameList()> names)
    : QListView(&edit),
      edit_(edit),
      owner_(edit.focusProxy() ? *edit.focusProxy() : edit),
      readNames_(std::move(names)),
      matches_(new Matches(this)) {
    // A tool tip takes neither the focus nor the keys from the line edit.
    setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    setObjectName(QStringLiteral("names"));
    setAccessibleName(tr("Matching names"));
    setModel(matches_);
    setItemDelegate(new Painter(this));
    setUniformItemSizes(true);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    hide();
    connect(&edit, &QLineEdit::textEdited, this, &NamePopup::Show);
    connect(this, &QListView::clicked, this, [this](const QModelIndex& clicked) {
        setCurrentIndex(clicked);
        if (Take()) emit Taken(&owner_);
    });
    owner_.installEventFilter(this);
}

NamePopup::~NamePopup() = default;

const NameList& NamePopup::Names() {
    if (!std::exchange(hasNames_, true)) names_ = readNames_();
    return names_;
}

void NamePopup::Forget() {
    Close();
    matches_->Set(names_, {});
    hasNames_ = false;
    names_ = {};
}

void NamePopup::Show(const QString& typed) {
    std::vector<FoundName> found;
    if (!typed.trimmed().isEmpty()) found = Names().Find(FromQt(typed));
    // A list of nothing but the text itself offers nothing.
    if (found.size() == 1 && ToQt(names_.Name(found.front().index)) == typed) found.clear();
    const bool meant = OnlyMeant(found) != nullptr;
    matches_->Set(names_, std::move(found));
    if (matches_->Found().empty()) {
        Close();
        return;
    }
    setCurrentIndex(meant ? matches_->index(0) : QModelIndex());
    scrollToTop();
    Place();
    if (isHidden()) {
        // The frame sets the list off from the cells below it, which have the same background. The desktop's
        // colours may have changed since the last time.
        QPalette frame;
        frame.setColor(QPalette::WindowText, HintColor(QApplication::palette(this)));
        setPalette(frame);
        edit_.window()->installEventFilter(this);
        show();
    }
}

// Below the line edit, or above it if there is more room.
void NamePopup::Place() {
    ensurePolished();
    const int rows = std::min(static_cast<int>(matches_->Found().size()), kVisibleRows);
    const int frame = 2 * frameWidth();
    const QRect screen = edit_.screen()->availableGeometry();
    int widest = 0;
    for (int row = 0; row < matches_->rowCount(); ++row)
        widest = std::max(widest, sizeHintForIndex(matches_->index(row)).width());
    const int bar = rows < matches_->rowCount() ? verticalScrollBar()->sizeHint().width() : 0;
    const int height = rows * sizeHintForRow(0) + frame;
    const int width =
        std::clamp(widest + bar + frame, std::min(owner_.width(), screen.width()), screen.width());
    QPoint corner = owner_.mapToGlobal(QPoint(0, owner_.height()));
    if (corner.y() + height > screen.bottom()) corner.ry() -= owner_.height() + height;
    corner.rx() = std::clamp(corner.x(), screen.left(), screen.right() - width + 1);
    setGeometry(QRect(corner, QSize(width, height)));
}

bool NamePopup::MoveBy(const QKeyEvent& key) {
    if (isHidden() || (key.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
    const int last = matches_->rowCount() - 1;
    int row = currentIndex().isValid() ? currentIndex().row() : -1;
    switch (key.key()) {
        case Qt::Key_Down:
            ++row;
            break;
        case Qt::Key_Up:
            row = row < 0 ? last : row - 1;
            break;
        case Qt::Key_PageDown:
            row += kVisibleRows;
            break;
        case Qt::Key_PageUp:
            row -= kVisibleRows;
            break;
        default:
            return false;
    }
    setCurrentIndex(matches_->index(std::clamp(row, 0, last)));
    return true;
}

bool NamePopup::Take() {
    if (isHidden()) return false;
    const QModelIndex current = currentIndex();
    if (current.isValid()) edit_.setText(current.data().toString());
    return Close();
}

bool NamePopup::Close() {
    if (isHidden()) return false;
    edit_.window()->removeEventFilter(this);
    hide();
    return true;
}

int NamePopup::Meant() {
    const auto found = Names().Find(FromQt(edit_.text()));
    const FoundName* const meant = OnlyMeant(found);
    return meant ? static_cast<int>(meant->index) : -1;
}

// Closes the list when the line edit is no longer where the list is.
bool NamePopup::eventFilter(QObject* object, QEvent* event) {
    switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::Hide:
        case QEvent::WindowDeactivate:
            Close();
            break;
        case QEvent::FocusOut:
            if (object == &owner_) Close();
            break;
        default:
            break;
    }
    return QListView::eventFilter(object, event);
}

}  // namespace tw
