#include "shell/ui/CommandMenus.h"

#include <QAction>
#include <QCoreApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"
#include "shell/ui/Icons.h"

namespace tw {
namespace {

constexpr double kIconUnits = 3;

// Returns the text for the status bar.
QString Tip(std::string_view sentence) {
    return QCoreApplication::translate("CommandTips", std::string(sentence).c_str());
}

}  // namespace

CommandMenus::CommandMenus(CommandBar& bar, QMainWindow& window, std::function<void(CommandId)> run,
                           std::function<void(CommandId)> press)
    : QObject(&window), bar_(bar), run_(std::move(run)), press_(std::move(press)) {
    for (const TopMenuRow& top : AllTopMenus()) {
        QMenu* menu = window.menuBar()->addMenu(tr(std::string(top.caption).c_str()));
        menu->setObjectName(ToQt(top.name));
        menu->setToolTipsVisible(false);
        menus_[top.id] = menu;
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
    const CommandRow& row = RowOf(item.id);
    auto* action = new QAction(&window);
    action->setObjectName(ToQt(item.name));
    action->setSeparator(item.IsSeparator());
    action->setShortcut(QKeySequence(ToQt(item.shortcut)));
    action->setStatusTip(Tip(row.tip));
    action->setMenuRole(QAction::NoRole);
    // The command determines the check mark; a click does not toggle it.
    action->setCheckable(row.checkable);
    Show(*action, item);
    connect(action, &QAction::triggered, this, [this, id = item.id, action] {
        action->setChecked(bar_.Item(id).checked);
        run_(id);
    });
    items_[item.id] = action;
    Menu(MenuOf(item.id))->addAction(action);
}

void CommandMenus::AddButton(const ToolButton& button, int& group) {
    if (button.group != group) toolBar_->addSeparator();
    group = button.group;
    QAction* action = toolBar_->addAction(ToQt(button.toolTip));
    action->setObjectName(QStringLiteral("tbToolBar(%1)").arg(ToQt(button.key)));
    // A button that differs from its menu item has a sentence of its own and does not show the item's key.
    const CommandRow& row = RowOf(button.id);
    const bool likeItem = row.button.tip.empty();
    const QString shortcut =
        likeItem ? QKeySequence(ToQt(row.keys)).toString(QKeySequence::NativeText) : QString();
    const QString tip = ToQt(button.toolTip);
    action->setToolTip(shortcut.isEmpty() ? tip : QStringLiteral("%1 (%2)").arg(tip, shortcut));
    action->setStatusTip(Tip(likeItem ? row.tip : row.button.tip));
    if (QWidget* widget = toolBar_->widgetForAction(action)) {
        widget->setObjectName(action->objectName());
        widget->setAccessibleName(tip);
        widget->setAccessibleDescription(action->statusTip());
    }
    connect(action, &QAction::triggered, this, [this, id = button.id] { press_(id); });
    buttons_[button.id] = action;
    Show(*action, button);
}

void CommandMenus::SetIconStyle(int iconStyle) {
    for (const ToolButton& button : bar_.Buttons())
        if (!button.tag.empty()) buttons_.at(button.id)->setIcon(ToolIcon(button.tag, iconStyle));
}

void CommandMenus::SetFlat(bool flat) {
    for (const auto& [id, action] : buttons_)
        if (auto* button = qobject_cast<QToolButton*>(toolBar_->widgetForAction(action)))
            button->setAutoRaise(flat);
}

void CommandMenus::Show(QAction& action, const MenuItem& item) {
    if (!item.IsSeparator()) action.setText(ToQt(ShownCaption(RowOf(item.id), item.caption)));
    action.setEnabled(item.enabled);
    action.setVisible(item.visible);
    if (action.isCheckable()) action.setChecked(item.checked);
}

void CommandMenus::Show(QAction& action, const ToolButton& button) {
    action.setEnabled(button.enabled);
}

void CommandMenus::MenuItemChanged(const MenuItem& item) {
    Show(*items_.at(item.id), item);
}

void CommandMenus::ToolButtonChanged(const ToolButton& button) {
    Show(*buttons_.at(button.id), button);
}

}  // namespace tw
