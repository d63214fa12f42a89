// The menu bar and the toolbar of the main window: they show the commands of the shell and follow their
// states.
#pragma once

#include <QHash>
#include <QObject>
#include <functional>

#include "shell/CommandBar.h"

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;

namespace tw {

class CommandMenus final : public QObject, public CommandObserver {
    Q_OBJECT
  public:
    // run is called with a menu item's or (press) a button's name when it is chosen. bar must outlive this
    // object.
    CommandMenus(CommandBar& bar, QMainWindow& window, std::function<void(const QString&)> run,
                 std::function<void(const QString&)> press);
    ~CommandMenus() override;

    // "mnuFile", "mnuEdit", "mnuTools", "mnuWindow", "mnuHelp".
    QMenu* Menu(const QString& name) const { return menus_.value(name); }
    QToolBar* ToolBar() const { return toolBar_; }
    // Shows the buttons in the icon set of that style.
    void SetIconStyle(int iconStyle);
    // Classic buttons have a frame each, flat ones only under the mouse.
    void SetFlat(bool flat);

    void MenuItemChanged(const MenuItem& item) override;
    void ToolButtonChanged(const ToolButton& button) override;

  private:
    void AddItem(const MenuItem& item, QMainWindow& window);
    void AddButton(const ToolButton& button, int& group);
    static void Show(QAction& action, const MenuItem& item);
    void Show(QAction& action, const ToolButton& button);

    CommandBar& bar_;
    std::function<void(const QString&)> run_;
    std::function<void(const QString&)> press_;
    QHash<QString, QMenu*> menus_;
    QHash<QString, QAction*> items_;
    QHash<QString, QAction*> buttons_;
    QToolBar* toolBar_;
};

}  // namespace tw
