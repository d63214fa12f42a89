#include "tree/ui/LookMenu.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QMenu>
#include <iterator>

#include "platform/qt/QtText.h"

namespace tw {
namespace {

QString Text(const char* text) {
    return QCoreApplication::translate("tw::LookMenu", text);
}

QAction* AddChoice(QMenu& menu, QActionGroup& group, std::string command, const QString& caption,
                   bool checked, const RunCommand& run) {
    QAction* action = menu.addAction(caption);
    action->setObjectName(ToQt(command));
    action->setCheckable(true);
    action->setChecked(checked);
    group.addAction(action);
    QObject::connect(action, &QAction::triggered, &menu,
                     [run, command = std::move(command)] { run(command); });
    return action;
}

}  // namespace

void AddCommand(QMenu& menu, const char* name, const QString& caption, bool enabled, const RunCommand& run) {
    QAction* action = menu.addAction(caption);
    action->setObjectName(QLatin1String(name));
    action->setEnabled(enabled);
    QObject::connect(action, &QAction::triggered, &menu, [run, name] { run(name); });
}

void AddViews(QMenu& menu, const ListLook& look, const RunCommand& run) {
    const QString captions[] = {Text("Lar&ge Icons"), Text("S&mall Icons"), Text("&List"), Text("&Details")};
    auto* group = new QActionGroup(&menu);
    for (std::size_t i = 0; i < std::size(kViewCommands); ++i)
        AddChoice(menu, *group, std::string(kViewCommands[i]), captions[i],
                  static_cast<std::size_t>(look.viewType) == i, run);
}

void AddArrangements(QMenu& menu, const ListLook& look, const ListTable& list, const RunCommand& run) {
    auto* group = new QActionGroup(&menu);
    const int columns = static_cast<int>(list.Columns().size());
    for (int column = 0; column < columns; ++column)
        AddChoice(menu, *group, ArrangeCommand(column),
                  Text("by %1").arg(ToQt(list.Columns()[static_cast<std::size_t>(column)].title)),
                  look.arrangeKey == column, run);
}

void AddLookMenus(QMenu& menu, const ListLook& look, const ListTable& list, bool lineUpEnabled,
                  const RunCommand& run) {
    QMenu* view = menu.addMenu(Text("&View"));
    view->menuAction()->setObjectName(QStringLiteral("mnuView"));
    AddViews(*view, look, run);
    QMenu* arrange = menu.addMenu(Text("&Arrange Icons"));
    arrange->menuAction()->setObjectName(QStringLiteral("mnuArrange"));
    AddArrangements(*arrange, look, list, run);
    AddCommand(menu, "mnuLineUp", Text("Line &Up Icons"), lineUpEnabled, run);
}

}  // namespace tw
