// The box above a list whose text leaves only the rows that contain it.
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
    // setFilter is called for each new text, instead of ListTable::SetFilter. REQUIRES: list and pane outlive
    // the box.
    ListFilterBox(ListTable& list, ListPane& pane, QWidget* parent, SetFilter setFilter = {});

  protected:
    // The keys that move up and down do so in the list. Escape clears the box; in an empty box, the window
    // handles it.
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

  private:
    ListTable& list_;
    ListPane& pane_;
};

}  // namespace tw
