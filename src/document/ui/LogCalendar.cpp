#include "document/ui/LogCalendar.h"

#include <QCalendarWidget>
#include <QScreen>

#include "document/ui/GridView.h"

namespace tw {

LogCalendar::LogCalendar(DocumentBinding& binding, GridView& log, QWidget* page)
    : QObject(page), binding_(binding), log_(log), calendar_(new QCalendarWidget(page)) {
    calendar_->setObjectName(QStringLiteral("MonthView1"));
    calendar_->setAccessibleName(tr("Date of the log line"));
    calendar_->setWindowFlags(Qt::Popup);
    calendar_->setGridVisible(false);
    calendar_->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar_->hide();
    connect(calendar_, &QCalendarWidget::clicked, this, &LogCalendar::Pick);
    connect(calendar_, &QCalendarWidget::activated, this, &LogCalendar::Pick);
    connect(&log, &GridView::CalendarRequested, this, &LogCalendar::Open);
}

void LogCalendar::Open() {
    const Grid* grid = log_.TheGrid();
    if (!grid || !log_.CommitEditor() || !grid->IsDataRow(grid->CurrentRow())) return;
    const auto date = ParseShortDate(grid->Text(grid->CurrentRow(), LogCol::Date));
    const DateTime day = date ? *date : binding_.Ports().clock.Now();
    calendar_->setSelectedDate(QDate(day.year, day.month, day.day));
    const QModelIndex cell = log_.Model().index(log_.Model().ModelRow(grid->CurrentRow()), LogCol::Date);
    const QRect beside = log_.visualRect(cell);
    calendar_->adjustSize();
    QPoint place = log_.viewport()->mapToGlobal(beside.bottomLeft());
    const QRect screen = log_.screen()->availableGeometry();
    place.setX(qBound(screen.left(), place.x(), qMax(screen.left(), screen.right() - calendar_->width())));
    place.setY(qBound(screen.top(), place.y(), qMax(screen.top(), screen.bottom() - calendar_->height())));
    calendar_->move(place);
    calendar_->show();
    calendar_->setFocus();
}

void LogCalendar::Pick(const QDate& day) {
    if (!calendar_->isVisible()) return;
    calendar_->hide();
    DateTime picked;
    picked.year = day.year();
    picked.month = day.month();
    picked.day = day.day();
    binding_.Run([&](RecipeDocument& document) { document.Cells().PickLogDate(picked); });
    log_.setFocus();
}

}  // namespace tw
