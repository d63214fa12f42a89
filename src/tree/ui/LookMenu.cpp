#include "tree/ui/LookMenu.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QMenu>

#include "platform/qt/QtText.h"

namespace tw {
namespace {

QString Text(const char* text) {
    return QCoreApplication::translate("tw::LookMenu", text);
}

// Only shows the key: the windows take it themselves, even while no menu is open.
void ShowKey(QAction& action, PopupCommand command) {
    action.setShortcut(KeyOf(command));
    action.setShortcutContext(Qt::WidgetShortcut);
    action.setShortcutVisibleInContextMenu(true);
}

void AddChoice(QMenu& menu, QActionGroup& group, PopupChoice choice, const QString& caption, bool checked,
               const RunPopup& run) {
    QAction* action = menu.addAction(caption);
    action->setObjectName(ToQt(NameOf(choice)));
    ShowKey(*action, choice.command);
    action->setCheckable(true);
    action->setChecked(checked);
    group.addAction(action);
    QObject::connect(action, &QAction::triggered, &menu, [run, choice] { run(choice); });
}

}  // namespace

QKeySequence KeyOf(PopupCommand command) {
    switch (command) {
        case PopupCommand::Open:
            return Qt::Key_Enter;
        case PopupCommand::Delete:
        case PopupCommand::DeleteFolder:
            return Qt::Key_Delete;
        case PopupCommand::Rename:
        case PopupCommand::RenameFolder:
            return Qt::Key_F2;
        case PopupCommand::NewFolder:
            return Qt::CTRL | Qt::SHIFT | Qt::Key_N;
        case PopupCommand::List:
            return Qt::CTRL | Qt::Key_1;
        case PopupCommand::Details:
            return Qt::CTRL | Qt::Key_2;
        default:
            return {};
    }
}

void AddCommand(QMenu& menu, PopupCommand command, const QString& caption, bool enabled,
                const RunPopup& run) {
    QAction* action = menu.addAction(caption);
    action->setObjectName(ToQt(RowOf(command).name));
    ShowKey(*action, command);
    action->setEnabled(enabled);
    QObject::connect(action, &QAction::triggered, &menu, [run, command] { run(command); });
}

void AddCommand(QMenu& menu, PopupCommand command, bool enabled, const RunPopup& run) {
    AddCommand(menu, command, Text(RowOf(command).caption), enabled, run);
}

void AddViews(QMenu& menu, const ListLook& look, const RunPopup& run) {
    auto* group = new QActionGroup(&menu);
    for (const PopupCommand view :
         {PopupCommand::LargeIcons, PopupCommand::SmallIcons, PopupCommand::List, PopupCommand::Details}) {
        ListLook shown = look;
        TakeLookCommand(shown, view);
        AddChoice(menu, *group, view, Text(RowOf(view).caption), shown.viewType == look.viewType, run);
    }
}

void AddArrangements(QMenu& menu, const ListLook& look, const ListTable& list, const RunPopup& run) {
    auto* group = new QActionGroup(&menu);
    for (const int column : list.ColumnsByPlace()) {
        const ListColumn& shown = list.Columns()[static_cast<std::size_t>(column)];
        if (shown.hidden) continue;
        AddChoice(menu, *group, {PopupCommand::ArrangeBy, column}, Text("by %1").arg(ToQt(shown.Caption())),
                  look.arrangeKey == column, run);
    }
}

void AddLookMenus(QMenu& menu, const ListLook& look, const ListTable& list, bool lineUpEnabled,
                  const RunPopup& run) {
    QMenu* view = menu.addMenu(Text("&View"));
    view->menuAction()->setObjectName(QLatin1String(kViewMenu));
    AddViews(*view, look, run);
    QMenu* arrange = menu.addMenu(Text("Sor&t"));
    arrange->menuAction()->setObjectName(QLatin1String(kArrangeMenu));
    AddArrangements(*arrange, look, list, run);
    AddCommand(menu, PopupCommand::LineUp, lineUpEnabled, run);
}

}  // namespace tw
