#include "shell/ui/DocumentArea.h"

#include <QCloseEvent>
#include <QPainter>

#include "document/ui/RecipeWindow.h"
#include "platform/qt/Appearance.h"
#include "shell/ui/Icons.h"

namespace tw {
namespace {

constexpr int kPictureUnits = 14;

// The steps of cascaded windows, and their size in relation to the size hint.
constexpr int kSteps = 6;
constexpr int kStepUnits = 4;
constexpr double kRoomyFactor = 1.4;

// Where Qt puts the mark of a modified window into its title.
constexpr QLatin1String kMarkPlace("[*]");
// The same characters to the eye. Doubling kMarkPlace would protect it in the title of the main window but
// not in that of a recipe inside it, where Qt replaces both.
constexpr QStringView kLooksLikeMarkPlace(u"[\u2060*]");

}  // namespace

DocumentArea::DocumentArea(QWidget* parent) : QMdiArea(parent) {
    setObjectName(QStringLiteral("DocumentArea"));
    setAccessibleName(tr("Open recipes"));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setActivationOrder(QMdiArea::ActivationHistoryOrder);
    setBackground(palette().brush(QPalette::Window));
}

void DocumentArea::SetWelcome(const QString& line) {
    welcome_ = line;
    setAccessibleDescription(line);
    viewport()->update();
}

void DocumentArea::paintEvent(QPaintEvent* event) {
    QMdiArea::paintEvent(event);
    if (!subWindowList().isEmpty() || welcome_.isEmpty()) return;
    QPainter painter(viewport());
    const int unit = Unit(*this), side = unit * kPictureUnits;
    const QRect all = viewport()->rect();
    const QRect lines = painter.fontMetrics().boundingRect(all.adjusted(unit * 2, 0, -unit * 2, 0),
                                                           Qt::AlignHCenter | Qt::TextWordWrap, welcome_);
    const int top = all.center().y() - (side + unit * 2 + lines.height()) / 2;
    const QRect picture(all.center().x() - side / 2, top, side, side);
    ProgramIcon().paint(&painter, picture);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(
        QRect(all.left() + unit * 2, picture.bottom() + unit * 2, all.width() - unit * 4, lines.height()),
        Qt::AlignHCenter | Qt::TextWordWrap, welcome_);
}

void DocumentArea::changeEvent(QEvent* event) {
    QMdiArea::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) setBackground(palette().brush(QPalette::Window));
}

void DocumentArea::TileHorizontally() {
    Tile(Qt::Vertical);
}

void DocumentArea::TileVertically() {
    Tile(Qt::Horizontal);
}

QList<QMdiSubWindow*> DocumentArea::Shown(WindowOrder order) const {
    QList<QMdiSubWindow*> windows = subWindowList(order);
    windows.removeIf(
        [](const QMdiSubWindow* window) { return window->isMinimized() || !window->isVisible(); });
    return windows;
}

void DocumentArea::PlaceAt(QMdiSubWindow& window, int place) {
    const int step = place % kSteps * kStepUnits * Unit(*this);
    const QSize room = viewport()->size() - QSize(step, step);
    window.move(step, step);
    window.resize((window.sizeHint() * kRoomyFactor).boundedTo(room));
}

void DocumentArea::Cascade() {
    int place = 0;
    // The front window is placed last, furthest in.
    for (QMdiSubWindow* window : Shown(StackingOrder)) {
        window->showNormal();
        PlaceAt(*window, place++);
    }
}

void DocumentArea::Tile(Qt::Orientation stacked) {
    const QList<QMdiSubWindow*> windows = Shown(CreationOrder);
    const int count = static_cast<int>(windows.size());
    const QRect all = viewport()->rect();
    for (int i = 0; i < count; ++i) {
        QMdiSubWindow& window = *windows[i];
        window.showNormal();
        if (stacked == Qt::Vertical)
            window.setGeometry(0, all.height() * i / count, all.width(), all.height() / count);
        else
            window.setGeometry(all.width() * i / count, 0, all.width() / count, all.height());
    }
}

DocumentSubWindow::DocumentSubWindow(RecipeWindow* document, QWidget* parent)
    : QMdiSubWindow(parent), document_(document) {
    setWidget(document);
    setWindowIcon(ProgramIcon());
}

void DocumentSubWindow::ShowCaption(const QString& caption, bool modified) {
    caption_ = caption;
    QString title = caption;
    title.replace(kMarkPlace, kLooksLikeMarkPlace.toString());
    setWindowTitle(title + kMarkPlace);
    setWindowModified(modified);
    document_->setAccessibleName(SpokenCaption());
}

QString DocumentSubWindow::MarkedCaption() const {
    return isWindowModified() ? caption_ + QLatin1Char('*') : caption_;
}

QString DocumentSubWindow::SpokenCaption() const {
    return isWindowModified() ? tr("%1, modified").arg(caption_) : caption_;
}

void DocumentSubWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    emit CloseRequested();
}

}  // namespace tw
