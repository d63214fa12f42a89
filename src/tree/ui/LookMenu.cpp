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

void AddChoice(QMenu& menu, QActionGroup& group, PopupChoice choice, const QString& caption, bool checked,
               const RunPopup& run) {
    QAction* action = menu.addAction(caption);
    action->setObjectName(ToQt(NameOf(choice)));
    action->setCheckable(true);
    action->setChecked(checked);
    group.addAction(action);
    QObject::connect(action, &QAction::triggered, &menu, [run, choice] { run(choice); });
}

}  // namespace

void AddCommand(QMenu& menu, PopupCommand command, const QString& caption, bool enabled,
                const RunPopup& run) {
    QAction* action = menu.addAction(caption);
    action->setObjectName(ToQt(RowOf(command).name));
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
    const int columns = static_cast<int>(list.Columns().size());
    for (int column = 0; column < columns; ++column)
        AddChoice(menu, *group, {PopupCommand::ArrangeBy, column},
                  Text("by %1").arg(ToQt(list.Columns()[static_cast<std::size_t>(column)].title)),
                  look.arrangeKey == column, run);
}

void AddLookMenus(QMenu& menu, const ListLook& look, const ListTable& list, bool lineUpEnabled,
                  const RunPopup& run) {
    QMenu* view = menu.addMenu(Text("&View"));
    view->menuAction()->setObjectName(QLatin1String(kViewMenu));
    AddViews(*view, look, run);
    QMenu* arrange = menu.addMenu(Text("&Arrange Icons"));
    arrange->menuAction()->setObjectName(QLatin1String(kArrangeMenu));
    AddArrangements(*arrange, look, list, run);
    AddCommand(menu, PopupCommand::LineUp, lineUpEnabled, run);
}

}  // namespace tw
