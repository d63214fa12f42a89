#include "shell/ui/CommandMenus.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"
#include "shell/ui/CommandTips.h"
#include "shell/ui/Icons.h"

namespace tw {
namespace {

struct TopMenu {
    const char* name;
    const char* caption;
};
constexpr TopMenu kTopMenus[] = {{"mnuFile", "&File"},
                                 {"mnuEdit", "&Edit"},
                                 {"mnuTools", "&Tools"},
                                 {"mnuWindow", "&Window"},
                                 {"mnuHelp", "&Help"}};

constexpr double kIconUnits = 3;

}  // namespace

CommandMenus::CommandMenus(CommandBar& bar, QMainWindow& window, std::function<void(const QString&)> run,
                           std::function<void(const QString&)> press)
    : QObject(&window), bar_(bar), run_(std::move(run)), press_(std::move(press)) {
    for (const TopMenu& top : kTopMenus) {
        QMenu* menu = window.menuBar()->addMenu(tr(top.caption));
        menu->setObjectName(QLatin1String(top.name));
        menu->setToolTipsVisible(false);
        menus_.insert(menu->objectName(), menu);
    }
    window.menuBar()->setAccessibleName(tr("Menus"));
    for (const MenuItem& item : bar.Items()) AddItem(item, window);

    toolBar_ = window.addToolBar(tr("Toolbar"));
    toolBar_->setObjectName(QStringLiteral("tbToolBar"));
    toolBar_->setAccessibleName(tr("Toolbar"));
    toolBar_->setMovable(false);
    toolBar_->setContextMenuPolicy(Qt::PreventContextMenu);
    const int side = static_cast<int>(Unit(window) * kIconUnits);
    toolBar_->setIconSize(QSize(side, side));
    int group = bar.Buttons().empty() ? 0 : bar.Buttons().front().group;
    for (const ToolButton& button : bar.Buttons()) AddButton(button, group);
    bar_.SetObserver(this);
}

CommandMenus::~CommandMenus() {
    bar_.SetObserver(nullptr);
}

void CommandMenus::AddItem(const MenuItem& item, QMainWindow& window) {
    const QString name = ToQt(item.name);
    auto* action = new QAction(&window);
    action->setObjectName(name);
    action->setSeparator(item.IsSeparator());
    action->setShortcut(QKeySequence(ToQt(item.shortcut)));
    action->setStatusTip(CommandTip(item.name));
    action->setMenuRole(QAction::NoRole);
    // The check mark is the command's, not the click's.
    action->setCheckable(item.name == "mnuEditAppendFlag");
    Show(*action, item);
    connect(action, &QAction::triggered, this, [this, name, action] {
        if (const MenuItem* known = bar_.FindItem(FromQt(name))) action->setChecked(known->checked);
        run_(name);
    });
    items_.insert(name, action);
    if (QMenu* menu = menus_.value(ToQt(item.menu))) menu->addAction(action);
}

void CommandMenus::AddButton(const ToolButton& button, int& group) {
    if (button.group != group) toolBar_->addSeparator();
    group = button.group;
    const QString key = ToQt(button.key);
    QAction* action = toolBar_->addAction(ToQt(button.toolTip));
    action->setObjectName(QStringLiteral("tbToolBar(%1)").arg(key));
    // A button that does not do quite what its menu item does has a sentence of its own, and not its key.
    const QString ownTip = CommandTip(button.key);
    const MenuItem* item = ownTip.isEmpty() ? bar_.FindItem(button.menuItem) : nullptr;
    const QString shortcut =
        item ? QKeySequence(ToQt(item->shortcut)).toString(QKeySequence::NativeText) : QString();
    const QString tip = ToQt(button.toolTip);
    action->setToolTip(shortcut.isEmpty() ? tip : QStringLiteral("%1 (%2)").arg(tip, shortcut));
    action->setStatusTip(ownTip.isEmpty() ? CommandTip(button.menuItem) : ownTip);
    if (QWidget* widget = toolBar_->widgetForAction(action)) {
        widget->setObjectName(action->objectName());
        widget->setAccessibleName(tip);
        widget->setAccessibleDescription(action->statusTip());
    }
    connect(action, &QAction::triggered, this, [this, key] { press_(key); });
    buttons_.insert(key, action);
    Show(*action, button);
}

void CommandMenus::SetIconStyle(int iconStyle) {
    for (const ToolButton& button : bar_.Buttons())
        if (!button.tag.empty()) buttons_.value(ToQt(button.key))->setIcon(ToolIcon(button.tag, iconStyle));
}

void CommandMenus::SetFlat(bool flat) {
    for (QAction* action : std::as_const(buttons_))
        if (auto* button = qobject_cast<QToolButton*>(toolBar_->widgetForAction(action)))
            button->setAutoRaise(flat);
}

void CommandMenus::Show(QAction& action, const MenuItem& item) {
    if (!item.IsSeparator()) action.setText(ToQt(item.caption));
    action.setEnabled(item.enabled);
    action.setVisible(item.visible);
    if (action.isCheckable()) action.setChecked(item.checked);
}

void CommandMenus::Show(QAction& action, const ToolButton& button) {
    action.setEnabled(button.enabled);
}

void CommandMenus::MenuItemChanged(const MenuItem& item) {
    if (QAction* action = items_.value(ToQt(item.name))) Show(*action, item);
}

void CommandMenus::ToolButtonChanged(const ToolButton& button) {
    if (QAction* action = buttons_.value(ToQt(button.key))) Show(*action, button);
}

}  // namespace tw
