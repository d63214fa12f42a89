// Commands on the program itself: answers, menus, settings, the database, ending the program.
#include "cli/Command.h"
#include "cli/ScriptFormat.h"
#include "store/SqlDialect.h"

namespace tw {
namespace {

void QueueAnswer(Session& session, Arguments& arguments) {
    session.Answers().Add(arguments.Text());
}

const MenuItem& TakeItem(Session& session, Arguments& arguments) {
    const std::string name = arguments.Word("NAME");
    arguments.End();
    const MenuItem* const item = session.Program().Bar().FindItem(name);
    if (item == nullptr) throw ScriptError("there is no menu item '" + name + "'");
    return *item;
}

void Menu(Session& session, Arguments& arguments) {
    const MenuItem& item = TakeItem(session, arguments);
    if (!item.visible) return session.Out().Line("hidden");
    if (!item.enabled) return session.Out().Line("off");
    if (item.IsSeparator()) return;
    session.Program().RunMenu(item.name);
}

void State(Session& session, Arguments& arguments) {
    const MenuItem& item = TakeItem(session, arguments);
    std::string line = EscapeText(item.caption) + "\t" + std::string(OnOff(item.enabled));
    if (!item.visible) line += "\thidden";
    if (item.checked) line += "\tchecked";
    session.Out().Line(line);
}

void ShowButton(Session& session, Arguments& arguments) {
    const std::string key = arguments.Word("KEY");
    arguments.End();
    const ToolButton* const button = session.Program().Bar().FindButton(key);
    if (button == nullptr) throw ScriptError("there is no toolbar button '" + key + "'");
    session.Out().Line(std::string(OnOff(button->enabled)) + "\t" + button->image);
}

void Mru(Session& session, Arguments& arguments) {
    arguments.End();
    for (const std::string& caption : session.Program().Recent().Captions()) session.Out().Text(caption);
}

void Setting(Session& session, Arguments& arguments) {
    const std::string section = arguments.Word("SECTION");
    const std::string key = arguments.Word("KEY");
    if (arguments.AtEnd()) {
        const std::string fallback = Settings::DefaultOf(section, key).value_or("");
        return session.Out().Text(session.Store().GetSetting(section, key, fallback));
    }
    const std::string text = arguments.Text();
    if (session.Running())
        session.Program().SettingsNow().Store(section, key, text);
    else
        session.Store().SaveSetting(section, key, text, false);
}

void PrintRows(Session& session, Recordset rows) {
    for (; !rows.AtEnd(); rows.MoveNext()) {
        std::string line;
        for (int i = 0; i < rows.FieldCount(); ++i) {
            if (i > 0) line.push_back('\t');
            const Field field = rows.Fields(i);
            line += field.IsNull() ? "NULL" : EscapeText(field.Text());
        }
        session.Out().Line(line);
    }
}

void Sql(Session& session, Arguments& arguments) {
    const std::string text = arguments.Text();
    RunSql(session, *session.Program().DB(), text);
    // The statement may have changed the styles offered in the open recipes.
    if (TranslateSql(text).kind != StatementKind::Select) session.Program().Documents().CatalogueChanged();
}

void ShowDialogs(Session& session, Arguments& arguments) {
    const bool show = arguments.Choice("the state", "on", "off");
    arguments.End();
    session.Dialogs().SetShow(show);
}

void Restart(Session& session, Arguments& arguments) {
    arguments.End();
    if (!session.Restart()) session.Out().Line("refused");
}

void Tick(Session& session, Arguments& arguments) {
    const std::string timer = arguments.Word("the timer");
    arguments.End();
    if (timer == "autosave") return session.Program().TickAutoSave();
    if (timer != "dde") throw ScriptError("there is no timer '" + timer + "'");
    session.Program().Instance().TickDDE();
}

constexpr Command kCommands[] = {
    {"answer", "TEXT", "queues the answer to the next question or dialog", QueueAnswer},
    {"menu", "NAME", "runs a menu item", Menu},
    {"state", "NAME", "a menu item's caption and state", State},
    {"button", "KEY", "a toolbar button's state and image", ShowButton},
    {"mru", "", "the recent list", Mru},
    {"setting", "SECTION KEY [TEXT]", "reads or stores a setting", Setting},
    {"sql", "TEXT", "runs a statement on the database", Sql},
    {"tick", "autosave|dde", "one tick of that timer", Tick},
    {"restart", "", "ends the program and starts it again", Restart},
    {"dialogs", "on|off", "whether dialogs print their controls", ShowDialogs},
};

}  // namespace

void RunSql(Session& session, Database& database, const std::string& text) {
    if (TranslateSql(text).kind == StatementKind::Select)
        return PrintRows(session, database.OpenRecordset(text));
    database.Execute(text);
    session.Out().Line(std::to_string(database.RecordsAffected()));
}

std::span<const Command> CommandsOnProgram() {
    return kCommands;
}

}  // namespace tw
