// The box over a list whose text leaves only the rows that hold it.
#pragma once

#include <QLineEdit>
#include <functional>
#include <string>

#include "tree/ui/ListPane.h"

namespace tw {

class ListFilterBox final : public QLineEdit {
    Q_OBJECT
  public:
    using SetFilter = std::function<void(const std::string&)>;
    // setFilter: what a new text does in place of ListTable::SetFilter. REQUIRES: pane, and the list that it
    // shows, live for as long.
    ListFilterBox(ListTable& list, ListPane& pane, QWidget* parent, SetFilter setFilter = {});

  protected:
    // Down goes to the list; Escape empties the box before it does anything else.
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

  private:
    ListTable& list_;
    ListPane& pane_;
};

}  // namespace tw
