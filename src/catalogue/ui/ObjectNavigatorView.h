// The four buttons that step through the list from which an editor was opened.
#pragma once

#include <QWidget>
#include <array>

#include "catalogue/ObjectNavigator.h"

class QToolButton;

namespace tw {

class ObjectNavigatorView final : public QWidget {
    Q_OBJECT
  public:
    // navigator must outlive the view. It may be nullptr; the view should then be hidden.
    ObjectNavigatorView(ObjectNavigator* navigator, QWidget* parent);
    // Enables the buttons of the steps that are possible from the selected row.
    void ShowState();

  signals:
    // Emitted when a button is pressed: "cmdFirst", "cmdPrevious", "cmdNext" or "cmdLast".
    void StepPressed(const char* button);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void ShowIcons();

    ObjectNavigator* navigator_;
    std::array<QToolButton*, 4> buttons_{};
};

}  // namespace tw
