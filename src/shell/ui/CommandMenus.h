// The menu bar and the toolbar of the main window, which show the shell's commands and their current states.
#pragma once

#include <QObject>
#include <functional>
#include <map>

#include "shell/CommandBar.h"

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;

namespace tw {

class CommandMenus final : public QObject, public CommandObserver {
    Q_OBJECT
  public:
    // run is called when a menu item is chosen, press when a button is clicked. bar and window must outlive
    // this object.
    CommandMenus(CommandBar& bar, QMainWindow& window, std::function<void(CommandId)> run,
                 std::function<void(CommandId)> press);
    ~CommandMenus() override;

    QMenu* Menu(TopMenu menu) const { return menus_.at(menu); }
    QToolBar* ToolBar() const { return toolBar_; }
    // Shows the buttons with the icon set of that style.
    void SetIconStyle(int iconStyle);
    // Classic buttons always have a frame, flat ones only under the pointer.
    void SetFlat(bool flat);

    void MenuItemChanged(const MenuItem& item) override;
    void ToolButtonChanged(const ToolButton& button) override;

  private:
    void AddItem(const MenuItem& item, QMainWindow& window);
    void AddButton(const ToolButton& button, int& group);
    static void Show(QAction& action, const MenuItem& item);
    void Show(QAction& action, const ToolButton& button);

    CommandBar& bar_;
    std::function<void(CommandId)> run_;
    std::function<void(CommandId)> press_;
    std::map<TopMenu, QMenu*> menus_;
    std::map<CommandId, QAction*> items_;
    std::map<CommandId, QAction*> buttons_;
    QToolBar* toolBar_;
};

}  // namespace tw
