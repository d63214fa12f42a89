// The calendar of the brew log: it opens beside the date cell of the current row and writes the day that is
// picked.
#pragma once

#include <QObject>

class QCalendarWidget;
class QWidget;

namespace tw {

class DocumentBinding;
class GridView;

class LogCalendar final : public QObject {
    Q_OBJECT
  public:
    LogCalendar(DocumentBinding& binding, GridView& log, QWidget* page);

    // Shows the calendar at the date of the current row; does nothing without a row.
    void Open();

  private:
    void Pick(const QDate& day);

    DocumentBinding& binding_;
    GridView& log_;
    QCalendarWidget* calendar_;
};

}  // namespace tw
