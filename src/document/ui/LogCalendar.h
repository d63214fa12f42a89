// The calendar of the brew log. It opens beside the date cell of the current row, and enters the day that is
// picked there.
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

    // Shows the calendar at the date of the current row, or at today if that has none. Does nothing without a
    // current data row, or if the open cell editor has an entry that is refused.
    void Open();

  private:
    void Pick(const QDate& day);

    DocumentBinding& binding_;
    GridView& log_;
    QCalendarWidget* calendar_;
};

}  // namespace tw
