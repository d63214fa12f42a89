// The four buttons that step through the list behind an editor.
#pragma once

#include <QWidget>
#include <array>

#include "catalogue/ObjectNavigator.h"

class QToolButton;

namespace tw {

class ObjectNavigatorView final : public QWidget {
    Q_OBJECT
  public:
    // Without a navigator the view is to be hidden; navigator must outlive it.
    ObjectNavigatorView(ObjectNavigator* navigator, QWidget* parent);
    // Shows which steps are possible from the selected row.
    void ShowState();

  signals:
    // A button was pressed: "cmdFirst", "cmdPrevious", "cmdNext" or "cmdLast".
    void StepPressed(const char* button);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void ShowIcons();

    ObjectNavigator* navigator_;
    std::array<QToolButton*, 4> buttons_{};
};

}  // namespace tw
